#pragma once
// The score sheet of a headless run: one row per Partie, then the sums.
#include <cstdint>
#include <ostream>
#include <vector>

#include "engine/Spiel.h"

namespace app {

class Spielliste {
public:
    // Takes in a scored game.
    void spielGewertet(const engine::Spiel& spiel);
    void schreiben(std::ostream& aus, const engine::Spiel& spiel, int spiele, std::uint64_t seed) const;

private:
    struct Partiezeile {
        int partie = 0;
        int spiele = 0;
        bool beendet = false;
        engine::ProSitz<int> stand;
    };
    std::vector<Partiezeile> zeilen_;
};

}  // namespace app

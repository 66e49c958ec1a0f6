#pragma once
// The computer players of a headless table: the knowledge they share, watching the
// game cycle, and one player of a named kind per seat.
#include <array>
#include <cstdint>
#include <vector>
#include <memory>
#include <string>

#include "engine/Entscheider.h"
#include "engine/Spielablauf.h"
#include "players/Stark.h"
#include "players/Tischwissen.h"

namespace app {

class Computertisch {
public:
    // `arten` per seat 1..4, names the caller has checked against players::spielerarten().
    // `seed` and `bedenkzeit` (ms) serve the searching player.
    Computertisch(engine::Spielablauf& ablauf, engine::Zufallsquelle& zufall, const std::array<std::string, 4>& arten,
                  players::Begruendungssenke* senke = nullptr, std::uint64_t seed = 0,
                  int bedenkzeit = players::StandardBedenkzeit);

    engine::ProSitz<engine::Entscheider*> entscheider() const;
    // Thinking times (ms) of the searching seats so far.
    std::vector<double> denkzeiten() const;

private:
    players::Tischwissen wissen_;
    std::array<std::unique_ptr<engine::Entscheider>, 4> spieler_;
};

}  // namespace app

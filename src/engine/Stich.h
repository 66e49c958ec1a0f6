#pragma once
// The trick in progress.
#include <array>
#include <cassert>

#include "Sitz.h"

namespace engine {

struct Stich {
    Sitz aufspieler{1};
    int anzahl = 0;                 // cards played to it so far, 0..4
    std::array<int, 4> karten{};    // deck positions in playing order
    ProSitz<int> platz;             // place 1..4 at which each seat played, 0 not yet
    int farbeZuBedienen = 0;        // effective suit of the led card

    // Deck position of the card at place 1..4.
    int karte(int platzNr) const {
        assert(platzNr >= 1 && platzNr <= 4);
        return karten[static_cast<std::size_t>(platzNr - 1)];
    }
    // Seat that plays (or played) at place 1..4.
    Sitz sitzAn(int platzNr) const { return aufspieler.plus(platzNr - 1); }
    // Seat on turn while the trick is not complete.
    Sitz amZug() const { return aufspieler.plus(anzahl); }
    bool komplett() const { return anzahl == 4; }

    void beginnen(Sitz leader) { *this = Stich{}; aufspieler = leader; }
    bool operator==(const Stich&) const = default;
};

}  // namespace engine

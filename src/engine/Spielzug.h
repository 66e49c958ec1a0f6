#pragma once
// Playing and taking back single cards without the game cycle: for searches that
// try every card of a position. No observers, messages or announcements; a
// Hochzeit must already be settled (or not be played).
#include <cstddef>

#include "Spiel.h"

namespace engine {

// Books the complete trick in spiel.stich: its record, the winner's Augen and trick,
// its special points. The game cycle and the searches book tricks through this.
const StichProtokoll& stichBuchen(Spiel& spiel);

// What zugMachen changed, so zugZuruecknehmen can restore it.
struct Zugruecknahme {
    int pos = 0;
    Kartenposition karte;         // the card before it was played
    Stich stich;                  // the trick before the card
    int schweineGespielt = 0;     // of the player
    int parteiMarker = 0;
    bool stichGebucht = false;    // the card completed a trick
    std::size_t sonderpunkte = 0; // special points before the card
};

// Plays the legal card `pos` for the seat on turn; a completed trick is booked and,
// unless it was the last, the winner leads the next one.
Zugruecknahme zugMachen(Spiel& spiel, int pos);
void zugZuruecknehmen(Spiel& spiel, const Zugruecknahme& z);

}  // namespace engine

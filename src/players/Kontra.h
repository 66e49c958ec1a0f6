#pragma once
// Announcements of the computer players: KontraPruefen decides Re or Kontra for the
// seat's party from hard rules and the announcement score AnsageWert; LimitPruefen
// announces a limit only when the Augen so far and the own cards make it safe.
#include <optional>

#include "Lage.h"

namespace players {

// Above this the seat announces.
inline constexpr int AnsageSchwelle = 100;
// Written by a hard rule that says yes.
inline constexpr int AnsageSicher = 101;
// Margin that the opponents must stay below an own limit by.
inline constexpr int LimitReserve = 10;
// Confidence that the own top trumps pull the others' before a limit is announced.
inline constexpr double AbziehenLimit = 0.99;

struct Ansagepruefung {
    bool ansagen = false;
    int wert = 0;  // AnsageWert when the decision was taken
};

// KontraPruefen, before a card of the seat of `lage`. On an empty trick it only
// decides before the first card of the game.
Ansagepruefung kontraPruefen(const Lage& lage);

// The limit code (Limit) the seat of `lage` announces now, if any: only while it
// leads after the first trick, knows every seat's party and can pull the others'
// trumps, when the opponents' Augen so far and what the own hand will still lose
// stay below the level by a margin; Schwarz only when nothing can be lost at all.
std::optional<int> limitPruefen(const Lage& lage);

}  // namespace players

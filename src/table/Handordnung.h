#pragma once
// The order in which a hand is laid out on the table.
#include <vector>

#include "engine/Spiel.h"

namespace table {

// Deck positions of the seat's cards still in hand, left to right: the trumps from
// the strongest down, then the plain suits (Kreuz, Herz, Pik, Karo, so black and
// red alternate), each from its strongest card down.
std::vector<int> sortierteHand(const engine::Spiel& spiel, engine::Sitz sitz);
// The same order for any set of deck positions (a hand as it was earlier in the game).
std::vector<int> sortiert(const engine::Spiel& spiel, std::vector<int> positionen);

// Cards of the seat still in hand.
int kartenInHand(const engine::Spiel& spiel, engine::Sitz sitz);

}  // namespace table

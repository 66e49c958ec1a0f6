#pragma once
// The rest of a simulated game: the rule book at all four seats, and an exact
// solution of the last tricks with all cards open.
#include <optional>
#include <vector>

#include "Tischwissen.h"
#include "engine/Entscheider.h"

namespace players {

// Plays the world to its end: first the given announcement and card of the seat on
// turn (when given), then the rule book everywhere (with its announcements when
// `ansagen`). Returns the points the game brings the side of `fuer`.
int ausspielen(Spiel& spiel, Tischwissen& wissen, engine::Zufallsquelle& zufall, Sitz fuer,
               std::optional<engine::Ansage> ansage, int ersteKarte, bool ansagen);

// No seat can announce anything any more: the rest of the game is card play alone.
bool ansagenVorbei(const Spiel& spiel);

// The value of each of `karten` (legal cards of the seat on turn) for that seat's side
// when all seats play their best with open cards. Only without announcements to come
// and with the Hochzeit settled; `spiel` is left as it was.
std::vector<int> endspielWerte(Spiel& spiel, const std::vector<int>& karten);

}  // namespace players

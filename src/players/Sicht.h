#pragma once
// What one seat has seen of the game: its own hand, the cards played, the
// announcements, the reservations and what they made public. The state of the game
// with every card the seat cannot see blanked out and every hidden fact erased, so
// a search that starts from it cannot use what the seat does not know.
#include <cstdint>

#include "engine/Spiel.h"

namespace players {

struct Sicht {
    engine::Spiel spiel;  // the other seats' cards in hand have code 0
    engine::Sitz ich{1};
    bool operator==(const Sicht&) const = default;
};

Sicht sichtVon(const engine::Spiel& spiel, engine::Sitz ich);

// Whether a card of another seat in hand is hidden in the view.
inline bool verdeckt(const Sicht& sicht, int pos) {
    const auto& k = sicht.spiel.deck[pos];
    return k.status == engine::InHand && k.code == 0;
}

// The Schweine holder is known to every seat: announced (by the rule, or the holder
// sits at this machine), or one of them played.
bool schweineOeffentlich(const engine::Spiel& spiel, engine::Sitz halter);

// A number that changes with everything the view holds (a seed for the search).
std::uint64_t sichtSchluessel(const Sicht& sicht);

}  // namespace players

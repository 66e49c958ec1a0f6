#include "Handordnung.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "engine/Stichspiel.h"

namespace table {

namespace {
// Left-to-right rank of a plain suit.
int farbfolge(int farbe) {
    constexpr std::array<int, 5> folge{9, 3, 1, 2, 0};  // Karo, Herz, Pik, Kreuz
    return farbe >= 1 && farbe <= 4 ? folge[static_cast<std::size_t>(farbe)] : 8;
}
}  // namespace

std::vector<int> sortierteHand(const engine::Spiel& spiel, engine::Sitz sitz) {
    return sortiert(spiel, engine::handkarten(spiel, sitz));
}

std::vector<int> sortiert(const engine::Spiel& spiel, std::vector<int> hand) {
    const engine::Deck& deck = spiel.deck;

    // Sort key: trumps first, then the suit, then the strength downwards; the code
    // keeps equal strengths apart (Herz-As and Herz-Zehn differ only by it) and the
    // position keeps the order stable.
    auto schluessel = [&](int p) {
        const auto& k = deck[p];
        const bool trumpf = k.farbe == spiel.spieltyp;
        return std::make_tuple(trumpf ? 0 : 1, trumpf ? 0 : farbfolge(k.farbe), -k.staerke,
                               -engine::rangVonCode(k.code), p);
    };
    std::sort(hand.begin(), hand.end(), [&](int a, int b) { return schluessel(a) < schluessel(b); });
    return hand;
}

int kartenInHand(const engine::Spiel& spiel, engine::Sitz sitz) {
    return static_cast<int>(engine::handkarten(spiel, sitz).size());
}

}  // namespace table

#include "EinfacheSpieler.h"

#include <vector>

#include "engine/Stichspiel.h"

namespace players {

using engine::erlaubteKarten;
using engine::Sitz;
using engine::Spiel;

int kleinsteErlaubteKarte(const Spiel& spiel, Sitz sitz) {
    int beste = 0;
    for (int p : erlaubteKarten(spiel, sitz)) {
        if (beste == 0) {
            beste = p;
            continue;
        }
        const auto& k = spiel.deck[p];
        const auto& b = spiel.deck[beste];
        const bool kTrumpf = k.farbe == spiel.spieltyp;
        const bool bTrumpf = b.farbe == spiel.spieltyp;
        if (k.staerke < b.staerke || (k.staerke == b.staerke && bTrumpf && !kTrumpf)) beste = p;
    }
    return beste;
}

int KleinsteKarte::karteWaehlen(const Spiel& spiel, Sitz sitz) { return kleinsteErlaubteKarte(spiel, sitz); }

int Zufallsspieler::karteWaehlen(const Spiel& spiel, Sitz sitz) {
    const std::vector<int> karten = erlaubteKarten(spiel, sitz);
    if (karten.empty()) return 0;
    return karten[static_cast<std::size_t>(zufall_.ganzzahl(static_cast<int>(karten.size())))];
}

}  // namespace players

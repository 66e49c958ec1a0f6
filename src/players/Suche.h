#pragma once
// Determinized search: deals of the unseen cards drawn to agree with a seat's view,
// weighted by how well the rule book explains the other seats' cards, every choice
// played to the end in each of them; the choice with the best mean wins.
#include <cstdint>
#include <optional>
#include <vector>

#include "Sicht.h"
#include "engine/Entscheider.h"

namespace players {

struct Sucheinstellung {
    int simulationen = 4000;   // games played to the end per decision: the budget
    int threads = 0;           // 0: every core
    double abweichung = 0.7;   // weight factor per card of another seat the rule book would not have played; 1: unweighted
    int endspielStiche = 3;    // solve exactly with this many tricks left or fewer (0: never)
    bool rolloutAnsagen = true;  // the rule book announces in the simulated games
};

struct Kartenwert {
    int karte = 0;        // deck position
    double mittel = 0;    // mean points for the own side
};

struct Suchergebnis {
    int karte = 0;
    std::vector<Kartenwert> werte;  // every legal card (one of two equal cards)
    int welten = 0;                 // deals that counted
    bool exakt = false;             // the last tricks were solved exactly
    const Kartenwert* wertVon(int karte) const;
};

// The card for the seat of the view. `zufallszahl`: the table's number of the first trick.
Suchergebnis karteSuchen(const Sicht& sicht, int zufallszahl, std::uint64_t seed, const Sucheinstellung& e);

struct Ansagesuche {
    std::optional<engine::Ansage> ansage;  // the best announcement, if it pays
    double gewinn = 0;                     // its mean gain over announcing nothing
    int welten = 0;
};

// Whether one of `moeglich` gains over announcing nothing now, in points for the own side:
// it must be better with 95 % confidence over the paired deals.
Ansagesuche ansageSuchen(const Sicht& sicht, int zufallszahl, std::uint64_t seed, const Sucheinstellung& e,
                         const std::vector<engine::Ansage>& moeglich);

}  // namespace players

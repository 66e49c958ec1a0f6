#pragma once
// Deals of the unseen cards that agree with everything a seat has seen, and the
// game replayed in such a deal up to now, with the rule book's beliefs at every seat.
#include <array>
#include <memory>
#include <optional>

#include "Sicht.h"
#include "Tischwissen.h"
#include "engine/Zufall.h"

namespace players {

// The card codes of the other seats' hidden positions (index: deck position, 0 elsewhere).
using Zuteilung = std::array<int, engine::MaxPositionen + 1>;

// What the view says about where the unseen cards can be.
struct Kartenschranken {
    ProSitz<std::array<bool, AnzahlFarben>> frei{};  // shown void in an effective suit
    ProSitz<bool> keineKreuzDame{};                  // announced Kontra, or not the Hochzeiter
    ProSitz<bool> brauchtKreuzDame{};                // announced Re without having shown a Kreuz-Dame
    std::optional<Sitz> kreuzDamenBei;               // the Hochzeiter holds every hidden Kreuz-Dame
    std::optional<Sitz> karoAsseBei;                 // the known Schweine holder holds every hidden Karo-As
};
Kartenschranken schrankenAus(const Sicht& sicht);

// Codes not seen by the seat (with repeats), from the deck of the rules in force.
std::vector<int> ungeseheneKarten(const Sicht& sicht);

// A deal of the unseen cards that honours the bounds; empty after too many failed tries.
std::optional<Zuteilung> zuteilungZiehen(const Sicht& sicht, const Kartenschranken& schranken,
                                         engine::Zufallsquelle& zufall);

// The whole game as it would stand with that deal: codes, ranks, Schweine, parties
// and special points; empty when the deal contradicts something seen (a Schwein or a
// Supersau that would have shown).
std::optional<engine::Spiel> weltBauen(const Sicht& sicht, const Zuteilung& zuteilung);

// A world replayed from its first card to now: the rule book's knowledge as every
// seat would hold it, and how likely the others' cards were under the rule book.
struct Welt {
    std::unique_ptr<engine::Spiel> spiel;
    std::unique_ptr<Tischwissen> wissen;
    double gewicht = 1;
};

// `abweichung`: factor for each card of another seat that the rule book would not have
// played (1: no weighting, and then the others' cards are not asked for at all).
// `zufallszahl`: the table's number of the first trick, carried over.
std::optional<Welt> weltNachspielen(const Sicht& sicht, const engine::Spiel& welt, int zufallszahl,
                                    double abweichung, engine::Zufallsquelle& zufall);

}  // namespace players

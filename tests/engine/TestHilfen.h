#pragma once
// Builders for constructed card situations.
#include <initializer_list>
#include <vector>

#include "engine/Spiel.h"
#include "engine/Zufall.h"

namespace testhilfe {

// Replays fixed numbers in [0, 1), then repeats the last one.
class FesteZufall final : public engine::Zufallsquelle {
public:
    explicit FesteZufall(std::vector<double> werte) : werte_(std::move(werte)) {}
    double rnd() override {
        const double w = werte_[i_];
        if (i_ + 1 < werte_.size()) ++i_;
        return w;
    }

private:
    std::vector<double> werte_;
    std::size_t i_ = 0;
};

// A game of the given type whose seats hold the listed codes (missing cards
// filled with Karo-Neunen, which no test case relies on).
inline engine::Spiel spielMitHaenden(int spieltyp, std::initializer_list<std::vector<int>> haende,
                                     int kartenanzahl = 48) {
    engine::Spiel spiel;
    spiel.regeln.kartenanzahl = kartenanzahl;
    spiel.deck.setzeKartenanzahl(kartenanzahl);
    spiel.spieltyp = spieltyp;
    spiel.solo = spieltyp != engine::Normalspiel;
    int s = 1;
    for (const auto& hand : haende) {
        const engine::Sitz sitz(s++);
        int pos = spiel.deck.erstePosition(sitz);
        for (int code : hand) spiel.deck[pos++].code = code;
        while (pos <= spiel.deck.letztePosition(sitz)) spiel.deck[pos++].code = 1;
    }
    for (int p = 1; p <= kartenanzahl; ++p) spiel.deck[p].status = engine::InHand;
    spiel.deck.attributeBerechnen();
    spiel.deck.staerkenBerechnen(spieltyp);
    for (const engine::Sitz sitz : engine::alleSitze) spiel.namen[sitz] = "Spieler" + std::to_string(sitz.nr());
    return spiel;
}

// Deck position of the first card with this code still in the seat's hand.
inline int positionVon(const engine::Spiel& spiel, engine::Sitz sitz, int code) {
    for (int p = spiel.deck.erstePosition(sitz); p <= spiel.deck.letztePosition(sitz); ++p)
        if (spiel.deck[p].code == code && spiel.deck[p].status == engine::InHand) return p;
    return 0;
}

}  // namespace testhilfe

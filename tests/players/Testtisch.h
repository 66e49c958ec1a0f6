#pragma once
// A minimal table for whole games until the game cycle is at hand: a seeded deal,
// a normal game (parties by the Kreuz-Damen), twelve tricks, the simple score.
#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

#include "engine/Entscheider.h"
#include "engine/Stichspiel.h"
#include "engine/Zufall.h"

namespace testhilfe {

class Testtisch {
public:
    engine::Spiel spiel;
    std::vector<engine::Spielbeobachter*> beobachter;
    std::array<engine::Entscheider*, 4> spieler{};
    int illegaleKarten = 0;

    // Deals from the seed; seat `vorhand` leads.
    void geben(std::uint64_t seed, engine::Sitz vorhand) {
        const engine::Regeln regeln = spiel.regeln;
        spiel = engine::Spiel{};
        spiel.regeln = regeln;
        engine::SeedZufall zufall(seed);
        std::array<int, 48> nummern{};
        std::iota(nummern.begin(), nummern.end(), 1);
        for (int i = 47; i > 0; --i)
            std::swap(nummern[static_cast<std::size_t>(i)], nummern[static_cast<std::size_t>(zufall.ganzzahl(i + 1))]);
        for (int p = 1; p <= 48; ++p) {
            const int n = nummern[static_cast<std::size_t>(p - 1)];
            spiel.deck[p].code = n > 24 ? n - 24 : n;
            spiel.deck[p].status = engine::InHand;
        }
        spiel.deck.attributeBerechnen();
        spiel.deck.staerkenBerechnen(engine::Normalspiel);
        for (auto* b : beobachter) b->kartenGegeben(spiel);
        for (const engine::Sitz s : engine::alleSitze) {
            int damen = 0;
            for (int p = spiel.deck.erstePosition(s); p <= spiel.deck.letztePosition(s); ++p)
                if (spiel.deck[p].code == engine::kartencode(engine::Kreuz, engine::Dame)) ++damen;
            spiel.partei[s] = damen == 0 ? engine::ParteiKontra : damen == 1 ? engine::ParteiRe : engine::ParteiSolo;
            if (damen == 2) spiel.stillerSolist = s;
        }
        spiel.vorhand = vorhand;
        spiel.stich.beginnen(vorhand);
        for (auto* b : beobachter) b->spielBegonnen(spiel);
    }

    void spielen() {
        for (int t = 0; t < 12; ++t) {
            for (int i = 0; i < 4; ++i) {
                const engine::Sitz s = spiel.stich.amZug();
                int pos = spieler[static_cast<std::size_t>(s.nr() - 1)]->karteWaehlen(spiel, s);
                if (pos < spiel.deck.erstePosition(s) || pos > spiel.deck.letztePosition(s) ||
                    spiel.deck[pos].status != engine::InHand || !engine::karteErlaubt(spiel, s, pos)) {
                    ++illegaleKarten;
                    for (pos = spiel.deck.erstePosition(s);; ++pos)
                        if (spiel.deck[pos].status == engine::InHand && engine::karteErlaubt(spiel, s, pos)) break;
                }
                engine::karteSpielen(spiel, pos);
                for (auto* b : beobachter) b->karteGespielt(spiel, s, pos);
            }
            const engine::Sitz gewinner = engine::stichGewinner(spiel);
            engine::StichProtokoll protokoll;
            protokoll.aufspieler = spiel.stich.aufspieler;
            protokoll.karten = spiel.stich.karten;
            protokoll.gewinner = gewinner;
            for (int i = 1; i <= 4; ++i) protokoll.augen += spiel.deck[spiel.stich.karte(i)].augen;
            spiel.augen[gewinner] += protokoll.augen;
            ++spiel.stichzahl[gewinner];
            spiel.stiche.push_back(protokoll);
            ++spiel.sticheGespielt;
            for (auto* b : beobachter) b->stichKomplett(spiel, gewinner);
            spiel.stich.beginnen(gewinner);
        }
        for (auto* b : beobachter) b->spielBeendet(spiel);
    }

    // Points of each seat: the winning party's seats get the game value, the others nothing.
    engine::ProSitz<int> punkte() const {
        int reAugen = 0, reStiche = 0;
        for (const engine::Sitz s : engine::alleSitze)
            if (spiel.partei[s] >= engine::ParteiRe) {
                reAugen += spiel.augen[s];
                reStiche += spiel.stichzahl[s];
            }
        const bool kontraGewinnt = 240 - reAugen >= 120;
        const int augen = kontraGewinnt ? 240 - reAugen : reAugen;
        const int stiche = kontraGewinnt ? 12 - reStiche : reStiche;
        int wert = 1 + (augen > 150) + (augen > 180) + (augen > 210) + (augen == 240 && stiche == 12);
        engine::ProSitz<int> p;
        for (const engine::Sitz s : engine::alleSitze)
            if ((spiel.partei[s] == engine::ParteiKontra) == kontraGewinnt) p[s] = wert;
        return p;
    }
};

}  // namespace testhilfe

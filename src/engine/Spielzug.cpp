#include "Spielzug.h"

#include "Sonderpunkte.h"
#include "Stichspiel.h"

namespace engine {

const StichProtokoll& stichBuchen(Spiel& spiel) {
    const Stich& stich = spiel.stich;
    StichProtokoll p;
    p.aufspieler = stich.aufspieler;
    p.karten = stich.karten;
    for (std::size_t i = 0; i < 4; ++i) {
        p.codes[i] = spiel.deck[stich.karten[i]].code;
        p.augen += spiel.deck[stich.karten[i]].augen;
    }
    p.gewinner = stichGewinner(spiel);
    spiel.stiche.push_back(p);
    ++spiel.sticheGespielt;
    spiel.augen[p.gewinner] += p.augen;
    ++spiel.stichzahl[p.gewinner];
    return spiel.stiche.back();
}

Zugruecknahme zugMachen(Spiel& spiel, int pos) {
    Zugruecknahme z;
    const Sitz s = spiel.stich.amZug();
    z.pos = pos;
    z.karte = spiel.deck[pos];
    z.stich = spiel.stich;
    z.schweineGespielt = spiel.schweineGespielt[s];
    z.parteiMarker = spiel.parteiMarker[s];
    z.sonderpunkte = spiel.sonderpunkte.size();
    karteSpielen(spiel, pos);
    if (!spiel.stich.komplett()) return z;
    z.stichGebucht = true;
    const StichProtokoll& p = stichBuchen(spiel);
    const auto punkte = sonderpunkteDesStichs(spiel, spiel.sticheGespielt, nullptr);
    spiel.sonderpunkte.insert(spiel.sonderpunkte.end(), punkte.begin(), punkte.end());
    if (spiel.sticheGespielt < spiel.deck.handgroesse()) spiel.stich.beginnen(p.gewinner);
    return z;
}

void zugZuruecknehmen(Spiel& spiel, const Zugruecknahme& z) {
    if (z.stichGebucht) {
        const StichProtokoll& p = spiel.stiche.back();
        spiel.augen[p.gewinner] -= p.augen;
        --spiel.stichzahl[p.gewinner];
        --spiel.sticheGespielt;
        spiel.stiche.pop_back();
        spiel.sonderpunkte.resize(z.sonderpunkte);
    }
    const Sitz s = z.stich.amZug();
    spiel.stich = z.stich;
    spiel.deck[z.pos] = z.karte;
    spiel.schweineGespielt[s] = z.schweineGespielt;
    spiel.parteiMarker[s] = z.parteiMarker;
}

}  // namespace engine

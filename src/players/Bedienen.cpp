// BedienenWaehlen: following a card led by another seat, and the last resort.
#include <tuple>

#include "Texte.h"
#include "Verfahren.h"

namespace players {

int rueckfallKarte(const Lage& l) {
    // Few Augen first; a lead prefers a plain card to a trump.
    return l.kleinsteErlaubte([](int) { return true; },
                              [&](int p) { return std::make_tuple(l.istTrumpf(p), l.augen(p), l.staerke(p)); });
}

namespace {
int rueckfall(const Lage& l) {
    l.melder.rueckfall(verfahren::Bedienen);
    return rueckfallKarte(l);
}
bool habeFarbe(const Lage& l, int farbe) { return l.anzahlInHand(farbe) > 0; }
}  // namespace

int bedienenWaehlen(const Lage& l) {
    int karte = solistFolgen(l);
    if (karte != 0) return karte;
    if (l.trumpfGefuehrt) {
        karte = habeFarbe(l, l.trumpf) ? trumpfBedienen(Folge(l)) : abwerfen(l);
    } else if (habeFarbe(l, l.zuBedienen)) {
        karte = farbeBedienen(Folge(l));
    } else if (!l.wissen.keinTrumpf[l.ich][l.ich]) {
        Folge folge(l);
        karte = stechenOderAbwerfen(folge);
        if (karte == 0) {
            karte = abwerfen(l);
            if (karte != 0)
                l.melder.hinweis(text::AbwurfStattStechen);
            else
                l.melder.hinweis(text::RatlosStechen);
        }
    } else {
        karte = abwerfen(l);
    }
    return karte != 0 ? karte : rueckfall(l);
}

}  // namespace players

// Farbe_bedienen: a plain suit was led and the own hand holds it.
#include <array>

#include "Regelhilfen.h"
#include "Texte.h"
#include "Verfahren.h"

namespace players {

using namespace engine;
using namespace hilfe;

namespace {

int kleinsteDerFarbe(const Lage& l) { return l.kleinsteDerFarbe(l.zuBedienen); }
int hoechsteDerFarbe(const Lage& l) { return l.hoechsteDerFarbe(l.zuBedienen); }
int zufaellig(const Lage& l) { return l.zufaellige(l.erlaubt); }
bool immer(const Lage&) { return true; }

// The own highest card of the suit is the highest of the game and takes the trick.
bool nimmtMitHoechster(const Lage& l) {
    const int h = hoechsteDerFarbe(l);
    return h != 0 && l.staerke(h) >= l.werte.hoechsteFremde[static_cast<std::size_t>(l.zuBedienen)] && l.schlaegt(h);
}
bool klaerstichGast(const Lage& l) { return l.hochzeitsKlaerstich() && !l.binHochzeiter(); }
// A high card for the trick of the seat the announcer wants as partner.
int mitgift(const Lage& l) {
    return hoheNichtSchlagende(l, [&](int p) { return l.karte(p).farbe == l.zuBedienen; });
}

constexpr Regel alle{"ALL", text::FbALL, immer, zufaellig};

const std::array<Regel, 1> zweithand{{alle}};

const std::array<Regel, 5> dritthand{{
    {"DH0150", text::FbDH0150,
     [](const Lage& l) {
         return !l.gestochen && wFeind(l) && !l.frei(l.hinterhandSitz(), l.zuBedienen) && nimmtMitHoechster(l);
     },
     hoechsteDerFarbe},
    {"DH0160", text::FbDH0160, [](const Lage& l) { return l.frei(l.hinterhandSitz(), l.zuBedienen); }, kleinsteDerFarbe},
    {"DH0247", text::FbDH0247, [](const Lage& l) { return !l.gestochen && wFeind(l); }, kleinsteDerFarbe},
    {"DH0248", text::FbDH0248, [](const Lage& l) { return l.gestochen && wFeind(l); }, kleinsteDerFarbe},
    alle,
}};

const std::array<Regel, 6> hinterhand{{
    {"HH02", text::FbHH02,
     [](const Lage& l) { return l.hochzeitsKlaerstich() && l.binHochzeiter() && l.gewinner != l.ich; }, mitgift},
    {"HH03", text::FbHH03, [](const Lage& l) { return klaerstichGast(l) && !l.gestochen && l.kannSchlagen(); },
     hoechsteDerFarbe},
    {"HH07", text::FbHH07, [](const Lage& l) { return klaerstichGast(l) && !l.gestochen && !l.kannSchlagen(); },
     kleinsteDerFarbe},
    {"HH08", text::FbHH08, [](const Lage& l) { return klaerstichGast(l) && l.gestochen; }, kleinsteDerFarbe},
    {"HH14", text::FbHH14, [](const Lage& l) { return wFeind(l) && !l.gestochen && l.kannSchlagen(); },
     [](const Lage& l) { return l.kleinsterSchlagender(); }},
    alle,
}};

}  // namespace

std::span<const Regel> farbeBedienenRegeln(int anzahl) {
    switch (anzahl) {
        case 1: return zweithand;
        case 2: return dritthand;
        case 3: return hinterhand;
        default: return {};
    }
}

int farbeBedienen(const Lage& lage) {
    return regelnAnwenden(farbeBedienenRegeln(lage.anzahl), lage, verfahren::FarbeBedienen);
}

}  // namespace players

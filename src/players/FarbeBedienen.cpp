// Farbe_bedienen: a plain suit was led and the own hand holds it.
#include <array>

#include "Folgehilfen.h"
#include "Texte.h"
#include "TexteFarbe.h"
#include "Verfahren.h"

namespace players {

using namespace engine;
using namespace folgen;
namespace t = text::farbe;

namespace {

int kleinste(const Folge& f) { return f.kleinsteDerFarbe(); }
int hoechste(const Folge& f) { return f.hoechsteDerFarbe(); }
int schmieren(const Folge& f) { return f.schmierkarte(); }

int wertVon(const Folge& f, int pos) { return pos ? f.l.karte(pos).wert : 0; }
bool halte(const Folge& f, int wert) {
    for (int p : f.l.erlaubt)
        if (f.l.karte(p).wert == wert) return true;
    return false;
}
bool nurZaehler(const Folge& f) {
    for (int p : f.l.erlaubt)
        if (!f.l.istZaehler(p)) return false;
    return true;
}
// The own Zehn is not the lowest card of the suit: it can be spared.
bool zehnZuSchonen(const Folge& f) { return halte(f, WertZehn) && wertVon(f, kleinste(f)) != WertZehn; }

// The highest card of the suit out is already in the trick.
bool hoechsteLiegt(const Folge& f) { return !f.l.hoehereDraussen(f.farbe, f.wStaerke); }
// My highest card beats every card of the suit still out, but a seat after me may ruff.
bool hoechsteOhneStich(const Folge& f) {
    const int h = hoechste(f);
    return f.l.schlaegt(h) && !f.l.hoehereDraussen(f.farbe, f.l.staerke(h)) && !f.haelt(h);
}
// A non-partner after me may ruff: known void, or the suit is not safe any more.
bool feindSticht(const Folge& f, bool bekannt) {
    for (int i = 0; i < f.nachAnzahl; ++i) {
        const Sitz x = f.nach[static_cast<std::size_t>(i)];
        if (f.l.freund(x) || f.l.ohneTrumpf(x)) continue;
        if (bekannt ? f.l.frei(x, f.farbe) : f.vielleichtFrei(x)) return true;
    }
    return false;
}
bool habeKleine(const Folge& f) { return !nurZaehler(f); }
// The Herz of the colour games: six cards, no Zehn.
bool kurzesHerz(const Folge& f) { return f.farbe == Herz && istFarbspiel(f.l.trumpf) && f.l.trumpf != Herz; }

constexpr R alle{"ALL", text::FbALL, immer, zufaellig};

// Zweithand.
const std::array<R, 41> zweithand{{
    {"ZH01", t::ZH01, [](const Folge& f) { return f.anzahlFarbe == 1; }, kleinste},
    {"ZH02", t::ZH02, [](const Folge& f) { return gast(f) && haltend(f); }, haltend},
    {"ZH03", t::ZH03, [](const Folge& f) { return gast(f) && f.kannSchlagen; }, hoechste},
    {"ZH04", t::ZH04, gast, kleinste},
    {"ZH05", t::ZH05, [](const Folge& f) { return rufer(f) && geschenk(f); }, geschenk},
    {"ZH06", t::ZH06, rufer, kleinste},
    {"ZH07", t::ZH07, [](const Folge& f) { return f.binSolist && haltend(f); }, haltend},
    {"ZH08", t::ZH08, [](const Folge& f) { return f.binSolist && hoechsteLiegt(f); }, kleinste},
    {"ZH08a", t::ZH08a, [](const Folge& f) { return f.binSolist; }, kleinste},
    {"ZH09", t::ZH09, [](const Folge& f) { return f.wSolist && f.kannSchlagen; }, billigNehmen},
    {"ZH10", t::ZH10, [](const Folge& f) { return f.wSolist; }, kleinste},
    {"ZH11", t::ZH11, [](const Folge& f) { return f.gegenSolist && f.wFreund && f.sicher(); }, schmieren},
    {"ZH12", t::ZH12, [](const Folge& f) { return f.gegenSolist && f.wFreund && haltend(f); }, haltend},
    {"ZH13", t::ZH13, [](const Folge& f) { return f.gegenSolist; }, kleinste},
    {"ZH14", t::ZH14,
     [](const Folge& f) { return freundHaelt(f) && f.sicher() && wertVon(f, schmieren(f)) == WertZehn; }, schmieren},
    {"ZH15", t::ZH15, [](const Folge& f) { return freundHaelt(f) && f.sicher(); }, schmieren},
    {"ZH16", t::ZH16, [](const Folge& f) { return freundHaelt(f) && haltend(f); }, haltend},
    {"ZH0017", t::ZH0017, [](const Folge& f) { return freundHaelt(f) && feindSticht(f, false); }, kleinste},
    {"ZH0018", t::ZH0018, freundHaelt, kleinste},
    // From here on the trick is held by an opponent or by a seat of unknown party.
    {"ZH0019", t::ZH0019,
     [](const Folge& f) {
         const Sitz dh = f.nach[0];
         return feindHaelt(f) && f.hhFreund && f.hhFrei && !f.hhOhneTrumpf && !f.l.freund(dh) &&
                !f.l.frei(dh, f.farbe);
     },
     schmieren},
    {"ZH0020", t::ZH0020, [](const Folge& f) { return feindHaelt(f) && haltend(f) && f.augen >= 10; }, haltend},
    {"ZH0022", t::ZH0022, [](const Folge& f) { return feindHaelt(f) && wertVon(f, haltend(f)) == WertAs; }, haltend},
    {"ZH0024", t::ZH0024, [](const Folge& f) { return feindHaelt(f) && wertVon(f, haltend(f)) == WertZehn; }, haltend},
    {"ZH0026", t::ZH0026, [](const Folge& f) { return feindHaelt(f) && haltend(f); }, haltend},
    {"ZH0028", t::ZH0028,
     [](const Folge& f) {
         return feindHaelt(f) && hoechsteLiegt(f) && !f.kannSchlagen && f.l.staerke(hoechste(f)) == f.wStaerke;
     },
     kleinste},
    {"ZH0029", t::ZH0029, [](const Folge& f) { return feindHaelt(f) && hoechsteLiegt(f) && zehnZuSchonen(f); },
     kleinste},
    {"ZH0124", t::ZH0124, [](const Folge& f) { return feindHaelt(f) && hoechsteLiegt(f); }, kleinste},
    {"ZH0125", t::ZH0125,
     [](const Folge& f) { return feindHaelt(f) && hoechsteOhneStich(f) && habeKleine(f) && feindSticht(f, true); },
     kleinste},
    {"ZH0126", t::ZH0126,
     [](const Folge& f) { return feindHaelt(f) && hoechsteOhneStich(f) && habeKleine(f) && !f.ersteRunde; },
     kleinste},
    {"ZH0127", t::ZH0127, [](const Folge& f) { return feindHaelt(f) && hoechsteOhneStich(f) && habeKleine(f); },
     kleinste},
    {"ZH0128", t::ZH0128, [](const Folge& f) { return feindHaelt(f) && hoechsteOhneStich(f); }, hoechste},
    {"ZH0129", t::ZH0129, [](const Folge& f) { return feindHaelt(f) && f.kannSchlagen && zehnZuSchonen(f); },
     kleinste},
    {"ZH0130", t::ZH0130, [](const Folge& f) { return feindHaelt(f) && f.kannSchlagen; }, kleinste},
    {"ZH0131", t::ZH0131, [](const Folge& f) { return feindHaelt(f) && f.freundKannNehmen; }, kleinste},
    {"ZH0132", t::ZH0132, [](const Folge& f) { return feindHaelt(f) && !f.wBekannterFeind; }, kleinste},
    {"ZH0133", t::ZH0133,
     [](const Folge& f) {
         return feindHaelt(f) && wertVon(f, kleinste(f)) == WertKoenig && (halte(f, WertZehn) || halte(f, WertAs));
     },
     kleinste},
    {"ZH0134", t::ZH0134, [](const Folge& f) { return feindHaelt(f) && feindSticht(f, true); }, kleinste},
    {"ZH0136", t::ZH0136, [](const Folge& f) { return feindHaelt(f) && kurzesHerz(f); }, kleinste},
    {"ZH0137", t::ZH0137,
     [](const Folge& f) { return feindHaelt(f) && !hoechsteLiegt(f) && !f.freundNach; }, kleinste},
    {"ZH0138", t::ZH0138, immer, kleinste},
    alle,
}};

// Not in a Hochzeit's clarifying trick of Dritthand: DH0014 to DH0017 decide there.
bool ohneKlaerung(const Folge& f) { return !(f.klaerstich && f.l.dritthand()); }
// The rule DH0004: the only card that beats the winner, and it holds.
int einzigerSchlagender(const Folge& f) {
    int n = 0;
    int karte = 0;
    for (int p : f.l.erlaubt)
        if (f.l.schlaegt(p)) {
            ++n;
            karte = p;
        }
    return n == 1 && f.haelt(karte) ? karte : 0;
}
// My highest card is the highest of the suit still out and takes the trick.
bool nimmtMitHoechster(const Folge& f) {
    const int h = hoechste(f);
    return f.l.schlaegt(h) && !f.l.hoehereDraussen(f.farbe, f.l.staerke(h));
}

// DH0001 to DH0004 do not name the position: Hinterhand asks them after its own rules.
constexpr R dh0001{"DH0001", t::DH0001, [](const Folge& f) { return f.anzahlFarbe == 1; }, kleinste};
constexpr R dh0002{"DH0002", t::DH0002,
                   [](const Folge& f) { return f.wFreund && f.sicher() && ohneKlaerung(f); }, schmieren};
constexpr R dh0003{"DH0003", t::DH0003,
                   [](const Folge& f) {
                       return f.wFeind() && !f.kannSchlagen && !f.freundKannNehmen && ohneKlaerung(f) &&
                              (f.l.hinterhand() || !f.gestochen);
                   },
                   kleinste};
constexpr R dh0004{"DH0004", t::DH0004,
                   [](const Folge& f) {
                       return f.wFeind() && !f.gestochen && ohneKlaerung(f) && einzigerSchlagender(f);
                   },
                   einzigerSchlagender};

const std::array<R, 23> dritthand{{
    dh0001,
    dh0002,
    dh0003,
    dh0004,
    {"DH0014", t::DH0014, [](const Folge& f) { return gast(f) && f.kannSchlagen; }, hoechste},
    {"DH0015", t::DH0015, gast, kleinste},
    {"DH0016", t::DH0016, [](const Folge& f) { return rufer(f) && geschenk(f); }, geschenk},
    {"DH0017", t::DH0017, rufer, kleinste},
    {"DH0028", t::DH0028, [](const Folge& f) { return f.binSolist && haltend(f); }, haltend},
    {"DH0029", t::DH0029, [](const Folge& f) { return f.binSolist; }, kleinste},
    {"DH0031", t::DH0031, [](const Folge& f) { return f.wSolist && f.kannSchlagen; }, billigNehmen},
    {"DH0032", t::DH0032, [](const Folge& f) { return f.wSolist; }, kleinste},
    {"DH0033", t::DH0033, [](const Folge& f) { return f.gegenSolist && f.wFreund && haltend(f); }, haltend},
    {"DH0034", t::DH0034, [](const Folge& f) { return f.gegenSolist; }, kleinste},
    {"DH0140", t::DH0140,
     [](const Folge& f) { return f.wFeind() && !f.gestochen && f.hhFreund && f.hhFrei && !f.hhOhneTrumpf; }, schmieren},
    {"DH0150", text::FbDH0150,
     [](const Folge& f) {
         return f.wFeind() && !f.gestochen && !f.hhFrei && nimmtMitHoechster(f) && f.haelt(hoechste(f));
     },
     hoechste},
    {"DH0160", text::FbDH0160, [](const Folge& f) { return f.hhFrei; }, kleinste},
    {"DH0180", t::DH0180, [](const Folge& f) { return f.wFreund && haltend(f); }, haltend},
    {"DH0236", t::DH0236, [](const Folge& f) { return f.wFreund; }, kleinste},
    {"DH0237", t::DH0237, [](const Folge& f) { return !f.gestochen && !f.kannSchlagen && f.freundKannNehmen; },
     kleinste},
    {"DH0247", text::FbDH0247, [](const Folge& f) { return !f.gestochen; }, kleinste},
    {"DH0248", text::FbDH0248, [](const Folge& f) { return f.gestochen; }, kleinste},
    alle,
}};

// Hinterhand: the Hochzeit rules and the cheap take, then DH0001 to DH0004.
const std::array<R, 10> hinterhand{{
    {"HH02", text::FbHH02, [](const Folge& f) { return rufer(f) && geschenk(f); }, geschenk},
    {"HH03", text::FbHH03, [](const Folge& f) { return gast(f) && !f.gestochen && f.kannSchlagen; }, hoechste},
    {"HH07", text::FbHH07, [](const Folge& f) { return gast(f) && !f.gestochen && !f.kannSchlagen; }, kleinste},
    {"HH08", text::FbHH08, [](const Folge& f) { return gast(f) && f.gestochen; }, kleinste},
    // Only when a card as high as the one taken stays in the hand, as the sentence says.
    {"HH14", text::FbHH14,
     [](const Folge& f) {
         const int k = billigNehmen(f);
         return f.wFeind() && !f.gestochen && k != 0 && f.gleichOderHoeher(k) >= 2;
     },
     billigNehmen},
    dh0001,
    dh0002,
    dh0003,
    dh0004,
    alle,
}};

}  // namespace

std::span<const RegelFuer<Folge>> farbeBedienenRegeln(int anzahl) {
    switch (anzahl) {
        case 1: return zweithand;
        case 2: return dritthand;
        case 3: return hinterhand;
        default: return {};
    }
}

int farbeBedienen(const Folge& folge) {
    return regelnAnwenden(farbeBedienenRegeln(folge.l.anzahl), folge, verfahren::FarbeBedienen);
}

}  // namespace players

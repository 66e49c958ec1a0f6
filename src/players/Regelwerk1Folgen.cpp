// The follow procedures of the rule book as they stood before the whole following
// rule book was written, frozen for measuring (player kind "regelwerk1"): the
// dispatcher, the four rule tables and their helpers; the filters are in
// Regelwerk1Filter.cpp. Do not improve anything here: every change moves the
// baseline the rule book is measured against.
#include <array>
#include <utility>

#include "Regelwerk1Hilfen.h"
#include "Texte.h"
#include "Verfahren.h"

namespace players::regelwerk1 {

using namespace engine;
using namespace hilfe;

namespace farbe {

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

}  // namespace farbe

namespace trumpf {

namespace {

bool immer(const Lage&) { return true; }
int zufaellig(const Lage& l) { return l.zufaellige(l.erlaubt); }
int wertkleinster(const Lage& l) { return l.praktWertkleinsterTrumpf(); }
int werthoechster(const Lage& l) { return l.praktWerthoechsterTrumpf(); }
int geradeSoHoeher(const Lage& l) { return regelwerk1::dolleBeimUebernehmen(l, l.kleinsterSchlagender()); }
int werthoherSchlagender(const Lage& l) {
    const int k = werthoherSchlagenderTrumpf(l);
    return k != 0 ? k : geradeSoHoeher(l);
}
// A high trump for the trick of the seat the announcer wants as partner.
int mitgift(const Lage& l) { return hoheNichtSchlagende(l, [&](int p) { return l.istTrumpf(p); }); }

bool klaerstich(const Lage& l) { return l.hochzeitsKlaerstich(); }
bool ichRufe(const Lage& l) { return klaerstich(l) && l.binHochzeiter() && l.gewinner != l.ich; }
bool solospiel(const Lage& l) { return l.solist().has_value(); }
// The seat before the next leader plays last in the next trick.
bool solistVor(const Lage& l, Sitz aufspieler) { return l.solist() == aufspieler.plus(3); }
// The cheapest trump to lose would be the Fuchs, and a Dolle is at hand instead.
bool fuchsOderDolle(const Lage& l) {
    const int k = l.praktWertkleinsterTrumpf();
    if (k == 0 || !l.istFuchs(k)) return false;
    for (int p : l.erlaubt)
        if (l.istDolle(p)) return true;
    return false;
}
int dolle(const Lage& l) {
    for (int p : l.erlaubt)
        if (l.istDolle(p)) return p;
    return 0;
}

constexpr Regel alle{"ALL", text::TbALL, immer, zufaellig};

const std::array<Regel, 1> vorne{{alle}};

const std::array<Regel, 13> hinterhand{{
    {"HH016", text::TbHH016, [](const Lage& l) { return ichRufe(l) && !l.kannSchlagen(); }, mitgift},
    {"HH017", text::TbHH017, [](const Lage& l) { return wFeind(l) && !l.kannSchlagen() && fuchsOderDolle(l); },
     dolle},
    {"HH018", text::TbHH018, [](const Lage& l) { return wFeind(l) && !l.kannSchlagen() && !ichRufe(l); },
     wertkleinster},
    {"HH015", text::TbHH015,
     [](const Lage& l) {
         return wFeind(l) && l.kannSchlagen() && !klaerstich(l) && werthoherSchlagenderTrumpf(l) == 0;
     },
     geradeSoHoeher},
    {"HH07", text::TbHH07, ichRufe, mitgift},
    {"HH08", text::TbHH08, [](const Lage& l) { return klaerstich(l) && !l.binHochzeiter() && l.kannSchlagen(); },
     geradeSoHoeher},
    {"HH06", text::TbHH06, [](const Lage& l) { return wFeind(l) && l.kannSchlagen(); }, werthoherSchlagender},
    {"HH01", text::TbHH01, [](const Lage& l) { return wFreund(l) && !solospiel(l); }, werthoechster},
    {"HH05", text::TbHH05, [](const Lage& l) { return wFreund(l) && solospiel(l) && !solistVor(l, *l.gewinner); },
     werthoechster},
    {"HH03", text::TbHH03,
     [](const Lage& l) {
         return wFreund(l) && solospiel(l) && l.kannSchlagen() && !solistVor(l, l.ich) &&
                werthoherSchlagenderTrumpf(l) == 0;
     },
     geradeSoHoeher},
    {"HH004", text::TbHH004, [](const Lage& l) { return wFreund(l) && solospiel(l) && !l.kannSchlagen(); },
     werthoechster},
    {"HH02", text::TbHH02,
     [](const Lage& l) { return wFreund(l) && solospiel(l) && l.kannSchlagen() && !solistVor(l, l.ich); },
     werthoherSchlagender},
    alle,
}};

}  // namespace

std::span<const Regel> trumpfBedienenRegeln(int anzahl) { return anzahl == 3 ? std::span<const Regel>(hinterhand) : vorne; }

int trumpfBedienen(const Lage& lage) {
    return regelnAnwenden(trumpfBedienenRegeln(lage.anzahl), lage, verfahren::TrumpfBedienen);
}

}  // namespace trumpf

namespace stechen {

namespace {

int wertkleinster(const Lage& l) { return l.praktWertkleinsterTrumpf(); }

bool ichRufe(const Lage& l) { return l.hochzeitsKlaerstich() && l.binHochzeiter() && l.gewinner != l.ich; }

// A trump of little use: no Zähler, no Dame or higher.
int billigerTrumpf(const Lage& l) {
    const int k = l.praktWertkleinsterTrumpf();
    if (k == 0 || l.istZaehler(k) || l.karte(k).wert == WertDame || l.karte(k).wert == WertJoker ||
        l.istDolle(k) || l.istSchwein(k))
        return 0;
    return k;
}
// The cheapest trump but `behalten`.
int wertkleinsterAusser(const Lage& l, int behalten) {
    int beste = 0;
    for (int p : l.erlaubt) {
        if (p == behalten || !l.istTrumpf(p)) continue;
        if (beste == 0 || std::make_pair(l.istZaehler(p), l.staerke(p)) < std::make_pair(l.istZaehler(beste), l.staerke(beste)))
            beste = p;
    }
    return beste;
}
int fuchs(const Lage& l) {
    for (int p : l.erlaubt)
        if (l.istFuchs(p)) return p;
    return 0;
}
int einzigerTrumpf(const Lage& l) { return l.werte.eigeneTruempfe == 1 ? l.hoechsterTrumpf() : 0; }
bool istHoechsterImSpiel(const Lage& l, int t) { return t != 0 && l.staerke(t) >= l.werte.hoechsterTrumpfImSpiel; }
bool mitspielerOhneTrumpf(const Lage& l) {
    for (const Sitz x : alleSitze)
        if (x != l.ich && !l.ohneTrumpf(x)) return false;
    return true;
}
bool mehrereKarten(const Lage& l) { return l.hand.size() > 1; }

const std::array<Regel, 15> hinterhand{{
    {"HH25", text::SoaHH25, [](const Lage& l) { return ichRufe(l) && l.nurTrumpf(); },
     [](const Lage& l) {
         // A trump that leaves the trick to the wanted partner, if there is one.
         int k = 0;
         for (int p : l.erlaubt)
             if (l.istTrumpf(p) && !l.schlaegt(p) &&
                 (k == 0 || std::make_pair(l.istZaehler(p), l.staerke(p)) < std::make_pair(l.istZaehler(k), l.staerke(k))))
                 k = p;
         return k != 0 ? k : l.praktWertkleinsterTrumpf();
     }},
    {"HH24", text::SoaHH24, ichRufe, hoechste},
    {"HH33", text::SoaHH33, [](const Lage& l) { return wFeind(l) && !l.gestochen && billigerTrumpf(l) != 0; },
     billigerTrumpf},
    {"HH36", text::SoaHH36, [](const Lage& l) { return wFeind(l) && l.gestochen && l.kannSchlagen(); },
     [](const Lage& l) { return regelwerk1::dolleBeimUebernehmen(l, l.kleinsterSchlagender()); }},
    {"HH38", text::SoaHH38, [](const Lage& l) { return wFeind(l) && hatFarbkarte(l); }, kleinste},
    {"HH39", text::SoaHH39, [](const Lage& l) { return wFeind(l) && l.nurTrumpf(); }, wertkleinster},
    {"HH10", text::SoaHH10,
     [](const Lage& l) {
         const int t = einzigerTrumpf(l);
         return wFreund(l) && t != 0 && !l.istFuchs(t) && istHoechsterImSpiel(l, t) && hatFarbkarte(l);
     },
     hoechste},
    {"HH11", text::SoaHH11,
     [](const Lage& l) {
         const int t = l.hoechsterTrumpf();
         return wFreund(l) && l.nurTrumpf() && mehrereKarten(l) && !l.istFuchs(t) && istHoechsterImSpiel(l, t);
     },
     [](const Lage& l) { return wertkleinsterAusser(l, l.hoechsterTrumpf()); }},
    {"HH19", text::SoaHH19,
     [](const Lage& l) {
         const int t = einzigerTrumpf(l);
         return wFreund(l) && t != 0 && l.istFuchs(t) && mitspielerOhneTrumpf(l) && hatFarbkarte(l);
     },
     hoechste},
    {"HH20", text::SoaHH20,
     [](const Lage& l) {
         return wFreund(l) && l.nurTrumpf() && mehrereKarten(l) && fuchs(l) != 0 && mitspielerOhneTrumpf(l);
     },
     [](const Lage& l) { return wertkleinsterAusser(l, fuchs(l)); }},
    {"HH17", text::SoaHH17, [](const Lage& l) { return wFreund(l) && fuchs(l) != 0; }, fuchs},
    {"HH07", text::SoaHH07, [](const Lage& l) { return wFreund(l) && einzigerTrumpf(l) != 0 && hatFarbkarte(l); },
     hoechste},
    {"HH08", text::SoaHH08, [](const Lage& l) { return wFreund(l) && l.nurTrumpf() && einzigerTrumpf(l) != 0; },
     einzigerTrumpf},
    {"HH01", text::SoaHH01, [](const Lage& l) { return wFreund(l) && hatFarbkarte(l); }, hoechste},
    {"HH04", text::SoaHH04, wFreund, wertkleinster},
}};

// Rather than throw a Zähler onto an opponent's trick of 30 Augen or more, trump it.
int zaehlerRetten(const Lage& l, int karte) {
    if (!l.hinterhand() || l.werte.eigeneTruempfe == 0 || l.augenImStich < 30 || l.istTrumpf(karte) ||
        !l.istZaehler(karte) || !wFeind(l) || ichRufe(l))
        return karte;
    const int trumpf = l.kleinsterSchlagender();
    if (trumpf == 0 || !l.istTrumpf(trumpf)) return karte;
    l.melder.regel(verfahren::Filter, "Zaehlerstich", text::ZaehlerStechen);
    return trumpf;
}

}  // namespace

std::span<const Regel> stechenRegeln(int anzahl) {
    // The Zweithand and Dritthand rules join in their own step.
    return anzahl == 3 ? std::span<const Regel>(hinterhand) : std::span<const Regel>();
}

int stechenOderAbwerfen(const Lage& lage) {
    int karte = regelnAnwenden(stechenRegeln(lage.anzahl), lage, verfahren::Stechen);
    if (karte == 0) return 0;
    karte = zaehlerRetten(lage, karte);
    karte = regelwerk1::freispielenFilter(lage, karte);
    karte = regelwerk1::dolleNagelnFilter(lage, karte);
    karte = regelwerk1::fuchsKarlchenDolleFilter(lage, karte);
    return regelwerk1::herzFilter(lage, karte);
}

}  // namespace stechen

namespace abwurf {

namespace {


Sitz hh(const Lage& l) { return l.hinterhandSitz(); }
bool hhFreund(const Lage& l) { return l.freund(hh(l)); }
bool hhFrei(const Lage& l) { return l.frei(hh(l), l.zuBedienen); }
bool hhOhneTrumpf(const Lage& l) { return l.ohneTrumpf(hh(l)); }
bool farbStich(const Lage& l) { return !l.trumpfGefuehrt && !l.gestochen; }
bool solistHaeltTrumpfstich(const Lage& l) {
    return l.trumpfGefuehrt && l.spiel.solo && l.solist() == l.gewinner && hhFreund(l) && !hhOhneTrumpf(l) &&
           hoehererTrumpfDraussen(l);
}
// Instead of chance: the cards at deck positions 26 and 27 decide.
bool nichtButtern(const Lage& l) {
    return l.spiel.deck[26].farbe == Karo || l.spiel.deck[27].farbe == Herz;
}

// The last trick will bring the partner a Doppelkopf with the Zähler kept back.
bool zaehlerAufheben(const Lage& l) {
    if (l.hand.size() != 2) return false;
    const int h = l.hoechsteAbwurf();
    const int k = l.kleinsteAbwurf();
    if (h == 0 || h == k || !l.istZaehler(h)) return false;
    int augen = l.augen(h);
    const Deck& deck = l.spiel.deck;
    for (int p = 1; p <= deck.kartenanzahl(); ++p)
        if (deck[p].status == InHand && deck.besitzer(p) != l.ich) augen += deck[p].augen;
    return augen >= 40;
}

bool wSolist(const Lage& l) { return l.solist() && l.gewinner == l.solist() && l.solist() != l.ich; }
bool partnerHatHoeheren(const Lage& l) {
    for (const Sitz x : l.nachMir())
        if (l.freund(x) && !l.ohneTrumpf(x) && hoehererTrumpfDraussen(l)) return true;
    return false;
}
// Every non-partner still to play must follow the suit led.
bool gegnerMuessenBedienen(const Lage& l) {
    for (const Sitz x : l.nachMir())
        if (!l.freund(x) && l.frei(x, l.zuBedienen)) return false;
    return true;
}
bool gegnerKannUebernehmen(const Lage& l, Sitz x) { return !l.freund(x) && l.kannUebernehmen(x); }
// A non-partner void in the suit led who may still hold trump.
bool gegnerKannStechen(const Lage& l, Sitz x) {
    return !l.freund(x) && !l.trumpfGefuehrt && l.frei(x, l.zuBedienen) && !l.ohneTrumpf(x);
}
bool solistInDritthand(const Lage& l) { return l.spiel.solo && l.solist() == l.dritthandSitz(); }

const std::array<Regel, 12> zweithand{{
    {"ZH01", text::ZhGegenpartei, [](const Lage& l) { return !wFreund(l) && !wSolist(l); }, kleinste},
    {"ZH02", text::ZhSolistHoechste, [](const Lage& l) { return wSolist(l) && l.hoechsteLiegt(); }, kleinste},
    {"ZH03", text::ZhSolistKeinHoeherer,
     [](const Lage& l) { return wSolist(l) && l.trumpfGefuehrt && !partnerHatHoeheren(l); }, kleinste},
    {"ZH04", text::ZhSolistTrumpfButtern,
     [](const Lage& l) { return wSolist(l) && l.trumpfGefuehrt && !l.hoechsteLiegt(); }, hoechste},
    {"ZH05", text::ZhSolistFarbeButtern,
     [](const Lage& l) { return wSolist(l) && !l.trumpfGefuehrt && !l.hoechsteLiegt(); }, hoechste},
    {"ZH06", text::ZhHinterhandBedient,
     [](const Lage& l) { return wFreund(l) && l.hoechsteLiegt() && gegnerMuessenBedienen(l); }, hoechste},
    {"ZH07", text::ZhHinterhandSticht,
     [](const Lage& l) { return wFreund(l) && l.hoechsteLiegt() && gegnerKannStechen(l, hh(l)); }, kleinste},
    {"ZH08", text::ZhHinterhandKannNicht,
     [](const Lage& l) {
         return wFreund(l) && l.hoechsteLiegt() && !gegnerKannUebernehmen(l, hh(l)) &&
                !gegnerKannUebernehmen(l, l.dritthandSitz());
     },
     hoechste},
    {"ZH09", text::ZhSolistDritthandBedient,
     [](const Lage& l) {
         return wFreund(l) && solistInDritthand(l) && l.hoechsteLiegt() && !l.frei(l.dritthandSitz(), l.zuBedienen);
     },
     hoechste},
    {"ZH10", text::ZhSolistDritthandOhneTrumpf,
     [](const Lage& l) {
         return wFreund(l) && solistInDritthand(l) && l.hoechsteLiegt() && l.ohneTrumpf(l.dritthandSitz());
     },
     hoechste},
    {"ZH11", text::ZhDritthandSticht,
     [](const Lage& l) { return wFreund(l) && gegnerKannStechen(l, l.dritthandSitz()); }, kleinste},
    {"ZH12", text::ZhHoechsteNichtGelegt, [](const Lage& l) { return wFreund(l) && !l.hoechsteLiegt(); },
     kleinste},
}};

const std::array<Regel, 26> dritthand{{
    {"DH030", text::DH030, [](const Lage& l) { return !wFreund(l) && !hhFreund(l); }, kleinste},
    {"DH024", text::DH024,
     [](const Lage& l) { return !wFreund(l) && hhFreund(l) && farbStich(l) && !hhFrei(l) && l.hoechsteLiegt(); },
     kleinste},
    {"DH026", text::DH026,
     [](const Lage& l) { return !wFreund(l) && hhFreund(l) && farbStich(l) && !hhFrei(l) && !l.hoechsteLiegt(); },
     hoechste},
    {"DH029", text::DH029,
     [](const Lage& l) { return !wFreund(l) && hhFreund(l) && farbStich(l) && hhFrei(l) && !hhOhneTrumpf(l); },
     hoechste},
    {"DH028", text::DH028,
     [](const Lage& l) { return !wFreund(l) && hhFreund(l) && farbStich(l) && hhFrei(l) && hhOhneTrumpf(l); },
     kleinste},
    {"DH014", text::DH014, [](const Lage& l) { return solistHaeltTrumpfstich(l) && nichtButtern(l); }, kleinste},
    {"DH014A", text::DH014A,
     [](const Lage& l) {
         return l.trumpfGefuehrt && !l.spiel.solo && !wFreund(l) && hhFreund(l) && !hhOhneTrumpf(l) &&
                hoehererTrumpfDraussen(l);
     },
     hoechste},
    {"DH015", text::DH015, [](const Lage& l) { return solistHaeltTrumpfstich(l); }, hoechste},
    {"DH015A", text::DH015A,
     [](const Lage& l) { return l.trumpfGefuehrt && !wFreund(l) && (hhOhneTrumpf(l) || !hoehererTrumpfDraussen(l)); },
     kleinste},
    {"DH016", text::DH016, [](const Lage& l) { return l.gestochen && !wFreund(l) && hhFreund(l) && !hhFrei(l); },
     kleinste},
    {"DH017", text::DH017,
     [](const Lage& l) { return l.gestochen && !wFreund(l) && hhFreund(l) && hhFrei(l) && hhOhneTrumpf(l); },
     kleinste},
    {"DH020", text::DH020,
     [](const Lage& l) { return l.gestochen && !wFreund(l) && hhFreund(l) && hhFrei(l) && !l.genagelt(); },
     kleinste},
    {"DH018", text::DH018,
     [](const Lage& l) { return l.gestochen && !wFreund(l) && hhFreund(l) && hhFrei(l) && l.genagelt(); },
     kleinste},
    {"DH022", text::DH022,
     [](const Lage& l) {
         return !l.trumpfGefuehrt && l.werte.fremdeAnzahl[static_cast<std::size_t>(l.zuBedienen)] == 0 &&
                !hhFreund(l) && !hhOhneTrumpf(l) && !(wFreund(l) && l.genagelt());
     },
     kleinste},
    {"DH006", text::DH006, [](const Lage& l) { return l.gestochen && wFreund(l) && hhFreund(l); }, hoechste},
    {"DH009", text::DH009,
     [](const Lage& l) {
         return l.trumpfGefuehrt && wFreund(l) && (hhOhneTrumpf(l) || !hoehererTrumpfDraussen(l) || hhFreund(l));
     },
     hoechste},
    {"DH008", text::DH008, [](const Lage& l) { return l.trumpfGefuehrt && wFreund(l); }, kleinste},
    {"DH010", text::DH010, [](const Lage& l) { return l.gestochen && wFreund(l) && !hhFrei(l); }, hoechste},
    {"DH013", text::DH013, [](const Lage& l) { return l.gestochen && wFreund(l) && l.kannUebernehmen(hh(l)); },
     kleinste},
    {"DH012", text::DH012, [](const Lage& l) { return l.gestochen && wFreund(l) && !hoehererTrumpfDraussen(l); },
     hoechste},
    {"DH011", text::DH011, [](const Lage& l) { return l.gestochen && wFreund(l) && hhOhneTrumpf(l); }, hoechste},
    {"DH005", text::DH005, [](const Lage& l) { return farbStich(l) && wFreund(l) && !hhFrei(l) && !l.hoechsteLiegt(); },
     kleinste},
    {"DH001", text::DH001, [](const Lage& l) { return farbStich(l) && wFreund(l) && !hhFrei(l) && l.hoechsteLiegt(); },
     hoechste},
    {"DH002", text::DH002, [](const Lage& l) { return farbStich(l) && wFreund(l) && hhFrei(l) && hhOhneTrumpf(l); },
     hoechste},
    {"DH004", text::DH004, [](const Lage& l) { return farbStich(l) && wFreund(l) && hhFrei(l) && !hhOhneTrumpf(l); },
     kleinste},
    {"DH003", text::DH003, [](const Lage& l) { return wFreund(l) && hhFreund(l) && l.solist().has_value(); },
     hoechste},
}};

// The Zähler kept back is the second HH002; HH001 leaves that case to it.
const std::array<Regel, 3> hinterhand{{
    {"HH002", text::AbwHH002, [](const Lage& l) { return !wFreund(l); }, kleinste},
    {"HH001", text::AbwHH001, [](const Lage& l) { return wFreund(l) && !zaehlerAufheben(l); }, hoechste},
    {"HH002", text::AbwHH002Doppelkopf, [](const Lage& l) { return wFreund(l) && zaehlerAufheben(l); }, kleinste},
}};

}  // namespace

std::span<const Regel> abwerfenRegeln(int anzahl) {
    switch (anzahl) {
        case 1: return zweithand;
        case 2: return dritthand;
        case 3: return hinterhand;
        default: return {};
    }
}

int abwerfen(const Lage& lage) {
    const int karte = regelnAnwenden(abwerfenRegeln(lage.anzahl), lage, verfahren::Abwerfen);
    if (karte == 0) lage.melder.hinweis(text::RatlosAbwerfen);
    return karte;
}

}  // namespace abwurf

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
        karte = habeFarbe(l, l.trumpf) ? trumpf::trumpfBedienen(l) : abwurf::abwerfen(l);
    } else if (habeFarbe(l, l.zuBedienen)) {
        karte = farbe::farbeBedienen(l);
    } else if (!l.wissen.keinTrumpf[l.ich][l.ich]) {
        karte = stechen::stechenOderAbwerfen(l);
        if (karte == 0) {
            karte = abwurf::abwerfen(l);
            if (karte != 0)
                l.melder.hinweis(text::AbwurfStattStechen);
            else
                l.melder.hinweis(text::RatlosStechen);
        }
    } else {
        karte = abwurf::abwerfen(l);
    }
    return karte != 0 ? karte : rueckfall(l);
}

}  // namespace players::regelwerk1

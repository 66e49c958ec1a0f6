// abwerfen: the seat cannot follow and does not (or cannot) trump.
#include <array>

#include "Regelhilfen.h"
#include "Texte.h"
#include "Verfahren.h"

namespace players {

using namespace engine;
using namespace hilfe;

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
// My party holds an untrumped plain trick and Hinterhand is not known as a partner.
bool hhFeindStich(const Lage& l) { return farbStich(l) && wFreund(l) && !hhFreund(l); }

const std::array<Regel, 12> zweithand{{
    {"ZH01", text::ZhGegenpartei, [](const Lage& l) { return !wFreund(l) && !wSolist(l); }, kleinste},
    {"ZH02", text::ZhSolistHoechste, [](const Lage& l) { return wSolist(l) && l.hoechsteLiegt(); }, kleinste},
    {"ZH03", text::ZhSolistKeinHoeherer,
     [](const Lage& l) { return wSolist(l) && l.trumpfGefuehrt && !partnerHatHoeheren(l); }, kleinste},
    {"ZH04", text::ZhSolistTrumpfButtern,
     [](const Lage& l) { return wSolist(l) && l.trumpfGefuehrt && !l.hoechsteLiegt(); }, hoechste},
    {"ZH05", text::ZhSolistFarbeButtern,
     [](const Lage& l) { return wSolist(l) && !l.trumpfGefuehrt && !l.hoechsteLiegt(); }, hoechste},
    // With the soloist in Dritthand, ZH09 and ZH10 speak.
    {"ZH06", text::ZhHinterhandBedient,
     [](const Lage& l) {
         return wFreund(l) && l.hoechsteLiegt() && !solistInDritthand(l) && gegnerMuessenBedienen(l);
     },
     hoechste},
    {"ZH07", text::ZhHinterhandSticht,
     [](const Lage& l) { return wFreund(l) && l.hoechsteLiegt() && gegnerKannStechen(l, hh(l)); }, kleinste},
    {"ZH08", text::ZhHinterhandKannNicht,
     [](const Lage& l) {
         return wFreund(l) && l.hoechsteLiegt() && !solistInDritthand(l) && !gegnerKannUebernehmen(l, hh(l)) &&
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
    // With a partner in Hinterhand too (a solo), DH003 speaks.
    {"DH009", text::DH009,
     [](const Lage& l) {
         return l.trumpfGefuehrt && wFreund(l) && !hhFreund(l) && (hhOhneTrumpf(l) || !hoehererTrumpfDraussen(l));
     },
     hoechste},
    {"DH008", text::DH008, [](const Lage& l) { return l.trumpfGefuehrt && wFreund(l) && !hhFreund(l); }, kleinste},
    {"DH010", text::DH010, [](const Lage& l) { return l.gestochen && wFreund(l) && !hhFrei(l); }, hoechste},
    {"DH013", text::DH013, [](const Lage& l) { return l.gestochen && wFreund(l) && l.kannUebernehmen(hh(l)); },
     kleinste},
    {"DH012", text::DH012, [](const Lage& l) { return l.gestochen && wFreund(l) && !hoehererTrumpfDraussen(l); },
     hoechste},
    {"DH011", text::DH011, [](const Lage& l) { return l.gestochen && wFreund(l) && hhOhneTrumpf(l); }, hoechste},
    {"DH005", text::DH005, [](const Lage& l) { return hhFeindStich(l) && !hhFrei(l) && !l.hoechsteLiegt(); }, kleinste},
    {"DH001", text::DH001, [](const Lage& l) { return hhFeindStich(l) && !hhFrei(l) && l.hoechsteLiegt(); }, hoechste},
    {"DH002", text::DH002, [](const Lage& l) { return hhFeindStich(l) && hhFrei(l) && hhOhneTrumpf(l); }, hoechste},
    {"DH004", text::DH004, [](const Lage& l) { return hhFeindStich(l) && hhFrei(l) && !hhOhneTrumpf(l); }, kleinste},
    // Three of one party can only mean a solo.
    {"DH003", text::DH003, [](const Lage& l) { return wFreund(l) && hhFreund(l); }, hoechste},
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

}  // namespace players

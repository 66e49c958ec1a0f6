// stechen_oder_abwerfen: a plain suit was led, the own hand is void in it and may trump.
#include <array>
#include <utility>

#include "Folgehilfen.h"
#include "Texte.h"
#include "TexteStechen.h"
#include "Verfahren.h"

namespace players {

using namespace engine;
using namespace folgen;
namespace t = text::stechen;

namespace {

// --- Conditions and choices the Zweithand and Dritthand cells are written in.
bool zaehler(const Folge& f) { return f.augen >= 10; }
bool asGefuehrt(const Folge& f) { return f.gefuehrtWert == WertAs; }
// The least missed trump that wins and holds, and its class (0 none, 1 small, 2 Bube,
// 3 Zähler, 4 Dame, 5 Fuchs, 6 Dolle, Schwein, Joker).
int haltRuff(const Folge& f) { return f.wertlosterHaltenderTrumpf(); }
int kh(const Folge& f) { return klasse(f, haltRuff(f)); }
int kw(const Folge& f) { return klasse(f, wertloster(f)); }
bool kleinerTrumpf(const Folge& f) { return kw(f) >= 1 && kw(f) <= 2; }
int fettHalt(const Folge& f) { return f.fetterTrumpfDerHaelt(); }
int billigStechen(const Folge& f) { return f.wertlosterSchlagenderTrumpf(); }
int blank(const Folge& f) { return f.blankeFarbkarte(); }
int einzige(const Folge& f) { return f.l.erlaubt.front(); }
int hoechsterNehmen(const Folge& f) { return dolleBeimUebernehmen(f.l, f.eigenerHoechster); }
// A non-partner after me is known void in the suit and may hold trump.
bool risikoBekannt(const Folge& f) {
    for (int i = 0; i < f.nachAnzahl; ++i) {
        const Sitz x = f.nach[static_cast<std::size_t>(i)];
        if (!f.l.freund(x) && f.l.frei(x, f.farbe) && !f.l.ohneTrumpf(x)) return true;
    }
    return false;
}
// ... and is believed of the other party.
bool risikoBekanntVonFeind(const Folge& f) {
    for (int i = 0; i < f.nachAnzahl; ++i) {
        const Sitz x = f.nach[static_cast<std::size_t>(i)];
        if (f.l.bekannterFeind(x) && f.l.frei(x, f.farbe) && !f.l.ohneTrumpf(x)) return true;
    }
    return false;
}
// The lowest plain card (from the preparation) is no Zähler.
bool farbeOhneZaehler(const Folge& f) { return f.kleinsteFarbkarte != 0 && !f.l.istZaehler(f.kleinsteFarbkarte); }
bool zaehlerAbwurf(const Folge& f) {
    const int k = hoechsterAbwurf(f);
    return k != 0 && f.l.istZaehler(k);
}
// The Fuchs is the trump I would ruff with, and it can be overtrumped and caught.
bool fuchsGefaehrdet(const Folge& f) {
    const int k = fuchs(f);
    return k != 0 && k == wertloster(f) && !f.haelt(k);
}
bool fuchsHaelt(const Folge& f) { return fuchs(f) && f.haelt(fuchs(f)); }
int abwurfSonstWertloster(const Folge& f) { return f.hatFarbkarte ? kleinsterAbwurf(f) : wertloster(f); }
int haltSonstWertloster(const Folge& f) { return haltRuff(f) ? haltRuff(f) : wertloster(f); }
int fettZugeben(const Folge& f) { return fetterOhneStich(f) ? fetterOhneStich(f) : wertlosterOhneStich(f); }

const std::array<R, 107> zweithand{{
    {"ZH002", t::ZH002, [](const Folge& f) { return f.letzterStich; }, einzige},
    {"ZH003", t::ZH003,
     [](const Folge& f) { return bekannt(f) && karlchenBehalten(f) && f.hatFarbkarte; }, kleinsterAbwurf},
    {"ZH004", t::ZH004, [](const Folge& f) { return bekannt(f) && karlchenBehalten(f); }, ohneKarlchen},
    {"ZH005", t::ZH005, [](const Folge& f) { return bekannt(f) && zaehler(f) && fettHalt(f); }, fettHalt},
    {"ZH0007", t::ZH0007,
     [](const Folge& f) { return bekannt(f) && zaehler(f) && kh(f) >= 1 && kh(f) <= 2; }, haltRuff},
    {"ZH0008", t::ZH0008, [](const Folge& f) { return bekannt(f) && zaehler(f) && kh(f) == 4; }, haltRuff},
    {"ZH009", t::ZH009, [](const Folge& f) { return bekannt(f) && zaehler(f) && kh(f) == 6; }, haltRuff},
    {"ZH0010", t::ZH0010,
     [](const Folge& f) { return bekannt(f) && zaehler(f) && f.trumpfAnzahl == 1 && farbeOhneZaehler(f); },
     kleinsterAbwurf},
    {"ZH0011", t::ZH0011,
     [](const Folge& f) { return bekannt(f) && zaehler(f) && kleinerTrumpf(f) && risikoBekanntVonFeind(f); },
     wertloster},
    {"ZH0012", t::ZH0012,
     [](const Folge& f) { return bekannt(f) && zaehler(f) && kleinerTrumpf(f) && risikoBekannt(f); }, wertloster},
    {"ZH013", t::ZH013,
     [](const Folge& f) { return bekannt(f) && zaehler(f) && kleinerTrumpf(f) && !f.ersteRunde; }, wertloster},
    {"ZH14", t::ZH14, [](const Folge& f) { return bekannt(f) && zaehler(f) && kleinerTrumpf(f); }, wertloster},
    {"ZH015", t::ZH015, [](const Folge& f) { return bekannt(f) && zaehler(f) && blank(f); }, blank},
    {"ZH016", t::ZH016,
     [](const Folge& f) { return bekannt(f) && zaehler(f) && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"ZH017", t::ZH017,
     [](const Folge& f) { return bekannt(f) && zaehler(f) && fuchsGefaehrdet(f) && f.hatFarbkarte; }, kleinsterAbwurf},
    {"ZH018", t::ZH018, [](const Folge& f) { return bekannt(f) && zaehler(f) && kw(f) <= 3; }, wertloster},
    {"ZH019", t::ZH019, [](const Folge& f) { return bekannt(f) && zaehler(f); }, abwurfSonstWertloster},
    {"ZH021", t::ZH021, [](const Folge& f) { return bekannt(f) && kh(f) >= 1 && kh(f) <= 2; }, haltRuff},
    {"ZH030", t::ZH030, [](const Folge& f) { return bekannt(f) && fettHalt(f); }, fettHalt},
    {"ZH031", t::ZH031, [](const Folge& f) { return bekannt(f) && blank(f); }, blank},
    {"ZH032", t::ZH032,
     [](const Folge& f) { return bekannt(f) && !f.ersteRunde && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"ZH033", t::ZH033, [](const Folge& f) { return bekannt(f) && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"ZH0034", t::ZH0034, [](const Folge& f) { return bekannt(f) && kleinerTrumpf(f); }, wertloster},
    {"ZH0036", t::ZH0036, [](const Folge& f) { return bekannt(f) && !f.hatFarbkarte && haltRuff(f); }, haltRuff},
    {"ZH0037", t::ZH0037, [](const Folge& f) { return bekannt(f); }, abwurfSonstWertloster},
    {"ZH0038", t::ZH0038,
     [](const Folge& f) { return unbekannt(f) && karlchenBehalten(f) && f.hatFarbkarte; }, kleinsterAbwurf},
    {"ZH0039", t::ZH0039, [](const Folge& f) { return unbekannt(f) && karlchenBehalten(f); }, ohneKarlchen},
    {"ZH0040", t::ZH0040, [](const Folge& f) { return unbekannt(f) && zaehler(f) && fettHalt(f); }, fettHalt},
    {"ZH0044", t::ZH0044,
     [](const Folge& f) { return unbekannt(f) && zaehler(f) && kh(f) >= 1 && kh(f) <= 2; }, haltRuff},
    {"ZH0046", t::ZH0046, [](const Folge& f) { return unbekannt(f) && zaehler(f) && kh(f) == 4; }, haltRuff},
    {"ZH047", t::ZH047, [](const Folge& f) { return unbekannt(f) && zaehler(f) && kh(f) == 6; }, haltRuff},
    {"ZH0048", t::ZH0048,
     [](const Folge& f) { return unbekannt(f) && zaehler(f) && f.trumpfAnzahl == 1 && farbeOhneZaehler(f); },
     kleinsterAbwurf},
    {"ZH0049", t::ZH0049,
     [](const Folge& f) { return unbekannt(f) && zaehler(f) && kleinerTrumpf(f) && risikoBekanntVonFeind(f); },
     wertloster},
    {"ZH0050", t::ZH0050,
     [](const Folge& f) { return unbekannt(f) && zaehler(f) && kleinerTrumpf(f) && risikoBekannt(f); }, wertloster},
    {"ZH0051", t::ZH0051,
     [](const Folge& f) { return unbekannt(f) && zaehler(f) && kleinerTrumpf(f) && !f.ersteRunde; }, wertloster},
    {"ZH0054", t::ZH0054, [](const Folge& f) { return unbekannt(f) && zaehler(f) && kleinerTrumpf(f); }, wertloster},
    {"ZH0058", t::ZH0058, [](const Folge& f) { return unbekannt(f) && zaehler(f) && blank(f); }, blank},
    {"ZH0059", t::ZH0059,
     [](const Folge& f) { return unbekannt(f) && zaehler(f) && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"ZH0061", t::ZH0061,
     [](const Folge& f) { return unbekannt(f) && zaehler(f) && fuchsGefaehrdet(f) && f.hatFarbkarte; },
     kleinsterAbwurf},
    {"ZH0062", t::ZH0062, [](const Folge& f) { return unbekannt(f) && zaehler(f) && kw(f) <= 3; }, wertloster},
    {"ZH0063", t::ZH0063, [](const Folge& f) { return unbekannt(f) && zaehler(f); }, abwurfSonstWertloster},
    {"ZH0065", t::ZH0065, [](const Folge& f) { return unbekannt(f) && kh(f) >= 1 && kh(f) <= 2; }, haltRuff},
    {"ZH0066", t::ZH0066, [](const Folge& f) { return unbekannt(f) && fettHalt(f); }, fettHalt},
    {"ZH0067", t::ZH0067, [](const Folge& f) { return unbekannt(f) && blank(f); }, blank},
    {"ZH0068", t::ZH0068,
     [](const Folge& f) { return unbekannt(f) && !f.ersteRunde && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"ZH069", t::ZH069, [](const Folge& f) { return unbekannt(f) && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"ZH150", t::ZH150, [](const Folge& f) { return unbekannt(f) && kleinerTrumpf(f); }, wertloster},
    {"ZH151", t::ZH151, [](const Folge& f) { return unbekannt(f) && !f.hatFarbkarte && haltRuff(f); }, haltRuff},
    {"ZH152", t::ZH152, [](const Folge& f) { return unbekannt(f); }, abwurfSonstWertloster},
    {"ZH153", t::ZH153,
     [](const Folge& f) { return freundHaelt(f) && karlchenBehalten(f) && f.sicher() && f.hatFarbkarte; },
     hoechsterAbwurf},
    {"ZH254", t::ZH254, [](const Folge& f) { return freundHaelt(f) && f.sicher() && fuchsHaelt(f); }, fuchs},
    {"ZH255", t::ZH255,
     [](const Folge& f) { return freundHaelt(f) && f.sicher() && zaehlerAbwurf(f); }, hoechsterAbwurf},
    {"ZH258", t::ZH258, [](const Folge& f) { return freundHaelt(f) && f.sicher() && blank(f); }, blank},
    {"ZH259", t::ZH259, [](const Folge& f) { return freundHaelt(f) && f.sicher() && f.hatFarbkarte; }, hoechsterAbwurf},
    {"ZH260", t::ZH260, [](const Folge& f) { return freundHaelt(f) && f.sicher(); }, fetterSonstWertloster},
    {"ZH261", t::ZH261, [](const Folge& f) { return freundHaelt(f) && fettHalt(f); }, fettHalt},
    {"ZH262", t::ZH262, [](const Folge& f) { return freundHaelt(f) && kh(f) >= 1 && kh(f) <= 2; }, haltRuff},
    {"ZH263", t::ZH263, [](const Folge& f) { return freundHaelt(f) && zaehler(f) && haltRuff(f); }, haltRuff},
    {"ZH365", t::ZH365,
     [](const Folge& f) { return freundHaelt(f) && risikoBekannt(f) && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"ZH366", t::ZH366,
     [](const Folge& f) { return freundHaelt(f) && !f.ersteRunde && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"ZH367", t::ZH367, [](const Folge& f) { return freundHaelt(f) && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"ZH468", t::ZH468,
     [](const Folge& f) { return freundHaelt(f) && fuchsGefaehrdet(f) && f.hatFarbkarte; }, kleinsterAbwurf},
    {"ZH469", t::ZH469, [](const Folge& f) { return freundHaelt(f) && kleinerTrumpf(f); }, wertloster},
    {"ZH470", t::ZH470, [](const Folge& f) { return freundHaelt(f) && f.hatFarbkarte; }, kleinsterAbwurf},
    {"ZH474", t::ZH474, [](const Folge& f) { return freundHaelt(f) && karlchenBehalten(f); }, ohneKarlchen},
    {"ZH475", t::ZH475, [](const Folge& f) { return freundHaelt(f); }, haltSonstWertloster},
    {"ZH576", t::ZH576, [](const Folge& f) { return gast(f) && fettHalt(f); }, fettHalt},
    {"ZH577", t::ZH577, [](const Folge& f) { return gast(f) && kh(f) >= 1 && kh(f) <= 3; }, haltRuff},
    {"ZH578", t::ZH578, [](const Folge& f) { return gast(f) && haltRuff(f); }, haltRuff},
    {"ZH0579", t::ZH0579,
     [](const Folge& f) { return gast(f) && f.kannSchlagen && klasse(f, f.eigenerHoechster) >= 4; }, hoechsterNehmen},
    {"ZH0580", t::ZH0580, [](const Folge& f) { return gast(f) && f.hatFarbkarte; }, kleinsterAbwurf},
    {"ZH0581", t::ZH0581, [](const Folge& f) { return gast(f); }, abwurfSonstWertloster},
    {"ZH582", t::ZH582, [](const Folge& f) { return rufer(f) && f.hatFarbkarte && zaehlerAbwurf(f); }, hoechsterAbwurf},
    {"ZH0583", t::ZH0583, [](const Folge& f) { return rufer(f) && f.hatFarbkarte; }, hoechsterAbwurf},
    {"ZH584", t::ZH584, [](const Folge& f) { return rufer(f) && kw(f) <= 2; }, wertlosterOhneStich},
    {"ZH585", t::ZH585, [](const Folge& f) { return rufer(f); }, wertlosterOhneStich},
    {"ZH586", t::ZH586, [](const Folge& f) { return f.binSolist && blank(f); }, blank},
    {"ZH587", t::ZH587, [](const Folge& f) { return f.binSolist && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"ZH689", t::ZH689, [](const Folge& f) { return f.binSolist && kleinerTrumpf(f); }, wertloster},
    {"ZH695", t::ZH695, [](const Folge& f) { return f.binSolist; }, abwurfSonstWertloster},
    {"ZH0697", t::ZH0697, [](const Folge& f) { return f.wSolist && fettHalt(f); }, fettHalt},
    {"ZH698", t::ZH698, [](const Folge& f) { return f.wSolist && zaehler(f) && kw(f) <= 2; }, wertloster},
    {"ZH785", t::ZH785, [](const Folge& f) { return f.wSolist && zaehler(f) && kw(f) <= 4; }, wertloster},
    {"ZH786", t::ZH786, [](const Folge& f) { return f.wSolist && zaehler(f) && asGefuehrt(f); }, wertloster},
    {"ZH899", t::ZH899, [](const Folge& f) { return f.wSolist && zaehler(f) && f.hatFarbkarte; }, kleinsterAbwurf},
    {"ZH902", t::ZH902, [](const Folge& f) { return f.wSolist && zaehler(f); }, wertloster},
    {"ZH903", t::ZH903, [](const Folge& f) { return f.wSolist && kw(f) <= 2 && f.trumpfAnzahl >= 3; }, wertloster},
    {"ZH904", t::ZH904, [](const Folge& f) { return f.wSolist && blank(f); }, blank},
    {"ZH905", t::ZH905, [](const Folge& f) { return f.wSolist && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"ZH999", t::ZH999, [](const Folge& f) { return f.wSolist && kw(f) <= 2; }, wertloster},
    {"ZH1502", t::ZH1502, [](const Folge& f) { return f.wSolist; }, abwurfSonstWertloster},
    {"ZH1503", t::ZH1503,
     [](const Folge& f) { return solistPartnerHaelt(f) && f.sicher() && zaehlerAbwurf(f); }, hoechsterAbwurf},
    {"ZH1504", t::ZH1504, [](const Folge& f) { return solistPartnerHaelt(f) && f.sicher() && blank(f); }, blank},
    {"ZH1505", t::ZH1505,
     [](const Folge& f) { return solistPartnerHaelt(f) && f.sicher() && f.hatFarbkarte; }, hoechsterAbwurf},
    {"ZH1507", t::ZH1507, [](const Folge& f) { return solistPartnerHaelt(f) && f.sicher(); }, fettZugeben},
    {"ZH1509", t::ZH1509, [](const Folge& f) { return solistPartnerHaelt(f) && fettHalt(f); }, fettHalt},
    {"ZH1524", t::ZH1524, [](const Folge& f) { return solistPartnerHaelt(f) && kh(f) >= 1 && kh(f) <= 2; }, haltRuff},
    {"ZH1525", t::ZH1525,
     [](const Folge& f) { return solistPartnerHaelt(f) && zaehler(f) && kh(f) >= 1 && kh(f) <= 4; }, haltRuff},
    {"ZH1526", t::ZH1526, [](const Folge& f) { return solistPartnerHaelt(f) && zaehler(f) && haltRuff(f); }, haltRuff},
    {"ZH1527", t::ZH1527, [](const Folge& f) { return solistPartnerHaelt(f) && risikoBekannt(f) && blank(f); }, blank},
    {"ZH1528", t::ZH1528,
     [](const Folge& f) { return solistPartnerHaelt(f) && risikoBekannt(f) && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"ZH1529", t::ZH1529, [](const Folge& f) { return solistPartnerHaelt(f) && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"ZH1531", t::ZH1531,
     [](const Folge& f) { return solistPartnerHaelt(f) && kw(f) <= 2 && !risikoBekannt(f); }, wertloster},
    {"ZH1622", t::ZH1622, [](const Folge& f) { return solistPartnerHaelt(f) && kw(f) <= 2; }, wertloster},
    {"ZH1623", t::ZH1623, [](const Folge& f) { return solistPartnerHaelt(f) && f.hatFarbkarte; }, kleinsterAbwurf},
    {"ZH1624", t::ZH1624, [](const Folge& f) { return solistPartnerHaelt(f) && haltRuff(f); }, haltRuff},
    {"ZH1629", t::ZH1629, [](const Folge& f) { return solistPartnerHaelt(f); }, wertloster},
}};

const std::array<R, 103> dritthand{{
    {"DH01", t::DH01, [](const Folge& f) { return f.letzterStich; }, einzige},
    {"DH04", t::DH04,
     [](const Folge& f) { return bekannt(f) && !f.gestochen && karlchenBehalten(f) && f.hatFarbkarte; },
     kleinsterAbwurf},
    {"DH18", t::DH18, [](const Folge& f) { return bekannt(f) && !f.gestochen && karlchenBehalten(f); }, ohneKarlchen},
    {"DH19", t::DH19, [](const Folge& f) { return bekannt(f) && !f.gestochen && zaehler(f) && fettHalt(f); }, fettHalt},
    {"DH20", t::DH20,
     [](const Folge& f) { return bekannt(f) && !f.gestochen && zaehler(f) && kh(f) >= 1 && kh(f) <= 2; }, haltRuff},
    {"DH21", t::DH21, [](const Folge& f) { return bekannt(f) && !f.gestochen && zaehler(f) && kh(f) == 4; }, haltRuff},
    {"DH22", t::DH22, [](const Folge& f) { return bekannt(f) && !f.gestochen && zaehler(f) && kh(f) == 6; }, haltRuff},
    {"DH23", t::DH23,
     [](const Folge& f) {
         return bekannt(f) && !f.gestochen && zaehler(f) && kleinerTrumpf(f) && risikoBekanntVonFeind(f);
     },
     wertloster},
    {"DH024", t::DH024,
     [](const Folge& f) { return bekannt(f) && !f.gestochen && zaehler(f) && kleinerTrumpf(f) && risikoBekannt(f); },
     wertloster},
    {"DH25", t::DH25, [](const Folge& f) { return bekannt(f) && !f.gestochen && zaehler(f) && blank(f); }, blank},
    {"DH26", t::DH26,
     [](const Folge& f) { return bekannt(f) && !f.gestochen && zaehler(f) && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"DH027", t::DH027,
     [](const Folge& f) { return bekannt(f) && !f.gestochen && zaehler(f) && fuchsGefaehrdet(f) && f.hatFarbkarte; },
     kleinsterAbwurf},
    {"DH28", t::DH28,
     [](const Folge& f) { return bekannt(f) && !f.gestochen && zaehler(f) && kw(f) <= 3; }, wertloster},
    {"DH29", t::DH29, [](const Folge& f) { return bekannt(f) && !f.gestochen && zaehler(f); }, abwurfSonstWertloster},
    {"DH30", t::DH30, [](const Folge& f) { return bekannt(f) && !f.gestochen && kh(f) >= 1 && kh(f) <= 2; }, haltRuff},
    {"DH31", t::DH31, [](const Folge& f) { return bekannt(f) && !f.gestochen && fettHalt(f); }, fettHalt},
    {"DH32", t::DH32, [](const Folge& f) { return bekannt(f) && !f.gestochen && blank(f); }, blank},
    {"DH33", t::DH33,
     [](const Folge& f) { return bekannt(f) && !f.gestochen && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"DH34", t::DH34, [](const Folge& f) { return bekannt(f) && !f.gestochen && kleinerTrumpf(f); }, wertloster},
    {"DH35", t::DH35, [](const Folge& f) { return bekannt(f) && !f.gestochen; }, abwurfSonstWertloster},
    {"DH38", t::DH38, [](const Folge& f) { return bekannt(f) && zaehler(f) && haltRuff(f); }, haltRuff},
    {"DH39", t::DH39, [](const Folge& f) { return bekannt(f) && kh(f) >= 1 && kh(f) <= 3; }, haltRuff},
    {"DH40", t::DH40, [](const Folge& f) { return bekannt(f) && kh(f) == 4 && f.augen >= 5; }, haltRuff},
    {"DH42", t::DH42, [](const Folge& f) { return bekannt(f) && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"DH47", t::DH47, [](const Folge& f) { return bekannt(f) && kleinerTrumpf(f); }, wertlosterOhneStich},
    {"DH48", t::DH48, [](const Folge& f) { return bekannt(f) && f.hatFarbkarte; }, kleinsterAbwurf},
    {"DH50", t::DH50, [](const Folge& f) { return bekannt(f) && haltRuff(f); }, haltRuff},
    {"DH51", t::DH51, [](const Folge& f) { return bekannt(f); }, wertlosterOhneStich},
    {"DH52", t::DH52,
     [](const Folge& f) { return unbekannt(f) && !f.gestochen && karlchenBehalten(f) && f.hatFarbkarte; },
     kleinsterAbwurf},
    {"DH54", t::DH54, [](const Folge& f) { return unbekannt(f) && !f.gestochen && karlchenBehalten(f); }, ohneKarlchen},
    {"DH55", t::DH55,
     [](const Folge& f) { return unbekannt(f) && !f.gestochen && zaehler(f) && fettHalt(f); }, fettHalt},
    {"DH56", t::DH56,
     [](const Folge& f) { return unbekannt(f) && !f.gestochen && zaehler(f) && kh(f) >= 1 && kh(f) <= 2; }, haltRuff},
    {"DH57", t::DH57,
     [](const Folge& f) { return unbekannt(f) && !f.gestochen && zaehler(f) && kh(f) == 4; }, haltRuff},
    {"DH58", t::DH58,
     [](const Folge& f) { return unbekannt(f) && !f.gestochen && zaehler(f) && kh(f) == 6; }, haltRuff},
    {"DH60", t::DH60,
     [](const Folge& f) {
         return unbekannt(f) && !f.gestochen && zaehler(f) && kleinerTrumpf(f) && risikoBekanntVonFeind(f);
     },
     wertloster},
    {"DH61", t::DH61,
     [](const Folge& f) { return unbekannt(f) && !f.gestochen && zaehler(f) && kleinerTrumpf(f) && risikoBekannt(f); },
     wertloster},
    {"DH63", t::DH63, [](const Folge& f) { return unbekannt(f) && !f.gestochen && zaehler(f) && blank(f); }, blank},
    {"DH64", t::DH64,
     [](const Folge& f) { return unbekannt(f) && !f.gestochen && zaehler(f) && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"DH66", t::DH66,
     [](const Folge& f) { return unbekannt(f) && !f.gestochen && zaehler(f) && fuchsGefaehrdet(f) && f.hatFarbkarte; },
     kleinsterAbwurf},
    {"DH67", t::DH67,
     [](const Folge& f) { return unbekannt(f) && !f.gestochen && zaehler(f) && kw(f) <= 3; }, wertloster},
    {"DH70", t::DH70, [](const Folge& f) { return unbekannt(f) && !f.gestochen && zaehler(f); }, abwurfSonstWertloster},
    {"DH72", t::DH72,
     [](const Folge& f) { return unbekannt(f) && !f.gestochen && kh(f) >= 1 && kh(f) <= 2; }, haltRuff},
    {"DH73", t::DH73, [](const Folge& f) { return unbekannt(f) && !f.gestochen && fettHalt(f); }, fettHalt},
    {"DH74", t::DH74, [](const Folge& f) { return unbekannt(f) && !f.gestochen && blank(f); }, blank},
    {"DH75", t::DH75,
     [](const Folge& f) { return unbekannt(f) && !f.gestochen && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"DH78", t::DH78, [](const Folge& f) { return unbekannt(f) && !f.gestochen && kleinerTrumpf(f); }, wertloster},
    {"DH79", t::DH79, [](const Folge& f) { return unbekannt(f) && !f.gestochen; }, abwurfSonstWertloster},
    {"DH82", t::DH82, [](const Folge& f) { return unbekannt(f) && zaehler(f) && haltRuff(f); }, haltRuff},
    {"DH83", t::DH83, [](const Folge& f) { return unbekannt(f) && kh(f) >= 1 && kh(f) <= 3; }, haltRuff},
    {"DH84", t::DH84, [](const Folge& f) { return unbekannt(f) && kh(f) == 4 && f.augen >= 5; }, haltRuff},
    {"DH86", t::DH86, [](const Folge& f) { return unbekannt(f) && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"DH087", t::DH087, [](const Folge& f) { return unbekannt(f) && kleinerTrumpf(f); }, wertlosterOhneStich},
    {"DH088", t::DH088, [](const Folge& f) { return unbekannt(f) && f.hatFarbkarte; }, kleinsterAbwurf},
    {"DH089", t::DH089, [](const Folge& f) { return unbekannt(f) && haltRuff(f); }, haltRuff},
    {"DH090", t::DH090, [](const Folge& f) { return unbekannt(f); }, wertlosterOhneStich},
    {"DH91", t::DH91,
     [](const Folge& f) { return freundHaelt(f) && !f.gestochen && f.sicher() && fuchsHaelt(f); }, fuchs},
    {"DH92", t::DH92,
     [](const Folge& f) { return freundHaelt(f) && !f.gestochen && f.sicher() && zaehlerAbwurf(f); }, hoechsterAbwurf},
    {"DH93", t::DH93, [](const Folge& f) { return freundHaelt(f) && !f.gestochen && f.sicher() && blank(f); }, blank},
    {"DH94", t::DH94,
     [](const Folge& f) { return freundHaelt(f) && !f.gestochen && f.sicher() && f.hatFarbkarte; }, hoechsterAbwurf},
    {"DH96", t::DH96,
     [](const Folge& f) { return freundHaelt(f) && !f.gestochen && f.sicher(); }, fetterSonstWertloster},
    {"DH98", t::DH98, [](const Folge& f) { return freundHaelt(f) && !f.gestochen && fettHalt(f); }, fettHalt},
    {"DH099", t::DH099,
     [](const Folge& f) { return freundHaelt(f) && !f.gestochen && kh(f) >= 1 && kh(f) <= 2; }, haltRuff},
    {"DH100", t::DH100,
     [](const Folge& f) { return freundHaelt(f) && !f.gestochen && zaehler(f) && haltRuff(f); }, haltRuff},
    {"DH101", t::DH101,
     [](const Folge& f) { return freundHaelt(f) && !f.gestochen && risikoBekannt(f) && farbeOhneZaehler(f); },
     kleinsterAbwurf},
    {"DH102", t::DH102,
     [](const Folge& f) { return freundHaelt(f) && !f.gestochen && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"DH103", t::DH103, [](const Folge& f) { return freundHaelt(f) && !f.gestochen && kleinerTrumpf(f); }, wertloster},
    {"DH104", t::DH104,
     [](const Folge& f) { return freundHaelt(f) && !f.gestochen && f.hatFarbkarte; }, kleinsterAbwurf},
    {"DH105", t::DH105, [](const Folge& f) { return freundHaelt(f) && !f.gestochen; }, haltSonstWertloster},
    {"DH106", t::DH106,
     [](const Folge& f) { return freundHaelt(f) && f.sicher() && zaehlerAbwurf(f); }, hoechsterAbwurf},
    {"DH0107", t::DH0107,
     [](const Folge& f) { return freundHaelt(f) && f.sicher() && f.hatFarbkarte; }, hoechsterAbwurf},
    {"DH0108", t::DH0108, [](const Folge& f) { return freundHaelt(f) && f.sicher(); }, fettZugeben},
    {"DH0109", t::DH0109, [](const Folge& f) { return freundHaelt(f) && zaehler(f) && haltRuff(f); }, haltRuff},
    {"DH0110", t::DH0110, [](const Folge& f) { return freundHaelt(f) && f.hatFarbkarte; }, kleinsterAbwurf},
    {"DH0111", t::DH0111, [](const Folge& f) { return freundHaelt(f); }, wertlosterOhneStich},
    {"DH118", t::DH118, [](const Folge& f) { return gast(f) && fettHalt(f); }, fettHalt},
    {"DH119", t::DH119, [](const Folge& f) { return gast(f) && kh(f) >= 1 && kh(f) <= 3; }, haltRuff},
    {"DH121", t::DH121, [](const Folge& f) { return gast(f) && haltRuff(f); }, haltRuff},
    {"DH123", t::DH123,
     [](const Folge& f) { return gast(f) && f.kannSchlagen && klasse(f, f.eigenerHoechster) >= 4; }, hoechsterNehmen},
    {"DH125", t::DH125, [](const Folge& f) { return gast(f); }, abwurfSonstWertloster},
    {"DH133", t::DH133, [](const Folge& f) { return rufer(f) && f.hatFarbkarte && zaehlerAbwurf(f); }, hoechsterAbwurf},
    {"DH144", t::DH144, [](const Folge& f) { return rufer(f) && f.hatFarbkarte; }, hoechsterAbwurf},
    {"DH152", t::DH152, [](const Folge& f) { return rufer(f) && kw(f) <= 2; }, wertlosterOhneStich},
    {"DH161", t::DH161, [](const Folge& f) { return rufer(f); }, wertlosterOhneStich},
    {"DH163", t::DH163, [](const Folge& f) { return f.binSolist && blank(f); }, blank},
    {"DH164", t::DH164, [](const Folge& f) { return f.binSolist && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"DH232", t::DH232, [](const Folge& f) { return f.binSolist && kleinerTrumpf(f); }, wertloster},
    {"DH256", t::DH256, [](const Folge& f) { return f.binSolist; }, abwurfSonstWertloster},
    {"DH258", t::DH258, [](const Folge& f) { return f.wSolist && fettHalt(f); }, fettHalt},
    {"DH259", t::DH259, [](const Folge& f) { return f.wSolist && zaehler(f) && billigStechen(f); }, billigStechen},
    {"DH360", t::DH360,
     [](const Folge& f) { return f.wSolist && billigStechen(f) && klasse(f, billigStechen(f)) <= 2; }, billigStechen},
    {"DH361", t::DH361, [](const Folge& f) { return f.wSolist && blank(f); }, blank},
    {"DH362", t::DH362, [](const Folge& f) { return f.wSolist && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"DH464", t::DH464, [](const Folge& f) { return f.wSolist && billigStechen(f); }, billigStechen},
    {"DH465", t::DH465, [](const Folge& f) { return f.wSolist; }, abwurfSonstWertloster},
    {"DH466", t::DH466,
     [](const Folge& f) { return solistPartnerHaelt(f) && f.sicher() && zaehlerAbwurf(f); }, hoechsterAbwurf},
    {"DH467", t::DH467,
     [](const Folge& f) { return solistPartnerHaelt(f) && f.sicher() && f.hatFarbkarte; }, hoechsterAbwurf},
    {"DH468", t::DH468, [](const Folge& f) { return solistPartnerHaelt(f) && f.sicher(); }, fettZugeben},
    {"DH469", t::DH469, [](const Folge& f) { return solistPartnerHaelt(f) && fettHalt(f); }, fettHalt},
    {"DH570", t::DH570,
     [](const Folge& f) { return solistPartnerHaelt(f) && haltRuff(f) && (zaehler(f) || kh(f) <= 2); }, haltRuff},
    {"DH668", t::DH668,
     [](const Folge& f) { return solistPartnerHaelt(f) && risikoBekannt(f) && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"DH669", t::DH669, [](const Folge& f) { return solistPartnerHaelt(f) && farbeOhneZaehler(f); }, kleinsterAbwurf},
    {"DH670", t::DH670, [](const Folge& f) { return solistPartnerHaelt(f) && kw(f) <= 2; }, wertloster},
    {"HH43", t::HH43, [](const Folge& f) { return solistPartnerHaelt(f); }, abwurfSonstWertloster},
}};
// --- Hinterhand: the given rules.
bool ichRufe(const Folge& f) { return rufer(f) && f.gewinner != f.l.ich; }
// From the preparation: the own single trump, and whether the own highest is the game's.
int einzigerTrumpf(const Folge& f) { return f.eigenerZweiter == 0 ? f.eigenerHoechster : 0; }
bool hoechsterImSpiel(const Folge& f) {
    return f.eigenerHoechster != 0 && f.hoechsteEigeneStaerke >= f.l.werte.hoechsterTrumpfImSpiel;
}
bool mitspielerOhneTrumpf(const Folge& f) {
    for (const Sitz x : alleSitze)
        if (x != f.l.ich && !f.l.ohneTrumpf(x)) return false;
    return true;
}
bool nurTrumpf(const Folge& f) { return !f.hatFarbkarte; }
bool mehrereKarten(const Folge& f) { return f.l.hand.size() > 1; }
// What losing the card costs: a plain card its Augen, a trump its Augen and its use, so
// that a small trump goes before an As that cannot win.
int kosten(const Folge& f, int p) {
    const int augen = f.l.augen(p);
    switch (klasse(f, p)) {
        case 0: return 10 * augen;
        case 1: return 10 * augen + 8;
        case 2: return 50 + f.trumpfRang(p) % 64;
        case 3: return 10 * augen + 40;
        case 4: return 230 + f.trumpfRang(p) % 64;
        case 5: return 300;
        default: return 400 + f.trumpfRang(p) % 64;
    }
}
// "Kleinste" of the whole hand for a trick that is lost: plain cards and trumps alike.
int kleinsteKarte(const Folge& f) {
    int beste = 0;
    for (int p : f.l.erlaubt)
        if (beste == 0 || kosten(f, p) < kosten(f, beste)) beste = p;
    return beste;
}

const std::array<R, 15> hinterhand{{
    {"HH25", text::SoaHH25, [](const Folge& f) { return ichRufe(f) && nurTrumpf(f); }, wertlosterOhneStich},
    {"HH24", text::SoaHH24, ichRufe, hoechsterAbwurf},
    // Any trump below the Dolle: in Hinterhand the ruff is safe (the Fuchs comes home).
    // With only the highest trumps left HH38 throws, and the Zähler rule may ruff after all.
    {"HH33", text::SoaHH33, [](const Folge& f) { return f.wFeind() && !f.gestochen && kw(f) <= 5; }, wertloster},
    {"HH36", text::SoaHH36, [](const Folge& f) { return f.wFeind() && f.gestochen && f.kannSchlagen; },
     [](const Folge& f) { return dolleBeimUebernehmen(f.l, billigStechen(f)); }},
    {"HH38", text::SoaHH38, [](const Folge& f) { return f.wFeind() && f.hatFarbkarte; }, kleinsteKarte},
    {"HH39", text::SoaHH39, [](const Folge& f) { return f.wFeind() && nurTrumpf(f); }, wertloster},
    // The own last trump, not the Fuchs, is the highest of the game: keep it.
    {"HH10", text::SoaHH10,
     [](const Folge& f) {
         const int k = einzigerTrumpf(f);
         return f.wFreund && k != 0 && !f.l.istFuchs(k) && hoechsterImSpiel(f) && f.hatFarbkarte;
     },
     hoechsterAbwurf},
    // Only trumps, the highest of the game kept; with a Fuchs in hand HH20 or HH17 decide.
    {"HH11", text::SoaHH11,
     [](const Folge& f) {
         return f.wFreund && nurTrumpf(f) && mehrereKarten(f) && !f.l.istFuchs(f.eigenerHoechster) &&
                hoechsterImSpiel(f) && fuchs(f) == 0;
     },
     [](const Folge& f) { return f.wertlosterTrumpfAusser(f.eigenerHoechster); }},
    {"HH19", text::SoaHH19,
     [](const Folge& f) {
         const int k = einzigerTrumpf(f);
         return f.wFreund && k != 0 && f.l.istFuchs(k) && mitspielerOhneTrumpf(f) && f.hatFarbkarte;
     },
     hoechsterAbwurf},
    {"HH20", text::SoaHH20,
     [](const Folge& f) {
         return f.wFreund && nurTrumpf(f) && mehrereKarten(f) && fuchs(f) && mitspielerOhneTrumpf(f);
     },
     [](const Folge& f) { return f.wertlosterTrumpfAusser(fuchs(f)); }},
    {"HH17", text::SoaHH17, [](const Folge& f) { return f.wFreund && fuchs(f); }, fuchs},
    {"HH07", text::SoaHH07, [](const Folge& f) { return f.wFreund && einzigerTrumpf(f) && f.hatFarbkarte; },
     hoechsterAbwurf},
    {"HH08", text::SoaHH08, [](const Folge& f) { return f.wFreund && nurTrumpf(f) && einzigerTrumpf(f); },
     einzigerTrumpf},
    {"HH01", text::SoaHH01, [](const Folge& f) { return f.wFreund && f.hatFarbkarte; }, hoechsterAbwurf},
    {"HH04", text::SoaHH04, [](const Folge& f) { return f.wFreund; }, wertloster},
}};

// Rather than throw a Zähler onto an opponent's trick of 30 Augen or more, trump it.
int zaehlerRetten(const Folge& f, int karte) {
    const Lage& l = f.l;
    if (!l.hinterhand() || f.trumpfAnzahl == 0 || f.augen < 30 || l.istTrumpf(karte) || !l.istZaehler(karte) ||
        !f.wFeind() || ichRufe(f))
        return karte;
    const int trumpf = billigStechen(f);
    if (trumpf == 0) return karte;
    l.melder.regel(verfahren::Filter, "Zaehlerstich", text::ZaehlerStechen);
    return trumpf;
}

}  // namespace

std::span<const RegelFuer<Folge>> stechenRegeln(int anzahl) {
    switch (anzahl) {
        case 1: return zweithand;
        case 2: return dritthand;
        case 3: return hinterhand;
        default: return {};
    }
}

int stechenOderAbwerfen(Folge& folge) {
    folge.stechenVorbereiten();
    const Lage& lage = folge.l;
    int karte = regelnAnwenden(stechenRegeln(lage.anzahl), std::as_const(folge), verfahren::Stechen);
    if (karte == 0) return 0;
    karte = zaehlerRetten(folge, karte);
    karte = freispielenFilter(lage, karte);
    karte = dolleNagelnFilter(lage, karte);
    karte = fuchsKarlchenDolleFilter(lage, karte);
    return herzFilter(lage, karte);
}

}  // namespace players

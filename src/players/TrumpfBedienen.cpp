// Trumpf_bedienen: trump was led and the own hand holds trump.
#include <array>

#include "Folgehilfen.h"
#include "Texte.h"
#include "TexteTrumpf.h"
#include "Verfahren.h"

namespace players {

using namespace engine;
using namespace folgen;
namespace t = text::trumpf;

namespace {

constexpr int KreuzDame = kartencode(Kreuz, Dame);

int mitDolleFilter(const Folge& f, int karte) { return dolleBeimUebernehmen(f.l, karte); }
int hoechsterNehmen(const Folge& f) { return mitDolleFilter(f, hoechsterTrumpf(f)); }
int haltendNehmen(const Folge& f) { return mitDolleFilter(f, haltend(f)); }

bool einzig(const Folge& f) { return f.l.erlaubt.size() == 1; }
// A known opponent holds the trick and Hinterhand may still trump.
bool bekanntHhTrumpf(const Folge& f) { return bekannt(f) && !f.hhOhneTrumpf; }
int klasseWertloser(const Folge& f) { return klasse(f, wertloster(f)); }
bool wertloserIstKarlchen(const Folge& f) { return f.l.istKarlchen(wertloster(f)); }
bool hoechsterLiegt(const Folge& f) { return !f.l.hoehereDraussen(f.l.trumpf, f.wStaerke); }
bool teuerHaltend(const Folge& f) { return haltend(f) && klasse(f, haltend(f)) >= 4; }

// A Fuchs in the trick, played by a partner (true) or by another seat (false).
bool fuchsImStich(const Folge& f, bool vonFreund) {
    const auto& stich = f.l.spiel.stich;
    for (int i = 1; i <= f.l.anzahl; ++i)
        if (f.l.istFuchs(stich.karte(i)) && f.l.freund(stich.sitzAn(i)) == vonFreund) return true;
    return false;
}
bool wKreuzDame(const Folge& f) { return f.l.karte(f.wKarte).code == KreuzDame && f.l.istTrumpf(f.wKarte); }
bool wDolle(const Folge& f) { return f.l.istDolle(f.wKarte); }
bool dolleHaelt(const Folge& f) { return f.haelt(dolle(f)); }
// "First Dolle beats the second" is in force: a Dolle over a Kreuz-Dame shows a party.
bool ersteDolleHoch(const Folge& f) { return f.l.spiel.regeln.herzZehn; }
bool ichKontra(const Folge& f) { return f.l.wissen.partei[f.l.ich] == ParteiKontra; }
// The second Dolle beats the first: mine takes the opponent's.
bool dullenschlag(const Folge& f) {
    const int meine = dolle(f);
    return meine != 0 && wDolle(f) && !ersteDolleHoch(f) && f.l.schlaegt(meine);
}
// A Re player not yet known shows himself with a Kreuz-Dame early in the game.
int kreuzDameZeigen(const Folge& f) {
    if (f.l.wissen.partei[f.l.ich] != ParteiRe || f.l.wissen.parteiBekannt[f.l.ich] != ParteiUnbekannt ||
        f.l.spiel.sticheGespielt >= 3)
        return 0;
    for (int p : f.l.erlaubt)
        if (f.l.karte(p).code == KreuzDame && f.l.schlaegt(p)) return p;
    return 0;
}
// Every card that beats the winner is a Dame or higher (and none holds).
bool nurHoheSchlagen(const Folge& f) {
    const int k = billigNehmen(f);
    return k != 0 && klasse(f, k) >= 4;
}
bool nurFuchsSchlaegt(const Folge& f) {
    const int k = billigNehmen(f);
    return k != 0 && f.l.istFuchs(k);
}
// The partner's Kreuz-Dame, which Hinterhand may take with the second Dolle; my Dolle
// nails it, and seats 1 and 2 may now take me for Kontra (the bluff counts on the
// first trick's random number, which this rule sets to 9).
bool dolleBluff(const Folge& f) {
    return freundHaelt(f) && wKreuzDame(f) && f.feindKannNehmen && ersteDolleHoch(f) && f.l.werte.fremdeDollen > 0 &&
           dolleHaelt(f);
}
int dolleMitBluff(const Folge& f) {
    f.l.neueZufallszahl = 9;
    return dolle(f);
}


constexpr R alle{"ALL", text::TbALL, immer, zufaellig};

const std::array<R, 40> zweithand{{
    {"ZH01", t::ZH01, einzig, wertloster},
    {"ZH02", t::ZH02, [](const Folge& f) { return gast(f) && haltend(f); }, haltendNehmen},
    {"ZH006", t::ZH006, [](const Folge& f) { return gast(f) && f.kannSchlagen; }, hoechsterNehmen},
    {"ZH008", t::ZH008, gast, wertloster},
    {"ZH009", t::ZH009, [](const Folge& f) { return rufer(f) && fetterOhneStich(f); }, fetterOhneStich},
    {"ZH015", t::ZH015, rufer, wertlosterOhneStich},
    {"ZH017", t::ZH017, [](const Folge& f) { return f.binSolist && haltend(f); }, haltendNehmen},
    {"ZH018", t::ZH018, [](const Folge& f) { return f.binSolist; }, wertloster},
    {"ZH019", t::ZH019, [](const Folge& f) { return f.wSolist && f.kannSchlagen; }, billigNehmen},
    {"ZH020", t::ZH020, [](const Folge& f) { return f.wSolist; }, wertloster},
    {"ZH029", t::ZH029, [](const Folge& f) { return solistPartnerHaelt(f) && f.sicher(); }, fetterSonstWertloster},
    {"ZH031", t::ZH031, [](const Folge& f) { return solistPartnerHaelt(f) && haltend(f); }, haltendNehmen},
    {"ZH033", t::ZH033, [](const Folge& f) { return f.gegenSolist; }, wertloster},
    {"ZH035", t::ZH035, [](const Folge& f) { return freundHaelt(f) && f.sicher() && fuchs(f); }, fuchs},
    {"ZH037", t::ZH037, [](const Folge& f) { return freundHaelt(f) && f.sicher() && fetter(f); }, fetter},
    {"ZH040", t::ZH040, [](const Folge& f) { return freundHaelt(f) && f.sicher(); }, wertloster},
    {"ZH045", t::ZH045, [](const Folge& f) { return freundHaelt(f) && haltend(f) && f.augen >= 10; }, haltendNehmen},
    {"ZH047", t::ZH047, freundHaelt, wertloster},
    // From here on the trick is held by an opponent or by a seat of unknown party.
    {"ZH048", t::ZH048, [](const Folge& f) { return feindHaelt(f) && fuchsImStich(f, false) && haltend(f); },
     haltendNehmen},
    {"ZH0050", t::ZH0050, [](const Folge& f) { return feindHaelt(f) && fuchsImStich(f, false) && f.kannSchlagen; },
     hoechsterNehmen},
    {"ZH0054", t::ZH0054,
     [](const Folge& f) {
         return feindHaelt(f) && wKreuzDame(f) && ichKontra(f) && ersteDolleHoch(f) && dolleHaelt(f);
     },
     dolle},
    {"ZH0055", t::ZH0055, [](const Folge& f) { return feindHaelt(f) && dullenschlag(f); }, dolle},
    {"ZH0056", t::ZH0056, [](const Folge& f) { return feindHaelt(f) && haltend(f) && f.augen >= 10; }, haltendNehmen},
    {"ZH057", t::ZH057, [](const Folge& f) { return feindHaelt(f) && haltend(f) && klasse(f, haltend(f)) <= 3; },
     haltendNehmen},
    {"ZH058", t::ZH058, [](const Folge& f) { return feindHaelt(f) && karlchenBehalten(f); }, ohneKarlchen},
    {"ZH060", t::ZH060, [](const Folge& f) { return feindHaelt(f) && !f.kannSchlagen && hoechsterLiegt(f); },
     wertloster},
    {"ZH061", t::ZH061, [](const Folge& f) { return feindHaelt(f) && kreuzDameZeigen(f); }, kreuzDameZeigen},
    {"ZH062", t::ZH062, [](const Folge& f) { return feindHaelt(f) && !haltend(f) && nurHoheSchlagen(f); },
     wertloster},
    {"ZH064", t::ZH064, [](const Folge& f) { return feindHaelt(f) && f.freundKannNehmen; }, wertloster},
    {"ZH070", t::ZH070, [](const Folge& f) { return bekannt(f) && klasseWertloser(f) == 1; }, wertloster},
    {"ZH071", t::ZH071,
     [](const Folge& f) { return bekannt(f) && klasseWertloser(f) == 2 && !wertloserIstKarlchen(f); }, wertloster},
    {"ZH072", t::ZH072, [](const Folge& f) { return bekannt(f) && wertloserIstKarlchen(f); }, wertloster},
    {"ZH073", t::ZH073, [](const Folge& f) { return bekannt(f) && klasseWertloser(f) == 3; }, wertloster},
    {"ZH074", t::ZH074, [](const Folge& f) { return bekannt(f) && klasseWertloser(f) == 4; }, wertloster},
    {"ZH075", t::ZH075, [](const Folge& f) { return bekannt(f) && klasseWertloser(f) == 5; }, wertloster},
    {"ZH076", t::ZH076, bekannt, wertloster},
    {"ZH077", t::ZH077, [](const Folge& f) { return unbekannt(f) && klasseWertloser(f) <= 2; }, wertloster},
    {"ZH078", t::ZH078, [](const Folge& f) { return unbekannt(f) && klasseWertloser(f) <= 4; }, wertloster},
    {"ZH079", t::ZH079, immer, wertloster},
    alle,
}};

const std::array<R, 57> dritthand{{
    {"DH01", t::DH01, einzig, wertloster},
    {"DH02", t::DH02, [](const Folge& f) { return gast(f) && haltend(f); }, haltendNehmen},
    {"DH04", t::DH04, [](const Folge& f) { return gast(f) && f.kannSchlagen; }, hoechsterNehmen},
    {"DH05", t::DH05, gast, wertloster},
    {"DH06", t::DH06, [](const Folge& f) { return rufer(f) && fetterOhneStich(f); }, fetterOhneStich},
    {"DH07", t::DH07, rufer, wertlosterOhneStich},
    {"DH08", t::DH08, [](const Folge& f) { return f.binSolist && haltend(f); }, haltendNehmen},
    {"DH09", t::DH09, [](const Folge& f) { return f.binSolist; }, wertloster},
    {"DH10", t::DH10, [](const Folge& f) { return f.wSolist && f.kannSchlagen; }, billigNehmen},
    {"DH11", t::DH11, [](const Folge& f) { return f.wSolist; }, wertloster},
    {"DH016", t::DH016, [](const Folge& f) { return solistPartnerHaelt(f) && f.sicher(); }, fetterSonstWertloster},
    {"DH018", t::DH018, [](const Folge& f) { return solistPartnerHaelt(f) && haltend(f); }, haltendNehmen},
    {"DH023", t::DH023, [](const Folge& f) { return f.gegenSolist; }, wertloster},
    {"DH024", t::DH024, [](const Folge& f) { return freundHaelt(f) && f.sicher() && fuchs(f); }, fuchs},
    {"DH025", t::DH025, [](const Folge& f) { return freundHaelt(f) && f.sicher() && fetter(f); }, fetter},
    {"DH026", t::DH026, [](const Folge& f) { return freundHaelt(f) && f.sicher(); }, wertloster},
    {"DH027", t::DH027, dolleBluff, dolleMitBluff},
    {"DH033", t::DH033, [](const Folge& f) { return freundHaelt(f) && haltend(f) && f.augen >= 10; }, haltendNehmen},
    {"DH034", t::DH034, [](const Folge& f) { return freundHaelt(f) && haltend(f) && klasse(f, haltend(f)) <= 3; },
     haltendNehmen},
    {"DH035", t::DH035, [](const Folge& f) { return freundHaelt(f) && f.l.bekannterFeind(f.hh); }, wertloster},
    {"DH036", t::DH036, freundHaelt, wertloster},
    // From here on the trick is held by an opponent or by a seat of unknown party.
    {"DH037", t::DH037, [](const Folge& f) { return feindHaelt(f) && fuchsImStich(f, true) && haltend(f); },
     haltendNehmen},
    {"DH039", t::DH039, [](const Folge& f) { return feindHaelt(f) && fuchsImStich(f, false) && haltend(f); },
     haltendNehmen},
    {"DH042", t::DH042,
     [](const Folge& f) {
         return feindHaelt(f) && (fuchsImStich(f, true) || fuchsImStich(f, false)) && f.kannSchlagen && !f.hhFreund;
     },
     hoechsterNehmen},
    {"DH043", t::DH043,
     [](const Folge& f) {
         return feindHaelt(f) && wKreuzDame(f) && ichKontra(f) && ersteDolleHoch(f) && dolleHaelt(f);
     },
     dolle},
    {"DH044", t::DH044, [](const Folge& f) { return feindHaelt(f) && dullenschlag(f); }, dolle},
    {"DH046", t::DH046, [](const Folge& f) { return feindHaelt(f) && haltend(f) && f.augen >= 10; }, haltendNehmen},
    {"DH050", t::DH050, [](const Folge& f) { return feindHaelt(f) && haltend(f) && klasse(f, haltend(f)) <= 3; },
     haltendNehmen},
    {"DH051", t::DH051, [](const Folge& f) { return feindHaelt(f) && f.kannSchlagen && f.augen >= 20 && !f.hhFreund; },
     hoechsterNehmen},
    {"DH057", t::DH057, [](const Folge& f) { return feindHaelt(f) && f.freundKannNehmen; }, wertloster},
    {"DH059", t::DH059, [](const Folge& f) { return feindHaelt(f) && karlchenBehalten(f); }, ohneKarlchen},
    {"DH060", t::DH060, [](const Folge& f) { return feindHaelt(f) && kreuzDameZeigen(f); }, kreuzDameZeigen},
    // A known opponent holds the trick.
    {"DH063", t::DH063, [](const Folge& f) { return bekannt(f) && !f.kannSchlagen && hoechsterLiegt(f); }, wertloster},
    {"DH0065", t::DH0065, [](const Folge& f) { return bekannt(f) && teuerHaltend(f) && f.augen < 10; }, wertloster},
    {"DH0066", t::DH0066, [](const Folge& f) { return bekannt(f) && nurFuchsSchlaegt(f); }, wertloster},
    {"DH0067", t::DH0067, [](const Folge& f) { return bekannt(f) && !haltend(f) && nurHoheSchlagen(f); }, wertloster},
    {"DH0068", t::DH0068, [](const Folge& f) { return bekannt(f) && f.kannSchlagen; }, wertloster},
    // ... and Hinterhand may still trump: what I give depends on what I hold.
    {"DH0069", t::DH0069, [](const Folge& f) { return bekanntHhTrumpf(f) && klasseWertloser(f) == 1; }, wertloster},
    {"DH0076", t::DH0076,
     [](const Folge& f) { return bekanntHhTrumpf(f) && klasseWertloser(f) == 2 && !wertloserIstKarlchen(f); },
     wertloster},
    {"DH0077", t::DH0077, [](const Folge& f) { return bekanntHhTrumpf(f) && wertloserIstKarlchen(f); }, wertloster},
    {"DH0078", t::DH0078, [](const Folge& f) { return bekanntHhTrumpf(f) && klasseWertloser(f) == 3; }, wertloster},
    {"DH0171", t::DH0171, [](const Folge& f) { return bekanntHhTrumpf(f) && klasseWertloser(f) == 4; }, wertloster},
    {"DH0172", t::DH0172, bekanntHhTrumpf, wertloster},
    // ... and Hinterhand has no trump left: the trick is nailed.
    {"DH0174", t::DH0174, [](const Folge& f) { return bekannt(f) && klasseWertloser(f) <= 2; }, wertloster},
    {"DH0176", t::DH0176, bekannt, wertloster},
    // A seat of unknown party holds the trick.
    {"DH0177", t::DH0177, [](const Folge& f) { return unbekannt(f) && !f.kannSchlagen && hoechsterLiegt(f); },
     wertloster},
    {"DH0178", t::DH0178, [](const Folge& f) { return unbekannt(f) && !f.kannSchlagen && klasseWertloser(f) == 1; },
     wertloster},
    {"DH0180", t::DH0180, [](const Folge& f) { return unbekannt(f) && !f.kannSchlagen && klasseWertloser(f) == 2; },
     wertloster},
    {"DH0181", t::DH0181, [](const Folge& f) { return unbekannt(f) && !f.kannSchlagen && klasseWertloser(f) == 3; },
     wertloster},
    {"DH0182", t::DH0182, [](const Folge& f) { return unbekannt(f) && !f.kannSchlagen && klasseWertloser(f) == 4; },
     wertloster},
    {"DH0184", t::DH0184, [](const Folge& f) { return unbekannt(f) && !f.kannSchlagen; }, wertloster},
    {"DH0185", t::DH0185, [](const Folge& f) { return unbekannt(f) && teuerHaltend(f) && f.augen < 5; }, wertloster},
    {"DH0186", t::DH0186, [](const Folge& f) { return unbekannt(f) && haltend(f); }, haltendNehmen},
    {"DH0283", t::DH0283, [](const Folge& f) { return unbekannt(f) && nurHoheSchlagen(f); }, wertloster},
    {"DH0287", t::DH0287, [](const Folge& f) { return unbekannt(f) && f.l.bekannterFeind(f.hh); }, wertloster},
    {"DH0288", t::DH0288, unbekannt, wertloster},
    alle,
}};

// Hinterhand: the given rules, with the trump choices of the follow view.
bool klaerstich(const Folge& f) { return f.klaerstich; }
bool ichRufe(const Folge& f) { return rufer(f) && f.gewinner != f.l.ich; }
bool solospiel(const Folge& f) { return f.solist.has_value(); }
// The seat before the next leader plays last in the next trick.
bool solistVor(const Folge& f, Sitz aufspieler) { return f.solist == aufspieler.plus(3); }
// A trump of Augen that takes the trick: the trump suit's As or Zehn.
int fetterSchlagender(const Folge& f) {
    const int k = fetter(f);
    if (k && f.l.schlaegt(k)) return k;
    int beste = 0;
    for (int p : f.l.erlaubt)
        if (klasse(f, p) == 3 && f.l.schlaegt(p) && (beste == 0 || f.l.augen(p) > f.l.augen(beste))) beste = p;
    return beste;
}
int geradeSoHoeher(const Folge& f) { return mitDolleFilter(f, billigNehmen(f)); }
int werthoherSchlagender(const Folge& f) {
    const int k = fetterSchlagender(f);
    return k != 0 ? k : geradeSoHoeher(f);
}
int mitgift(const Folge& f) { return geschenk(f); }
// The cheapest trump to lose would be the Fuchs, and a Dolle is at hand instead.
bool fuchsOderDolle(const Folge& f) { return f.l.istFuchs(wertloster(f)) && dolle(f); }

const std::array<R, 13> hinterhand{{
    {"HH016", text::TbHH016, [](const Folge& f) { return ichRufe(f) && !f.kannSchlagen; }, mitgift},
    {"HH017", text::TbHH017, [](const Folge& f) { return f.wFeind() && !f.kannSchlagen && fuchsOderDolle(f); }, dolle},
    {"HH018", text::TbHH018, [](const Folge& f) { return f.wFeind() && !f.kannSchlagen && !ichRufe(f); }, wertloster},
    {"HH015", text::TbHH015,
     [](const Folge& f) { return f.wFeind() && f.kannSchlagen && !klaerstich(f) && fetterSchlagender(f) == 0; },
     geradeSoHoeher},
    {"HH07", text::TbHH07, ichRufe, mitgift},
    {"HH08", text::TbHH08, [](const Folge& f) { return gast(f) && f.kannSchlagen; }, geradeSoHoeher},
    {"HH06", text::TbHH06, [](const Folge& f) { return f.wFeind() && f.kannSchlagen; }, werthoherSchlagender},
    {"HH01", text::TbHH01, [](const Folge& f) { return f.wFreund && !solospiel(f); }, fetterSonstWertloster},
    {"HH05", text::TbHH05,
     [](const Folge& f) { return f.wFreund && solospiel(f) && !solistVor(f, f.gewinner); }, fetterSonstWertloster},
    {"HH03", text::TbHH03,
     [](const Folge& f) {
         return f.wFreund && solospiel(f) && f.kannSchlagen && !solistVor(f, f.l.ich) && fetterSchlagender(f) == 0;
     },
     geradeSoHoeher},
    {"HH004", text::TbHH004, [](const Folge& f) { return f.wFreund && solospiel(f) && !f.kannSchlagen; },
     fetterSonstWertloster},
    {"HH02", text::TbHH02,
     [](const Folge& f) { return f.wFreund && solospiel(f) && f.kannSchlagen && !solistVor(f, f.l.ich); },
     werthoherSchlagender},
    alle,
}};

}  // namespace

std::span<const RegelFuer<Folge>> trumpfBedienenRegeln(int anzahl) {
    switch (anzahl) {
        case 1: return zweithand;
        case 2: return dritthand;
        case 3: return hinterhand;
        default: return {};
    }
}

int trumpfBedienen(const Folge& folge) {
    return regelnAnwenden(trumpfBedienenRegeln(folge.l.anzahl), folge, verfahren::TrumpfBedienen);
}

}  // namespace players

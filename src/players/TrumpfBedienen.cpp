// Trumpf_bedienen: trump was led and the own hand holds trump.
#include <array>

#include "Regelhilfen.h"
#include "Texte.h"
#include "Verfahren.h"

namespace players {

using namespace engine;
using namespace hilfe;

namespace {

bool immer(const Lage&) { return true; }
int zufaellig(const Lage& l) { return l.zufaellige(l.erlaubt); }
int wertkleinster(const Lage& l) { return l.praktWertkleinsterTrumpf(); }
int werthoechster(const Lage& l) { return l.praktWerthoechsterTrumpf(); }
int geradeSoHoeher(const Lage& l) { return dolleBeimUebernehmen(l, l.kleinsterSchlagender()); }
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

}  // namespace players

// The soloist's own rules, tried before the common ones: he plays against all three
// others, so every trick he can take safely is his.
#include <array>

#include "Regelhilfen.h"
#include "Texte.h"
#include "Verfahren.h"

namespace players {

using namespace engine;
using hilfe::billigste;

namespace {

bool binSolist(const Lage& l) { return l.wissen.partei[l.ich] == ParteiSolo; }
// Without trumps the long suit of the fleischlos solo leads the way instead.
bool solistMitTrumpf(const Lage& l) { return binSolist(l) && l.trumpf != SoloOhneTrumpf; }

bool ruffen(const Lage& l) {
    return binSolist(l) && !l.trumpfGefuehrt && l.anzahlInHand(l.zuBedienen) == 0 && l.werte.eigeneTruempfe > 0;
}

// After the trumps are out, a card nobody can beat wins its trick.
int stehendeKarte(const Lage& l) {
    if (l.werte.fremdeTruempfe != 0) return 0;
    int beste = 0;
    for (int f = Karo; f <= Kreuz; ++f) {
        const int k = f != l.trumpf ? l.stehende(f) : 0;
        if (k != 0 && (beste == 0 || l.augen(k) > l.augen(beste))) beste = k;
    }
    return beste;
}

const std::array<Regel, 1> ausspiel{{
    {"S01", text::SolistStehendeKarte, solistMitTrumpf, stehendeKarte},
}};

const std::array<Regel, 2> folgen{{
    {"S11", text::SolistStichtSicher, ruffen,
     [](const Lage& l) { return billigste(l, [&](int p) { return l.istTrumpf(p) && l.nagelt(p); }); }},
    {"S12", text::SolistSticht,
     [](const Lage& l) { return ruffen(l) && l.augenImStich >= 10; },
     [](const Lage& l) { return billigste(l, [&](int p) { return l.istTrumpf(p) && l.schlaegt(p); }); }},
}};

}  // namespace

int solistAusspielen(const Lage& l) { return regelnAnwenden(ausspiel, l, verfahren::Solospiel); }
int solistFolgen(const Lage& l) { return regelnAnwenden(folgen, l, verfahren::Solospiel); }

}  // namespace players

// The soloist's own rules: ruff what can be ruffed safely, cash standing cards once
// the others hold no trump.
#include <gtest/gtest.h>

#include "Fall.h"
#include "Karten.h"

using namespace karten;
using testhilfe::Fall;
using testhilfe::pruefen;
using testhilfe::Situation;

namespace {
void solistEins(Situation& s) { s.solo(1); }
}  // namespace

// A Pik-Solo of seat 1; Herz is led and seat 1 has none.
TEST(Solospiel, SolistSticht) {
    const Fall faelle[] = {
        {"Zweithand: der kleinste Trumpf genügt, die anderen müssen bedienen",
         {{PikNeun, KreuzDame, KreuzNeun}, {HerzNeun, PikDame}, {HerzKoenig, KaroNeun}, {HerzAs, Dolle}}, {HerzAs},
         nullptr, {"Solospiel:S11"}, PikNeun, solistEins, 4},
        {"Sitz 2 ist frei in Herz und kann überstechen: die Kreuz-Dame",
         {{PikNeun, KreuzDame, KreuzNeun}, {KaroNeun, PikDame}, {HerzKoenig, KaroNeun}, {HerzAs, KaroKoenig}}, {HerzAs},
         [](Situation& s) { s.frei(2, engine::Herz); }, {"Solospiel:S11"}, KreuzDame, solistEins, 4},
        {"nichts nagelt, aber 11 Augen: der kleinste, der sticht",
         {{PikNeun, KreuzDame, KreuzNeun}, {KaroNeun, Dolle}, {HerzKoenig, KaroNeun}, {HerzAs, KaroKoenig}}, {HerzAs},
         [](Situation& s) { s.frei(2, engine::Herz); }, {"Solospiel:S12"}, PikNeun, solistEins, 4},
    };
    for (const Fall& f : faelle) pruefen(f, engine::PikSolo);
}

TEST(Solospiel, StehendeKarteOhneFremdeTruempfe) {
    const Fall mitTrumpf{"Kreuz-As steht, Herz-König nicht",
                         {{PikNeun, KreuzAs, HerzKoenig}, {KreuzNeun}, {HerzAs}, {KaroNeun}}, {}, nullptr,
                         {"Solospiel:S01"}, KreuzAs, solistEins};
    pruefen(mitTrumpf, engine::PikSolo);
    // Without trumps the long suit of the fleischlos solo goes first.
    Situation s(engine::SoloOhneTrumpf, {{KreuzAs, HerzKoenig, HerzNeun, HerzNeun}, {KreuzNeun}, {HerzAs}, {KaroNeun}});
    s.solo(1);
    s.wissenAufbauen();
    s.wissen.solo.langeFarbe[engine::Sitz(1)] = engine::Herz;
    EXPECT_EQ(s.waehlt(), HerzKoenig);
    EXPECT_EQ(s.ersteRegel(), "AusspielWaehlen:01");
}

// With little in the trick and no safe ruff the common rules decide.
TEST(Solospiel, KeinSicheresStechenOhneAugen) {
    Situation s(engine::PikSolo, {{PikNeun, KreuzDame, KreuzNeun}, {KaroNeun, Dolle}, {HerzKoenig, KaroNeun}, {HerzNeun, KaroKoenig}});
    s.solo(1);
    s.aufspieler(4);
    s.nachStich({HerzNeun});
    s.frei(2, engine::Herz);
    s.waehlt();
    ASSERT_FALSE(s.regeln().empty());
    for (const std::string& r : s.regeln()) EXPECT_NE(r.rfind("Solospiel:", 0), 0u) << r;
}

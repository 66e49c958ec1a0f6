// The follow rules that 20 000 games of --stats never reach, each in a constructed
// position; the name says why the position is rare.
#include <gtest/gtest.h>

#include <functional>

#include "Fall.h"
#include "Karten.h"

using namespace karten;
using engine::ParteiKontra;
using engine::ParteiRe;
using testhilfe::Fall;
using testhilfe::Situation;

namespace {

std::function<void(Situation&)> hochzeitVon(int sitz) {
    return [sitz](Situation& s) {
        s.spiel.hochzeiter = engine::Sitz(sitz);
        s.spiel.hochzeitArt = engine::ErsterFehlstich;
    };
}
// The announcer is Re, whatever the constructed hand holds.
void hochzeiterRe(Situation& s, int sitz) {
    s.partei(sitz, ParteiRe);
    s.alleGlauben(sitz, ParteiRe);
}
void zweiteDolleSchlaegt(Situation& s) { s.spiel.regeln.herzZehn = false; }
std::function<void(Situation&)> soloVon(int sitz) {
    return [sitz](Situation& s) { s.solo(sitz); };
}

}  // namespace

TEST(SelteneRegeln, InKonstruiertenStellungen) {
    const Fall faelle[] = {
        // Only where "Zweite schlägt Erste" is chosen; the default rules let the first Dolle win.
        {"Dullenschlag in ZH, nur mit Zweite schlägt Erste", {{Dolle}, {Dolle, KaroNeun}, {KaroKoenig}, {KaroNeun}},
         {Dolle}, [](Situation& s) { s.glaubt(2, 1, ParteiRe); }, {"Trumpf_bedienen:ZH0055"}, Dolle, zweiteDolleSchlaegt},
        {"Dullenschlag in DH, nur mit Zweite schlägt Erste", {{KaroNeun}, {Dolle}, {Dolle, KaroNeun}, {KaroKoenig}},
         {KaroNeun, Dolle}, [](Situation& s) { s.glaubt(3, 2, ParteiRe); }, {"Trumpf_bedienen:DH044"}, Dolle,
         zweiteDolleSchlaegt},
        // Hinterhand known without trump while the others still hold Damen and a Dolle.
        {"Feind hält, HH ohne Trumpf, nur Damen auf der Hand", {{KaroNeun, Dolle}, {KreuzDame}, {PikDame, HerzDame}, {PikNeun}},
         {KaroNeun, KreuzDame}, [](Situation& s) { s.ohneTrumpf(4); }, {"Trumpf_bedienen:DH0176"}, HerzDame},
        // The Fuchs would be the only card to beat the opponent and Hinterhand could still catch it.
        {"nur der Fuchs schlägt den Feind, HH kann ihn fangen", {{KaroZehn}, {KaroNeun}, {KaroAs, KaroNeun}, {PikDame}},
         {KaroZehn, KaroNeun}, [](Situation& s) { s.glaubt(3, 1, ParteiRe); }, {"Trumpf_bedienen:DH0066"}, KaroNeun},
        // Both Füchse and no other trump, with the trick's party unknown.
        {"nur die beiden Füchse gegen eine Dame", {{KaroNeun}, {PikDame}, {KaroAs, KaroAs}, {KreuzDame}},
         {KaroNeun, PikDame}, nullptr, {"Trumpf_bedienen:DH0184"}, KaroAs},
        // The soloist leads trump, my partner in Zweithand takes it with the trump Zehn, and I
        // hold the trump As above it (a Karo-Solo of seat 1).
        {"gegen den Solisten mit dem Trumpf-As über dem Stich des Partners", {{KaroNeun}, {KaroZehn}, {KaroKoenig}, {KaroAs, KaroAs}},
         {KaroNeun, KaroZehn, KaroKoenig}, soloVon(1), {"Trumpf_bedienen:HH02"}, KaroAs},
        // In the first round so few Kreuz are out that a seat behind may ruff, yet none is known void.
        {"As des Feindes, nur eine Kreuz noch draußen: klein stechen", {{KreuzAs}, {KaroNeun, KaroKoenig, PikNeun}, {KreuzNeun},
                                                                        {PikDame, HerzNeun}},
         {KreuzAs}, [](Situation& s) { s.glaubt(2, 1, ParteiRe); }, {"stechen_oder_abwerfen:ZH14"}, KaroNeun},
        {"As des Feindes(?), nur eine Kreuz noch draußen: klein stechen", {{KreuzAs}, {KaroNeun, KaroKoenig, PikNeun}, {KreuzNeun},
                                                                           {PikDame, HerzNeun}},
         {KreuzAs}, nullptr, {"stechen_oder_abwerfen:ZH0054"}, KaroNeun},
        // A Hochzeit guest with only small trumps while the partner is still open.
        {"Hochzeitsgast mit kleinem Trumpf, den HH übersticht", {{KreuzAs}, {KaroNeun, PikNeun}, {KreuzKoenig, KreuzNeun},
                                                                  {PikDame, HerzNeun}},
         {KreuzAs}, [](Situation& s) { hochzeiterRe(s, 4); s.frei(4, engine::Kreuz); }, {"stechen_oder_abwerfen:ZH0580"},
         PikNeun, hochzeitVon(4)},
        {"Hochzeitsgast nur mit kleinen Trümpfen", {{KreuzAs}, {KaroNeun, KaroKoenig}, {KreuzKoenig}, {PikDame, KaroAs}},
         {KreuzAs}, nullptr, {"stechen_oder_abwerfen:ZH0581"}, KaroNeun, hochzeitVon(4)},
        // The announcer holding nothing but high trumps within the first three tricks.
        {"Hochzeiter in ZH nur mit Kreuz-Damen", {{KreuzAs}, {KreuzDame, KreuzDame}, {KreuzKoenig}, {KreuzNeun}},
         {KreuzAs}, [](Situation& s) { s.partei(2, ParteiRe); }, {"stechen_oder_abwerfen:ZH585"}, KreuzDame, hochzeitVon(2)},
        {"Hochzeiter in DH nur mit kleinen Trümpfen", {{KreuzAs}, {KreuzKoenig}, {KaroNeun, KaroKoenig}, {KreuzNeun}},
         {KreuzAs, KreuzKoenig}, [](Situation& s) { s.partei(3, ParteiRe); }, {"stechen_oder_abwerfen:DH152"}, KaroNeun, hochzeitVon(3)},
        {"Hochzeiter in DH nur mit hohen Damen", {{KreuzAs}, {KreuzKoenig}, {KreuzDame, PikDame}, {KreuzNeun}},
         {KreuzAs, KreuzKoenig}, nullptr, {"stechen_oder_abwerfen:DH161"}, PikDame, hochzeitVon(3)},
        {"Hochzeiter in HH nur mit Trumpf", {{KreuzAs}, {KreuzKoenig}, {KreuzNeun}, {KreuzDame, KaroNeun}},
         {KreuzAs, KreuzKoenig, KreuzNeun}, [](Situation& s) { s.partei(4, ParteiRe); }, {"stechen_oder_abwerfen:HH25"},
         KaroNeun, hochzeitVon(4)},
        // Against a soloist whose only trumps left are the Dollen (a Karo-Solo of seat 1).
        {"As des Solisten, nur die Dolle als Trumpf", {{PikAs}, {Dolle, HerzNeun}, {PikNeun}, {PikKoenig}}, {PikAs},
         soloVon(1), {"stechen_oder_abwerfen:ZH786"}, Dolle},
        {"Zehn des Solisten, nur die Dolle als Trumpf", {{PikZehn}, {Dolle, HerzNeun}, {PikNeun}, {PikKoenig}}, {PikZehn},
         soloVon(1), {"stechen_oder_abwerfen:ZH899"}, HerzNeun},
        {"Zehn des Solisten, nur die Dollen", {{PikZehn}, {Dolle, Dolle}, {PikNeun}, {PikKoenig}}, {PikZehn}, soloVon(1),
         {"stechen_oder_abwerfen:ZH902"}, Dolle},
        {"magerer Stich des Solisten, ein kleiner Trumpf und nur ein As daneben", {{PikKoenig}, {KaroNeun, HerzAs},
                                                                                    {PikNeun}, {PikNeun}},
         {PikKoenig}, soloVon(1), {"stechen_oder_abwerfen:ZH999"}, KaroNeun},
        // The soloist himself seldom keeps a lone small card of a side suit.
        {"Solist in DH überstochen, wirft die blanke Karte", {{KreuzKoenig}, {KreuzDame}, {KaroNeun, PikNeun, HerzKoenig, HerzNeun},
                                                          {KreuzNeun}},
         {KreuzKoenig, KreuzDame}, soloVon(3), {"stechen_oder_abwerfen:DH163"}, PikNeun},
        // The soloist in Hinterhand, void and short of trumps below my trump Zehn.
        {"Partner hält, Solist in HH blank, meine Trumpf-Zehn hält", {{KreuzAs}, {KreuzNeun}, {KaroZehn, PikNeun},
                                                                       {KaroKoenig, KaroNeun}},
         {KreuzAs, KreuzNeun}, [](Situation& s) { s.solo(4); s.frei(4, engine::Kreuz); },
         {"stechen_oder_abwerfen:DH469"}, KaroZehn},
    };
    for (const Fall& f : faelle) testhilfe::pruefen(f);
}

// Farbe_bedienen and Trumpf_bedienen: constructed tricks, the rule that fires and the card.
#include <gtest/gtest.h>

#include <functional>

#include "Fall.h"
#include "Karten.h"

using namespace karten;
using engine::ParteiKontra;
using engine::ParteiRe;
using testhilfe::Fall;
using testhilfe::Situation;
using testhilfe::pruefen;

namespace {

void hochzeitVon(Situation& s, int sitz, int art) {
    s.spiel.hochzeiter = engine::Sitz(sitz);
    s.spiel.hochzeitArt = art;
}

}  // namespace

TEST(FarbeBedienen, DritthandUndHinterhand) {
    const auto hochzeit1 = [](Situation& s) { hochzeitVon(s, 1, engine::ErsterFehlstich); };
    const Fall faelle[] = {
        {"Stich des Feindes mit der Höchsten nehmen", {{KreuzZehn}, {KreuzNeun}, {KreuzAs, KreuzKoenig}, {KreuzKoenig}},
         {KreuzZehn, KreuzNeun}, nullptr, {"Farbe_bedienen:DH0150"}, KreuzAs},
        {"Hinterhand hat die Farbe nicht mehr", {{KreuzZehn}, {KreuzNeun}, {KreuzAs, KreuzKoenig}, {KaroNeun, PikAs}},
         {KreuzZehn, KreuzNeun}, [](Situation& s) { s.frei(4, engine::Kreuz); }, {"Farbe_bedienen:DH0160"}, KreuzKoenig},
        {"die Höchste sitzt noch draußen", {{KreuzZehn}, {KreuzNeun}, {KreuzKoenig, KreuzNeun}, {KreuzAs}},
         {KreuzZehn, KreuzNeun}, nullptr, {"Farbe_bedienen:DH0247"}, KreuzNeun},
        {"Feind hat gestochen", {{KreuzZehn}, {KaroNeun}, {KreuzAs, KreuzNeun}, {KreuzKoenig}}, {KreuzZehn, KaroNeun},
         nullptr, {"Farbe_bedienen:DH0248"}, KreuzNeun},
        {"Stich des Feindes gerade so nehmen", {{KreuzKoenig}, {KreuzNeun}, {KreuzNeun}, {KreuzAs, KreuzZehn, KreuzNeun}},
         {KreuzKoenig, KreuzNeun, KreuzNeun}, nullptr, {"Farbe_bedienen:HH14"}, KreuzZehn},
        {"Hochzeit: so hoch wie möglich nehmen und heiraten", {{KreuzKoenig}, {KreuzNeun}, {KreuzNeun}, {KreuzAs, KreuzZehn}},
         {KreuzKoenig, KreuzNeun, KreuzNeun}, nullptr, {"Farbe_bedienen:HH03"}, KreuzAs, hochzeit1},
        {"Hochzeit: kann nicht nehmen", {{KreuzAs}, {KreuzNeun}, {KreuzNeun}, {KreuzKoenig, KreuzZehn}},
         {KreuzAs, KreuzNeun, KreuzNeun}, nullptr, {"Farbe_bedienen:HH07"}, KreuzKoenig, hochzeit1},
        {"Hochzeit: gestochen", {{KreuzKoenig}, {KaroNeun}, {KreuzNeun}, {KreuzAs, KreuzZehn}}, {KreuzKoenig, KaroNeun, KreuzNeun},
         nullptr, {"Farbe_bedienen:HH08"}, KreuzZehn, hochzeit1},
        {"Hochzeiter gibt dem Wunschpartner eine Hohe", {{KreuzAs}, {KreuzNeun}, {KreuzNeun}, {KreuzZehn, KreuzKoenig}},
         {KreuzAs, KreuzNeun, KreuzNeun}, [](Situation& s) { s.partei(4, ParteiRe); }, {"Farbe_bedienen:HH02"}, KreuzZehn,
         [](Situation& s) { hochzeitVon(s, 4, engine::ErsterFehlstich); }},
    };
    for (const Fall& f : faelle) pruefen(f);
}

TEST(TrumpfBedienen, Hinterhand) {
    const auto hochzeit = [](int sitz) {
        return [sitz](Situation& s) { hochzeitVon(s, sitz, engine::ErsterTrumpfstich); };
    };
    const auto ichRe = [](Situation& s) { s.partei(4, ParteiRe); };
    const auto solo2 = [](Situation& s) { s.solo(2); };
    const Fall faelle[] = {
        {"Feind hält, nicht zu schlagen", {{Dolle}, {KaroNeun}, {KaroKoenig}, {KaroNeun, KaroAs}}, {Dolle, KaroNeun, KaroKoenig},
         nullptr, {"Trumpf_bedienen:HH018"}, KaroNeun},
        {"Fuchs opfern oder Dolle aufheben", {{Dolle}, {KaroNeun}, {KaroKoenig}, {KaroAs, Dolle}}, {Dolle, KaroNeun, KaroKoenig},
         nullptr, {"Trumpf_bedienen:HH017"}, Dolle},
        {"Feind hält: gerade so übernehmen", {{KaroDame}, {KaroNeun}, {KaroKoenig}, {KreuzDame, PikDame, KaroNeun}},
         {KaroDame, KaroNeun, KaroKoenig}, nullptr, {"Trumpf_bedienen:HH015"}, PikDame},
        {"Feind hält: mit dem Fuchs übernehmen", {{KaroKoenig}, {KaroNeun}, {KaroNeun}, {KaroAs, KaroZehn, PikDame}},
         {KaroKoenig, KaroNeun, KaroNeun}, nullptr, {"Trumpf_bedienen:HH06"}, KaroAs},
        {"Partei hält: werthöchsten Trumpf dazu", {{PikDame}, {KaroNeun}, {KaroKoenig}, {KaroZehn, KaroNeun, PikDame}},
         {PikDame, KaroNeun, KaroKoenig}, [](Situation& s) { s.glaubt(4, 1, ParteiKontra); }, {"Trumpf_bedienen:HH01"},
         KaroZehn},
        {"Hochzeiter kann nicht übernehmen: Mitgift", {{Dolle}, {KaroNeun}, {KaroKoenig}, {KaroAs, KaroNeun}},
         {Dolle, KaroNeun, KaroKoenig}, ichRe, {"Trumpf_bedienen:HH016"}, KaroAs, hochzeit(4)},
        {"Hochzeiter könnte übernehmen, gibt aber Mitgift", {{KaroDame}, {KaroNeun}, {KaroKoenig}, {KaroZehn, KaroNeun, PikDame}},
         {KaroDame, KaroNeun, KaroKoenig}, ichRe, {"Trumpf_bedienen:HH07"}, KaroZehn, hochzeit(4)},
        {"übernehmen um zu heiraten", {{KaroDame}, {KaroNeun}, {KaroKoenig}, {KreuzBube, PikDame}},
         {KaroDame, KaroNeun, KaroKoenig}, nullptr, {"Trumpf_bedienen:HH08"}, PikDame, hochzeit(1)},
        // Against a soloist (seat 2) the partners mind who will sit last in the next trick.
        {"Partner hält, Solist kommt nicht in HH", {{PikDame}, {KaroNeun}, {KaroKoenig}, {KaroZehn, KaroNeun}},
         {PikDame, KaroNeun, KaroKoenig}, solo2, {"Trumpf_bedienen:HH05"}, KaroZehn},
        {"Partner hält, sonst käme der Solist in HH: übernehmen", {{KaroNeun}, {KaroKoenig}, {PikDame}, {KreuzDame, KaroNeun}},
         {KaroNeun, KaroKoenig, PikDame}, solo2, {"Trumpf_bedienen:HH03"}, KreuzDame},
        {"Partner hält, Solist käme in HH, kann nicht übernehmen", {{KaroNeun}, {KaroKoenig}, {PikDame}, {KaroZehn, KaroNeun}},
         {KaroNeun, KaroKoenig, PikDame}, solo2, {"Trumpf_bedienen:HH004"}, KaroZehn},
        {"Partner hält, mit dem werthöchsten übernehmen", {{KaroNeun}, {KaroKoenig}, {KaroZehn}, {KaroAs, PikDame}},
         {KaroNeun, KaroKoenig, KaroZehn}, solo2, {"Trumpf_bedienen:HH02"}, KaroAs},
    };
    for (const Fall& f : faelle) pruefen(f);
}

// Where no rule of the position speaks, the ALL rule plays a random card of the kind asked.
TEST(Bedienen, AllRegelSpieltZufaelligDieVerlangteArt) {
    for (int runde = 0; runde < 8; ++runde) {
        Situation s(engine::Normalspiel, {{KreuzAs}, {KreuzNeun, KreuzKoenig, KaroNeun}, {KreuzZehn}, {KreuzKoenig}});
        s.zufall = engine::SeedZufall(static_cast<std::uint64_t>(runde));
        s.nachStich({KreuzAs});
        const int karte = s.waehlt();
        EXPECT_TRUE(karte == KreuzNeun || karte == KreuzKoenig);
        EXPECT_EQ(s.ersteRegel(), "Farbe_bedienen:ALL");
    }
    Situation s(engine::Normalspiel, {{KaroNeun}, {KreuzNeun, KaroAs, PikDame}, {KaroZehn}, {KaroKoenig}});
    s.nachStich({KaroNeun});
    const int karte = s.waehlt();
    EXPECT_TRUE(karte == KaroAs || karte == PikDame);
    EXPECT_EQ(s.ersteRegel(), "Trumpf_bedienen:ALL");
}

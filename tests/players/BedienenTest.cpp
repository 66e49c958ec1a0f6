// Farbe_bedienen and Trumpf_bedienen: constructed tricks, the rule that fires and the card.
#include <gtest/gtest.h>

#include <functional>

#include "Fall.h"
#include "Karten.h"
#include "players/Texte.h"
#include "players/Verfahren.h"

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
// Observer k takes seat x for a partner (all seats start as Kontra) or for an opponent.
std::function<void(Situation&)> partner(int k, int x) {
    return [=](Situation& s) { s.glaubt(k, x, ParteiKontra); };
}
std::function<void(Situation&)> gegner(int k, int x) {
    return [=](Situation& s) { s.glaubt(k, x, ParteiRe); };
}

}  // namespace

// Zweithand: enough Kreuz is out for both seats behind to follow the first round.
TEST(FarbeBedienen, Zweithand) {
    const std::vector<int> drei{KreuzKoenig, KreuzKoenig, KreuzNeun}, vier{KreuzZehn, KreuzAs, KaroNeun};
    const Fall faelle[] = {
        {"Partner führt das As, beide hinter mir bedienen: die Zehn buttern", {{KreuzAs}, {KreuzZehn, KreuzNeun}, drei, vier},
         {KreuzAs}, partner(2, 1), {"Farbe_bedienen:ZH14"}, KreuzZehn},
        {"Partner führt das As, Hinterhand ist blank: nicht buttern", {{KreuzAs}, {KreuzZehn, KreuzNeun}, drei, vier},
         {KreuzAs}, [](Situation& s) { s.glaubt(2, 1, ParteiKontra); s.frei(4, engine::Kreuz); },
         {"Farbe_bedienen:ZH0017"}, KreuzNeun},
        {"Feind führt den König, mein As hält", {{KreuzKoenig}, {KreuzAs, KreuzNeun}, drei, {KreuzZehn, KreuzNeun}},
         {KreuzKoenig}, gegner(2, 1), {"Farbe_bedienen:ZH0022"}, KreuzAs},
        {"Feind führt das As, ich habe das andere", {{KreuzAs}, {KreuzAs, KreuzNeun}, drei, vier}, {KreuzAs},
         gegner(2, 1), {"Farbe_bedienen:ZH0028"}, KreuzNeun},
        {"Feind führt die Neun, Hinterhand ist blank: das As nicht opfern",
         {{KreuzNeun}, {KreuzAs, KreuzNeun}, drei, {KaroNeun, PikAs}}, {KreuzNeun},
         [](Situation& s) { s.glaubt(2, 1, ParteiRe); s.frei(4, engine::Kreuz); }, {"Farbe_bedienen:ZH0125"}, KreuzNeun},
    };
    for (const Fall& f : faelle) pruefen(f);
}

TEST(FarbeBedienen, DritthandUndHinterhand) {
    const auto hochzeit1 = [](Situation& s) { hochzeitVon(s, 1, engine::ErsterFehlstich); };
    const Fall faelle[] = {
        {"nur eine Karte schlägt den Feind, und sie hält", {{KreuzZehn}, {KreuzNeun}, {KreuzAs, KreuzKoenig}, {KreuzKoenig}},
         {KreuzZehn, KreuzNeun}, nullptr, {"Farbe_bedienen:DH0004"}, KreuzAs},
        {"Stich des Feindes so hoch wie möglich nehmen",
         {{KreuzKoenig}, {KreuzNeun}, {KreuzAs, KreuzZehn}, {KreuzNeun, KreuzKoenig, KreuzZehn}}, {KreuzKoenig, KreuzNeun},
         nullptr, {"Farbe_bedienen:DH0150"}, KreuzAs},
        {"Hinterhand hat die Farbe nicht mehr", {{KreuzZehn}, {KreuzNeun}, {KreuzAs, KreuzKoenig}, {KaroNeun, PikAs}},
         {KreuzZehn, KreuzNeun}, [](Situation& s) { s.frei(4, engine::Kreuz); }, {"Farbe_bedienen:DH0160"}, KreuzKoenig},
        {"Partner hält, Hinterhand muss bedienen: buttern",
         {{KreuzAs}, {KreuzNeun}, {KreuzZehn, KreuzNeun}, {KreuzKoenig, KreuzNeun, KreuzAs}}, {KreuzAs, KreuzNeun},
         partner(3, 1), {"Farbe_bedienen:DH0002"}, KreuzZehn},
        {"Partner hält, Feind in Hinterhand ist blank: nicht buttern",
         {{KreuzAs}, {KreuzNeun}, {KreuzZehn, KreuzNeun}, {KaroNeun, PikAs}}, {KreuzAs, KreuzNeun},
         [](Situation& s) { s.glaubt(3, 1, ParteiKontra); s.frei(4, engine::Kreuz); }, {"Farbe_bedienen:DH0160"},
         KreuzNeun},
        {"kann den Feind nicht schlagen", {{KreuzZehn}, {KreuzNeun}, {KreuzKoenig, KreuzNeun}, {KreuzAs}},
         {KreuzZehn, KreuzNeun}, nullptr, {"Farbe_bedienen:DH0003"}, KreuzNeun},
        {"Feind hat gestochen", {{KreuzZehn}, {KaroNeun}, {KreuzAs, KreuzNeun}, {KreuzKoenig}}, {KreuzZehn, KaroNeun},
         nullptr, {"Farbe_bedienen:DH0248"}, KreuzNeun},
        {"Hinterhand: Partner hält, die Zehn buttern", {{KreuzKoenig}, {KreuzNeun}, {KreuzNeun}, {KreuzZehn, KreuzNeun}},
         {KreuzKoenig, KreuzNeun, KreuzNeun}, partner(4, 1), {"Farbe_bedienen:DH0002"}, KreuzZehn},
        {"Hinterhand: Stich des Feindes gerade so nehmen",
         {{KreuzKoenig}, {KreuzNeun}, {KreuzNeun}, {KreuzAs, KreuzZehn, KreuzNeun}}, {KreuzKoenig, KreuzNeun, KreuzNeun},
         nullptr, {"Farbe_bedienen:HH14"}, KreuzZehn},
        {"Hinterhand: nur das As schlägt, also mit ihm", {{KreuzKoenig}, {KreuzNeun}, {KreuzNeun}, {KreuzAs, KreuzNeun}},
         {KreuzKoenig, KreuzNeun, KreuzNeun}, nullptr, {"Farbe_bedienen:DH0004"}, KreuzAs},
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

TEST(TrumpfBedienen, ZweithandUndDritthand) {
    const Fall faelle[] = {
        {"Zweithand: Partner führt die Dolle, der Fuchs kommt dazu", {{Dolle}, {KaroAs, KaroNeun}, {KaroKoenig}, {KaroZehn}},
         {Dolle}, partner(2, 1), {"Trumpf_bedienen:ZH035"}, KaroAs},
        {"Zweithand: Feind führt klein, die Dame hielte nicht: klein zugeben, Fuchs behalten",
         {{KaroKoenig}, {KaroAs, KaroNeun, PikDame}, {Dolle}, {KaroZehn}}, {KaroKoenig}, gegner(2, 1),
         {"Trumpf_bedienen:ZH062"}, KaroNeun},
        {"Zweithand: Fuchs des Feindes fangen", {{KaroAs}, {PikDame, KaroNeun}, {KaroNeun}, {KaroKoenig}}, {KaroAs},
         gegner(2, 1), {"Trumpf_bedienen:ZH048"}, PikDame},
        {"Zweithand: die Kreuz-Dame des Feindes mit der Dolle nehmen", {{KreuzDame}, {Dolle, KaroNeun}, {KaroKoenig}, {KaroNeun}},
         {KreuzDame}, nullptr, {"Trumpf_bedienen:ZH0054"}, Dolle},
        {"Dritthand: Stich der Partei ist sicher, Fuchs versetzen", {{KaroNeun}, {Dolle}, {KaroAs, KaroKoenig}, {KaroZehn}},
         {KaroNeun, Dolle}, partner(3, 2), {"Trumpf_bedienen:DH024"}, KaroAs},
        {"Dritthand: Feind in Hinterhand kann überstechen, kein Fuchs auf den Stich",
         {{KaroNeun}, {PikDame}, {KaroAs, KaroNeun}, {KreuzDame}}, {KaroNeun, PikDame},
         [](Situation& s) { s.glaubt(3, 2, ParteiKontra); s.glaubt(3, 4, ParteiRe); }, {"Trumpf_bedienen:DH035"}, KaroNeun},
    };
    for (const Fall& f : faelle) pruefen(f);
}

// "Second Dolle beats the first": Hinterhand may hold the other Dolle, so the Fuchs is
// caught with the Kreuz-Dame and the Dolle stays in the hand.
TEST(TrumpfBedienen, DolleNichtVorDerZweitenDolle) {
    Situation s(engine::Normalspiel, {{KaroAs}, {KaroNeun}, {Dolle, KreuzDame, KaroNeun}, {Dolle, KaroKoenig}});
    s.spiel.regeln.herzZehn = false;
    s.nachStich({KaroAs, KaroNeun});
    s.glaubt(3, 1, ParteiKontra);  // seat 3 holds a Kreuz-Dame: Re
    EXPECT_EQ(s.waehlt(), KreuzDame);
    EXPECT_EQ(s.regeln(), (std::vector<std::string>{"Filter:Dolle", "Trumpf_bedienen:DH042"}));
}

// A Re player covers the partner's Kreuz-Dame with the Dolle, so that Hinterhand cannot take
// it with the second one; the rule sets the first trick's random number to 9, and seat 2,
// which does not know its partner yet, now takes him for Kontra.
TEST(TrumpfBedienen, DolleUeberDerKreuzDameDesPartnersBlufft) {
    Situation s(engine::Normalspiel, {{KaroNeun}, {KreuzDame}, {KreuzDame, Dolle, KaroKoenig}, {Dolle, KaroNeun}});
    for (int code : {KaroNeun, KreuzDame}) s.beobachtet(code);
    s.wissenAufbauen();
    s.wissen.zufallszahl = 80;
    EXPECT_EQ(s.waehlt(), Dolle);
    EXPECT_EQ(s.regeln(), std::vector<std::string>{"Trumpf_bedienen:DH027"});
    EXPECT_EQ(s.wissen.zufallszahl, 9);
    s.beobachtet(Dolle);
    EXPECT_EQ(s.wissen.glaube(engine::Sitz(3), engine::Sitz(2)), ParteiKontra);
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
         {PikDame, KaroNeun, KaroKoenig}, partner(4, 1), {"Trumpf_bedienen:HH01"}, KaroZehn},
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
    };
    for (const Fall& f : faelle) pruefen(f);
}

// No position reaches the ALL rules any more (every position ends in a rule of its own);
// the rule itself plays a random legal card of the kind asked.
TEST(Bedienen, AllRegelSpieltZufaelligDieVerlangteArt) {
    for (int runde = 0; runde < 8; ++runde) {
        Situation s(engine::Normalspiel, {{KreuzAs}, {KreuzNeun, KreuzKoenig, KaroNeun}, {KreuzZehn}, {KreuzKoenig}});
        s.zufall = engine::SeedZufall(static_cast<std::uint64_t>(runde));
        s.nachStich({KreuzAs});
        const auto lage = s.lage();
        const players::Folge f(lage);
        const auto alle = players::farbeBedienenRegeln(1).back();
        EXPECT_EQ(alle.code, "ALL");
        const int karte = s.code(alle.wahl(f));
        EXPECT_TRUE(karte == KreuzNeun || karte == KreuzKoenig);
    }
    Situation s(engine::Normalspiel, {{KaroNeun}, {KreuzNeun, KaroAs, PikDame}, {KaroZehn}, {KaroKoenig}});
    s.nachStich({KaroNeun});
    const auto lage = s.lage();
    const players::Folge f(lage);
    const auto alle = players::trumpfBedienenRegeln(1).back();
    EXPECT_EQ(alle.text, players::text::TbALL);
    const int karte = s.code(alle.wahl(f));
    EXPECT_TRUE(karte == KaroAs || karte == PikDame);
}

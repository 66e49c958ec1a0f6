// stechen_oder_abwerfen in Hinterhand, the Zähler ruff, and the filters on a chosen card.
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

void freundHaelt(Situation& s) { s.glaubt(4, 1, ParteiKontra); }

}  // namespace

TEST(StechenOderAbwerfen, Hinterhand) {
    const std::vector<int> kreuz{KreuzAs}, neun{KreuzNeun}, koenig{KreuzKoenig};
    const Fall faelle[] = {
        {"ungestochener Stich des Gegners: kleiner Trumpf", {kreuz, neun, koenig, {KaroNeun, PikDame, PikNeun}},
         {KreuzAs, KreuzNeun, KreuzKoenig}, nullptr, {"stechen_oder_abwerfen:HH33"}, KaroNeun},
        {"Gegner sticht: gerade so überstechen", {kreuz, {KaroBube}, koenig, {KaroNeun, HerzBube, PikNeun}},
         {KreuzAs, KaroBube, KreuzKoenig}, nullptr, {"stechen_oder_abwerfen:HH36"}, HerzBube},
        {"Gegner sticht zu hoch: Kleinste", {kreuz, {PikDame}, koenig, {KaroNeun, PikNeun}},
         {KreuzAs, PikDame, KreuzKoenig}, nullptr, {"stechen_oder_abwerfen:HH38"}, PikNeun},
        {"Gegner sticht zu hoch, nur Trumpf", {kreuz, {PikDame}, koenig, {KaroKoenig, KaroNeun}},
         {KreuzAs, PikDame, KreuzKoenig}, nullptr, {"stechen_oder_abwerfen:HH39"}, KaroNeun},
        {"nur Zähler abzuwerfen auf 32 Augen: stechen", {kreuz, {KreuzZehn}, {KreuzAs}, {PikDame, PikZehn, HerzAs}},
         {KreuzAs, KreuzZehn, KreuzAs}, nullptr, {"stechen_oder_abwerfen:HH38", "Filter:Zaehlerstich"}, PikDame},
        {"nur Zähler abzuwerfen auf 25 Augen: abwerfen", {kreuz, {KreuzZehn}, koenig, {PikDame, PikZehn, HerzAs}},
         {KreuzAs, KreuzZehn, KreuzKoenig}, nullptr, {"stechen_oder_abwerfen:HH38"}, PikZehn},
        {"Partei hält, mein einziger Trumpf ist der höchste", {kreuz, neun, koenig, {Dolle, PikAs, PikNeun}},
         {KreuzAs, KreuzNeun, KreuzKoenig}, freundHaelt, {"stechen_oder_abwerfen:HH10"}, PikAs},
        {"Partei hält, nur Trumpf, der höchste bleibt", {kreuz, neun, koenig, {Dolle, KaroNeun}},
         {KreuzAs, KreuzNeun, KreuzKoenig}, freundHaelt, {"stechen_oder_abwerfen:HH11"}, KaroNeun},
        {"Partei hält, Fuchs versetzen", {kreuz, neun, koenig, {KaroAs, KaroNeun, PikAs}},
         {KreuzAs, KreuzNeun, KreuzKoenig}, freundHaelt, {"stechen_oder_abwerfen:HH17"}, KaroAs},
        {"Partei hält, letzter Trumpf bleibt", {kreuz, {KreuzNeun, PikDame}, {PikDame}, {KaroNeun, PikAs, PikNeun}},
         {KreuzAs, KreuzNeun, PikDame}, [](Situation& s) { s.glaubt(4, 3, ParteiKontra); },
         {"stechen_oder_abwerfen:HH07"}, PikAs},
        {"Partei hält: buttern", {kreuz, neun, koenig, {KaroNeun, KaroKoenig, PikAs}}, {KreuzAs, KreuzNeun, KreuzKoenig},
         freundHaelt, {"stechen_oder_abwerfen:HH01"}, PikAs},
        {"Partei hält, nur Trumpf: praktisch wertlosen", {kreuz, neun, {PikDame, KreuzKoenig}, {KaroKoenig, KaroNeun}},
         {KreuzAs, KreuzNeun, KreuzKoenig}, freundHaelt, {"stechen_oder_abwerfen:HH04"}, KaroNeun},
        {"Partei hält, letzte Karte", {kreuz, neun, {PikDame, KreuzKoenig}, {KaroNeun}},
         {KreuzAs, KreuzNeun, KreuzKoenig}, freundHaelt, {"stechen_oder_abwerfen:HH08"}, KaroNeun},
    };
    for (const Fall& f : faelle) {
        Situation s(engine::Normalspiel, f.haende);
        for (int code : f.stich) s.spielt(code);
        s.wissenAufbauen();
        if (f.wissen) f.wissen(s);
        EXPECT_EQ(s.waehlt(), f.karte) << f.name;
        EXPECT_EQ(s.regeln(), f.regeln) << f.name;
    }
}

// The Hochzeit announcer gives the seat he wants as partner a high card instead of trumping.
TEST(StechenOderAbwerfen, HochzeiterGibtMitgift) {
    struct Zeile { std::vector<int> hand; const char* regel; int karte; };
    const Zeile zeilen[] = {
        {{KaroNeun, PikAs, PikNeun}, "stechen_oder_abwerfen:HH24", PikAs},
        {{KaroNeun, PikDame}, "stechen_oder_abwerfen:HH25", KaroNeun},
    };
    for (const Zeile& z : zeilen) {
        Situation s(engine::Normalspiel, {{KreuzAs}, {KaroDame}, {KreuzKoenig}, z.hand});
        s.spiel.hochzeiter = engine::Sitz(4);
        s.spiel.hochzeitArt = engine::ErsterFehlstich;
        for (int code : {KreuzAs, KaroDame, KreuzKoenig}) s.spielt(code);
        s.wissenAufbauen();
        s.partei(4, ParteiRe);
        EXPECT_EQ(s.waehlt(), z.karte) << z.regel;
        EXPECT_EQ(s.ersteRegel(), z.regel);
    }
}

// With "second Dolle beats the first", a Dolle kept for the last trick would have to
// lead it and lose: with two cards left it takes this trick instead.
TEST(StechenOderAbwerfen, DolleNichtFuerDenLetztenStichAufheben) {
    Situation s(engine::Normalspiel, {{KreuzAs, Dolle}, {KaroBube}, {KreuzKoenig}, {HerzBube, Dolle}});
    s.spiel.regeln.herzZehn = false;
    for (int code : {KreuzAs, KaroBube, KreuzKoenig}) s.spielt(code);
    s.wissenAufbauen();
    EXPECT_EQ(s.waehlt(), Dolle);
    // The replacement reports from inside the rule's choice, before the rule itself.
    EXPECT_EQ(s.regeln(), (std::vector<std::string>{"Filter:Dolle", "stechen_oder_abwerfen:HH36"}));
    EXPECT_TRUE(s.zeigte(std::string(players::text::UebernehmeStatt) + "1" + std::string(players::text::DolleNichtImLetzten)));
}

TEST(StechenOderAbwerfen, HerzNichtStechenSondernAbgeworfeneFarbe) {
    Situation s(engine::Normalspiel, {{HerzNeun}, {HerzNeun}, {HerzKoenig}, {KaroNeun, PikKoenig, PikAs}});
    for (int code : {HerzNeun, HerzNeun, HerzKoenig}) s.spielt(code);
    s.wissenAufbauen();
    s.wissen.abwurfZaehler[engine::Sitz(4)][engine::Pik] = 1;
    EXPECT_EQ(s.waehlt(), PikKoenig);
    EXPECT_EQ(s.regeln(), (std::vector<std::string>{"stechen_oder_abwerfen:HH33", "Filter:Herz"}));
}

TEST(Filter, Freispielen) {
    // Hinterhand discards onto the partner's trick; a lone Pik-König frees Pik.
    Situation s(engine::Normalspiel, {{KreuzAs}, {KreuzNeun}, {KreuzKoenig}, {KaroNeun, PikKoenig, HerzKoenig, HerzNeun}});
    for (int code : {KreuzAs, KreuzNeun, KreuzKoenig}) s.spielt(code);
    s.wissenAufbauen();
    const auto lage = s.lage();
    EXPECT_EQ(s.spiel.deck[players::freispielenFilter(lage, s.position(4, HerzKoenig))].code, PikKoenig);
    EXPECT_EQ(s.spiel.deck[players::freispielenFilter(lage, s.position(4, HerzNeun))].code, HerzNeun);
    EXPECT_EQ(s.spiel.deck[players::freispielenFilter(lage, s.position(4, KaroNeun))].code, KaroNeun);
}

// Filters asked directly for a seat in Dritthand, with Hinterhand still to play.
TEST(Filter, DolleUndNageln) {
    {
        // Second Dolle beats the first and may sit with the opponent behind: take with the Dame.
        Situation s(engine::Normalspiel, {{KaroBube}, {KaroNeun}, {Dolle, PikDame}, {Dolle, KaroKoenig}});
        s.spiel.regeln.herzZehn = false;
        s.spielt(KaroBube);
        s.spielt(KaroNeun);
        s.wissenAufbauen();
        const auto lage = s.lage();
        EXPECT_EQ(s.spiel.deck[players::dolleBeimUebernehmen(lage, s.position(3, Dolle))].code, PikDame);
        EXPECT_TRUE(s.zeigte(std::string(players::text::UebernehmeStatt) + "1" + std::string(players::text::KarteNunmehrMit) +
                             "2" + std::string(players::text::DolleNichtAnNachfolgenden)));
    }
    {
        // The Pik-Dame could still be beaten by the Kreuz-Dame behind; the Dolle nails the Fuchs trick.
        Situation s(engine::Normalspiel, {{KaroAs}, {KaroNeun}, {PikDame, Dolle}, {KreuzDame, KaroKoenig}});
        s.spielt(KaroAs);
        s.spielt(KaroNeun);
        s.wissenAufbauen();
        const auto lage = s.lage();
        EXPECT_EQ(s.spiel.deck[players::dolleNagelnFilter(lage, s.position(3, PikDame))].code, Dolle);
        EXPECT_TRUE(s.zeigte(std::string(players::text::NageleStatt) + "1" + std::string(players::text::KarteNunmehrMit) +
                             "2" + std::string(players::text::KarteEnde)));
    }
}

TEST(Filter, FuchsKarlchenDolle) {
    {
        // A Dolle that takes the trick stays.
        Situation s(engine::Normalspiel, {{KaroBube}, {KreuzDame}, {Dolle, KreuzBube}, {KaroKoenig}});
        s.spiel.regeln.herzZehn = false;
        s.spielt(KaroBube);
        s.spielt(KreuzDame);
        s.wissenAufbauen();
        s.ohneTrumpf(4);
        const auto lage = s.lage();
        // The Dolle wins here (second beats first does not apply to a Kreuz-Dame), so no change.
        EXPECT_EQ(s.spiel.deck[players::fuchsKarlchenDolleFilter(lage, s.position(3, Dolle))].code, Dolle);
    }
    {
        Situation s(engine::Normalspiel, {{KaroBube}, {Dolle}, {Dolle, KreuzBube}, {KaroKoenig}});
        s.spielt(KaroBube);
        s.spielt(Dolle);
        s.wissenAufbauen();
        const auto lage = s.lage();
        EXPECT_EQ(s.spiel.deck[players::fuchsKarlchenDolleFilter(lage, s.position(3, Dolle))].code, KreuzBube);
        EXPECT_TRUE(s.zeigte(players::text::KarlchenStattDolle));
    }
    {
        // A Dame that only loses: spare it for a small trump.
        Situation s(engine::Normalspiel, {{KaroBube}, {KreuzDame}, {PikDame, KaroNeun}, {KaroKoenig}});
        s.spielt(KaroBube);
        s.spielt(KreuzDame);
        s.wissenAufbauen();
        const auto lage = s.lage();
        EXPECT_EQ(s.spiel.deck[players::fuchsKarlchenDolleFilter(lage, s.position(3, PikDame))].code, KaroNeun);
        EXPECT_TRUE(s.zeigte(players::text::FigurAuchNicht));
    }
}

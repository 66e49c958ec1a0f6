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
void ichRe(Situation& s) { s.partei(4, ParteiRe); }
void hochzeiter4(Situation& s) {
    s.spiel.hochzeiter = engine::Sitz(4);
    s.spiel.hochzeitArt = engine::ErsterFehlstich;
}

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
        {"Gegner sticht hoch: Karo-Neun statt des Asses", {kreuz, {PikDame}, koenig, {KaroNeun, PikAs, HerzAs}},
         {KreuzAs, PikDame, KreuzKoenig}, nullptr, {"stechen_oder_abwerfen:HH38"}, KaroNeun},
        {"ungestochener Stich, nur eine Dame: mit ihr stechen", {kreuz, {KreuzZehn}, koenig, {PikDame, PikZehn, HerzAs}},
         {KreuzAs, KreuzZehn, KreuzKoenig}, nullptr, {"stechen_oder_abwerfen:HH33"}, PikDame},
        // With the Dolle as the only trump the trick is left, unless only Zähler could go.
        {"nur die Dolle und Zähler, 32 Augen: stechen", {kreuz, {KreuzZehn}, {KreuzAs}, {Dolle, PikZehn, HerzAs}},
         {KreuzAs, KreuzZehn, KreuzAs}, nullptr, {"stechen_oder_abwerfen:HH38", "Filter:Zaehlerstich"}, Dolle},
        {"nur die Dolle und Zähler, 25 Augen: abwerfen", {kreuz, {KreuzZehn}, koenig, {Dolle, PikZehn, HerzAs}},
         {KreuzAs, KreuzZehn, KreuzKoenig}, nullptr, {"stechen_oder_abwerfen:HH38"}, PikZehn},
        {"Partei hält, mein einziger Trumpf ist der höchste", {kreuz, neun, koenig, {Dolle, PikAs, PikNeun}},
         {KreuzAs, KreuzNeun, KreuzKoenig}, freundHaelt, {"stechen_oder_abwerfen:HH10"}, PikAs},
        {"Partei hält, nur Trumpf, der höchste bleibt", {kreuz, neun, koenig, {Dolle, KaroNeun}},
         {KreuzAs, KreuzNeun, KreuzKoenig}, freundHaelt, {"stechen_oder_abwerfen:HH11"}, KaroNeun},
        // HH11 speaks of keeping the highest, not of the Fuchs: that goes onto the sure trick.
        {"Partei hält, nur Trumpf mit Fuchs: Fuchs statt Karo-Neun", {kreuz, neun, {KreuzKoenig, KaroKoenig}, {Dolle, KaroAs, KaroNeun}},
         {KreuzAs, KreuzNeun, KreuzKoenig}, freundHaelt, {"stechen_oder_abwerfen:HH17"}, KaroAs},
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
        // The Hochzeit announcer gives the seat he wants as partner a high card instead of trumping.
        {"Hochzeiter gibt Mitgift", {kreuz, {KaroDame}, koenig, {KaroNeun, PikAs, PikNeun}},
         {KreuzAs, KaroDame, KreuzKoenig}, ichRe, {"stechen_oder_abwerfen:HH24"}, PikAs, hochzeiter4},
        {"Hochzeiter ohne Mitgift", {kreuz, {KaroDame}, koenig, {KaroNeun, PikDame}}, {KreuzAs, KaroDame, KreuzKoenig},
         ichRe, {"stechen_oder_abwerfen:HH25"}, KaroNeun, hochzeiter4},
        // A Herz trick is not ruffed; the discard comes from the suit thrown before.
        {"Herz nicht stechen", {{HerzNeun}, {HerzNeun}, {HerzKoenig}, {KaroNeun, PikKoenig, PikAs}},
         {HerzNeun, HerzNeun, HerzKoenig}, [](Situation& s) { s.wissen.abwurfZaehler[engine::Sitz(4)][engine::Pik] = 1; },
         {"stechen_oder_abwerfen:HH33", "Filter:Herz"}, PikKoenig},
    };
    for (const Fall& f : faelle) pruefen(f);
}

// Zweithand and Dritthand: Kreuz led, the seat on turn holds none. Enough Kreuz is out
// for the seats behind to follow unless the knowledge says otherwise.
TEST(StechenOderAbwerfen, ZweithandUndDritthand) {
    const std::vector<int> drei{KreuzKoenig, KreuzKoenig, KreuzNeun}, vier{KreuzZehn, KreuzZehn, KreuzNeun, KaroDame};
    const auto feind = [](int k, int x) { return [=](Situation& s) { s.glaubt(k, x, ParteiRe); }; };
    const Fall faelle[] = {
        {"Zweithand: As des Feindes, beide bedienen: mit kleinem Trumpf stechen",
         {{KreuzAs}, {KaroNeun, PikDame, PikNeun}, drei, vier}, {KreuzAs}, feind(2, 1),
         {"stechen_oder_abwerfen:ZH0007"}, KaroNeun},
        {"Zweithand: As des Feindes, Hinterhand ist blank: mit der Dame hoch genug",
         {{KreuzAs}, {KaroNeun, PikDame, PikNeun}, drei, {KaroDame, HerzNeun}}, {KreuzAs},
         [](Situation& s) { s.glaubt(2, 1, ParteiRe); s.frei(4, engine::Kreuz); }, {"stechen_oder_abwerfen:ZH0008"},
         PikDame},
        {"Zweithand: Neun des Feindes: nicht stechen, die blanke Pik-Neun weg", {{KreuzNeun}, {PikDame, PikNeun, HerzKoenig}, drei, vier},
         {KreuzNeun}, feind(2, 1), {"stechen_oder_abwerfen:ZH031"}, PikNeun},
        {"Zweithand: As des Partners, beide bedienen: nicht stechen, Zähler buttern",
         {{KreuzAs}, {KaroNeun, PikZehn, PikNeun}, drei, vier}, {KreuzAs},
         [](Situation& s) { s.glaubt(2, 1, ParteiKontra); }, {"stechen_oder_abwerfen:ZH255"}, PikZehn},
        {"Dritthand: Feind sticht, billig überstechen, HH muss bedienen",
         {{KreuzAs}, {KaroBube}, {HerzBube, PikNeun}, {KreuzNeun, KreuzZehn}}, {KreuzAs, KaroBube}, feind(3, 2),
         {"stechen_oder_abwerfen:DH38"}, HerzBube},
        {"Dritthand: Partner sticht, HH muss bedienen: Zähler buttern",
         {{KreuzAs}, {KaroBube}, {HerzBube, PikZehn}, {KreuzNeun, KreuzZehn}}, {KreuzAs, KaroBube},
         [](Situation& s) { s.glaubt(3, 2, ParteiKontra); }, {"stechen_oder_abwerfen:DH106"}, PikZehn},
        {"Dritthand: Partner hält sicher, Fuchs versetzen", {{KreuzAs}, {KreuzNeun}, {KaroAs, PikNeun}, {KreuzNeun, KreuzZehn}},
         {KreuzAs, KreuzNeun}, [](Situation& s) { s.glaubt(3, 1, ParteiKontra); }, {"stechen_oder_abwerfen:DH91"}, KaroAs},
        {"Dritthand: Partner hält, Feind in HH ist blank: nicht buttern",
         {{KreuzAs}, {KreuzNeun}, {PikAs, PikNeun, KaroNeun}, {KaroDame, HerzNeun}}, {KreuzAs, KreuzNeun},
         [](Situation& s) { s.glaubt(3, 1, ParteiKontra); s.frei(4, engine::Kreuz); }, {"stechen_oder_abwerfen:DH101"},
         PikNeun},
    };
    for (const Fall& f : faelle) pruefen(f);
}

// The preparation ranks a Kreuz-Bube right below an own Karo-Dame as that Dame: the ruff
// spends the Dame and the Karlchen stays for the last trick.
TEST(StechenOderAbwerfen, VorbereitungSchontDasKarlchen) {
    Situation s(engine::Normalspiel, {{KreuzAs}, {KreuzBube, KaroDame, PikNeun}, {KreuzKoenig, KreuzKoenig, KreuzNeun},
                                      {KreuzZehn, KreuzZehn, KreuzNeun}});
    s.nachStich({KreuzAs});
    s.glaubt(2, 1, ParteiRe);
    EXPECT_EQ(s.waehlt(), KaroDame);
}

// With "second Dolle beats the first", a Dolle kept for the last trick would have to
// lead it and lose: with two cards left it takes this trick instead.
TEST(StechenOderAbwerfen, DolleNichtFuerDenLetztenStichAufheben) {
    Situation s(engine::Normalspiel, {{KreuzAs, Dolle}, {KaroBube}, {KreuzKoenig}, {HerzBube, Dolle}});
    s.spiel.regeln.herzZehn = false;
    s.nachStich({KreuzAs, KaroBube, KreuzKoenig});
    EXPECT_EQ(s.waehlt(), Dolle);
    // The replacement reports from inside the rule's choice, before the rule itself.
    EXPECT_EQ(s.regeln(), (std::vector<std::string>{"Filter:Dolle", "stechen_oder_abwerfen:HH36"}));
    EXPECT_TRUE(s.zeigte(std::string(players::text::UebernehmeStatt) + "1" + std::string(players::text::DolleNichtImLetzten)));
}

// The filters asked directly about the card a rule chose, with the cards after it still to come.
TEST(Filter, ErsetzenDieGewaehlteKarte) {
    using players::text::KarteNunmehrMit, players::text::UebernehmeStatt;
    using Filter = int (*)(const players::Lage&, int);
    struct Zeile {
        const char* name;
        Filter filter;
        std::vector<std::vector<int>> haende;
        std::initializer_list<int> stich;
        bool ersteDolleHoch;
        int gewaehlt, karte;
        std::string meldung;  // "" for none
        bool hhOhneTrumpf = false;
    };
    const std::string dolleNicht = std::string(UebernehmeStatt) + "1" + std::string(KarteNunmehrMit) + "2" +
                                   std::string(players::text::DolleNichtAnNachfolgenden);
    const std::string nageln = std::string(players::text::NageleStatt) + "1" + std::string(KarteNunmehrMit) + "2" +
                               std::string(players::text::KarteEnde);
    const std::vector<int> hh{KaroNeun, PikKoenig, HerzKoenig, HerzNeun};
    const Zeile zeilen[] = {
        // Hinterhand discards onto the partner's trick; a lone Pik-König frees Pik.
        {"Herz-König frei", players::freispielenFilter, {{KreuzAs}, {KreuzNeun}, {KreuzKoenig}, hh},
         {KreuzAs, KreuzNeun, KreuzKoenig}, true, HerzKoenig, PikKoenig, ""},
        {"Herz-Neun bleibt", players::freispielenFilter, {{KreuzAs}, {KreuzNeun}, {KreuzKoenig}, hh},
         {KreuzAs, KreuzNeun, KreuzKoenig}, true, HerzNeun, HerzNeun, ""},
        {"Trumpf bleibt", players::freispielenFilter, {{KreuzAs}, {KreuzNeun}, {KreuzKoenig}, hh},
         {KreuzAs, KreuzNeun, KreuzKoenig}, true, KaroNeun, KaroNeun, ""},
        // The second Dolle beats the first and may sit behind: take with the Dame.
        {"Dolle beim Übernehmen", players::dolleBeimUebernehmen,
         {{KaroBube}, {KaroNeun}, {Dolle, PikDame}, {Dolle, KaroKoenig}}, {KaroBube, KaroNeun}, false, Dolle, PikDame,
         dolleNicht},
        // The Kreuz-Dame behind could beat the Pik-Dame; the Dolle nails the Fuchs trick.
        {"Dolle nageln", players::dolleNagelnFilter, {{KaroAs}, {KaroNeun}, {PikDame, Dolle}, {KreuzDame, KaroKoenig}},
         {KaroAs, KaroNeun}, true, PikDame, Dolle, nageln},
        // Second beats first does not apply to a Kreuz-Dame: the Dolle takes the trick and stays.
        {"Dolle nimmt", players::fuchsKarlchenDolleFilter, {{KaroBube}, {KreuzDame}, {Dolle, KreuzBube}, {KaroKoenig}},
         {KaroBube, KreuzDame}, false, Dolle, Dolle, "", true},
        {"Karlchen statt Dolle", players::fuchsKarlchenDolleFilter, {{KaroBube}, {Dolle}, {Dolle, KreuzBube}, {KaroKoenig}},
         {KaroBube, Dolle}, true, Dolle, KreuzBube, std::string(players::text::KarlchenStattDolle)},
        {"Dame, die nur verliert", players::fuchsKarlchenDolleFilter,
         {{KaroBube}, {KreuzDame}, {PikDame, KaroNeun}, {KaroKoenig}}, {KaroBube, KreuzDame}, true, PikDame, KaroNeun,
         std::string(players::text::FigurAuchNicht)},
    };
    for (const Zeile& z : zeilen) {
        Situation s(engine::Normalspiel, z.haende);
        s.spiel.regeln.herzZehn = z.ersteDolleHoch;
        s.nachStich(z.stich);
        if (z.hhOhneTrumpf) s.ohneTrumpf(4);
        const auto lage = s.lage();
        const int sitz = s.spiel.stich.amZug().nr();
        EXPECT_EQ(s.code(z.filter(lage, s.position(sitz, z.gewaehlt))), z.karte) << z.name;
        if (!z.meldung.empty()) {
            EXPECT_TRUE(s.zeigte(z.meldung)) << z.name;
        }
    }
}

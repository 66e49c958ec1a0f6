// The table's knowledge: what each observer learns from cards and tricks, the bluff,
// the random number's draws, the party indicator.
#include <gtest/gtest.h>

#include "Karten.h"
#include "Situation.h"
#include "Testtisch.h"
#include "players/Regelwerk.h"
#include "players/Texte.h"

using namespace karten;
using engine::ParteiKontra;
using engine::ParteiRe;
using engine::ParteiUnbekannt;
using engine::Sitz;
using testhilfe::Situation;

namespace {

int glaube(const Situation& s, int ueber, int beobachter) { return s.wissen.glaube(Sitz(ueber), Sitz(beobachter)); }

// Plays one trick from seat 1 on and evaluates it.
void stich(Situation& s, std::initializer_list<int> codes) {
    for (int code : codes) s.beobachtet(code);
    s.stichFertig();
}

}  // namespace

// A Re player who takes a Kreuz-Dame with the Dolle looks like Kontra, but only to the
// seats 1 and 2, and only when the first trick's number is 50 or less.
TEST(Tischwissen, BluffMitDerDolle) {
    struct Zeile { int zufallszahl; bool ersteDolleHoch; int winnerPartei; std::array<int, 4> erwartet; };
    const Zeile zeilen[] = {
        {50, true, ParteiRe, {ParteiKontra, ParteiRe, ParteiUnbekannt, ParteiUnbekannt}},
        {51, true, ParteiRe, {ParteiUnbekannt, ParteiRe, ParteiUnbekannt, ParteiUnbekannt}},
        {1, false, ParteiRe, {ParteiUnbekannt, ParteiRe, ParteiUnbekannt, ParteiUnbekannt}},
        {99, true, ParteiKontra, {ParteiKontra, ParteiKontra, ParteiKontra, ParteiKontra}},
    };
    for (const Zeile& z : zeilen) {
        std::vector<int> zwei{Dolle};
        if (z.winnerPartei == ParteiRe) zwei.push_back(KreuzDame);
        Situation s(engine::Normalspiel, {{KreuzDame}, zwei, {KaroNeun}, {KaroKoenig}});
        s.spiel.regeln.herzZehn = z.ersteDolleHoch;
        s.wissenAufbauen();
        s.wissen.zufallszahl = z.zufallszahl;
        stich(s, {KreuzDame, Dolle, KaroNeun, KaroKoenig});
        for (int k = 1; k <= 4; ++k)
            EXPECT_EQ(glaube(s, 2, k), z.erwartet[static_cast<std::size_t>(k - 1)]) << z.zufallszahl << " Beobachter " << k;
        EXPECT_EQ(s.zeigte("Spieler 1 läßt sich bluffen und vermutet Spieler 2 nunmehr in der Kontra-Partei!"),
                  z.zufallszahl == 50);
    }
}

// Augen added to a trick that a partner already holds tell both parties, but only when
// they really are partners and only when added after the winning card.
TEST(Tischwissen, Buttern) {
    struct Zeile { const char* name; std::vector<std::vector<int>> haende; std::initializer_list<int> stich;
                   int butterer; int gewinner; bool erkannt; };
    const Zeile zeilen[] = {
        {"Partner buttert", {{KreuzAs, KreuzDame}, {KreuzNeun}, {KreuzZehn, KreuzDame}, {KreuzNeun}},
         {KreuzAs, KreuzNeun, KreuzZehn, KreuzNeun}, 3, 1, true},
        {"Gegner gibt ein As dazu", {{KreuzAs, KreuzDame}, {KreuzNeun}, {KreuzZehn}, {KreuzNeun, KreuzDame}},
         {KreuzAs, KreuzNeun, KreuzZehn, KreuzNeun}, 3, 1, false},
        {"das As lag vor der gewinnenden Karte", {{KreuzAs, KreuzDame}, {KaroNeun, KreuzDame}, {KreuzNeun}, {KreuzNeun}},
         {KreuzAs, KaroNeun, KreuzNeun, KreuzNeun}, 1, 2, false},
    };
    for (const Zeile& z : zeilen) {
        Situation s(engine::Normalspiel, z.haende);
        s.wissenAufbauen();
        stich(s, z.stich);
        const int andererBeobachter = z.butterer == 4 ? 2 : 4;
        const int erwartet = z.erkannt ? s.wissen.partei[Sitz(z.butterer)] : ParteiUnbekannt;
        EXPECT_EQ(glaube(s, z.butterer, andererBeobachter), erwartet) << z.name;
        if (z.erkannt) {
            EXPECT_EQ(glaube(s, z.gewinner, andererBeobachter), ParteiRe) << z.name;
        }
    }
}

TEST(Tischwissen, FehlfarbeAbwurfUndTrumpf) {
    Situation s(engine::Normalspiel,
                {{KreuzAs, KaroNeun}, {KaroNeun, KaroKoenig}, {PikNeun, PikKoenig}, {KreuzKoenig, KaroZehn}});
    s.wissenAufbauen();
    stich(s, {KreuzAs, KaroNeun, PikNeun, KreuzKoenig});  // seat 2 trumps, seat 3 discards Pik
    for (const Sitz k : engine::alleSitze) {
        EXPECT_TRUE(s.wissen.farbeFrei[Sitz(2)][engine::Kreuz][k]);
        EXPECT_TRUE(s.wissen.farbeFrei[Sitz(3)][engine::Kreuz][k]);
        EXPECT_FALSE(s.wissen.farbeFrei[Sitz(4)][engine::Kreuz][k]);
    }
    EXPECT_EQ(s.wissen.abwurfZaehler[Sitz(3)][engine::Pik], 1);
    EXPECT_EQ(s.wissen.abwurfZaehler[Sitz(2)][engine::Karo], 0);
    stich(s, {KaroKoenig, PikKoenig, KaroZehn, KaroNeun});  // seat 2 leads trump, seat 3 has none
    EXPECT_TRUE(s.wissen.keinTrumpf[Sitz(3)][Sitz(1)]);
    EXPECT_FALSE(s.wissen.keinTrumpf[Sitz(4)][Sitz(1)]);
}

// The first trump trick opened by a Re player with a fat small trump shows his party.
TEST(Tischwissen, ErsterTrumpfstichDesRe) {
    struct Zeile { int karte; bool re; bool erkannt; };
    for (const Zeile z : {Zeile{KaroAs, true, true}, Zeile{KaroNeun, true, false}, Zeile{KaroAs, false, false}}) {
        std::vector<int> eins{z.karte};
        if (z.re) eins.push_back(KreuzDame);
        Situation s(engine::Normalspiel, {eins, {KaroKoenig}, {KaroBube}, {KaroNeun}});
        s.wissenAufbauen();
        stich(s, {z.karte, KaroKoenig, KaroBube, KaroNeun});
        EXPECT_EQ(glaube(s, 1, 2), z.erkannt ? ParteiRe : ParteiUnbekannt) << z.karte << z.re;
    }
}

// A seat that repeats an earlier high trump on a trick of the one it is believed to be
// partnered with gets marked by that observer.
TEST(Tischwissen, TrumpfPartnerMarke) {
    Situation s(engine::Normalspiel, {{PikDame}, {PikDame}, {KaroNeun}, {KaroKoenig}});
    s.wissenAufbauen();
    s.glaubt(3, 1, ParteiRe);
    s.glaubt(3, 2, ParteiRe);
    stich(s, {PikDame, PikDame, KaroNeun, KaroKoenig});
    EXPECT_TRUE(s.wissen.trumpfPartnerMarke[Sitz(2)][Sitz(3)]);
    EXPECT_FALSE(s.wissen.trumpfPartnerMarke[Sitz(2)][Sitz(4)]);
    EXPECT_FALSE(s.wissen.trumpfPartnerMarke[Sitz(1)][Sitz(3)]);
}

// In a Buben-Solo a seat that followed trump with its last one is known without trump.
TEST(Tischwissen, LetzterTrumpfImFigurenSolo) {
    Situation s(engine::BubenSolo, {{KreuzBube}, {KaroBube, PikNeun}, {HerzBube, HerzBube}, {PikBube}});
    s.wissenAufbauen();
    s.solo(1);
    stich(s, {KreuzBube, KaroBube, HerzBube, PikBube});
    for (const Sitz k : engine::alleSitze) {
        EXPECT_TRUE(s.wissen.keinTrumpf[Sitz(2)][k]);
        EXPECT_FALSE(s.wissen.keinTrumpf[Sitz(3)][k]);
    }
    EXPECT_TRUE(s.zeigte("Spieler 1 denkt daher über Spieler 2, daß er kein Trumpf mehr hat!"));
}

// The random number is drawn only in the first trick: when a seat other than 1 leads,
// or when seat 2 plays the second card.
TEST(Tischwissen, ZufallszahlNurImErstenStich) {
    struct Zaehler final : engine::Zufallsquelle {
        int n = 0;
        double rnd() override { ++n; return 0.495; }
    };
    struct Zeile { int stiche; int anzahl; int sitz; bool gezogen; };
    const Zeile zeilen[] = {
        {0, 0, 2, true}, {0, 0, 4, true}, {0, 0, 1, false}, {0, 1, 2, true},
        {0, 1, 3, false}, {0, 2, 2, false}, {1, 0, 2, false}, {1, 1, 2, false},
    };
    for (const Zeile& z : zeilen) {
        Zaehler zufall;
        players::Tischwissen wissen(zufall);
        engine::Spiel spiel;
        spiel.sticheGespielt = z.stiche;
        spiel.stich.anzahl = z.anzahl;
        wissen.zugVorbereiten(spiel, Sitz(z.sitz));
        EXPECT_EQ(zufall.n, z.gezogen ? 1 : 0) << z.stiche << "/" << z.anzahl << "/" << z.sitz;
        EXPECT_EQ(wissen.zufallszahl, z.gezogen ? 50 : 1);
    }
}

TEST(Tischwissen, Parteizeiger) {
    {
        // Bilder: unknown 1/2, Kontra 3/4, Re 5/6 by the orientation of the seat.
        Situation s(engine::Normalspiel, {{KaroNeun}, {KaroNeun}, {KaroNeun}, {KaroNeun}});
        s.wissenAufbauen();
        s.wissen.parteiBekannt[Sitz(2)] = ParteiKontra;
        s.wissen.parteiBekannt[Sitz(3)] = ParteiRe;
        s.wissen.parteizeigerSetzen(s.spiel);
        const std::array<int, 4> bilder{3, 4, 5, 2};  // seat 1 knows itself Kontra
        for (int x = 1; x <= 4; ++x) EXPECT_EQ(s.wissen.parteiBild[Sitz(x)], bilder[static_cast<std::size_t>(x - 1)]) << x;
        EXPECT_EQ(s.wissen.zeigerBild[Sitz(1)], 0);  // nothing on the table before the first trick
    }
    {
        // Seat 1 holds both Kreuz-Damen: the others are Kontra, seat 1 shows as Re.
        Situation s(engine::Normalspiel, {{KreuzDame, KreuzDame}, {KaroNeun}, {KaroNeun}, {KaroNeun}});
        s.wissenAufbauen();
        EXPECT_EQ(s.wissen.partei[Sitz(1)], engine::ParteiSolo);
        EXPECT_EQ(s.wissen.stillerSolist, Sitz(1));
        const std::array<int, 4> bilder{5, 4, 3, 4};
        for (int x = 1; x <= 4; ++x) EXPECT_EQ(s.wissen.parteiBild[Sitz(x)], bilder[static_cast<std::size_t>(x - 1)]) << x;
    }
    {
        // Two seats known Re: every party is shown as it is; a seat without party is a fault.
        Situation s(engine::Normalspiel, {{KreuzDame}, {KaroNeun}, {KreuzDame}, {KaroNeun}});
        s.wissenAufbauen();
        s.wissen.partei[Sitz(4)] = ParteiUnbekannt;
        s.wissen.parteiBekannt[Sitz(3)] = ParteiRe;
        s.wissen.parteizeigerSetzen(s.spiel);
        EXPECT_EQ(s.wissen.parteiBekannt[Sitz(2)], ParteiKontra);
        EXPECT_TRUE(s.zeigte(players::text::ParteizeigerFehler));
    }
}

// Rebuilding from the finished game gives what the observer learned card by card.
TEST(Tischwissen, NachvollziehenWieBeobachtet) {
    testhilfe::Testtisch tisch(17);
    players::Tischwissen live(tisch.zufall);
    tisch.ablauf.beobachterHinzufuegen(&live);
    players::Regelwerk regelwerk(live, tisch.zufall);
    int spiele = 0;
    tisch.spielen(20, regelwerk, [&](const engine::Spiel& spiel) {
        ++spiele;
        players::Tischwissen neu(tisch.zufall);
        neu.zufallszahl = live.zufallszahl;
        neu.nachvollziehen(spiel);
        EXPECT_EQ(neu.parteiWissen, live.parteiWissen) << spiele;
        EXPECT_EQ(neu.farbeFrei, live.farbeFrei) << spiele;
        EXPECT_EQ(neu.abwurfZaehler, live.abwurfZaehler) << spiele;
        EXPECT_EQ(neu.trumpfPartnerMarke, live.trumpfPartnerMarke) << spiele;
        EXPECT_EQ(neu.parteiBekannt, live.parteiBekannt) << spiele;
    });
    EXPECT_EQ(spiele, 20);
}

// Seat 1 marries: it first sees every other seat as Kontra; once the partner is
// found, the indicator shows him as Re.
TEST(Tischwissen, HochzeitspartnerAufDemZeiger) {
    Situation s(engine::Normalspiel, {{KreuzDame, KreuzDame}, {PikNeun}, {HerzNeun}, {KaroNeun}});
    s.spiel.hochzeiter = Sitz(1);
    s.spiel.hochzeitArt = engine::ErsterStich;
    s.parteien({ParteiRe, ParteiKontra, ParteiKontra, ParteiKontra});
    s.wissen.spielBegonnen(s.spiel);
    EXPECT_EQ(s.wissen.parteiBekannt[Sitz(4)], ParteiKontra);
    s.spiel.hochzeitPartner = Sitz(4);
    s.spiel.hochzeitGeklaert = true;
    s.spiel.partei[Sitz(4)] = ParteiRe;
    s.wissen.parteienGeaendert(s.spiel);
    EXPECT_EQ(s.wissen.parteiBekannt[Sitz(4)], ParteiRe);
    EXPECT_EQ(s.wissen.parteiBekannt[Sitz(2)], ParteiKontra);
    EXPECT_EQ(glaube(s, 4, 2), ParteiRe);
}

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "TestHilfen.h"
#include "engine/Geben.h"

using namespace engine;
using testhilfe::FesteZufall;

namespace {
// The number r as the generator's draw: integer part of (x * 48) + 1 == r.
double zug(int r) { return (r - 1 + 0.5) / 48.0; }
}  // namespace

TEST(Geben, JedeVerteilungIstEinVollesDeck) {
    struct Fall { int kartenanzahl; bool joker; int joker_soll; };
    for (const Fall f : {Fall{48, false, 0}, Fall{48, true, 1}, Fall{40, false, 0}, Fall{40, true, 0}}) {
        for (std::uint64_t seed = 1; seed <= 50; ++seed) {
            SeedZufall zufall(seed);
            const Kartenverteilung k = kartenZiehen(f.kartenanzahl, f.joker, zufall);
            EXPECT_EQ(verteilungPruefen(k, f.kartenanzahl, f.joker), "") << f.kartenanzahl << " " << f.joker;
            int joker = 0, neunen = 0;
            for (int code : k) {
                joker += code == JokerCode;
                neunen += code != 0 && code != JokerCode && rangVonCode(code) == Neun;
            }
            EXPECT_EQ(joker, f.joker_soll);
            if (f.kartenanzahl == 40) {
                EXPECT_EQ(neunen, 0);
            }
        }
    }
}

TEST(Geben, ZiehenMitZurueckweisung) {
    struct Fall {
        const char* name;
        int kartenanzahl;
        bool joker;
        std::vector<double> zuege;
        std::array<int, 3> ersteCodes;
    };
    const Fall faelle[] = {
        {"erste Kopien", 48, false, {zug(2), zug(3), zug(4)}, {2, 3, 4}},
        {"zweite Kopie wird zum Code", 48, false, {zug(26), zug(48), zug(30)}, {2, 24, 6}},
        {"schon gezogen: neu ziehen", 48, false, {zug(5), zug(5), zug(6), zug(6), zug(7)}, {5, 6, 7}},
        {"25 ohne Joker ist die Karo-Neun", 48, false, {zug(25), zug(1), zug(2)}, {1, 1, 2}},
        {"25 mit Joker bleibt der Joker", 48, true, {zug(25), zug(1), zug(2)}, {25, 1, 2}},
        {"ohne Neunen: Neunen neu ziehen", 40, false, {zug(1), zug(7), zug(43), zug(2), zug(25), zug(26), zug(3)},
         {2, 2, 3}},
    };
    for (const Fall& f : faelle) {
        std::vector<double> zuege = f.zuege;
        // Afterwards draw every number in turn so the deal can finish.
        for (int r = 1; r <= 48; ++r)
            for (int i = 0; i < 48; ++i) zuege.push_back(zug((r + i - 1) % 48 + 1));
        struct Folge final : Zufallsquelle {
            std::vector<double> werte;
            std::size_t i = 0;
            double rnd() override { return werte[i++ % werte.size()]; }
        } zufall;
        zufall.werte = zuege;
        const Kartenverteilung k = kartenZiehen(f.kartenanzahl, f.joker, zufall);
        EXPECT_EQ((std::array<int, 3>{k[0], k[1], k[2]}), f.ersteCodes) << f.name;
    }
}

TEST(Geben, FalscheVerteilungWirdErkannt) {
    SeedZufall zufall(3);
    const Kartenverteilung gut48 = kartenZiehen(48, false, zufall);
    const Kartenverteilung gut40 = kartenZiehen(40, false, zufall);
    ASSERT_EQ(verteilungPruefen(gut48, 48, false), "");
    ASSERT_EQ(verteilungPruefen(gut40, 40, false), "");
    struct Fall { const char* name; int kartenanzahl; void (*aendern)(Kartenverteilung&); };
    const Fall faelle[] = {
        {"Code 0", 48, [](Kartenverteilung& k) { k[5] = 0; }},
        {"Code 26", 48, [](Kartenverteilung& k) { k[5] = 26; }},
        {"eine Karte dreimal", 48,
         [](Kartenverteilung& k) {
             std::size_t j = 1;
             while (k[j] == k[0]) ++j;
             k[0] = k[j];
         }},
        {"Joker ohne Jokerregel", 48, [](Kartenverteilung& k) { *std::find(k.begin(), k.end(), 1) = JokerCode; }},
        {"Karte hinter Position 40", 40, [](Kartenverteilung& k) { k[45] = 2; }},
    };
    for (const Fall& f : faelle) {
        Kartenverteilung k = f.kartenanzahl == 48 ? gut48 : gut40;
        f.aendern(k);
        EXPECT_NE(verteilungPruefen(k, f.kartenanzahl, false), "") << f.name;
    }
}

TEST(Geben, GeberZaehler) {
    Partiestand p;
    for (int soll : {1, 2, 3, 4, 1}) {
        geberWeiter(p);
        EXPECT_EQ(p.geber, soll);
    }
    for (int soll : {4, 3}) {
        geberZurueck(p);
        EXPECT_EQ(p.geber, soll) << "zurück";
    }
}

TEST(Geben, VorhandDesNaechstenSpiels) {
    struct Fall {
        const char* name;
        int regel;   // rule "Vorhand"
        int letzte;  // 0: first game
        int gemerkt;
        bool marke;
        bool hhNSolo;
        double zufall;
        int soll;
    };
    const Fall faelle[] = {
        {"erstes Spiel: Regel", 3, 0, 0, false, false, 0.0, 3},
        {"erstes Spiel: Zufall 0,76 -> 4", 0, 0, 0, false, false, 0.76, 4},
        {"erstes Spiel: Zufall 0,0 -> 1", 0, 0, 0, false, false, 0.0, 1},
        {"danach: weiter", 0, 2, 0, false, false, 0.0, 3},
        {"danach: von 4 auf 1", 0, 4, 0, false, false, 0.0, 1},
        {"Marke: gemerkter Sitz", 0, 2, 4, true, false, 0.0, 4},
        {"Marke mit Hinterhand nach Solo: weiter", 0, 2, 4, true, true, 0.0, 3},
    };
    for (const Fall& f : faelle) {
        Partiestand p;
        if (f.letzte) p.letzteVorhand = Sitz(f.letzte);
        if (f.gemerkt) p.gemerkteVorhand = Sitz(f.gemerkt);
        p.soloVorhandMarke = f.marke;
        Regeln r;
        r.vorhand = f.regel;
        r.hhNSolo = f.hhNSolo;
        FesteZufall zufall({f.zufall});
        EXPECT_EQ(vorhandBestimmen(p, r, zufall), Sitz(f.soll)) << f.name;
        EXPECT_FALSE(p.soloVorhandMarke) << f.name;
        EXPECT_EQ(p.letzteVorhand, Sitz(f.soll)) << f.name;
    }
}

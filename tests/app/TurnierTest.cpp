#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "Turnier.h"
#include "players/Regelstatistik.h"

TEST(Turnier, MittelwertUndHalbbreite) {
    struct Zeile { std::vector<double> werte; double mittel; double halbbreite; };
    const Zeile zeilen[] = {
        {{}, 0, 0},
        {{2}, 2, 0},
        {{1, 3}, 2, 1.96},                   // variance 2, over 2 values
        {{0, 0, 0, 4}, 1, 1.96},             // variance 4, over 4 values
        {{-1, -1, -1}, -1, 0},
    };
    for (const Zeile& z : zeilen) {
        const app::Mittelwert m = app::mittelwert(z.werte);
        EXPECT_DOUBLE_EQ(m.mittel, z.mittel);
        EXPECT_NEAR(m.halbbreite, z.halbbreite, 1e-12);
    }
}

// Both games of a deal see the same cards with the kinds swapped: equal kinds cancel
// out exactly, pair by pair.
TEST(Turnier, GleicheArtenHebenSichAuf) {
    for (const char* art : {"kleinste", "regelwerk"}) {
        app::Turnierauftrag auftrag;
        auftrag.deals = 25;
        auftrag.seed = 11;
        auftrag.a = auftrag.b = art;
        std::vector<int> fortschritt;
        const app::Turnierergebnis e = app::turnier(auftrag, nullptr, [&](int gespielt, int alle) {
            EXPECT_EQ(alle, 25);
            fortschritt.push_back(gespielt);
        });
        // The progress hears of every deal once, in order.
        ASSERT_EQ(fortschritt.size(), 25u) << art;
        EXPECT_EQ(fortschritt.front(), 1);
        EXPECT_EQ(fortschritt.back(), 25);
        EXPECT_TRUE(std::is_sorted(fortschritt.begin(), fortschritt.end()));
        EXPECT_EQ(e.spiele, 50) << art;
        EXPECT_DOUBLE_EQ(e.diff, 0.0) << art;
        EXPECT_DOUBLE_EQ(e.ci95, 0.0) << art;
        EXPECT_EQ(e.abgelehnt, 0) << art;
    }
}

TEST(Turnier, StartwertBestimmtDasErgebnis) {
    app::Turnierauftrag auftrag;
    auftrag.deals = 40;
    auftrag.a = "regelwerk";
    auftrag.b = "zufall";
    auftrag.seed = 5;
    players::Regelstatistik statistik;
    const app::Turnierergebnis eins = app::turnier(auftrag, &statistik);
    const app::Turnierergebnis zwei = app::turnier(auftrag);
    EXPECT_EQ(eins.diff, zwei.diff);
    EXPECT_EQ(eins.ci95, zwei.ci95);
    // Only the rule book's seats decide through the rules: 2 of 4 seats in 80 games.
    EXPECT_EQ(statistik.entscheidungen, 80 * 24);
    auftrag.seed = 6;
    EXPECT_NE(app::turnier(auftrag).diff, eins.diff);
    EXPECT_EQ(app::turnierZeile(auftrag, {80, 0.25, 0.125, 0, {}}), "A=regelwerk B=zufall games=80 diff=0.2500 ci95=0.1250");
}

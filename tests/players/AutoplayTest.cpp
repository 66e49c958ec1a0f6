// Whole games of four rule book seats on the minimal table: every card legal, all
// Augen accounted for, the last resort rarely needed.
#include <gtest/gtest.h>

#include <iostream>

#include "Testtisch.h"
#include "players/Regelstatistik.h"
#include "players/Regelwerk.h"
#include "players/Tischwissen.h"

using namespace engine;

TEST(RegelwerkAutoplay, ZehntausendSpiele) {
    SeedZufall zufall(2024);
    players::Regelstatistik statistik;
    players::Tischwissen wissen(zufall);
    players::Regelwerk regelwerk(wissen, zufall, &statistik);
    testhilfe::Testtisch tisch;
    tisch.beobachter.push_back(&wissen);
    tisch.spieler.fill(&regelwerk);
    constexpr int Spiele = 10000;
    for (int n = 0; n < Spiele; ++n) {
        tisch.geben(1000 + static_cast<std::uint64_t>(n), Sitz(n % 4 + 1));
        tisch.spielen();
        int augen = 0;
        for (const Sitz s : alleSitze) augen += tisch.spiel.augen[s];
        ASSERT_EQ(augen, 240) << "Spiel " << n;
    }
    EXPECT_EQ(tisch.illegaleKarten, 0);
    EXPECT_EQ(statistik.entscheidungen, 48L * Spiele);
    EXPECT_LT(statistik.rueckfallAnteil(), 0.02);
    std::cout << statistik.bericht();
}

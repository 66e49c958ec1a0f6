// Whole games of four rule book seats on the game cycle, under the referee: every
// card legal, nothing refused, and the last resort rarely needed, in several rule sets.
#include <gtest/gtest.h>

#include <iostream>

#include "Testtisch.h"
#include "players/Regelstatistik.h"
#include "players/Regelwerk.h"
#include "players/Tischwissen.h"

TEST(RegelwerkAutoplay, ZehntausendSpieleInDreiRegelwerken) {
    engine::RegelOptionen ohneNeunen;
    ohneNeunen.scharferRupa = -1;
    ohneNeunen.zweiSchweine = -1;
    ohneNeunen.herzZehn = 0;  // the second Dolle beats the first
    engine::RegelOptionen mitJoker;
    mitJoker.joker = -1;
    struct Zeile { const char* name; engine::RegelOptionen regeln; int spiele; };
    const Zeile zeilen[] = {{"Standard", {}, 6000}, {"ohne Neunen", ohneNeunen, 2000}, {"mit Joker", mitJoker, 2000}};
    for (const Zeile& z : zeilen) {
        testhilfe::Testtisch tisch(2024, z.regeln);
        players::Regelstatistik statistik;
        players::Tischwissen wissen(tisch.zufall);
        tisch.ablauf.beobachterHinzufuegen(&wissen);
        players::Regelwerk regelwerk(wissen, tisch.zufall, &statistik);
        const auto bilanz = tisch.spielen(z.spiele, regelwerk);
        EXPECT_EQ(tisch.schiedsrichter.fehlerAnzahl(), 0) << z.name << ": "
                                                          << (tisch.schiedsrichter.fehler().empty() ? "" : tisch.schiedsrichter.fehler()[0]);
        EXPECT_EQ(bilanz.abgelehnt, 0) << z.name;
        EXPECT_EQ(statistik.entscheidungen, long{z.spiele} * tisch.spiel.deck.kartenanzahl()) << z.name;
        EXPECT_LT(statistik.rueckfallAnteil(), 0.02) << z.name;
        std::cout << z.name << ": " << statistik.bericht().substr(statistik.bericht().rfind("Karten"));
    }
}

// Whole games of four rule book seats on the game cycle, under the referee: every
// card legal, nothing refused, and the last resort rarely needed, in several rule
// sets; solos, Hochzeiten, silent solos, announcements and limits all come up.
#include <gtest/gtest.h>

#include <iostream>

#include "Testtisch.h"
#include "players/Regelstatistik.h"
#include "players/Regelwerk.h"
#include "players/Spielstatistik.h"
#include "players/Tischwissen.h"

TEST(RegelwerkAutoplay, TausendeSpieleInVierRegelwerken) {
    engine::RegelOptionen ohneNeunen;
    ohneNeunen.scharferRupa = -1;
    ohneNeunen.zweiSchweine = -1;
    ohneNeunen.herzZehn = 0;  // the second Dolle beats the first
    engine::RegelOptionen mitJoker;
    mitJoker.joker = -1;
    engine::RegelOptionen vorbehalte;
    vorbehalte.dabuSolo = vorbehalte.vhSolo = vorbehalte.solo = -1;
    vorbehalte.zweiSchweine = vorbehalte.schweineBTrSolo = vorbehalte.supersau = -1;
    vorbehalte.endeNach = 12;
    struct Zeile { const char* name; engine::RegelOptionen regeln; int spiele; };
    const Zeile zeilen[] = {{"Standard", {}, 5000},
                            {"ohne Neunen", ohneNeunen, 2000},
                            {"mit Joker", mitJoker, 2000},
                            {"Damen-Buben-Solo, Solist hat Vorhand, Pflichtsolo, Supersau", vorbehalte, 3000}};
    for (const Zeile& z : zeilen) {
        testhilfe::Testtisch tisch(2, z.regeln);
        players::Regelstatistik statistik;
        players::Spielstatistik spiele;
        players::Senkenverteiler senken;
        senken.hinzufuegen(statistik);
        senken.hinzufuegen(spiele);
        players::Tischwissen wissen(tisch.zufall);
        tisch.ablauf.beobachterHinzufuegen(&wissen);
        tisch.ablauf.beobachterHinzufuegen(&spiele);
        players::Regelwerk regelwerk(wissen, tisch.zufall, &senken);
        const auto bilanz = tisch.spielen(z.spiele, regelwerk);
        EXPECT_EQ(tisch.schiedsrichter.fehlerAnzahl(), 0) << z.name << ": "
                                                          << (tisch.schiedsrichter.fehler().empty() ? "" : tisch.schiedsrichter.fehler()[0]);
        EXPECT_EQ(bilanz.abgelehnt, 0) << z.name;
        for (const std::string& g : bilanz.gruende) ADD_FAILURE() << z.name << ": abgelehnt: " << g;
        EXPECT_EQ(statistik.entscheidungen, long{z.spiele} * tisch.spiel.deck.kartenanzahl()) << z.name;
        EXPECT_LT(statistik.rueckfallAnteil(), 0.02) << z.name;
        // The runs reach the reservations and announcements they are meant to check.
        long solos = 0;
        for (const auto& q : spiele.solos) solos += q.anzahl;
        EXPECT_GT(solos, z.spiele / 200) << z.name;
        EXPECT_GT(spiele.hochzeiten.anzahl, z.spiele / 10) << z.name;
        EXPECT_GT(spiele.stilleSolos.anzahl, 0) << z.name;
        EXPECT_GT(spiele.ansagendeParteien.anzahl, z.spiele / 5) << z.name;
        long limits = 0;
        for (const auto& q : spiele.limits) limits += q.anzahl;
        EXPECT_GT(limits, 0) << z.name;
        std::cout << z.name << ": " << statistik.bericht().substr(statistik.bericht().rfind("Karten"));
    }
}

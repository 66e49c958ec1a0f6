// The learning aids' pure parts: the review's steps, the statistics and their file,
// the rows of cards played.
#include <gtest/gtest.h>

#include <algorithm>

#include "players/Regelwerk.h"
#include "players/Testtisch.h"
#include "table/Kartenuebersicht.h"
#include "table/Spielverlauf.h"
#include "table/Statistik.h"

namespace {

using engine::Sitz;

// One whole game of the rule book at four seats, with its reasons.
struct GespieltesSpiel {
    engine::Spiel spiel;
    players::Spielbegruendungen gruende;

    explicit GespieltesSpiel(std::uint64_t seed, engine::RegelOptionen regeln = {}) {
        testhilfe::Testtisch tisch(seed, regeln);
        players::Begruendungsprotokoll protokoll;
        players::Tischwissen wissen(tisch.zufall, &protokoll);
        players::Regelwerk regelwerk(wissen, tisch.zufall, &protokoll);
        tisch.ablauf.beobachterHinzufuegen(&wissen);
        tisch.ablauf.beobachterHinzufuegen(&protokoll);
        tisch.spielen(1, regelwerk, [&](const engine::Spiel& s) {
            spiel = s;
            gruende = protokoll.spiel();
        });
    }
};

bool enthaelt(const std::vector<int>& v, int x) { return std::find(v.begin(), v.end(), x) != v.end(); }

TEST(Spielverlauf, JederStichMitDenHaendenDavorUndDenGruenden) {
    for (const std::uint64_t seed : {3u, 11u, 29u}) {
        const GespieltesSpiel g(seed);
        const auto schritte = table::spielverlauf(g.spiel, g.gruende, true);
        const int stiche = static_cast<int>(g.spiel.stiche.size());
        ASSERT_EQ(stiche, g.spiel.deck.handgroesse()) << seed;
        ASSERT_EQ(static_cast<int>(schritte.size()), stiche + 2) << seed;
        EXPECT_EQ(schritte.front().art, table::Verlaufsschritt::Art::Vorbehalte);
        EXPECT_EQ(schritte.back().art, table::Verlaufsschritt::Art::Ende);
        for (int k = 1; k <= stiche; ++k) {
            const table::Verlaufsschritt& s = schritte[static_cast<std::size_t>(k)];
            ASSERT_EQ(s.karten.size(), 4u);
            EXPECT_EQ(s.gewinner, g.spiel.stiche[static_cast<std::size_t>(k - 1)].gewinner);
            for (const Sitz sitz : engine::alleSitze)
                EXPECT_EQ(static_cast<int>(s.haende[sitz].size()), g.spiel.deck.handgroesse() - (k - 1)) << seed << " " << k;
            for (const auto& karte : s.karten) {
                // The card played lies in its seat's hand before the trick, and never again after it.
                EXPECT_TRUE(enthaelt(s.haende[karte.sitz], karte.pos));
                EXPECT_FALSE(enthaelt(schritte[static_cast<std::size_t>(k + 1)].haende[karte.sitz], karte.pos));
                ASSERT_EQ(karte.gruende.size(), g.gruende.karte(karte.pos).size());
                for (std::size_t i = 0; i < karte.gruende.size(); ++i)
                    EXPECT_EQ(karte.gruende[i], table::grundText(g.gruende.karte(karte.pos)[i]));
            }
            // Announcements and special points appear in the trick they belong to.
            for (const auto& a : g.spiel.ansagen) {
                const std::string name = g.spiel.namen[a.sitz] + ":";
                const bool hier = std::any_of(s.zeilen.begin(), s.zeilen.end(),
                                              [&](const std::string& z) { return z.rfind(name, 0) == 0; });
                if (a.stich == k - 1) {
                    EXPECT_TRUE(hier) << seed << " Stich " << k;
                }
            }
            const long punkte = std::count_if(g.spiel.sonderpunkte.begin(), g.spiel.sonderpunkte.end(),
                                              [&](const engine::Sonderpunkt& p) { return p.stich == k; });
            const long zeilen = std::count_if(s.zeilen.begin(), s.zeilen.end(),
                                              [](const std::string& z) { return z.rfind("Sonderpunkt", 0) == 0; });
            EXPECT_EQ(zeilen, punkte) << seed << " Stich " << k;
        }
        for (const Sitz sitz : engine::alleSitze) EXPECT_TRUE(schritte.back().haende[sitz].empty());
        EXPECT_NE(std::find(schritte.back().zeilen.begin(), schritte.back().zeilen.end(), g.spiel.ergebnis.text),
                  schritte.back().zeilen.end());
    }
}

TEST(Spielverlauf, VorbehalteUndRegelnOhneSatz) {
    engine::Spiel spiel;
    spiel.namen = engine::ProSitz<std::string>(std::string("X"));
    spiel.namen[Sitz(2)] = "Bert";
    spiel.namen[Sitz(3)] = "Cleo";
    spiel.hochzeiter = Sitz(2);
    spiel.hochzeitPartner = Sitz(3);
    spiel.schweineHalter = Sitz(3);
    players::Spielbegruendungen gruende;
    gruende.vorbehalte[Sitz(2)] = {{"Vorbehalt", "Fehlstich", "Spieler2 spielt eine Hochzeit"}};
    const auto start = table::spielverlauf(spiel, gruende, true).front();
    const std::vector<std::string> erwartet{"Vorhand: X", "Bert spielt eine Hochzeit, Partner: Cleo", "Schweine: Cleo",
                                            "Bert: Spieler2 spielt eine Hochzeit"};
    EXPECT_EQ(start.zeilen, erwartet);
    EXPECT_EQ(table::grundText({"AusspielWaehlen", "03", ""}), "Regel AusspielWaehlen 03");
}

// The figures of a crafted game, per seat.
TEST(Statistik, ZaehltJeNameUndPartie) {
    engine::Spiel spiel;
    spiel.namen = {};
    const char* namen[] = {"Anna", "Bert", "Cleo", "Dora"};
    for (const Sitz s : engine::alleSitze) spiel.namen[s] = namen[s.nr() - 1];
    spiel.solo = true;
    spiel.solist = Sitz(2);
    spiel.spieltyp = engine::DamenSolo;
    spiel.partei = engine::ProSitz<int>(engine::ParteiKontra);
    spiel.partei[Sitz(2)] = engine::ParteiSolo;
    spiel.ansagen = {{Sitz(2), false, engine::ParteiRe, -1, 0}, {Sitz(3), false, engine::ParteiKontra, -1, 1},
                     {Sitz(2), true, engine::ParteiRe, engine::Keine90, 2}};
    spiel.ergebnis.gewertet = true;
    spiel.ergebnis.limitEingehalten = 0;
    spiel.ergebnis.punkte = engine::ProSitz<int>(0);
    for (const Sitz s : {Sitz(1), Sitz(3), Sitz(4)}) spiel.ergebnis.punkte[s] = 5;

    table::Statistik st;
    st.spielEintragen(spiel);
    spiel.ergebnis.gewertet = false;  // not scored: not counted
    st.spielEintragen(spiel);
    st.partieEintragen(spiel.namen, {spiel.ergebnis.punkte, spiel.ergebnis.punkte});
    engine::ProSitz<int> minus(0);
    minus[Sitz(2)] = -3;
    st.partieEintragen(spiel.namen, {minus});

    const table::Spielerstatistik& bert = *st.finde("Bert");
    EXPECT_EQ(bert.spiele, (table::Quote{1, 0}));
    EXPECT_EQ(bert.re, (table::Quote{1, 0}));
    EXPECT_EQ(bert.solos[engine::DamenSolo], (table::Quote{1, 0}));
    EXPECT_EQ(bert.ansagen, (table::Quote{2, 0}));
    EXPECT_EQ(bert.partien, 2);
    EXPECT_EQ(bert.bestePartie, 0);
    EXPECT_EQ(bert.schlechtestePartie, -3);
    const table::Spielerstatistik& cleo = *st.finde("Cleo");
    EXPECT_EQ(cleo.kontra, (table::Quote{1, 1}));
    EXPECT_EQ(cleo.ansagen, (table::Quote{1, 1}));
    EXPECT_EQ(cleo.punkte, 5);
    EXPECT_EQ(cleo.bestePartie, 10);
    EXPECT_DOUBLE_EQ(cleo.punkteJeSpiel(), 5.0);
    EXPECT_EQ(st.letztePartie.staende.size(), 1u);

    // The file gives back exactly what was written, names with commas and umlauts included.
    st.von("Jörg, der Zweite").hochzeiten = {3, 2};
    EXPECT_EQ(table::Statistik::ausText(st.text()), st);
}

TEST(Statistik, KaputteDateienGebenWasLesbarIst) {
    const struct { std::string text; std::size_t spieler; } faelle[] = {
        {"", 0},
        {"\x01\xff\xfe garbage [[[", 0},
        {"[Statistik]\nAnzahl=99999999\n[Spieler1]\nName=A\nSpiele=-5\nSpieleGewonnen=9\n", 1},
        {"[Statistik]\nAnzahl=2\n[Spieler1]\nName=A\n[Spieler2]\nName=A\n", 1},
        {"[LetztePartie]\nSpiele=3\nSpiel1=1;2\nSpiel2=x;;;;;;\n", 0},
    };
    for (const auto& f : faelle) {
        const table::Statistik st = table::Statistik::ausText(f.text);
        EXPECT_EQ(st.spieler.size(), f.spieler) << f.text;
        for (const auto& s : st.spieler) EXPECT_LE(s.spiele.gewonnen, s.spiele.anzahl);
        EXPECT_LE(st.letztePartie.staende.size(), 3u);
    }
}

TEST(Kartenuebersicht, ZeilenNachFarbeUndGespielteKarten) {
    const GespieltesSpiel g(5);
    engine::Spiel spiel = g.spiel;
    // As after the first trick: its four cards played, the rest in the hands.
    for (int p = 1; p <= spiel.deck.kartenanzahl(); ++p) spiel.deck[p].status = engine::InHand;
    for (int pos : spiel.stiche.front().karten) spiel.deck[pos].status = engine::Gespielt;
    const auto zeilen = table::kartenzeilen(spiel);
    std::size_t karten = 0;
    int gespielt = 0;
    for (const auto& z : zeilen) {
        karten += z.positionen.size();
        gespielt += z.gespielt;
        for (std::size_t i = 1; i < z.positionen.size(); ++i)
            EXPECT_GE(spiel.deck[z.positionen[i - 1]].staerke, spiel.deck[z.positionen[i]].staerke);
    }
    EXPECT_EQ(karten, static_cast<std::size_t>(spiel.deck.kartenanzahl()));
    EXPECT_EQ(gespielt, 4);
    if (spiel.spieltyp == engine::Normalspiel) {
        EXPECT_EQ(zeilen.front().farbe, engine::Normalspiel);
        EXPECT_EQ(zeilen.front().positionen.size(), 26u);
        EXPECT_EQ(spiel.deck[zeilen.front().positionen.front()].code, 11);  // the Dolle on top
    }
}

}  // namespace

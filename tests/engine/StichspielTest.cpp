#include <gtest/gtest.h>

#include "TestHilfen.h"
#include "engine/Stichspiel.h"

using namespace engine;
using testhilfe::positionVon;
using testhilfe::spielMitHaenden;

namespace {

// Codes used below.
constexpr int KaroNeun = 1, KaroBube = 2, KaroAs = 6;
constexpr int HerzNeun = 7, HerzKoenig = 10, HerzZehn = 11, HerzAs = 12;
constexpr int PikNeun = 13, PikDame = 15, PikZehn = 17, PikAs = 18;
constexpr int KreuzNeun = 19, KreuzBube = 20, KreuzDame = 21, KreuzZehn = 23, KreuzAs = 24;

// Plays the four codes from seat 1 on and returns the winning place.
int gewinnerPlatz(int spieltyp, bool ersteDolleHoch, std::array<int, 4> codes) {
    Spiel spiel = spielMitHaenden(spieltyp, {{codes[0]}, {codes[1]}, {codes[2]}, {codes[3]}});
    spiel.regeln.herzZehn = ersteDolleHoch;
    spiel.stich.beginnen(Sitz(1));
    for (int i = 0; i < 4; ++i) {
        const Sitz s(i + 1);
        karteSpielen(spiel, positionVon(spiel, s, codes[static_cast<std::size_t>(i)]));
    }
    return spiel.stich.platz[stichGewinner(spiel)];
}

TEST(Stichgewinner, Faelle) {
    struct Fall { const char* name; int typ; bool ersteDolleHoch; std::array<int, 4> codes; int platz; };
    const Fall faelle[] = {
        {"zwei Dollen, erste hoch", 1, true, {KaroBube, HerzZehn, KaroNeun, HerzZehn}, 2},
        {"zwei Dollen, zweite schlägt erste", 1, false, {KaroBube, HerzZehn, KaroNeun, HerzZehn}, 4},
        {"zwei Dollen im Herz-Solo, zweite", 2, false, {HerzNeun, HerzZehn, HerzZehn, HerzAs}, 3},
        {"zwei Kreuz-Damen: die erste", 1, false, {KreuzDame, KreuzDame, KaroNeun, PikDame}, 1},
        {"zwei Kreuz-Asse: das erste", 1, false, {KreuzZehn, KreuzAs, KreuzAs, KreuzNeun}, 2},
        {"ein Trumpf auf Fehl gewinnt", 1, true, {KreuzAs, KreuzZehn, KaroNeun, KreuzAs}, 3},
        {"höchster Trumpf gewinnt", 1, true, {PikAs, KaroNeun, PikDame, KreuzBube}, 3},
        {"Herz-As über Herz-König", 1, true, {HerzKoenig, HerzNeun, HerzAs, HerzKoenig}, 3},
        {"ohne Trumpf entscheidet die Farbe", 8, true, {PikNeun, KreuzAs, HerzAs, PikZehn}, 4},
        {"ohne Trumpf: Dame ist Fehl", 8, true, {PikNeun, PikDame, KreuzDame, PikNeun}, 2},
        {"Buben-Solo: Herz-Zehnen sind Fehl", 5, false, {HerzNeun, HerzZehn, HerzZehn, HerzKoenig}, 2},
        {"Buben-Solo: Bube sticht As", 5, true, {PikAs, PikAs, KaroBube, PikZehn}, 3},
        {"Joker über Dolle", 1, true, {HerzZehn, 25, KreuzDame, KaroNeun}, 2},
        {"Joker im Damen-Solo ist Karo", 6, true, {KaroNeun, 25, KaroAs, PikDame}, 4},
    };
    for (const Fall& f : faelle) EXPECT_EQ(gewinnerPlatz(f.typ, f.ersteDolleHoch, f.codes), f.platz) << f.name;
}

TEST(Stichgewinner, ZwischenstandNachJederKarte) {
    Spiel spiel = spielMitHaenden(1, {{KaroNeun}, {PikAs}, {KreuzDame}, {PikNeun}});
    spiel.stich.beginnen(Sitz(2));
    const int erwartet[] = {1, 2, 2, 2};  // after Pik-As, Kreuz-Dame, Pik-Neun, Karo-Neun
    const int codes[] = {PikAs, KreuzDame, PikNeun, KaroNeun};
    for (int i = 0; i < 4; ++i) {
        const Sitz s = Sitz(2).plus(i);
        karteSpielen(spiel, positionVon(spiel, s, codes[i]));
        EXPECT_EQ(fuehrenderPlatz(spiel.deck, spiel.stich, i + 1, 1, true), erwartet[i]) << i;
    }
    EXPECT_EQ(stichGewinner(spiel), Sitz(3));
}

TEST(KarteSpielen, KreuzDameZeigtReNurAusserhalbDesSolos) {
    for (const bool solo : {false, true}) {
        Spiel spiel = spielMitHaenden(1, {{KreuzDame}, {KaroNeun}, {KaroNeun}, {KaroNeun}});
        spiel.solo = solo;
        spiel.stich.beginnen(Sitz(1));
        const Kartenfolge f = karteSpielen(spiel, positionVon(spiel, Sitz(1), KreuzDame));
        EXPECT_EQ(f.kreuzDameAufgedeckt, !solo);
        EXPECT_EQ(spiel.parteiMarker[Sitz(1)], solo ? 0 : 2);
    }
}

TEST(KarteSpielen, SchweinDesHaltersSchlaegtDolle) {
    Spiel spiel = spielMitHaenden(1, {{HerzZehn}, {KaroAs, KaroAs}, {KaroAs}, {KaroNeun}});
    spiel.schweineHalter = Sitz(2);
    spiel.stich.beginnen(Sitz(1));
    karteSpielen(spiel, positionVon(spiel, Sitz(1), HerzZehn));
    const Kartenfolge f = karteSpielen(spiel, positionVon(spiel, Sitz(2), KaroAs));
    EXPECT_TRUE(f.schweinGespielt);
    EXPECT_EQ(spiel.schweineGespielt[Sitz(2)], 1);
    karteSpielen(spiel, positionVon(spiel, Sitz(3), KaroAs));  // not the holder: stays a Fuchs
    karteSpielen(spiel, positionVon(spiel, Sitz(4), KaroNeun));
    EXPECT_EQ(stichGewinner(spiel), Sitz(2));
    EXPECT_EQ(spiel.deck[positionVon(spiel, Sitz(2), KaroAs)].staerke, 32);  // the second one still in hand
}

TEST(Legalitaet, Faelle) {
    struct Fall {
        const char* name;
        int typ;
        int gefuehrt;            // code led by seat 4, 0 for none
        std::vector<int> hand;   // seat 1
        int gewaehlt;
        bool erlaubt;
    };
    const Fall faelle[] = {
        {"erste Karte immer erlaubt", 1, 0, {PikAs, KreuzAs}, KreuzAs, true},
        {"Farbe bedient", 1, PikNeun, {PikAs, KreuzAs}, PikAs, true},
        {"Farbe nicht bedient", 1, PikNeun, {PikAs, KreuzAs}, KreuzAs, false},
        {"Trumpf statt Farbe", 1, PikNeun, {PikAs, KreuzDame}, KreuzDame, false},
        {"frei in der Farbe: alles erlaubt", 1, PikNeun, {KreuzAs, KreuzDame}, KreuzAs, true},
        {"frei in der Farbe: Trumpf erlaubt", 1, PikNeun, {KreuzAs, KreuzDame}, KreuzDame, true},
        {"Trumpf auf Trumpf", 1, KaroNeun, {PikAs, KreuzDame}, KreuzDame, true},
        {"Fehl auf Trumpf trotz Trumpf", 1, KaroNeun, {PikAs, KreuzDame}, PikAs, false},
        {"Dolle ist kein Herz", 1, HerzNeun, {HerzZehn, HerzKoenig}, HerzZehn, false},
        {"nur Dolle: Herz frei", 1, HerzNeun, {HerzZehn, PikAs}, PikAs, true},
        {"Dame ist Trumpf im Damen-Solo", 6, PikNeun, {PikDame, PikAs}, PikDame, false},
        {"Dame ist Pik ohne Trumpf", 8, PikNeun, {PikDame, KreuzAs}, PikDame, true},
    };
    for (const Fall& f : faelle) {
        Spiel spiel = spielMitHaenden(f.typ, {f.hand, {}, {}, {f.gefuehrt ? f.gefuehrt : KaroNeun}});
        spiel.stich.beginnen(f.gefuehrt ? Sitz(4) : Sitz(1));
        if (f.gefuehrt) karteSpielen(spiel, positionVon(spiel, Sitz(4), f.gefuehrt));
        // Fill the rest of seat 1's hand with cards of an unrelated suit so only the listed cards matter.
        for (int p = spiel.deck.erstePosition(Sitz(1)) + static_cast<int>(f.hand.size());
             p <= spiel.deck.letztePosition(Sitz(1)); ++p)
            spiel.deck[p].status = Gespielt;
        EXPECT_EQ(karteErlaubt(spiel, Sitz(1), positionVon(spiel, Sitz(1), f.gewaehlt)), f.erlaubt) << f.name;
    }
}

}  // namespace

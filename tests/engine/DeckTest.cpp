#include <gtest/gtest.h>

#include <array>

#include "engine/Deck.h"

using namespace engine;

namespace {

// Strength of codes 1..25 per game type, typed from the rule tables; a negative
// entry marks a trump card (its effective suit becomes the trump value).
// Order within a suit: Neun, Bube, Dame, König, Zehn, As.
struct Zeile { int spieltyp; std::array<int, 25> staerken; };

const std::array<Zeile, 8> tabelle{{
    {1, {-1, -256, -65536, -4, -16, -32,              // Karo
         1, -1024, -262144, 4, -16777216, 16,         // Herz
         1, -4096, -1048576, 4, 16, 32,               // Pik
         1, -16384, -4194304, 4, 16, 32,              // Kreuz
         -67108864}},
    {2, {1, -64, -16384, 4, 16, 32,
         -1, -256, -65536, -4, -16777216, -16,
         1, -1024, -262144, 4, 16, 32,
         1, -4096, -1048576, 4, 16, 32,
         -67108864}},
    {3, {1, -256, -65536, 4, 16, 32,
         1, -1024, -262144, 4, -16777216, 16,
         -1, -4096, -1048576, -4, -16, -32,
         1, -16384, -4194304, 4, 16, 32,
         -67108864}},
    {4, {1, -256, -65536, 4, 16, 32,
         1, -1024, -262144, 4, -16777216, 16,
         1, -4096, -1048576, 4, 16, 32,
         -1, -16384, -4194304, -4, -16, -32,
         -67108864}},
    {5, {1, -1, 4, 16, 64, 256,
         1, -4, 4, 16, 64, 256,
         1, -16, 4, 16, 64, 256,
         1, -64, 4, 16, 64, 256,
         1}},
    {6, {1, 4, -1, 16, 64, 256,
         1, 4, -4, 16, 64, 256,
         1, 4, -16, 16, 64, 256,
         1, 4, -64, 16, 64, 256,
         1}},
    {7, {1, -1, -256, 4, 16, 64,
         1, -4, -1024, 4, 16, 64,
         1, -16, -4096, 4, 16, 64,
         1, -64, -16384, 4, 16, 64,
         1}},
    {8, {1, 4, 16, 64, 256, 1024,
         1, 4, 16, 64, 256, 1024,
         1, 4, 16, 64, 256, 1024,
         1, 4, 16, 64, 256, 1024,
         1}},
}};

TEST(Stichstaerke, JedeKarteInJedemSpieltypWieInDerTabelle) {
    for (const Zeile& z : tabelle) {
        Deck deck;
        for (int code = 1; code <= 25; ++code) deck[code].code = code;
        deck.attributeBerechnen();
        deck.staerkenBerechnen(z.spieltyp);
        for (int code = 1; code <= 25; ++code) {
            const int erwartet = z.staerken[static_cast<std::size_t>(code - 1)];
            const int naturFarbe = code == 25 ? Karo : (code - 1) / 6 + 1;
            SCOPED_TRACE("Spieltyp " + std::to_string(z.spieltyp) + ", Code " + std::to_string(code));
            EXPECT_EQ(deck[code].staerke, erwartet < 0 ? -erwartet : erwartet);
            EXPECT_EQ(deck[code].farbe, erwartet < 0 ? z.spieltyp : naturFarbe);
            EXPECT_EQ(deck.istTrumpf(code, z.spieltyp), erwartet < 0);
        }
    }
}

TEST(Kartenattribute, WertAugenUndJoker) {
    struct Fall { int code; int farbe; int wert; int augen; };
    const Fall faelle[] = {
        {1, Karo, 1, 0}, {2, Karo, 2, 2}, {3, Karo, 4, 3}, {4, Karo, 8, 4}, {5, Karo, 16, 10}, {6, Karo, 32, 11},
        {11, Herz, 16, 10}, {21, Kreuz, 4, 3}, {22, Kreuz, 8, 4}, {24, Kreuz, 32, 11},
        {25, Karo, 64, 0},  // the Joker
    };
    for (const Fall& f : faelle) {
        Deck deck;
        deck[1].code = f.code;
        deck.attributeBerechnen();
        EXPECT_EQ(deck[1].farbe, f.farbe) << f.code;
        EXPECT_EQ(deck[1].wert, f.wert) << f.code;
        EXPECT_EQ(deck[1].augen, f.augen) << f.code;
    }
}

TEST(Deck, SitzeHaltenIhreBloecke) {
    struct Fall { int karten; int sitz; int erste; int letzte; };
    for (const Fall f : {Fall{48, 1, 1, 12}, Fall{48, 4, 37, 48}, Fall{40, 2, 11, 20}, Fall{40, 4, 31, 40}}) {
        Deck deck;
        deck.setzeKartenanzahl(f.karten);
        EXPECT_EQ(deck.erstePosition(Sitz(f.sitz)), f.erste);
        EXPECT_EQ(deck.letztePosition(Sitz(f.sitz)), f.letzte);
        EXPECT_EQ(deck.besitzer(f.erste), Sitz(f.sitz));
        EXPECT_EQ(deck.besitzer(f.letzte), Sitz(f.sitz));
    }
}

}  // namespace

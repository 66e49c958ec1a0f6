#include <gtest/gtest.h>

#include "settings/Zeichensatz.h"

using namespace settings;

TEST(Zeichensatz, JedesCp1252ByteKommtUnveraendertZurueck) {
    std::string alle;
    for (int b = 0; b < 256; ++b) alle.push_back(static_cast<char>(b));
    const std::string utf8 = cp1252NachUtf8(alle);
    EXPECT_TRUE(istGueltigesUtf8(utf8));
    EXPECT_EQ(utf8NachCp1252(utf8), alle);
}

TEST(Zeichensatz, Utf8NachCp1252) {
    struct Fall { std::string utf8; std::string cp1252; };
    for (const auto& f : {Fall{"Geräusch", "Ger\xE4usch"}, Fall{"Rückseite", "R\xFC" "ckseite"},
                          Fall{"ÄÖÜß", "\xC4\xD6\xDC\xDF"}, Fall{"5 €", "5 \x80"}, Fall{"„x“", "\x84x\x93"},
                          Fall{"Ž", "\x8E"}, Fall{"Ω", "?"}, Fall{"a\xF0\x9F\x83\x8F" "b", "a?b"},
                          Fall{"\xC3", "?"}}) {
        EXPECT_EQ(utf8NachCp1252(f.utf8), f.cp1252) << f.utf8;
    }
}

TEST(Zeichensatz, DateiKodierungWirdErkannt) {
    struct Fall { std::string bytes; std::string text; };
    for (const auto& f : {Fall{"Ger\xE4usch=0", "Geräusch=0"},             // Windows-1252
                          Fall{"Geräusch=0", "Geräusch=0"},                  // UTF-8
                          Fall{"\xEF\xBB\xBFGeräusch=0", "Geräusch=0"},      // UTF-8 with BOM
                          Fall{"\xEF\xBB\xBFx\xE4y", "x\xEF\xBF\xBDy"},      // damaged UTF-8 after a BOM
                          Fall{"", ""}}) {
        EXPECT_EQ(dateiTextDekodieren(f.bytes), f.text) << f.bytes;
    }
}

TEST(Zeichensatz, VergleichOhneGrossschreibungMitUmlauten) {
    struct Fall { std::string a, b; bool gleich; };
    for (const auto& f : {Fall{"GERÄUSCH", "Geräusch", true}, Fall{"RÜCKSEITE", "rückseite", true},
                          Fall{"ÖL", "öl", true}, Fall{"Hh_n_solo", "HH_N_SOLO", true},
                          Fall{"ŠŽŒŸ", "šžœÿ", true}, Fall{"Geräusch", "Gerausch", false},
                          Fall{"ß", "SS", false}, Fall{"×", "÷", false}, Fall{"Solo", "Solis", false}}) {
        EXPECT_EQ(gleichOhneGrossschreibung(f.a, f.b), f.gleich) << f.a << " / " << f.b;
    }
}

TEST(Zeichensatz, ErsteZeichenZaehltCodepunkte) {
    EXPECT_EQ(ersteZeichen("äöü", 2), "äö");
    EXPECT_EQ(ersteZeichen("ab", 5), "ab");
    EXPECT_EQ(ersteZeichen("ab", 0), "");
}

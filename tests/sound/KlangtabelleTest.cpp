#include <gtest/gtest.h>

#include <string>

#include "sound/Klangtabelle.h"

using namespace sound;

namespace {

// The built-in text with the row of one sound replaced.
std::string mitZeile(int nummer, const std::string& zeile) {
    std::string text(eingebauterTabellentext());
    const std::string anfang = "\n" + std::to_string(nummer) + " ";
    const auto pos = text.find(anfang);
    const auto ende = text.find('\n', pos + 1);
    return text.replace(pos + 1, ende - pos - 1, zeile);
}

}  // namespace

TEST(Klangtabelle, LagenDerFestenUndBerechnetenKlaenge) {
    struct Fall { int nummer; int start; int ende; };
    const Klangtabelle& t = standardKlangtabelle();
    for (const Fall f : {Fall{1, 0, 890}, Fall{2, 900, 1740}, Fall{3, 1750, 2500}, Fall{8, 7950, 9290},
                         Fall{9, 9300, 10590}, Fall{57, 61650, 62140}, Fall{58, 1, 1}, Fall{48, 52570, 52870},
                         Fall{53, 52480, 52980}, Fall{59, 62150, 63100}, Fall{60, 63120, 63160},
                         Fall{61, 63190, 64900}, Fall{62, 64910, 65610}, Fall{63, 65620, 65630}}) {
        ASSERT_NE(t.eintrag(f.nummer), nullptr);
        EXPECT_EQ(t.eintrag(f.nummer)->segment, (Segment{f.start, f.ende})) << "Klang " << f.nummer;
    }
    EXPECT_EQ(t.eintrag(56)->segment.ende, 61640);
    EXPECT_EQ(t.eintrag(58)->segment.dauer(), 0);
    EXPECT_EQ(t.eintrag(0), nullptr);
    EXPECT_EQ(t.eintrag(64), nullptr);
}

TEST(Klangtabelle, FehlerhafteZeilenWerdenAbgelehnt) {
    struct Fall { int nummer; std::string zeile; };
    for (const Fall& f : {Fall{5, "5   x     -  sprache  keine60  Keine sechzig"},
                          Fall{5, "6   543   -  sprache  keine60  Keine sechzig"},
                          Fall{5, "5   543   -  gesang   keine60  Keine sechzig"},
                          Fall{5, "5   543   -  sprache"},
                          Fall{5, "5   100   -  sprache  keine60  Keine sechzig"},  // ends before it starts
                          Fall{5, "5   -     -  sprache  keine60  Keine sechzig"},
                          Fall{60, "60  -     63160-63120  effekt  karte  Klick"},
                          Fall{60, "60  -     63120  effekt  karte  Klick"},
                          Fall{60, "60  -     -  effekt  karte  Klick"},
                          Fall{60, "60  6300  63120-63160  effekt  karte  Klick"}}) {
        std::string fehler;
        EXPECT_FALSE(Klangtabelle::lesen(mitZeile(f.nummer, f.zeile), &fehler)) << f.zeile;
        EXPECT_NE(fehler.find("Zeile "), std::string::npos) << f.zeile;
    }
    std::string text(eingebauterTabellentext());
    EXPECT_FALSE(Klangtabelle::lesen(text + "64 - 1-2 frei frei -\n"));
    EXPECT_FALSE(Klangtabelle::lesen(text.substr(0, text.find("\n63 "))));
}

TEST(Klangtabelle, WindowsZeilenendenUndKommentare) {
    std::string text;
    for (const char c : eingebauterTabellentext()) {
        if (c == '\n') text += "\r\n   \r\n# noch ein Kommentar";
        text += c;
    }
    const auto t = Klangtabelle::lesen(text);
    ASSERT_TRUE(t);
    for (int n = 1; n <= KlangAnzahl; ++n)
        EXPECT_EQ(t->eintrag(n)->segment, standardKlangtabelle().eintrag(n)->segment);
    EXPECT_EQ(t->eintrag(16)->inhalt, "Solo ohne Trumpf");
}

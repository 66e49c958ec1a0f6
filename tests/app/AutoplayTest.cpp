#include <gtest/gtest.h>

#include <sstream>

#include "Autoplay.h"
#include "SpielJson.h"

namespace {
std::vector<std::string> zeilen(const std::string& text) {
    std::vector<std::string> z;
    std::istringstream in(text);
    for (std::string zeile; std::getline(in, zeile);) z.push_back(zeile);
    return z;
}

std::string spielen(int spiele, std::uint64_t seed, std::string* bogen = nullptr) {
    app::Autoplayauftrag auftrag;
    auftrag.spiele = spiele;
    auftrag.seed = seed;
    std::ostringstream json, b;
    EXPECT_EQ(app::autoplay(auftrag, &json, b), 0) << b.str();
    if (bogen) *bogen = b.str();
    return json.str();
}
}  // namespace

// Every line's keys and values are read back by autoplay_pruefen.py; here: one line per
// game, a Partie of 24 games, and the score sheet.
TEST(Autoplay, EineZeileJeSpielUndDerSpielzettel) {
    std::string bogen;
    const auto z = zeilen(spielen(30, 5, &bogen));
    ASSERT_EQ(z.size(), 30u);
    EXPECT_EQ(z[0].substr(0, 21), "{\"partie\":1,\"spiel\":1");
    EXPECT_NE(z[24].find("{\"partie\":2,\"spiel\":1,"), std::string::npos) << "24 games make a Partie";
    EXPECT_NE(bogen.find("Spielliste: 30 Spiele, Startwert 5"), std::string::npos) << bogen;
    EXPECT_NE(bogen.find("Summe"), std::string::npos);
}

TEST(Autoplay, GleicherStartwertGleicheSpiele) {
    EXPECT_EQ(spielen(20, 9), spielen(20, 9));
    EXPECT_NE(spielen(20, 9), spielen(20, 10));
}

TEST(SpielJson, TexteWerdenMaskiert) {
    EXPECT_EQ(app::jsonText("a\"b\\c\nd\x01"), "\"a\\\"b\\\\c\\nd\\u0001\"");
    EXPECT_EQ(app::jsonText("Füchse"), "\"Füchse\"");
}

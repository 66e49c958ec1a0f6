#include <algorithm>
#include <gtest/gtest.h>

#include "engine/Karte.h"
#include "engine/Zufall.h"
#include "table/Handverteilung.h"

namespace {

using engine::Sitz;

// The pile holds exactly the deck the rules play with, and dealt out it is a deal the
// game cycle accepts.
TEST(Handverteilung, StapelIstDasSpielblatt) {
    const struct {
        int kartenanzahl;
        bool joker;
        int joker_im_stapel;
    } faelle[] = {{48, false, 0}, {48, true, 1}, {40, false, 0}, {40, true, 0}};
    for (const auto& f : faelle) {
        table::Handverteilung v(f.kartenanzahl, f.joker);
        ASSERT_EQ(static_cast<int>(v.stapel().size()), f.kartenanzahl);
        EXPECT_EQ(std::count(v.stapel().begin(), v.stapel().end(), engine::JokerCode), f.joker_im_stapel);
        EXPECT_FALSE(v.fehler().empty());
        engine::SeedZufall zufall(3);
        v.restZufaellig(zufall);
        EXPECT_TRUE(v.stapel().empty());
        EXPECT_EQ(v.fehler(), "");
        EXPECT_EQ(engine::verteilungPruefen(v.verteilung(), f.kartenanzahl, f.joker), "") << f.kartenanzahl << f.joker;
    }
}

TEST(Handverteilung, HaendeNehmenHoechstensIhreKarten) {
    table::Handverteilung v(40, false);
    for (int i = 0; i < 10; ++i) EXPECT_TRUE(v.geben(0, Sitz(2)));
    EXPECT_TRUE(v.voll(Sitz(2)));
    EXPECT_FALSE(v.geben(0, Sitz(2)));
    EXPECT_EQ(v.stapel().size(), 30u);
    EXPECT_EQ(v.fehler(), "Es sind noch 30 Karten zu verteilen.");

    // A card put back returns to its place in the ordered pile: the pile stays a
    // part of the full deck in the deck's order.
    const int karte = v.hand(Sitz(2)).front();
    v.zuruecklegen(Sitz(2), 0);
    EXPECT_EQ(v.hand(Sitz(2)).size(), 9u);
    ASSERT_EQ(v.stapel().size(), 31u);
    EXPECT_EQ(v.stapel().front(), karte);  // the first card given was the pile's first
    const std::vector<int> voll = table::Handverteilung(40, false).stapel();
    std::size_t j = 0;
    for (int code : v.stapel()) {
        while (j < voll.size() && voll[j] != code) ++j;
        ASSERT_LT(j, voll.size()) << code;
        ++j;
    }

    // Each seat's hand lands in its block of deck positions, in the order given.
    v.allesZuruecklegen();
    EXPECT_EQ(v.stapel().size(), 40u);
    engine::SeedZufall zufall(11);
    v.restZufaellig(zufall);
    const engine::Kartenverteilung k = v.verteilung();
    for (const Sitz s : engine::alleSitze)
        for (std::size_t i = 0; i < 10; ++i)
            EXPECT_EQ(k[static_cast<std::size_t>((s.nr() - 1) * 10) + i], v.hand(s)[i]);
    for (std::size_t p = 40; p < k.size(); ++p) EXPECT_EQ(k[p], 0);
}

}  // namespace

#include <gtest/gtest.h>

#include "Kommandozeile.h"

using app::kommandozeileAuswerten;
using app::Modus;

TEST(Kommandozeile, GueltigeAufrufe) {
    auto a = kommandozeileAuswerten({"--autoplay", "1000", "--seed", "1", "--json", "-", "--stats"});
    ASSERT_TRUE(a.aufruf) << a.fehler;
    EXPECT_EQ(a.aufruf->modus, Modus::Autoplay);
    EXPECT_EQ(a.aufruf->anzahl, 1000);
    EXPECT_EQ(a.aufruf->seed, 1u);
    EXPECT_EQ(a.aufruf->jsonDatei, "-");
    EXPECT_TRUE(a.aufruf->statistik);

    a = kommandozeileAuswerten({"--tournament", "20", "--players", "regelwerk,zufall"});
    ASSERT_TRUE(a.aufruf);
    EXPECT_EQ(a.aufruf->modus, Modus::Turnier);
    EXPECT_EQ(a.aufruf->spieler, (std::vector<std::string>{"regelwerk", "zufall"}));

    a = kommandozeileAuswerten({"--host", "--port", "0", "--auto", "--guests", "3", "--games", "5", "--tick", "0"});
    ASSERT_TRUE(a.aufruf) << a.fehler;
    EXPECT_EQ(a.aufruf->modus, Modus::Host);
    EXPECT_EQ(a.aufruf->port, 0);
    EXPECT_EQ(a.aufruf->gaeste, 3);
    EXPECT_EQ(a.aufruf->spiele, 5);
    EXPECT_EQ(a.aufruf->takt, 0);

    a = kommandozeileAuswerten({"--foyer", "irc.example:6667", "--name", "Anna", "--auto", "--take-seat", "--games", "3"});
    ASSERT_TRUE(a.aufruf) << a.fehler;
    EXPECT_EQ(a.aufruf->modus, Modus::Foyer);
    EXPECT_EQ(a.aufruf->foyerAdresse, "irc.example:6667");
    EXPECT_EQ(a.aufruf->foyerrolle, app::Foyerrolle::PlatzNehmen);

    a = kommandozeileAuswerten({});
    ASSERT_TRUE(a.aufruf);
    EXPECT_EQ(a.aufruf->modus, Modus::Spiel);
    EXPECT_FALSE(a.aufruf->port);
}

TEST(Kommandozeile, FehlerWerdenGemeldet) {
    const std::vector<std::vector<std::string>> falsch{
        {"--autoplay"}, {"--autoplay", "x"}, {"--autoplay", "-3"}, {"--seed", "1a"}, {"--players", "a"},
        {"--port", "70000"}, {"--gibtsnicht"}, {"--games", "0"}, {"--guests", "4"}, {"--tick", "-1"}, {"--foyer"}};
    for (const auto& args : falsch) {
        const auto a = kommandozeileAuswerten(args);
        EXPECT_FALSE(a.aufruf) << args[0];
        EXPECT_FALSE(a.fehler.empty()) << args[0];
    }
}

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

#include "RegelDatei.h"

// --rules reads an options file as the settings store does: CRLF, Windows-1252,
// keys without case, the rule options and the seat names.
TEST(RegelDatei, OptionenAusDerDatei) {
    const std::string pfad = testing::TempDir() + "regeln_test.ini";
    {
        std::ofstream datei(pfad, std::ios::binary);
        datei << "[Optionen]\r\nName2=J\xFCrgen\r\nGer\xE4usch=0\r\nscharfer_rupa=-1\r\nKontra=2\r\nSolo=-1\r\n";
    }
    std::string fehler;
    const auto o = app::optionenLesen(pfad, fehler);
    std::remove(pfad.c_str());
    ASSERT_TRUE(o) << fehler;
    EXPECT_EQ(o->regeln.scharferRupa, -1);
    EXPECT_EQ(o->regeln.kontra, 2);
    EXPECT_EQ(o->regeln.solo, -1);
    EXPECT_EQ(o->regeln.endeNach, 24) << "missing keys keep their defaults";
    EXPECT_EQ(o->namen[1], "Jürgen");
    EXPECT_EQ(o->namen[0], "Spieler1");
}

TEST(RegelDatei, FehlendeDateiWirdGemeldet) {
    std::string fehler;
    EXPECT_FALSE(app::optionenLesen("/gibt/es/nicht.ini", fehler));
    EXPECT_EQ(fehler, "Die Regeldatei /gibt/es/nicht.ini kann nicht gelesen werden.");
}

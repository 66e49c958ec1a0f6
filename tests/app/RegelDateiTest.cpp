#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

#include "RegelDatei.h"

using app::regelnAusText;

TEST(RegelDatei, LiestDenAbschnittOptionen) {
    struct Fall { const char* name; std::string text; int engine::RegelOptionen::*feld; int soll; };
    const Fall faelle[] = {
        {"CRLF", "[Optionen]\r\nJoker=-1\r\nKontra=3\r\n", &engine::RegelOptionen::joker, -1},
        {"LF", "[Optionen]\nKontra=3\n", &engine::RegelOptionen::kontra, 3},
        {"Schlüssel ohne Groß/klein", "[optionen]\nJOKER=-1\n", &engine::RegelOptionen::joker, -1},
        {"UTF-8 mit BOM", "\xEF\xBB\xBF[Optionen]\nZwei_Schweine=-1\n", &engine::RegelOptionen::zweiSchweine, -1},
        {"Windows-1252 daneben", "[Optionen]\nGer\xE4usch=0\nArmut=-1\n", &engine::RegelOptionen::armut, -1},
        {"UTF-8 daneben", "[Optionen]\nGer\xC3\xA4usch=0\nArmut=-1\n", &engine::RegelOptionen::armut, -1},
        {"Leerzeichen um Schlüssel und Wert", "[Optionen]\n  Limit = 2 \n", &engine::RegelOptionen::limit, 2},
        {"anderer Abschnitt zählt nicht", "[Settings]\nJoker=-1\n[Optionen]\nKontra=1\n", &engine::RegelOptionen::joker, 0},
        {"gelesen wird Solo", "[Optionen]\nPflichtsolo=-1\nSolo=0\n", &engine::RegelOptionen::solo, 0},
        {"Solo", "[Optionen]\nSolo=-1\n", &engine::RegelOptionen::solo, -1},
        {"Hh_n_solo wie Hh_n_Solo", "[Optionen]\nHh_n_solo=-1\n", &engine::RegelOptionen::hhNSolo, -1},
        {"fehlender Schlüssel: Standard", "[Optionen]\nJoker=-1\n", &engine::RegelOptionen::endeNach, 24},
        {"keine Zahl: Standard", "[Optionen]\nEnde_bei=viele\n", &engine::RegelOptionen::endeBei, 30},
        {"Kommentar", "[Optionen]\n;Joker=-1\n", &engine::RegelOptionen::joker, 0},
    };
    for (const Fall& f : faelle) EXPECT_EQ(regelnAusText(f.text).*(f.feld), f.soll) << f.name;
}

TEST(RegelDatei, DateiLesenOderMelden) {
    std::string fehler;
    EXPECT_FALSE(app::regelDateiLesen("/gibt/es/nicht.ini", fehler));
    EXPECT_NE(fehler.find("/gibt/es/nicht.ini"), std::string::npos);

    const std::string pfad = testing::TempDir() + "regeln_test.ini";
    {
        std::ofstream datei(pfad, std::ios::binary);
        datei << "[Optionen]\r\nScharfer_Rupa=-1\r\n";
    }
    const auto regeln = app::regelDateiLesen(pfad, fehler);
    ASSERT_TRUE(regeln);
    EXPECT_EQ(regeln->scharferRupa, -1);
    std::remove(pfad.c_str());
}

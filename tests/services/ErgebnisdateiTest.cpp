// The result file of a tournament Partie and the mail body made from it.
#include <gtest/gtest.h>

#include "services/Ergebnisdatei.h"

namespace services {
namespace {

Turnierergebnis beispiel(int spiele, std::string spieler) {
    Turnierergebnis e;
    e.programm = "Trumpona 0.1.0";
    e.spieler = std::move(spieler);
    e.ende = {2025, 1, 14, 20, 15, 3};
    e.regeln = engine::regelnUebernehmen(turnierregeln(spiele));
    for (int i = 0; i < spiele; ++i) {
        engine::ProSitz<int> zeile;
        zeile[engine::Sitz(1 + i % 4)] = 12;
        zeile[engine::Sitz(1 + (i + 1) % 4)] = 12;
        e.spiele.push_back(zeile);
        for (const engine::Sitz s : engine::alleSitze) e.summen[s] += zeile[s];
    }
    return e;
}

TEST(Ergebnisdatei, HaeltSpielerZeitRegelnSpieleUndSummen) {
    const std::string text = ergebnisdateiText(beispiel(2, "Anna"));
    const auto zeilen = zeilenVon(text);
    ASSERT_EQ(zeilen.size(), 7U);
    EXPECT_EQ(zeilen[0], "RPPT12;Trumpona 0.1.0");
    EXPECT_EQ(zeilen[1], "Spieler;Anna");
    EXPECT_EQ(zeilen[2], "Datum;2025-01-14;20:15:03");
    EXPECT_EQ(zeilen[3].rfind("Regeln;Abr_Option=2,Ende_bei=30,Ende_nach=2,", 0), 0U) << zeilen[3];
    EXPECT_NE(zeilen[3].find(",Vh_Solo=-1,"), std::string::npos);
    EXPECT_EQ(zeilen[4], "Spiel;1;12;12;0;0");
    EXPECT_EQ(zeilen[5], "Spiel;2;0;12;12;0");
    EXPECT_EQ(zeilen[6], "Summe;12;24;12;0");
    EXPECT_EQ(text.substr(text.size() - 2), "\r\n");
    EXPECT_EQ(spielerVon(zeilen), "Anna");
}

TEST(Ergebnisdatei, LaengsteTurnierpartiePasstInEineMailzeile) {
    const auto zeilen = zeilenVon(ergebnisdateiText(beispiel(24, std::string(300, 'W'))));
    const Mail mail{"a@example.org", "A", "t@example.org", "T", "x", mailrumpf(zeilen)};
    EXPECT_TRUE(nachrichtBauen(mail, {}, "Trumpona"));
}

TEST(Ergebnisdatei, NamenOhneTrennerUndSteuerzeichenHoechstensDreissigZeichen) {
    struct Fall { std::string name; std::string erwartet; };
    const Fall faelle[] = {
        {"Anna", "Anna"},
        {"  Jürgen ", "Jürgen"},
        {"A;B,C\r\nD\tE", "A B C  D E"},
        {std::string(40, 'x'), std::string(30, 'x')},
        {std::string(29, 'x') + "äöü", std::string(29, 'x') + "ä"},
        {"\x01\x02", ""},
    };
    for (const Fall& f : faelle) EXPECT_EQ(feldname(f.name), f.erwartet) << f.name;
}

TEST(Ergebnisdatei, ZeilenweiseGelesenUndMitEinzelnemCrVerschickt) {
    struct Fall { std::string bytes; std::vector<std::string> zeilen; std::string rumpf; };
    const Fall faelle[] = {
        {"", {}, "<BEGINN><ENDE>"},
        {"a\r\nb\r\n", {"a", "b"}, "<BEGINN>a\rb\r<ENDE>"},
        {"a\nb", {"a", "b"}, "<BEGINN>a\rb\r<ENDE>"},
        {"a\r\n\r\nc\r", {"a", "", "c"}, "<BEGINN>a\r\rc\r<ENDE>"},
    };
    for (const Fall& f : faelle) {
        EXPECT_EQ(zeilenVon(f.bytes), f.zeilen);
        EXPECT_EQ(mailrumpf(f.zeilen), f.rumpf);
    }
    EXPECT_EQ(spielerVon({"x", "Spieler;Bob;Carl"}), "Bob Carl");
    EXPECT_EQ(spielerVon({"Datum;1"}), "");
}

TEST(Ergebnisdatei, NurRppt12MitEndungD4T) {
    struct Fall { const char* name; bool passt; };
    const Fall faelle[] = {{"RPPT1220250114-201503.D4T", true}, {"RPPT12.D4T", true}, {"rppt12x.d4t", true},
                           {"RPPT11x.D4T", false}, {"RPPT12x.D4T.bak", false}, {"xRPPT12.D4T", false},
                           {"RPPT12x.TXT", false}};
    for (const Fall& f : faelle) EXPECT_EQ(istErgebnisdatei(f.name), f.passt) << f.name;
}

}  // namespace
}  // namespace services

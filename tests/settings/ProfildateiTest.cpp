#include <array>

#include <gtest/gtest.h>

#include "settings/Profildatei.h"

using namespace settings;

namespace {

Profildatei datei(std::string_view text) { return Profildatei::ausBytes(text); }

}  // namespace

TEST(Profildatei, WerteFinden) {
    struct Fall { std::string text; std::string abschnitt, schluessel; std::optional<std::string> wert; };
    const std::vector<Fall> faelle{
        {"[Optionen]\r\nName1=Anna\r\n", "Optionen", "Name1", "Anna"},
        {"[optionen]\nNAME1=Anna", "OPTIONEN", "name1", "Anna"},
        {"  [ Optionen ]  \r\n  Name1 =  Anna Lena  \r\n", "Optionen", "Name1", "Anna Lena"},
        {"[Optionen]\rName1=\"  x  \"\r", "Optionen", "Name1", "  x  "},
        {"[Optionen]\nName1='a'\n", "Optionen", "Name1", "a"},
        {"[Optionen]\nName1=\"a\n", "Optionen", "Name1", "\"a"},
        {"[Optionen]\nName1=a=b\n", "Optionen", "Name1", "a=b"},
        {"[Optionen]\nName1=erster\nName1=zweiter\n", "Optionen", "Name1", "erster"},
        {"[Optionen]\n;Name1=alt\nName1=neu\n", "Optionen", "Name1", "neu"},
        {"Name1=vor jedem Abschnitt\n[Optionen]\n", "Optionen", "Name1", std::nullopt},
        {"[Anderes]\nName1=x\n[Optionen]\n", "Optionen", "Name1", std::nullopt},
        {"[Optionen]\nName1\n", "Optionen", "Name1", std::nullopt},
        {"[Optionen]\nName1=\n", "Optionen", "Name1", ""},
        {"[Optionen\nName1=x\n", "Optionen", "Name1", std::nullopt},
        {"[Optionen]\nx=1\n[Anderes]\ny=2\n[OPTIONEN]\nName1=z\n", "Optionen", "Name1", "z"},
        {"[Optionen]\nGER\xC4USCH=0\n", "Optionen", "Geräusch", "0"},
    };
    for (const auto& f : faelle) {
        EXPECT_EQ(datei(f.text).wert(f.abschnitt, f.schluessel), f.wert) << f.text;
    }
}

TEST(Profildatei, ZahlWieGetPrivateProfileInt) {
    struct Fall { std::string zeile; int erwartet; };
    for (const auto& f : {Fall{"K=-1", -1}, Fall{"K=0", 0}, Fall{"K=200", 200}, Fall{"K= 7 ", 7},
                          Fall{"K=12abc", 12}, Fall{"K=abc", 0}, Fall{"K=", 99}, Fall{"", 99},
                          Fall{"K=0x10", 16}, Fall{"K=+3", 3}, Fall{"K=\"5\"", 5},
                          Fall{"K=4294967295", -1}, Fall{"K=99999999999999999999", 1661992959}}) {
        EXPECT_EQ(profilZahl(datei("[A]\n" + f.zeile), "A", "K", 99), f.erwartet) << f.zeile;
    }
}

TEST(Profildatei, TextWirdBeiNulUndPuffergrenzeAbgeschnitten) {
    std::string lang(300, 'x');
    lang[0] = 'y';
    struct Fall { std::string bytes; std::string standard; std::string erwartet; };
    const std::vector<Fall> faelle{
        {"[A]\nK=" + lang, "", lang.substr(0, 253)},
        {"[A]\nK=" + std::string(253, 'z'), "", std::string(253, 'z')},
        {std::string("[A]\nK=vor\0nach", 14), "", "vor"},
        {"[A]\n", std::string("std\0ard", 7), "std"},
        {"[A]\n", std::string(260, 's'), std::string(253, 's')},
        {"[A]\nK=" + std::string(300, '\xE4'), "", [] { std::string s; for (int i = 0; i < 253; ++i) s += "ä"; return s; }()},
    };
    for (const auto& f : faelle) {
        EXPECT_EQ(profilText(datei(f.bytes), "A", "K", f.standard, 254), f.erwartet);
    }
}

TEST(Profildatei, SchreibenBehaeltAllesAndere) {
    struct Fall { std::string vorher; std::string schluessel, wert; std::string nachher; };
    const std::vector<Fall> faelle{
        // replaced in place, the key keeps its spelling, comments and unknown keys stay
        {"; Kommentar\r\n[Optionen]\r\nunbekannt=1\r\nKONTRA = 5\r\n# noch einer\r\nLimit=5\r\n",
         "Kontra", "0",
         "; Kommentar\r\n[Optionen]\r\nunbekannt=1\r\nKONTRA=0\r\n# noch einer\r\nLimit=5\r\n"},
        // a new key goes after the section's last line, before the blank line and the next section
        {"[Optionen]\r\nA=1\r\n\r\n[Anderes]\r\nB=2\r\n", "C", "3",
         "[Optionen]\r\nA=1\r\nC=3\r\n\r\n[Anderes]\r\nB=2\r\n"},
        // a missing section is added at the end
        {"[Anderes]\r\nB=2\r\n", "C", "3", "[Anderes]\r\nB=2\r\n\r\n[Optionen]\r\nC=3\r\n"},
        {"", "C", "3", "[Optionen]\r\nC=3\r\n"},
        // line ends are unified to CRLF; umlauts go out as Windows-1252
        {"[Optionen]\nA=1\n", "Rückseite", "5", "[Optionen]\r\nA=1\r\nR\xFC" "ckseite=5\r\n"},
        // a value never spans lines and ends at a NUL
        {"[Optionen]\r\n", "Name1", "a\r\nb\nc", "[Optionen]\r\nName1=a  b c\r\n"},
        {"[Optionen]\r\n", "Name1", std::string("a\0b", 3), "[Optionen]\r\nName1=a\r\n"},
        // a UTF-8 file is written back as Windows-1252
        {"\xEF\xBB\xBF[Optionen]\nName1=Jürgen\n", "A", "1", "[Optionen]\r\nName1=J\xFCrgen\r\nA=1\r\n"},
    };
    for (const auto& f : faelle) {
        Profildatei d = datei(f.vorher);
        d.setze("Optionen", f.schluessel, f.wert);
        EXPECT_EQ(d.bytes(), f.nachher) << f.vorher;
    }
}

TEST(Profildatei, FuehrendeZahl) {
    struct Fall { std::string text; long long wert; };
    for (const auto& f : {Fall{"6196318", 6196318}, Fall{" 12 ", 12}, Fall{"-5x", -5}, Fall{"grün", 0},
                          Fall{"", 0}, Fall{"99999999999999999999999", 999999999999999999}}) {
        EXPECT_EQ(fuehrendeZahl(f.text), f.wert) << f.text;
    }
}

// Writes shift the lines below them; every later lookup must still find each key
// where a fresh read of the written file finds it.
TEST(Profildatei, NachJedemSchreibenFindetSichJederSchluessel) {
    const std::vector<std::string> anfaenge{
        "",
        "[Optionen]\nA=1\n\n[Anderes]\nB=2\n[optionen]\nC=3\nA=spaet\n",
        "[Optionen]\nA=1\n[Anderes]\nB=2",
        "; vorne\nB=ohne Abschnitt\n[Anderes]\nA=x\n\n\n[Optionen]\n\n",
    };
    const std::vector<std::array<std::string, 3>> schritte{
        {"Optionen", "A", "10"}, {"Optionen", "D", "11"}, {"Anderes", "B", "12"}, {"Neu", "A", "13"},
        {"OPTIONEN", "c", "14"}, {"Anderes", "E", "15"}, {"Optionen", "E", "16"}, {"neu", "F", "17"},
    };
    for (const auto& anfang : anfaenge) {
        Profildatei d = datei(anfang);
        for (const auto& [abschnitt, schluessel, wert] : schritte) {
            d.setze(abschnitt, schluessel, wert);
            const Profildatei frisch = datei(d.bytes());
            for (const auto& [a, s, w] : schritte) {
                EXPECT_EQ(d.wert(a, s), frisch.wert(a, s)) << anfang << " nach " << abschnitt << "/" << schluessel;
            }
            EXPECT_EQ(d.wert(abschnitt, schluessel), wert);
        }
    }
}

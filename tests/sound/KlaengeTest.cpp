#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "sound/Klaenge.h"

using namespace sound;

TEST(Klangzuordnung, PasstZurKlangtabelle) {
    const Klangtabelle& t = standardKlangtabelle();
    std::set<int> nummern;
    std::set<Klang> klaenge;
    for (const Klangzuordnung& z : klangzuordnungen()) {
        EXPECT_TRUE(nummern.insert(z.nummer).second) << z.nummer;
        EXPECT_TRUE(klaenge.insert(z.klang).second) << z.name;
        const Klangeintrag* e = t.eintrag(z.nummer);
        ASSERT_NE(e, nullptr) << z.name;
        EXPECT_EQ(e->name, z.name) << z.nummer;
        const Klangart art = z.schalter == Klangschalter::Sprachausgabe ? Klangart::Sprache : Klangart::Effekt;
        EXPECT_EQ(e->art, art) << z.name;
        EXPECT_EQ(&zuordnung(z.klang), &z);
    }
    EXPECT_EQ(klaenge.size(), static_cast<std::size_t>(Klang::SpielerGeht) + 1);
}

TEST(Klangzuordnung, ReadmeZeigtDieselbeTabelle) {
    std::ifstream datei(README_DATEI);
    std::stringstream inhalt;
    inhalt << datei.rdbuf();
    const std::string text = inhalt.str();
    // Rows of the README's sound table: "| 24 | `schweine` | ... |".
    const std::regex zeile(R"(\|\s*(\d+)\s*\|\s*`([a-z0-9-]+)`\s*\|)");
    std::set<std::pair<int, std::string>> readme;
    for (auto it = std::sregex_iterator(text.begin(), text.end(), zeile); it != std::sregex_iterator(); ++it)
        readme.emplace(std::stoi((*it)[1]), (*it)[2]);
    std::set<std::pair<int, std::string>> code;
    for (const Klangzuordnung& z : klangzuordnungen()) code.emplace(z.nummer, std::string(z.name));
    EXPECT_EQ(readme, code);
}

TEST(Klangzuordnung, SoloUndLimitNachCode) {
    struct Solo { int typ; bool franzoesisch; std::optional<Klang> klang; };
    for (const Solo f : {Solo{1, true, Klang::KaroSolo}, Solo{1, false, Klang::SchellenSolo},
                         Solo{2, false, Klang::RotSolo}, Solo{4, true, Klang::KreuzSolo},
                         Solo{5, false, Klang::UnterSolo}, Solo{7, true, Klang::DamenBubenSolo},
                         Solo{7, false, Klang::OberUnterSolo}, Solo{8, false, Klang::SoloOhneTrumpf},
                         Solo{0, true, std::nullopt}, Solo{9, false, std::nullopt}}) {
        EXPECT_EQ(soloKlang(f.typ, f.franzoesisch), f.klang) << f.typ << f.franzoesisch;
    }
    struct Limit { int code; std::optional<Klang> klang; };
    for (const Limit f : {Limit{3, Klang::Keine90}, Limit{2, Klang::Keine60}, Limit{1, Klang::Keine30},
                          Limit{0, Klang::Schwarz}, Limit{-1, std::nullopt}, Limit{4, std::nullopt}}) {
        EXPECT_EQ(limitKlang(f.code), f.klang) << f.code;
    }
}

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

// The rule tables as data: every sentence carries its own code, codes are unique
// within a position, and the reasoning is counted per procedure and code.
#include <gtest/gtest.h>

#include <set>

#include "Karten.h"
#include "Situation.h"
#include "players/EinfacheSpieler.h"
#include "players/Regelstatistik.h"
#include "players/Regelwerk.h"
#include "players/Spielerarten.h"
#include "players/Verfahren.h"

using players::Regel;

TEST(Regeltabellen, SatzTraegtSeinenCode) {
    struct Tabelle { const char* name; std::span<const Regel> regeln; std::string vorsatz; };
    std::vector<Tabelle> tabellen;
    for (int n = 1; n <= 3; ++n) {
        tabellen.push_back({"abwerfen", players::abwerfenRegeln(n), "Mld.(abwerfen):"});
        tabellen.push_back({"Farbe_bedienen", players::farbeBedienenRegeln(n), "Mld."});
        tabellen.push_back({"Trumpf_bedienen", players::trumpfBedienenRegeln(n), "Mld.(Trumpf_bedienen):"});
        tabellen.push_back({"stechen_oder_abwerfen", players::stechenRegeln(n), "Mld.(stechen_oder_abwerfen)."});
    }
    for (const auto& t : tabellen) {
        std::set<std::string> texte;
        for (const Regel& r : t.regeln) {
            EXPECT_TRUE(texte.insert(std::string(r.text)).second) << t.name << " " << r.code << " doppelt";
            if (!r.text.starts_with("Mld.")) continue;  // the Zweithand discards report without a code
            EXPECT_TRUE(r.text.starts_with(t.vorsatz + std::string(r.code) + " ")) << t.name << ": " << r.text;
        }
    }
    EXPECT_EQ(players::abwerfenRegeln(2).size(), 26u);
    EXPECT_EQ(players::trumpfBedienenRegeln(3).size(), 13u);
    EXPECT_EQ(players::stechenRegeln(3).size(), 15u);
}

TEST(Regelstatistik, ZaehltEntscheidungenRegelnUndRueckfall) {
    players::Regelstatistik statistik;
    testhilfe::Situation s(engine::Normalspiel, {{karten::KreuzAs}, {karten::PikNeun, karten::PikAs}, {karten::KreuzNeun}, {karten::KreuzKoenig}});
    s.nachStich({karten::KreuzAs});
    players::Regelwerk regelwerk(s.wissen, s.zufall, &statistik);
    regelwerk.karteWaehlen(s.spiel, engine::Sitz(2));
    regelwerk.karteWaehlen(s.spiel, engine::Sitz(2));
    EXPECT_EQ(statistik.entscheidungen, 2);
    EXPECT_EQ(statistik.regeln.at("abwerfen:ZH01"), 2);
    EXPECT_EQ(statistik.rueckfaelle, 0);
    EXPECT_NE(statistik.bericht().find("abwerfen:ZH01"), std::string::npos);
}

TEST(Spielerarten, NamenUndUnbekannte) {
    engine::SeedZufall zufall(3);
    players::Tischwissen wissen(zufall);
    players::Spielerumgebung umgebung{wissen, zufall};
    for (std::string_view art : players::spielerarten()) EXPECT_NE(players::spielerErzeugen(art, umgebung), nullptr) << art;
    EXPECT_NE(dynamic_cast<players::Regelwerk*>(players::spielerErzeugen("regelwerk", umgebung).get()), nullptr);
    EXPECT_NE(dynamic_cast<players::KleinsteKarte*>(players::spielerErzeugen("kleinste", umgebung).get()), nullptr);
    EXPECT_EQ(players::spielerErzeugen("Regelwerk", umgebung), nullptr);
    EXPECT_EQ(players::spielerErzeugen("", umgebung), nullptr);
}

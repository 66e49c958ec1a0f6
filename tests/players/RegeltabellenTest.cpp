// The rule tables as data: every sentence carries its own code, codes are unique
// within a position, and the reasoning is counted per procedure and code.
#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>

#include "Karten.h"
#include "Situation.h"
#include "players/EinfacheSpieler.h"
#include "players/Regelstatistik.h"
#include "players/Regelwerk.h"
#include "players/Spielerarten.h"
#include "players/Verfahren.h"

using players::Regel;

namespace {
struct Satz { std::string_view code, text; };
template <class R>
std::vector<Satz> saetze(std::span<const R> regeln) {
    std::vector<Satz> v;
    for (const R& r : regeln) v.push_back({r.code, r.text});
    return v;
}
}  // namespace

TEST(Regeltabellen, SatzTraegtSeinenCode) {
    struct Tabelle { const char* name; std::vector<Satz> regeln; std::string vorsatz; };
    std::vector<Tabelle> tabellen;
    for (int n = 1; n <= 3; ++n) {
        tabellen.push_back({"abwerfen", saetze(players::abwerfenRegeln(n)), "Mld.(abwerfen):"});
        tabellen.push_back({"Farbe_bedienen", saetze(players::farbeBedienenRegeln(n)), "Mld."});
        tabellen.push_back({"Trumpf_bedienen", saetze(players::trumpfBedienenRegeln(n)), "Mld.(Trumpf_bedienen):"});
        tabellen.push_back({"stechen_oder_abwerfen", saetze(players::stechenRegeln(n)), "Mld.(stechen_oder_abwerfen)."});
    }
    for (const auto& t : tabellen) {
        std::set<std::string> texte;
        for (const Satz& r : t.regeln) {
            EXPECT_TRUE(texte.insert(std::string(r.text)).second) << t.name << " " << r.code << " doppelt";
            if (!r.text.starts_with("Mld.")) continue;  // the Zweithand discards report without a code
            EXPECT_TRUE(r.text.starts_with(t.vorsatz + std::string(r.code) + " ")) << t.name << ": " << r.text;
        }
    }
    EXPECT_EQ(players::abwerfenRegeln(2).size(), 26u);
    EXPECT_EQ(players::trumpfBedienenRegeln(3).size(), 13u);
    EXPECT_EQ(players::stechenRegeln(3).size(), 15u);
}

// Every code of the rule lists is a rule, and in Zweithand and Dritthand the rules are
// tried in the numeric order of their codes (the Hinterhand tables keep their given order;
// HH43 closes the Dritthand list of stechen_oder_abwerfen).
TEST(Regeltabellen, AlleCodesInIhrerReihenfolge) {
    struct Liste { const char* name; std::array<std::vector<Satz>, 3> tabellen; std::size_t codes; };
    const Liste listen[] = {
        {"Farbe_bedienen", {saetze(players::farbeBedienenRegeln(1)), saetze(players::farbeBedienenRegeln(2)),
                            saetze(players::farbeBedienenRegeln(3))}, 68},
        {"Trumpf_bedienen", {saetze(players::trumpfBedienenRegeln(1)), saetze(players::trumpfBedienenRegeln(2)),
                             saetze(players::trumpfBedienenRegeln(3))}, 108},
        {"stechen_oder_abwerfen", {saetze(players::stechenRegeln(1)), saetze(players::stechenRegeln(2)),
                                   saetze(players::stechenRegeln(3))}, 107 + 103 + 15},
    };
    for (const Liste& liste : listen) {
        std::set<std::string_view> codes;
        for (const auto& tabelle : liste.tabellen)
            for (const Satz& r : tabelle) codes.insert(r.code);
        EXPECT_EQ(codes.size(), liste.codes) << liste.name;
        for (int position = 0; position < 2; ++position) {
            int vorher = -1;
            for (const Satz& r : liste.tabellen[static_cast<std::size_t>(position)]) {
                if (r.code == "ALL" || r.code == "HH43") continue;
                const int nummer = std::stoi(std::string(r.code.substr(2)));
                EXPECT_LE(vorher, nummer) << liste.name << " " << r.code;
                vorher = nummer;
            }
        }
    }
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

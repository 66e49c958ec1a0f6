#include <gtest/gtest.h>

#include <array>
#include <set>

#include "engine/Regeln.h"

using namespace engine;

// A switch is on exactly when stored as -1; numbers come over as stored.
TEST(RegelnUebernehmen, SchalterNurBeiMinusEinsZahlenUnveraendert) {
    for (const int gespeichert : {-1, 0, 1, 2}) {
        RegelOptionen o;
        o.joker = o.herzZehn = o.bockrunden = o.scharferRupa = gespeichert;
        o.kontra = o.endeNach = o.vorhand = gespeichert + 3;
        const Regeln r = regelnUebernehmen(o);
        const bool an = gespeichert == -1;
        EXPECT_EQ((std::array{r.joker, r.herzZehn, r.bockrunden}), (std::array{an, an, an})) << gespeichert;
        EXPECT_EQ(r.kartenanzahl, an ? 40 : 48) << gespeichert;
        const int zahl = gespeichert + 3;
        EXPECT_EQ((std::array{r.kontra, r.endeNach, r.vorhand}), (std::array{zahl, zahl, zahl})) << gespeichert;
    }
}

// "Zweite schlägt Erste" and the Joker never hold together: the Dollen rule wins.
TEST(RegelnUebernehmen, JokerNurWennDieErsteDolleHochIst) {
    struct Fall { int herzZehn, joker; bool herzZehnAn, jokerAn; };
    for (const Fall& f : {Fall{-1, -1, true, true}, Fall{0, -1, false, false}, Fall{1, -1, false, false},
                          Fall{0, 0, false, false}, Fall{-1, 0, true, false}, Fall{-1, 3, true, false}}) {
        RegelOptionen o;
        o.herzZehn = f.herzZehn;
        o.joker = f.joker;
        const Regeln r = regelnUebernehmen(o);
        EXPECT_EQ(r.herzZehn, f.herzZehnAn) << f.herzZehn << "/" << f.joker;
        EXPECT_EQ(r.joker, f.jokerAn) << f.herzZehn << "/" << f.joker;
        jokerAbgleichen(o);
        EXPECT_EQ(o.joker, f.herzZehn == -1 ? f.joker : 0) << f.herzZehn << "/" << f.joker;
    }
}

TEST(RegelSchluessel, JederSchluesselEinmalMitSeinemStandard) {
    std::set<std::string_view> gesehen;
    const RegelOptionen standard;
    for (const auto& e : regelSchluessel()) {
        EXPECT_TRUE(gesehen.insert(e.schluessel).second) << e.schluessel;
        EXPECT_EQ(standard.*(e.gespeichert), e.standard) << e.schluessel;
        EXPECT_NE(e.schalter == nullptr, e.zahl == nullptr) << e.schluessel;
    }
    const Regeln r = regelnUebernehmen(standard);
    for (const auto& e : regelSchluessel()) EXPECT_EQ(regelWert(r, e), e.standard) << e.schluessel;
}

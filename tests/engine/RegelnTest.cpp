#include <gtest/gtest.h>

#include <set>

#include "engine/Regeln.h"

using namespace engine;

TEST(RegelnUebernehmen, SchalterNurBeiMinusEins) {
    struct Fall { int gespeichert; bool inKraft; };
    for (const Fall f : {Fall{-1, true}, Fall{0, false}, Fall{1, false}, Fall{2, false}}) {
        RegelOptionen o;
        o.joker = f.gespeichert;
        o.herzZehn = f.gespeichert;
        o.bockrunden = f.gespeichert;
        const Regeln r = regelnUebernehmen(o);
        EXPECT_EQ(r.joker, f.inKraft) << f.gespeichert;
        EXPECT_EQ(r.herzZehn, f.inKraft) << f.gespeichert;
        EXPECT_EQ(r.bockrunden, f.inKraft) << f.gespeichert;
    }
}

TEST(RegelnUebernehmen, ZahlenUndKartenanzahl) {
    RegelOptionen o;
    o.kontra = 3;
    o.endeNach = 12;
    o.vorhand = 4;
    EXPECT_EQ(regelnUebernehmen(o).kartenanzahl, 48);
    o.scharferRupa = -1;
    const Regeln r = regelnUebernehmen(o);
    EXPECT_EQ(r.kartenanzahl, 40);
    EXPECT_EQ(r.kontra, 3);
    EXPECT_EQ(r.endeNach, 12);
    EXPECT_EQ(r.vorhand, 4);
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

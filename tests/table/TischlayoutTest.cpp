#include <gtest/gtest.h>

#include "table/Tischlayout.h"

namespace {

using engine::Sitz;
using table::Kartenplatz;
using table::Tischlayout;

struct Teil { std::string name; QPolygonF umriss; };

// Every piece on a full table: the own fan (lifted as high as a selected card
// goes), the three other hands (face down or open), a full trick, name plates, party
// pictures, two announcements per seat and the game corner.
std::vector<std::vector<Teil>> gruppen(const Tischlayout& l, int handgroesse, bool offen) {
    std::vector<std::vector<Teil>> g(4);
    int i = 0;
    for (Kartenplatz p : l.hand(handgroesse)) {
        p.mitte.ry() -= l.anhebung(true);
        g[0].push_back({"Hand " + std::to_string(++i), table::umriss(p, l.kartengroesse())});
    }
    for (const Sitz s : {Sitz(2), Sitz(3), Sitz(4)}) {
        i = 0;
        for (const auto& p : offen ? l.offeneHand(s, handgroesse) : l.verdeckteHand(s, handgroesse))
            g[1].push_back({"Sitz " + std::to_string(s.nr()) + " Karte " + std::to_string(++i),
                            table::umriss(p, offen ? l.offeneKarte(s) : l.kleineKarte())});
    }
    for (const Sitz s : engine::alleSitze)
        g[2].push_back({"Stich " + std::to_string(s.nr()), table::umriss(l.stichplatz(s), l.kartengroesse())});
    for (const Sitz s : engine::alleSitze) {
        g[3].push_back({"Schild " + std::to_string(s.nr()), QPolygonF(l.namensschild(s))});
        g[3].push_back({"Parteibild " + std::to_string(s.nr()), QPolygonF(l.parteibild(s))});
        for (int nr = 0; nr < 2; ++nr)
            g[3].push_back({"Ansage " + std::to_string(s.nr()) + "/" + std::to_string(nr), QPolygonF(l.ansageschild(s, nr))});
    }
    g[3].push_back({"Spielecke", QPolygonF(l.spielecke())});
    return g;
}

struct Flaeche { int breite, hoehe; double seitenverhaeltnis; };

const Flaeche Flaechen[] = {
    {640, 460, 0.69},  {800, 600, 0.69},  {1024, 720, 0.625}, {1280, 1024, 0.69},
    {1920, 1080, 0.72}, {2560, 1080, 0.69}, {900, 1400, 0.69},  {3840, 2160, 0.625},
};

TEST(Tischlayout, AllesLiegtImFensterUndNichtsUeberlappt) {
    for (const auto& f : Flaechen) {
        const QRectF fenster(0, 0, f.breite, f.hoehe);
        const Tischlayout l(fenster.size(), f.seitenverhaeltnis);
        for (const int handgroesse : {12, 10, 1})
        for (const bool offen : {false, true}) {
            const auto g = gruppen(l, handgroesse, offen);
            const std::string fall = std::to_string(f.breite) + "x" + std::to_string(f.hoehe) + " Hand " +
                                     std::to_string(handgroesse) + (offen ? " offen: " : ": ");
            for (const auto& gruppe : g)
                for (const auto& teil : gruppe)
                    EXPECT_TRUE(fenster.adjusted(-0.5, -0.5, 0.5, 0.5).contains(teil.umriss.boundingRect()))
                        << fall << teil.name;
            // Pieces of different groups never touch; plates and pictures not even each other.
            for (std::size_t a = 0; a < g.size(); ++a)
                for (std::size_t b = a; b < g.size(); ++b)
                    for (std::size_t i = 0; i < g[a].size(); ++i)
                        for (std::size_t j = a == b ? i + 1 : 0; j < g[b].size(); ++j) {
                            if (a == b && a != 3) continue;
                            EXPECT_FALSE(g[a][i].umriss.intersects(g[b][j].umriss))
                                << fall << g[a][i].name << " / " << g[b][j].name;
                        }
        }
    }
}

// Of every card of the own hand at least a strip with its corner index shows.
TEST(Tischlayout, JedeHandkarteBleibtLesbar) {
    for (const auto& f : Flaechen) {
        const Tischlayout l(QSizeF(f.breite, f.hoehe), f.seitenverhaeltnis);
        const auto hand = l.hand(12);
        for (std::size_t i = 1; i < hand.size(); ++i)
            EXPECT_GE(hand[i].mitte.x() - hand[i - 1].mitte.x(), 0.33 * l.kartengroesse().width()) << f.breite;
        // The trick cards are as large as the own cards, the backs smaller.
        EXPECT_LT(l.kleineKarte().height(), l.kartengroesse().height());
        EXPECT_GE(l.kartengroesse().height(), 0.2 * std::min<double>(f.hoehe, f.breite * 0.75)) << f.breite << "x" << f.hoehe;
        // Five lines of small print fit into the game corner.
        EXPECT_GE(l.spielecke().height(), 5 * 11) << f.breite << "x" << f.hoehe;
        EXPECT_GE(l.spielecke().width(), 180) << f.breite << "x" << f.hoehe;
    }
}

// Each seat's trick card lies on the seat's side of the table.
TEST(Tischlayout, StichkartenLiegenAufDerSeiteIhresSitzes) {
    const Tischlayout l(QSizeF(1024, 720), 0.69);
    const QPointF mitte = l.stichflaeche().center();
    EXPECT_GT(l.stichplatz(Sitz(1)).mitte.y(), mitte.y());
    EXPECT_LT(l.stichplatz(Sitz(2)).mitte.x(), mitte.x());
    EXPECT_LT(l.stichplatz(Sitz(3)).mitte.y(), mitte.y());
    EXPECT_GT(l.stichplatz(Sitz(4)).mitte.x(), mitte.x());
    EXPECT_LT(l.handmitte(Sitz(2)).x(), l.stichplatz(Sitz(2)).mitte.x());
    EXPECT_GT(l.handmitte(Sitz(4)).x(), l.stichplatz(Sitz(4)).mitte.x());
    EXPECT_LT(l.handmitte(Sitz(3)).y(), l.stichplatz(Sitz(3)).mitte.y());
    EXPECT_GT(l.handmitte(Sitz(1)).y(), l.stichplatz(Sitz(1)).mitte.y());
}

}  // namespace

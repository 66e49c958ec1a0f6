#include <QDir>
#include <QSignalSpy>
#include <functional>
#include <QTest>
#include <gtest/gtest.h>

#include "Bildablage.h"
#include "QtAusgabe.h"

#include "engine/Stichspiel.h"
#include "engine/TestHilfen.h"
#include "table/Handordnung.h"
#include "table/Kartenbilder.h"
#include "table/Tischansicht.h"

namespace {

using namespace engine;

constexpr int k(int farbe, int rang) { return kartencode(farbe, rang); }

// Seat 2 has led Pik; seat 1 holds two Pik cards, so its other cards are shaded.
Spiel spielMitPikAufspiel() {
    Spiel spiel = testhilfe::spielMitHaenden(
        Normalspiel, {{k(Pik, As), k(Pik, Neun), k(Kreuz, Dame), k(Herz, Zehn), k(Karo, As), k(Kreuz, As), k(Herz, Koenig),
                       k(Karo, Bube), k(Herz, Neun), k(Kreuz, Neun), k(Karo, Koenig), k(Pik, Dame)},
                      {k(Pik, Zehn)},
                      {k(Pik, Koenig)},
                      {k(Kreuz, Zehn)}});
    spiel.stich.beginnen(Sitz(2));
    karteSpielen(spiel, testhilfe::positionVon(spiel, Sitz(2), k(Pik, Zehn)));
    karteSpielen(spiel, testhilfe::positionVon(spiel, Sitz(3), k(Pik, Koenig)));
    karteSpielen(spiel, testhilfe::positionVon(spiel, Sitz(4), k(Kreuz, Zehn)));
    return spiel;
}

class TischansichtTest : public ::testing::Test {
protected:
    TischansichtTest() : bilder_(table::Kartenbilder::standardSuchpfade()), tisch_(bilder_) {
        tisch_.resize(1024, 720);
        tisch_.setzeSpiel(&spiel_);
        tisch_.setzeAmZug(Sitz(1));
        tisch_.setzeKartenwahl(true);
        tisch_.show();
    }
    int karteAn(int index) const { return tisch_.handfolge()[static_cast<std::size_t>(index)]; }

    Spiel spiel_ = spielMitPikAufspiel();
    table::Kartenbilder bilder_;
    table::Tischansicht tisch_;
};

TEST_F(TischansichtTest, KlickWaehltDieGetroffeneKarteNurBeiFreigabe) {
    for (const bool freigabe : {true, false}) {
        tisch_.setzeKartenwahl(freigabe);
        for (const int index : {0, 5, 11}) {
            QSignalSpy gewaehlt(&tisch_, &table::Tischansicht::karteGewaehlt);
            QTest::mouseClick(&tisch_, Qt::LeftButton, {}, tisch_.kartenmitte(karteAn(index)).toPoint());
            if (!freigabe) {
                EXPECT_EQ(gewaehlt.count(), 0) << index;
                continue;
            }
            // Shaded cards are reported too: refusing them with the box is the caller's job.
            ASSERT_EQ(gewaehlt.count(), 1) << index;
            EXPECT_EQ(gewaehlt.first().first().toInt(), karteAn(index)) << index;
        }
    }
}

TEST_F(TischansichtTest, TastaturWaehltUndSpielt) {
    const struct {
        const char* name;
        std::vector<Qt::Key> tasten;
        int erwarteterIndex;  // -1: no card chosen
    } faelle[] = {
        {"rechts, Eingabe", {Qt::Key_Right, Qt::Key_Return}, 0},
        {"Ende, Leertaste", {Qt::Key_End, Qt::Key_Space}, 11},
        {"links zweimal", {Qt::Key_Left, Qt::Key_Left, Qt::Key_Enter}, 10},
        {"rechts über das Ende", {Qt::Key_End, Qt::Key_Right, Qt::Key_Return}, 0},
        {"Ziffer 3", {Qt::Key_3}, 2},
        {"Ziffer 0 ist die zehnte", {Qt::Key_0}, 9},
        {"ß ist die elfte", {Qt::Key_ssharp}, 10},
        {"Eingabe ohne Auswahl", {Qt::Key_Return}, -1},
    };
    for (const auto& f : faelle) {
        table::Tischansicht tisch(bilder_);
        tisch.resize(1024, 720);
        tisch.setzeSpiel(&spiel_);
        tisch.setzeKartenwahl(true);
        QSignalSpy gewaehlt(&tisch, &table::Tischansicht::karteGewaehlt);
        for (const Qt::Key taste : f.tasten) QTest::keyClick(&tisch, taste);
        if (f.erwarteterIndex < 0) {
            EXPECT_EQ(gewaehlt.count(), 0) << f.name;
            continue;
        }
        ASSERT_EQ(gewaehlt.count(), 1) << f.name;
        EXPECT_EQ(gewaehlt.first().first().toInt(), tisch.handfolge()[static_cast<std::size_t>(f.erwarteterIndex)]) << f.name;
    }
}

TEST_F(TischansichtTest, ZifferHinterDerLetztenKarteUndOhneFreigabeTutNichts) {
    QSignalSpy gewaehlt(&tisch_, &table::Tischansicht::karteGewaehlt);
    spiel_.deck[karteAn(0)].status = Gespielt;
    tisch_.neuZeichnen();
    QTest::keyClick(&tisch_, Qt::Key_ssharp);
    QTest::keyClick(&tisch_, Qt::Key_Apostrophe);  // a twelfth card is gone
    EXPECT_EQ(gewaehlt.count(), 1);
    tisch_.setzeKartenwahl(false);
    QTest::keyClick(&tisch_, Qt::Key_1);
    QTest::keyClick(&tisch_, Qt::Key_Return);
    EXPECT_EQ(gewaehlt.count(), 1);
}

TEST_F(TischansichtTest, KlickAufDenStichMeldetDenStich) {
    QSignalSpy stich(&tisch_, &table::Tischansicht::stichGeklickt);
    QSignalSpy karte(&tisch_, &table::Tischansicht::karteGewaehlt);
    QTest::mouseClick(&tisch_, Qt::LeftButton, {}, tisch_.stichmitte().toPoint());
    EXPECT_EQ(stich.count(), 1);
    QTest::mouseClick(&tisch_, Qt::LeftButton, {}, QPoint(tisch_.width() / 2, tisch_.height() / 2 - 260));
    QTest::mouseClick(&tisch_, Qt::LeftButton, {}, QPoint(5, tisch_.height() / 2));
    EXPECT_EQ(stich.count(), 1);
    EXPECT_EQ(karte.count(), 0);
}

// The fan shows the hand in the order of Handordnung (tested there).
TEST_F(TischansichtTest, HandLiegtSortiert) {
    EXPECT_EQ(tisch_.handfolge(), table::sortierteHand(spiel_, Sitz(1)));
}

TEST_F(TischansichtTest, BewegungEndetImmerUeberDieEreignisschleife) {
    for (const bool animation : {false, true}) {
        table::Anzeigeoptionen optionen;
        optionen.animation = animation;
        tisch_.setzeOptionen(optionen);
        QSignalSpy fertig(&tisch_, &table::Tischansicht::bewegungFertig);
        const int pos = karteAn(11);  // Pik-Neun, legal on the Pik lead
        karteSpielen(spiel_, pos);
        tisch_.karteFliegen(pos, Sitz(1));
        EXPECT_EQ(fertig.count(), 0) << animation;
        EXPECT_TRUE(tisch_.bewegtSich());
        EXPECT_EQ(tisch_.handfolge().size(), 11u);
        ASSERT_TRUE(fertig.wait(2000)) << animation;
        EXPECT_FALSE(tisch_.bewegtSich());

        // The collected trick is gone from the table afterwards.
        const QPointF ort = tisch_.layout().stichplatz(Sitz(3)).mitte;
        const QImage vorher = tisch_.grab().toImage();
        tisch_.stichEinsammeln(Sitz(3));
        ASSERT_TRUE(fertig.wait(2000)) << animation;
        EXPECT_EQ(fertig.count(), 2);
        tisch_.setzeSpiel(nullptr);
        const QImage filz = tisch_.grab().toImage();
        tisch_.setzeSpiel(&spiel_);
        const QImage nachher = tisch_.grab().toImage();
        EXPECT_NE(vorher.pixel(ort.toPoint()), filz.pixel(ort.toPoint()));
        EXPECT_EQ(nachher.pixel(ort.toPoint()), filz.pixel(ort.toPoint())) << animation;
        spiel_ = spielMitPikAufspiel();
        tisch_.setzeStichSichtbar(true);
        tisch_.neuZeichnen();
    }
}

// The pictured table: every own card and every trick card is drawn where the layout
// puts it. With TRUMPONA_TESTBILDER set the pictures are kept for looking at.
TEST_F(TischansichtTest, TischBildMitFranzoesischenUndDeutschenKarten) {
    for (const int kartenbild : {1, 2}) {
        table::Anzeigeoptionen optionen;
        optionen.kartenbild = kartenbild;
        tisch_.setzeOptionen(optionen);
        engine::ProSitz<int> parteien;
        parteien[Sitz(1)] = 5;
        parteien[Sitz(2)] = 2;
        parteien[Sitz(3)] = 3;
        parteien[Sitz(4)] = 4;
        tisch_.setzeParteibilder(parteien);
        const QImage bild = tisch_.grab().toImage();
        testhilfe::bildAblegen(tisch_, QStringLiteral("tisch-%1").arg(kartenbild));

        // Compared with the bare table, every own card and every trick card shows.
        tisch_.setzeSpiel(nullptr);
        const QImage filz = tisch_.grab().toImage();
        tisch_.setzeSpiel(&spiel_);
        auto gleich = [&](QPointF p) { return bild.pixel(p.toPoint()) == filz.pixel(p.toPoint()); };
        for (int pos : tisch_.handfolge()) EXPECT_FALSE(gleich(tisch_.kartenmitte(pos))) << kartenbild << " " << pos;
        const table::Tischlayout l = tisch_.layout();
        for (const Sitz s : {Sitz(2), Sitz(3), Sitz(4)}) EXPECT_FALSE(gleich(l.stichplatz(s).mitte)) << s.nr();
        // Seat 1 has not played yet: its place in the trick is bare felt.
        EXPECT_TRUE(gleich(l.stichplatz(Sitz(1)).mitte + QPointF(0, l.kartengroesse().height() * 0.45)));
    }
}

// Share of the pixels in `feld` for which `passt` holds.
double anteil(const QImage& bild, const QRectF& feld, const std::function<bool(QColor)>& passt) {
    int n = 0, ja = 0;
    for (int y = static_cast<int>(feld.top()); y < static_cast<int>(feld.bottom()); ++y)
        for (int x = static_cast<int>(feld.left()); x < static_cast<int>(feld.right()); ++x, ++n)
            ja += passt(bild.pixelColor(x, y));
    return n ? static_cast<double>(ja) / n : 0;
}

bool golden(QColor c) { return c.red() > 200 && c.green() > 140 && c.blue() < 90; }
bool rot(QColor c) { return c.red() > 150 && c.green() < 90 && c.blue() < 90; }
bool blau(QColor c) { return c.blue() > 130 && c.red() < 90; }

// While the full trick lies, its winning card is framed in gold; the others are not.
TEST_F(TischansichtTest, GewinnerDesVollenStichsIstMarkiert) {
    const int as = testhilfe::positionVon(spiel_, Sitz(1), k(Pik, As));
    karteSpielen(spiel_, as);
    spiel_.stiche.push_back({spiel_.stich.aufspieler, {}, {}, stichGewinner(spiel_), 0});
    tisch_.setzeKartenwahl(false);
    tisch_.neuZeichnen();
    const table::Tischlayout l = tisch_.layout();
    // A strip along the top edge of a trick card, inside it.
    auto oberkante = [&](Sitz s) {
        const table::Kartenplatz p = l.stichplatz(s);
        const QSizeF g = l.kartengroesse();
        return QRectF(p.mitte - QPointF(g.width() * 0.3, g.height() / 2 - 1), QSizeF(g.width() * 0.6, 2));
    };
    for (const bool voll : {false, true}) {
        spiel_.ablauf.phase = voll ? Spielphase::StichVoll : Spielphase::Kartenspiel;
        const QImage bild = tisch_.grab().toImage();
        testhilfe::bildAblegen(tisch_, QStringLiteral("stich-gewinner-%1").arg(voll));
        EXPECT_EQ(tisch_.stichgewinnerKarte(), voll ? as : 0);
        EXPECT_EQ(anteil(bild, oberkante(Sitz(1)), golden) > 0.5, voll);
        for (const Sitz s : {Sitz(2), Sitz(3), Sitz(4)}) EXPECT_LT(anteil(bild, oberkante(s), golden), 0.1) << s.nr();
    }
}

// Re, Kontra and a limit stay beside the seats that announced them, in their side's colour;
// the game corner names game, number, dealer and Vorhand.
TEST_F(TischansichtTest, AnsagenUndSpieleckeAmTisch) {
    spiel_.partei[Sitz(2)] = ParteiKontra;
    spiel_.partei[Sitz(3)] = ParteiRe;
    spiel_.ablauf.phase = Spielphase::Kartenspiel;
    spiel_.partie.spielNr = 5;
    const QImage ohne = tisch_.grab().toImage();
    spiel_.reAngesagt[Sitz(3)] = true;
    spiel_.limitSitz = Sitz(3);
    spiel_.limitCode = Keine90;
    spiel_.kontraAngesagt[Sitz(2)] = true;
    const QImage mit = tisch_.grab().toImage();
    testhilfe::bildAblegen(tisch_, QStringLiteral("tisch-ansagen"));
    const table::Tischlayout l = tisch_.layout();
    const QRectF re = l.ansageschild(Sitz(3), 0), limit = l.ansageschild(Sitz(3), 1), kontra = l.ansageschild(Sitz(2), 0);
    EXPECT_EQ(anteil(ohne, re, rot), 0);
    EXPECT_GT(anteil(mit, re, rot), 0.05);
    EXPECT_GT(anteil(mit, limit, rot), 0.05);
    EXPECT_GT(anteil(mit, kontra, blau), 0.05);
    EXPECT_EQ(anteil(mit, l.ansageschild(Sitz(2), 1), blau), 0);
    // The corner shows its lines only once a game is under way.
    EXPECT_EQ(ohne.copy(l.spielecke().toRect()), mit.copy(l.spielecke().toRect()));
    spiel_.ablauf.phase = Spielphase::Geben;
    EXPECT_NE(tisch_.grab().toImage().copy(l.spielecke().toRect()), mit.copy(l.spielecke().toRect()));
}

// A window forced below the table's minimum (a window manager that ignores it)
// shows the whole table smaller instead of cutting it off, and clicks still hit.
TEST_F(TischansichtTest, ZuKleinWirdVerkleinertNichtAbgeschnitten) {
    tisch_.resize(400, 300);
    const qreal m = tisch_.massstab();
    EXPECT_LT(m, 1);
    const table::Tischlayout l = tisch_.layout();
    EXPECT_GE(l.flaeche().width(), tisch_.minimumSizeHint().width() - 0.5);
    EXPECT_GE(l.flaeche().height(), tisch_.minimumSizeHint().height() - 0.5);
    const QRectF fenster(QPointF(0, 0), QSizeF(tisch_.size()) + QSizeF(0.5, 0.5));
    for (const Sitz s : {Sitz(2), Sitz(3), Sitz(4)})
        for (const auto& p : l.verdeckteHand(s, 12))
            EXPECT_TRUE(fenster.contains(QRectF(table::umriss(p, l.kleineKarte()).boundingRect().topLeft() * m,
                                                table::umriss(p, l.kleineKarte()).boundingRect().bottomRight() * m)))
                << s.nr();
    testhilfe::bildAblegen(tisch_, QStringLiteral("tisch-400x300"));
    QSignalSpy gewaehlt(&tisch_, &table::Tischansicht::karteGewaehlt);
    QTest::mouseClick(&tisch_, Qt::LeftButton, {}, tisch_.kartenmitte(karteAn(7)).toPoint());
    ASSERT_EQ(gewaehlt.count(), 1);
    EXPECT_EQ(gewaehlt.first().first().toInt(), karteAn(7));
}

}  // namespace

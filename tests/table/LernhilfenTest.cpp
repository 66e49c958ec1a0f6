// The learning aids at a real table: statistics over Partien, the review from the end
// box and the menu, open hands, the window of cards played.
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "Bildablage.h"
#include "QtAusgabe.h"
#include "Testdateiwahl.h"
#include "settings/Benutzerspeicher.h"
#include "table/Hauptfenster.h"
#include "table/Kartenuebersicht.h"
#include "table/Lernhilfen.h"
#include "table/Spielendedialog.h"
#include "table/Spielverlaufdialog.h"
#include "table/Statistikdialog.h"
#include "table/Tischansicht.h"
#include "table/Tischprogramm.h"
#include "table/Tischsteuerung.h"

namespace {

using engine::Sitz;

struct Lerntisch {
    explicit Lerntisch(const QString& ordner, int spieleJePartie = 1)
        : steuerung(hfo, std::make_unique<engine::SeedZufall>(7)),
          programm(hfo, steuerung, speicher, wahl, QDir(ordner).filePath(QStringLiteral("rupalive.ini"))) {
        settings::Einstellungen e;
        e.animation = 0;
        e.namen = {"Anna", "Bert", "Cleo", "Dora"};
        e.regeln.endeNach = spieleJePartie;
        programm.EinstUebernehmen(e, programm.benutzer());
        steuerung.setzeTempo({0, 0});
        hfo.resize(1024, 768);
        hfo.show();
    }
    settings::Benutzerspeicher speicher;
    testhilfe::Testdateiwahl wahl;
    table::Hauptfenster hfo;
    table::Tischsteuerung steuerung;
    table::Tischprogramm programm;
};

class LernhilfenTest : public ::testing::Test {
protected:
    LernhilfenTest() {
        settings::Benutzerspeicher().zuruecksetzen(ordner_.filePath(QStringLiteral("rupalive.ini")));
        table::Statistikspeicher().loeschen();
        QObject::connect(&pumpe_, &QTimer::timeout, [this] {
            if (geplant_ || !QApplication::activeModalWidget()) return;
            geplant_ = true;
            // Each answer from a timer of its own: a button that opens the next dialog waits in it.
            QTimer::singleShot(0, [this] {
                geplant_ = false;
                if (QWidget* modal = QApplication::activeModalWidget()) antworten(modal);
            });
        });
        pumpe_.start(2);
    }
    ~LernhilfenTest() override { pumpe_.stop(); }

    void antworten(QWidget* modal) {
        if (auto* verlauf = qobject_cast<table::Spielverlaufdialog*>(modal)) {
            // Paged with the keys, as a person would.
            const int anzahl = verlauf->anzahl();
            for (const auto& [taste, erwartet] : {std::pair{Qt::Key_Right, 1}, {Qt::Key_Right, 2}, {Qt::Key_Left, 1},
                                                  {Qt::Key_End, anzahl - 1}, {Qt::Key_Right, anzahl - 1}, {Qt::Key_Home, 0}}) {
                QTest::keyClick(verlauf, taste);
                EXPECT_EQ(verlauf->schritt(), erwartet);
            }
            verlauf->gehe(1);
            verlaufTexte_ << verlauf->text();
            testhilfe::bildAblegen(*verlauf, QStringLiteral("spielverlauf"));
            verlauf->accept();
        } else if (auto* ende = qobject_cast<table::Spielendedialog*>(modal)) {
            auto* knopf = ende->findChild<QPushButton*>(QStringLiteral("spielverlauf"));
            if (knopf && verlaufTexte_.isEmpty() && !verlaufGeoeffnet_) {
                verlaufGeoeffnet_ = true;
                knopf->click();
            } else {
                ende->accept();
            }
        } else if (auto* statistik = qobject_cast<table::Statistikdialog*>(modal)) {
            statistikSpalten_ = statistik->tabelle().columnCount();
            testhilfe::bildAblegen(*statistik, QStringLiteral("statistik"));
            statistik->accept();
        } else if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            QAbstractButton* nein = box->button(QMessageBox::No);
            (nein ? nein : box->buttons().first())->click();
        } else if (auto* dialog = qobject_cast<QDialog*>(modal)) {
            dialog->reject();
        }
    }

    QTemporaryDir ordner_;
    QTimer pumpe_;
    bool geplant_ = false;
    bool verlaufGeoeffnet_ = false;
    QStringList verlaufTexte_;
    int statistikSpalten_ = -1;
};

// Three Partien of three games each: the statistics count them per name, the end box
// of the first game offers the review, the menu shows both afterwards.
TEST_F(LernhilfenTest, DreiPartienStatistikUndSpielverlauf) {
    Lerntisch t(ordner_.path(), 3);
    QSignalSpy ende(&t.steuerung, &table::Tischsteuerung::partieBeendet);
    t.hfo.automatikAktion()->trigger();
    for (int partie = 1; partie <= 3; ++partie) {
        t.steuerung.neuePartie();
        ASSERT_TRUE(ende.wait(60000)) << partie;
    }
    ASSERT_EQ(verlaufTexte_.size(), 1);
    const engine::Spiel& letztes = t.steuerung.letztesSpiel();
    EXPECT_TRUE(verlaufTexte_.front().contains(QStringLiteral("1. Stich")));

    const table::Statistik st = table::Statistikspeicher().laden();
    ASSERT_EQ(st.spieler.size(), 4u);
    int gewonnen = 0;
    for (const auto& s : st.spieler) {
        EXPECT_EQ(s.partien, 3) << s.name;
        EXPECT_EQ(s.spiele.anzahl, 9) << s.name;
        EXPECT_EQ(s.re.anzahl + s.kontra.anzahl, 9) << s.name;
        gewonnen += s.spiele.gewonnen;
    }
    EXPECT_GT(gewonnen, 0);
    EXPECT_EQ(st.letztePartie.staende.size(), 3u);
    EXPECT_EQ(st.letztePartie.namen[Sitz(2)], "Bert");

    t.hfo.statistikAktion()->trigger();
    EXPECT_EQ(statistikSpalten_, 4);

    // The menu's review shows the last game: its last trick's winner is named.
    emit t.hfo.spielMenue()->aboutToShow();
    ASSERT_TRUE(t.hfo.spielverlaufAktion()->isEnabled());
    t.hfo.spielverlaufAktion()->trigger();
    ASSERT_EQ(verlaufTexte_.size(), 2);
    EXPECT_TRUE(verlaufTexte_.back().contains(QString::fromStdString(letztes.namen[letztes.stiche.front().gewinner])));
}

TEST_F(LernhilfenTest, AlleKartenZeigenUndGespielteKarten) {
    {
        Lerntisch t(ordner_.path(), 24);
        table::Tischansicht& tisch = t.hfo.tisch();
        EXPECT_FALSE(t.hfo.alleKartenAktion()->isChecked());
        t.steuerung.neuePartie();
        ASSERT_TRUE(QTest::qWaitFor([&] { return tisch.kartenwahl() && !QApplication::activeModalWidget(); }, 20000));
        const QImage verdeckt = tisch.grab().toImage();
        t.hfo.alleKartenAktion()->trigger();
        EXPECT_TRUE(tisch.offeneHaende());
        const QImage offen = tisch.grab().toImage();
        testhilfe::bildAblegen(tisch, QStringLiteral("alle-karten"));
        // Seat 2's column shows faces now: its area changed, seat 1's fan did not.
        const QPointF links = tisch.layout().handmitte(Sitz(2));
        EXPECT_NE(verdeckt.copy(QRect(0, static_cast<int>(links.y()) - 40, 60, 80)),
                  offen.copy(QRect(0, static_cast<int>(links.y()) - 40, 60, 80)));
        const QPointF unten = tisch.kartenmitte(tisch.handfolge().front());
        EXPECT_EQ(verdeckt.pixel(unten.toPoint()), offen.pixel(unten.toPoint()));

        // The cards played: a window beside the table that follows the game.
        t.hfo.gespielteKartenAktion()->trigger();
        table::Kartenuebersicht* fenster = t.programm.lernhilfen().kartenuebersicht();
        ASSERT_NE(fenster, nullptr);
        EXPECT_TRUE(fenster->isVisible());
        EXPECT_FALSE(fenster->isModal());
        const QImage vorher = fenster->grab().toImage();
        const int karten = static_cast<int>(tisch.handfolge().size());
        QTest::mouseClick(&tisch, Qt::LeftButton, {}, tisch.kartenmitte(tisch.handfolge().front()).toPoint());
        const std::vector<int> folge = tisch.handfolge();  // a played card changes the hand under us
        for (int pos : folge) {
            if (static_cast<int>(tisch.handfolge().size()) < karten) break;
            QTest::mouseClick(&tisch, Qt::LeftButton, {}, tisch.kartenmitte(pos).toPoint());
        }
        ASSERT_TRUE(QTest::qWaitFor([&] { return static_cast<int>(tisch.handfolge().size()) < karten; }, 5000));
        testhilfe::bildAblegen(*fenster, QStringLiteral("gespielte-karten"));
        EXPECT_NE(fenster->grab().toImage(), vorher);
    }
    // The choice is kept for the next start.
    Lerntisch wieder(ordner_.path());
    EXPECT_TRUE(wieder.hfo.alleKartenAktion()->isChecked());
    EXPECT_TRUE(wieder.hfo.tisch().offeneHaende());
}

}  // namespace

#include <QAbstractButton>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QPushButton>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <gtest/gtest.h>

#include "Bildablage.h"
#include "Modal.h"
#include "QtAusgabe.h"
#include "engine/Stichspiel.h"
#include "engine/Zufall.h"
#include "players/Tischwissen.h"
#include "table/Auswahldialoge.h"
#include "table/Hauptfenster.h"
#include "table/Meldungsdialog.h"
#include "table/Spielendedialog.h"
#include "table/Spielzettel.h"
#include "table/Tischansicht.h"
#include "table/Tischsteuerung.h"

namespace {

using engine::Sitz;

// Answers every box the table opens the way a cautious person would (no solo, no
// redeal, OK) and notes what it saw.
struct Boxenbeantworter {
    std::vector<QString> falscheKarte;
    std::vector<QString> spielende;
    std::vector<std::vector<QString>> spielzettel;  // rows of the sheet, cells joined
    std::vector<QString> statusBeiSonderpunkt;  // the status line behind each special point box
    int andere = 0;
    const table::Hauptfenster* hfo = nullptr;

    void beantworten(QWidget* w) {
        if (auto* meldung = qobject_cast<table::Meldungsdialog*>(w)) {
            if (meldung->windowTitle() == QStringLiteral("Sonderpunkt!") && hfo) statusBeiSonderpunkt.push_back(hfo->status());
            meldung->accept();
        } else if (auto* box = qobject_cast<QMessageBox*>(w)) {
            if (box->windowTitle() == QStringLiteral("Falsche Karte!")) falscheKarte.push_back(box->text());
            else ++andere;
            QAbstractButton* nein = box->button(QMessageBox::No);
            (nein ? nein : box->buttons().first())->click();
        } else if (auto* ende = qobject_cast<table::Spielendedialog*>(w)) {
            spielende.push_back(ende->text());
            testhilfe::bildAblegen(*ende, QStringLiteral("spielende-echt"));
            ende->accept();
        } else if (auto* zettel = w->findChild<table::Spielzettel*>()) {
            std::vector<QString> zeilen;
            const QTableWidget& t = zettel->tabelle();
            for (int r = 0; r < t.rowCount(); ++r) {
                QStringList zellen;
                for (int c = 0; c < t.columnCount(); ++c) zellen << t.item(r, c)->text();
                zeilen.push_back(zellen.join(QLatin1Char(' ')));
            }
            spielzettel.push_back(zeilen);
            testhilfe::bildAblegen(*w, QStringLiteral("spielzettel-echt"));
            // Closed with its own button.
            auto* knoepfe = w->findChild<QDialogButtonBox*>();
            ASSERT_NE(knoepfe, nullptr);
            ASSERT_NE(knoepfe->button(QDialogButtonBox::Close), nullptr);
            knoepfe->button(QDialogButtonBox::Close)->click();
        } else if (auto* dialog = qobject_cast<QDialog*>(w)) {
            ++andere;
            dialog->reject();
        }
    }
};

class TischsteuerungTest : public ::testing::Test {
protected:
    TischsteuerungTest() : steuerung_(hfo_, std::make_unique<engine::SeedZufall>(20240611)) {
        table::Anzeigeoptionen optionen;
        optionen.animation = false;
        steuerung_.setzeOptionen(optionen);
        steuerung_.setzeTempo({0, 0});
        hfo_.resize(1024, 768);
        hfo_.show();
        boxen_.hfo = &hfo_;
        QObject::connect(&pumpe_, &QTimer::timeout, [this] {
            if (QWidget* modal = QApplication::activeModalWidget()) boxen_.beantworten(modal);
        });
        pumpe_.start(2);
    }
    ~TischsteuerungTest() override { pumpe_.stop(); }

    table::Hauptfenster hfo_;
    table::Tischsteuerung steuerung_;
    Boxenbeantworter boxen_;
    QTimer pumpe_;
};

// What the menu showed each time seat 1 was to play.
struct Menuestand {
    int sticheGespielt;
    int kartenImStich;
    bool reKontra;
    bool limits;
    engine::ProSitz<int> parteibilder;  // as the table shows them
    engine::ProSitz<int> zeigerBild;    // as the computer players' knowledge has them
    QString status;
};

engine::ProSitz<int> unbekannteBilder() {
    engine::ProSitz<int> b;
    for (const Sitz s : engine::alleSitze) b[s] = players::parteibild(s, engine::ParteiUnbekannt);
    return b;
}

TEST_F(TischsteuerungTest, GanzesSpielMitGeklicktenKartenVonSitz1) {
    table::Tischansicht& tisch = hfo_.tisch();
    const engine::Spiel& spiel = steuerung_.spiel();
    bool falschVersucht = false;
    int geklickt = 0;
    std::vector<Menuestand> menues;
    QTimer spieler;
    QObject::connect(&spieler, &QTimer::timeout, [&] {
        if (!tisch.kartenwahl() || QApplication::activeModalWidget()) return;
        menues.push_back({spiel.sticheGespielt, spiel.stich.anzahl, hfo_.reKontraAktion()->isEnabled(),
                          hfo_.limitMenue()->isEnabled(), tisch.parteibilder(), steuerung_.wissen().zeigerBild,
                          hfo_.status()});
        int wahl = 0;
        for (int pos : tisch.handfolge()) {
            const bool erlaubt = engine::karteErlaubt(spiel, Sitz(1), pos);
            if (!falschVersucht && !erlaubt) {
                wahl = pos;
                falschVersucht = true;
                break;
            }
            if (erlaubt && wahl == 0) wahl = pos;
        }
        QTest::mouseClick(&tisch, Qt::LeftButton, {}, tisch.kartenmitte(wahl).toPoint());
        ++geklickt;
    });
    spieler.start(3);
    QSignalSpy gewertet(&steuerung_, &table::Tischsteuerung::spielGewertet);
    steuerung_.neuePartie();
    ASSERT_TRUE(gewertet.wait(60000));
    spieler.stop();

    const engine::Spiel& gespielt = steuerung_.letztesSpiel();
    EXPECT_EQ(gespielt.stiche.size(), 12u);
    // Every card of seat 1 came from a click; a refused click left its card in the hand
    // and the turn with seat 1.
    EXPECT_EQ(geklickt, 12 + static_cast<int>(boxen_.falscheKarte.size()));
    // The seeded deal gives seat 1 a chance to try an illegal card.
    ASSERT_TRUE(falschVersucht);
    ASSERT_EQ(boxen_.falscheKarte.size(), 1u);
    EXPECT_TRUE(boxen_.falscheKarte.front().contains(QStringLiteral("obwohl Sie noch")));
    // The end box showed the engine's scoring, and the score sheet its points.
    ASSERT_EQ(boxen_.spielende.size(), 1u);
    EXPECT_EQ(boxen_.spielende.front(), QString::fromStdString(gespielt.ergebnis.text));
    ASSERT_EQ(steuerung_.spielzettelZeilen().size(), 1u);
    EXPECT_EQ(steuerung_.spielzettelZeilen().front(), gespielt.ergebnis.punkte);
    hfo_.spielzettelAktion()->trigger();
    ASSERT_EQ(boxen_.spielzettel.size(), 1u);
    // Per game what was played, who won, the Augen, announcements and special points, then the points.
    const engine::Spielergebnis& e = gespielt.ergebnis;
    const auto& p = e.punkte;
    const QString punkte = QStringLiteral("%1 %2 %3 %4").arg(p[Sitz(1)]).arg(p[Sitz(2)]).arg(p[Sitz(3)]).arg(p[Sitz(4)]);
    const QString angaben = QString::fromStdString(table::spielart(gespielt, true, true)) + QLatin1Char(' ') +
                            (e.gewinner == engine::ParteiRe ? QStringLiteral("Re") : QStringLiteral("Kontra")) +
                            QStringLiteral(" %1 : %2 ").arg(e.augenRe).arg(e.augenKontra);
    ASSERT_EQ(boxen_.spielzettel.front().size(), 2u);
    EXPECT_TRUE(boxen_.spielzettel.front().front().startsWith(angaben)) << boxen_.spielzettel.front().front().toStdString();
    EXPECT_TRUE(boxen_.spielzettel.front().front().endsWith(punkte));
    EXPECT_EQ(boxen_.spielzettel.front().back(), QStringLiteral("     ") + punkte);  // the totals after one game
    for (const engine::Sonderpunkt& sp : gespielt.sonderpunkte)
        EXPECT_TRUE(boxen_.spielzettel.front().front().contains(QString::fromStdString(sp.art)));
    // A special point is shown while its full trick lies, and the status line says so.
    EXPECT_FALSE(boxen_.statusBeiSonderpunkt.empty());
    for (const QString& status : boxen_.statusBeiSonderpunkt) EXPECT_EQ(status, QStringLiteral("Stich komplett... bitte warten"));

    // Re/Kontra up to and including the fifth trick, limits from the first card on.
    ASSERT_FALSE(menues.empty());
    for (const auto& m : menues) {
        EXPECT_EQ(m.status, QStringLiteral("Ihre Karte bitte!"));
        const bool frist = m.sticheGespielt < 5;
        if (!frist) {
            EXPECT_FALSE(m.reKontra) << m.sticheGespielt;
        }
        EXPECT_EQ(m.limits, frist && (m.sticheGespielt > 0 || m.kartenImStich > 0)) << m.sticheGespielt;
    }

    // The party pictures: seat 1 shows its own party from the first card on; every
    // other seat what the table's indicator knows, and never a wrong party.
    ASSERT_FALSE(gespielt.hochzeiter.has_value());
    for (const auto& m : menues) {
        EXPECT_EQ(m.parteibilder[Sitz(1)], players::parteibild(Sitz(1), engine::seite(gespielt, Sitz(1)))) << m.sticheGespielt;
        for (const Sitz s : {Sitz(2), Sitz(3), Sitz(4)}) {
            const int bild = m.parteibilder[s];
            EXPECT_TRUE(bild == unbekannteBilder()[s] || bild == players::parteibild(s, engine::seite(gespielt, s)))
                << m.sticheGespielt << " " << s.nr();
            if (m.zeigerBild[s] > 0) {
                EXPECT_EQ(bild, m.zeigerBild[s]) << m.sticheGespielt << " " << s.nr();
            }
        }
    }
}

// Automatic play runs through games without anybody at the table: the game's
// messages pass in the status line and the end box closes by itself.
TEST_F(TischsteuerungTest, AutomatikWartetAufKeineBox) {
    pumpe_.stop();
    steuerung_.setzeTempo({0, 0, 0, 0, 60});  // the end box stays 60 ms
    QStringList gesehen;
    QWidget* offen = nullptr;
    QTimer zuschauer;
    QObject::connect(&zuschauer, &QTimer::timeout, [&] {
        QWidget* w = QApplication::activeModalWidget();
        if (w && w != offen) gesehen << w->windowTitle();
        offen = w;
    });
    zuschauer.start(1);
    QSignalSpy gewertet(&steuerung_, &table::Tischsteuerung::spielGewertet);
    steuerung_.neuePartie();
    hfo_.automatikAktion()->trigger();
    EXPECT_EQ(hfo_.automatikAktion()->text(), QStringLiteral("&Automatik abbrechen"));
    ASSERT_TRUE(gewertet.wait(20000));
    ASSERT_TRUE(gewertet.wait(20000));
    zuschauer.stop();
    pumpe_.start(2);
    EXPECT_EQ(steuerung_.spielzettelZeilen().size(), 2u);
    // Only the end boxes came, and went again by themselves.
    EXPECT_EQ(gesehen, (QStringList{QStringLiteral("Spielergebnis"), QStringLiteral("Spielergebnis")}));
    hfo_.automatikAktion()->trigger();
    EXPECT_EQ(hfo_.automatikAktion()->text(), QStringLiteral(" &Automatisch spielen "));
}

// A new Partie over a running one needs a deliberate "Ja": Enter (a key held down
// from the last box) or Escape keep the Partie, and the game waits under the question.
TEST_F(TischsteuerungTest, NeuePartieNurNachBewussterAntwort) {
    pumpe_.stop();
    steuerung_.neuePartie();
    hfo_.automatikAktion()->trigger();
    ASSERT_TRUE(QTest::qWaitFor([&] { return steuerung_.spiel().sticheGespielt >= 2; }, 20000));
    const struct {
        Qt::Key taste;
        bool neu;
    } faelle[] = {{Qt::Key_Return, false}, {Qt::Key_Escape, false}, {Qt::Key_Y, true}};
    for (const auto& f : faelle) {
        const engine::Spiel vorher = steuerung_.spiel();
        QString frage;
        bool gewartet = false;
        testhilfe::modalBeantworten([&](QWidget* w) {
            auto* box = qobject_cast<QMessageBox*>(w);
            if (!box) return;
            frage = box->text();
            const int karten = steuerung_.spiel().sticheGespielt * 4 + steuerung_.spiel().stich.anzahl;
            QTest::qWait(50);
            gewartet = karten == steuerung_.spiel().sticheGespielt * 4 + steuerung_.spiel().stich.anzahl;
            if (f.taste == Qt::Key_Y) box->button(QMessageBox::Yes)->click();
            else QTest::keyClick(box, f.taste);
        });
        hfo_.neuePartieAktion()->trigger();
        EXPECT_EQ(frage, QStringLiteral("Möchten Sie die laufende Partie abbrechen?"));
        EXPECT_TRUE(gewartet) << f.taste;
        if (f.neu) {
            EXPECT_EQ(steuerung_.spiel().sticheGespielt, 0);
            EXPECT_TRUE(steuerung_.spielzettelZeilen().empty());
        } else {
            EXPECT_EQ(steuerung_.spiel().deck, vorher.deck) << f.taste;
            EXPECT_GE(steuerung_.spiel().sticheGespielt, vorher.sticheGespielt) << f.taste;
        }
    }
    hfo_.automatikAktion()->trigger();
    pumpe_.start(2);
}

// Reasoning boxes: with the switch on every rule that fires is shown, and the table
// waits while a box is open; with it off none appears.
TEST_F(TischsteuerungTest, UeberlegungenNurMitSchalterUndPlanvoll) {
    for (const bool schalter : {true, false}) {
        table::Hauptfenster hfo;
        table::Tischsteuerung steuerung(hfo, std::make_unique<engine::SeedZufall>(77));
        table::Anzeigeoptionen optionen;
        optionen.animation = false;
        optionen.boxen = false;
        steuerung.setzeOptionen(optionen);
        steuerung.setzeTempo({0, 0});
        hfo.msgboxenAktion()->setChecked(schalter);
        EXPECT_EQ(steuerung.wissen().msgBoxModus, schalter ? 1 : 3);
        pumpe_.stop();

        const engine::Spiel& spiel = steuerung.spiel();
        auto kartenGespielt = [&] { return spiel.sticheGespielt * 4 + spiel.stich.anzahl; };
        int regelboxen = 0;
        int weitergelaufen = 0;
        QWidget* offen = nullptr;
        int gesehen = 0;
        int kartenBeimOeffnen = 0;
        QStringList titel;
        QTimer person;
        QObject::connect(&person, &QTimer::timeout, [&] {
            QWidget* modal = QApplication::activeModalWidget();
            auto* box = qobject_cast<QMessageBox*>(modal);
            if (!box) {
                if (modal) boxen_.beantworten(modal);
                return;
            }
            if (box != offen) {
                offen = box;
                gesehen = 0;
                kartenBeimOeffnen = kartenGespielt();
            }
            // A box stays open for a few ticks: the game must not go on meanwhile.
            if (++gesehen < 4) return;
            if (kartenGespielt() != kartenBeimOeffnen) ++weitergelaufen;
            if (box->windowTitle().startsWith(QStringLiteral("Überlegung von "))) {
                ++regelboxen;
                titel << box->windowTitle();
                EXPECT_FALSE(box->text().isEmpty());
            }
            offen = nullptr;
            box->button(QMessageBox::Ok) ? box->button(QMessageBox::Ok)->click() : box->buttons().first()->click();
        });
        person.start(1);
        QSignalSpy gewertet(&steuerung, &table::Tischsteuerung::spielGewertet);
        steuerung.neuePartie();
        hfo.automatikAktion()->trigger();
        ASSERT_TRUE(gewertet.wait(120000));
        person.stop();
        pumpe_.start(2);

        EXPECT_EQ(weitergelaufen, 0);
        if (schalter) {
            // Every computer card is reasoned; seat 1's too while the computer plays it.
            EXPECT_GE(regelboxen, 40);
            EXPECT_TRUE(titel.contains(QStringLiteral("Überlegung von Spieler3")));
        } else {
            EXPECT_EQ(regelboxen, 0);
        }
    }
}

}  // namespace

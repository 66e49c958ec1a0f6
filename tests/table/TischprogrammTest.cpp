#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

#include "Bildablage.h"
#include "QtAusgabe.h"
#include "Testdateiwahl.h"
#include "engine/AblaufHilfen.h"
#include "engine/Spielablauf.h"
#include "engine/Stichspiel.h"
#include "players/EinfacheSpieler.h"
#include "savegame/Partiespeicher.h"
#include "settings/Benutzerspeicher.h"
#include "table/Hauptfenster.h"
#include "table/Einstellform.h"
#include "table/Kartenfeld.h"
#include "table/Meldungsdialog.h"
#include "table/Regelseite.h"
#include "table/Stichbetrachter.h"
#include "table/Tischansicht.h"
#include "table/Tischprogramm.h"
#include "table/Tischsteuerung.h"
#include "table/Tischtexte.h"
#include "table/Verteilungsdialog.h"
#include "table/Willkommen.h"

namespace {

using engine::Sitz;

// Waits (running the event loop) until `bedingung` holds; false after `ms`.
bool warten(const std::function<bool()>& bedingung, int ms = 20000) { return QTest::qWaitFor(bedingung, ms); }

// One desktop table: window, controller and program, fast and without animation.
struct Tisch {
    explicit Tisch(const QString& ordner, std::uint64_t seed = 20240611)
        : optionsdatei(QDir(ordner).filePath(QStringLiteral("rupalive.ini"))),
          steuerung(hfo, std::make_unique<engine::SeedZufall>(seed)),
          programm(hfo, steuerung, speicher, wahl, optionsdatei) {
        settings::Einstellungen e;
        e.animation = 0;
        programm.EinstUebernehmen(e, programm.benutzer());
        steuerung.setzeTempo({0, 0});
        hfo.resize(1024, 768);
        hfo.show();
    }

    const engine::Spiel& spiel() const { return steuerung.spiel(); }

    QString optionsdatei;
    settings::Benutzerspeicher speicher;
    testhilfe::Testdateiwahl wahl;
    table::Hauptfenster hfo;
    table::Tischsteuerung steuerung;
    table::Tischprogramm programm;
};

class TischprogrammTest : public ::testing::Test {
protected:
    TischprogrammTest() {
        settings::Benutzerspeicher speicher;
        speicher.zuruecksetzen(ordner_.filePath(QStringLiteral("rupalive.ini")));
        // Each answer runs from a timer of its own: an answer that opens the next modal
        // dialog waits in that dialog, and the pump must go on meanwhile.
        QObject::connect(&pumpe_, &QTimer::timeout, [this] {
            if (geplant_ || !QApplication::activeModalWidget()) return;
            geplant_ = true;
            QTimer::singleShot(0, [this] {
                geplant_ = false;
                if (QWidget* modal = QApplication::activeModalWidget()) antworten(modal);
            });
        });
        pumpe_.start(2);
    }
    ~TischprogrammTest() override { pumpe_.stop(); }

    void antworten(QWidget* modal) {
            if (antworten_ && antworten_(modal)) return;
            // Otherwise as a cautious person: no redeal, no solo, OK.
            if (auto* box = qobject_cast<QMessageBox*>(modal)) {
                boxen_ << box->text();
                QAbstractButton* nein = box->button(QMessageBox::No);
                (nein ? nein : box->buttons().first())->click();
            } else if (auto* dialog = qobject_cast<QDialog*>(modal)) {
                qobject_cast<table::Meldungsdialog*>(dialog) ? dialog->accept() : dialog->reject();
            }
    }

    // Plays seat 1's first legal card whenever it is its turn, until `halt` holds on its turn.
    void spielenBis(Tisch& t, const std::function<bool()>& halt) {
        table::Tischansicht& tisch = t.hfo.tisch();
        for (int zug = 0; zug < 60; ++zug) {
            ASSERT_TRUE(warten([&] { return tisch.kartenwahl() && !QApplication::activeModalWidget(); }));
            if (halt()) return;
            for (int pos : tisch.handfolge())
                if (engine::karteErlaubt(t.spiel(), Sitz(1), pos)) {
                    QTest::mouseClick(&tisch, Qt::LeftButton, {}, tisch.kartenmitte(pos).toPoint());
                    break;
                }
            ASSERT_TRUE(warten([&] { return !tisch.kartenwahl() || QApplication::activeModalWidget(); }));
        }
        FAIL() << "Ziel nicht erreicht";
    }

    void unfertigePartie(const QString& sicherung, engine::Spiel& gesichert);

    QTemporaryDir ordner_;
    QTimer pumpe_;
    bool geplant_ = false;
    std::function<bool(QWidget*)> antworten_;  // true: answered
    QStringList boxen_;
};

TEST_F(TischprogrammTest, WillkommenBeimErstenStart) {
    const struct {
        bool willkommen;
        const char* knopf;  // nullptr: the screen must not come
    } faelle[] = {{true, "neu"}, {true, "laden"}, {false, nullptr}};
    for (const auto& f : faelle) {
        Tisch t(ordner_.path());
        // Stored rules far from the built-in ones, and every deal asked for by hand.
        settings::Einstellungen e = t.programm.einstellungen();
        e.willkommen = f.willkommen ? -1 : 0;
        e.regeln.scharferRupa = -1;
        e.regeln.vorhand = 3;
        e.regeln.solis = 0;
        table::Benutzereinstellungen b = t.programm.benutzer();
        b.manuelleVerteilung = true;
        t.programm.EinstUebernehmen(e, b);
        int gesehen = 0;
        QString regeltext;
        std::vector<std::size_t> dateifragenBeimGeben;  // per "Manuelle Kartenverteilung?": file questions so far
        antworten_ = [&](QWidget* w) {
            if (auto* box = qobject_cast<QMessageBox*>(w); box && box->text() == QStringLiteral("Manuelle Kartenverteilung?"))
                dateifragenBeimGeben.push_back(t.wahl.fragen.size());
            if (auto* seite = qobject_cast<table::Regelseite*>(w)) {
                regeltext = seite->text();
                testhilfe::bildAblegen(*seite, QStringLiteral("spielregeln"));
                seite->reject();
                return true;
            }
            auto* willkommen = qobject_cast<table::Willkommen*>(w);
            if (!willkommen) return false;
            EXPECT_EQ(willkommen->windowTitle(), QStringLiteral("Willkommen"));
            // First the rules, then back to the same screen.
            if (gesehen++ == 0) {
                testhilfe::bildAblegen(*willkommen, QStringLiteral("willkommen"));
                willkommen->regelnKnopf()->click();
                return true;
            }
            (std::string_view(f.knopf) == "neu" ? willkommen->neuKnopf() : willkommen->ladenKnopf())->click();
            return true;
        };
        t.programm.starten();
        antworten_ = nullptr;
        EXPECT_EQ(gesehen, f.willkommen ? 2 : 0);
        if (f.willkommen) {
            EXPECT_TRUE(regeltext.contains(QStringLiteral("Hochzeit")));
            EXPECT_TRUE(regeltext.contains(QStringLiteral("Ihre Einstellungen")));
            EXPECT_TRUE(regeltext.contains(QStringLiteral("Karlchen")));
        }
        // Loading asked for a file; cancelled, a new Partie begins all the same.
        const bool laden = f.knopf && std::string_view(f.knopf) == "laden";
        ASSERT_EQ(t.wahl.fragen.size(), laden ? 1u : 0u);
        if (laden) {
            EXPECT_EQ(t.wahl.fragen[0].titel, QStringLiteral("Doppelkopf-Partie laden"));
            EXPECT_EQ(t.wahl.fragen[0].filter, "Doppelkopf-Partie (*.DKP)|*.dkp|Alle Dateien (*.*)|*.*");
        }
        ASSERT_TRUE(warten([&] { return t.hfo.tisch().kartenwahl() || t.spiel().stich.anzahl > 0; }));
        // One deal, after the file dialog, of the first game with the stored rules.
        EXPECT_EQ(dateifragenBeimGeben, std::vector<std::size_t>{laden ? 1u : 0u});
        EXPECT_EQ(t.spiel().partie.spielNr, 1);
        EXPECT_EQ(t.spiel().regeln.kartenanzahl, 40);
        EXPECT_EQ(t.spiel().vorhand, Sitz(3));
        EXPECT_FALSE(t.spiel().regeln.solis);
    }
}

// Saved in the middle of a trick, the Partie loads into the same table picture.
TEST_F(TischprogrammTest, GespeicherteParteMittenImStichSiehtGeladenGleichAus) {
    const QString datei = ordner_.filePath(QStringLiteral("mitten.dkp"));
    QImage vorher;
    engine::Spiel gespeichert;
    QString statusVorher;
    {
        Tisch a(ordner_.path());
        a.steuerung.neuePartie();
        ASSERT_NO_FATAL_FAILURE(spielenBis(a, [&] { return a.spiel().sticheGespielt >= 3 && a.spiel().stich.anzahl >= 2; }));
        ASSERT_TRUE(a.steuerung.speicherbar());
        a.wahl.antworten = {datei};
        a.programm.m_partie_speichern_Click();
        ASSERT_EQ(a.wahl.fragen.size(), 1u);
        EXPECT_EQ(a.wahl.fragen[0].titel, QStringLiteral("Doppelkopf-Partie speichern"));
        EXPECT_EQ(a.wahl.fragen[0].filter, "Doppelkopf-Partie (*.dkp)|*.dkp|Alle Dateien(*.*)|*.*");
        EXPECT_EQ(a.wahl.fragen[0].endung, "dkp");
        EXPECT_EQ(savegame::letzterOrdner(a.speicher), ordner_.path());
        vorher = a.hfo.tisch().grab().toImage();
        gespeichert = a.spiel();
        statusVorher = a.hfo.status();
        testhilfe::bildAblegen(a.hfo, QStringLiteral("vor-dem-speichern"));
    }
    Tisch b(ordner_.path(), 99);
    b.steuerung.neuePartie();
    ASSERT_TRUE(warten([&] { return b.hfo.tisch().kartenwahl(); }));
    // The load dialog starts in the folder last used.
    b.wahl.antworten = {datei};
    boxen_.clear();
    b.programm.m_partie_laden_Click();
    ASSERT_EQ(b.wahl.fragen.size(), 1u);
    EXPECT_EQ(b.wahl.fragen[0].ordner, ordner_.path());
    ASSERT_TRUE(warten([&] { return b.hfo.tisch().kartenwahl(); }));
    EXPECT_EQ(b.spiel().deck, gespeichert.deck);
    EXPECT_EQ(b.spiel().stich, gespeichert.stich);
    EXPECT_EQ(b.hfo.status(), statusVorher);
    testhilfe::bildAblegen(b.hfo, QStringLiteral("nach-dem-laden"));
    EXPECT_TRUE(b.hfo.tisch().grab().toImage() == vorher);
    EXPECT_TRUE(boxen_.isEmpty()) << boxen_.join(QLatin1Char('|')).toStdString();

    // trumpona --load FILE: the program starts with it instead of the welcome screen.
    Tisch c(ordner_.path(), 7);
    c.programm.starten(datei);
    ASSERT_TRUE(warten([&] { return c.hfo.tisch().kartenwahl(); }));
    EXPECT_TRUE(c.hfo.tisch().grab().toImage() == vorher);

    // From the welcome screen, with every deal asked for by hand: nothing is dealt
    // before the file is read, so no "Manuelle Kartenverteilung?" comes.
    Tisch d(ordner_.path(), 8);
    settings::Einstellungen e = d.programm.einstellungen();
    e.willkommen = -1;
    table::Benutzereinstellungen manuell = d.programm.benutzer();
    manuell.manuelleVerteilung = true;
    d.programm.EinstUebernehmen(e, manuell);
    d.wahl.antworten = {datei};
    boxen_.clear();
    antworten_ = [](QWidget* w) {
        auto* willkommen = qobject_cast<table::Willkommen*>(w);
        if (willkommen) willkommen->ladenKnopf()->click();
        return willkommen != nullptr;
    };
    d.programm.starten();
    antworten_ = nullptr;
    ASSERT_TRUE(warten([&] { return d.hfo.tisch().kartenwahl(); }));
    EXPECT_EQ(d.spiel().deck, gespeichert.deck);
    EXPECT_TRUE(boxen_.isEmpty()) << boxen_.join(QLatin1Char('|')).toStdString();
}

// A finished game saved headless: the cycle played by the simple players up to its score.
engine::Spiel beendetesSpiel() {
    engine::Spiel spiel;
    for (const Sitz s : engine::alleSitze) spiel.namen[s] = "Spieler" + std::to_string(s.nr());
    engine::SeedZufall zufall(5);
    engine::Spielablauf ablauf(spiel, zufall);
    players::KleinsteKarte spieler;
    ablauf.neuePartie();
    while (ablauf.anfrage().art != engine::Anfrageart::NaechstesSpiel)
        testhilfe::beantworten(ablauf, spiel, engine::ProSitz<engine::Entscheider*>(&spieler));
    return spiel;
}

TEST_F(TischprogrammTest, LadeablaufMitSeinenMeldungen) {
    const QString fertig = ordner_.filePath(QStringLiteral("fertig.dkp"));
    const engine::Spiel beendet = beendetesSpiel();
    ASSERT_TRUE(savegame::PartieSpeichern(fertig, {beendet, {}, {}}));
    auto schreiben = [&](const char* name, const QByteArray& inhalt) {
        const QString pfad = ordner_.filePath(QString::fromUtf8(name));
        QFile f(pfad);
        f.open(QIODevice::WriteOnly);
        f.write(inhalt);
        return pfad;
    };
    const QString fremd = schreiben("fremd.dkp", "XYZ\r\n1\r\n");
    const QString alt = schreiben("alt.dkp", "RUPA-PARTIE19\r\n1\r\n2\r\n");

    const struct {
        QString datei;
        QStringList boxen;
        bool neuePartie;  // else the running game goes on untouched, or the loaded one
    } faelle[] = {
        {fremd, {QStringLiteral("Keine gültige Doppelkopf-Datei oder die Datei ist beschädigt!")}, false},
        {alt,
         {QStringLiteral("Diese Datei ist veraltet."),
          QStringLiteral("Keine gültige Doppelkopf-Datei oder die Datei ist beschädigt!"),
          QStringLiteral("Es wurde keine gültige Partie ausgewählt.\nEs wird eine neue Partie gestartet.")},
         true},
    };
    for (const auto& f : faelle) {
        Tisch t(ordner_.path());
        t.steuerung.neuePartie();
        ASSERT_NO_FATAL_FAILURE(spielenBis(t, [&] { return t.spiel().sticheGespielt >= 1; }));
        const engine::Spiel vorher = t.spiel();
        boxen_.clear();
        t.programm.partieLaden(f.datei);
        EXPECT_EQ(boxen_, f.boxen) << f.datei.toStdString();
        ASSERT_TRUE(warten([&] { return t.hfo.tisch().kartenwahl() || t.spiel().sticheGespielt == 0; }));
        if (f.neuePartie) {
            EXPECT_EQ(t.spiel().sticheGespielt, 0);
            EXPECT_EQ(t.spiel().partie.spielNr, 1);
        } else {
            EXPECT_EQ(t.spiel().deck, vorher.deck);
            EXPECT_EQ(t.spiel().stiche, vorher.stiche);
        }
    }

    // A finished game: the question, the viewer on its last trick, then the next game.
    Tisch t(ordner_.path());
    int gezeigterStich = -1;
    QString frage;
    antworten_ = [&](QWidget* w) {
        if (auto* box = qobject_cast<QMessageBox*>(w); box && box->text().startsWith(QStringLiteral("Das Spiel wurde"))) {
            frage = box->text();
            box->button(QMessageBox::Yes)->click();
            return true;
        }
        if (auto* betrachter = qobject_cast<table::Stichbetrachter*>(w)) {
            gezeigterStich = betrachter->gezeigt();
            betrachter->reject();
            return true;
        }
        return false;
    };
    boxen_.clear();
    t.programm.partieLaden(fertig);
    antworten_ = nullptr;
    EXPECT_EQ(frage, QStringLiteral("Das Spiel wurde bis zu Ende gespielt. Möchten Sie sich die Stiche vor dem Start "
                                    "des nächsten Spiels ansehen?"));
    EXPECT_EQ(gezeigterStich, 11);
    // The stored end-box text comes in a plain box.
    ASSERT_EQ(boxen_.size(), 1);
    EXPECT_EQ(boxen_.front().toStdString(), beendet.ergebnis.text);
    ASSERT_TRUE(warten([&] { return t.spiel().partie.spielNr == 2; }));
    EXPECT_EQ(t.steuerung.spielzettelZeilen().size(), 1u);
}

TEST_F(TischprogrammTest, ManuelleVerteilungGibtDieGewaehltenHaende) {
    const struct {
        QMessageBox::StandardButton antwort;
        bool joker;
    } faelle[] = {{QMessageBox::Yes, false}, {QMessageBox::Yes, true}, {QMessageBox::No, false}};
    for (const auto& f : faelle) {
        Tisch t(ordner_.path());
        table::Benutzereinstellungen b = t.programm.benutzer();
        b.manuelleVerteilung = true;
        settings::Einstellungen e = t.programm.einstellungen();
        e.regeln.joker = f.joker ? -1 : 0;
        t.programm.EinstUebernehmen(e, b);

        engine::ProSitz<std::vector<int>> gewaehlt;
        bool gefragt = false;
        bool unvollstaendigAbgelehnt = false;
        antworten_ = [&](QWidget* w) {
            if (auto* box = qobject_cast<QMessageBox*>(w)) {
                if (box->text() == QStringLiteral("Manuelle Kartenverteilung?")) {
                    gefragt = true;
                    EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
                    box->button(f.antwort)->click();
                    return true;
                }
                if (box->text().startsWith(QStringLiteral("Es sind noch "))) {
                    unvollstaendigAbgelehnt = true;
                    box->buttons().first()->click();
                    return true;
                }
                return false;
            }
            auto* dialog = qobject_cast<table::Verteilungsdialog*>(w);
            if (!dialog) return false;
            if (!unvollstaendigAbgelehnt) {
                // One card by a click, then OK with 47 cards on the pile: refused.
                testhilfe::bildAblegen(*dialog, QStringLiteral("verteilung-anfang"));
                dialog->sitzWaehlen(Sitz(3));
                table::Kartenfeld* stapel = dialog->stapelfeld();
                QTest::mouseClick(stapel, Qt::LeftButton, {}, stapel->kartenmitte(0));
                EXPECT_EQ(dialog->verteilung().hand(Sitz(3)).size(), 1u);
                dialog->accept();
                return true;
            }
            // The rest in turn from the pile: each seat gets every fourth card.
            int i = 0;
            while (!dialog->verteilung().stapel().empty()) {
                dialog->sitzWaehlen(Sitz(i % 4 + 1));
                dialog->stapelGeklickt(static_cast<int>(dialog->verteilung().stapel().size()) - 1);
                ++i;
            }
            for (const Sitz s : engine::alleSitze) gewaehlt[s] = dialog->verteilung().hand(s);
            testhilfe::bildAblegen(*dialog, QStringLiteral("verteilung"));
            dialog->accept();
            return true;
        };
        t.steuerung.neuePartie();
        ASSERT_TRUE(warten([&] { return gefragt && t.spiel().ablauf.phase != engine::Spielphase::Geben; }));
        antworten_ = nullptr;
        if (f.antwort == QMessageBox::No) {
            EXPECT_FALSE(unvollstaendigAbgelehnt);
            continue;
        }
        EXPECT_TRUE(unvollstaendigAbgelehnt);
        for (const Sitz s : engine::alleSitze) {
            std::vector<int> hand;
            for (int p = t.spiel().deck.erstePosition(s); p <= t.spiel().deck.letztePosition(s); ++p)
                hand.push_back(t.spiel().deck[p].code);
            EXPECT_EQ(hand, gewaehlt[s]) << s.nr();
        }
        long joker = 0;
        for (const auto& hand : gewaehlt) joker += std::count(hand.begin(), hand.end(), engine::JokerCode);
        EXPECT_EQ(joker, f.joker ? 1 : 0);
    }
}

// Changed options: the table's look and the names at once, the rules with the next game.
TEST_F(TischprogrammTest, EinstellungenGeltenAbDemNaechstenSpiel) {
    Tisch t(ordner_.path());
    t.steuerung.neuePartie();
    ASSERT_NO_FATAL_FAILURE(spielenBis(t, [&] { return t.spiel().sticheGespielt >= 1; }));
    settings::Einstellungen e = t.programm.einstellungen();
    e.regeln.kontra = 0;
    e.regeln.zweiSchweine = -1;
    e.namen[1] = "Anna";
    e.charakter[1] = 0;
    e.vollbild = -1;
    e.automatic = 0;
    e.iconen = 0;
    e.karten = 0;
    t.programm.EinstUebernehmen(e, t.programm.benutzer());
    // The window at once.
    EXPECT_TRUE(t.hfo.isFullScreen());
    EXPECT_TRUE(t.hfo.vollbildAktion()->isChecked());
    EXPECT_FALSE(t.hfo.automatikAktion()->isVisible());
    EXPECT_TRUE(t.hfo.ladenAktion()->icon().isNull());
    t.hfo.vollbildAktion()->trigger();
    EXPECT_FALSE(t.hfo.isFullScreen());
    e.iconen = -1;
    e.automatic = -1;
    t.programm.EinstUebernehmen(e, t.programm.benutzer());
    EXPECT_TRUE(t.hfo.automatikAktion()->isVisible());
    EXPECT_FALSE(t.hfo.ladenAktion()->icon().isNull());
    // The rules not before the next game.
    EXPECT_EQ(t.spiel().regeln.kontra, 5);
    EXPECT_FALSE(t.spiel().regeln.zweiSchweine);
    EXPECT_EQ(t.spiel().charakter[Sitz(2)], 2);
    EXPECT_EQ(t.spiel().namen[Sitz(2)], "Anna");
    QSignalSpy gewertet(&t.steuerung, &table::Tischsteuerung::spielGewertet);
    t.hfo.automatikAktion()->trigger();
    ASSERT_TRUE(gewertet.wait(60000));
    t.hfo.automatikAktion()->trigger();
    ASSERT_TRUE(warten([&] { return t.spiel().partie.spielNr == 2 && t.spiel().ablauf.phase != engine::Spielphase::Geben; }));
    EXPECT_EQ(t.spiel().regeln.kontra, 0);
    EXPECT_TRUE(t.spiel().regeln.zweiSchweine);
    EXPECT_EQ(t.spiel().charakter[Sitz(2)], 0);
}

// The settings dialog from the menu: OK takes the values over, the reset ends the program.
TEST_F(TischprogrammTest, EinstellungenAusDemMenue) {
    Tisch t(ordner_.path());
    t.steuerung.neuePartie();
    ASSERT_TRUE(warten([&] { return t.hfo.tisch().kartenwahl(); }));
    QSignalSpy ende(&t.programm, &table::Tischprogramm::programmEndeVerlangt);
    QSignalSpy uebernommen(&t.programm, &table::Tischprogramm::einstellungenUebernommen);
    antworten_ = [&](QWidget* w) {
        auto* form = qobject_cast<table::Einstellform*>(w);
        if (!form) return false;
        form->findChild<QLineEdit*>(QStringLiteral("Name2"))->setText(QStringLiteral("Anna"));
        form->findChild<QCheckBox*>(QStringLiteral("speichern_jn"))->setChecked(false);
        form->accept();
        return true;
    };
    t.hfo.einstellungenAktion()->trigger();
    EXPECT_EQ(uebernommen.count(), 1);
    EXPECT_EQ(t.spiel().namen[Sitz(2)], "Anna");
    EXPECT_FALSE(QFile::exists(t.optionsdatei));

    antworten_ = [&](QWidget* w) {
        if (auto* form = qobject_cast<table::Einstellform*>(w)) {
            QTimer::singleShot(0, form->findChild<QPushButton*>(QStringLiteral("cmdreset")), &QPushButton::click);
            return true;
        }
        if (auto* box = qobject_cast<QMessageBox*>(w)) {
            box->button(QMessageBox::Yes)->click();
            return true;
        }
        return false;
    };
    t.hfo.einstellungenAktion()->trigger();
    antworten_ = nullptr;
    EXPECT_EQ(ende.count(), 1);
    EXPECT_EQ(uebernommen.count(), 1);  // a reset takes nothing over
}

// "&Ende" and closing the window during a Partie ask: save (and then end), end, or stay.
// Before the first card there is nothing to lose and nothing is asked.
TEST_F(TischprogrammTest, BeendenFragtWaehrendDerPartie) {
    const struct {
        const char* knopf;   // nullptr: no question expected
        bool fensterSchliessen;  // else "&Ende"
        QString datei;       // answer of the save dialog
        bool endet;
    } faelle[] = {
        {nullptr, false, {}, true},
        {"&Abbrechen", false, {}, false},
        {"&Abbrechen", true, {}, false},
        {"&Beenden", true, {}, true},
        {"&Speichern...", false, {}, false},  // the save dialog cancelled
        {"&Speichern...", false, QStringLiteral("beim-beenden.dkp"), true},
    };
    for (const auto& f : faelle) {
        Tisch t(ordner_.path());
        t.steuerung.neuePartie();
        if (f.knopf) ASSERT_NO_FATAL_FAILURE(spielenBis(t, [&] { return t.spiel().sticheGespielt >= 1; }));
        else ASSERT_TRUE(warten([&] { return t.hfo.tisch().kartenwahl() || t.spiel().stich.anzahl > 0; }));
        if (!f.datei.isEmpty()) t.wahl.antworten = {ordner_.filePath(f.datei)};
        QSignalSpy ende(&t.hfo, &table::Hauptfenster::beendenGewuenscht);
        QString frage;
        int karten = -1;
        antworten_ = [&](QWidget* w) {
            auto* box = qobject_cast<QMessageBox*>(w);
            if (!box || !f.knopf) return false;
            frage = box->text();
            karten = t.spiel().sticheGespielt * 4 + t.spiel().stich.anzahl;
            for (QAbstractButton* b : box->buttons())
                if (b->text() == QString::fromUtf8(f.knopf)) b->click();
            return true;
        };
        f.fensterSchliessen ? (void)t.hfo.close() : t.hfo.endeAktion()->trigger();
        antworten_ = nullptr;
        EXPECT_EQ(frage.isEmpty(), f.knopf == nullptr) << f.knopf;
        if (f.knopf) {
            EXPECT_EQ(frage, QStringLiteral("Die Partie ist noch nicht zu Ende. Möchten Sie sie vor dem Beenden speichern?"));
            // The game waited under the question.
            EXPECT_EQ(karten, t.spiel().sticheGespielt * 4 + t.spiel().stich.anzahl);
        }
        EXPECT_EQ(ende.count(), f.endet ? 1 : 0) << f.knopf;
        EXPECT_EQ(t.hfo.isVisible(), !f.endet) << f.knopf;
        if (std::string_view(f.knopf ? f.knopf : "") == "&Speichern...") {
            // The save dialog starts in the home folder while no folder was used yet.
            ASSERT_EQ(t.wahl.fragen.size(), 1u);
            EXPECT_EQ(t.wahl.fragen[0].ordner, QDir::homePath());
        }
        if (!f.datei.isEmpty()) {
            savegame::Spielstand gelesen;
            ASSERT_TRUE(savegame::PartieLaden(ordner_.filePath(f.datei), gelesen).ergebnis == savegame::Ergebnis::Erfolg);
            EXPECT_EQ(gelesen.spiel.deck, t.spiel().deck);
        }
    }
}

// The running Partie is always in the automatic save: after every card, gone at the
// end of the Partie; the welcome screen offers to resume it.
// Plays a Partie of one game into its third trick and leaves it unfinished in the
// automatic save; gives the game as it stood.
void TischprogrammTest::unfertigePartie(const QString& sicherung, engine::Spiel& gesichert) {
    {
        Tisch t(ordner_.path());
        t.programm.setzeSicherungsdatei(sicherung);
        // A Partie of one game, so the resumed one ends soon.
        settings::Einstellungen e = t.programm.einstellungen();
        e.regeln.abrOption = 2;
        e.regeln.endeNach = 1;
        t.programm.EinstUebernehmen(e, t.programm.benutzer());
        t.steuerung.neuePartie();
        ASSERT_NO_FATAL_FAILURE(spielenBis(t, [&] { return t.spiel().sticheGespielt >= 2 && t.spiel().stich.anzahl >= 1; }));
        savegame::Spielstand gelesen;
        ASSERT_TRUE(savegame::PartieLaden(sicherung, gelesen).ergebnis == savegame::Ergebnis::Erfolg);
        EXPECT_EQ(gelesen.spiel.stiche, t.spiel().stiche);
        EXPECT_EQ(gelesen.spiel.stich, t.spiel().stich);
        gesichert = t.spiel();
    }
}

TEST_F(TischprogrammTest, AutomatischeSicherungUndFortsetzen) {
    const QString sicherung = ordner_.filePath(QStringLiteral("daten/letzte-partie.dkp"));
    engine::Spiel gesichert;
    ASSERT_NO_FATAL_FAILURE(unfertigePartie(sicherung, gesichert));
    // The next start: "Letzte Partie fortsetzen" brings the table back as it was.
    Tisch t(ordner_.path(), 99);
    t.programm.setzeSicherungsdatei(sicherung);
    settings::Einstellungen e = t.programm.einstellungen();
    e.willkommen = -1;
    t.programm.EinstUebernehmen(e, t.programm.benutzer());
    bool angeboten = false;
    antworten_ = [&](QWidget* w) {
        auto* willkommen = qobject_cast<table::Willkommen*>(w);
        if (!willkommen) return false;
        angeboten = willkommen->fortsetzenKnopf()->isVisible();
        testhilfe::bildAblegen(*willkommen, QStringLiteral("willkommen-fortsetzen"));
        willkommen->fortsetzenKnopf()->click();
        return true;
    };
    t.programm.starten();
    antworten_ = nullptr;
    EXPECT_TRUE(angeboten);
    ASSERT_TRUE(warten([&] { return t.hfo.tisch().kartenwahl(); }));
    EXPECT_EQ(t.spiel().deck, gesichert.deck);
    EXPECT_EQ(t.spiel().stiche, gesichert.stiche);
    // Played to its end (its rules end it after this game), nothing is kept.
    QSignalSpy beendet(&t.steuerung, &table::Tischsteuerung::partieBeendet);
    t.hfo.automatikAktion()->trigger();
    ASSERT_TRUE(beendet.wait(20000));
    EXPECT_FALSE(QFile::exists(sicherung));
}

// Without the welcome screen the unfinished Partie is asked for at the start: Yes
// plays it on, No begins a new one.
TEST_F(TischprogrammTest, OhneWillkommenWirdDieLetztePartieAngeboten) {
    const QString sicherung = ordner_.filePath(QStringLiteral("daten/letzte-partie.dkp"));
    for (const bool fortsetzen : {true, false}) {
        engine::Spiel gesichert;
        ASSERT_NO_FATAL_FAILURE(unfertigePartie(sicherung, gesichert));
        Tisch t(ordner_.path(), 99);
        t.programm.setzeSicherungsdatei(sicherung);
        settings::Einstellungen e = t.programm.einstellungen();
        e.willkommen = 0;
        t.programm.EinstUebernehmen(e, t.programm.benutzer());
        QString gefragt;
        antworten_ = [&](QWidget* w) {
            auto* frage = qobject_cast<QMessageBox*>(w);
            if (!frage || !frage->text().contains(QStringLiteral("letzte Partie"))) return false;
            gefragt = frage->text();
            EXPECT_EQ(frage->defaultButton(), frage->button(QMessageBox::Yes));
            frage->button(fortsetzen ? QMessageBox::Yes : QMessageBox::No)->click();
            return true;
        };
        t.programm.starten();
        antworten_ = nullptr;
        EXPECT_EQ(gefragt.toStdString(), table::texte::LetztePartieFortsetzen);
        ASSERT_TRUE(warten([&] { return t.hfo.tisch().kartenwahl() || t.spiel().sticheGespielt > 0; }));
        EXPECT_EQ(t.spiel().sticheGespielt == gesichert.sticheGespielt && t.spiel().deck == gesichert.deck, fortsetzen)
            << fortsetzen;
    }
}

// A second program started while the first runs keeps its Partie under a name of its
// own and says so in the status line; neither overwrites nor removes the other's.
TEST_F(TischprogrammTest, ZweitesProgrammSichertGetrennt) {
    const QString sicherung = ordner_.filePath(QStringLiteral("daten/letzte-partie.dkp"));
    Tisch erster(ordner_.path());
    erster.programm.setzeSicherungsdatei(sicherung);
    erster.steuerung.neuePartie();
    ASSERT_NO_FATAL_FAILURE(spielenBis(erster, [&] { return erster.spiel().sticheGespielt >= 1; }));
    Tisch zweiter(ordner_.path(), 99);
    zweiter.programm.setzeSicherungsdatei(sicherung);
    EXPECT_EQ(zweiter.programm.sicherungsdatei(), ordner_.filePath(QStringLiteral("daten/letzte-partie-2.dkp")));
    const auto* hinweis = zweiter.hfo.findChild<QLabel*>(QStringLiteral("labSicherung"));
    ASSERT_TRUE(hinweis);
    EXPECT_FALSE(hinweis->isHidden());
    EXPECT_EQ(hinweis->text().toStdString(), table::texte::SicherungGetrennt);
    EXPECT_TRUE(erster.hfo.findChild<QLabel*>(QStringLiteral("labSicherung"))->isHidden());
    zweiter.steuerung.neuePartie();
    ASSERT_NO_FATAL_FAILURE(spielenBis(zweiter, [&] { return zweiter.spiel().sticheGespielt >= 1; }));
    testhilfe::bildAblegen(zweiter.hfo, QStringLiteral("sicherung-getrennt"));
    ASSERT_NE(erster.spiel().deck, zweiter.spiel().deck);
    const auto deckIn = [](const QString& pfad) {
        savegame::Spielstand gelesen;
        savegame::PartieLaden(pfad, gelesen);
        return gelesen.spiel.deck;
    };
    EXPECT_EQ(deckIn(zweiter.programm.sicherungsdatei()), zweiter.spiel().deck);
    // A new Partie in the second window throws away its own save, not the first one's.
    emit zweiter.hfo.neuePartieGewuenscht();
    EXPECT_EQ(deckIn(sicherung), erster.spiel().deck);
}

}  // namespace

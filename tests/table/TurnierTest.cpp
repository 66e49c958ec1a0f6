// The tournament Partie at the window, the results dialog frmErgebnisse against a
// real aiosmtpd, and the question before the program ends.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QCheckBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "Bildablage.h"
#include "Testdateiwahl.h"
#include "services/Ergebnisablage.h"
#include "services/Postserver.h"
#include "settings/Benutzerspeicher.h"
#include "table/Einstellform.h"
#include "table/Ergebnisdialog.h"
#include "table/Hauptfenster.h"
#include "table/Spielendedialog.h"
#include "table/Tischprogramm.h"
#include "table/Tischsteuerung.h"
#include "table/Turnierpartie.h"

namespace {

using engine::Sitz;

// One desktop table with its tournament, fast and without animation; the person
// is "Anna" and plays with a Joker, which the tournament rules do not.
struct Turniertisch {
    explicit Turniertisch(const QString& ordner)
        : steuerung(hfo, std::make_unique<engine::SeedZufall>(77)),
          programm(hfo, steuerung, speicher, wahl, QDir(ordner).filePath(QStringLiteral("rupalive.ini"))),
          turnier(hfo, steuerung, programm, ordner) {
        eigene.animation = 0;
        eigene.namen[0] = "Anna";
        eigene.regeln.joker = -1;
        programm.EinstUebernehmen(eigene, programm.benutzer());
        steuerung.setzeTempo({0, 0});
        turnier.setzeUhr([] { return QDateTime(QDate(2025, 1, 14), QTime(20, 15, 3)); });
        hfo.resize(1024, 768);
        hfo.show();
    }

    settings::Einstellungen eigene;
    settings::Benutzerspeicher speicher;
    testhilfe::Testdateiwahl wahl;
    table::Hauptfenster hfo;
    table::Tischsteuerung steuerung;
    table::Tischprogramm programm;
    table::Turnierpartie turnier;
};

class Turnier : public ::testing::Test {
protected:
    Turnier() {
        // Every modal box is answered from a timer of its own, as a person would:
        // end boxes with OK, questions as `antwort` says (No by default).
        QObject::connect(&pumpe_, &QTimer::timeout, [this] {
            if (geplant_ || !QApplication::activeModalWidget()) return;
            geplant_ = true;
            QTimer::singleShot(0, [this] {
                geplant_ = false;
                QWidget* modal = QApplication::activeModalWidget();
                if (auto* box = qobject_cast<QMessageBox*>(modal)) {
                    boxen << box->text();
                    QAbstractButton* knopf = box->button(antwort(box->text()));
                    (knopf ? knopf : box->buttons().first())->click();
                } else if (auto* ende = qobject_cast<table::Spielendedialog*>(modal)) {
                    ende->accept();
                } else if (auto* dialog = qobject_cast<QDialog*>(modal)) {
                    dialoge << dialog->objectName();
                    dialog->reject();
                }
            });
        });
        pumpe_.start(2);
    }
    ~Turnier() override { pumpe_.stop(); }

    QStringList dateien() const { return services::wartendeErgebnisse(ordner_.path()); }

    QTemporaryDir ordner_;
    QTimer pumpe_;
    bool geplant_ = false;
    std::function<QMessageBox::StandardButton(const QString&)> antwort = [](const QString&) { return QMessageBox::No; };
    QStringList boxen, dialoge;
};

TEST_F(Turnier, TurnierpartieSchreibtAmEndeIhreErgebnisdateiUndGibtDieEigenenRegelnZurueck) {
    Turniertisch tisch(ordner_.path());
    QSignalSpy geschrieben(&tisch.turnier, &table::Turnierpartie::ergebnisGeschrieben);
    tisch.turnier.beginnen(4);
    EXPECT_FALSE(tisch.steuerung.spiel().regeln.joker);
    tisch.hfo.automatikAktion()->trigger();
    ASSERT_TRUE(geschrieben.wait(180000));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !boxen.isEmpty(); }, 5000));

    const QString pfad = geschrieben.front().at(0).toString();
    EXPECT_EQ(dateien(), QStringList{QFileInfo(pfad).fileName()});
    EXPECT_EQ(QFileInfo(pfad).fileName(), QStringLiteral("RPPT1220250114-201503.D4T"));
    QFile datei(pfad);
    ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
    const QStringList zeilen = QString::fromUtf8(datei.readAll()).split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
    ASSERT_EQ(zeilen.size(), 9);
    EXPECT_EQ(zeilen[1], QStringLiteral("Spieler;Anna"));
    EXPECT_EQ(zeilen[2], QStringLiteral("Datum;2025-01-14;20:15:03"));
    EXPECT_TRUE(zeilen[3].contains(QStringLiteral(",Ende_nach=4,")) && zeilen[3].contains(QStringLiteral(",Joker=0,")));
    const auto& spiele = tisch.steuerung.spielzettelZeilen();
    ASSERT_EQ(spiele.size(), 4U);
    for (int i = 0; i < 4; ++i) {
        const auto& z = spiele[static_cast<std::size_t>(i)];
        EXPECT_EQ(zeilen[4 + i], QStringLiteral("Spiel;%1;%2;%3;%4;%5").arg(i + 1).arg(z[Sitz(1)]).arg(z[Sitz(2)]).arg(z[Sitz(3)]).arg(z[Sitz(4)]));
    }
    const auto& summe = tisch.steuerung.spiel().partie.punkte;
    EXPECT_EQ(zeilen[8], QStringLiteral("Summe;%1;%2;%3;%4").arg(summe[Sitz(1)]).arg(summe[Sitz(2)]).arg(summe[Sitz(3)]).arg(summe[Sitz(4)]));
    EXPECT_TRUE(boxen.back().startsWith(QStringLiteral("Die Turnierpartie ist beendet, ihr Ergebnis ist gespeichert:")));
    EXPECT_FALSE(tisch.turnier.laeuft());
    EXPECT_EQ(tisch.steuerung.ablauf().regelOptionen(), tisch.eigene.regeln);
}

TEST_F(Turnier, AbgebrocheneTurnierpartieSchreibtNichts) {
    Turniertisch tisch(ordner_.path());
    tisch.turnier.beginnen(4);
    tisch.hfo.automatikAktion()->trigger();
    ASSERT_TRUE(QTest::qWaitFor([&] { return tisch.steuerung.spiel().sticheGespielt > 2; }, 60000));
    antwort = [](const QString&) { return QMessageBox::Yes; };
    tisch.hfo.neuePartieAktion()->trigger();
    EXPECT_TRUE(boxen.contains(QStringLiteral("Die Turnierpartie wurde abgebrochen; für sie wird kein Ergebnis gespeichert.")));
    EXPECT_FALSE(tisch.turnier.laeuft());
    EXPECT_EQ(tisch.steuerung.ablauf().regelOptionen(), tisch.eigene.regeln);
    EXPECT_TRUE(tisch.steuerung.spiel().regeln.joker);  // the new Partie was dealt under the person's rules
    EXPECT_TRUE(dateien().isEmpty());
}

TEST_F(Turnier, BeimBeendenFragtDasProgrammNurSolangeErgebnisseWarten) {
    {
        Turniertisch tisch(ordner_.path());
        tisch.hfo.close();
        QTest::qWait(50);
        EXPECT_TRUE(boxen.isEmpty());
    }
    QFile f(ordner_.filePath(QStringLiteral("RPPT12a.D4T")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    for (const auto knopf : {QMessageBox::No, QMessageBox::Yes}) {
        boxen.clear();
        dialoge.clear();
        antwort = [knopf](const QString&) { return knopf; };
        Turniertisch tisch(ordner_.path());
        tisch.hfo.SubPrgBeenden();
        EXPECT_EQ(boxen.value(0), QStringLiteral("Die Turnierergebnisse wurde noch nicht vollständig übertragen!\n"
                                                 "Möchtest Du jetzt die Übertragung durchführen?"));
        // Yes opens frmErgebnisse and starts at once; without an organiser it says what is missing.
        EXPECT_EQ(dialoge, knopf == QMessageBox::Yes ? QStringList{QStringLiteral("frmErgebnisse")} : QStringList{});
        EXPECT_EQ(dateien().size(), 1);
    }
}

TEST_F(Turnier, ErgebnisdialogSendetJedeDateiMitStandUndFortschritt) {
    QTemporaryDir server;
    const QString postfach = server.filePath(QStringLiteral("postfach"));
    const auto smtp = testhilfe::Postserver::aiosmtpd(postfach);
    ASSERT_TRUE(smtp->bereit());
    const auto verweigert = testhilfe::Postserver::attrappe(QStringLiteral("einmal550"), server.path());
    ASSERT_TRUE(verweigert->bereit());
    for (const char* name : {"RPPT1220250114-201503.D4T", "RPPT1220250115-093000.D4T"}) {
        QFile f(ordner_.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("RPPT12;Trumpona 0.1.0\r\nSpieler;Anna\r\nSumme;3;5;5;3\r\n");
    }
    services::Mailkonto konto{QStringLiteral("127.0.0.1"), verweigert->port(), QString(), QStringLiteral("anna@example.org"),
                              QStringLiteral("Anna"), QStringLiteral("leitung@example.org")};
    // First a server that refuses once: the person answers No, that file waits on.
    {
        table::Ergebnisdialog dialog(ordner_.path(), konto);
        QStringList fragen;
        dialog.setzeFrage([&](const QString& datei, const QString&) {
            fragen << datei;
            return false;
        });
        dialog.show();
        testhilfe::bildAblegen(dialog, QStringLiteral("ergebnisse-wartend"));
        QSignalSpy fertig(&dialog.versand(), &services::Ergebnisversand::fertig);
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("cmdSenden")), Qt::LeftButton);
        ASSERT_TRUE(fertig.wait(20000));
        EXPECT_EQ(fragen, QStringList{QStringLiteral("RPPT1220250114-201503.D4T")});
        EXPECT_EQ(dialog.stand(QStringLiteral("RPPT1220250114-201503.D4T")),
                  QStringLiteral("behalten: SMTP Error! Falscher Rückgabewert: 550 no such user"));
        EXPECT_EQ(dialog.stand(QStringLiteral("RPPT1220250115-093000.D4T")), QStringLiteral("gesendet"));
        testhilfe::bildAblegen(dialog, QStringLiteral("ergebnisse-behalten"));
    }
    EXPECT_EQ(dateien(), QStringList{QStringLiteral("RPPT1220250114-201503.D4T")});

    konto.port = smtp->port();
    table::Ergebnisdialog dialog(ordner_.path(), konto);
    dialog.show();
    QSignalSpy fertig(&dialog.versand(), &services::Ergebnisversand::fertig);
    dialog.cmdSenden_Click();
    dialog.cmdSenden_Click();  // while it runs: "Läuft noch!"
    ASSERT_TRUE(fertig.wait(20000));
    EXPECT_TRUE(boxen.contains(QStringLiteral("Läuft noch!")));
    EXPECT_EQ(dialog.stand(QStringLiteral("RPPT1220250114-201503.D4T")), QStringLiteral("gesendet"));
    EXPECT_EQ(dialog.fortschritt(QStringLiteral("RPPT1220250114-201503.D4T")), services::Smtpdialog::Stufen);
    EXPECT_EQ(dialog.status(), QStringLiteral("RPPT1220250114-201503.D4T: Nachricht verschickt !"));
    testhilfe::bildAblegen(dialog, QStringLiteral("ergebnisse-gesendet"));
    EXPECT_TRUE(dateien().isEmpty());
    EXPECT_EQ(testhilfe::postfachLesen(postfach).size(), 1);
}

TEST_F(Turnier, MailkontoDesNetzwerkreitersBleibtBeiJedemOk) {
    settings::Benutzerspeicher speicher;
    testhilfe::Testdateiwahl wahl;
    const QString optionsdatei = ordner_.filePath(QStringLiteral("rupalive.ini"));
    const services::Mailkonto konto{QStringLiteral("mail.example.org"), 587, QStringLiteral("heim.example.org"),
                                    QStringLiteral("anna@example.org"), QStringLiteral("Anna Ä"),
                                    QStringLiteral("leitung@example.org")};
    {
        table::Einstellform form({}, table::benutzereinstellungenLesen(speicher), {speicher, optionsdatei, wahl, {}});
        const std::pair<const char*, QString> felder[] = {{"MailServer", konto.server},     {"MailHelo", konto.heloDomain},
                                                          {"MailAbsender", konto.absender}, {"MailAbsendername", konto.absendername},
                                                          {"MailEmpfaenger", konto.empfaenger}};
        for (const auto& [name, text] : felder) form.findChild<QLineEdit*>(QString::fromLatin1(name))->setText(text);
        form.findChild<QSpinBox*>(QStringLiteral("MailPort"))->setValue(587);
        form.findChild<QCheckBox*>(QStringLiteral("speichern_jn"))->setChecked(false);
        form.accept();
    }
    EXPECT_EQ(services::mailkontoLesen(speicher), konto);
    table::Einstellform wieder({}, table::benutzereinstellungenLesen(speicher), {speicher, optionsdatei, wahl, {}});
    EXPECT_EQ(wieder.benutzer().mail, konto);
    speicher.zuruecksetzen(optionsdatei);
}

}  // namespace

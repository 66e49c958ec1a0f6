// Network play at the window against a host and a guest that the test scripts
// message by message: the status line at each stage of joining, the host's
// reminder and remove-question, the protocol log, a lost host; and the login
// dialog's checks.
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "Bildablage.h"
#include "Netzfenster.h"
#include "QtAusgabe.h"
#include "engine/Spielablauf.h"
#include "engine/Stichspiel.h"
#include "engine/Vorbehalte.h"
#include "net/Nutzlast.h"
#include "settings/Zeichensatz.h"
#include "table/Netzanmeldung.h"
#include "table/Netzbereiche.h"
#include "table/Netzgasttisch.h"
#include "table/Netzhosttisch.h"
#include "table/Tischansicht.h"

namespace {

using engine::Sitz;
using testhilfe::Netzfenster;
using testhilfe::warten;

// One end of a table connection, written and read by the test.
struct Leitung {
    explicit Leitung(QTcpSocket* s) : socket(s) {
        QObject::connect(socket, &QTcpSocket::readyRead, [this] { empfangen += socket->readAll().toStdString(); });
    }
    void senden(const std::string& nachrichten) {
        std::string bytes;
        // Messages separated by '|' in the test's text, framed here.
        std::size_t anfang = 0;
        while (anfang <= nachrichten.size()) {
            const auto ende = nachrichten.find('|', anfang);
            bytes += settings::utf8NachCp1252(nachrichten.substr(anfang, ende - anfang)) + "~&~";
            if (ende == std::string::npos) break;
            anfang = ende + 1;
        }
        socket->write(bytes.data(), static_cast<qint64>(bytes.size()));
        socket->flush();
    }
    bool hat(const std::string& nachricht) const { return empfangen.find(nachricht + "~&~") != std::string::npos; }
    int anzahl(const std::string& nachricht) const {
        int n = 0;
        for (auto p = empfangen.find(nachricht); p != std::string::npos; p = empfangen.find(nachricht, p + 1)) ++n;
        return n;
    }
    QTcpSocket* socket;
    std::string empfangen;
};

net::Netzzeiten zeiten(int erinnerung, int abmeldefrage, int hostWarten) {
    net::Netzzeiten z = testhilfe::schnelleZeiten();
    z.erinnerung = erinnerung;
    z.abmeldefrage = abmeldefrage;
    z.hostWarten = hostWarten;
    return z;
}

class NetzskriptTest : public ::testing::Test {
protected:
    // Answers the next box whose text starts with `anfang` with `knopf`; notes its text.
    void boxBeantworten(const QString& anfang, QMessageBox::StandardButton knopf) {
        erwartet_.push_back({anfang, knopf});
    }
    NetzskriptTest() {
        pumpe_.antworten = [this](QWidget* w) {
            auto* box = qobject_cast<QMessageBox*>(w);
            if (!box) return false;
            gesehen_ << box->text();
            for (auto it = erwartet_.begin(); it != erwartet_.end(); ++it) {
                if (!box->text().startsWith(it->first)) continue;
                box->button(it->second)->click();
                erwartet_.erase(it);
                return true;
            }
            return false;
        };
    }

    QTemporaryDir ordner_;
    testhilfe::Boxenpumpe pumpe_;
    std::vector<std::pair<QString, QMessageBox::StandardButton>> erwartet_;
    QStringList gesehen_;
};

// --- The login dialog -------------------------------------------------------

TEST_F(NetzskriptTest, AnmeldungPrueftInDieserFolge) {
    const struct {
        const char* name;
        bool beitreten;
        const char* server;
        const char* meldung;  // nullptr: accepted
    } faelle[] = {
        {"Spieler2", true, "pc", "Spieler2 ist kein gülter Name bei Netzwerkspielen! Bitte wählen Sie einen anderen Namen!"},
        {"spielerin", false, "", "spielerin ist kein gülter Name bei Netzwerkspielen! Bitte wählen Sie einen anderen Namen!"},
        {"1Anna", true, "pc",
         "Der Name 1Anna ist ungültig! Bitte nur Buchstaben und Zahlen eingeben!\nDas erste Zeichen muß ein Buchstabe sein!"},
        {"An na", true, "",
         "Der Name An na ist ungültig! Bitte nur Buchstaben und Zahlen eingeben!\nDas erste Zeichen muß ein Buchstabe sein!"},
        {"Abcdefghijklmn", true, "pc", "Bitte nicht mehr als 13 Zeichen für Ihren Namen eingeben!"},
        {"Computerfreund", true, "pc", "Bitte nicht mehr als 13 Zeichen für Ihren Namen eingeben!"},
        {"", true, "", "Sie müssen einen Namen eingegeben!"},
        {"computer1", true, "", "computer1 ist kein gültiger Name!"},
        {"Anna", true, "  ", "Bitte den Namen oder die IP des Servers angeben!"},
        {"Abcdefghijklm", true, "pc", nullptr},
        {"Jörg2", false, "", nullptr},
    };
    settings::Benutzerspeicher speicher;
    for (const auto& f : faelle) {
        table::Netzanmeldung d(speicher, QStringLiteral("192.168.1.2"));
        d.setzeBeitreten(f.beitreten);
        d.setzeName(QString::fromUtf8(f.name));
        d.setzeServer(QString::fromUtf8(f.server));
        gesehen_.clear();
        QTimer::singleShot(0, [&] { d.findChild<QPushButton*>(QStringLiteral("cmdOK"))->click(); });
        QTimer::singleShot(3000, &d, &QDialog::reject);  // a dialog the checks keep open
        const int ergebnis = d.exec();
        if (f.meldung) {
            EXPECT_EQ(gesehen_, QStringList{QString::fromUtf8(f.meldung)}) << f.name;
            EXPECT_EQ(ergebnis, QDialog::Rejected) << f.name;
        } else {
            EXPECT_TRUE(gesehen_.isEmpty()) << f.name;
            EXPECT_EQ(ergebnis, QDialog::Accepted) << f.name;
            EXPECT_EQ(speicher.text(QStringLiteral("StartNick")), QString::fromUtf8(f.name));
        }
    }
    EXPECT_EQ(speicher.text(QStringLiteral("Verbindung1")), QStringLiteral("pc"));

    // Without a network the warning comes, and the dialog goes on.
    table::Netzanmeldung d(speicher, {});
    d.setzeLokaleAdresse(QStringLiteral("127.0.0.1"));
    d.setzeBeitreten(false);
    d.setzeName(QStringLiteral("Wirt"));
    gesehen_.clear();
    QTimer::singleShot(0, [&] { d.findChild<QPushButton*>(QStringLiteral("cmdOK"))->click(); });
    EXPECT_EQ(d.exec(), QDialog::Accepted);
    EXPECT_EQ(gesehen_, QStringList{QStringLiteral("Warnung: Es besteht zur Zeit keine Netzwerkverbindung!")});
    EXPECT_EQ(d.findChild<QLabel*>(QStringLiteral("labIPAdresse"))->text(), QStringLiteral("IP-Adresse: 127.0.0.1"));
    // The choice is kept as made, and the next dialog opens with it.
    EXPECT_EQ(speicher.zahl(QStringLiteral("StartenMit")), 1);
    EXPECT_FALSE(table::Netzanmeldung(speicher, {}).beitreten());
    testhilfe::bildAblegen(d, QStringLiteral("frmNetzanmeldung"));
}

TEST(Netzadresse, EintragUndTempo) {
    const struct {
        const char* eintrag;
        const char* host;  // nullptr: refused
        int port;
    } faelle[] = {
        {"pc", "pc", 7001},          {"pc:7002", "pc", 7002},
        {"[::1]:7003", "::1", 7003}, {"Kneipe [IP=10.0.0.5]", "10.0.0.5", 7001},
        {"[IP=10.0.0.5:7005]", "10.0.0.5", 7005}, {"pc:", nullptr, 0},
        {"pc:70000", nullptr, 0},    {"", nullptr, 0},
        {"::1", "::1", 7001},
    };
    for (const auto& f : faelle) {
        const auto a = table::serveradresseLesen(QString::fromUtf8(f.eintrag), 7001);
        ASSERT_EQ(a.has_value(), f.host != nullptr) << f.eintrag;
        if (!a) continue;
        EXPECT_EQ(a->host, QString::fromUtf8(f.host)) << f.eintrag;
        EXPECT_EQ(a->port, f.port) << f.eintrag;
    }
    const std::pair<int, int> tempo[] = {{0, 50}, {1, 40}, {2, 30}, {4, 10}, {5, 0}, {99, 0}, {-3, 50}};
    for (const auto& [netztempo, ms] : tempo) EXPECT_EQ(table::pumpintervall(netztempo), ms) << netztempo;
}

// --- A host window and a scripted guest ------------------------------------

TEST_F(NetzskriptTest, HostErinnertFragtUndProtokolliert) {
    Netzfenster host(ordner_.path(), 3, zeiten(250, 900, 30000));
    ASSERT_TRUE(host.netz.hosten(QStringLiteral("Wirt"), 0));
    EXPECT_EQ(host.hfo.status(), QStringLiteral("Bereit und warte auf Mitspieler"));
    EXPECT_EQ(host.netz.lauschenLabel()->text(), QStringLiteral("Tisch offen an Port %1").arg(host.netz.host()->port()));
    host.hfo.netzprotokollAktion()->trigger();
    EXPECT_EQ(host.hfo.netzprotokollAktion()->text(), QStringLiteral("&Netzprotokoll ausblenden"));

    QTcpSocket socket;
    Leitung gast(&socket);
    socket.connectToHost(QStringLiteral("127.0.0.1"), host.netz.host()->port());
    ASSERT_TRUE(warten([&] { return gast.hat("Name?x"); }));
    // Name and readiness in one piece: the log shows what is left to work off.
    gast.senden("Name:Bert|CBere");
    ASSERT_TRUE(warten([&] { return host.netz.startAktion()->isEnabled(); }));
    EXPECT_EQ(host.spiel().namen[Sitz(3)], "Bert");

    // The guest answers every reservation question, never a card question.
    int solo = 0, hochzeit = 0;
    QObject::connect(&socket, &QTcpSocket::readyRead, [&] {
        for (; solo < gast.anzahl("Solo?~&~"); ++solo) gast.senden("AntwoSolo10");
        for (; hochzeit < gast.anzahl("Hoch?x~&~"); ++hochzeit) gast.senden("Hochz30");
    });
    host.hfo.automatikAktion()->trigger();
    boxBeantworten(QStringLiteral("Bert reagiert nicht!"), QMessageBox::No);
    host.netz.startAktion()->trigger();
    ASSERT_TRUE(warten([&] { return gast.hat("Kart?3"); }));
    ASSERT_TRUE(warten([&] { return host.hfo.status() == QStringLiteral("Bert überlegt..."); }));
    testhilfe::bildAblegen(host.hfo, QStringLiteral("netz-host-wartet"));
    // The reminder goes to the guest every 250 ms; the question comes after 900 ms,
    // and after No once more 900 ms later.
    ASSERT_TRUE(warten([&] { return gast.anzahl("Chat:*** Wir warten auf Dich !!! ***~&~") >= 2; }));
    ASSERT_TRUE(warten([&] { return erwartet_.empty(); }));
    EXPECT_EQ(host.spiel().steuerung[Sitz(3)], engine::Steuerung::Netz);
    boxBeantworten(QStringLiteral("Bert reagiert nicht! Möchten Sie dessen Rechner abmelden?"), QMessageBox::Yes);
    ASSERT_TRUE(warten([&] { return erwartet_.empty(); }));
    ASSERT_TRUE(warten([&] { return socket.state() == QAbstractSocket::UnconnectedState; }));
    EXPECT_EQ(host.spiel().namen[Sitz(3)], "Computer2");
    // The computer plays the seat from here on.
    const int karten = host.spiel().sticheGespielt * 4 + host.spiel().stich.anzahl;
    ASSERT_TRUE(warten([&] { return host.spiel().sticheGespielt * 4 + host.spiel().stich.anzahl > karten + 2; }));
    EXPECT_EQ(gesehen_.count(QStringLiteral("Bert reagiert nicht! Möchten Sie dessen Rechner abmelden?")), 2);

    // The log, as the pane shows it: sent and received lines, the rest of a buffer.
    ASSERT_TRUE(warten([&] { return host.netz.protokoll()->text() ==
                                    QString::fromStdString(settings::cp1252NachUtf8(host.netz.host()->protokoll()->text())); }));
    const QString log = host.netz.protokoll()->text();
    EXPECT_TRUE(log.startsWith(QStringLiteral("\nComputer2: Netzt1\nComputer2: Serve1Wirt\nComputer2: CompN3\n")))
        << log.left(200).toStdString();
    EXPECT_TRUE(log.contains(QStringLiteral("\n*** Noch zu bearbeiten: CBere~&~ ***\n  < Computer2: Name:Bert\n  < Bert: CBere")))
        << log.toStdString();
    EXPECT_TRUE(log.contains(QStringLiteral("\nBert: Kart?3\n")));
    EXPECT_TRUE(log.contains(QStringLiteral("\nBert: Chat:*** Wir warten auf Dich !!! ***\n")));
    testhilfe::bildAblegen(host.hfo, QStringLiteral("netz-protokoll"));
}

// --- A guest window and a scripted host ------------------------------------

// A deal in which host seat 3 has no Hochzeit, so the reservation is one question.
engine::Kartenverteilung blattOhneHochzeit() {
    for (std::uint64_t seed = 1;; ++seed) {
        engine::Spiel s;
        engine::SeedZufall z(seed);
        engine::Spielablauf a(s, z);
        a.neuePartie();
        a.antworten(engine::Antwort::zufallsGeben());
        if (engine::hatBeideKreuzDamen(s, Sitz(3))) continue;
        engine::Kartenverteilung k{};
        for (int p = 1; p <= engine::MaxPositionen; ++p) k[static_cast<std::size_t>(p - 1)] = s.deck[p].code;
        return k;
    }
}

TEST_F(NetzskriptTest, GastZeigtJedeStufe) {
    Netzfenster gast(ordner_.path(), 4, zeiten(45000, 240000, 400));
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost, 0));
    auto zeigt = [&](const QString& text) { return warten([&] { return gast.hfo.status() == text; }); };

    gast.netz.beitreten(QStringLiteral("127.0.0.1"), server.serverPort(), QStringLiteral("Anna"));
    EXPECT_EQ(gast.hfo.status(), QStringLiteral("Verbinde mit Rechner 127.0.0.1:%1. Bitte warten ...").arg(server.serverPort()));
    ASSERT_TRUE(warten([&] { return server.hasPendingConnections(); }));
    Leitung host(server.nextPendingConnection());
    ASSERT_TRUE(zeigt(QStringLiteral("Anmeldung läuft! Bitte warten...")));

    // The host keeps silent: after the wait the guest asks, and tries again.
    boxBeantworten(QStringLiteral("Der Server antwortet nicht mehr!\nNochmal versuchen oder Programm beenden?"),
                   QMessageBox::Retry);
    ASSERT_TRUE(warten([&] { return erwartet_.empty(); }));

    host.senden("Netzt1|Serve1Wirt|CompN3|Waitex|Name2Computer1|Name4Computer3|"
                "Chat:*** Willkommen in der Doppelkopf-Runde ***|Name?x");
    ASSERT_TRUE(warten([&] { return host.hat("Name:Anna") && host.hat("CBere"); }));
    ASSERT_TRUE(zeigt(QStringLiteral(
        "Warte auf nächstes Spiel... (Dies kann in in Spitzenzeiten bis zu mehreren Minuten dauern!)")));
    EXPECT_EQ(gast.spiel().namen[Sitz(3)], "Wirt");
    EXPECT_EQ(gast.spiel().namen[Sitz(4)], "Computer1");
    EXPECT_EQ(gast.spiel().namen[Sitz(2)], "Computer3");

    // The name is taken after all: the dialog asks for another.
    pumpe_.antworten = [this, inner = pumpe_.antworten](QWidget* w) {
        if (auto* d = qobject_cast<table::Netzanmeldung*>(w)) {
            EXPECT_FALSE(d->findChild<QLineEdit*>(QStringLiteral("txtServer"))->isEnabled());
            d->setzeName(QStringLiteral("Berta"));
            d->findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
            return true;
        }
        return inner(w);
    };
    host.senden("Name?Anna");
    ASSERT_TRUE(warten([&] { return host.hat("Name:Berta"); }));
    EXPECT_TRUE(gesehen_.contains(QStringLiteral("Anna ist bereits vergeben!\nBitte einen anderen Namen wählen!")));

    host.senden("NochS3");
    ASSERT_TRUE(zeigt(QStringLiteral("Noch 3 Stiche, dann gehts los!")));

    // The deal, with the guest (host seat 3) as Vorhand.
    const engine::RegelOptionen regeln;
    host.senden("Einst" + net::einstellungenSchreiben(engine::regelnUebernehmen(regeln)) +
                "|Lfdsp1|Gpkt10|Gpkt20|Gpkt30|Gpkt40|Verte" + net::verteilungSchreiben(blattOhneHochzeit()) + "|Start");
    ASSERT_TRUE(zeigt(QStringLiteral("Gleich geht es los...")));
    host.senden("Vorha3");
    ASSERT_TRUE(warten([&] { return gast.spiel().ablauf.phase == engine::Spielphase::Vorbehalte; }));
    host.senden("Solo?");
    ASSERT_TRUE(warten([&] { return host.hat("AntwoSolo10") && host.hat("Gesun30"); }));
    EXPECT_TRUE(std::any_of(gesehen_.begin(), gesehen_.end(), [](const QString& b) { return b.contains(QStringLiteral("Solospiel")); }));
    host.senden("Gesun40|Gesun10|Gesun20|Vorbe31");
    ASSERT_TRUE(zeigt(QStringLiteral("Bitte warten!")));
    EXPECT_FALSE(gast.hfo.tisch().kartenwahl());

    // The card question: the guest plays by keyboard; the first card goes to the host.
    host.senden("Kart?3");
    ASSERT_TRUE(zeigt(QStringLiteral("Ihre Karte bitte!")));
    ASSERT_TRUE(warten([&] { return gast.hfo.tisch().kartenwahl(); }));
    const int erste = gast.hfo.tisch().handfolge().front();
    const int code = gast.spiel().deck[erste].code;
    QTest::keyClick(&gast.hfo.tisch(), Qt::Key_1);
    ASSERT_TRUE(warten([&] { return host.hat("Karte" + net::karteSchreiben(3, code)); }));

    // Host seat 4 follows; the guest shows it at its local seat 2, then waits for the host.
    ASSERT_TRUE(warten([&] { return gast.spiel().stich.amZug() == Sitz(2); }));
    const int folge = gast.spiel().deck[engine::ersteErlaubteKarte(gast.spiel(), Sitz(2))].code;
    host.senden("Karte" + net::karteSchreiben(4, folge));
    ASSERT_TRUE(warten([&] { return gast.spiel().stich.platz[Sitz(2)] == 2; }));
    EXPECT_EQ(gast.spiel().deck[gast.spiel().stich.karte(2)].code, folge);
    ASSERT_TRUE(zeigt(QStringLiteral("Wirt überlegt...")));
    testhilfe::bildAblegen(gast.hfo, QStringLiteral("netz-gast-skript"));
    const QString chat = gast.netz.chat()->text();
    EXPECT_TRUE(chat.contains(QStringLiteral("*** Willkommen in der Doppelkopf-Runde ***\n"
                                             "*** Wenn Du andere Regeln wünscht, laß es mich bitte per Chat wissen! ***\n"
                                             "Ab dem nächsten Spiel bist du dabei!")))
        << chat.toStdString();

    // The host goes away: the question of the foyer; No ends the program.
    boxBeantworten(QStringLiteral("Fehler 1: "), QMessageBox::Ok);
    boxBeantworten(QStringLiteral("Möchten Sie ins Foyer zurückkehren?"), QMessageBox::No);
    boxBeantworten(QStringLiteral("Das Programm wird beendet!"), QMessageBox::Ok);
    host.socket->close();
    ASSERT_TRUE(warten([&] { return !gast.hfo.isVisible(); }));
    EXPECT_TRUE(erwartet_.empty());
    const auto fehler = std::find_if(gesehen_.begin(), gesehen_.end(), [](const QString& b) { return b.startsWith("Fehler 1: "); });
    ASSERT_NE(fehler, gesehen_.end());
    EXPECT_TRUE(fehler->endsWith(QStringLiteral("\nDie Verbindung zum Tischinhaber ist unterbrochen!"))) << fehler->toStdString();
}

TEST_F(NetzskriptTest, VerlorenerTischUndDasFoyer) {
    // Yes to the foyer: "Restart" is written; when no new program starts, the table plays on alone.
    {
        Netzfenster gast(ordner_.path(), 4, zeiten(45000, 240000, 30000));
        gast.speicher.restartUebernehmen();
        QTcpServer server;
        ASSERT_TRUE(server.listen(QHostAddress::LocalHost, 0));
        gast.netz.beitreten(QStringLiteral("127.0.0.1"), server.serverPort(), QStringLiteral("Anna"));
        ASSERT_TRUE(warten([&] { return server.hasPendingConnections(); }));
        Leitung host(server.nextPendingConnection());
        host.senden("Netzt1|Serve1Wirt|CompN2|Name?x");
        ASSERT_TRUE(warten([&] { return host.hat("CBere"); }));
        boxBeantworten(QStringLiteral("Fehler 1: "), QMessageBox::Ok);
        boxBeantworten(QStringLiteral("Möchten Sie ins Foyer zurückkehren?"), QMessageBox::Yes);
        boxBeantworten(QStringLiteral("Das Programm konnte nicht neu gestartet werden."), QMessageBox::Ok);
        host.socket->close();
        ASSERT_TRUE(warten([&] { return erwartet_.empty() && !gast.netz.gast(); }));
        EXPECT_TRUE(gast.speicher.restartUebernehmen());
        EXPECT_EQ(gast.steuerung.netz(), nullptr);
        EXPECT_EQ(gast.spiel().namen[Sitz(1)], "Spieler1");
        EXPECT_TRUE(gast.hfo.isVisible());
    }
    // A table that cannot be reached from the command line: the error and the question.
    Netzfenster gast(ordner_.path(), 4);
    QTcpServer frei;
    ASSERT_TRUE(frei.listen(QHostAddress::LocalHost, 0));
    const quint16 port = frei.serverPort();
    frei.close();
    gesehen_.clear();
    boxBeantworten(QStringLiteral("Fehler "), QMessageBox::Ok);
    boxBeantworten(QStringLiteral("Möchten Sie ins Foyer zurückkehren?"), QMessageBox::No);
    boxBeantworten(QStringLiteral("Das Programm wird beendet!"), QMessageBox::Ok);
    ASSERT_TRUE(gast.netz.beitretenMitAdresse(QStringLiteral("127.0.0.1:%1").arg(port), QStringLiteral("Anna")));
    ASSERT_TRUE(warten([&] { return !gast.hfo.isVisible(); }));
    EXPECT_TRUE(gesehen_.first().endsWith(QStringLiteral("\nDer Tisch konnte nicht erreicht werden!"))) << gesehen_.first().toStdString();
}

}  // namespace

// The client against a recording TCP server of our own (the exact login bytes)
// and against a real ngircd (two players meet, a taken name, a table).
#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include "Ngircd.h"
#include "foyer/Foyertexte.h"
#include "foyer/Foyerverbindung.h"

namespace foyer {
namespace {

constexpr int Frist = 10'000;

bool sitztIm(const Foyerverbindung& v, const QString& nick, int tisch = -1) {
    for (const auto& s : v.sitzung().spieler())
        if (QString::fromStdString(s.nick) == nick && (tisch < 0 || s.tisch == tisch)) return true;
    return false;
}

TEST(Foyerverbindung, AnmeldebytesAufDerLeitung) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost, 0));
    QByteArray empfangen;
    QTcpSocket* gast = nullptr;
    QObject::connect(&server, &QTcpServer::newConnection, [&] {
        gast = server.nextPendingConnection();
        QObject::connect(gast, &QTcpSocket::readyRead, [&] {
            empfangen += gast->readAll();
            if (empfangen.contains("NICK ") && !empfangen.contains("list"))
                gast->write(":aufnahme 462 * :Connection already registered\r\n:aufnahme 001 Fuenfzehnzei :Willkommen\r\n");
        });
    });
    Foyerverbindung v;
    QSignalSpy angemeldet(&v, &Foyerverbindung::angemeldet);
    v.anmelden(QStringLiteral("127.0.0.1"), server.serverPort(), QStringLiteral("Fuenfzehnzeich1"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return empfangen.contains("Time\r"); }, Frist)) << empfangen.toStdString();
    EXPECT_EQ(angemeldet.count(), 1);
    const QByteArray anmeldung = empfangen.left(empfangen.indexOf("Time\r") + 5);
    static const QRegularExpression erwartet(
        QStringLiteral("^USER  ([A-Y]{5}) \\1 \\1 \\1\rPASS r90317pv\rNICK Fuenfzehnzei\rlist\rJOIN \\+Foyer\rTime\r$"));
    EXPECT_TRUE(erwartet.match(QString::fromLatin1(anmeldung)).hasMatch()) << anmeldung.toStdString();
    // The refresh timer asks for the members of the foyer; still no line feed anywhere.
    ASSERT_TRUE(QTest::qWaitFor([&] { return empfangen.endsWith("NAMES +Foyer\r"); }, Frist));
    EXPECT_FALSE(empfangen.contains('\n'));

    QSignalSpy verloren(&v, &Foyerverbindung::verbindungVerloren);
    gast->abort();
    ASSERT_TRUE(verloren.wait(Frist));
    EXPECT_EQ(verloren.at(0).at(0).toString().toStdString(), texte::Unterbrochen);
}

TEST(Foyerverbindung, FehlerBeiDerAnmeldung) {
    Foyerverbindung v;
    QSignalSpy gescheitert(&v, &Foyerverbindung::anmeldungFehlgeschlagen);
    v.anmelden(QStringLiteral("127.0.0.1"), foyertest::freierPort(), QStringLiteral("Anna"));
    ASSERT_TRUE(gescheitert.wait(Frist));
    EXPECT_EQ(gescheitert.at(0).at(0).toString(), QStringLiteral("Fehler bei der Anmeldung im IRC: ") +
                                                     QString::fromUtf8(texte::VerbindungAbgelehnt.data()));
    EXPECT_EQ(anmeldefehlerText(QAbstractSocket::HostNotFoundError),
              QStringLiteral("Fehler bei der Anmeldung im IRC: 11001: Sie sind nicht mit dem Internet verbunden!\n"
                             "Bitte stellen Sie zunächst eine Internet-Verbindung her!"));

    // A server that hangs up during the login, and one that never answers.
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost, 0));
    bool auflegen = true;
    QObject::connect(&server, &QTcpServer::newConnection, [&] {
        QTcpSocket* s = server.nextPendingConnection();
        if (auflegen) QObject::connect(s, &QTcpSocket::readyRead, s, &QTcpSocket::disconnectFromHost);
    });
    v.anmelden(QStringLiteral("127.0.0.1"), server.serverPort(), QStringLiteral("Anna"));
    ASSERT_TRUE(gescheitert.wait(Frist));
    EXPECT_EQ(gescheitert.at(1).at(0).toString().toStdString(), texte::GegenstelleGetrennt);
    auflegen = false;
    v.setzeAnmeldefrist(300);
    v.anmelden(QStringLiteral("127.0.0.1"), server.serverPort(), QStringLiteral("Anna"));
    ASSERT_TRUE(gescheitert.wait(Frist));
    EXPECT_EQ(gescheitert.at(2).at(0).toString().toStdString(), texte::anmeldeFehler(texte::Zeitueberschreitung));
}

class MitNgircd : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(irc.laeuft()) << irc.fehler().toStdString(); }
    // Logs in and waits until the player is in the foyer.
    void anmelden(Foyerverbindung& v, const QString& name) {
        QSignalSpy angemeldet(&v, &Foyerverbindung::angemeldet);
        v.anmelden(QStringLiteral("127.0.0.1"), irc.port(), name);
        ASSERT_TRUE(angemeldet.wait(Frist)) << name.toStdString();
        ASSERT_TRUE(QTest::qWaitFor([&] { return sitztIm(v, v.nick()); }, Frist));
    }
    foyertest::Ngircd irc;
};

TEST_F(MitNgircd, ZweiSpielerSehenSichImFoyerUndChatten) {
    Foyerverbindung anna, bert;
    anmelden(anna, QStringLiteral("Anna"));
    anmelden(bert, QStringLiteral("Bert"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return sitztIm(anna, QStringLiteral("Bert")) && sitztIm(bert, QStringLiteral("Anna")); }, Frist));

    QSignalSpy foyerchat(&bert, &Foyerverbindung::foyerChat);
    anna.foyerChatSenden(QStringLiteral("Grüß euch"));
    ASSERT_TRUE(foyerchat.wait(Frist));
    EXPECT_EQ(foyerchat.at(0).at(1).toString(), QStringLiteral("Grüß euch"));

    bert.setzeNichtErreichbar(true);
    QSignalSpy antwort(&anna, &Foyerverbindung::systemzeile);
    anna.privatSenden(QStringLiteral("Bert"), QStringLiteral("Spielst du mit?"));
    ASSERT_TRUE(antwort.wait(Frist));
    EXPECT_EQ(antwort.at(0).at(1).toString(), QStringLiteral("<SYSTEM> Bert kann im Moment keine Nachrichten von Dir empfangen!"));

    QSignalSpy abgemeldet(&anna, &Foyerverbindung::systemzeile);
    bert.abmelden();
    ASSERT_TRUE(abgemeldet.wait(Frist));
    EXPECT_EQ(abgemeldet.at(0).at(1).toString(), QStringLiteral("<SYSTEM> Bert ist nicht mehr angemeldet!"));

    QSignalSpy verloren(&anna, &Foyerverbindung::verbindungVerloren);
    irc.beenden();
    ASSERT_TRUE(verloren.wait(Frist));
}

TEST_F(MitNgircd, VergebenerNameZeigtDenHinweis) {
    Foyerverbindung erste, zweite;
    anmelden(erste, QStringLiteral("Anna"));
    QSignalSpy abgelehnt(&zweite, &Foyerverbindung::nameAbgelehnt);
    zweite.anmelden(QStringLiteral("127.0.0.1"), irc.port(), QStringLiteral("Anna"));
    ASSERT_TRUE(abgelehnt.wait(Frist));
    EXPECT_EQ(abgelehnt.at(0).at(0).toString().toStdString(), texte::nameVergeben("Anna"));
    zweite.anmelden(QStringLiteral("127.0.0.1"), irc.port(), QStringLiteral("Jörg"));  // the server refuses umlauts
    ASSERT_TRUE(abgelehnt.wait(Frist));
    EXPECT_EQ(abgelehnt.at(1).at(0).toString().toStdString(), texte::nameVergeben("Jörg"));
}

TEST_F(MitNgircd, EinTischWirdGesehenUndBesetzt) {
    Foyerverbindung anna, bert;
    anmelden(anna, QStringLiteral("Anna"));
    anmelden(bert, QStringLiteral("Bert"));
    QSignalSpy eroeffnet(&anna, &Foyerverbindung::tischEroeffnet);
    anna.tischEroeffnen(QStringLiteral("127.0.0.1"), 40001, 3, QStringLiteral("48 Karten"));
    ASSERT_TRUE(eroeffnet.wait(Frist));
    ASSERT_TRUE(QTest::qWaitFor([&] { return bert.sitzung().tische().size() == 1; }, Frist));
    const Foyertisch tisch = bert.sitzung().tische()[0];
    EXPECT_EQ(tisch.besitzer, "Anna");
    EXPECT_EQ(tisch.angebot, (Tischangebot{eroeffnet.at(0).at(0).toInt(), "127.0.0.1", 40001, 3, "48 Karten"}));

    bert.platzNehmen(tisch.angebot.nummer);
    anna.freiePlaetzeSetzen(2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return sitztIm(anna, QStringLiteral("Bert"), tisch.angebot.nummer); }, Frist));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !bert.sitzung().tische().empty() && bert.sitzung().tische()[0].angebot.frei == 2; }, Frist));

    // A latecomer learns about the table from the host directly.
    Foyerverbindung carl;
    anmelden(carl, QStringLiteral("Carl"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return carl.sitzung().tische().size() == 1; }, Frist));
    anna.tischSchliessen();
    EXPECT_TRUE(QTest::qWaitFor([&] { return carl.sitzung().tische().empty(); }, Frist));
}

}  // namespace
}  // namespace foyer

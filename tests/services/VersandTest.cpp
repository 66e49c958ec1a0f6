// The upload against real servers on 127.0.0.1: Debian's aiosmtpd, and a script
// of ours that refuses a recipient once or never answers.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>

#include "Postserver.h"
#include "services/Diensttexte.h"
#include "services/Ergebnisablage.h"
#include "services/Ergebnisversand.h"
#include "services/Smtpclient.h"

namespace services {
namespace {

const QByteArray Datei1 = "RPPT12;Trumpona 0.1.0\r\nSpieler;Anna\r\nDatum;2025-01-14;20:15:03\r\nSpiel;1;0;2;2;0\r\nSumme;0;2;2;0\r\n";
const QByteArray Datei2 = "RPPT12;Trumpona 0.1.0\r\nSpieler;Bernd\r\nSumme;1;1;1;1\r\n";

struct Upload : ::testing::Test {
    Upload() {
        client.setzeZeitlimit(std::chrono::milliseconds(5000));
        konto = {QStringLiteral("127.0.0.1"), 25, QString(), QStringLiteral("anna@example.org"), QStringLiteral("Anna"),
                 QStringLiteral("leitung@example.org")};
        connect();
    }

    void connect() {
        QObject::connect(&versand, &Ergebnisversand::status, [this](const QString&, const QString& s) { status << s; });
        QObject::connect(&versand, &Ergebnisversand::behalten,
                         [this](const QString& d, const QString& g) { behalten << d + QStringLiteral(": ") + g; });
        QObject::connect(&versand, &Ergebnisversand::wiederholenFragen, [this](const QString& d) {
            fragen << d;
            versand.wiederholen(nochmal);
        });
    }

    void ablegen(const QString& name, const QByteArray& inhalt) {
        QFile f(ordner.filePath(name));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(inhalt);
    }

    // Runs one upload to `port`; returns {sent, kept}.
    std::pair<int, int> hochladen(quint16 port) {
        konto.port = port;
        QSignalSpy fertig(&versand, &Ergebnisversand::fertig);
        if (!versand.alleSenden(ordner.path(), konto)) return {-1, -1};
        if (fertig.isEmpty() && !fertig.wait(20000)) return {-2, -2};
        return {fertig.front().at(0).toInt(), fertig.front().at(1).toInt()};
    }

    QTemporaryDir ordner, server;
    Smtpclient client;
    Ergebnisversand versand{client};
    Mailkonto konto;
    QStringList status, behalten, fragen;
    bool nochmal = false;
};

TEST_F(Upload, AiosmtpdBekommtJedeDateiAlsMailUndDieDateienGehen) {
    const QString postfach = server.filePath(QStringLiteral("postfach"));
    const auto smtp = testhilfe::Postserver::aiosmtpd(postfach);
    ASSERT_TRUE(smtp->bereit());
    ablegen(QStringLiteral("RPPT12a.D4T"), Datei1);
    ablegen(QStringLiteral("RPPT12b.D4T"), Datei2);
    ablegen(QStringLiteral("andere.txt"), "bleibt");
    client.setzeUhr([] { return QDateTime(QDate(2025, 1, 14), QTime(20, 15, 3)); });

    EXPECT_EQ(hochladen(smtp->port()), std::make_pair(2, 0));
    EXPECT_EQ(QDir(ordner.path()).entryList(QDir::Files), QStringList{QStringLiteral("andere.txt")});
    EXPECT_TRUE(status.contains(QStringLiteral("Nachricht verschickt !")));
    const QList<QByteArray> mails = testhilfe::postfachLesen(postfach);
    ASSERT_EQ(mails.size(), 2);
    // The Maildir keeps the header lines as sent; it stores every line end, the lone CRs too, as LF.
    const QByteArray kopf = "From: Anna <anna@example.org>\nDate: Tue, 14 Jan 2025 20:15:03 +0100\nX-Mailer: " +
                            programmkennung().toUtf8() + "\nTo: Turnierleitung <leitung@example.org>\nSubject: Turnierwertung ";
    EXPECT_TRUE(mails[0].startsWith(kopf + "Anna\n")) << mails[0].constData();
    EXPECT_TRUE(mails[1].startsWith(kopf + "Bernd\n")) << mails[1].constData();
    EXPECT_TRUE(mails[0].endsWith("\n\n<BEGINN>" + QByteArray(Datei1).replace("\r\n", "\n") + "<ENDE>\n"));
    EXPECT_TRUE(mails[1].endsWith("\n\n<BEGINN>RPPT12;Trumpona 0.1.0\nSpieler;Bernd\nSumme;1;1;1;1\n<ENDE>\n"));
}

TEST_F(Upload, DieBytesAufDerLeitungSamtEinzelnenCrUndSommerzeit) {
    const auto smtp = testhilfe::Postserver::attrappe(QStringLiteral("einmal550"), server.path());
    ASSERT_TRUE(smtp->bereit());
    ablegen(QStringLiteral("RPPT12a.D4T"), Datei1);
    client.setzeUhr([] { return QDateTime(QDate(2025, 7, 6), QTime(9, 5, 0)); });
    nochmal = true;  // the first "rcpt to:" is refused, the second try goes through

    EXPECT_EQ(hochladen(smtp->port()), std::make_pair(1, 0));
    EXPECT_EQ(fragen, QStringList{QStringLiteral("RPPT12a.D4T")});
    QFile befehle(server.filePath(QStringLiteral("befehle.txt")));
    ASSERT_TRUE(befehle.open(QIODevice::ReadOnly));
    const QByteArray dialog = "HELO example.org\r\nmail from: anna@example.org\r\nrcpt to: leitung@example.org\r\n";
    EXPECT_EQ(befehle.readAll(), dialog + dialog + "data\r\nquit\r\n");
    QFile mail(server.filePath(QStringLiteral("mail-1.bin")));
    ASSERT_TRUE(mail.open(QIODevice::ReadOnly));
    EXPECT_EQ(mail.readAll(), "From: Anna <anna@example.org>\r\n"
                              "Date: Sun, 06 Jul 2025 09:05:00 +0100\r\n"
                              "X-Mailer: " + programmkennung().toUtf8() + "\r\n"
                              "To: Turnierleitung <leitung@example.org>\r\n"
                              "Subject: Turnierwertung Anna\r\n"
                              "\r\n"
                              "<BEGINN>RPPT12;Trumpona 0.1.0\rSpieler;Anna\rDatum;2025-01-14;20:15:03\rSpiel;1;0;2;2;0\r"
                              "Summe;0;2;2;0\r<ENDE>\r\n"
                              ".\r\n");
}

TEST_F(Upload, AbgelehnteDateiBleibtDieNaechsteGehtUndSpaeterAuchDieAbgelehnte) {
    const auto smtp = testhilfe::Postserver::attrappe(QStringLiteral("einmal550"), server.path());
    ASSERT_TRUE(smtp->bereit());
    ablegen(QStringLiteral("RPPT12a.D4T"), Datei1);
    ablegen(QStringLiteral("RPPT12b.D4T"), Datei2);

    EXPECT_EQ(hochladen(smtp->port()), std::make_pair(1, 1));
    EXPECT_EQ(behalten, QStringList{QStringLiteral("RPPT12a.D4T: SMTP Error! Falscher Rückgabewert: 550 no such user")});
    EXPECT_TRUE(status.contains(QStringLiteral("Fehler beim Versenden aufgetreten")));
    EXPECT_EQ(wartendeErgebnisse(ordner.path()), QStringList{QStringLiteral("RPPT12a.D4T")});

    EXPECT_EQ(hochladen(smtp->port()), std::make_pair(1, 0));
    EXPECT_TRUE(wartendeErgebnisse(ordner.path()).isEmpty());
}

TEST_F(Upload, StummerServerLaeuftInDieZeitUndNichtsGehtVerloren) {
    const auto smtp = testhilfe::Postserver::attrappe(QStringLiteral("stumm"), server.path());
    ASSERT_TRUE(smtp->bereit());
    ablegen(QStringLiteral("RPPT12a.D4T"), Datei1);
    client.setzeZeitlimit(std::chrono::milliseconds(300));

    EXPECT_EQ(hochladen(smtp->port()), std::make_pair(0, 1));
    EXPECT_EQ(status, (QStringList{QStringLiteral("Verbinde..."), QStringLiteral("SMTP Error! Time out"),
                                   QStringLiteral("Fehler beim Versenden aufgetreten")}));
    EXPECT_EQ(wartendeErgebnisse(ordner.path()), QStringList{QStringLiteral("RPPT12a.D4T")});
}

TEST_F(Upload, OhneDateiGeschiehtNichtsUndWaehrendEinesUploadsLaeuftNoch) {
    EXPECT_EQ(hochladen(1), std::make_pair(0, 0));
    EXPECT_TRUE(status.isEmpty());

    ablegen(QStringLiteral("RPPT12a.D4T"), Datei1);
    client.setzeZeitlimit(std::chrono::milliseconds(200));
    QSignalSpy meldung(&versand, &Ergebnisversand::meldung);
    QSignalSpy fertig(&versand, &Ergebnisversand::fertig);
    konto.port = 1;  // nobody listens there
    ASSERT_TRUE(versand.alleSenden(ordner.path(), konto));
    EXPECT_FALSE(versand.alleSenden(ordner.path(), konto));
    EXPECT_FALSE(client.senden(konto.mailserver(), Mail{}));
    ASSERT_EQ(meldung.size(), 1);
    EXPECT_EQ(meldung.front().at(0).toString(), QStringLiteral("Läuft noch!"));
    EXPECT_TRUE(status.contains(QStringLiteral("Läuft noch!")));
    ASSERT_TRUE(fertig.wait(10000));
    EXPECT_EQ(behalten.size(), 1);
    EXPECT_TRUE(QFile::exists(ordner.filePath(QStringLiteral("RPPT12a.D4T"))));
}

TEST(Kommandozeile, EineZeileJeDateiUndStatusEinsSolangeEineBleibt) {
    QTemporaryDir ordner, server, konfiguration;
    const auto smtp = testhilfe::Postserver::attrappe(QStringLiteral("einmal550"), server.path());
    ASSERT_TRUE(smtp->bereit());
    for (const char* name : {"RPPT12a.D4T", "RPPT12b.D4T"}) {
        QFile f(ordner.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(Datei1);
    }
    auto aufrufen = [&](QByteArray& ausgabe) {
        QProcess p;
        QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
        umgebung.insert(QStringLiteral("XDG_CONFIG_HOME"), konfiguration.path());
        p.setProcessEnvironment(umgebung);
        p.start(QStringLiteral(TRUMPONA_PROGRAMM),
                {QStringLiteral("--upload-results"), QStringLiteral("--dir"), ordner.path(), QStringLiteral("--smtp"),
                 QStringLiteral("127.0.0.1:%1").arg(smtp->port()), QStringLiteral("--from"), QStringLiteral("a@example.org"),
                 QStringLiteral("--to"), QStringLiteral("t@example.org")});
        if (!p.waitForFinished(60000)) {
            p.kill();
            return -1;
        }
        ausgabe = p.readAllStandardOutput();
        return p.exitCode();
    };
    QByteArray ausgabe;
    EXPECT_EQ(aufrufen(ausgabe), 1);
    EXPECT_EQ(ausgabe, "RPPT12a.D4T: behalten (SMTP Error! Falscher Rückgabewert: 550 no such user)\n"
                       "RPPT12b.D4T: gesendet\n");
    EXPECT_EQ(aufrufen(ausgabe), 0);
    EXPECT_EQ(ausgabe, "RPPT12a.D4T: gesendet\n");
    EXPECT_EQ(aufrufen(ausgabe), 0);
    EXPECT_EQ(ausgabe, "");
}

}  // namespace
}  // namespace services

// Host and guests over TCP on the loopback, in one process: a Partie, guests
// that misbehave, the waits and their questions, refused connections.
#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <memory>

#include "Testtisch.h"
#include "net/Automatiktisch.h"
#include "net/Netztexte.h"

using engine::Sitz;

namespace {

constexpr int Frist = 20000;  // ms: every wait of these tests ends by then

// Runs the event loop until `bedingung` holds; false after `ms`. Unlike
// QTest::qWaitFor it never sleeps, so a message exchange is not paced by it.
template <class F>
bool warten(F bedingung, int ms = Frist) {
    QElapsedTimer uhr;
    uhr.start();
    while (!bedingung()) {
        if (uhr.elapsed() > ms) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    }
    return true;
}

net::Netzzeiten schnell() {
    net::Netzzeiten z;
    z.takt = 0;
    return z;
}

struct Hosttisch {
    explicit Hosttisch(int gaeste, int spiele, net::Netzzeiten zeiten = schnell())
        : zufall(5), ablauf(spiel, zufall), spieler(ablauf, zufall), host(spiel, ablauf, zeiten),
          automat(ablauf, spieler.entscheider()) {
        ablauf.beobachterHinzufuegen(&richter);
        spiel.steuerung.fill(engine::Steuerung::Computer);
        host.setzeHost("Gastgeber", 1);
        automat.nachSpiel = [this, spiele](const engine::Spiel&) { return ++gespielt < spiele; };
        automatik = std::make_unique<net::Automatiktisch>(host, ablauf, automat, gaeste);
        QObject::connect(automatik.get(), &net::Automatiktisch::fertig, [this] { fertig = true; });
        EXPECT_TRUE(host.lauschen(0, "127.0.0.1"));
    }
    engine::Spiel spiel;
    engine::SeedZufall zufall;
    engine::Spielablauf ablauf;
    engine::Schiedsrichter richter;
    nettest::Spielerbank spieler;
    net::Gastgeber host;
    net::Tischautomat automat;
    std::unique_ptr<net::Automatiktisch> automatik;
    int gespielt = 0;
    bool fertig = false;
};

struct Gastplatz {
    Gastplatz(const QString& name, quint16 port, net::Netzzeiten zeiten = schnell())
        : zufall(name.size()), ablauf(spiel, zufall), spieler(ablauf, zufall), gast(spiel, ablauf, zeiten) {
        net::automatischSpielen(gast, ablauf, *spieler.spieler[0]);
        QObject::connect(&gast, &net::Gast::abweichung, [this](const QString& t) { abweichungen << t; });
        QObject::connect(&gast, &net::Gast::verbindungVerloren, [this](bool erreicht, int nummer, const QString&) {
            verloren = true;
            warErreicht = erreicht;
            fehlernummer = nummer;
        });
        gast.verbinden("127.0.0.1", port, name);
    }
    int punkte(int hostSitz) const { return gast.kern()->hostpunkte(hostSitz); }
    engine::Spiel spiel;
    engine::SeedZufall zufall;
    engine::Spielablauf ablauf;
    nettest::Spielerbank spieler;
    net::Gast gast;
    QStringList abweichungen;
    bool verloren = false;
    bool warErreicht = false;
    int fehlernummer = 0;
};

// A guest that speaks the protocol by hand: it logs in and then does what the test says.
struct Rohgast {
    explicit Rohgast(quint16 port) {
        QObject::connect(&socket, &QTcpSocket::readyRead, [this] { empfangen += socket.readAll().toStdString(); });
        socket.connectToHost("127.0.0.1", port);
        EXPECT_TRUE(socket.waitForConnected(Frist));
    }
    void senden(const std::string& bytes) {
        socket.write(bytes.data(), static_cast<qint64>(bytes.size()));
        socket.flush();
    }
    int anzahl(const std::string& was) const {
        int n = 0;
        for (auto p = empfangen.find(was); p != std::string::npos; p = empfangen.find(was, p + 1)) ++n;
        return n;
    }
    QTcpSocket socket;
    std::string empfangen;
};

void gleichWieHost(const Hosttisch& h, const Gastplatz& g) {
    EXPECT_TRUE(g.abweichungen.isEmpty()) << g.abweichungen.join("; ").toStdString();
    for (const Sitz s : engine::alleSitze) EXPECT_EQ(g.punkte(s.nr()), h.spiel.partie.punkte[s]);
}

}  // namespace

TEST(Netz, PartieUeberTcp) {
    Hosttisch h(3, 3);
    Gastplatz a("Anna", h.host.port()), b("Bert", h.host.port()), c("Carla", h.host.port());
    ASSERT_TRUE(warten(
        [&] { return h.fertig && a.gast.kern()->spieleBeendet() == 3 && b.gast.kern()->spieleBeendet() == 3 &&
                     c.gast.kern()->spieleBeendet() == 3; },
        Frist));
    EXPECT_EQ(h.richter.fehlerAnzahl(), 0);
    for (const Gastplatz* g : {&a, &b, &c}) gleichWieHost(h, *g);
    EXPECT_EQ(h.spiel.namen[Sitz(3)], "Anna");
    EXPECT_EQ(h.spiel.namen[Sitz(2)], "Bert");
    EXPECT_EQ(h.spiel.namen[Sitz(4)], "Carla");
    EXPECT_FALSE(h.host.lauscht());  // full

    // A fourth guest finds the table closed.
    Gastplatz d("Dora", h.host.port());
    ASSERT_TRUE(warten([&] { return d.verloren; }));
    EXPECT_FALSE(d.warErreicht);

    // The host leaves: the guests hear that the connection broke.
    h.host.beenden();
    ASSERT_TRUE(warten([&] { return a.verloren; }));
    EXPECT_TRUE(a.warErreicht);
    EXPECT_EQ(a.fehlernummer, QAbstractSocket::RemoteHostClosedError);
}

// Rubbish, an over-long name, a card it does not hold, then gone in the middle of a trick.
TEST(Netz, FeindlicherGastUeberTcp) {
    Hosttisch h(2, 2);
    Gastplatz anna("Anna", h.host.port());
    Rohgast feind(h.host.port());
    QSignalSpy mitteilungen(&h.host, &net::Gastgeber::mitteilung);
    feind.senden("M\xFCll~&~Name:Abcdefghijklmnopqrst~&~CBere~&~xx~&~Karte9#9~&~Limit~&~");
    int soloAntworten = 0;
    int hochzeitAntworten = 0;
    bool falscheKarte = false;
    QObject::connect(&feind.socket, &QTcpSocket::readyRead, [&] {
        // No solo, no Hochzeit; the first card asked for is one nobody holds; at the second question it leaves.
        for (; soloAntworten < feind.anzahl("Solo?"); ++soloAntworten) feind.senden("AntwoSolo10~&~");
        for (; hochzeitAntworten < feind.anzahl("Hoch?"); ++hochzeitAntworten) feind.senden("Hochz20~&~");
        if (feind.anzahl("Kart?") == 1 && !falscheKarte) {
            falscheKarte = true;
            feind.senden("Karte264#1~&~");
        }
        if (feind.anzahl("Kart?") == 2) feind.socket.disconnectFromHost();
    });
    ASSERT_TRUE(warten([&] { return h.fertig && anna.gast.kern()->spieleBeendet() == 2; }));
    EXPECT_EQ(h.spiel.steuerung[Sitz(2)], engine::Steuerung::Computer);
    EXPECT_EQ(h.spiel.namen[Sitz(2)], "Computer1");
    EXPECT_NE(h.host.kern().protokoll().text().find("*** Karte von Abcdefghijklm abgelehnt: 264#1 ***"),
              std::string::npos);
    ASSERT_FALSE(mitteilungen.isEmpty());
    EXPECT_EQ(mitteilungen.first().at(1).toString(), "Die Verbindung wurde von Abcdefghijklm getrennt!");
    EXPECT_EQ(h.richter.fehlerAnzahl(), 0);
    gleichWieHost(h, anna);
}

TEST(Netz, UeberflutenderGastUeberTcp) {
    Hosttisch h(2, 2);
    Gastplatz anna("Anna", h.host.port());
    Rohgast flut(h.host.port());
    flut.senden("Name:Flut~&~CBere~&~");
    ASSERT_TRUE(warten([&] { return flut.anzahl("Verte") > 0; }));
    flut.senden(std::string(1024 * 1024, 'x'));
    ASSERT_TRUE(warten([&] { return flut.socket.state() == QAbstractSocket::UnconnectedState; }));
    ASSERT_TRUE(warten([&] { return h.fertig && anna.gast.kern()->spieleBeendet() == 2; }));
    EXPECT_EQ(h.spiel.steuerung[Sitz(2)], engine::Steuerung::Computer);
    EXPECT_EQ(h.richter.fehlerAnzahl(), 0);
    gleichWieHost(h, anna);
}

// A guest that never answers: reminded, then the host is asked; No asks again
// later, Yes gives the seat to the computer and the game goes on.
TEST(Netz, ErinnerungUndAbmeldefrage) {
    net::Netzzeiten zeiten = schnell();
    zeiten.erinnerung = 40;
    zeiten.abmeldefrage = 200;
    Hosttisch h(1, 1, zeiten);
    QSignalSpy fragen(&h.host, &net::Gastgeber::abmeldefrage);
    Rohgast stumm(h.host.port());
    stumm.senden("Name:Stumm~&~CBere~&~");
    ASSERT_TRUE(warten([&] { return fragen.size() == 1; }));
    EXPECT_EQ(fragen.first().at(0).toInt(), 3);
    EXPECT_EQ(fragen.first().at(1).toString(), "Stumm reagiert nicht! Möchten Sie dessen Rechner abmelden?");
    EXPECT_GE(stumm.anzahl("Chat:*** Wir warten auf Dich !!! ***~&~"), 2);
    h.host.abmeldefrageBeantworten(3, false);
    ASSERT_TRUE(warten([&] { return fragen.size() == 2; }));
    EXPECT_EQ(h.spiel.steuerung[Sitz(3)], engine::Steuerung::Netz);
    h.host.abmeldefrageBeantworten(3, true);
    ASSERT_TRUE(warten([&] { return h.fertig; }));
    EXPECT_EQ(h.spiel.steuerung[Sitz(3)], engine::Steuerung::Computer);
    EXPECT_EQ(h.richter.fehlerAnzahl(), 0);
}

TEST(Netz, GastWartetAufDenHost) {
    QTcpServer stumm;
    ASSERT_TRUE(stumm.listen(QHostAddress::LocalHost, 0));
    net::Netzzeiten zeiten = schnell();
    zeiten.hostWarten = 100;
    engine::Spiel spiel;
    engine::SeedZufall zufall(1);
    engine::Spielablauf ablauf(spiel, zufall);
    net::Gast gast(spiel, ablauf, zeiten);
    QSignalSpy fragen(&gast, &net::Gast::serverAntwortetNicht);
    QSignalSpy fertig(&gast, &net::Gast::verlassenFertig);
    gast.verbinden("127.0.0.1", stumm.serverPort(), "Anna");
    ASSERT_TRUE(warten([&] { return fragen.size() == 1; }));
    EXPECT_EQ(fragen.first().at(0).toString(), "Der Server antwortet nicht mehr!\nNochmal versuchen oder Programm beenden?");
    gast.wartenBeantworten(true);
    ASSERT_TRUE(warten([&] { return fragen.size() == 2; }));
    gast.wartenBeantworten(false);
    ASSERT_TRUE(warten([&] { return fertig.size() == 1; }));
}

TEST(Netz, BelegterPortUndUnerreichbarerHost) {
    Hosttisch h(1, 1);
    engine::Spiel spiel;
    engine::SeedZufall zufall(1);
    engine::Spielablauf ablauf(spiel, zufall);
    net::Gastgeber zweiter(spiel, ablauf);
    EXPECT_FALSE(zweiter.lauschen(h.host.port(), "127.0.0.1"));
    EXPECT_TRUE(zweiter.fehler().startsWith("Netzwerkfehler! ")) << zweiter.fehler().toStdString();

    // Nobody listens on a port the closed server had.
    QTcpServer frei;
    ASSERT_TRUE(frei.listen(QHostAddress::LocalHost, 0));
    const quint16 port = frei.serverPort();
    frei.close();
    Gastplatz g("Anna", port);
    ASSERT_TRUE(warten([&] { return g.verloren; }));
    EXPECT_FALSE(g.warErreicht);
    EXPECT_EQ(g.fehlernummer, QAbstractSocket::ConnectionRefusedError);
}

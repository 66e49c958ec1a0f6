#include <QCoreApplication>
#include <QTimer>
#include <iostream>

#include "Autoplay.h"
#include "Computertisch.h"
#include "Netzlauf.h"
#include "SpielJson.h"
#include "Spielliste.h"
#include "engine/Schiedsrichter.h"
#include "engine/Zufall.h"
#include "net/Automatiktisch.h"
#include "net/Namen.h"
#include "net/Tischautomat.h"

namespace app {

using engine::Sitz;

std::string standZeile(const engine::ProSitz<int>& punkte) {
    std::string zeile = "stand";
    for (const Sitz s : engine::alleSitze) zeile += " " + std::to_string(s.nr()) + "=" + std::to_string(punkte[s]);
    return zeile;
}

namespace {

constexpr int StandardPort = 7001;
constexpr int StandardTakt = 10;
constexpr int SchliessenMs = 3000;  // the longest the host waits for its guests to read the end

// The host's table: the game, its computer players, the referee and the connection.
struct Hosttisch {
    Hosttisch(const Aufruf& aufruf, std::uint64_t seed, const std::optional<settings::Einstellungen>& optionen)
        : zufall(seed), ablauf(spiel, zufall), tisch(ablauf, zufall, {"regelwerk", "regelwerk", "regelwerk", "regelwerk"}),
          host(spiel, ablauf, zeiten(aufruf)), automat(ablauf, tisch.entscheider()) {
        ablauf.beobachterHinzufuegen(&schiedsrichter);
        if (optionen) ablauf.regelOptionenSetzen(optionen->regeln);
        spiel.steuerung.fill(engine::Steuerung::Computer);
    }
    static net::Netzzeiten zeiten(const Aufruf& aufruf) {
        net::Netzzeiten z;
        z.takt = aufruf.takt.value_or(StandardTakt);
        return z;
    }

    engine::Spiel spiel;
    engine::SeedZufall zufall;
    engine::Spielablauf ablauf;
    engine::Schiedsrichter schiedsrichter;
    Computertisch tisch;
    net::Gastgeber host;
    net::Tischautomat automat;
};

int hostLaufen(Hosttisch& t, const Aufruf& aufruf, std::uint64_t seed, std::ostream* json, std::ostream& bogen) {
    Spielliste liste;
    int gespielt = 0;
    t.automat.nachSpiel = [&](const engine::Spiel& s) {
        if (json) *json << spielAlsJson(s) << '\n';
        liste.spielGewertet(s);
        return ++gespielt < aufruf.spiele;
    };

    net::Automatiktisch automatik(t.host, t.ablauf, t.automat, aufruf.gaeste);
    QObject::connect(&automatik, &net::Automatiktisch::begonnen, [] { std::cerr << "Die Partie beginnt" << std::endl; });
    QObject::connect(&automatik, &net::Automatiktisch::fertig, &t.host, [&] {
        t.host.beenden();
        QTimer::singleShot(SchliessenMs, QCoreApplication::instance(), &QCoreApplication::quit);
    });
    QObject::connect(&t.host, &net::Gastgeber::verbindungenGeschlossen, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    QObject::connect(&t.host, &net::Gastgeber::mitteilung, &t.host,
                     [](bool, const QString& text) { std::cerr << text.toStdString() << std::endl; });
    // Without a person to ask, a guest that stops answering loses its seat to the computer.
    QObject::connect(&t.host, &net::Gastgeber::abmeldefrage, &t.host,
                     [&](int sitz) { t.host.abmeldefrageBeantworten(sitz, true); });
    QCoreApplication::exec();

    liste.schreiben(bogen, t.spiel, aufruf.spiele, seed);
    for (const std::string& f : t.schiedsrichter.fehler()) bogen << "Regelverstoß: " << f << "\n";
    bogen << standZeile(t.spiel.partie.punkte) << "\n";
    return t.schiedsrichter.fehlerAnzahl() + t.automat.abgelehnt() == 0 ? 0 : 1;
}

}  // namespace

int netzHostStarten(const Aufruf& aufruf, int& argc, char** argv) {
    if (!aufruf.automatisch) {
        std::cerr << "trumpona: --host ohne --auto braucht das Tischfenster; diese Betriebsart ist noch nicht verfügbar.\n";
        return 2;
    }
    if (aufruf.spiele < 1) {
        std::cerr << "trumpona: --host --auto braucht --games N\n";
        return 2;
    }
    QCoreApplication anwendung(argc, argv);
    return netzHostSpielen(aufruf, {});
}

int netzHostSpielen(const Aufruf& aufruf, const std::function<void(net::Gastgeber&)>& offen) {
    const std::string hostname = aufruf.name.empty() ? "Gastgeber" : aufruf.name;
    if (const auto fehler = net::namePruefen(hostname)) {
        std::cerr << *fehler << "\n";
        return 2;
    }
    std::uint64_t seed = 1;
    std::optional<settings::Einstellungen> optionen;
    if (!laufVorbereiten(aufruf, seed, optionen)) return 2;
    Hosttisch tisch(aufruf, seed, optionen);
    tisch.host.setzeHost(QString::fromStdString(hostname), 1);
    if (!tisch.host.lauschen(static_cast<quint16>(aufruf.port.value_or(StandardPort)))) {
        std::cerr << tisch.host.fehler().toStdString() << "\n";
        return 2;
    }
    // One write, so a script that waits for the line never reads half of it.
    std::cerr << ("Tisch offen auf Port " + std::to_string(tisch.host.port()) + "\n") << std::flush;
    if (offen) offen(tisch.host);
    return mitJsonAusgabe(aufruf.jsonDatei, [&](std::ostream* json, std::ostream& bogen) {
        return hostLaufen(tisch, aufruf, seed, json, bogen);
    });
}

}  // namespace app

#include <QCoreApplication>
#include <QTimer>
#include <iostream>
#include <random>

#include "Computertisch.h"
#include "Netzlauf.h"
#include "engine/Zufall.h"
#include "net/Automatiktisch.h"
#include "net/Namen.h"
#include "net/Netztexte.h"

namespace app {

using engine::Sitz;

namespace {

constexpr int StandardPort = 7001;
constexpr int StandardTakt = 10;

}  // namespace

bool adresseTeilen(const std::string& adresse, std::string& host, int& port, int standardport) {
    port = standardport;
    std::string rest;
    if (!adresse.empty() && adresse.front() == '[') {
        const auto zu = adresse.find(']');
        if (zu == std::string::npos) return false;
        host = adresse.substr(1, zu - 1);
        rest = adresse.substr(zu + 1);
        if (!rest.empty() && rest.front() != ':') return false;
    } else {
        const auto doppelpunkt = adresse.find(':');
        host = adresse.substr(0, doppelpunkt);
        if (doppelpunkt != std::string::npos) rest = adresse.substr(doppelpunkt);
    }
    if (host.empty()) return false;
    if (rest.empty()) return true;
    const std::string zahl = rest.substr(1);
    if (zahl.empty() || zahl.size() > 5 || zahl.find_first_not_of("0123456789") != std::string::npos) return false;
    port = std::stoi(zahl);
    return port >= 1 && port <= 65535;
}

int netzGastStarten(const Aufruf& aufruf, int& argc, char** argv) {
    if (!aufruf.automatisch) {
        std::cerr << "trumpona: --join ohne --auto braucht das Tischfenster; diese Betriebsart ist noch nicht verfügbar.\n";
        return 2;
    }
    std::string host;
    int port = 0;
    if (!adresseTeilen(aufruf.joinAdresse, host, port, StandardPort)) {
        std::cerr << net::texte::ServerFehlt << "\n";
        return 2;
    }
    QCoreApplication anwendung(argc, argv);
    return netzGastSpielen(aufruf, host, port, {});
}

int netzGastSpielen(const Aufruf& aufruf, const std::string& host, int port, const std::function<void(net::Gast&)>& dabei) {
    if (const auto fehler = net::namePruefen(aufruf.name)) {
        std::cerr << *fehler << "\n";
        return 2;
    }
    engine::Spiel spiel;
    engine::SeedZufall zufall(aufruf.seed.value_or(std::random_device{}()));
    engine::Spielablauf ablauf(spiel, zufall);
    const Computertisch tisch(ablauf, zufall, {"regelwerk", "regelwerk", "regelwerk", "regelwerk"});
    engine::Entscheider& ich = *tisch.entscheider()[Sitz(1)];
    net::Netzzeiten zeiten;
    zeiten.takt = aufruf.takt.value_or(StandardTakt);
    net::Gast gast(spiel, ablauf, zeiten);

    int status = 0;
    bool fertig = false;
    auto ende = [&](int s) {
        if (fertig) return;
        fertig = true;
        status = s;
        QCoreApplication::quit();
    };
    net::automatischSpielen(gast, ablauf, ich);
    QObject::connect(&gast, &net::Gast::abweichung, &gast,
                     [](const QString& text) { std::cerr << "Abweichung: " << text.toStdString() << "\n"; });
    QObject::connect(&gast, &net::Gast::nameVergeben, &gast, [&](const QString& text) {
        std::cerr << text.toStdString() << "\n";
        ende(2);
        gast.verlassen();
    });
    QObject::connect(&gast, &net::Gast::punkteErhalten, &gast, [&] {
        if (aufruf.spiele > 0 && gast.kern()->spieleBeendet() >= aufruf.spiele) gast.verlassen();
    });
    QObject::connect(&gast, &net::Gast::verlassenFertig, &gast, [&] { ende(status); });
    QObject::connect(&gast, &net::Gast::serverAntwortetNicht, &gast, [&](const QString& frage) {
        std::cerr << frage.toStdString() << "\n";
        gast.wartenBeantworten(false);
        ende(3);
    });
    QObject::connect(&gast, &net::Gast::verbindungVerloren, &gast, [&](bool erreicht, int nummer, const QString& text) {
        if (!erreicht) {
            std::cerr << net::texte::nichtErreicht(host) << "\n";
            return ende(2);
        }
        // A host that closes its table between two games ends the evening; during a game the connection broke.
        const auto art = ablauf.offeneArt();
        const bool zwischenSpielen = gast.kern()->spieleBeendet() > 0 &&
                                     (art == engine::Anfrageart::NaechstesSpiel || art == engine::Anfrageart::NeuePartie);
        if (zwischenSpielen && nummer == QAbstractSocket::RemoteHostClosedError) return ende(0);
        std::cerr << net::texte::gastFehler(nummer, text.toStdString()) << "\n" << net::texte::TischinhaberWeg << "\n";
        ende(3);
    });
    if (dabei) dabei(gast);
    gast.verbinden(QString::fromStdString(host), static_cast<quint16>(port), QString::fromStdString(aufruf.name));
    QCoreApplication::exec();

    if (status != 2) {
        engine::ProSitz<int> punkte;
        for (const Sitz s : engine::alleSitze) punkte[s] = gast.kern()->hostpunkte(s.nr());
        std::cout << standZeile(punkte) << "\n";
    }
    return status;
}

}  // namespace app

#include "Foyerlauf.h"

#include <QCoreApplication>
#include <QTimer>
#include <iostream>
#include <optional>

#include "Netzlauf.h"
#include "RegelDatei.h"
#include "foyer/Foyertexte.h"
#include "foyer/Foyerverbindung.h"
#include "foyer/Regelkurztext.h"
#include "net/Gast.h"
#include "net/Gastgeber.h"
#include "net/Namen.h"

namespace app {

namespace {

constexpr int StandardIrcPort = 6668;
constexpr int TischsucheMs = 120'000;  // how long a player looks for a free seat

std::string regelnDesTisches(const Aufruf& aufruf) {
    std::string fehler;  // a file that cannot be read stops the host itself later
    const auto optionen = aufruf.regelDatei.empty() ? std::nullopt : optionenLesen(aufruf.regelDatei, fehler);
    return foyer::regelKurztext(optionen ? optionen->regeln : engine::RegelOptionen{});
}

// Logs in and runs until the server has taken the name; false after a refusal or error.
bool anmelden(foyer::Foyerverbindung& foyer, const std::string& server, int port, const std::string& name) {
    QObject::connect(&foyer, &foyer::Foyerverbindung::angemeldet, [] { QCoreApplication::exit(0); });
    auto scheitern = [](const QString& text) {
        std::cerr << text.toStdString() << "\n";
        QCoreApplication::exit(2);
    };
    QObject::connect(&foyer, &foyer::Foyerverbindung::nameAbgelehnt, scheitern);
    QObject::connect(&foyer, &foyer::Foyerverbindung::anmeldungFehlgeschlagen, scheitern);
    foyer.anmelden(QString::fromStdString(server), static_cast<quint16>(port), QString::fromStdString(name));
    return QCoreApplication::exec() == 0;
}

int tischEroeffnen(foyer::Foyerverbindung& foyer, Aufruf tisch) {
    tisch.gaeste = 3;
    const std::string regeln = regelnDesTisches(tisch);
    const int ergebnis = netzHostSpielen(tisch, [&](net::Gastgeber& host) {
        auto frei = [&host] { return 4 - host.kern().spielerzahl(); };
        foyer.tischEroeffnen(foyer.lokaleAdresse().toString(), host.port(), frei(), QString::fromStdString(regeln));
        QObject::connect(&host, &net::Gastgeber::sitzBesetzt, &foyer, [&foyer, frei] { foyer.freiePlaetzeSetzen(frei()); });
        QObject::connect(&host, &net::Gastgeber::sitzFrei, &foyer, [&foyer, frei] { foyer.freiePlaetzeSetzen(frei()); });
    });
    foyer.tischSchliessen();
    return ergebnis;
}

int platzNehmen(foyer::Foyerverbindung& foyer, const Aufruf& tisch) {
    std::optional<foyer::Tischangebot> angebot;
    auto suchen = [&] {
        for (const auto& t : foyer.sitzung().tische())
            if (!angebot && t.angebot.frei > 0) angebot = t.angebot;
        return angebot.has_value();
    };
    if (!suchen()) {
        QTimer frist;
        frist.setSingleShot(true);
        QObject::connect(&frist, &QTimer::timeout, [] { QCoreApplication::exit(3); });
        const auto verbindung = QObject::connect(&foyer, &foyer::Foyerverbindung::listenGeaendert, [&] {
            if (suchen()) QCoreApplication::exit(0);
        });
        frist.start(TischsucheMs);
        const int gefunden = QCoreApplication::exec();
        QObject::disconnect(verbindung);
        if (gefunden != 0) {
            std::cerr << foyer::texte::KeinFreierPlatz << "\n";
            return 3;
        }
    }
    const int nummer = angebot->nummer;
    const int ergebnis = netzGastSpielen(tisch, angebot->adresse, angebot->port, [&](net::Gast& gast) {
        QObject::connect(&gast, &net::Gast::verbunden, &foyer, [&foyer, nummer] { foyer.platzNehmen(nummer); });
    });
    foyer.platzVerlassen();
    return ergebnis;
}

}  // namespace

int foyerStarten(const Aufruf& aufruf, int& argc, char** argv) {
    if (!aufruf.automatisch || aufruf.foyerrolle == Foyerrolle::Keine || aufruf.name.empty()) {
        std::cerr << "trumpona: " << foyer::texte::FoyerAufruf << "\n";
        return 2;
    }
    std::string server;
    int port = 0;
    if (!adresseTeilen(aufruf.foyerAdresse, server, port, StandardIrcPort)) {
        std::cerr << foyer::texte::ServerFehlt << "\n";
        return 2;
    }
    if (const auto fehler = net::namePruefen(aufruf.name)) {
        std::cerr << *fehler << "\n";
        return 2;
    }
    QCoreApplication anwendung(argc, argv);
    foyer::Foyerverbindung foyer;
    foyer.setzeNichtErreichbar(true);  // nobody here reads chat
    if (!anmelden(foyer, server, port, aufruf.name)) return 2;
    // A lost foyer is told; a table that plays goes on over its own connection.
    QObject::connect(&foyer, &foyer::Foyerverbindung::verbindungVerloren,
                     [](const QString& text) { std::cerr << text.toStdString() << "\n"; });
    Aufruf tisch = aufruf;
    if (tisch.spiele < 1) tisch.spiele = 1;
    const int ergebnis =
        aufruf.foyerrolle == Foyerrolle::TischEroeffnen ? tischEroeffnen(foyer, tisch) : platzNehmen(foyer, tisch);
    foyer.abmelden();
    return ergebnis;
}

}  // namespace app

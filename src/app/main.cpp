#include <iostream>
#include <string>
#include <vector>

#include "Autoplay.h"
#include "PartieFortsetzen.h"
#include "Ergebnisupload.h"
#include "Fensterstart.h"
#include "Foyerlauf.h"
#include "Kommandozeile.h"
#include "Netzlauf.h"
#include "Screenshot.h"
#include "Turnier.h"
#include "Version.h"

int main(int argc, char** argv) {
    const std::vector<std::string> argumente(argv + 1, argv + argc);
    const app::Auswertung auswertung = app::kommandozeileAuswerten(argumente);
    if (!auswertung.aufruf) {
        std::cerr << "trumpona: " << auswertung.fehler << "\n\n" << app::hilfetext();
        return 2;
    }
    const app::Aufruf& aufruf = *auswertung.aufruf;
    switch (aufruf.modus) {
        case app::Modus::Hilfe:
            std::cout << app::hilfetext();
            return 0;
        case app::Modus::Version:
            std::cout << "trumpona " << TRUMPONA_VERSION << "\n";
            return 0;
        case app::Modus::Autoplay:
            if (!aufruf.ladeDatei.empty()) return app::geladenePartieSpielen(aufruf, std::cout, std::cerr);
            return app::autoplayStarten(aufruf);
        case app::Modus::Spiel:
            return app::spielStarten(aufruf, argc, argv);
        case app::Modus::Screenshot:
            return app::screenshotSchreiben(aufruf, argc, argv);
        case app::Modus::Turnier: return app::turnierStarten(aufruf);
        // Without --auto the table window opens in that role.
        case app::Modus::Host:
            return aufruf.automatisch ? app::netzHostStarten(aufruf, argc, argv) : app::spielStarten(aufruf, argc, argv);
        case app::Modus::Join:
            return aufruf.automatisch ? app::netzGastStarten(aufruf, argc, argv) : app::spielStarten(aufruf, argc, argv);
        case app::Modus::Foyer: return app::foyerStarten(aufruf, argc, argv);
        case app::Modus::Ergebnisse: return app::ergebnisseSenden(aufruf, argc, argv);
        default:
            std::cerr << "trumpona: diese Betriebsart ist noch nicht verfügbar.\n";
            return 2;
    }
}

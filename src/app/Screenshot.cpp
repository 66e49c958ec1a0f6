#include "Screenshot.h"

#include <QImage>
#include <iostream>

#include "Oberflaeche.h"
#include "settings/Optionsdatei.h"
#include "settings/Tonausgabe.h"
#include "engine/Spielablauf.h"
#include "engine/Zufall.h"
#include "players/EinfacheSpieler.h"
#include "settings/Benutzerspeicher.h"
#include "table/Dateiwahl.h"
#include "table/Hauptfenster.h"
#include "table/Tischansicht.h"
#include "table/Tischprogramm.h"
#include "table/Tischsteuerung.h"

namespace app {

namespace {

using engine::Anfrageart;
using engine::Antwort;
using engine::Sitz;

// A seeded game played by the simple computer players until, after a few tricks,
// seat 1 is to follow: everything the table shows is then on it.
engine::Spiel spielMitten(std::uint64_t seed, const settings::Einstellungen& e) {
    engine::Spiel spiel;
    for (const Sitz s : engine::alleSitze) spiel.namen[s] = e.namen[static_cast<std::size_t>(s.nr() - 1)];
    engine::SeedZufall zufall(seed);
    engine::Spielablauf ablauf(spiel, zufall);
    ablauf.regelOptionenSetzen(e.regeln);
    players::KleinsteKarte spieler;
    ablauf.neuePartie();
    for (int schritte = 0; schritte < 500; ++schritte) {
        const engine::Anfrage a = ablauf.anfrage();
        switch (a.art) {
            case Anfrageart::Geben: ablauf.antworten(Antwort::zufallsGeben()); break;
            case Anfrageart::Neugeben: ablauf.antworten(Antwort::neugeben(false)); break;
            case Anfrageart::Vorbehalt: ablauf.antworten(Antwort::mitVorbehalt({})); break;
            case Anfrageart::Karte:
                if (spiel.sticheGespielt >= 4 && spiel.stich.anzahl > 0 && a.sitz == Sitz(1)) return spiel;
                ablauf.antworten(Antwort::karte(spieler.karteWaehlen(spiel, *a.sitz)));
                break;
            default: ablauf.antworten(Antwort::weiter(a.art)); break;
        }
    }
    return spiel;
}

}  // namespace

int screenshotSchreiben(const Aufruf& aufruf, int& argc, char** argv) {
    const auto anwendung = anwendungStarten(argc, argv, true);
    table::Hauptfenster hfo;
    const std::uint64_t seed = aufruf.seed.value_or(1);
    table::Tischsteuerung steuerung(hfo, std::make_unique<engine::SeedZufall>(seed));
    // The options of the user, so the picture shows the table as it would look.
    const settings::Einstellungen einstellungen =
        settings::EinstellungenLesen(settings::optionsdateiPfad(), settings::startLesekontext());
    settings::Benutzerspeicher speicher;
    table::Dateidialoge dateidialoge;
    table::Tischprogramm programm(hfo, steuerung, speicher, dateidialoge, settings::optionsdateiPfad());
    programm.EinstUebernehmen(einstellungen, programm.benutzer());
    hfo.resize(1024, 768);
    hfo.show();
    steuerung.fortsetzen(spielMitten(seed, einstellungen));
    QApplication::processEvents();

    const QImage bild = hfo.grab().toImage();
    if (!bild.save(QString::fromStdString(aufruf.screenshotDatei), "PNG")) {
        std::cerr << "trumpona: " << aufruf.screenshotDatei << " kann nicht geschrieben werden.\n";
        return 1;
    }
    return 0;
}

}  // namespace app

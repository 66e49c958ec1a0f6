#include "Autoplay.h"

#include <cstdio>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <random>
#include <vector>

#include "Computertisch.h"
#include "RegelDatei.h"
#include "SpielJson.h"
#include "engine/Schiedsrichter.h"
#include "engine/Selbstspiel.h"
#include "engine/Spielablauf.h"
#include "engine/Zufall.h"
#include "players/Regelstatistik.h"
#include "players/Spielstatistik.h"

namespace app {

using engine::Sitz;

namespace {

struct Partiezeile {
    int partie = 0;
    int spiele = 0;
    bool beendet = false;
    engine::ProSitz<int> stand;
};

void bogenSchreiben(std::ostream& aus, const std::vector<Partiezeile>& zeilen, const engine::Spiel& spiel,
                    const Autoplayauftrag& auftrag) {
    aus << "Spielliste: " << auftrag.spiele << " Spiele, Startwert " << auftrag.seed << "\n";
    aus << std::setw(7) << "Partie" << std::setw(8) << "Spiele";
    for (const Sitz s : engine::alleSitze) aus << std::setw(12) << spiel.namen[s];
    aus << "\n";
    engine::ProSitz<int> summe(0);
    for (const Partiezeile& z : zeilen) {
        aus << std::setw(7) << z.partie << std::setw(8) << z.spiele;
        for (const Sitz s : engine::alleSitze) {
            aus << std::setw(12) << z.stand[s];
            summe[s] += z.stand[s];
        }
        aus << (z.beendet ? "" : "  (läuft)") << "\n";
    }
    aus << std::setw(15) << "Summe";
    for (const Sitz s : engine::alleSitze) aus << std::setw(12) << summe[s];
    aus << "\n";
}

}  // namespace

int autoplay(const Autoplayauftrag& auftrag, std::ostream* json, std::ostream& bogen) {
    engine::Spiel spiel = auftrag.start.value_or(engine::Spiel{});
    for (const Sitz s : engine::alleSitze) {
        if (!auftrag.start) spiel.namen[s] = auftrag.namen[static_cast<std::size_t>(s.nr() - 1)];
        spiel.steuerung[s] = engine::Steuerung::Computer;
    }
    engine::SeedZufall zufall(auftrag.seed);
    engine::Spielablauf ablauf(spiel, zufall);
    engine::Schiedsrichter schiedsrichter;
    ablauf.beobachterHinzufuegen(&schiedsrichter);
    ablauf.regelOptionenSetzen(auftrag.regeln);
    if (auftrag.start) ablauf.fortsetzen();
    else ablauf.neuePartie();

    players::Regelstatistik statistik;
    players::Spielstatistik spielstatistik;
    players::Senkenverteiler senken;
    senken.hinzufuegen(statistik);
    senken.hinzufuegen(spielstatistik);
    if (auftrag.statistik) ablauf.beobachterHinzufuegen(&spielstatistik);
    const Computertisch tisch(ablauf, zufall, {"regelwerk", "regelwerk", "regelwerk", "regelwerk"},
                              auftrag.statistik ? &senken : nullptr);
    const engine::ProSitz<engine::Entscheider*> entscheider = tisch.entscheider();
    std::vector<Partiezeile> zeilen;
    engine::Selbstspiel selbstspiel(ablauf, entscheider);
    const auto bilanz = selbstspiel.spielen(auftrag.spiele, [&](const engine::Spiel& s) {
        if (json) *json << spielAlsJson(s) << '\n';
        if (zeilen.empty() || zeilen.back().partie != s.partie.partieNr)
            zeilen.push_back({s.partie.partieNr, 0, false, {}});
        zeilen.back().spiele = s.partie.spielNr;
        zeilen.back().beendet = s.ergebnis.partieEnde;
        zeilen.back().stand = s.partie.punkte;
    });
    bogenSchreiben(bogen, zeilen, spiel, auftrag);
    if (auftrag.statistik) bogen << statistik.bericht() << spielstatistik.bericht();
    for (const std::string& f : schiedsrichter.fehler()) bogen << "Regelverstoß: " << f << "\n";
    for (const std::string& g : bilanz.gruende) bogen << "Abgelehnt: " << g << "\n";
    return schiedsrichter.fehlerAnzahl() + bilanz.abgelehnt;
}

bool laufVorbereiten(const Aufruf& aufruf, std::uint64_t& seed, std::optional<settings::Einstellungen>& optionen) {
    if (aufruf.seed) {
        seed = *aufruf.seed;
    } else {
        seed = std::random_device{}();
        std::cerr << "Startwert: " << seed << "\n";
    }
    if (aufruf.regelDatei.empty()) return true;
    std::string fehler;
    optionen = optionenLesen(aufruf.regelDatei, fehler);
    if (!optionen) std::cerr << "trumpona: " << fehler << "\n";
    return optionen.has_value();
}

int autoplayStarten(const Aufruf& aufruf) {
    Autoplayauftrag auftrag;
    auftrag.spiele = aufruf.anzahl;
    auftrag.statistik = aufruf.statistik;
    std::optional<settings::Einstellungen> optionen;
    if (!laufVorbereiten(aufruf, auftrag.seed, optionen)) return 2;
    if (optionen) {
        auftrag.regeln = optionen->regeln;
        auftrag.namen = optionen->namen;
    }
    if (aufruf.jsonDatei == "-") {
        std::ios::sync_with_stdio(false);
        return autoplay(auftrag, &std::cout, std::cerr) == 0 ? 0 : 1;
    }
    if (aufruf.jsonDatei.empty()) return autoplay(auftrag, nullptr, std::cout) == 0 ? 0 : 1;

    // Written beside the target and renamed, so a broken run never leaves half a file.
    const std::string vorlaeufig = aufruf.jsonDatei + ".tmp";
    int fehler = 0;
    {
        std::ofstream datei(vorlaeufig, std::ios::binary | std::ios::trunc);
        if (!datei) {
            std::cerr << "trumpona: " << aufruf.jsonDatei << " kann nicht geschrieben werden.\n";
            return 2;
        }
        fehler = autoplay(auftrag, &datei, std::cout);
        datei.flush();
        if (!datei) {
            std::cerr << "trumpona: " << aufruf.jsonDatei << " kann nicht geschrieben werden.\n";
            std::remove(vorlaeufig.c_str());
            return 2;
        }
    }
    if (std::rename(vorlaeufig.c_str(), aufruf.jsonDatei.c_str()) != 0) {
        std::cerr << "trumpona: " << aufruf.jsonDatei << " kann nicht geschrieben werden.\n";
        return 2;
    }
    return fehler == 0 ? 0 : 1;
}

}  // namespace app

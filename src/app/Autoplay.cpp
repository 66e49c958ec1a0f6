#include "Autoplay.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <random>
#include <vector>

#include "Computertisch.h"
#include "RegelDatei.h"
#include "SpielJson.h"
#include "Spielliste.h"
#include "engine/Schiedsrichter.h"
#include "engine/Selbstspiel.h"
#include "engine/Spielablauf.h"
#include "engine/Zufall.h"
#include "players/Regelstatistik.h"
#include "players/Spielstatistik.h"

namespace app {

using engine::Sitz;

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
    Spielliste liste;
    engine::Selbstspiel selbstspiel(ablauf, entscheider);
    const auto bilanz = selbstspiel.spielen(auftrag.spiele, [&](const engine::Spiel& s) {
        if (json) *json << spielAlsJson(s) << '\n';
        liste.spielGewertet(s);
    });
    liste.schreiben(bogen, spiel, auftrag.spiele, auftrag.seed);
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
    return mitJsonAusgabe(aufruf.jsonDatei, [&](std::ostream* json, std::ostream& bogen) {
        return autoplay(auftrag, json, bogen) == 0 ? 0 : 1;
    });
}

int mitJsonAusgabe(const std::string& jsonDatei, const std::function<int(std::ostream*, std::ostream&)>& lauf) {
    if (jsonDatei == "-") {
        std::ios::sync_with_stdio(false);
        return lauf(&std::cout, std::cerr);
    }
    if (jsonDatei.empty()) return lauf(nullptr, std::cout);

    // Written beside the target and renamed, so a broken run never leaves half a file.
    const std::string vorlaeufig = jsonDatei + ".tmp";
    int status = 0;
    {
        std::ofstream datei(vorlaeufig, std::ios::binary | std::ios::trunc);
        if (!datei) {
            std::cerr << "trumpona: " << jsonDatei << " kann nicht geschrieben werden.\n";
            return 2;
        }
        status = lauf(&datei, std::cout);
        datei.flush();
        if (!datei) {
            std::cerr << "trumpona: " << jsonDatei << " kann nicht geschrieben werden.\n";
            std::remove(vorlaeufig.c_str());
            return 2;
        }
    }
    if (std::rename(vorlaeufig.c_str(), jsonDatei.c_str()) != 0) {
        std::cerr << "trumpona: " << jsonDatei << " kann nicht geschrieben werden.\n";
        return 2;
    }
    return status;
}

}  // namespace app

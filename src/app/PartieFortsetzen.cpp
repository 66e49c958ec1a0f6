#include "PartieFortsetzen.h"

#include <fstream>
#include <random>
#include <sstream>

#include "Autoplay.h"
#include "RegelDatei.h"
#include "savegame/Ladeablauf.h"

namespace app {

int geladenePartieSpielen(const Aufruf& aufruf, std::ostream& aus, std::ostream& fehler) {
    savegame::Spielstand stand;
    savegame::Leseergebnis ergebnis;
    if (std::ifstream datei{aufruf.ladeDatei, std::ios::binary}) {
        std::ostringstream inhalt;
        inhalt << datei.rdbuf();
        ergebnis = savegame::partieLesen(inhalt.str(), stand);
    }
    const savegame::Ladeablauf ablauf = savegame::ladeablauf(ergebnis, stand);
    for (const auto& m : ablauf.meldungen) fehler << m.text << "\n";
    if (ablauf.weiter != savegame::Weiter::Fortsetzen && ablauf.weiter != savegame::Weiter::NaechstesSpiel) return 2;
    // Nobody is there to look at the tricks of a finished game; its message is shown.
    for (const auto& m : ablauf.nachDerFrage) aus << m.text << "\n";

    Autoplayauftrag auftrag;
    auftrag.spiele = aufruf.anzahl;
    auftrag.seed = aufruf.seed.value_or(std::random_device{}());
    // A drawn seed is printed so the run can be repeated.
    if (!aufruf.seed) fehler << "Startwert: " << auftrag.seed << "\n";
    auftrag.regeln = stand.optionen;
    auftrag.statistik = aufruf.statistik;
    if (!aufruf.regelDatei.empty()) {
        std::string text;
        const auto optionen = optionenLesen(aufruf.regelDatei, text);
        if (!optionen) {
            fehler << "trumpona: " << text << "\n";
            return 2;
        }
        auftrag.regeln = optionen->regeln;
    }
    auftrag.start = stand.spiel;
    return autoplay(auftrag, nullptr, aus) == 0 ? 0 : 1;
}

}  // namespace app

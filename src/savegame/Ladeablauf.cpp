#include "Ladeablauf.h"

#include "Partietexte.h"

namespace savegame {

Ladeablauf ladeablauf(const Leseergebnis& ergebnis, const Spielstand& geladen) {
    Ladeablauf ablauf;
    if (ergebnis.veraltet) ablauf.meldungen.push_back({std::string(texte::Veraltet), Symbol::Kritisch});
    if (ergebnis.ergebnis != Ergebnis::Erfolg) {
        ablauf.meldungen.push_back({std::string(texte::Beschaedigt), Symbol::Information});
        if (ergebnis.ergebnis == Ergebnis::KeineSpieldatei) return ablauf;
        ablauf.meldungen.push_back({std::string(texte::NeuePartie), Symbol::Information});
        ablauf.weiter = Weiter::NeuePartie;
        return ablauf;
    }
    const engine::Spiel& spiel = geladen.spiel;
    if (spiel.sticheGespielt == spiel.deck.kartenanzahl() / 4) {
        ablauf.sticheFragen = true;
        if (!spiel.ergebnis.text.empty()) ablauf.nachDerFrage.push_back({spiel.ergebnis.text, Symbol::Ohne});
        ablauf.stichansichtBeiJa = static_cast<int>(spiel.stiche.size());
        ablauf.weiter = Weiter::NaechstesSpiel;
        return ablauf;
    }
    ablauf.weiter = Weiter::Fortsetzen;
    if (!spiel.stich.komplett()) ablauf.amZug = spiel.stich.amZug();
    return ablauf;
}

}  // namespace savegame

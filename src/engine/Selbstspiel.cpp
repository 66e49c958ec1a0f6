#include "Selbstspiel.h"

#include "Stichspiel.h"

namespace engine {

void Selbstspiel::ablehnung(Selbstspielbilanz& bilanz, const Bescheid& b) {
    if (b) return;
    ++bilanz.abgelehnt;
    if (bilanz.gruende.size() < 10) bilanz.gruende.push_back(b.grund);
}

Selbstspielbilanz Selbstspiel::spielen(int spiele, const std::function<void(const Spiel&)>& nachSpiel) {
    Selbstspielbilanz bilanz;
    const Spiel& spiel = ablauf_.spiel();
    while (bilanz.spiele < spiele) {
        const Anfrageart art = ablauf_.offeneArt();
        switch (art) {
            case Anfrageart::Geben: ablauf_.antworten(Antwort::zufallsGeben()); break;
            case Anfrageart::Neugeben:
                ablauf_.antworten(Antwort::neugeben(ablauf_.anfrage().neugeben.computerWuerde));
                break;
            case Anfrageart::Vorbehalt: {
                const Sitz s = ablauf_.sitzDerAnfrage();
                const Bescheid b =
                    ablauf_.antworten(Antwort::mitVorbehalt(entscheider_[s]->vorbehaltWaehlen(spiel, s)));
                ablehnung(bilanz, b);
                if (!b) ablauf_.antworten(Antwort::mitVorbehalt(Vorbehalt{}));
                break;
            }
            case Anfrageart::Karte: {
                const Sitz s = ablauf_.sitzDerAnfrage();
                Entscheider& e = *entscheider_[s];
                if (ablauf_.ansageMoeglich(s)) {
                    if (const auto ansage = e.ansageWaehlen(spiel, s)) ablehnung(bilanz, ablauf_.ansagen(s, *ansage));
                }
                const Bescheid b = ablauf_.antworten(Antwort::karte(e.karteWaehlen(spiel, s)));
                ablehnung(bilanz, b);
                if (!b) ablauf_.antworten(Antwort::karte(ersteErlaubteKarte(spiel, s)));
                break;
            }
            case Anfrageart::StichEinsammeln: ablauf_.antworten(Antwort::weiter(art)); break;
            case Anfrageart::NaechstesSpiel:
                ++bilanz.spiele;
                if (nachSpiel) nachSpiel(spiel);
                // The last game stays on the table for whoever looks at it.
                if (bilanz.spiele < spiele) ablauf_.antworten(Antwort::weiter(art));
                break;
            case Anfrageart::NeuePartie: ablauf_.antworten(Antwort::weiter(art)); break;
        }
    }
    return bilanz;
}

}  // namespace engine

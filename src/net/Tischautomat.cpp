#include "Tischautomat.h"

#include "engine/Stichspiel.h"

namespace net {

using engine::Anfrageart;
using engine::Antwort;
using engine::Steuerung;

Tischautomat::Halt Tischautomat::laufen(int maxSchritte) {
    const engine::Spiel& spiel = ablauf_.spiel();
    for (int i = 0; i < maxSchritte; ++i) {
        const engine::Anfrage a = ablauf_.anfrage();
        if (a.sitz && a.steuerung != Steuerung::Computer &&
            (a.art == Anfrageart::Neugeben || a.art == Anfrageart::Vorbehalt || a.art == Anfrageart::Karte))
            return Halt::Person;
        switch (a.art) {
            case Anfrageart::Geben: ablauf_.antworten(Antwort::zufallsGeben()); break;
            case Anfrageart::Neugeben: ablauf_.antworten(Antwort::neugeben(a.neugeben.computerWuerde)); break;
            case Anfrageart::Vorbehalt: {
                const engine::Sitz s = *a.sitz;
                if (!ablauf_.antworten(Antwort::mitVorbehalt(entscheider_[s]->vorbehaltWaehlen(spiel, s)))) {
                    ++abgelehnt_;
                    ablauf_.antworten(Antwort::mitVorbehalt(engine::Vorbehalt{}));
                }
                break;
            }
            case Anfrageart::Karte: {
                const engine::Sitz s = *a.sitz;
                engine::Entscheider& e = *entscheider_[s];
                if (ablauf_.ansageMoeglich(s))
                    if (const auto ansage = e.ansageWaehlen(spiel, s)) abgelehnt_ += !ablauf_.ansagen(s, *ansage);
                if (!ablauf_.antworten(Antwort::karte(e.karteWaehlen(spiel, s)))) {
                    ++abgelehnt_;
                    ablauf_.antworten(Antwort::karte(engine::ersteErlaubteKarte(spiel, s)));
                }
                break;
            }
            case Anfrageart::StichEinsammeln: ablauf_.antworten(Antwort::weiter(a.art)); break;
            case Anfrageart::NaechstesSpiel: {
                const long nr = static_cast<long>(spiel.partie.partieNr) * 1000 + spiel.partie.spielNr;
                if (gemeldet_ != nr) {
                    gemeldet_ = nr;
                    if (nachSpiel && !nachSpiel(spiel)) return Halt::Spielende;
                } else if (nachSpiel) {
                    return Halt::Spielende;
                }
                ablauf_.antworten(Antwort::weiter(a.art));
                break;
            }
            case Anfrageart::NeuePartie:
                if (vorNeuerPartie) vorNeuerPartie();
                ablauf_.antworten(Antwort::weiter(a.art));
                break;
        }
    }
    return Halt::Schritte;
}

}  // namespace net

#include "Tischautomat.h"

#include "Gastkern.h"
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

void gastfrageBeantworten(Gastkern& gast, const engine::Spielablauf& ablauf, engine::Entscheider& spieler) {
    const engine::Spiel& spiel = ablauf.spiel();
    const engine::Sitz ich(1);
    switch (gast.offeneFrage()) {
        case Gastfrage::Keine: return;
        case Gastfrage::Neugeben: gast.antworten(Antwort::neugeben(ablauf.anfrage().neugeben.computerWuerde)); return;
        case Gastfrage::Vorbehalt:
            if (gast.antworten(Antwort::mitVorbehalt(spieler.vorbehaltWaehlen(spiel, ich)))) return;
            // A duty solo that the player did not name becomes a Karo-Solo.
            if (!gast.antworten(Antwort::mitVorbehalt({engine::Vorbehalt::Solo, engine::Normalspiel, 0})))
                gast.antworten(Antwort::mitVorbehalt(engine::Vorbehalt{}));
            return;
        case Gastfrage::Karte:
            if (ablauf.ansageMoeglich(ich))
                if (const auto ansage = spieler.ansageWaehlen(spiel, ich)) gast.ansagen(*ansage);
            if (!gast.antworten(Antwort::karte(spieler.karteWaehlen(spiel, ich))))
                gast.antworten(Antwort::karte(engine::ersteErlaubteKarte(spiel, ich)));
            return;
    }
}

}  // namespace net

#include "Ausspielen.h"

#include <algorithm>
#include <limits>

#include "Regelwerk.h"
#include "engine/Ansagen.h"
#include "engine/Spielablauf.h"
#include "engine/Spielzug.h"
#include "engine/Stichspiel.h"
#include "engine/Wertung.h"

namespace players {

using namespace engine;

int ausspielen(Spiel& spiel, Tischwissen& wissen, Zufallsquelle& zufall, Sitz fuer, std::optional<Ansage> ansage,
               int ersteKarte, bool ansagen) {
    Spielablauf ablauf(spiel, zufall);
    ablauf.beobachterHinzufuegen(&wissen);
    Regelwerk regelwerk(wissen, zufall, nullptr, Regelwerksart{false, ansagen});
    if (ansage) ablauf.ansagen(spiel.stich.amZug(), *ansage);
    if (ersteKarte != 0 && !ablauf.antworten(Antwort::karte(ersteKarte))) return 0;
    const int letzterStich = spiel.deck.handgroesse();
    while (true) {
        const Anfrageart art = ablauf.offeneArt();
        if (art == Anfrageart::StichEinsammeln) {
            // The last trick is scored here, without the texts of the end box.
            if (spiel.sticheGespielt >= letzterStich) break;
            ablauf.antworten(Antwort::weiter(art));
            continue;
        }
        if (art != Anfrageart::Karte) break;
        const Sitz s = ablauf.sitzDerAnfrage();
        if (ansagen && ablauf.ansageMoeglich(s))
            if (const auto a = regelwerk.ansageWaehlen(spiel, s)) ablauf.ansagen(s, *a);
        if (!ablauf.antworten(Antwort::karte(regelwerk.karteWaehlen(spiel, s))))
            ablauf.antworten(Antwort::karte(ersteErlaubteKarte(spiel, s)));
    }
    return punkteFuerSeite(wertungRechnen(spiel), seite(spiel, fuer));
}

bool ansagenVorbei(const Spiel& spiel) {
    for (const Sitz s : alleSitze) {
        if (ansageSperre(spiel, s, Ansage{}) == Ansagesperre::Keine) return false;
        if (ansageSperre(spiel, s, Ansage{true, Keine90}) == Ansagesperre::Keine) return false;
    }
    return true;
}

namespace {

// Alpha-beta over the open cards: the side `maxSeite` maximises its points, the other minimises them.
int loesen(Spiel& spiel, int maxSeite, int alpha, int beta) {
    if (spiel.sticheGespielt >= spiel.deck.handgroesse()) return punkteFuerSeite(wertungRechnen(spiel), maxSeite);
    const Sitz s = spiel.stich.amZug();
    const bool maximiert = seite(spiel, s) == maxSeite;
    std::vector<int> karten = erlaubteKarten(spiel, s);
    // Two copies of a card in one hand lead to the same game.
    std::array<bool, JokerCode + 1> gesehen{};
    int bester = maximiert ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    for (int pos : karten) {
        const auto code = static_cast<std::size_t>(spiel.deck[pos].code);
        if (gesehen[code]) continue;
        gesehen[code] = true;
        const Zugruecknahme z = zugMachen(spiel, pos);
        const int wert = loesen(spiel, maxSeite, alpha, beta);
        zugZuruecknehmen(spiel, z);
        if (maximiert) {
            bester = std::max(bester, wert);
            alpha = std::max(alpha, wert);
        } else {
            bester = std::min(bester, wert);
            beta = std::min(beta, wert);
        }
        if (alpha >= beta) break;
    }
    return bester;
}

}  // namespace

std::vector<int> endspielWerte(Spiel& spiel, const std::vector<int>& karten) {
    const int eigeneSeite = seite(spiel, spiel.stich.amZug());
    std::vector<int> werte;
    for (int pos : karten) {
        const Zugruecknahme z = zugMachen(spiel, pos);
        werte.push_back(loesen(spiel, eigeneSeite, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
        zugZuruecknehmen(spiel, z);
    }
    return werte;
}

}  // namespace players

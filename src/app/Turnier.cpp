#include "Turnier.h"

#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iostream>

#include "Autoplay.h"
#include "Computertisch.h"
#include "engine/Selbstspiel.h"
#include "engine/Spielablauf.h"
#include "engine/Zufall.h"
#include "players/Regelstatistik.h"
#include "players/Spielerarten.h"

namespace app {

using engine::Sitz;

namespace {

// Deal d of a tournament: the same in both games of its pair.
std::uint64_t dealSeed(std::uint64_t seed, int deal) {
    engine::SeedZufall z(seed ^ (0x9e3779b97f4a7c15ULL * static_cast<std::uint64_t>(deal + 1)));
    return z.naechste64();
}

// One game on a fresh table: kind `ungerade` at seats 1 and 3, `gerade` at 2 and 4.
// Returns the points of an odd seat minus those of an even seat.
double spielen(const Turnierauftrag& auftrag, std::uint64_t seed, const std::string& ungerade,
               const std::string& gerade, players::Regelstatistik* statistik, int& abgelehnt,
               std::vector<double>& denkzeiten) {
    engine::Spiel spiel;
    for (const Sitz s : engine::alleSitze) {
        spiel.namen[s] = "Spieler" + std::to_string(s.nr());
        spiel.steuerung[s] = engine::Steuerung::Computer;
    }
    engine::SeedZufall zufall(seed);
    engine::Spielablauf ablauf(spiel, zufall);
    ablauf.regelOptionenSetzen(auftrag.regeln);
    const Computertisch tisch(ablauf, zufall, {ungerade, gerade, ungerade, gerade}, statistik, seed,
                              auftrag.bedenkzeit);
    ablauf.neuePartie();
    engine::Selbstspiel selbstspiel(ablauf, tisch.entscheider());
    abgelehnt += selbstspiel.spielen(1).abgelehnt;
    const std::vector<double> zeiten = tisch.denkzeiten();
    denkzeiten.insert(denkzeiten.end(), zeiten.begin(), zeiten.end());
    const auto& punkte = spiel.ergebnis.punkte;
    return (punkte[Sitz(1)] + punkte[Sitz(3)]) / 2.0 - (punkte[Sitz(2)] + punkte[Sitz(4)]) / 2.0;
}

bool artBekannt(const std::string& art) {
    for (const std::string_view name : players::spielerarten())
        if (name == art) return true;
    return false;
}

}  // namespace

Mittelwert mittelwert(const std::vector<double>& werte) {
    Mittelwert m;
    if (werte.empty()) return m;
    const double n = static_cast<double>(werte.size());
    for (double w : werte) m.mittel += w;
    m.mittel /= n;
    if (werte.size() < 2) return m;
    double quadrate = 0;
    for (double w : werte) quadrate += (w - m.mittel) * (w - m.mittel);
    m.halbbreite = 1.96 * std::sqrt(quadrate / (n - 1) / n);
    return m;
}

Turnierergebnis turnier(const Turnierauftrag& auftrag, players::Regelstatistik* statistik,
                        const std::function<void(int, int)>& fortschritt) {
    Turnierergebnis ergebnis;
    std::vector<double> paare;
    paare.reserve(static_cast<std::size_t>(std::max(auftrag.deals, 0)));
    for (int d = 0; d < auftrag.deals; ++d) {
        const std::uint64_t seed = dealSeed(auftrag.seed, d);
        const double hin = spielen(auftrag, seed, auftrag.a, auftrag.b, statistik, ergebnis.abgelehnt,
                                  ergebnis.denkzeiten);
        const double rueck = -spielen(auftrag, seed, auftrag.b, auftrag.a, statistik, ergebnis.abgelehnt,
                                    ergebnis.denkzeiten);
        // The two games of a deal form one pair, so the luck of the cards cancels out.
        paare.push_back((hin + rueck) / 2.0);
        ergebnis.spiele += 2;
        if (fortschritt) fortschritt(d + 1, auftrag.deals);
    }
    const Mittelwert m = mittelwert(paare);
    ergebnis.diff = m.mittel;
    ergebnis.ci95 = m.halbbreite;
    return ergebnis;
}

std::string denkzeitZeile(std::vector<double> zeiten) {
    std::sort(zeiten.begin(), zeiten.end());
    auto anteil = [&](double q) {
        return zeiten[std::min(zeiten.size() - 1, static_cast<std::size_t>(q * static_cast<double>(zeiten.size())))];
    };
    char zeile[160];
    std::snprintf(zeile, sizeof zeile, "Bedenkzeit je Entscheidung: Median %.0f ms, 99. Perzentil %.0f ms, %zu Entscheidungen",
                  anteil(0.5), anteil(0.99), zeiten.size());
    return zeile;
}

std::string turnierZeile(const Turnierauftrag& auftrag, const Turnierergebnis& e) {
    char zahlen[80];
    std::snprintf(zahlen, sizeof zahlen, " games=%d diff=%.4f ci95=%.4f", e.spiele, e.diff, e.ci95);
    return "A=" + auftrag.a + " B=" + auftrag.b + zahlen;
}

int turnierStarten(const Aufruf& aufruf) {
    Turnierauftrag auftrag;
    auftrag.deals = aufruf.anzahl;
    auftrag.a = aufruf.spieler.size() > 0 ? aufruf.spieler[0] : "";
    auftrag.b = aufruf.spieler.size() > 1 ? aufruf.spieler[1] : "";
    for (const std::string& art : {auftrag.a, auftrag.b}) {
        if (artBekannt(art)) continue;
        std::cerr << "trumpona: unbekannte Spielerart \"" << art << "\"; bekannt sind:";
        for (const std::string_view name : players::spielerarten()) std::cerr << ' ' << name;
        std::cerr << "\n";
        return 2;
    }
    if (aufruf.bedenkzeit) auftrag.bedenkzeit = *aufruf.bedenkzeit;
    std::optional<settings::Einstellungen> optionen;
    if (!laufVorbereiten(aufruf, auftrag.seed, optionen)) return 2;
    if (optionen) auftrag.regeln = optionen->regeln;
    players::Regelstatistik statistik;
    // A long tournament shows how far it is, on a terminal only: a pipe gets the result lines alone.
    std::function<void(int, int)> fortschritt;
    if (isatty(STDERR_FILENO)) {
        fortschritt = [prozent = -1](int gespielt, int alle) mutable {
            const int jetzt = 100 * gespielt / std::max(alle, 1);
            if (jetzt == prozent && gespielt != alle) return;
            prozent = jetzt;
            std::cerr << "\rTurnier: " << gespielt << " von " << alle << " Deals gespielt (" << jetzt << " %)"
                      << (gespielt == alle ? "\n" : "") << std::flush;
        };
    }
    const Turnierergebnis ergebnis = turnier(auftrag, aufruf.statistik ? &statistik : nullptr, fortschritt);
    if (aufruf.statistik) std::cout << statistik.bericht();
    if (!ergebnis.denkzeiten.empty()) std::cout << denkzeitZeile(ergebnis.denkzeiten) << "\n";
    if (ergebnis.abgelehnt > 0) std::cout << "Abgelehnte Antworten: " << ergebnis.abgelehnt << "\n";
    std::cout << turnierZeile(auftrag, ergebnis) << "\n";
    return ergebnis.abgelehnt == 0 ? 0 : 1;
}

}  // namespace app

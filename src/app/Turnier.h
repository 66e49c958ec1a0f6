#pragma once
// Tournaments between computer player kinds: seeded deals played twice, kind A at
// seats 1 and 3 and kind B at 2 and 4, then swapped; points per game compared.
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "Kommandozeile.h"
#include "engine/Regeln.h"

namespace players {
class Regelstatistik;
}

namespace app {

struct Turnierauftrag {
    int deals = 0;
    std::uint64_t seed = 1;
    engine::RegelOptionen regeln;
    std::string a;
    std::string b;
    int bedenkzeit = 500;  // ms per decision of a searching kind
};

struct Turnierergebnis {
    int spiele = 0;
    double diff = 0;   // mean points per game of an A seat minus a B seat
    double ci95 = 0;   // half-width of the 95 % confidence interval
    int abgelehnt = 0; // answers the engine refused
    std::vector<double> denkzeiten;  // ms per decision of the searching seats
};

// Mean and 95 % half-width of paired per-deal differences.
struct Mittelwert {
    double mittel = 0;
    double halbbreite = 0;
};
Mittelwert mittelwert(const std::vector<double>& werte);

// `statistik` (optional) counts the rule book's reasoning of both kinds; `fortschritt`
// (optional) hears after every deal how many of all are played.
Turnierergebnis turnier(const Turnierauftrag& auftrag, players::Regelstatistik* statistik = nullptr,
                        const std::function<void(int gespielt, int alle)>& fortschritt = {});
// "Bedenkzeit je Entscheidung: Median ... ms, 99. Perzentil ... ms" (not empty).
std::string denkzeitZeile(std::vector<double> zeiten);
std::string turnierZeile(const Turnierauftrag& auftrag, const Turnierergebnis& ergebnis);

// The --tournament mode; returns the exit status.
int turnierStarten(const Aufruf& aufruf);

}  // namespace app

#pragma once
// Headless play: four computer players play N games, Partie after Partie.
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <string>

#include "Kommandozeile.h"
#include "engine/Regeln.h"
#include "engine/Spiel.h"
#include "settings/Einstellungen.h"

namespace app {

struct Autoplayauftrag {
    int spiele = 0;
    std::uint64_t seed = 1;
    engine::RegelOptionen regeln;
    std::array<std::string, 4> namen{"Spieler1", "Spieler2", "Spieler3", "Spieler4"};
    std::optional<engine::Spiel> start;  // a loaded Partie to play on instead of a new one
    bool statistik = false;              // count the rule book's reasoning (--stats)
};

// Plays the games; writes one JSON line per game to `json` (when given) and the
// score sheet (and with `statistik` the rules that fired) to `bogen`. Returns the number of rule violations the referee saw.
int autoplay(const Autoplayauftrag& auftrag, std::ostream* json, std::ostream& bogen);

// For a headless run: the seed (drawn and shown on stderr when none is given) and,
// with --rules, the options read from that file. False, with the message on stderr,
// when the file cannot be read.
bool laufVorbereiten(const Aufruf& aufruf, std::uint64_t& seed, std::optional<settings::Einstellungen>& optionen);

// The --autoplay mode: reads --rules, opens --json, runs; returns the exit status.
int autoplayStarten(const Aufruf& aufruf);

// Runs `lauf` with the JSON lines going to --json (a file written atomically, or
// "-" for standard output) and the score sheet to standard output, or to standard
// error when the JSON takes standard output. Returns what `lauf` returns, or 2
// when the file cannot be written.
int mitJsonAusgabe(const std::string& jsonDatei, const std::function<int(std::ostream*, std::ostream&)>& lauf);

}  // namespace app

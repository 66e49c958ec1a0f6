#pragma once
// The result file of a tournament Partie and the mail made from it. The file is
// UTF-8 text with CR LF, one record per line, fields separated by ";":
//
//   RPPT12;Trumpona 0.1.0          what wrote it
//   Spieler;Anna                   the person at seat 1
//   Datum;2025-01-14;20:15:03      when the Partie ended (local time)
//   Regeln;Abr_Option=2,...        every rule in force, by its options-file key
//   Spiel;1;0;2;2;0                a score-sheet line: game number, points of seats 1..4
//   Summe;3;5;5;3                  the totals of seats 1..4
//
// The mail carries the lines joined by lone CRs, so its body is one line of the
// SMTP dialogue; the file is kept small enough for that (see MaxMailzeile).
#include <string>
#include <string_view>
#include <vector>

#include "Smtpdialog.h"
#include "engine/Regeln.h"
#include "engine/Sitz.h"

namespace services {

struct Turnierergebnis {
    std::string programm;  // "Trumpona 0.1.0"
    std::string spieler;
    Zeitpunkt ende;
    engine::Regeln regeln;
    std::vector<engine::ProSitz<int>> spiele;
    engine::ProSitz<int> summen;
};

// A name fit for a field: no separators, no control characters, at most
// MaxNamenslaenge characters (a longer name is cut).
inline constexpr std::size_t MaxNamenslaenge = 30;
std::string feldname(std::string_view name);

std::string ergebnisdateiText(const Turnierergebnis& e);

// The lines of a file as it is read line by line: split at LF, a CR before it dropped.
std::vector<std::string> zeilenVon(std::string_view bytes);

// "<BEGINN>", every line followed by a lone CR, "<ENDE>".
std::string mailrumpf(const std::vector<std::string>& zeilen);

// The player's name from the "Spieler" line, empty when the file has none.
std::string spielerVon(const std::vector<std::string>& zeilen);

// Whether a file name matches "RPPT12*.D4T" (letters in any case).
bool istErgebnisdatei(std::string_view dateiname);

// The rule set of every tournament Partie: the program's standard rules with the
// soloist leading, ending after `spiele` games (one of Turnierlaengen).
inline constexpr int Turnierlaengen[] = {4, 8, 12, 24};
engine::RegelOptionen turnierregeln(int spiele);

}  // namespace services

#pragma once
// Texts of the questions put to the person at seat 1 and of the dialogs.
#include <string>

#include "engine/Spiel.h"

namespace table {

namespace texte {
inline constexpr char SoloTitel[] = "Solo";
inline constexpr char SoloWahl[] = "Welches Solo möchten Sie spielen?";
inline constexpr char HochzeitTitel[] = "Hochzeit";
inline constexpr char HochzeitFrage[] = "Sie haben beide Kreuz-Damen. Möchten Sie eine Hochzeit spielen? Sie heiraten den Gewinner des ...";
inline constexpr char FalscheKarteTitel[] = "Falsche Karte!";
}  // namespace texte

// "Karo-Solo" / "Schellen-Solo", "Buben-Solo" / "Unter-Solo", ...
std::string soloName(int spieltyp, bool franzoesisch);

}  // namespace table

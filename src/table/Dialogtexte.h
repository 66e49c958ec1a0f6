#pragma once
// Texts of the questions put to the person at seat 1 and of the dialogs.
namespace table::texte {

inline constexpr char SoloTitel[] = "Solo";
inline constexpr char SoloWahl[] = "Welches Solo möchten Sie spielen?";
inline constexpr char HochzeitTitel[] = "Hochzeit";
inline constexpr char HochzeitFrage[] = "Sie haben beide Kreuz-Damen. Möchten Sie eine Hochzeit spielen? Sie heiraten den Gewinner des ...";
inline constexpr char FalscheKarteTitel[] = "Falsche Karte!";

}  // namespace table::texte

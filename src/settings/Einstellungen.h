#pragma once
// The options record and its place in the options file (section "Optionen"):
// seat names and characters, the stored rule options and the display and sound
// options. Works on a Profildatei, so it needs no file system and no Qt.
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Profildatei.h"
#include "engine/Regeln.h"

namespace settings {

struct Einstellungen {
    std::array<std::string, 4> namen{"Spieler1", "Spieler2", "Spieler3", "Spieler4"};
    std::array<int, 4> charakter{2, 2, 2, 2};
    engine::RegelOptionen regeln;
    // Display and sound; truth values -1/0 as in the file.
    int sprachausgabe = -1;
    int geraeusch = -1;
    int signal = -1;
    int animation = -1;
    int kartenbild = 1;
    int rueckseite = 5;
    int boxen = -1;
    int automatic = -1;
    int iconen = -1;
    int karten = -1;
    int einsammeln = 0;
    int vollbild = 0;
    int augenZeigen = -1;
    int parteiZeigen = -1;
    int willkommen = -1;
    int hintergrund = 6196318;  // Windows colour value: a green (94, 140, 94)
    int vordergrund = 0;
    int bedenkzeit = 500;  // ms per decision of the strong computer player (character 3)

    bool operator==(const Einstellungen&) const = default;
};

// Values that follow from the options once they are read.
struct Abgeleitet {
    int kartenanzahl = 48;
    bool ansagen = true;  // Re/Kontra may be announced
    bool limits = true;   // limits may be announced
    bool operator==(const Abgeleitet&) const = default;
};
Abgeleitet abgeleitet(const Einstellungen& e);

// How a read takes place.
struct Lesekontext {
    bool tonVerfuegbar = true;   // without an audio output speech, sounds and signal are off
    bool namenBehalten = false;  // the foyer's player list is open: seats keep their network names
};

inline constexpr std::string_view Abschnitt = "Optionen";
inline constexpr std::string_view Programmkennung = "Trumpona";
inline constexpr std::string_view TurnierserverZusatz = "-Turnierserver";
inline constexpr int Formatversion = 200;
// Strings are read into a buffer of this size, terminating NUL included.
inline constexpr std::size_t Textpuffer = 254;

// Reads every key; a missing key keeps the value of `vorgaben`. With "Zweite
// schlägt Erste" the Joker reads as off (engine::jokerAbgleichen).
Einstellungen ausProfil(const Profildatei& datei, const Einstellungen& vorgaben, const Lesekontext& kontext);

// Writes the identification, the seats and every option in the writer's order.
void inProfil(Profildatei& datei, const Einstellungen& e, std::string_view programm = Programmkennung);

// Import of a settings file chosen by the user: the identification and version are
// checked first; on refusal `fehler` holds the message and nothing is read.
struct Import {
    std::optional<Einstellungen> einstellungen;
    std::string fehler;
};
Import importieren(const Profildatei& datei, const Einstellungen& aktuell, const Lesekontext& kontext,
                   std::string_view programm = Programmkennung);

// The key lists in the order of reading and of writing (names and characters aside).
const std::vector<std::string_view>& leseschluessel();
const std::vector<std::string_view>& schreibschluessel();

// The integer field that an options key names (compared without case), or nothing.
int* feld(Einstellungen& e, std::string_view schluessel);

}  // namespace settings

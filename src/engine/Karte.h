#pragma once
// Card codes 1..25, value flags, Augen and game types.
#include <array>

namespace engine {

// Suits as numbered in every format.
enum Farbe : int { Karo = 1, Herz = 2, Pik = 3, Kreuz = 4 };

// Rank index within a suit.
enum Rang : int { Neun = 1, Bube = 2, Dame = 3, Koenig = 4, Zehn = 5, As = 6 };

// Value flags: powers of two so card sets can be tested with one mask.
enum Wert : int {
    WertNeun = 1, WertBube = 2, WertDame = 4, WertKoenig = 8, WertZehn = 16, WertAs = 32, WertJoker = 64
};

// Game type = trump value; trump cards carry it as their effective suit.
enum Spieltyp : int {
    Normalspiel = 1,  // also Hochzeit, Armut and Karo-Solo
    HerzSolo = 2,
    PikSolo = 3,
    KreuzSolo = 4,
    BubenSolo = 5,
    DamenSolo = 6,
    DamenBubenSolo = 7,
    SoloOhneTrumpf = 8,
};

inline constexpr int JokerCode = 25;

// Strengths the rules refer to by value.
inline constexpr int StaerkeJoker = 67108864;     // also a raised Schwein
inline constexpr int StaerkeDolle = 16777216;     // Herz-Zehn in the colour games
inline constexpr int StaerkeKreuzDame = 4194304;  // in types 1, 3 and 4

constexpr int kartencode(int farbe, int rang) { return (farbe - 1) * 6 + rang; }
constexpr int farbeVonCode(int code) { return (code - 1) / 6 + 1; }
constexpr int rangVonCode(int code) { return code - 6 * (farbeVonCode(code) - 1); }
constexpr bool istJoker(int code) { return code == JokerCode; }

constexpr int wertVonRang(int rang) { return 1 << (rang - 1); }
constexpr int augenVonRang(int rang) {
    constexpr std::array<int, 7> augen{0, 0, 2, 3, 4, 10, 11};
    return augen[static_cast<std::size_t>(rang)];
}

// A colour game (trump value 1..4): Dollen, Damen and Buben are trump.
constexpr bool istFarbspiel(int spieltyp) { return spieltyp >= 1 && spieltyp <= 4; }

}  // namespace engine

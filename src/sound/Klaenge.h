#pragma once
// Which sound number is which sound: the one mapping from the program's sounds
// to the numbers of trumpona.wav (the README shows the same table).
#include <array>
#include <optional>
#include <string_view>

#include "Klangtabelle.h"

namespace sound {

enum class Klang {
    // Spoken.
    Re, Kontra, Keine90, Keine60, Keine30, Schwarz, Hochzeit, Armut,
    KaroSolo, HerzSolo, PikSolo, KreuzSolo, BubenSolo, DamenSolo, DamenBubenSolo, SoloOhneTrumpf,
    SchellenSolo, RotSolo, GruenSolo, EichelSolo, UnterSolo, OberSolo, OberUnterSolo,
    Schweine, Supersau,
    // Effects.
    KarteGespielt, StichEingesammelt, DuBistDran, SpielGewonnen, SpielVerloren, SpielerKommt, SpielerGeht,
};

// Which option governs a sound: speech, sound effects or the signal tone.
enum class Klangschalter { Sprachausgabe, Geraeusch, Signal };

struct Klangzuordnung {
    Klang klang;
    int nummer;             // number in trumpona.wav
    std::string_view name;  // the table's name for that number
    Klangschalter schalter;
};

inline constexpr int KlangSorten = 32;
const std::array<Klangzuordnung, KlangSorten>& klangzuordnungen();
const Klangzuordnung& zuordnung(Klang klang);

// The spoken solo for a game type 1..8 ("Karo-Solo" … "Solo ohne Trumpf"),
// with the German-picture names ("Schellen-Solo", …) when not French.
std::optional<Klang> soloKlang(int spieltyp, bool franzoesisch);
// The spoken limit for a limit code (3 keine 90 … 0 Schwarz).
std::optional<Klang> limitKlang(int limitCode);

}  // namespace sound

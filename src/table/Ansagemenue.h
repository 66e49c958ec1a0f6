#pragma once
// Captions and enabling of the announcement entries of the person at seat 1, from
// the game state: Re or Kontra for the own party while the "Kontra" period runs
// and the party has not announced; the limits while the "Limit" period runs and
// no limit was announced in this game.
#include <array>
#include <string>

#include "engine/Spiel.h"

namespace table {

struct Menueeintrag {
    std::string text;
    bool aktiv = false;
    bool operator==(const Menueeintrag&) const = default;
};

struct Ansagemenue {
    Menueeintrag reKontra;
    std::array<Menueeintrag, 4> limits;  // keine 90, keine 60, keine 30, kein Stich
    bool operator==(const Ansagemenue&) const = default;
};

// Limit codes in the order of the menu entries.
inline constexpr std::array<int, 4> LimitcodesImMenue{engine::Keine90, engine::Keine60, engine::Keine30, engine::LimitSchwarz};

// "Limitgebot (keine 90)" ... "Limitgebot (kein Stich)".
std::string limittext(int limitCode);

// `laeuft`: a game is being played (cards dealt, not yet scored).
Ansagemenue ansagemenue(const engine::Spiel& spiel, bool laeuft, engine::Sitz mensch = engine::Sitz(1));

// A limit announced before the first card of the game is refused with a message.
bool limitZuFrueh(const engine::Spiel& spiel);

}  // namespace table

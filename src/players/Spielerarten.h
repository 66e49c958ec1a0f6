#pragma once
// The computer player kinds by name, for tournaments and autoplay.
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "Tischwissen.h"
#include "engine/Entscheider.h"

namespace players {

// What a player kind may need from its table.
struct Spielerumgebung {
    Tischwissen& wissen;              // shared by the table's rule book seats
    engine::Zufallsquelle& zufall;
    Begruendungssenke* senke = nullptr;
    std::uint64_t seed = 0;          // makes the search repeatable
    int bedenkzeit = 500;            // ms per decision of the searching player, as games to play
    int threads = 0;                 // of the search; 0 every core
};

// "regelwerk", "regelwerk-ohne-ansagen", "regelwerk-nur-karten", "regelwerk1" (the rule book
// before its whole following rule book, frozen for measuring), "zufall", "kleinste",
// "suche" (character 3) and its parts for measuring: "suche-regelansagen" (announces only
// by the rule book), "suche-ungewichtet" (deals not weighted), "suche-ohne-endspiel";
// nullptr for an unknown name.
std::unique_ptr<engine::Entscheider> spielerErzeugen(std::string_view art, Spielerumgebung& umgebung);
const std::vector<std::string_view>& spielerarten();

}  // namespace players

#pragma once
// The computer player kinds by name, for tournaments and autoplay.
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
};

// "regelwerk", "regelwerk-ohne-ansagen", "regelwerk-nur-karten", "regelwerk1" (the rule book
// before its whole following rule book, frozen for measuring), "zufall", "kleinste";
// nullptr for an unknown name.
std::unique_ptr<engine::Entscheider> spielerErzeugen(std::string_view art, Spielerumgebung& umgebung);
const std::vector<std::string_view>& spielerarten();

}  // namespace players

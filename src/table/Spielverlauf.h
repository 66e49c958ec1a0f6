#pragma once
// A finished game as steps to go through: before the first trick (the deal and the
// reservations), each trick with the four hands as they were before it, and the end.
// Everything comes from the game state and the reasons the computer players gave.
#include <optional>
#include <string>
#include <vector>

#include "engine/Spiel.h"
#include "players/Begruendungsprotokoll.h"

namespace table {

struct Verlaufskarte {
    engine::Sitz sitz{1};
    int pos = 0;                      // deck position
    std::vector<std::string> gruende; // the reasoning sentences, in the order given
};

struct Verlaufsschritt {
    enum class Art { Vorbehalte, Stich, Ende };
    Art art = Art::Vorbehalte;
    int stich = 0;                                // number of the trick, 1..12
    engine::ProSitz<std::vector<int>> haende;     // deck positions in hand before it, laid out as at the table
    std::vector<Verlaufskarte> karten;            // the trick in playing order
    std::optional<engine::Sitz> gewinner;
    int augen = 0;
    std::string ueberschrift;
    std::vector<std::string> zeilen;              // reservations, announcements, special points, result
};

std::vector<Verlaufsschritt> spielverlauf(const engine::Spiel& spiel, const players::Spielbegruendungen& gruende,
                                          bool franzoesisch);

// "Mld.(...) ..." as given, or the rule's name when the rule gave no sentence.
std::string grundText(const players::Grund& grund);

}  // namespace table

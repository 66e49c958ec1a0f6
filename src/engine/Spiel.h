#pragma once
// The state of the running game: one object, owned by whoever runs the table.
#include <optional>
#include <string>

#include "Deck.h"
#include "Regeln.h"
#include "Stich.h"

namespace engine {

struct Spiel {
    Regeln regeln;                           // rules in force for this game
    Deck deck;
    int spieltyp = Normalspiel;
    bool solo = false;                       // any solo, the Karo-Solo included
    std::optional<Sitz> schweineHalter;      // holder of both Karo-Asse when Schweine count
    Stich stich;
    ProSitz<int> parteiMarker;               // 2 once a seat revealed Re by a Kreuz-Dame
    ProSitz<int> schweineGespielt;           // raised Karo-Asse played per seat
    ProSitz<std::string> namen{std::string()};
};

}  // namespace engine

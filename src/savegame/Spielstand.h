#pragma once
// What a saved Partie holds: the game state, the stored rule options of the
// settings dialog, and what the table window shows beside the cards.
#include <array>
#include <string>

#include "engine/Regeln.h"
#include "engine/Spiel.h"

namespace savegame {

// Table-window state that is not derived from the game: menu entries, display
// values and texts, restored as they were.
struct Tischanzeige {
    bool kontraGebenAktiv = false;  // menu entry m_kontra_geben
    std::string kontraGebenText;
    std::array<bool, 4> unterHaken{};  // menu group m_unter (0, 30, 60, 90)
    bool limitAktiv = false;           // menu entry m_limit
    std::string limitText;
    std::array<int, 4> sitzAnzeige{};
    bool partnerinfo2Sichtbar = false;
    bool operator==(const Tischanzeige&) const = default;
};

struct Spielstand {
    engine::Spiel spiel;
    engine::RegelOptionen optionen;  // stored values, as the settings dialog holds them
    Tischanzeige tisch;
    bool operator==(const Spielstand&) const = default;
};

}  // namespace savegame

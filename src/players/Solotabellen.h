#pragma once
// What the solo evaluation of the reservations leaves for the rest of the game:
// per seat and game kind the estimated losses, the long suit of a fleischlos
// solo and the seat that keeps a silent solo. Kept with the table's knowledge,
// cleared at every deal.
#include <array>
#include <optional>

#include "engine/Sitz.h"

namespace players {

// Game kinds 1..8 as the trump values; index 0 stays unused.
inline constexpr int AnzahlSpielarten = 8;
using ProSpielart = std::array<int, AnzahlSpielarten + 1>;

struct Solotabellen {
    engine::ProSitz<ProSpielart> stichVerlust{};  // SoloStichVerlust
    engine::ProSitz<ProSpielart> augenVerlust{};  // SoloAugenVerlust: 240 means not safe
    engine::ProSitz<int> langeFarbe{};            // LangeFarbe of a fleischlos solo, 0 none
    std::optional<engine::Sitz> stillesSoloSpieler;  // StillesSoloSpieler

    void leeren() { *this = Solotabellen{}; }
};

}  // namespace players

#pragma once
// The computer players of a headless table: the knowledge they share, watching the
// game cycle, and one player of a named kind per seat.
#include <array>
#include <memory>
#include <string>

#include "engine/Entscheider.h"
#include "engine/Spielablauf.h"
#include "players/Tischwissen.h"

namespace app {

class Computertisch {
public:
    // `arten` per seat 1..4, names the caller has checked against players::spielerarten().
    Computertisch(engine::Spielablauf& ablauf, engine::Zufallsquelle& zufall, const std::array<std::string, 4>& arten,
                  players::Begruendungssenke* senke = nullptr);

    engine::ProSitz<engine::Entscheider*> entscheider() const;

private:
    players::Tischwissen wissen_;
    std::array<std::unique_ptr<engine::Entscheider>, 4> spieler_;
};

}  // namespace app

#pragma once
// The rule book player: leads and follows by the ordered rule tables, with the
// knowledge shared by the computer seats of its table.
#include "Begruendung.h"
#include "Tischwissen.h"
#include "engine/Entscheider.h"

namespace players {

class Regelwerk final : public engine::Entscheider {
public:
    // `zufall` serves the rules that choose at random; the table's source is fine.
    Regelwerk(Tischwissen& wissen, engine::Zufallsquelle& zufall, Begruendungssenke* senke = nullptr)
        : wissen_(wissen), zufall_(zufall), senke_(senke) {}

    int karteWaehlen(const Spiel& spiel, Sitz sitz) override;
    engine::Vorbehalt vorbehaltWaehlen(const Spiel&, Sitz) override { return {}; }
    std::optional<engine::Ansage> ansageWaehlen(const Spiel&, Sitz) override { return std::nullopt; }

private:
    Tischwissen& wissen_;
    engine::Zufallsquelle& zufall_;
    Begruendungssenke* senke_;
};

}  // namespace players

#pragma once
// Two plain player kinds for autoplay, tournaments and tests: the lowest legal
// card, and a random legal card. Neither declares a solo nor announces.
#include "engine/Entscheider.h"
#include "engine/Zufall.h"

namespace players {

// The legal card with the lowest trick strength (plain before trump on equal strength).
int kleinsteErlaubteKarte(const engine::Spiel& spiel, engine::Sitz sitz);

class KleinsteKarte final : public engine::Entscheider {
public:
    int karteWaehlen(const engine::Spiel& spiel, engine::Sitz sitz) override;
    engine::Vorbehalt vorbehaltWaehlen(const engine::Spiel&, engine::Sitz) override { return {}; }
    std::optional<engine::Ansage> ansageWaehlen(const engine::Spiel&, engine::Sitz) override { return {}; }
};

class Zufallsspieler final : public engine::Entscheider {
public:
    explicit Zufallsspieler(engine::Zufallsquelle& zufall) : zufall_(zufall) {}
    int karteWaehlen(const engine::Spiel& spiel, engine::Sitz sitz) override;
    engine::Vorbehalt vorbehaltWaehlen(const engine::Spiel&, engine::Sitz) override { return {}; }
    std::optional<engine::Ansage> ansageWaehlen(const engine::Spiel&, engine::Sitz) override { return {}; }

private:
    engine::Zufallsquelle& zufall_;
};

}  // namespace players

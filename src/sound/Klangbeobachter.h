#pragma once
// Turns what happens at the table into sounds: the engine's events through the
// observer interface, and the table window's own moments ("your turn", a
// player joining or leaving a network table) through explicit calls.
#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

#include "Klaenge.h"
#include "Klangspieler.h"
#include "engine/Entscheider.h"

namespace sound {

class Klangbeobachter final : public engine::Spielbeobachter {
public:
    // Milliseconds on a clock that never goes back.
    using Uhr = std::function<std::int64_t()>;
    static std::int64_t steadyMs();

    explicit Klangbeobachter(Klangspieler& spieler, Uhr uhr = &Klangbeobachter::steadyMs);

    // Solos are spoken with the names of the card pictures in use.
    void franzoesischeNamenSetzen(bool franzoesisch) { franzoesisch_ = franzoesisch; }

    void kartenGegeben(const engine::Spiel& spiel) override;
    void spielBegonnen(const engine::Spiel& spiel) override;
    void karteGespielt(const engine::Spiel& spiel, engine::Sitz sitz, int pos) override;
    void stichKomplett(const engine::Spiel& spiel, engine::Sitz gewinner) override;
    void ansageGemacht(const engine::Spiel& spiel, const engine::AnsageEintrag& ansage) override;
    void spielBeendet(const engine::Spiel& spiel) override;

    void duBistDran() { spielen(Klang::DuBistDran); }
    void spielerKommt() { spielen(Klang::SpielerKommt); }
    void spielerGeht() { spielen(Klang::SpielerGeht); }
    void supersau() { spielen(Klang::Supersau); }

    // Plays a sound when its option is on. An effect never cuts off speech that
    // is still playing, so a computer's "Re" is not lost under its card.
    void spielen(Klang klang);

private:
    void spielAnfang(const engine::Spiel& spiel);

    Klangspieler& spieler_;
    Uhr uhr_;
    bool franzoesisch_ = true;
    std::int64_t spracheBis_ = 0;
    bool schweineGesagt_ = false;
    std::optional<engine::ProSitz<int>> punkteVorher_;  // totals when the game began
};

}  // namespace sound

#pragma once
// The reasoning behind the computer players' moves of one game, kept so a game can
// be gone through again afterwards: the sentences of each card (by deck position),
// of each announcement (in the order of Spiel::ansagen) and of each seat's
// reservation. It listens to the reasoning and to the game, and forwards the
// reasoning to the next sink unchanged.
#include <array>
#include <string>
#include <vector>

#include "Begruendung.h"
#include "engine/Entscheider.h"
#include "engine/Spiel.h"

namespace players {

struct Grund {
    std::string verfahren;
    std::string code;
    std::string text;  // may be empty: some rules report only their code
    bool operator==(const Grund&) const = default;
};

struct Spielbegruendungen {
    std::array<std::vector<Grund>, engine::MaxPositionen> karten{};  // index: deck position - 1
    std::vector<std::vector<Grund>> ansagen;                         // parallel to Spiel::ansagen
    engine::ProSitz<std::vector<Grund>> vorbehalte;

    const std::vector<Grund>& karte(int pos) const;
    bool operator==(const Spielbegruendungen&) const = default;
};

class Begruendungsprotokoll final : public Begruendungssenke, public engine::Spielbeobachter {
public:
    explicit Begruendungsprotokoll(Begruendungssenke* weiter = nullptr) : weiter_(weiter) {}

    void melden(const Meldung& m) override;
    void kartenGegeben(const engine::Spiel& spiel) override;
    void spielBegonnen(const engine::Spiel& spiel) override;
    void karteGespielt(const engine::Spiel& spiel, engine::Sitz sitz, int pos) override;
    void ansageGemacht(const engine::Spiel& spiel, const engine::AnsageEintrag& eintrag) override;

    // What was said in the running game so far.
    const Spielbegruendungen& spiel() const { return spiel_; }
    // A game taken over midway has no reasons for what happened before.
    void vergessen();

private:
    Begruendungssenke* weiter_;
    Spielbegruendungen spiel_;
    engine::ProSitz<std::vector<Grund>> offen_;  // said by a seat since its last move
};

}  // namespace players

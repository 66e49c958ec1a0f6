#pragma once
// Answers the requests of the game cycle that no person answers: the deal from
// the generator, the computer seats' redeal checks, reservations, announcements
// and cards through their players, the trick collection and the next game. It
// stops where a person (here or at another machine) must answer. The headless
// host, the tests and the fuzzer drive a table with it.
#include <functional>

#include "engine/Entscheider.h"
#include "engine/Spielablauf.h"

namespace net {

class Gastkern;

class Tischautomat {
public:
    Tischautomat(engine::Spielablauf& ablauf, const engine::ProSitz<engine::Entscheider*>& entscheider)
        : ablauf_(ablauf), entscheider_(entscheider) {}

    enum class Halt {
        Person,     // a person's answer is awaited
        Spielende,  // a scored game waits: nachSpiel said stop
        Schritte,   // the step budget ran out; call again
    };
    Halt laufen(int maxSchritte = 100000);

    // Sees each scored game once; returns whether the next game is to start.
    std::function<bool(const engine::Spiel&)> nachSpiel;
    // Called before the next Partie starts.
    std::function<void()> vorNeuerPartie;

    int abgelehnt() const { return abgelehnt_; }  // computer answers the cycle refused

private:
    engine::Spielablauf& ablauf_;
    engine::ProSitz<engine::Entscheider*> entscheider_;
    long gemeldet_ = -1;  // Partie and game of the last game shown to nachSpiel
    int abgelehnt_ = 0;
};

// A guest played by the computer: answers the host's open question to seat 1 as
// the seat's player decides (a refused wish falls back as the cycle does for a
// computer seat). Nothing happens while no question is open.
void gastfrageBeantworten(Gastkern& gast, const engine::Spielablauf& ablauf, engine::Entscheider& spieler);

}  // namespace net

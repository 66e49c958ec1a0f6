#pragma once
// What happens after a Partie was read, as data for the table window (and the
// headless autoplay): the message boxes in order, the finished-game question,
// and how play goes on.
#include <optional>
#include <string>
#include <vector>

#include "Partiedatei.h"

namespace savegame {

enum class Symbol { Kritisch, Information, Ohne };

struct Meldung {
    std::string text;
    Symbol symbol = Symbol::Ohne;
    bool operator==(const Meldung&) const = default;
};

enum class Weiter {
    LaufendesSpiel,  // not a game file: the running game goes on untouched
    NeuePartie,      // the file was damaged or outdated
    NaechstesSpiel,  // the loaded game was finished
    Fortsetzen,      // the loaded game resumes with the seat on turn
};

struct Ladeablauf {
    std::vector<Meldung> meldungen;        // shown first, in this order
    bool sticheFragen = false;             // yes/no question texte::SticheAnsehen
    std::vector<Meldung> nachDerFrage;     // the stored message of the finished game
    int stichansichtBeiJa = 0;             // trick the trick viewer opens on after "yes"
    Weiter weiter = Weiter::LaufendesSpiel;
    std::optional<engine::Sitz> amZug;     // Fortsetzen while a trick is open
};

Ladeablauf ladeablauf(const Leseergebnis& ergebnis, const Spielstand& geladen);

}  // namespace savegame

#pragma once
// Plays games without a table: every request is answered by the seat's
// Entscheider, redeal questions by the computer rule. Used by the headless
// autoplay, tournaments and tests.
#include <functional>
#include <string>
#include <vector>

#include "Entscheider.h"
#include "Spielablauf.h"

namespace engine {

struct Selbstspielbilanz {
    int spiele = 0;
    int abgelehnt = 0;                 // answers the engine refused (a player's fault)
    std::vector<std::string> gruende;  // the first few refusals
};

class Selbstspiel {
public:
    Selbstspiel(Spielablauf& ablauf, const ProSitz<Entscheider*>& entscheider)
        : ablauf_(ablauf), entscheider_(entscheider) {}

    // Plays until `spiele` games are scored; `nachSpiel` sees each scored game.
    Selbstspielbilanz spielen(int spiele, const std::function<void(const Spiel&)>& nachSpiel = {});

private:
    void ablehnung(Selbstspielbilanz& bilanz, const Bescheid& b);

    Spielablauf& ablauf_;
    ProSitz<Entscheider*> entscheider_;
};

}  // namespace engine

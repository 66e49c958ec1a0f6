#pragma once
// A headless table on the game cycle: all seats played by the computer, the referee
// watching, seeded deals.
#include "engine/Schiedsrichter.h"
#include "engine/Selbstspiel.h"
#include "engine/Spielablauf.h"
#include "engine/Zufall.h"

namespace testhilfe {

class Testtisch {
public:
    engine::Spiel spiel;
    engine::SeedZufall zufall;
    engine::Spielablauf ablauf{spiel, zufall};
    engine::Schiedsrichter schiedsrichter;

    explicit Testtisch(std::uint64_t seed, const engine::RegelOptionen& regeln = {}) : zufall(seed) {
        for (const engine::Sitz s : engine::alleSitze) spiel.steuerung[s] = engine::Steuerung::Computer;
        ablauf.beobachterHinzufuegen(&schiedsrichter);
        ablauf.regelOptionenSetzen(regeln);
        ablauf.neuePartie();
    }

    engine::Selbstspielbilanz spielen(int spiele, engine::Entscheider& spieler,
                                      const std::function<void(const engine::Spiel&)>& nachSpiel = {}) {
        engine::Selbstspiel selbstspiel(ablauf, engine::ProSitz<engine::Entscheider*>(&spieler));
        return selbstspiel.spielen(spiele, nachSpiel);
    }
};

}  // namespace testhilfe

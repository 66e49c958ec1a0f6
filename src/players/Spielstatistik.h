#pragma once
// Counts what the games came to: solos by kind and how often the soloist won (the
// safe ones apart), silent solos, Hochzeiten, announcements and limits, and how
// often an announcing party won. For --stats; watches the game and the reasoning.
#include <array>
#include <string>

#include "Begruendung.h"
#include "Solotabellen.h"
#include "engine/Entscheider.h"

namespace players {

class Spielstatistik final : public Begruendungssenke, public engine::Spielbeobachter {
public:
    struct Quote {
        long anzahl = 0;
        long gewonnen = 0;
        double anteil() const { return anzahl ? double(gewonnen) / double(anzahl) : 0.0; }
    };

    // A seat that found a safe solo in this deal.
    void melden(const Meldung& meldung) override;
    void kartenGegeben(const engine::Spiel& spiel) override;
    void spielBeendet(const engine::Spiel& spiel) override;

    long spiele = 0;
    std::array<Quote, AnzahlSpielarten + 1> solos{};  // declared, by game kind; won by the soloist
    Quote sichereSolos;                               // declared as safe
    Quote pflichtsolos;
    Quote stilleSolos;
    Quote sichereStilleSolos;
    Quote hochzeiten;                                 // won by the Hochzeiter's party
    long hochzeitenAllein = 0;                        // no partner found
    std::array<long, 8> hochzeitArten{};              // by kind 5..7
    long reAnsagen = 0;
    long kontraAnsagen = 0;
    Quote ansagendeParteien;                          // a party that announced Re or Kontra
    std::array<Quote, 4> limits{};                    // by code; won = kept

    std::string bericht() const;

private:
    engine::ProSitz<bool> sicher_{};
};

}  // namespace players

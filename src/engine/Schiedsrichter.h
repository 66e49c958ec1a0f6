#pragma once
// A referee that watches a game and checks what must always hold: legal cards,
// trick winners by the strengths, all Augen accounted for, parties as the deal and
// the reservations make them, and points booked as value, factor, special points
// and parties give. Autoplay, tournaments and tests run it alongside.
#include <array>
#include <string>
#include <vector>

#include "Entscheider.h"

namespace engine {

class Schiedsrichter final : public Spielbeobachter {
public:
    void kartenGegeben(const Spiel& spiel) override;
    void spielBegonnen(const Spiel& spiel) override;
    void karteGespielt(const Spiel& spiel, Sitz sitz, int pos) override;
    void stichKomplett(const Spiel& spiel, Sitz gewinner) override;
    void ansageGemacht(const Spiel& spiel, const AnsageEintrag& eintrag) override;
    void spielBeendet(const Spiel& spiel) override;

    // What went wrong, each with the Partie, game and trick it happened in (the first 50).
    const std::vector<std::string>& fehler() const { return fehler_; }
    int fehlerAnzahl() const { return fehlerAnzahl_; }
    int spiele() const { return spiele_; }

private:
    void melde(const Spiel& spiel, const std::string& was);
    void parteienPruefen(const Spiel& spiel, bool amEnde);
    void wertungPruefen(const Spiel& spiel);

    std::vector<std::string> fehler_;
    int fehlerAnzahl_ = 0;
    int spiele_ = 0;
    std::array<bool, MaxPositionen + 1> gespielt_{};
    ProSitz<int> standVorher_;
    bool bockFaellig_ = false;  // the previous game of this Partie ended in a kalter Schlag
};

}  // namespace engine

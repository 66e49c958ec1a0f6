#pragma once
// The decisions a seat makes, whoever makes them: the rule book, a simple
// computer player, a person at the table, a remote player. Controllers ask the
// seat's Entscheider when the game cycle requests a decision from a computer seat.
#include <optional>

#include "Spiel.h"

namespace engine {

// A reservation: nothing ("gesund"; for the holder of both Kreuz-Damen that is a
// silent solo), a solo of a game type, or a Hochzeit of a kind.
struct Vorbehalt {
    enum Art { Gesund, Solo, Hochzeit } art = Gesund;
    int spieltyp = Normalspiel;     // for Solo: 1 is the Karo-Solo
    int hochzeitArt = KeineHochzeit;
    bool operator==(const Vorbehalt&) const = default;
};

// An announcement: Re or Kontra for the seat's own party, or a limit.
struct Ansage {
    bool limit = false;
    int limitCode = -1;  // Limit, for a limit announcement
    bool operator==(const Ansage&) const = default;
};

class Entscheider {
public:
    virtual ~Entscheider() = default;
    // Deck position of the seat's next card; must be legal.
    virtual int karteWaehlen(const Spiel& spiel, Sitz sitz) = 0;
    // The seat's reservation when asked in playing order.
    virtual Vorbehalt vorbehaltWaehlen(const Spiel& spiel, Sitz sitz) = 0;
    // Asked before each of the seat's cards while an announcement is allowed.
    virtual std::optional<Ansage> ansageWaehlen(const Spiel& spiel, Sitz sitz) = 0;
};

// Observes the game as it runs: the computer players keep their knowledge with it,
// a network host forwards it. All calls come after the state has changed.
class Spielbeobachter {
public:
    virtual ~Spielbeobachter() = default;
    // Cards dealt and attributes for the normal game computed (before the redeal checks).
    virtual void kartenGegeben(const Spiel&) {}
    // A seat asked for a redeal (grund: Neugebegrund); the next request is a new deal.
    virtual void neugebenVerlangt(const Spiel&, Sitz, int /*grund*/) {}
    // A seat's reservation was taken, before the game it may fix begins.
    virtual void vorbehaltGemacht(const Spiel&, Sitz, const Vorbehalt&) {}
    // Reservations done, game type and parties fixed, strengths recomputed.
    virtual void spielBegonnen(const Spiel&) {}
    virtual void karteGespielt(const Spiel&, Sitz, int /*pos*/) {}
    // The fourth card has fallen; spiel.stich is the complete trick and already in spiel.stiche.
    virtual void stichKomplett(const Spiel&, Sitz /*gewinner*/) {}
    // A party became known or changed (Hochzeit settled, ...).
    virtual void parteienGeaendert(const Spiel&) {}
    virtual void ansageGemacht(const Spiel&, const AnsageEintrag&) {}
    virtual void spielBeendet(const Spiel&) {}
};

}  // namespace engine

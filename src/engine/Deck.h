#pragma once
// The 48 deck positions and their derived attributes.
#include <array>
#include <cassert>

#include "Karte.h"
#include "Sitz.h"

namespace engine {

inline constexpr int MaxPositionen = 48;

enum Kartenstatus : int { ImSpielNicht = 0, InHand = 1, Gespielt = 2 };

struct Kartenposition {
    int code = 0;     // 1..25, 0 for a position not in the game
    int status = 0;   // Kartenstatus
    int marke = 0;    // free mark the computer players may set on a card
    int farbe = 0;    // effective suit: 1..4, or the trump value for a trump card
    int wert = 0;     // value flag
    int staerke = 0;  // trick strength within the effective suit
    int augen = 0;
    bool operator==(const Kartenposition&) const = default;
};

class Deck {
public:
    // Positions 1..48.
    Kartenposition& operator[](int pos) {
        assert(pos >= 1 && pos <= MaxPositionen);
        return positionen_[static_cast<std::size_t>(pos - 1)];
    }
    const Kartenposition& operator[](int pos) const {
        assert(pos >= 1 && pos <= MaxPositionen);
        return positionen_[static_cast<std::size_t>(pos - 1)];
    }

    // 48, or 40 without nines.
    int kartenanzahl() const { return kartenanzahl_; }
    void setzeKartenanzahl(int n) {
        assert(n == 48 || n == 40);
        kartenanzahl_ = n;
    }
    int handgroesse() const { return kartenanzahl_ / 4; }
    int erstePosition(Sitz s) const { return (s.nr() - 1) * handgroesse() + 1; }
    int letztePosition(Sitz s) const { return s.nr() * handgroesse(); }
    Sitz besitzer(int pos) const { return Sitz((pos - 1) / handgroesse() + 1); }
    // Cards of a code dealt to the seat, played ones included.
    int anzahl(Sitz s, int code) const;

    // Sets every position's suit, value flag and Augen from its code; the effective
    // suit starts as the suit.
    void attributeBerechnen();
    // Sets trick strength and, for trump cards, the effective suit for a game type.
    void staerkenBerechnen(int spieltyp);

    bool istTrumpf(int pos, int spieltyp) const { return (*this)[pos].farbe == spieltyp; }

    bool operator==(const Deck&) const = default;

private:
    std::array<Kartenposition, MaxPositionen> positionen_{};
    int kartenanzahl_ = 48;
};

// Strength and effective suit of one card code in a game type (the Schweine raise
// is not part of it).
struct Rangierung {
    int farbe;
    int staerke;
};
namespace detail {
Rangierung rangierungBerechnen(int code, int spieltyp);
// Every code (1..25) in every game type (1..8).
extern const std::array<std::array<Rangierung, 9>, 26> rangtabelle;
}  // namespace detail

// Asked for every card at every deal and by the solo estimates: looked up, not worked out.
inline Rangierung rangierung(int code, int spieltyp) {
    if (code < 1 || code > 25 || spieltyp < 1 || spieltyp > 8) return detail::rangierungBerechnen(code, spieltyp);
    return detail::rangtabelle[static_cast<std::size_t>(code)][static_cast<std::size_t>(spieltyp)];
}

}  // namespace engine

#pragma once
// Dealing by hand: the cards of the deck in a pile, four hands to fill. The hands
// take at most a quarter of the deck each, so only a complete deal is ever offered
// to the game cycle, which checks it once more.
#include <string>
#include <vector>

#include "engine/Geben.h"
#include "engine/Sitz.h"

namespace engine {
class Zufallsquelle;
}

namespace table {

class Handverteilung {
public:
    // The deck the rules in force play with: 48 or 40 cards, with the Joker in place
    // of the second Karo-Neun when Jokers are played with nines.
    Handverteilung(int kartenanzahl, bool joker);

    int kartenanzahl() const { return kartenanzahl_; }
    int handgroesse() const { return kartenanzahl_ / 4; }
    // Cards still to give, ordered by suit and rank.
    const std::vector<int>& stapel() const { return stapel_; }
    const std::vector<int>& hand(engine::Sitz sitz) const { return haende_[sitz]; }
    bool voll(engine::Sitz sitz) const;

    // Gives the pile's card at `index` to the seat; false when its hand is full.
    bool geben(std::size_t index, engine::Sitz sitz);
    // Puts the hand's card at `index` back on the pile.
    void zuruecklegen(engine::Sitz sitz, std::size_t index);
    void allesZuruecklegen();
    // Deals the rest of the pile at random into the hands that still have room.
    void restZufaellig(engine::Zufallsquelle& zufall);

    // Empty when every card has its hand, else what is missing (German, for the person).
    std::string fehler() const;
    // Card code per deck position, each seat's hand in its block, as given.
    engine::Kartenverteilung verteilung() const;

private:
    void ordnen();

    int kartenanzahl_;
    std::vector<int> stapel_;
    engine::ProSitz<std::vector<int>> haende_;
};

}  // namespace table

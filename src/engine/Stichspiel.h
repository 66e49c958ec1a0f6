#pragma once
// Playing one card into the trick and deciding the trick.
#include <string>
#include <vector>

#include "Spiel.h"

namespace engine {

class Zufallsquelle;

// Legality of a seat's card: illegal exactly when it does not follow the suit
// to follow although another card of the hand does.
bool karteErlaubt(const Spiel& spiel, Sitz sitz, int pos);

// Deck positions of the seat's cards still in hand, and the legal ones among them.
std::vector<int> handkarten(const Spiel& spiel, Sitz sitz);
std::vector<int> erlaubteKarten(const Spiel& spiel, Sitz sitz);
// Any legal card (0 when the hand is empty): stands in for an illegal one a player offered.
int ersteErlaubteKarte(const Spiel& spiel, Sitz sitz);

// The wrong-card message for an illegal card (the opening is drawn at random).
std::string falscheKarteMeldung(const Spiel& spiel, int pos, bool franzoesisch, Zufallsquelle& zufall);

struct Kartenfolge {
    bool kreuzDameAufgedeckt = false;  // the player revealed Re
    bool schweinGespielt = false;      // a raised Karo-As fell
    bool supersau = false;             // a trump As of the Supersau holder was promoted
};

// Plays the card at `pos` for the seat on turn.
Kartenfolge karteSpielen(Spiel& spiel, int pos);

// Place 1..4 of the winning card among the first `anzahl` cards (anzahl >= 1).
int fuehrenderPlatz(const Deck& deck, const Stich& stich, int anzahl, int spieltyp, bool ersteDolleHoch);

// Winning seat of the complete trick.
Sitz stichGewinner(const Spiel& spiel);

}  // namespace engine

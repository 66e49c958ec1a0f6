#pragma once
// The deal, the dealer counter and the Vorhand of each game.
#include <array>
#include <string>

#include "Spiel.h"

namespace engine {

class Zufallsquelle;

using Kartenverteilung = std::array<int, MaxPositionen>;  // card code per deck position, 0 unused

// A uniform permutation drawn by rejection: each position draws a number 1..48
// until it is neither taken nor (without nines) a Neun; numbers above 24 are the
// second copies, and 25 stays the Joker when Jokers are played.
Kartenverteilung kartenZiehen(int kartenanzahl, bool joker, Zufallsquelle& zufall);

// Empty when the codes form a deck for these rules, else why not.
std::string verteilungPruefen(const Kartenverteilung& karten, int kartenanzahl, bool joker);

// Puts a deal on the table: codes, every card in its hand, attributes and
// strengths of the normal game.
void kartenAuflegen(Spiel& spiel, const Kartenverteilung& karten);

// The dealer counter runs 1..4: forward for each deal, back one for a redeal.
void geberWeiter(Partiestand& partie);
void geberZurueck(Partiestand& partie);

// Vorhand of the game about to start, from the rule "Vorhand" in the first game
// and from the previous Vorhand, the saved seat and its mark afterwards.
// Draws from the generator only for a random first Vorhand.
Sitz vorhandBestimmen(Partiestand& partie, const Regeln& regeln, Zufallsquelle& zufall);

}  // namespace engine

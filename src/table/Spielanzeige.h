#pragma once
// What the table shows about the game beside the cards: the party of each seat as
// the person at seat 1 may know it, the announcements made at each seat, the
// lines of the game corner, and a finished game's entry on the score sheet.
#include <string>
#include <vector>

#include "engine/Spiel.h"

namespace table {

// Party codes (unknown, Kontra, Re; the soloist counts as Re) from seat 1's view:
// the table's indicator (`zeigerBild`, 0 where it shows nothing yet), filled up
// with what was declared or announced, and seat 1's own party from its cards.
engine::ProSitz<int> sichtbareParteien(const engine::Spiel& spiel, const engine::ProSitz<int>& zeigerBild);

struct Ansageschild {
    std::string text;   // "Re", "Kontra", "keine 90", ...
    int seite = 0;      // the side it was made for: 1 Kontra, 2 Re
    bool operator==(const Ansageschild&) const = default;
};
// The announcements a seat has made in this game, Re or Kontra first.
std::vector<Ansageschild> ansagenVon(const engine::Spiel& spiel, engine::Sitz sitz);

// "Normalspiel", "Rot-Solo (Pflichtsolo)", "Hochzeit: erster Fehlstich", ...; a silent
// solo only when `allesOffen` (the game is over) or seat 1 plays it.
std::string spielart(const engine::Spiel& spiel, bool franzoesisch, bool allesOffen);

// The seat that dealt: the one before the Vorhand of the deal.
engine::Sitz geber(const engine::Spiel& spiel);

// The game corner: game type, game number, dealer, Vorhand, factor and Bock; empty
// before the cards are dealt.
std::vector<std::string> spielecke(const engine::Spiel& spiel, bool franzoesisch);

// A scored game on the score sheet.
struct Spielangaben {
    std::string spielart;
    std::string gewinner;
    std::string augen;
    std::string ansagen;
    std::string sonderpunkte;
    bool operator==(const Spielangaben&) const = default;
};
Spielangaben spielangaben(const engine::Spiel& gewertet, bool franzoesisch);

}  // namespace table

#pragma once
// Card names on screen: French or German pictures by the card-picture option.
#include <string>
#include <string_view>

namespace engine {

// Pictures 1 and 3 carry French names, every other picture German ones.
constexpr bool franzoesischeBilder(int kartenbild) { return kartenbild == 1 || kartenbild == 3; }

std::string_view farbwort(int farbe, bool franzoesisch);
// "Neun", "Buben"/"Unter", "Dame"/"Ober", "König", "Zehn", "As"/"Daus", "Joker".
std::string_view wertwort(int code, bool franzoesisch);
// Suit word + "-" + value word, or "Joker" alone.
std::string kartenname(int code, bool franzoesisch);
// Name of a game type ("Normalspiel", "Herz-Solo", "Rot-Solo", ...).
std::string spieltypName(int spieltyp, bool franzoesisch);
// Name of a declared solo: as spieltypName, but type 1 is the "Karo-Solo" / "Schellen-Solo".
std::string soloName(int spieltyp, bool franzoesisch);

// Grammatical gender of a card's value word, for the articles of messages: the
// Dame is feminine, the Ober masculine.
enum class Genus { Feminin, Neutrum, Maskulin };
Genus genusVon(int code, bool franzoesisch);

}  // namespace engine

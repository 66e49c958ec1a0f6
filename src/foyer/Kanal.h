#pragma once
// Channel names. Every channel goes on the wire with the prefix "+". A channel
// name cannot hold a blank (the server would read "+Tisch 3" as "+Tisch" with
// the key "3"), so table 3 is "+Tisch_3" on the wire and "Tisch 3" in the window.
#include <optional>
#include <string>
#include <string_view>

namespace foyer {

inline constexpr int MaxTischnummer = 999;

std::string kanalname(std::string_view raum);  // "Foyer" -> "+Foyer"
std::string tischkanal(int nummer);            // 3 -> "+Tisch_3"
// The table number of a "+Tisch_N" channel (any case), nothing for other channels.
std::optional<int> tischnummer(std::string_view kanal);
// A decimal number 0..obergrenze: digits only, no sign, no leading zero.
std::optional<int> zahlLesen(std::string_view text, int obergrenze);

}  // namespace foyer

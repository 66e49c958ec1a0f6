#pragma once
// What the client sends to log in and right after: the user token, the nickname
// cut to 12 characters, and the lines in their fixed order.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Zufall.h"

namespace foyer {

inline constexpr std::size_t MaxNick = 12;
inline constexpr std::string_view Serverpasswort = "r90317pv";

// Five capitals, each the character 65 + int(rnd * 25): "A" to "Y", never "Z".
std::string benutzerkennung(engine::Zufallsquelle& zufall);

// The player's name as the server sees it: its first 12 characters.
std::string nickAusName(std::string_view name);

// USER (the token four times, each after a blank), PASS, NICK; without line ends.
std::vector<std::string> anmeldezeilen(std::string_view kennung, std::string_view nick);

// Once the server has accepted the name: the channel list, the foyer, the time.
std::vector<std::string> foyerBetreten(std::string_view foyerkanal);

}  // namespace foyer

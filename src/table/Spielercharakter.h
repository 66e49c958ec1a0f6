#pragma once
// The computer player kinds a seat's "charakter" selects, with their captions.
#include <string_view>
#include <vector>

namespace table {

struct Charakter {
    int wert;               // as stored under "charakter1".."charakter4"
    std::string_view art;   // kind for players::spielerErzeugen
    const char* name;       // caption in the settings dialog
};

inline constexpr int StandardCharakter = 2;

// In the order the settings dialog offers them.
const std::vector<Charakter>& charaktere();
// The kind of player for a stored value; values we do not know play by the rule book.
std::string_view spielerartFuer(int charakter);

}  // namespace table

#pragma once
// The IRC line protocol without sockets: splitting received bytes into lines,
// reading one line into prefix, command and parameters, and making a line to send.
// Every byte comes from a stranger, so every buffer here is bounded.
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace foyer {

// RFC 1459: at most 512 bytes with the line end. A longer line is dropped whole.
inline constexpr std::size_t MaxZeile = 510;
inline constexpr std::size_t MaxParameter = 15;

struct Irczeile {
    std::string absender;  // nick of the prefix ("nick!user@host"), or the server's name
    std::string befehl;    // a command in capitals or a three-digit numeric
    std::vector<std::string> parameter;  // the trailing text, if any, is the last

    // The i-th parameter, or "" when there are fewer.
    const std::string& param(std::size_t i) const;
};

// Reads one line (without its line end); nothing for a line without a command.
std::optional<Irczeile> zeileLesen(std::string_view zeile);

// Received bytes to lines. A line may end with CR, LF or both; empty lines
// vanish. A line longer than MaxZeile is dropped up to its end.
class Zeilenpuffer {
public:
    std::vector<std::string> anhaengen(std::string_view bytes);
    std::size_t verworfen() const { return verworfen_; }
    void leeren();

private:
    std::string offen_;
    bool ueberlang_ = false;
    std::size_t verworfen_ = 0;
};

// A line for the wire: the text with any CR, LF or NUL of its own made blanks (so
// a chat text cannot smuggle a command), cut to MaxZeile bytes at a character
// boundary, then the single carriage return that ends every line we send.
std::string sendezeile(std::string_view text);

// Nicknames compare without case (the server maps ASCII).
bool gleicherNick(std::string_view a, std::string_view b);

// The first `zeichen` characters of UTF-8 text (a broken sequence counts as one).
std::string utf8Anfang(std::string_view text, std::size_t zeichen);

}  // namespace foyer

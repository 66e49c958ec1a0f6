#pragma once
// Table messages on the wire: five-character tag, payload, the separator "~&~".
// Text travels in Windows-1252; everything here works on those bytes, and the
// callers convert names and chat lines from and to UTF-8.
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace net {

inline constexpr std::string_view Trenner = "~&~";
inline constexpr std::size_t TagLaenge = 5;

// A receive buffer that grows beyond this without a separator, or beyond the
// second bound at all, is an attack or a broken peer: the connection goes.
inline constexpr std::size_t MaxOhneTrenner = 64 * 1024;
inline constexpr std::size_t MaxPuffer = 256 * 1024;

struct Nachricht {
    std::string tag;       // the first five characters (fewer when the message is shorter)
    std::string nutzlast;  // everything from the sixth character on
};

Nachricht zerlegen(std::string_view nachricht);

// Tag and payload (UTF-8) as bytes for the wire: the payload in Windows-1252,
// without any "~&~" of its own, then the separator.
std::string rahmen(std::string_view tag, std::string_view nutzlast);

// The numeric value of a payload field: blanks anywhere are skipped, an optional
// sign, then digits up to the first other character; no digits read as 0.
int zahlWert(std::string_view text);

// Everything received and not yet processed, taken one message at a time.
class Empfangspuffer {
public:
    // Appends received bytes; false when the buffer has overflowed (see the bounds above).
    bool anhaengen(std::string_view bytes);
    // The first five characters: the tag of the next message, complete or not.
    std::string_view kopf() const;
    bool vollstaendig() const;  // a separator is there
    // The text before the first separator. What follows loses its leading blanks,
    // as the old table did when it blanked the taken part and trimmed the buffer.
    std::optional<std::string> nehmen();
    std::string_view rest() const { return std::string_view(daten_).substr(anfang_); }
    bool leer() const { return anfang_ >= daten_.size(); }
    void leeren();

private:
    std::size_t trennerSuchen() const;

    std::string daten_;
    std::size_t anfang_ = 0;         // bytes before it are taken
    mutable std::size_t gesucht_ = 0;  // no separator begins before this offset
};

}  // namespace net

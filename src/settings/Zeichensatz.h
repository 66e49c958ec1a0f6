#pragma once
// Windows-1252 on disk, UTF-8 in memory, and the case folding that the
// private-profile functions use when they compare section and key names.
#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace settings {

// Every byte maps to one code point, so any file survives a read and a write
// unchanged (the five unassigned bytes map to the C1 controls of the same number).
std::string cp1252NachUtf8(std::string_view bytes);

// Code points that Windows-1252 cannot hold become '?', as the Windows
// conversion does with its default character.
std::string utf8NachCp1252(std::string_view text);

bool istGueltigesUtf8(std::string_view bytes);

// Decodes a file's bytes: UTF-8 with a byte-order mark, valid UTF-8, or else Windows-1252.
std::string dateiTextDekodieren(std::string_view bytes);

// The decoded lines of a text file; CRLF, LF and a lone CR all end a line.
std::vector<std::string> dateiZeilen(std::string_view bytes);

// Lower-case form for comparisons: ASCII and the Latin letters of Windows-1252
// (umlauts included); invalid UTF-8 is compared byte by byte.
std::string faltung(std::string_view text);

bool gleichOhneGrossschreibung(std::string_view a, std::string_view b);

// The folded form of a name for one lookup; short ASCII names (every key we
// know) are folded in place, so looking up a key allocates nothing.
class Gefaltet {
public:
    explicit Gefaltet(std::string_view text);
    Gefaltet(const Gefaltet&) = delete;
    Gefaltet& operator=(const Gefaltet&) = delete;
    std::string_view sicht() const { return lang_.empty() ? std::string_view(kurz_.data(), laenge_) : lang_; }

private:
    std::array<char, 32> kurz_{};
    std::size_t laenge_ = 0;
    std::string lang_;
};

// Maps keyed by folded names, looked up with a Gefaltet's view.
struct NamenHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view s) const noexcept { return std::hash<std::string_view>{}(s); }
};
template <class Wert>
using Namentabelle = std::unordered_map<std::string, Wert, NamenHash, std::equal_to<>>;

// The first `zeichen` code points of a UTF-8 text (Windows-1252 holds one per byte).
std::string ersteZeichen(std::string_view text, std::size_t zeichen);

}  // namespace settings

#include "Zeichensatz.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace settings {

namespace {

// Code points of the bytes 0x80..0x9F; the unassigned ones keep their own number.
constexpr std::array<char32_t, 32> obereSteuerzeichen{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t Ersatzzeichen = 0xFFFD;

void anhaengen(std::string& ziel, char32_t cp) {
    auto byte = [&](unsigned v) { ziel.push_back(static_cast<char>(v)); };
    if (cp < 0x80) {
        byte(cp);
    } else if (cp < 0x800) {
        byte(0xC0 | (cp >> 6));
        byte(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        byte(0xE0 | (cp >> 12));
        byte(0x80 | ((cp >> 6) & 0x3F));
        byte(0x80 | (cp & 0x3F));
    } else {
        byte(0xF0 | (cp >> 18));
        byte(0x80 | ((cp >> 12) & 0x3F));
        byte(0x80 | ((cp >> 6) & 0x3F));
        byte(0x80 | (cp & 0x3F));
    }
}

// Decodes one code point at `i` and advances; returns nothing for a malformed
// sequence (then `i` moves by one byte).
bool naechsterCodepunkt(std::string_view s, std::size_t& i, char32_t& cp) {
    const auto b0 = static_cast<unsigned char>(s[i]);
    if (b0 < 0x80) {
        cp = b0;
        ++i;
        return true;
    }
    std::size_t laenge = 0;
    char32_t minimum = 0;
    if ((b0 & 0xE0) == 0xC0) { laenge = 2; cp = b0 & 0x1F; minimum = 0x80; }
    else if ((b0 & 0xF0) == 0xE0) { laenge = 3; cp = b0 & 0x0F; minimum = 0x800; }
    else if ((b0 & 0xF8) == 0xF0) { laenge = 4; cp = b0 & 0x07; minimum = 0x10000; }
    else { ++i; return false; }
    if (i + laenge > s.size()) { ++i; return false; }
    for (std::size_t k = 1; k < laenge; ++k) {
        const auto b = static_cast<unsigned char>(s[i + k]);
        if ((b & 0xC0) != 0x80) { ++i; return false; }
        cp = (cp << 6) | (b & 0x3F);
    }
    if (cp < minimum || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) { ++i; return false; }
    i += laenge;
    return true;
}

char32_t klein(char32_t cp) {
    if (cp >= 'A' && cp <= 'Z') return cp + 0x20;
    if (cp >= 0xC0 && cp <= 0xDE && cp != 0xD7) return cp + 0x20;
    switch (cp) {
        case 0x0160: return 0x0161;  // Š
        case 0x0152: return 0x0153;  // Œ
        case 0x017D: return 0x017E;  // Ž
        case 0x0178: return 0x00FF;  // Ÿ
        default: return cp;
    }
}

// Keys are nearly always ASCII and need no decoding: lower-cases in place and
// says whether every byte was ASCII. A table, not a comparison per byte, since
// this runs for every key looked up.
bool asciiFalten(char* text, std::size_t laenge) {
    static constexpr auto klein = [] {
        std::array<unsigned char, 256> t{};
        for (unsigned i = 0; i < 256; ++i) t[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i + 0x20 : i);
        return t;
    }();
    unsigned alle = 0;
    for (std::size_t i = 0; i < laenge; ++i) {
        const auto b = static_cast<unsigned char>(text[i]);
        alle |= b;
        text[i] = static_cast<char>(klein[b]);
    }
    return (alle & 0x80) == 0;
}

// How many bytes at the start are ASCII: a file is mostly runs of them, copied whole.
std::size_t asciiLaenge(std::string_view s) {
    std::size_t n = 0;
    while (n < s.size() && static_cast<unsigned char>(s[n]) < 0x80) ++n;
    return n;
}

}  // namespace

Gefaltet::Gefaltet(std::string_view text) {
    if (text.size() <= kurz_.size()) {
        std::copy(text.begin(), text.end(), kurz_.begin());
        laenge_ = text.size();
        if (asciiFalten(kurz_.data(), laenge_)) return;
    }
    lang_ = faltung(text);  // never empty: an empty text is folded in place
}

std::string cp1252NachUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size();) {
        const std::size_t ascii = asciiLaenge(bytes.substr(i));
        text.append(bytes.substr(i, ascii));
        i += ascii;
        if (i == bytes.size()) break;
        const auto b = static_cast<unsigned char>(bytes[i++]);
        anhaengen(text, b < 0xA0 ? obereSteuerzeichen[b - 0x80] : b);
    }
    return text;
}

std::string utf8NachCp1252(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t ascii = asciiLaenge(text.substr(i));
        bytes.append(text.substr(i, ascii));
        i += ascii;
        if (i == text.size()) break;
        char32_t cp = 0;
        if (!naechsterCodepunkt(text, i, cp)) {
            bytes.push_back('?');
            continue;
        }
        if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) {
            bytes.push_back(static_cast<char>(cp));
            continue;
        }
        char ersatz = '?';
        for (std::size_t k = 0; k < obereSteuerzeichen.size(); ++k) {
            if (obereSteuerzeichen[k] == cp) ersatz = static_cast<char>(0x80 + k);
        }
        bytes.push_back(ersatz);
    }
    return bytes;
}

bool istGueltigesUtf8(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size();) {
        i += asciiLaenge(bytes.substr(i));
        if (i == bytes.size()) break;
        char32_t cp = 0;
        if (!naechsterCodepunkt(bytes, i, cp)) return false;
    }
    return true;
}

std::string dateiTextDekodieren(std::string_view bytes) {
    constexpr std::string_view bom = "\xEF\xBB\xBF";
    if (bytes.starts_with(bom)) {
        bytes.remove_prefix(bom.size());
        if (istGueltigesUtf8(bytes)) return std::string(bytes);
        std::string text;  // damaged UTF-8: keep what is readable
        for (std::size_t i = 0; i < bytes.size();) {
            char32_t cp = 0;
            anhaengen(text, naechsterCodepunkt(bytes, i, cp) ? cp : Ersatzzeichen);
        }
        return text;
    }
    if (istGueltigesUtf8(bytes)) return std::string(bytes);
    return cp1252NachUtf8(bytes);
}

std::vector<std::string> dateiZeilen(std::string_view bytes) {
    const std::string text = dateiTextDekodieren(bytes);
    std::vector<std::string> zeilen;
    std::size_t anfang = 0;
    while (anfang < text.size()) {
        const auto ende = text.find_first_of("\r\n", anfang);
        if (ende == std::string::npos) {
            zeilen.push_back(text.substr(anfang));
            break;
        }
        zeilen.push_back(text.substr(anfang, ende - anfang));
        anfang = ende + (text.compare(ende, 2, "\r\n") == 0 ? 2 : 1);
    }
    return zeilen;
}

std::string faltung(std::string_view text) {
    std::string ergebnis(text);
    if (asciiFalten(ergebnis.data(), ergebnis.size())) return ergebnis;
    ergebnis.clear();
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t anfang = i;
        char32_t cp = 0;
        if (naechsterCodepunkt(text, i, cp)) anhaengen(ergebnis, klein(cp));
        else ergebnis.append(text.substr(anfang, i - anfang));
    }
    return ergebnis;
}

bool gleichOhneGrossschreibung(std::string_view a, std::string_view b) {
    return faltung(a) == faltung(b);
}

std::string ersteZeichen(std::string_view text, std::size_t zeichen) {
    std::size_t i = 0;
    for (std::size_t n = 0; n < zeichen && i < text.size(); ++n) {
        char32_t cp = 0;
        naechsterCodepunkt(text, i, cp);
    }
    return std::string(text.substr(0, i));
}

}  // namespace settings

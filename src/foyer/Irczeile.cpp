#include "Irczeile.h"

#include <algorithm>

namespace foyer {

namespace {

const std::string leer;

char klein(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool folgebyte(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

}  // namespace

const std::string& Irczeile::param(std::size_t i) const { return i < parameter.size() ? parameter[i] : leer; }

std::optional<Irczeile> zeileLesen(std::string_view zeile) {
    Irczeile z;
    auto wort = [&zeile]() {
        const auto ende = zeile.find(' ');
        std::string_view w = zeile.substr(0, ende);
        zeile = ende == std::string_view::npos ? std::string_view() : zeile.substr(ende + 1);
        while (!zeile.empty() && zeile.front() == ' ') zeile.remove_prefix(1);
        return w;
    };
    while (!zeile.empty() && zeile.front() == ' ') zeile.remove_prefix(1);
    if (!zeile.empty() && zeile.front() == '@') wort();  // message tags are not ours to read
    if (!zeile.empty() && zeile.front() == ':') {
        const std::string_view praefix = wort().substr(1);
        z.absender = std::string(praefix.substr(0, praefix.find_first_of("!@")));
    }
    const std::string_view befehl = wort();
    if (befehl.empty()) return std::nullopt;
    z.befehl.reserve(befehl.size());
    for (const char c : befehl) z.befehl += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    while (!zeile.empty()) {
        if (zeile.front() == ':' || z.parameter.size() + 1 == MaxParameter) {
            if (zeile.front() == ':') zeile.remove_prefix(1);
            z.parameter.emplace_back(zeile);
            break;
        }
        z.parameter.emplace_back(wort());
    }
    return z;
}

std::vector<std::string> Zeilenpuffer::anhaengen(std::string_view bytes) {
    std::vector<std::string> zeilen;
    while (!bytes.empty()) {
        const auto ende = bytes.find_first_of("\r\n");
        const std::string_view stueck = bytes.substr(0, ende);
        if (!ueberlang_) {
            if (offen_.size() + stueck.size() > MaxZeile) {
                ueberlang_ = true;
                offen_.clear();
            } else {
                offen_ += stueck;
            }
        }
        if (ende == std::string_view::npos) break;
        if (ueberlang_) {
            ++verworfen_;
            ueberlang_ = false;
        } else if (!offen_.empty()) {
            zeilen.push_back(std::move(offen_));
        }
        offen_.clear();
        bytes.remove_prefix(ende + 1);
    }
    return zeilen;
}

void Zeilenpuffer::leeren() {
    offen_.clear();
    ueberlang_ = false;
}

std::string sendezeile(std::string_view text) {
    std::string zeile(text);
    std::replace_if(zeile.begin(), zeile.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
    if (zeile.size() > MaxZeile) {
        std::size_t laenge = MaxZeile;
        while (laenge > 0 && folgebyte(zeile[laenge])) --laenge;
        zeile.resize(laenge);
    }
    zeile += '\r';
    return zeile;
}

bool gleicherNick(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return klein(x) == klein(y); });
}

std::string utf8Anfang(std::string_view text, std::size_t zeichen) {
    std::size_t pos = 0;
    for (std::size_t n = 0; n < zeichen && pos < text.size(); ++n) {
        ++pos;
        while (pos < text.size() && folgebyte(text[pos])) ++pos;
    }
    return std::string(text.substr(0, pos));
}

}  // namespace foyer

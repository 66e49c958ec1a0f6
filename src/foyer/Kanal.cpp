#include "Kanal.h"

#include "Irczeile.h"

namespace foyer {

std::string kanalname(std::string_view raum) { return "+" + std::string(raum); }

std::string tischkanal(int nummer) { return "+Tisch_" + std::to_string(nummer); }

std::optional<int> zahlLesen(std::string_view text, int obergrenze) {
    // "03" would name table 3 under a second spelling.
    if (text.empty() || text.size() > 9 || (text.size() > 1 && text[0] == '0')) return std::nullopt;
    int wert = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') return std::nullopt;
        wert = wert * 10 + (c - '0');
    }
    if (wert > obergrenze) return std::nullopt;
    return wert;
}

std::optional<int> tischnummer(std::string_view kanal) {
    constexpr std::string_view kopf = "+Tisch_";
    if (kanal.size() <= kopf.size() || !gleicherNick(kanal.substr(0, kopf.size()), kopf)) return std::nullopt;
    const auto nummer = zahlLesen(kanal.substr(kopf.size()), MaxTischnummer);
    if (!nummer || *nummer < 1) return std::nullopt;
    return nummer;
}

}  // namespace foyer

#include "RegelDatei.h"

#include <charconv>
#include <fstream>
#include <sstream>

namespace app {

namespace {
std::string_view trimmen(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r')) s.remove_suffix(1);
    return s;
}

bool gleichOhneGross(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const auto klein = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
        if (klein(a[i]) != klein(b[i])) return false;
    }
    return true;
}

// The leading integer of a value, as the private-profile reader takes it.
std::optional<int> zahl(std::string_view s) {
    int wert = 0;
    const auto [ende, ec] = std::from_chars(s.data(), s.data() + s.size(), wert);
    if (ec != std::errc() || ende == s.data()) return std::nullopt;
    return wert;
}
}  // namespace

engine::RegelOptionen regelnAusText(std::string_view text) {
    engine::RegelOptionen o;
    if (text.substr(0, 3) == "\xEF\xBB\xBF") text.remove_prefix(3);
    bool imAbschnitt = false;
    while (!text.empty()) {
        const auto ende = text.find('\n');
        const std::string_view zeile = trimmen(text.substr(0, ende));
        text = ende == std::string_view::npos ? std::string_view() : text.substr(ende + 1);
        if (zeile.empty() || zeile.front() == ';') continue;
        if (zeile.front() == '[') {
            const auto zu = zeile.find(']');
            imAbschnitt = zu != std::string_view::npos && gleichOhneGross(trimmen(zeile.substr(1, zu - 1)), "Optionen");
            continue;
        }
        const auto gleich = zeile.find('=');
        if (!imAbschnitt || gleich == std::string_view::npos) continue;
        const std::string_view schluessel = trimmen(zeile.substr(0, gleich));
        const auto wert = zahl(trimmen(zeile.substr(gleich + 1)));
        if (!wert) continue;
        for (const auto& e : engine::regelSchluessel())
            if (gleichOhneGross(schluessel, e.schluessel)) o.*(e.gespeichert) = *wert;
    }
    return o;
}

std::optional<engine::RegelOptionen> regelDateiLesen(const std::string& pfad, std::string& fehler) {
    std::ifstream datei(pfad, std::ios::binary);
    if (!datei) {
        fehler = "Die Regeldatei " + pfad + " kann nicht gelesen werden.";
        return std::nullopt;
    }
    std::ostringstream inhalt;
    inhalt << datei.rdbuf();
    return regelnAusText(inhalt.str());
}

}  // namespace app

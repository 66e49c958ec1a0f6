#include "Zeilen.h"

#include <algorithm>
#include <charconv>

#include "settings/Zeichensatz.h"

namespace savegame {

namespace {

std::string_view getrimmt(std::string_view s) {
    const auto anfang = s.find_first_not_of(" \t");
    if (anfang == std::string_view::npos) return {};
    return s.substr(anfang, s.find_last_not_of(" \t") - anfang + 1);
}

bool gleich(std::string_view a, std::string_view b) { return settings::gleichOhneGrossschreibung(a, b); }

}  // namespace

void Zeilenschreiber::zahl(int wert) { text_ += std::to_string(wert) + "\r\n"; }

void Zeilenschreiber::wahr(bool wert) { text_ += wert ? "True\r\n" : "False\r\n"; }

void Zeilenschreiber::text(std::string_view wert) {
    std::string zeile(wert);
    std::replace(zeile.begin(), zeile.end(), '\r', ' ');
    std::replace(zeile.begin(), zeile.end(), '\n', ' ');
    text_ += zeile + "\r\n";
}

std::string Zeilenschreiber::bytes() const { return settings::utf8NachCp1252(text_); }

Zeilenleser::Zeilenleser(std::string_view bytes) : zeilen_(settings::dateiZeilen(bytes)) {}

const std::string* Zeilenleser::naechsteZeile() {
    if (fehler_ || naechste_ >= zeilen_.size()) {
        fehler_ = true;
        return nullptr;
    }
    return &zeilen_[naechste_++];
}

bool Zeilenleser::zahl(int& wert) {
    const std::string* zeile = naechsteZeile();
    if (!zeile) return false;
    std::string_view z = getrimmt(*zeile);
    if (z.starts_with('+')) z.remove_prefix(1);
    int gelesen = 0;
    const auto [ende, fehler] = std::from_chars(z.data(), z.data() + z.size(), gelesen);
    if (z.empty() || fehler != std::errc() || ende != z.data() + z.size()) {
        fehler_ = true;
        return false;
    }
    wert = gelesen;
    return true;
}

bool Zeilenleser::wahr(bool& wert) {
    const std::string* zeile = naechsteZeile();
    if (!zeile) return false;
    const std::string_view z = getrimmt(*zeile);
    int zahl = 0;
    const auto [ende, fehler] = std::from_chars(z.data(), z.data() + z.size(), zahl);
    const bool istZahl = !z.empty() && fehler == std::errc() && ende == z.data() + z.size();
    if (gleich(z, "True") || gleich(z, "Wahr") || (istZahl && zahl != 0)) wert = true;
    else if (gleich(z, "False") || gleich(z, "Falsch") || istZahl) wert = false;
    else fehler_ = true;
    return !fehler_;
}

bool Zeilenleser::text(std::string& wert) {
    const std::string* zeile = naechsteZeile();
    if (!zeile) return false;
    wert = *zeile;
    return true;
}

}  // namespace savegame

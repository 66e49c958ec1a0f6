#include "Ergebnisdatei.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace services {

namespace {

std::string zahlen(const engine::ProSitz<int>& werte) {
    std::string s;
    for (const engine::Sitz sitz : engine::alleSitze) s += ";" + std::to_string(werte[sitz]);
    return s;
}

bool gleichOhneGross(char a, char b) {
    auto klein = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return klein(a) == klein(b);
}

bool beginntMit(std::string_view text, std::string_view anfang) {
    return text.size() >= anfang.size() && std::equal(anfang.begin(), anfang.end(), text.begin(), gleichOhneGross);
}

bool endetMit(std::string_view text, std::string_view ende) {
    return text.size() >= ende.size() && std::equal(ende.begin(), ende.end(), text.end() - static_cast<std::ptrdiff_t>(ende.size()), gleichOhneGross);
}

}  // namespace

std::string feldname(std::string_view name) {
    std::string aus;
    std::size_t zeichen = 0;
    for (std::size_t i = 0; i < name.size() && zeichen < MaxNamenslaenge; ++i) {
        const auto c = static_cast<unsigned char>(name[i]);
        if (c < 0x20 || c == 0x7f || c == ';' || c == ',') {
            aus += ' ';
            ++zeichen;
            continue;
        }
        // A UTF-8 sequence stays whole and counts as one character.
        std::size_t laenge = c < 0x80 ? 1 : c >= 0xf0 ? 4 : c >= 0xe0 ? 3 : c >= 0xc0 ? 2 : 1;
        laenge = std::min(laenge, name.size() - i);
        aus.append(name.substr(i, laenge));
        i += laenge - 1;
        ++zeichen;
    }
    const auto anfang = aus.find_first_not_of(' ');
    if (anfang == std::string::npos) return {};
    return aus.substr(anfang, aus.find_last_not_of(' ') - anfang + 1);
}

std::string ergebnisdateiText(const Turnierergebnis& e) {
    std::array<char, 40> datum{};
    std::snprintf(datum.data(), datum.size(), "%04d-%02d-%02d;%02d:%02d:%02d", e.ende.jahr, e.ende.monat, e.ende.tag,
                  e.ende.stunde, e.ende.minute, e.ende.sekunde);
    std::string text = "RPPT12;" + feldname(e.programm) + "\r\n";
    text += "Spieler;" + feldname(e.spieler) + "\r\n";
    text += std::string("Datum;") + datum.data() + "\r\n";
    text += "Regeln;";
    bool erste = true;
    for (const engine::RegelSchluessel& r : engine::regelSchluessel()) {
        if (!erste) text += ',';
        erste = false;
        text += std::string(r.schluessel) + "=" + std::to_string(engine::regelWert(e.regeln, r));
    }
    text += "\r\n";
    for (std::size_t i = 0; i < e.spiele.size(); ++i) text += "Spiel;" + std::to_string(i + 1) + zahlen(e.spiele[i]) + "\r\n";
    text += "Summe" + zahlen(e.summen) + "\r\n";
    return text;
}

std::vector<std::string> zeilenVon(std::string_view bytes) {
    std::vector<std::string> zeilen;
    std::size_t anfang = 0;
    while (anfang < bytes.size()) {
        std::size_t ende = bytes.find('\n', anfang);
        const bool letzte = ende == std::string_view::npos;
        if (letzte) ende = bytes.size();
        std::string_view zeile = bytes.substr(anfang, ende - anfang);
        if (!zeile.empty() && zeile.back() == '\r') zeile.remove_suffix(1);
        zeilen.emplace_back(zeile);
        anfang = ende + 1;
    }
    return zeilen;
}

std::string mailrumpf(const std::vector<std::string>& zeilen) {
    std::string rumpf = "<BEGINN>";
    for (const std::string& z : zeilen) rumpf += z + '\r';
    return rumpf + "<ENDE>";
}

std::string spielerVon(const std::vector<std::string>& zeilen) {
    for (const std::string& z : zeilen)
        if (z.rfind("Spieler;", 0) == 0) return feldname(std::string_view(z).substr(8));
    return {};
}

bool istErgebnisdatei(std::string_view dateiname) {
    return dateiname.size() >= 10 && beginntMit(dateiname, "RPPT12") && endetMit(dateiname, ".D4T");
}

engine::RegelOptionen turnierregeln(int spiele) {
    engine::RegelOptionen r;
    r.abrOption = 2;
    r.endeNach = spiele;
    r.vhSolo = -1;
    return r;
}

}  // namespace services

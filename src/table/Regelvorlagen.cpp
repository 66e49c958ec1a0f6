#include "Regelvorlagen.h"

#include <charconv>

#include "settings/Zeichensatz.h"

namespace table {

namespace {

const engine::RegelSchluessel* eintrag(const std::string& schluessel) {
    for (const auto& r : engine::regelSchluessel())
        if (settings::gleichOhneGrossschreibung(schluessel, r.schluessel)) return &r;
    return nullptr;
}

int vergleichswert(const engine::RegelSchluessel& r, int wert) { return r.schalter ? (wert == -1 ? -1 : 0) : wert; }

}  // namespace

bool istRegel(const std::string& schluessel) { return eintrag(schluessel) != nullptr; }

// The reasons for each value stand in the README ("Regelvorlagen").
const std::vector<Regelvorlage>& festeVorlagen() {
    static const std::vector<Regelvorlage> vorlagen{
        {"Turnierregeln",
         {{"Abr_Option", 2},         {"Ende_nach", 24},         {"Vorhand", 0},          {"Kontra", 1},
          {"Limit", 2},              {"HerzZehn", 0},           {"Joker", 0},            {"Solis", -1},
          {"Solo", -1},              {"Vh_Solo", -1},           {"Hh_n_Solo", 0},        {"DaBu_Solo", 0},
          {"Bockrunden", 0},         {"Sopu_Fuchs", 0},         {"Sopu_doppelfuchs", 0}, {"Sopu_karlchen", -1},
          {"Sopu_doppelkarlchen", 0}, {"Sopu_rupa_b_Solo", 0},  {"Sopu_Dollenschlag", 0}, {"Sopu_Herzstich", 0},
          {"Neunerwerfen", 0},       {"Koenigewerfen", 0},      {"Armut", 0},            {"Scharfer_Rupa", 0},
          {"Zwei_Schweine", 0},      {"Schweine_ansagen", 0},   {"Schweine_b_TrSolo", 0}, {"Supersau", 0},
          {"Stille_befoerderung", 0}}},
        {"Einsteiger",
         {{"Abr_Option", 2},         {"Ende_nach", 8},          {"Vorhand", 0},          {"Kontra", 5},
          {"Limit", 0},              {"HerzZehn", -1},          {"Joker", 0},            {"Solis", -1},
          {"Solo", 0},               {"Vh_Solo", -1},           {"Hh_n_Solo", 0},        {"DaBu_Solo", 0},
          {"Bockrunden", 0},         {"Sopu_Fuchs", 0},         {"Sopu_doppelfuchs", 0}, {"Sopu_karlchen", 0},
          {"Sopu_doppelkarlchen", 0}, {"Sopu_rupa_b_Solo", 0},  {"Sopu_Dollenschlag", 0}, {"Sopu_Herzstich", 0},
          {"Neunerwerfen", -1},      {"Koenigewerfen", 0},      {"Armut", -1},           {"Scharfer_Rupa", 0},
          {"Zwei_Schweine", 0},      {"Schweine_ansagen", 0},   {"Schweine_b_TrSolo", 0}, {"Supersau", 0},
          {"Stille_befoerderung", 0}}},
    };
    return vorlagen;
}

engine::RegelOptionen anwenden(engine::RegelOptionen regeln, const Regelvorlage& vorlage) {
    for (const auto& [schluessel, wert] : vorlage.werte)
        if (const auto* r = eintrag(schluessel)) regeln.*(r->gespeichert) = wert;
    return regeln;
}

bool passt(const engine::RegelOptionen& regeln, const Regelvorlage& vorlage) {
    if (vorlage.werte.empty()) return false;
    for (const auto& [schluessel, wert] : vorlage.werte) {
        const auto* r = eintrag(schluessel);
        if (r && vergleichswert(*r, regeln.*(r->gespeichert)) != vergleichswert(*r, wert)) return false;
    }
    return true;
}

Regelvorlage hausregeln(const engine::RegelOptionen& regeln) {
    Regelvorlage v{"Hausregeln (eigene)", {}};
    for (const auto& r : engine::regelSchluessel()) v.werte.emplace_back(std::string(r.schluessel), regeln.*(r.gespeichert));
    return v;
}

std::string hausregelnText(const Regelvorlage& vorlage) {
    std::string text;
    for (const auto& [schluessel, wert] : vorlage.werte) text += schluessel + "=" + std::to_string(wert) + ";";
    return text;
}

Regelvorlage hausregelnAusText(const std::string& text) {
    Regelvorlage v{"Hausregeln (eigene)", {}};
    std::size_t anfang = 0;
    while (anfang < text.size()) {
        const std::size_t ende = std::min(text.find(';', anfang), text.size());
        const std::string teil = text.substr(anfang, ende - anfang);
        anfang = ende + 1;
        const std::size_t gleich = teil.find('=');
        if (gleich == std::string::npos) continue;
        const auto* r = eintrag(teil.substr(0, gleich));
        int wert = 0;
        const char* zahl = teil.data() + gleich + 1;
        const auto [rest, fehler] = std::from_chars(zahl, teil.data() + teil.size(), wert);
        if (!r || fehler != std::errc() || rest != teil.data() + teil.size()) continue;
        v.werte.emplace_back(std::string(r->schluessel), wert);
    }
    return v;
}

}  // namespace table

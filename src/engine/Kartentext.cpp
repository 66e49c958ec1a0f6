#include "Kartentext.h"

#include <array>

#include "Karte.h"

namespace engine {

namespace {
constexpr std::array<std::string_view, 5> farbenFranz{"", "Karo", "Herz", "Pik", "Kreuz"};
constexpr std::array<std::string_view, 5> farbenDeutsch{"", "Schellen", "Rot", "Grün", "Eichel"};
constexpr std::array<std::string_view, 7> werteFranz{"", "Neun", "Buben", "Dame", "König", "Zehn", "As"};
constexpr std::array<std::string_view, 7> werteDeutsch{"", "Neun", "Unter", "Ober", "König", "Zehn", "Daus"};
}  // namespace

std::string_view farbwort(int farbe, bool franzoesisch) {
    if (farbe < 1 || farbe > 4) return "";
    return (franzoesisch ? farbenFranz : farbenDeutsch)[static_cast<std::size_t>(farbe)];
}

std::string_view wertwort(int code, bool franzoesisch) {
    if (istJoker(code)) return "Joker";
    if (code < 1 || code > 24) return "";
    return (franzoesisch ? werteFranz : werteDeutsch)[static_cast<std::size_t>(rangVonCode(code))];
}

std::string kartenname(int code, bool franzoesisch) {
    if (istJoker(code)) return "Joker";
    if (code < 1 || code > 24) return "";
    std::string name(farbwort(farbeVonCode(code), franzoesisch));
    name += '-';
    name += wertwort(code, franzoesisch);
    return name;
}

std::string spieltypName(int spieltyp, bool franzoesisch) {
    switch (spieltyp) {
        case Normalspiel: return "Normalspiel";
        case HerzSolo:
        case PikSolo:
        case KreuzSolo: return std::string(farbwort(spieltyp, franzoesisch)) + "-Solo";
        case BubenSolo: return franzoesisch ? "Buben-Solo" : "Unter-Solo";
        case DamenSolo: return franzoesisch ? "Damen-Solo" : "Ober-Solo";
        case DamenBubenSolo: return franzoesisch ? "Damen-Buben-Solo" : "Ober-Unter-Solo";
        case SoloOhneTrumpf: return "Solo ohne Trumpf";
        default: return "";
    }
}

std::string soloName(int spieltyp, bool franzoesisch) {
    if (spieltyp == Normalspiel) return std::string(farbwort(Karo, franzoesisch)) + "-Solo";
    return spieltypName(spieltyp, franzoesisch);
}

Genus genusVon(int code, bool franzoesisch) {
    if (istJoker(code)) return Genus::Maskulin;
    switch (rangVonCode(code)) {
        case Neun:
        case Zehn: return Genus::Feminin;
        case Dame: return franzoesisch ? Genus::Feminin : Genus::Maskulin;
        case As: return Genus::Neutrum;  // das As, das Daus
        default: return Genus::Maskulin;  // Bube/Unter, König
    }
}

}  // namespace engine

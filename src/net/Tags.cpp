#include "Tags.h"

#include <array>
#include <utility>

namespace net {

Hostnachricht hostnachricht(std::string_view t, int& sitz) {
    using H = Hostnachricht;
    sitz = 0;
    if (t.size() == 5 && (t.substr(0, 4) == "Name" || t.substr(0, 4) == "Gpkt")) {
        const char c = t[4];
        const bool name = t[0] == 'N';
        if (c >= (name ? '2' : '1') && c <= '4') {
            sitz = c - '0';
            return name ? H::Name : H::Gpkt;
        }
    }
    static constexpr std::array<std::pair<std::string_view, H>, 38> tabelle{{
        {tag::CompN, H::CompN},         {tag::Netzt, H::Netzt},         {tag::Serve, H::Serve},
        {tag::NameFrage, H::NameFrage}, {tag::Waite, H::Waite},         {tag::NochS, H::NochS},
        {tag::Einst, H::Einst},         {tag::Abrec, H::Abrec},         {tag::EndeN, H::EndeN},
        {tag::EndeB, H::EndeB},         {tag::Lfdsp, H::Lfdsp},         {tag::Verte, H::Verte},
        {tag::Start, H::Start},         {tag::Neuer, H::Neuer},         {tag::Gesun, H::Gesun},
        {tag::NeunFrage, H::NeunFrage}, {tag::KoenFrage, H::KoenFrage}, {tag::ArmuFrage, H::ArmuFrage},
        {tag::Neune, H::Neune},         {tag::Koeni, H::Koeni},         {tag::Armut, H::Armut},
        {tag::HochFrage, H::HochFrage}, {tag::Hochz, H::Hochz},         {tag::SoloFrage, H::SoloFrage},
        {tag::SoloAusruf, H::SoloAusruf}, {tag::Vorha, H::Vorha},       {tag::EVorh, H::EVorh},
        {tag::Vorbe, H::Vorbe},         {tag::SBere, H::SBere},         {tag::ABere, H::ABere},
        {tag::KartFrage, H::KartFrage}, {tag::Karte, H::Karte},         {tag::Kontr, H::Kontr},
        {tag::Limit, H::Limit},         {tag::Endeb, H::Endeb},         {tag::NeueP, H::NeueP},
        {tag::Abmel, H::Abmel},         {tag::NoPas, H::NoPas},
    }};
    for (const auto& [name, art] : tabelle)
        if (name == t) return art;
    return t == tag::Chat ? H::Chat : H::Unbekannt;
}

Gastnachricht gastnachricht(std::string_view t) {
    using G = Gastnachricht;
    static constexpr std::array<std::pair<std::string_view, G>, 14> tabelle{{
        {tag::NameAntwort, G::Name}, {tag::CBere, G::CBere}, {tag::Ready, G::Ready}, {tag::Stich, G::Stich},
        {tag::Gesun, G::Gesun},      {tag::Neune, G::Neune}, {tag::Koeni, G::Koeni}, {tag::Armut, G::Armut},
        {tag::Hochz, G::Hochz},      {tag::Antwo, G::Antwo}, {tag::Karte, G::Karte}, {tag::Kontr, G::Kontr},
        {tag::Limit, G::Limit},      {tag::Chat, G::Chat},
    }};
    for (const auto& [name, art] : tabelle)
        if (name == t) return art;
    return G::Unbekannt;
}

std::string_view neugebeFrage(int grund) {
    switch (grund) {
        case 1: return tag::NeunFrage;
        case 2: return tag::KoenFrage;
        case 3: return tag::ArmuFrage;
        default: return {};
    }
}

std::string_view neugebeAntwort(int grund) {
    switch (grund) {
        case 1: return tag::Neune;
        case 2: return tag::Koeni;
        case 3: return tag::Armut;
        default: return {};
    }
}

}  // namespace net

#include "Handverteilung.h"

#include <algorithm>

#include "Tischtexte.h"
#include "engine/Karte.h"
#include "engine/Zufall.h"

namespace table {

using engine::Sitz;

Handverteilung::Handverteilung(int kartenanzahl, bool joker) : kartenanzahl_(kartenanzahl == 40 ? 40 : 48) {
    const bool ohneNeunen = kartenanzahl_ == 40;
    for (int code = 1; code < engine::JokerCode; ++code) {
        if (engine::rangVonCode(code) == engine::Neun && ohneNeunen) continue;
        stapel_.push_back(code);
        const bool jokerStattNeun = joker && code == engine::kartencode(engine::Karo, engine::Neun);
        stapel_.push_back(jokerStattNeun ? engine::JokerCode : code);
    }
    ordnen();
}

void Handverteilung::ordnen() {
    // Kreuz, Pik, Herz, Karo from the As down, as a player sorts a fan; the Joker
    // stands in for a Karo-Neun and comes last.
    auto rang = [](int code) {
        if (code == engine::JokerCode) return 100;
        return (4 - engine::farbeVonCode(code)) * 10 + (6 - engine::rangVonCode(code));
    };
    std::stable_sort(stapel_.begin(), stapel_.end(), [&](int a, int b) { return rang(a) < rang(b); });
}

bool Handverteilung::voll(Sitz sitz) const { return static_cast<int>(haende_[sitz].size()) >= handgroesse(); }

bool Handverteilung::geben(std::size_t index, Sitz sitz) {
    if (index >= stapel_.size() || voll(sitz)) return false;
    haende_[sitz].push_back(stapel_[index]);
    stapel_.erase(stapel_.begin() + static_cast<std::ptrdiff_t>(index));
    return true;
}

void Handverteilung::zuruecklegen(Sitz sitz, std::size_t index) {
    std::vector<int>& hand = haende_[sitz];
    if (index >= hand.size()) return;
    stapel_.push_back(hand[index]);
    hand.erase(hand.begin() + static_cast<std::ptrdiff_t>(index));
    ordnen();
}

void Handverteilung::allesZuruecklegen() {
    for (const Sitz s : engine::alleSitze) {
        stapel_.insert(stapel_.end(), haende_[s].begin(), haende_[s].end());
        haende_[s].clear();
    }
    ordnen();
}

void Handverteilung::restZufaellig(engine::Zufallsquelle& zufall) {
    while (!stapel_.empty()) {
        std::vector<Sitz> frei;
        for (const Sitz s : engine::alleSitze)
            if (!voll(s)) frei.push_back(s);
        const auto karte = static_cast<std::size_t>(zufall.ganzzahl(static_cast<int>(stapel_.size())));
        geben(karte, frei[static_cast<std::size_t>(zufall.ganzzahl(static_cast<int>(frei.size())))]);
    }
}

std::string Handverteilung::fehler() const {
    if (stapel_.empty()) return {};
    return texte::NochZuVerteilen + std::to_string(stapel_.size()) + texte::KartenZuVerteilen;
}

engine::Kartenverteilung Handverteilung::verteilung() const {
    engine::Kartenverteilung karten{};
    for (const Sitz s : engine::alleSitze) {
        const auto& hand = haende_[s];
        for (std::size_t i = 0; i < hand.size(); ++i)
            karten[static_cast<std::size_t>((s.nr() - 1) * handgroesse()) + i] = hand[i];
    }
    return karten;
}

}  // namespace table

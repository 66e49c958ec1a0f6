#pragma once
// Character 3, "Stark": reservations and the first word on announcements from the
// rule book; the cards, and announcements the rule book would not make, by search
// over the deals that agree with what the seat has seen.
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Begruendung.h"
#include "Suche.h"
#include "Tischwissen.h"
#include "engine/Entscheider.h"

namespace players {

// Games played to the end per millisecond of thinking time on two cores, measured on
// the development machine: the budget counts games, so a seed and a budget give the
// same cards whatever else the machine is doing.
inline constexpr int SimulationenJeMs = 40;
inline constexpr int StandardBedenkzeit = 500;  // ms
int simulationenFuer(int bedenkzeitMs);

struct Starkart {
    Sucheinstellung suche;
    bool ansagesuche = true;  // search decides Re/Kontra and limits the rule book leaves
};

// Why the search chose its card, for the hint at the table.
struct Kartenerklaerung {
    int karte = 0;
    int regelwerkKarte = 0;     // the rule book's card at the same table
    std::string regelText;      // the sentence of the rule that chose it
    double vorsprung = 0;       // mean points of the card over the rule book's
    int welten = 0;
    bool exakt = false;
};

class Stark final : public engine::Entscheider {
public:
    // `wissen` is the table's knowledge: the rule book's reservations and announcements
    // read it, the search takes only the first trick's number from it. `seed` makes the
    // search repeatable.
    Stark(Tischwissen& wissen, engine::Zufallsquelle& zufall, Begruendungssenke* senke, Starkart art,
          std::uint64_t seed);

    int karteWaehlen(const Spiel& spiel, Sitz sitz) override;
    engine::Vorbehalt vorbehaltWaehlen(const Spiel& spiel, Sitz sitz) override;
    std::optional<engine::Ansage> ansageWaehlen(const Spiel& spiel, Sitz sitz) override;

    // The card with its reasons (the rule book is asked on the same table as well).
    Kartenerklaerung karteErklaeren(const Spiel& spiel, Sitz sitz);

    const Starkart& art() const { return art_; }
    std::uint64_t seed() const { return seed_; }
    // Thinking time of every decision that searched, in milliseconds.
    const std::vector<double>& denkzeiten() const { return denkzeiten_; }

private:
    std::uint64_t seedFuer(const Sicht& sicht) const;

    Tischwissen& wissen_;
    engine::Zufallsquelle& zufall_;
    Begruendungssenke* senke_;
    Starkart art_;
    std::uint64_t seed_;
    std::vector<double> denkzeiten_;
};

// "Diese Karte bringt im Mittel +0,8 Punkte mehr als Herz-As, über 400 mögliche
// Verteilungen", or the rule book's sentence when both chose the same card.
std::string erklaerungText(const Kartenerklaerung& e, const Spiel& spiel, bool franzoesisch);

}  // namespace players

#pragma once
// The statistics per seat name across Partien: games, wins and points, Re and
// Kontra, solos by kind, Hochzeiten, announcements, the best and worst Partie, and
// the course of the last Partie for the chart. Kept as an ini text of its own in
// the per-user folder; reading takes any bytes and never fails.
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "engine/Spiel.h"

namespace table {

struct Quote {
    int anzahl = 0;
    int gewonnen = 0;
    bool operator==(const Quote&) const = default;
};

struct Spielerstatistik {
    std::string name;
    int partien = 0;
    Quote spiele;
    long long punkte = 0;                       // booked points, all games
    Quote re;
    Quote kontra;
    std::array<Quote, 9> solos{};               // by game type 1..8; 0 the silent solo
    Quote hochzeiten;
    Quote ansagen;                              // Re, Kontra and limits; won = kept
    std::optional<int> bestePartie;
    std::optional<int> schlechtestePartie;

    double punkteJeSpiel() const { return spiele.anzahl ? double(punkte) / spiele.anzahl : 0.0; }
    bool operator==(const Spielerstatistik&) const = default;
};

// The running totals after each game of one Partie, per seat.
struct Partieverlauf {
    engine::ProSitz<std::string> namen;
    std::vector<engine::ProSitz<int>> staende;
    bool operator==(const Partieverlauf&) const = default;
};

struct Statistik {
    std::vector<Spielerstatistik> spieler;  // in the order first seen
    Partieverlauf letztePartie;

    // The entry of a name, made when it is new.
    Spielerstatistik& von(const std::string& name);
    const Spielerstatistik* finde(const std::string& name) const;
    // A scored game: what each seat played and whether it got points.
    void spielEintragen(const engine::Spiel& spiel);
    // A finished Partie: its totals and the games' points (rows of the score sheet).
    void partieEintragen(const engine::ProSitz<std::string>& namen, const std::vector<engine::ProSitz<int>>& spiele);

    std::string text() const;
    static Statistik ausText(std::string_view text);
    bool operator==(const Statistik&) const = default;
};

// Running totals from the points of each game.
std::vector<engine::ProSitz<int>> aufsummiert(const std::vector<engine::ProSitz<int>>& spiele);

}  // namespace table

#pragma once
// The rule options: the stored values (as the options file holds them) and the
// rules in force for the running game, copied from the stored values at each deal.
#include <array>
#include <string_view>

namespace engine {

// Stored values, exactly as read from the options file (truth values -1/0).
struct RegelOptionen {
    int abrOption = 2;  // 1 end by points, 2 end by number of games
    int endeBei = 30;
    int endeNach = 24;
    int vorhand = 0;  // 0 random, 1..4 that seat
    int kontra = 5;   // 0 no announcements, n up to and including the n-th trick
    int limit = 5;
    int herzZehn = -1;  // on: the first of two Dollen wins
    int joker = 0;
    int solo = 0;  // compulsory solo (Pflichtsolo)
    int vhSolo = 0;
    int hhNSolo = 0;
    int bockrunden = 0;
    int sopuFuchs = 0;
    int sopuDoppelfuchs = 0;
    int sopuKarlchen = -1;
    int sopuDoppelkarlchen = 0;
    int sopuRupaBSolo = 0;
    int sopuDollenschlag = 0;
    int sopuHerzstich = 0;
    int dabuSolo = 0;
    int neunerwerfen = 0;
    int koenigewerfen = 0;
    int armut = 0;
    int scharferRupa = 0;
    int zweiSchweine = 0;
    int schweineAnsagen = 0;
    int schweineBTrSolo = 0;
    int supersau = 0;
    int stilleBefoerderung = 0;
    int solis = -1;  // solos allowed

    bool operator==(const RegelOptionen&) const = default;
};

// Rules in force for one game.
struct Regeln {
    int abrOption = 2;
    int endeBei = 30;
    int endeNach = 24;
    int vorhand = 0;
    int kontra = 5;
    int limit = 5;
    bool herzZehn = true;
    bool joker = false;
    bool solo = false;
    bool vhSolo = false;
    bool hhNSolo = false;
    bool bockrunden = false;
    bool sopuFuchs = false;
    bool sopuDoppelfuchs = false;
    bool sopuKarlchen = true;
    bool sopuDoppelkarlchen = false;
    bool sopuRupaBSolo = false;
    bool sopuDollenschlag = false;
    bool sopuHerzstich = false;
    bool dabuSolo = false;
    bool neunerwerfen = false;
    bool koenigewerfen = false;
    bool armut = false;
    bool scharferRupa = false;
    bool zweiSchweine = false;
    bool schweineAnsagen = false;
    bool schweineBTrSolo = false;
    bool supersau = false;
    bool stilleBefoerderung = false;
    bool solis = true;
    int kartenanzahl = 48;

    bool operator==(const Regeln&) const = default;
};

// With the Joker the first Dolle is always high, so "Zweite schlägt Erste" (a
// "HerzZehn" other than -1) and the Joker exclude each other. Where both are
// stored, the Dollen rule wins and the Joker is off: choosing "Zweite schlägt
// Erste" in the settings dialog switches the Joker off in the same way.
void jokerAbgleichen(RegelOptionen& gespeichert);

// A switch is in force exactly when its stored value is -1; a stored 1 does not
// count. The Joker is taken over only where jokerAbgleichen leaves it.
Regeln regelnUebernehmen(const RegelOptionen& gespeichert);

// One entry per rule option: its key in the options file and where it lives.
// A switch has `schalter` set, a number has `zahl` set.
struct RegelSchluessel {
    std::string_view schluessel;
    int RegelOptionen::*gespeichert;
    bool Regeln::*schalter;
    int Regeln::*zahl;
    int standard;
};

const std::array<RegelSchluessel, 30>& regelSchluessel();

// Value of a rule in force as the formats write it (-1 for on, 0 for off).
int regelWert(const Regeln& regeln, const RegelSchluessel& eintrag);

}  // namespace engine

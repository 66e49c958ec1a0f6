#include <gtest/gtest.h>

#include "TestHilfen.h"
#include "engine/Sonderpunkte.h"
#include "engine/Stichspiel.h"

using namespace engine;
using testhilfe::positionVon;
using testhilfe::spielMitHaenden;

namespace {
constexpr int KaroNeun = 1, KaroAs = 6, HerzNeun = 7, HerzKoenig = 10, HerzZehn = 11, HerzAs = 12;
constexpr int PikNeun = 13, PikAs = 18, KreuzKoenig = 22, KreuzBube = 20, KreuzDame = 21, KreuzZehn = 23, KreuzAs = 24,
              Joker = 25;

struct Fall {
    const char* name;
    std::array<int, 4> codes;  // played by seats 1..4, seat 1 leading
    bool letzterStich = false;
    void (*regeln)(Spiel&) = nullptr;
    std::vector<std::string> arten;
    int partei = ParteiRe;  // side that receives them
    std::string ersteMeldung;
};

struct Bewertung { std::vector<std::string> arten; std::vector<int> parteien; std::vector<std::string> meldungen; };

// Seats 1 and 2 are Re; the trick is played and judged as trick 1 or as the last one.
Bewertung bewerten(const Fall& f) {
    Spiel spiel = spielMitHaenden(Normalspiel, {{f.codes[0]}, {f.codes[1]}, {f.codes[2]}, {f.codes[3]}});
    spiel.partei[Sitz(1)] = spiel.partei[Sitz(2)] = ParteiRe;
    spiel.partei[Sitz(3)] = spiel.partei[Sitz(4)] = ParteiKontra;
    if (f.regeln) f.regeln(spiel);
    spiel.stich.beginnen(Sitz(1));
    for (int i = 0; i < 4; ++i)
        karteSpielen(spiel, positionVon(spiel, Sitz(i + 1), f.codes[static_cast<std::size_t>(i)]));
    StichProtokoll p;
    p.aufspieler = Sitz(1);
    p.karten = spiel.stich.karten;
    for (int pos : p.karten) p.augen += spiel.deck[pos].augen;
    p.gewinner = stichGewinner(spiel);
    if (f.letzterStich) spiel.stiche.resize(11);
    spiel.stiche.push_back(p);
    std::vector<Meldung> meldungen;
    Bewertung b;
    for (const Sonderpunkt& s : sonderpunkteDesStichs(spiel, static_cast<int>(spiel.stiche.size()), &meldungen)) {
        b.arten.push_back(s.art);
        b.parteien.push_back(s.partei);
    }
    for (const Meldung& m : meldungen) b.meldungen.push_back(m.text);
    return b;
}

// Rule and party set-ups of the rows below.
void ohneKarlchen(Spiel& s) { s.regeln.sopuKarlchen = false; }
void doppelkarlchen(Spiel& s) { s.regeln.sopuDoppelkarlchen = true; }
void fuchsLetzter(Spiel& s) { s.regeln.sopuFuchs = true; }
void doppelfuchs(Spiel& s) { s.regeln.sopuFuchs = s.regeln.sopuDoppelfuchs = true; }
void dullenschlag(Spiel& s) { s.regeln.sopuDollenschlag = true; }
void zweiteDolleHoch(Spiel& s) { s.regeln.sopuDollenschlag = true; s.regeln.herzZehn = false; }
void schweinBei3(Spiel& s) { s.regeln.sopuDollenschlag = true; s.schweineHalter = Sitz(3); }
void schweinBei1(Spiel& s) { s.schweineHalter = Sitz(1); }
void herzstich(Spiel& s) { s.regeln.sopuHerzstich = true; }
void solo(Spiel& s) { s.partei[Sitz(1)] = ParteiSolo; s.partei[Sitz(2)] = ParteiKontra; }
void soloMitDoppelkopf(Spiel& s) {
    solo(s);
    s.steuerung[Sitz(1)] = Steuerung::Computer;
    s.regeln.sopuRupaBSolo = true;
}
}  // namespace

TEST(Sonderpunkte, Faelle) {
    const std::string fuer = "\nSonderpunkt für ", kontra = "die Kontra-Partei";
    const std::array<int, 4> doppelkopf{KreuzAs, KreuzZehn, KreuzAs, KreuzZehn};
    const Fall faelle[] = {
        {"Doppelkopf: 42 Augen", doppelkopf, false, nullptr, {"Doppelkopf"}, ParteiRe, "Doppelkopf!" + fuer + "Sie"},
        {"37 Augen: nichts", {KreuzAs, PikAs, HerzAs, KreuzKoenig}, false, nullptr, {}, ParteiRe, ""},
        {"Fuchs des Gegners gefangen", {KreuzDame, KaroNeun, KaroAs, KaroNeun}, false, nullptr, {"Fuchs gefangen"},
         ParteiRe, "Gefangener Fuchs!" + fuer + "Sie"},
        {"Fuchs des Partners: nichts", {KreuzDame, KaroAs, KaroNeun, KaroNeun}, false, nullptr, {}, ParteiRe, ""},
        {"zwei Füchse gefangen", {KreuzDame, KaroNeun, KaroAs, KaroAs}, false, nullptr,
         {"Fuchs gefangen", "Fuchs gefangen"}, ParteiRe, "Gefangene Füchse!\n2 Sonderpunkte für Sie"},
        {"Kontra fängt", {KaroAs, KaroNeun, KreuzDame, KaroNeun}, false, nullptr, {"Fuchs gefangen"}, ParteiKontra,
         "Gefangener Fuchs!" + fuer + kontra},
        {"Karlchen im letzten Stich", {KaroNeun, KaroAs, KreuzBube, KaroNeun}, true, nullptr,
         {"Fuchs gefangen", "Karlchen"}, ParteiKontra, "Gefangener Fuchs!" + fuer + kontra},
        {"Karlchen nicht im letzten Stich", {KaroNeun, KaroNeun, KreuzBube, KaroNeun}, false, nullptr, {}, ParteiKontra,
         ""},
        {"Karlchen abgeschaltet", {KaroNeun, KaroNeun, KreuzBube, KaroNeun}, true, ohneKarlchen, {}, ParteiKontra, ""},
        {"Doppelkarlchen", {KreuzBube, KreuzBube, KaroNeun, KaroNeun}, true, doppelkarlchen,
         {"Karlchen", "Doppelkarlchen"}, ParteiRe, "Karlchen!" + fuer + "Sie"},
        {"Fuchs letzter Stich", {KaroAs, KaroNeun, KaroNeun, PikNeun}, true, fuchsLetzter, {"Fuchs letzter Stich"},
         ParteiRe, "Fuchs im Stich!" + fuer + "Sie"},
        {"Doppelfuchs", {KaroAs, KaroAs, KaroNeun, PikNeun}, true, doppelfuchs, {"Fuchs letzter Stich", "Doppelfuchs"},
         ParteiRe, "Fuchs im Stich!" + fuer + "Sie"},
        {"Dullenschlag: zweite Dolle schlägt erste", {KaroNeun, KaroNeun, HerzZehn, HerzZehn}, false, zweiteDolleHoch,
         {}, ParteiKontra, ""},
        {"Dullenschlag gegen den Gegner", {KaroNeun, HerzZehn, KaroNeun, HerzZehn}, false, zweiteDolleHoch,
         {"Dullenschlag"}, ParteiKontra, "Geschlagene Dolle im Stich!" + fuer + kontra},
        {"Dolle vom Joker gefangen", {HerzZehn, KaroNeun, Joker, KaroNeun}, false, dullenschlag, {"Dolle gefangen"},
         ParteiKontra, "Gefangene Dolle!" + fuer + kontra},
        {"Schwein schlägt Dolle: gar nichts", {HerzZehn, KreuzAs, KaroAs, KreuzZehn}, false, schweinBei3, {},
         ParteiKontra,
         "Gewinner schlug Dolle mit Schwein! Daher kein Sonderpunkt möglich für den Gewinner des Stichs! Weitere "
         "Prüfung erfolgt hier daher nicht mehr."},
        {"Schwein ist kein Fuchs", {KaroAs, KreuzDame, KaroNeun, KaroNeun}, false, schweinBei1, {}, ParteiRe, ""},
        {"Herzstich", {HerzNeun, HerzKoenig, HerzAs, HerzNeun}, false, herzstich, {"Herzstich"}, ParteiKontra,
         "Herzstich!" + fuer + kontra},
        {"im Solo nichts", doppelkopf, true, solo, {}, ParteiRe, ""},
        {"Doppelkopf im Solo mit Regel", doppelkopf, false, soloMitDoppelkopf, {"Doppelkopf"}, ParteiRe,
         "Doppelkopf!" + fuer + "den Solospieler"},
    };
    for (const Fall& f : faelle) {
        const Bewertung b = bewerten(f);
        EXPECT_EQ(b.arten, f.arten) << f.name;
        for (int p : b.parteien) EXPECT_EQ(p, f.partei) << f.name;
        EXPECT_EQ(b.meldungen.empty() ? std::string() : b.meldungen[0], f.ersteMeldung) << f.name;
    }
}

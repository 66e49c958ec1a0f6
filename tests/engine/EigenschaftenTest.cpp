// Thousands of seeded games per rule set, watched by the referee: every card
// legal, trick winners by the strengths, 240 Augen, parties as the deal and the
// reservations make them, points as value, factor, special points and parties give.
#include <gtest/gtest.h>

#include <array>

#include "engine/Schiedsrichter.h"
#include "engine/Selbstspiel.h"
#include "engine/Vorbehalte.h"
#include "engine/Zufall.h"

using namespace engine;

namespace {

// Plays a random legal card and now and then declares a solo or a Hochzeit and
// announces, so every path of the cycle is taken.
class Wagemut final : public Entscheider {
public:
    explicit Wagemut(Zufallsquelle& zufall) : zufall_(zufall) {}

    int karteWaehlen(const Spiel& spiel, Sitz sitz) override {
        // The cards of the suit to follow when the hand has one, else any card.
        std::array<int, 12> alle{}, bedienen{};
        int nAlle = 0, nBedienen = 0;
        const int farbe = spiel.stich.anzahl > 0 ? spiel.stich.farbeZuBedienen : 0;
        for (int p = spiel.deck.erstePosition(sitz); p <= spiel.deck.letztePosition(sitz); ++p) {
            if (spiel.deck[p].status != InHand) continue;
            alle[static_cast<std::size_t>(nAlle++)] = p;
            if (spiel.deck[p].farbe == farbe) bedienen[static_cast<std::size_t>(nBedienen++)] = p;
        }
        if (nBedienen > 0) return bedienen[static_cast<std::size_t>(zufall_.ganzzahl(nBedienen))];
        return nAlle == 0 ? 0 : alle[static_cast<std::size_t>(zufall_.ganzzahl(nAlle))];
    }
    Vorbehalt vorbehaltWaehlen(const Spiel& spiel, Sitz sitz) override {
        const double r = zufall_.rnd();
        if (hatBeideKreuzDamen(spiel, sitz) && r < 0.6)
            return {Vorbehalt::Hochzeit, Normalspiel, ErsterStich + zufall_.ganzzahl(3)};
        const std::vector<int> arten = erlaubteSoloarten(spiel.regeln);
        if (!arten.empty() && r > 0.9)
            return {Vorbehalt::Solo, arten[static_cast<std::size_t>(zufall_.ganzzahl(static_cast<int>(arten.size())))],
                    KeineHochzeit};
        return {};
    }
    std::optional<Ansage> ansageWaehlen(const Spiel& spiel, Sitz sitz) override {
        const double r = zufall_.rnd();
        if (r < 0.08 && !ansageVerweigert(spiel, sitz, Ansage{})) return Ansage{};
        const Ansage limit{true, zufall_.ganzzahl(4)};
        if (r > 0.97 && !ansageVerweigert(spiel, sitz, limit)) return limit;
        return std::nullopt;
    }

private:
    Zufallsquelle& zufall_;
};

struct Regelsatz { const char* name; void (*setzen)(RegelOptionen&); };

const Regelsatz regelsaetze[] = {
    {"Standard", [](RegelOptionen&) {}},
    {"ohne Neunen, zweite Dolle hoch, Neugeben, Solospieler hat Vorhand, Ende nach Punkten",
     [](RegelOptionen& o) {
         o.scharferRupa = -1;
         o.herzZehn = 0;
         o.koenigewerfen = o.armut = -1;
         o.vhSolo = o.hhNSolo = -1;
         o.abrOption = 1;
         o.endeBei = 20;
     }},
    {"Joker, alle Sonderpunkte, Bock, Schweine, Supersau, Damen-Buben-Solo",
     [](RegelOptionen& o) {
         o.joker = -1;
         o.sopuFuchs = o.sopuDoppelfuchs = o.sopuKarlchen = o.sopuDoppelkarlchen = -1;
         o.sopuRupaBSolo = o.sopuDollenschlag = o.sopuHerzstich = -1;
         o.bockrunden = -1;
         o.zweiSchweine = o.schweineAnsagen = o.schweineBTrSolo = o.supersau = -1;
         o.dabuSolo = -1;
     }},
    {"keine Ansagen, Pflichtsolo, Neunerwerfen",
     [](RegelOptionen& o) {
         o.kontra = 0;
         o.limit = 0;
         o.solo = -1;
         o.endeNach = 8;
         o.neunerwerfen = -1;
     }},
    {"ohne Solos, kurze Fristen, Schweine, Bock",
     [](RegelOptionen& o) {
         o.solis = 0;
         o.kontra = 1;
         o.limit = 2;
         o.zweiSchweine = -1;
         o.bockrunden = -1;
     }},
    {"lange Partie über 96 Spiele, stille Supersau",
     [](RegelOptionen& o) {
         o.endeNach = 200;
         o.endeBei = 150;
         o.joker = -1;
         o.vhSolo = -1;
         o.zweiSchweine = o.supersau = o.stilleBefoerderung = -1;
     }},
};

}  // namespace

TEST(Eigenschaften, ZweitausendSpieleJeRegelsatz) {
    constexpr int Spiele = 2000;
    std::uint64_t seed = 11;
    for (const Regelsatz& satz : regelsaetze) {
        RegelOptionen o;
        satz.setzen(o);
        Spiel spiel;
        for (const Sitz s : alleSitze) spiel.steuerung[s] = Steuerung::Computer;
        SeedZufall zufall(seed), spielerZufall(seed + 1000);
        seed += 7;
        Spielablauf ablauf(spiel, zufall);
        Schiedsrichter schiedsrichter;
        ablauf.beobachterHinzufuegen(&schiedsrichter);
        ablauf.regelOptionenSetzen(o);
        ablauf.neuePartie();
        Wagemut spieler(spielerZufall);
        int solos = 0, hochzeiten = 0, ansagen = 0;
        const Selbstspielbilanz bilanz =
            Selbstspiel(ablauf, ProSitz<Entscheider*>(&spieler)).spielen(Spiele, [&](const Spiel& s) {
                solos += s.solo;
                hochzeiten += s.hochzeiter.has_value();
                ansagen += static_cast<int>(s.ansagen.size());
            });
        EXPECT_EQ(schiedsrichter.spiele(), Spiele) << satz.name;
        EXPECT_EQ(schiedsrichter.fehlerAnzahl(), 0) << satz.name;
        for (const std::string& f : schiedsrichter.fehler()) ADD_FAILURE() << satz.name << ": " << f;
        EXPECT_EQ(bilanz.abgelehnt, 0) << satz.name;
        for (const std::string& g : bilanz.gruende) ADD_FAILURE() << satz.name << ": abgelehnt: " << g;
        // The runs must actually reach the paths they are meant to check.
        EXPECT_GT(hochzeiten, 50) << satz.name;
        if (o.solis) {
            EXPECT_GT(solos, 50) << satz.name;
        }
        if (o.kontra) {
            EXPECT_GT(ansagen, 100) << satz.name;
        }
    }
}

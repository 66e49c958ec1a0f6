// The values Lage gathers before every card, against a plain count over the deck, on
// thousands of moments of seeded games; and the small list and bit helpers behind them.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "Testtisch.h"
#include "engine/Stichspiel.h"
#include "players/Bits.h"
#include "players/EinfacheSpieler.h"
#include "players/Kartenliste.h"
#include "players/Lage.h"
#include "players/Regelwerk.h"
#include "players/Solo.h"

namespace {

using engine::Sitz;

// Zugwerte as the rule book defines them, counted card by card.
players::Zugwerte gezaehlt(const players::Lage& l) {
    players::Zugwerte w;
    const engine::Deck& d = l.spiel.deck;
    for (const Sitz x : engine::alleSitze)
        for (int p = d.erstePosition(x); p <= d.letztePosition(x); ++p) {
            if (d[p].status != engine::InHand) continue;
            const int s = l.staerke(p);
            const auto f = static_cast<std::size_t>(d[p].farbe);
            const bool trumpf = l.istTrumpf(p);
            ++w.karten[x];
            w.hoechsteOffene[f] = std::max(w.hoechsteOffene[f], s);
            if (trumpf) {
                ++w.truempfeImSpiel;
                w.hoechsterTrumpfImSpiel = std::max(w.hoechsterTrumpfImSpiel, s);
            }
            if (x == l.ich) {
                w.eigeneTruempfe += trumpf;
                if (trumpf) w.hoechsterEigenerTrumpf = std::max(w.hoechsterEigenerTrumpf, s);
                ++w.eigeneAnzahl[f];
                if (w.eigeneBeste[f] == 0 || s > l.staerke(w.eigeneBeste[f])) w.eigeneBeste[f] = p;
            } else {
                w.fremdeTruempfe += trumpf;
                if (trumpf) w.hoechsterFremderTrumpf = std::max(w.hoechsterFremderTrumpf, s);
                ++w.fremdeAnzahl[f];
                w.hoechsteFremde[f] = std::max(w.hoechsteFremde[f], s);
                w.fremdeDollen += trumpf && d[p].code == engine::kartencode(engine::Herz, engine::Zehn);
                w.jokerFremd = w.jokerFremd || engine::istJoker(d[p].code);
            }
        }
    w.langeFarbe = l.werte.langeFarbe;
    return w;
}

// Reserves like the rule book (so solos, Schweine and a Supersau come up), plays a
// random legal card, and before each card compares the seat's Lage with the count.
class Pruefer final : public engine::Entscheider {
public:
    explicit Pruefer(std::uint64_t seed) : zufall_(seed), regelwerk_(wissen_, zufall_), zufallsspieler_(zufall_) {}

    int karteWaehlen(const engine::Spiel& spiel, Sitz sitz) override {
        const players::Melder melder(nullptr, sitz, false);
        const players::Lage l(spiel, wissen_, sitz, melder, zufall_);
        const players::Zugwerte soll = gezaehlt(l);
        const auto& ist = l.werte;
        EXPECT_TRUE(ist.karten == soll.karten && ist.truempfeImSpiel == soll.truempfeImSpiel &&
                    ist.eigeneTruempfe == soll.eigeneTruempfe && ist.fremdeTruempfe == soll.fremdeTruempfe &&
                    ist.hoechsterTrumpfImSpiel == soll.hoechsterTrumpfImSpiel &&
                    ist.hoechsterEigenerTrumpf == soll.hoechsterEigenerTrumpf &&
                    ist.hoechsterFremderTrumpf == soll.hoechsterFremderTrumpf && ist.fremdeDollen == soll.fremdeDollen &&
                    ist.jokerFremd == soll.jokerFremd && ist.hoechsteOffene == soll.hoechsteOffene &&
                    ist.hoechsteFremde == soll.hoechsteFremde && ist.fremdeAnzahl == soll.fremdeAnzahl &&
                    ist.eigeneBeste == soll.eigeneBeste && ist.eigeneAnzahl == soll.eigeneAnzahl)
            << "Spiel " << spiel.partie.spielNr << ", Sitz " << sitz.nr() << ", Stich " << spiel.sticheGespielt + 1;
        const std::vector<int> erlaubt = engine::erlaubteKarten(spiel, sitz);
        EXPECT_TRUE(std::equal(l.erlaubt.begin(), l.erlaubt.end(), erlaubt.begin(), erlaubt.end()));
        EXPECT_EQ(l.hand.size(), static_cast<std::size_t>(ist.karten[sitz]));
        ++geprueft;
        return zufallsspieler_.karteWaehlen(spiel, sitz);
    }
    engine::Vorbehalt vorbehaltWaehlen(const engine::Spiel& spiel, Sitz sitz) override {
        return regelwerk_.vorbehaltWaehlen(spiel, sitz);
    }
    std::optional<engine::Ansage> ansageWaehlen(const engine::Spiel&, Sitz) override { return std::nullopt; }

    int geprueft = 0;

private:
    engine::SeedZufall zufall_;
    players::Tischwissen wissen_{zufall_};
    players::Regelwerk regelwerk_;
    players::Zufallsspieler zufallsspieler_;
};

TEST(Lage, WerteWieKarteFuerKarteGezaehlt) {
    struct Fall {
        const char* name;
        engine::RegelOptionen regeln;
    };
    engine::RegelOptionen schweine;
    schweine.zweiSchweine = schweine.schweineAnsagen = schweine.supersau = schweine.vhSolo = schweine.dabuSolo = -1;
    engine::RegelOptionen joker;
    joker.joker = -1;
    joker.herzZehn = 0;
    for (const Fall& fall : {Fall{"Standard", {}}, Fall{"Schweine und Supersau", schweine}, Fall{"Joker", joker}}) {
        SCOPED_TRACE(fall.name);
        testhilfe::Testtisch tisch(31, fall.regeln);
        Pruefer pruefer(5);
        tisch.spielen(150, pruefer);
        EXPECT_GT(pruefer.geprueft, 150 * 40);
        EXPECT_EQ(tisch.schiedsrichter.fehlerAnzahl(), 0);
    }
}

TEST(Kartenliste, BehaeltReihenfolgeUndKenntSeineKarten) {
    players::Kartenliste l;
    for (int p : {7, 3, 12, 40, 9, 45}) l.push_back(p);
    l.behalten([](int p) { return p % 3 == 0 || p > 40; });
    EXPECT_EQ(std::vector<int>(l.begin(), l.end()), (std::vector<int>{3, 12, 9, 45}));
    for (int p : {3, 12, 9, 45}) EXPECT_TRUE(l.enthaelt(p)) << p;
    for (int p : {0, 7, 40, 48, -1, 99}) EXPECT_FALSE(l.enthaelt(p)) << p;

    // A thirteenth card does not fit a hand: it is dropped, nothing is overwritten.
    players::Kartenliste voll;
    for (int p = 1; p <= 13; ++p) voll.push_back(p);
    EXPECT_EQ(voll.size(), players::Kartenliste::Kapazitaet);
    EXPECT_EQ(voll.back(), 12);
    EXPECT_FALSE(voll.enthaelt(13));
}

TEST(Kartenliste, KleinsteNachSchluesselDieErsteBeiGleichstand) {
    players::Kartenliste l;
    for (int p : {5, 8, 2, 11, 6}) l.push_back(p);
    int fragen = 0;
    const auto schluessel = [&](int p) {
        ++fragen;
        return p % 3;
    };
    EXPECT_EQ(players::kleinsteNach(l, [](int p) { return p != 6; }, schluessel), 5);  // 5, 8, 2, 11 all give 2
    EXPECT_EQ(fragen, 4);
    EXPECT_EQ(players::kleinsteNach(l, [](int) { return false; }, schluessel), 0);
}

TEST(Bits, AnzahlWieEinzelnGezaehlt) {
    std::mt19937_64 zahlen(3);
    for (int i = 0; i < 2000; ++i) {
        const std::uint64_t x = i < 64 ? std::uint64_t{1} << i : zahlen() >> (i % 64);
        int n = 0;
        for (int b = 0; b < 64; ++b) n += (x >> b) & 1u;
        ASSERT_EQ(players::anzahlBits(x), n) << x;
    }
    EXPECT_EQ(players::anzahlBits(~std::uint64_t{0}), 64);
}

// The shortcut before the solo estimate may only skip what the estimate would reject.
TEST(Soloschaetzung, AbziehenDenkbarWieAbziehrunden) {
    for (const double sicherheit : {players::AbziehenSolo, 0.99})
        for (int fremde = 0; fremde <= 30; ++fremde)
            for (const std::array<int, 3> n : {std::array<int, 3>{12, 12, 12}, {11, 11, 12}, {7, 8, 8}, {3, 3, 2}, {1, 0, 1}})
                for (int eigene = 0; eigene <= 12; ++eigene)
                    ASSERT_EQ(players::abziehenDenkbar(eigene, fremde, n, sicherheit),
                              eigene >= players::abziehrunden(fremde, n, sicherheit))
                        << eigene << " gegen " << fremde;
}

}  // namespace

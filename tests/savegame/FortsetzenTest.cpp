// Seeded games saved at several points, loaded into a fresh table and played on:
// the loaded state equals the saved one field by field, and the computer seats
// play the same rest of the game as the table that never saved.
#include <gtest/gtest.h>

#include "Spielstaende.h"
#include "engine/AblaufHilfen.h"
#include "engine/Spielablauf.h"
#include "engine/Zufall.h"
#include "players/EinfacheSpieler.h"
#include "savegame/Partiedatei.h"

using namespace savegame;
using engine::Anfrageart;
using engine::Sitz;

namespace {

// One table: the state, the cycle, and the computer players of its seats.
struct Tisch {
    explicit Tisch(std::uint64_t seed, std::uint64_t spielerSeed, const engine::RegelOptionen& optionen)
        : zufall(seed), spielerZufall(spielerSeed), ablauf(spiel, zufall), zufallsspieler(spielerZufall) {
        for (const Sitz s : engine::alleSitze) spiel.steuerung[s] = engine::Steuerung::Computer;
        ablauf.regelOptionenSetzen(optionen);
    }

    Anfrageart schritt() {
        return testhilfe::beantworten(
            ablauf, spiel, testhilfe::proSitz<engine::Entscheider*>(&kleinste, &zufallsspieler, &kleinste, &zufallsspieler));
    }

    engine::Spiel spiel;
    engine::SeedZufall zufall;
    engine::SeedZufall spielerZufall;
    engine::Spielablauf ablauf;
    players::KleinsteKarte kleinste;
    players::Zufallsspieler zufallsspieler;
};

int gespielteKarten(const engine::Spiel& s) { return 4 * s.sticheGespielt + (s.stich.komplett() ? 0 : s.stich.anzahl); }

}  // namespace

TEST(Fortsetzen, GeladenesSpielGehtWieDasGespeicherteWeiter) {
    engine::RegelOptionen optionen;
    struct Punkt { const char* name; int karten; };
    // before the first card, mid-trick, on a trick boundary, after the last trick
    for (const Punkt punkt : {Punkt{"vor der ersten Karte", 0}, Punkt{"mitten im Stich", 6},
                              Punkt{"nach einem Stich", 8}, Punkt{"nach dem letzten Stich", 99}}) {
        for (std::uint64_t seed = 1; seed <= 6; ++seed) {
            optionen.scharferRupa = seed % 2 == 0 ? -1 : 0;  // some games without nines
            Tisch a(seed, seed + 100, optionen);
            a.ablauf.neuePartie();
            // play to the save point
            while (true) {
                const auto phase = a.spiel.ablauf.phase;
                if (phase == engine::Spielphase::Kartenspiel && gespielteKarten(a.spiel) >= punkt.karten) break;
                if (phase == engine::Spielphase::Spielende) break;
                a.schritt();
            }
            Spielstand gespeichert;
            gespeichert.spiel = a.spiel;
            gespeichert.optionen = optionen;
            const std::string datei = partieSchreiben(gespeichert);

            // a different seed: nothing of the running game may depend on it
            Tisch b(seed + 1000, seed + 100, optionen);
            Spielstand geladen;
            ASSERT_EQ(partieLesen(datei, geladen).ergebnis, Ergebnis::Erfolg);
            ASSERT_EQ(testhilfe::unterschiede(geladen.spiel, a.spiel), "") << punkt.name << ", Startwert " << seed;
            EXPECT_EQ(geladen.optionen, optionen);
            b.spiel = geladen.spiel;
            // The random player's generator is its own, not the game's: it has no
            // place in the file, so the resumed table is handed its state.
            b.spielerZufall = a.spielerZufall;
            b.ablauf.fortsetzen();

            // both tables play the rest of the game
            int schritte = 0;
            while (a.spiel.ablauf.phase != engine::Spielphase::Spielende && schritte < 200) {
                const Anfrageart artA = a.schritt();
                const Anfrageart artB = b.schritt();
                ASSERT_EQ(artA, artB);
                ASSERT_EQ(testhilfe::unterschiede(b.spiel, a.spiel), "") << punkt.name << ", Startwert " << seed << ", Schritt " << schritte;
                ++schritte;
            }
            EXPECT_EQ(b.spiel.ablauf.phase, engine::Spielphase::Spielende);
            EXPECT_TRUE(b.spiel.ergebnis.gewertet);
        }
    }
}

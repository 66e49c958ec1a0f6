// Seeded games saved at several points, loaded into a fresh table and played on:
// the loaded state equals the saved one field by field, and the computer seats
// play the same rest of the game as the table that never saved.
#include <gtest/gtest.h>

#include "engine/Spielablauf.h"
#include "engine/Zufall.h"
#include "players/EinfacheSpieler.h"
#include "savegame/Partiedatei.h"

using namespace savegame;
using engine::Anfrageart;
using engine::Antwort;
using engine::Sitz;

namespace {

// One table: the state, the cycle, and the computer players of its seats.
struct Tisch {
    explicit Tisch(std::uint64_t seed, std::uint64_t spielerSeed, const engine::RegelOptionen& optionen)
        : zufall(seed), spielerZufall(spielerSeed), ablauf(spiel, zufall), zufallsspieler(spielerZufall) {
        for (const Sitz s : engine::alleSitze) spiel.steuerung[s] = engine::Steuerung::Computer;
        ablauf.regelOptionenSetzen(optionen);
    }

    engine::Entscheider& spieler(Sitz s) {
        return s.nr() % 2 == 0 ? static_cast<engine::Entscheider&>(zufallsspieler) : kleinste;
    }

    // Answers one request as the headless autoplay does; returns what was asked.
    Anfrageart schritt() {
        const engine::Anfrage a = ablauf.anfrage();
        switch (a.art) {
            case Anfrageart::Geben: ablauf.antworten(Antwort::zufallsGeben()); break;
            case Anfrageart::Neugeben: ablauf.antworten(Antwort::neugeben(a.neugeben.computerWuerde)); break;
            case Anfrageart::Vorbehalt:
                ablauf.antworten(Antwort::mitVorbehalt(spieler(*a.sitz).vorbehaltWaehlen(spiel, *a.sitz)));
                break;
            case Anfrageart::Karte:
                EXPECT_TRUE(ablauf.antworten(Antwort::karte(spieler(*a.sitz).karteWaehlen(spiel, *a.sitz))));
                break;
            default: ablauf.antworten(Antwort::weiter(a.art)); break;
        }
        return a.art;
    }

    engine::Spiel spiel;
    engine::SeedZufall zufall;
    engine::SeedZufall spielerZufall;
    engine::Spielablauf ablauf;
    players::KleinsteKarte kleinste;
    players::Zufallsspieler zufallsspieler;
};

// The fields in which two states differ, for a readable failure.
std::string unterschiede(const engine::Spiel& x, const engine::Spiel& y) {
    std::string liste;
    auto feld = [&](const char* name, bool gleich) {
        if (!gleich) liste += std::string(liste.empty() ? "" : ", ") + name;
    };
    feld("namen", x.namen == y.namen);
    feld("charakter", x.charakter == y.charakter);
    feld("steuerung", x.steuerung == y.steuerung);
    feld("regeln", x.regeln == y.regeln);
    feld("deck", x.deck == y.deck);
    feld("spieltyp", x.spieltyp == y.spieltyp);
    feld("vorhand", x.vorhand == y.vorhand);
    feld("partei", x.partei == y.partei);
    feld("parteiMarker", x.parteiMarker == y.parteiMarker);
    feld("ansagen", x.ansagen == y.ansagen);
    feld("ansagenProStich", x.ansagenProStich == y.ansagenProStich);
    feld("stich", x.stich == y.stich);
    feld("stiche", x.stiche == y.stiche);
    feld("sticheGespielt", x.sticheGespielt == y.sticheGespielt);
    feld("augen", x.augen == y.augen);
    feld("stichzahl", x.stichzahl == y.stichzahl);
    feld("sonderpunkte", x.sonderpunkte == y.sonderpunkte);
    feld("spielbericht", x.spielbericht == y.spielbericht);
    feld("ergebnis", x.ergebnis == y.ergebnis);
    feld("ablauf", x.ablauf == y.ablauf);
    feld("partie", x.partie == y.partie);
    return liste.empty() ? (x == y ? "" : "ein anderes Feld") : liste;
}

int gespielteKarten(const engine::Spiel& s) { return 4 * s.sticheGespielt + (s.stich.komplett() ? 0 : s.stich.anzahl); }

}  // namespace

TEST(Fortsetzen, GeladenesSpielGehtWieDasGespeicherteWeiter) {
    engine::RegelOptionen optionen;
    optionen.scharferRupa = -1;  // some games without nines
    struct Punkt { const char* name; int karten; };
    // before the first card, mid-trick, on a trick boundary, after the last trick
    for (const Punkt punkt : {Punkt{"vor der ersten Karte", 0}, Punkt{"mitten im Stich", 6},
                              Punkt{"nach einem Stich", 8}, Punkt{"nach dem letzten Stich", 99}}) {
        for (std::uint64_t seed = 1; seed <= 6; ++seed) {
            optionen.scharferRupa = seed % 2 == 0 ? -1 : 0;
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
            ASSERT_EQ(unterschiede(geladen.spiel, a.spiel), "") << punkt.name << ", Startwert " << seed;
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
                ASSERT_EQ(unterschiede(b.spiel, a.spiel), "") << punkt.name << ", Startwert " << seed << ", Schritt " << schritte;
                ++schritte;
            }
            EXPECT_EQ(b.spiel.ablauf.phase, engine::Spielphase::Spielende);
            EXPECT_TRUE(b.spiel.ergebnis.gewertet);
        }
    }
}

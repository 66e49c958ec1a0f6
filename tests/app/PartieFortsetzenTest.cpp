#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "PartieFortsetzen.h"
#include "engine/AblaufHilfen.h"
#include "engine/Selbstspiel.h"
#include "engine/Spielablauf.h"
#include "engine/Zufall.h"
#include "players/EinfacheSpieler.h"
#include "savegame/Partiedatei.h"
#include "savegame/Partietexte.h"

using namespace app;

namespace {

struct Lauf { int status; std::string aus, fehler; };

Lauf laden(const std::string& inhalt, int spiele = 2) {
    const auto pfad = std::filesystem::temp_directory_path() / ("trumpona-laden-" + std::to_string(::getpid()) + ".dkp");
    std::ofstream(pfad, std::ios::binary) << inhalt;
    Aufruf aufruf;
    aufruf.modus = Modus::Autoplay;
    aufruf.anzahl = spiele;
    aufruf.seed = 7;
    aufruf.ladeDatei = pfad.string();
    std::ostringstream aus, fehler;
    const int status = geladenePartieSpielen(aufruf, aus, fehler);
    std::filesystem::remove(pfad);
    return {status, aus.str(), fehler.str()};
}

// A seeded game of four computer seats, stopped after `karten` cards or once scored.
savegame::Spielstand gespielt(int karten) {
    engine::Spiel spiel;
    engine::SeedZufall zufall(3);
    engine::Spielablauf ablauf(spiel, zufall);
    for (const engine::Sitz s : engine::alleSitze) spiel.steuerung[s] = engine::Steuerung::Computer;
    ablauf.neuePartie();
    players::KleinsteKarte spieler;
    const engine::ProSitz<engine::Entscheider*> alle(&spieler);
    if (karten >= 48) engine::Selbstspiel(ablauf, alle).spielen(1);
    while (karten < 48 &&
           (spiel.ablauf.phase != engine::Spielphase::Kartenspiel || 4 * spiel.sticheGespielt + spiel.stich.anzahl < karten))
        testhilfe::beantworten(ablauf, spiel, alle);
    savegame::Spielstand stand;
    stand.spiel = spiel;
    return stand;
}

}  // namespace

TEST(PartieFortsetzen, AbgelehnteDateienEndenMitStatus2) {
    const std::string beschaedigt(savegame::texte::Beschaedigt);
    struct Fall { std::string inhalt; std::vector<std::string_view> meldungen; };
    const std::vector<Fall> faelle{
        {"XYZ\r\n", {savegame::texte::Beschaedigt}},
        {"", {savegame::texte::Beschaedigt}},
        {"RUPA-PARTIE19\r\n1\r\n", {savegame::texte::Veraltet, savegame::texte::Beschaedigt, savegame::texte::NeuePartie}},
        {"RUPA-PARTIE26\r\n1\r\n", {savegame::texte::Beschaedigt, savegame::texte::NeuePartie}},
    };
    for (const auto& f : faelle) {
        const Lauf l = laden(f.inhalt);
        EXPECT_EQ(l.status, 2) << f.inhalt;
        std::string erwartet;
        for (const auto m : f.meldungen) erwartet += std::string(m) + "\n";
        EXPECT_EQ(l.fehler, erwartet) << f.inhalt;
        EXPECT_EQ(l.aus, "");
    }
}

TEST(PartieFortsetzen, GeladenePartieWirdZuEndeGespielt) {
    for (const int karten : {0, 6, 48}) {
        savegame::Spielstand stand = gespielt(karten);
        stand.spiel.namen[engine::Sitz(1)] = "Anna";
        const Lauf l = laden(savegame::partieSchreiben(stand), 3);
        EXPECT_EQ(l.status, 0) << karten << "\n" << l.aus;
        EXPECT_EQ(l.fehler, "");
        EXPECT_NE(l.aus.find("Spielliste: 3 Spiele"), std::string::npos) << l.aus;
        EXPECT_NE(l.aus.find("Anna"), std::string::npos) << l.aus;
        // the end box of a finished game is shown before play goes on
        if (karten == 48) {
            ASSERT_FALSE(stand.spiel.ergebnis.text.empty());
            EXPECT_EQ(l.aus.rfind(stand.spiel.ergebnis.text, 0), 0u) << l.aus;
        }
    }
}

// The reasons of a game kept per card, announcement and reservation.
#include <gtest/gtest.h>

#include "Testtisch.h"
#include "players/Begruendungsprotokoll.h"
#include "players/Regelwerk.h"

using engine::Sitz;
using players::Meldungsart;

namespace {

players::Meldung meldung(Meldungsart art, int sitz, std::string text) {
    players::Meldung m;
    m.art = art;
    m.sitz = Sitz(sitz);
    m.verfahren = "V";
    m.code = "01";
    m.text = std::move(text);
    return m;
}

std::vector<std::string> texte(const std::vector<players::Grund>& gruende) {
    std::vector<std::string> t;
    for (const auto& g : gruende) t.push_back(g.text);
    return t;
}

}  // namespace

TEST(Begruendungsprotokoll, OrdnetJedeBegruendungIhremZugZu) {
    players::Meldungsliste weiter;
    players::Begruendungsprotokoll p(&weiter);
    engine::Spiel spiel;
    p.kartenGegeben(spiel);
    p.melden(meldung(Meldungsart::Regel, 4, "Hochzeit"));
    p.spielBegonnen(spiel);
    // An announcement's reasons go with it, the card's with the card.
    p.melden(meldung(Meldungsart::Regel, 3, "Kontra, weil"));
    spiel.ansagen.push_back({Sitz(3), false, engine::ParteiKontra, -1, 0});
    p.ansageGemacht(spiel, spiel.ansagen.back());
    p.melden(meldung(Meldungsart::Entscheidung, 3, ""));
    p.melden(meldung(Meldungsart::Regel, 3, "Farbe"));
    p.melden(meldung(Meldungsart::Regel, 3, "Filter"));
    p.karteGespielt(spiel, Sitz(3), 25);
    // Weighed and dropped: a new decision starts empty; a seat's sentences never reach another's card.
    p.melden(meldung(Meldungsart::Regel, 2, "verworfen"));
    p.melden(meldung(Meldungsart::Entscheidung, 2, ""));
    p.melden(meldung(Meldungsart::Regel, 1, "Tipp"));
    p.karteGespielt(spiel, Sitz(2), 13);

    const players::Spielbegruendungen& g = p.spiel();
    EXPECT_EQ(texte(g.vorbehalte[Sitz(4)]), std::vector<std::string>{"Hochzeit"});
    ASSERT_EQ(g.ansagen.size(), 1u);
    EXPECT_EQ(texte(g.ansagen[0]), std::vector<std::string>{"Kontra, weil"});
    EXPECT_EQ(texte(g.karte(25)), (std::vector<std::string>{"Farbe", "Filter"}));
    EXPECT_TRUE(g.karte(13).empty());
    EXPECT_TRUE(g.karte(0).empty());
    EXPECT_EQ(weiter.meldungen.size(), 8u);
    p.kartenGegeben(spiel);
    EXPECT_EQ(p.spiel(), players::Spielbegruendungen{});
}

// At a real table every card the rule book chose carries its rule; only the last resort's have none.
TEST(Begruendungsprotokoll, JedeKarteDesRegelwerksHatIhreRegel) {
    testhilfe::Testtisch tisch(17);
    players::Meldungsliste liste;
    players::Begruendungsprotokoll protokoll(&liste);
    players::Tischwissen wissen(tisch.zufall, &protokoll);
    players::Regelwerk regelwerk(wissen, tisch.zufall, &protokoll);
    tisch.ablauf.beobachterHinzufuegen(&wissen);
    tisch.ablauf.beobachterHinzufuegen(&protokoll);
    int mitGrund = 0;
    int gespielt = 0;
    tisch.spielen(1, regelwerk, [&](const engine::Spiel& spiel) {
        for (int pos = 1; pos <= spiel.deck.kartenanzahl(); ++pos) {
            ++gespielt;
            if (!protokoll.spiel().karte(pos).empty()) ++mitGrund;
        }
    });
    long rueckfaelle = 0;
    for (const auto& m : liste.meldungen) rueckfaelle += m.art == Meldungsart::Rueckfall;
    EXPECT_GT(gespielt, 0);
    EXPECT_EQ(mitGrund, gespielt - rueckfaelle);
}

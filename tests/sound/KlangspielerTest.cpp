#include <gtest/gtest.h>

#include "AufzeichnendesGeraet.h"
#include "sound/Klangspieler.h"

using namespace sound;
using testhilfe::AufzeichnendesGeraet;
using Befehle = std::vector<std::string>;

TEST(Klangspieler, SpieltDieSegmenteDerTabelle) {
    AufzeichnendesGeraet geraet;
    Klangspieler spieler(geraet);
    spieler.soundOeffnen("/opt/trumpona");
    spieler.soundSpielen(1, false);
    spieler.soundSpielen(2, true);
    spieler.soundSpielen(57, false);
    spieler.soundSpielen(58, false);  // the empty slice: sent, and plays nothing
    for (const int unsinn : {0, 64, -3}) spieler.soundSpielen(unsinn, true);
    spieler.soundSchliessen();
    EXPECT_EQ(geraet.befehle, (Befehle{"open /opt/trumpona/trumpona.wav", "play 0 890", "play 900 1740 wait",
                                       "play 61650 62140", "play 1 1", "close"}));
}

TEST(Klangspieler, OptionenEntscheidenObGespieltWird) {
    struct Fall { bool sprache; bool geraeusch; bool signal; bool spielt; };
    for (const Fall f : {Fall{false, false, true, false}, Fall{true, false, false, true},
                         Fall{false, true, false, true}}) {
        AufzeichnendesGeraet geraet;
        Klangspieler spieler(geraet);
        spieler.optionenSetzen({f.sprache, f.geraeusch, f.signal});
        spieler.soundOeffnen("ordner/");
        for (int n = 1; n <= 63; ++n) spieler.soundSpielen(n, n % 2 == 0);
        spieler.soundSchliessen();
        ASSERT_EQ(geraet.befehle.front(), "open ordner/trumpona.wav");
        EXPECT_EQ(geraet.befehle.back(), "close");
        EXPECT_EQ(geraet.befehle.size(), f.spielt ? 65u : 2u) << f.sprache << f.geraeusch << f.signal;
    }
}

TEST(Klangspieler, OhneAusgabegeraetKeinSchliessen) {
    for (const bool ausgabe : {false, true}) {
        AufzeichnendesGeraet geraet(ausgabe);
        geraet.erfolg = false;  // the file cannot be opened: plays fail silently
        Klangspieler spieler(geraet);
        spieler.soundOeffnen("");
        EXPECT_FALSE(spieler.letztesErgebnis());
        spieler.soundSpielen(3, false);
        spieler.soundSchliessen();
        Befehle erwartet{"open trumpona.wav", "play 1750 2500"};
        if (ausgabe) erwartet.push_back("close");
        EXPECT_EQ(geraet.befehle, erwartet);
    }
}

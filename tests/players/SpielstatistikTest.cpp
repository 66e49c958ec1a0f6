// What --stats counts per game: solos (the safe ones apart), silent solos, Hochzeiten,
// announcements and limits.
#include <gtest/gtest.h>

#include "players/Regeltabelle.h"
#include "players/Spielstatistik.h"

using engine::ParteiKontra;
using engine::ParteiRe;
using engine::Sitz;

namespace {
void sicherGefunden(players::Spielstatistik& st, int sitz) {
    players::Meldung m;
    m.art = players::Meldungsart::Regel;
    m.sitz = Sitz(sitz);
    m.verfahren = players::verfahren::SoloPruefen;
    m.code = "Sicher";
    st.melden(m);
}
}  // namespace

TEST(Spielstatistik, ZaehltSpieleNachArt) {
    players::Spielstatistik st;
    const engine::Spiel leer;

    // A safe Buben-Solo, won.
    engine::Spiel solo;
    solo.solo = true;
    solo.solist = Sitz(2);
    solo.spieltyp = engine::BubenSolo;
    solo.ergebnis.gewinner = ParteiRe;
    st.kartenGegeben(leer);
    sicherGefunden(st, 2);
    st.spielBeendet(solo);

    // A Hochzeit without partner, lost; both parties announced, one limit failed.
    engine::Spiel hochzeit;
    hochzeit.hochzeiter = Sitz(1);
    hochzeit.hochzeitArt = engine::ErsterFehlstich;
    hochzeit.reAngesagt[Sitz(1)] = true;
    hochzeit.kontraAngesagt[Sitz(3)] = true;
    hochzeit.ansagen = {{Sitz(1), false, ParteiRe, -1, 0}, {Sitz(3), false, ParteiKontra, -1, 1},
                        {Sitz(1), true, ParteiRe, engine::Keine60, 1}};
    hochzeit.limitSitz = Sitz(1);
    hochzeit.limitCode = engine::Keine60;
    hochzeit.ergebnis.limitEingehalten = 0;
    hochzeit.ergebnis.gewinner = ParteiKontra;
    st.kartenGegeben(leer);
    st.spielBeendet(hochzeit);

    // A silent solo, won; the safe solo found before a redeal no longer counts.
    engine::Spiel still;
    still.stillerSolist = Sitz(3);
    still.ergebnis.gewinner = ParteiRe;
    st.kartenGegeben(leer);
    sicherGefunden(st, 3);
    st.kartenGegeben(leer);
    st.spielBeendet(still);

    EXPECT_EQ(st.spiele, 3);
    EXPECT_EQ(st.solos[engine::BubenSolo].anzahl, 1);
    EXPECT_EQ(st.solos[engine::BubenSolo].gewonnen, 1);
    EXPECT_EQ(st.sichereSolos.anzahl, 1);
    EXPECT_EQ(st.stilleSolos.anzahl, 1);
    EXPECT_EQ(st.stilleSolos.gewonnen, 1);
    EXPECT_EQ(st.sichereStilleSolos.anzahl, 0);
    EXPECT_EQ(st.hochzeiten.anzahl, 1);
    EXPECT_EQ(st.hochzeiten.gewonnen, 0);
    EXPECT_EQ(st.hochzeitenAllein, 1);
    EXPECT_EQ(st.hochzeitArten[engine::ErsterFehlstich], 1);
    EXPECT_EQ(st.reAnsagen, 1);
    EXPECT_EQ(st.kontraAnsagen, 1);
    EXPECT_EQ(st.ansagendeParteien.anzahl, 2);
    EXPECT_EQ(st.ansagendeParteien.gewonnen, 1);
    EXPECT_EQ(st.limits[engine::Keine60].anzahl, 1);
    EXPECT_EQ(st.limits[engine::Keine60].gewonnen, 0);

    const std::string b = st.bericht();
    for (const char* zeile : {"Solo Buben-Solo                           1, gewonnen        1 (100.0 %)",
                              "Ansagende Parteien                        2, gewonnen        1 ( 50.0 %)",
                              "Limit (keine 60)                          1, gewonnen        0 (  0.0 %)",
                              "Hochzeiten ersten Stichs 0, ersten Fehlstichs 1, ersten Trumpfstichs 0, ohne Partner 1"})
        EXPECT_NE(b.find(zeile), std::string::npos) << zeile << "\n" << b;
}

#include <gtest/gtest.h>

#include "engine/Zufall.h"
#include "net/Nutzlast.h"

using engine::Sitz;
using net::Sitzabbildung;

TEST(Sitzabbildung, GastSiehtSichAnSitzEins) {
    // Host seats 1, 2, 3, 4 as local seats, for the guest's own host seat 2, 3, 4.
    const std::vector<std::pair<int, std::array<int, 4>>> tabellen{
        {2, {4, 1, 2, 3}}, {3, {3, 4, 1, 2}}, {4, {2, 3, 4, 1}}, {1, {1, 2, 3, 4}}};
    for (const auto& [eigener, lokal] : tabellen) {
        const Sitzabbildung a(eigener);
        for (int h = 1; h <= 4; ++h) {
            EXPECT_EQ(a.lokal(h).nr(), lokal[static_cast<std::size_t>(h - 1)]) << eigener << " " << h;
            EXPECT_EQ(a.host(a.lokal(h)), h);
        }
    }
}

TEST(Verteilung, BloeckeWandernZumLokalenSitz) {
    for (const int karten : {48, 40}) {
        engine::SeedZufall z(karten);
        const engine::Kartenverteilung host = engine::kartenZiehen(karten, false, z);
        const std::string text = net::verteilungSchreiben(host);
        ASSERT_EQ(text.size(), 96u);
        const int n = karten / 4;
        // Codes 1..9 are followed by a blank.
        EXPECT_EQ(text.substr(0, 2), std::to_string(host[0]).append(host[0] < 10 ? " " : ""));
        for (const int eigener : {2, 3, 4}) {
            const Sitzabbildung a(eigener);
            const auto gast = net::verteilungLesen(text, karten, a);
            ASSERT_TRUE(gast);
            for (int h = 1; h <= 4; ++h)
                for (int i = 0; i < n; ++i)
                    EXPECT_EQ((*gast)[static_cast<std::size_t>((a.lokal(h).nr() - 1) * n + i)],
                              host[static_cast<std::size_t>((h - 1) * n + i)]);
        }
    }
    EXPECT_FALSE(net::verteilungLesen("1 2 3 ", 48, Sitzabbildung(3)));
    EXPECT_FALSE(net::verteilungLesen(std::string(94, ' ') + "26", 48, Sitzabbildung(3)));
}

TEST(Einstellungen, DreiZeichenJeFeldInDerTabellenfolge) {
    engine::RegelOptionen o;
    o.solis = -1;
    o.endeBei = 30;
    o.endeNach = 24;
    o.herzZehn = 0;
    o.kontra = 5;
    o.limit = 3;
    o.solo = -1;
    o.scharferRupa = -1;
    const std::string text = net::einstellungenSchreiben(engine::regelnUebernehmen(o));
    ASSERT_EQ(text.size(), 96u);
    const std::vector<std::pair<int, std::string>> felder{
        {1, "-1 "}, {13, "0  "}, {37, "-1 "}, {61, "2  "}, {64, "30 "}, {67, "24 "}, {76, "0  "},
        {79, "-1 "}, {82, "-1 "}, {85, "3  "}, {88, "5  "}, {91, "   "}};
    for (const auto& [position, feld] : felder) EXPECT_EQ(text.substr(static_cast<std::size_t>(position - 1), 3), feld) << position;

    engine::RegelOptionen gelesen;
    gelesen.vorhand = 3;  // not in "Einst": stays
    gelesen = net::einstellungenLesen(text, gelesen);
    o.vorhand = 3;
    EXPECT_EQ(gelesen, o);

    o.kontra = 0;
    o.endeBei = 1000;
    const std::string ohne = net::einstellungenSchreiben(engine::regelnUebernehmen(o));
    EXPECT_EQ(ohne.substr(78, 3), "0  ");
    EXPECT_EQ(ohne.substr(63, 3), "999");
    EXPECT_FALSE(net::passtInFeld(1000));
    EXPECT_EQ(net::einstellungenLesen("xx -1", {}).solis, 0);
    EXPECT_EQ(net::einstellungenLesen("xx -1", {}).sopuFuchs, -1);
}

TEST(Karte, WertUndFarbeNennenGenauEineKarte) {
    for (int code = 1; code <= engine::JokerCode; ++code) EXPECT_EQ(net::karteLesen(net::karteSchreiben(3, code)), code);
    EXPECT_EQ(net::karteSchreiben(2, 6), "232#1");    // Karo-As
    EXPECT_EQ(net::karteSchreiben(4, 21), "44#4");    // Kreuz-Dame
    EXPECT_EQ(net::karteSchreiben(1, 25), "164#1");   // Joker
    for (const std::string falsch : {"", "3", "332", "#1", "3#1", "33#1", "332#5", "332#0", "30#2"})
        EXPECT_EQ(net::karteLesen(falsch), 0) << falsch;
    EXPECT_EQ(net::karteLesen("x64#9"), engine::JokerCode);
}

TEST(Karte, ErsteGleicheKarteNochInDerHand) {
    engine::Spiel spiel;
    engine::Kartenverteilung k{};
    for (int p = 0; p < 48; ++p) k[static_cast<std::size_t>(p)] = p / 2 % 24 + 1;
    engine::kartenAuflegen(spiel, k);
    // Seat 2 holds positions 13..24; positions 13 and 14 both hold code 7.
    EXPECT_EQ(net::positionSuchen(spiel, Sitz(2), 7), 13);
    spiel.deck[13].status = engine::Gespielt;
    EXPECT_EQ(net::positionSuchen(spiel, Sitz(2), 7), 14);
    spiel.deck[14].status = engine::Gespielt;
    EXPECT_EQ(net::positionSuchen(spiel, Sitz(2), 7), 0);
    EXPECT_EQ(net::positionSuchen(spiel, Sitz(1), 7), 0);  // not in that hand
    EXPECT_EQ(net::positionSuchen(spiel, Sitz(1), 0), 0);
}

TEST(Vorbehalt, CodesHinUndZurueck) {
    using V = engine::Vorbehalt;
    const std::vector<std::pair<V, std::string>> faelle{
        {V{}, "0"}, {V{V::Solo, 1, 0}, "11"}, {V{V::Solo, 8, 0}, "18"}, {V{V::Hochzeit, 1, 6}, "26"}};
    for (const auto& [v, code] : faelle) {
        EXPECT_EQ(net::vorbehaltSchreiben(v), code);
        EXPECT_EQ(net::vorbehaltLesen(code), v) << code;
    }
    for (const std::string falsch : {"", "1", "19", "10", "24", "2x", "9"}) EXPECT_EQ(net::vorbehaltLesen(falsch), V{}) << falsch;

    EXPECT_EQ(net::soloantwortSchreiben(V{V::Solo, 4, 0}), "Solo114");
    EXPECT_EQ(net::soloantwortSchreiben(V{V::Hochzeit, 1, 5}), "Solo10");
    EXPECT_EQ(net::soloantwortLesen("Solo114"), 4);
    for (const std::string nein : {"Solo10", "Solo1", "Solo119", "Solo11", "xolo114", ""})
        EXPECT_EQ(net::soloantwortLesen(nein), 0) << nein;
}

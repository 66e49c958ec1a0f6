#include <gtest/gtest.h>

#include "engine/TestHilfen.h"
#include "table/Handordnung.h"

namespace {

using namespace engine;

constexpr int k(int farbe, int rang) { return kartencode(farbe, rang); }

struct Ordnungsfall {
    const char* name;
    int spieltyp;
    std::vector<int> hand;     // seat 1's cards as dealt
    std::vector<int> erwartet; // codes left to right
};

std::vector<int> codesLinksNachRechts(const Spiel& spiel) {
    std::vector<int> codes;
    for (int pos : table::sortierteHand(spiel, Sitz(1))) codes.push_back(spiel.deck[pos].code);
    return codes;
}

TEST(Handordnung, TruempfeNachStaerkeDannFarbenAbwechselnd) {
    const Ordnungsfall faelle[] = {
        {"Normalspiel", Normalspiel,
         {k(Kreuz, Neun), k(Herz, Zehn), k(Karo, As), k(Kreuz, Dame), k(Pik, As), k(Herz, Koenig), k(Karo, Bube),
          k(Pik, Zehn), k(Herz, As), k(Kreuz, As), k(Karo, Neun), k(Pik, Dame)},
         {k(Herz, Zehn), k(Kreuz, Dame), k(Pik, Dame), k(Karo, Bube), k(Karo, As), k(Karo, Neun), k(Kreuz, As),
          k(Kreuz, Neun), k(Herz, As), k(Herz, Koenig), k(Pik, As), k(Pik, Zehn)}},
        // In a Herz-Solo the Karo cards are a plain suit and sort last.
        {"Herz-Solo", HerzSolo,
         {k(Karo, As), k(Herz, Neun), k(Kreuz, Bube), k(Herz, Zehn), k(Karo, Zehn), k(Herz, As), k(Pik, Koenig),
          k(Herz, Dame), k(Kreuz, Koenig), k(Kreuz, As), k(Pik, Neun), k(Karo, Dame)},
         {k(Herz, Zehn), k(Herz, Dame), k(Karo, Dame), k(Kreuz, Bube), k(Herz, As), k(Herz, Neun), k(Kreuz, As),
          k(Kreuz, Koenig), k(Pik, Koenig), k(Pik, Neun), k(Karo, As), k(Karo, Zehn)}},
        {"Buben-Solo", BubenSolo,
         {k(Karo, Bube), k(Herz, Dame), k(Kreuz, Bube), k(Pik, Bube), k(Herz, Zehn), k(Karo, Dame), k(Herz, Bube),
          k(Kreuz, Neun), k(Pik, As), k(Herz, As), k(Karo, As), k(Kreuz, Dame)},
         {k(Kreuz, Bube), k(Pik, Bube), k(Herz, Bube), k(Karo, Bube), k(Kreuz, Dame), k(Kreuz, Neun), k(Herz, As),
          k(Herz, Zehn), k(Herz, Dame), k(Pik, As), k(Karo, As), k(Karo, Dame)}},
        // Without trump the Herz-Zehn is a plain Zehn below the Herz-As.
        {"Solo ohne Trumpf", SoloOhneTrumpf,
         {k(Herz, Zehn), k(Herz, As), k(Karo, Bube), k(Kreuz, Dame), k(Pik, Neun), k(Herz, Koenig), k(Karo, As),
          k(Kreuz, Zehn), k(Pik, As), k(Herz, Bube), k(Kreuz, Bube), k(Karo, Zehn)},
         {k(Kreuz, Zehn), k(Kreuz, Dame), k(Kreuz, Bube), k(Herz, As), k(Herz, Zehn), k(Herz, Koenig), k(Herz, Bube),
          k(Pik, As), k(Pik, Neun), k(Karo, As), k(Karo, Zehn), k(Karo, Bube)}},
    };
    for (const auto& f : faelle) {
        const Spiel spiel = testhilfe::spielMitHaenden(f.spieltyp, {f.hand});
        EXPECT_EQ(codesLinksNachRechts(spiel), f.erwartet) << f.name;
    }
}

TEST(Handordnung, GespielteKartenFehlenUndZaehlenNicht) {
    Spiel spiel = testhilfe::spielMitHaenden(Normalspiel, {{k(Kreuz, Dame), k(Pik, As), k(Karo, Neun)}, {k(Herz, Zehn)}});
    spiel.deck[testhilfe::positionVon(spiel, Sitz(1), k(Pik, As))].status = Gespielt;
    spiel.deck[testhilfe::positionVon(spiel, Sitz(2), k(Herz, Zehn))].status = Gespielt;
    EXPECT_EQ(table::kartenInHand(spiel, Sitz(1)), 11);
    EXPECT_EQ(table::kartenInHand(spiel, Sitz(2)), 11);
    const auto codes = codesLinksNachRechts(spiel);
    EXPECT_EQ(std::count(codes.begin(), codes.end(), k(Pik, As)), 0);
    EXPECT_EQ(codes.front(), k(Kreuz, Dame));
}

TEST(Handordnung, HandOhneNeunenHatZehnKarten) {
    const Spiel spiel = testhilfe::spielMitHaenden(Normalspiel, {{k(Kreuz, As)}}, 40);
    EXPECT_EQ(table::sortierteHand(spiel, Sitz(1)).size(), 10u);
    EXPECT_EQ(table::sortierteHand(spiel, Sitz(4)).front(), 31);
}

}  // namespace

#include <gtest/gtest.h>

#include "AblaufHilfen.h"
#include "TestHilfen.h"
#include "engine/Neugeben.h"

using namespace engine;
using testhilfe::spielMitHaenden;
using testhilfe::Tisch;
using testhilfe::verteilung;

namespace {
constexpr int KaroNeun = 1, KaroKoenig = 4, KaroAs = 6, HerzNeun = 7, HerzKoenig = 10, HerzZehn = 11;
constexpr int PikNeun = 13, PikKoenig = 16, KreuzNeun = 19, KreuzBube = 20, KreuzDame = 21, KreuzKoenig = 22;
constexpr int PikDame = 15, PikAs = 18, KreuzAs = 24, HerzAs = 12;

// Seat 1's hand in a normal game; the rest of the block is plain Kreuz and Pik.
Spiel mitHand(std::vector<int> hand) {
    const std::vector<int> fuell{KreuzAs, PikAs, HerzAs};
    for (std::size_t i = 0; hand.size() < 12; ++i) hand.push_back(fuell[i % fuell.size()]);
    return spielMitHaenden(Normalspiel, {hand});
}
}  // namespace

TEST(Neugeben, Schwellen) {
    struct Fall { const char* name; int grund; std::vector<int> hand; bool darf; };
    const Fall faelle[] = {
        {"4 Neunen: nein", NeunenWerfen, {KaroNeun, HerzNeun, PikNeun, KreuzNeun, KreuzDame, KaroAs}, false},
        {"5 Neunen: ja", NeunenWerfen, {KaroNeun, KaroNeun, HerzNeun, PikNeun, KreuzNeun, KreuzDame}, true},
        {"4 Könige: nein", KoenigeWerfen, {KaroKoenig, HerzKoenig, PikKoenig, KreuzKoenig, KreuzDame}, false},
        {"5 Könige: ja", KoenigeWerfen, {KaroKoenig, HerzKoenig, HerzKoenig, PikKoenig, KreuzKoenig}, true},
        {"4 Trümpfe: nein", ArmutWerfen, {KaroNeun, KreuzDame, HerzZehn, KreuzBube}, false},
        {"3 Trümpfe: ja", ArmutWerfen, {KaroNeun, KreuzDame, HerzZehn}, true},
    };
    for (const Fall& f : faelle) EXPECT_EQ(darfNeugeben(mitHand(f.hand), Sitz(1), f.grund), f.darf) << f.name;
}

TEST(Neugeben, ComputerBehaeltStarkeHandNurUeberDerGrenze) {
    // 5 Neunen (two of them trump) and 5 high trumps: 7 trumps.
    const std::vector<int> hand{KaroNeun, KaroNeun, HerzNeun,  HerzNeun,  PikNeun,
                                HerzZehn, HerzZehn, KreuzDame, KreuzDame, PikDame};
    struct Fall { const char* name; long long summe; bool mitSiebenTruempfen; bool fragt; };
    const Fall faelle[] = {
        {"Summe genau 23085089: fragt", 23085089, true, true},
        {"Summe 23085090: behält", 23085090, true, false},
        {"große Summe, nur 6 Trümpfe: fragt", 23085090, false, true},
    };
    for (const Fall& f : faelle) {
        Spiel spiel = mitHand(hand);
        if (!f.mitSiebenTruempfen) {
            const int p = testhilfe::positionVon(spiel, Sitz(1), KaroNeun);
            spiel.deck[p].code = KreuzNeun;  // a plain Neun instead of a trump one
            spiel.deck.attributeBerechnen();
            spiel.deck.staerkenBerechnen(Normalspiel);
        }
        // Tune the strength of one Dolle so the hand sums to the value under test.
        const int dolle = testhilfe::positionVon(spiel, Sitz(1), HerzZehn);
        spiel.deck[dolle].staerke += static_cast<int>(f.summe - staerkeSumme(spiel, Sitz(1)));
        ASSERT_EQ(staerkeSumme(spiel, Sitz(1)), f.summe);
        EXPECT_EQ(computerWillNeugeben(spiel, Sitz(1), NeunenWerfen), f.fragt) << f.name;
    }
}

TEST(Neugeben, Texte) {
    EXPECT_EQ(neugebenFrage(NeunenWerfen, 5), "Sie haben 5 Neunen!\nMöchten Sie, daß neu gegeben wird?");
    EXPECT_EQ(neugebenFrage(KoenigeWerfen, 6), "Sie haben 6 Könige!\nMöchten Sie, daß neu gegeben wird?");
    EXPECT_EQ(neugebenFrage(ArmutWerfen, 2), "Sie haben nur 2 Trümpfe!\nMöchten Sie, daß neu gegeben wird?");
    EXPECT_EQ(neugebenAnsage("Anna", NeunenWerfen, 5), "Anna hat 5 Neunen! Es wird neu gegeben!");
    EXPECT_EQ(neugebenAnsage("Anna", KoenigeWerfen, 5), "Anna hat 5 Könige! Es wird neu gegeben!");
    EXPECT_EQ(neugebenAnsage("Anna", ArmutWerfen, 3), "Anna hat nur 3 Trümpfe! Es wird neu gegeben!");
    EXPECT_EQ(neugebenTitel(NeunenWerfen), "Neunerwerfen!");
    EXPECT_EQ(neugebenTitel(KoenigeWerfen), "Königewerfen!");
    EXPECT_EQ(neugebenTitel(ArmutWerfen), "Armut!");
}

namespace {
constexpr int KaroBube = 2, HerzBube = 8, HerzDame = 9, PikZehn = 17, KreuzZehn = 23;
// Seat 1: 5 Neunen and 4 trumps; seat 3: no trump at all; seats 2 and 4 hold trumps.
Kartenverteilung neunenUndArmut() {
    return verteilung({{KaroNeun, HerzNeun, HerzNeun, PikNeun, KreuzNeun, KreuzDame, KreuzBube, KaroKoenig, KreuzZehn,
                        KreuzZehn, KreuzKoenig, KreuzKoenig},
                       {KreuzDame, PikDame, PikDame, HerzDame},
                       {HerzAs, HerzAs, HerzKoenig, HerzKoenig, PikAs, PikAs, PikKoenig, PikKoenig, PikZehn, PikZehn,
                        KreuzAs, KreuzAs},
                       {KaroBube, KaroBube, HerzBube, HerzBube}});
}
RegelOptionen neunenUndArmutRegeln() {
    RegelOptionen o = Tisch::vorhandEins();
    o.neunerwerfen = -1;
    o.armut = -1;
    return o;
}
}  // namespace

// The person at seat 1 is asked first; a yes decides at once, and when it declines
// a computer seat may still ask. Either way the same dealer deals again.
TEST(NeugebenAblauf, MenschZuerstDannComputer) {
    struct Fall { bool ja; const char* titel; const char* text; int sitz; std::size_t karten; };
    const Fall faelle[] = {
        {true, "Neunerwerfen!", "Spieler1 hat 5 Neunen! Es wird neu gegeben!", 1, 5},
        {false, "Armut!", "Spieler3 hat nur 0 Trümpfe! Es wird neu gegeben!", 3, 0},
    };
    for (const Fall& f : faelle) {
        Tisch t(neunenUndArmutRegeln());
        t.geben(neunenUndArmut());
        const Anfrage a = t.anfrage();
        ASSERT_EQ(a.art, Anfrageart::Neugeben);
        EXPECT_EQ(a.sitz, Sitz(1));
        EXPECT_EQ(a.neugeben.frage, "Sie haben 5 Neunen!\nMöchten Sie, daß neu gegeben wird?");
        EXPECT_TRUE(a.neugeben.computerWuerde);
        EXPECT_EQ(t.spiel.partie.geber, 1);
        ASSERT_TRUE(t.ablauf.antworten(Antwort::neugeben(f.ja)));
        const auto m = t.meldungenDerArt(Meldungsart::Neugeben);
        ASSERT_EQ(m.size(), 1u);
        EXPECT_EQ(m[0].titel, f.titel);
        EXPECT_EQ(m[0].text, f.text);
        EXPECT_EQ(m[0].sitz, Sitz(f.sitz));
        EXPECT_EQ(m[0].karten.size(), f.karten) << "the qualifying cards are shown";
        EXPECT_EQ(t.anfrage().art, Anfrageart::Geben);
        EXPECT_EQ(t.spiel.partie.geber, 4);
        EXPECT_EQ(t.spiel.partie.spielNr, 1);
    }
}

TEST(NeugebenAblauf, RegelAusOderNetzspieler) {
    // Without the rules nobody is asked.
    Tisch ohne;
    ohne.geben(neunenUndArmut());
    EXPECT_EQ(ohne.anfrage().art, Anfrageart::Vorbehalt);
    // A person at another machine is asked, not decided for.
    RegelOptionen o = Tisch::vorhandEins();
    o.armut = -1;
    Tisch netz(o);
    netz.spiel.steuerung[Sitz(3)] = Steuerung::Netz;
    netz.geben(neunenUndArmut());
    const Anfrage a = netz.anfrage();
    ASSERT_EQ(a.art, Anfrageart::Neugeben);
    EXPECT_EQ(a.sitz, Sitz(3));
    EXPECT_EQ(a.steuerung, Steuerung::Netz);
    EXPECT_EQ(a.status, "Bitte warten!");
    ASSERT_TRUE(netz.ablauf.antworten(Antwort::neugeben(false)));
    EXPECT_EQ(netz.anfrage().art, Anfrageart::Vorbehalt);
}

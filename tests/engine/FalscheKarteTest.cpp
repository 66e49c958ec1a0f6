#include <gtest/gtest.h>

#include "TestHilfen.h"
#include "engine/Stichspiel.h"

using namespace engine;
using testhilfe::FesteZufall;
using testhilfe::positionVon;
using testhilfe::spielMitHaenden;

namespace {

constexpr int KaroNeun = 1, KaroZehn = 5;
constexpr int HerzKoenig = 10, HerzAs = 12;
constexpr int PikNeun = 13, PikDame = 15, PikKoenig = 16, PikZehn = 17, PikAs = 18;
constexpr int KreuzNeun = 19, KreuzBube = 20, KreuzDame = 21, KreuzAs = 24, Joker = 25;

struct Fall {
    int typ;
    bool franz;
    bool joker;
    int gefuehrt;  // led by seat 4 ("Anna")
    int gewaehlt;  // the illegal card of seat 1
    int andere;    // a card of seat 1 that would follow
    const char* text;
};

std::string meldung(const Fall& f, double zufall = 0.0) {
    Spiel spiel = spielMitHaenden(f.typ, {{f.gewaehlt, f.andere}, {}, {}, {f.gefuehrt}});
    spiel.regeln.joker = f.joker;
    spiel.namen[Sitz(4)] = "Anna";
    spiel.stich.beginnen(Sitz(4));
    karteSpielen(spiel, positionVon(spiel, Sitz(4), f.gefuehrt));
    const int pos = positionVon(spiel, Sitz(1), f.gewaehlt);
    EXPECT_FALSE(karteErlaubt(spiel, Sitz(1), pos)) << f.text;
    FesteZufall z({zufall});
    return falscheKarteMeldung(spiel, pos, f.franz, z);
}

TEST(FalscheKarte, TexteFuerJedenWertInBeidenBildern) {
    const Fall faelle[] = {
        // Plain lead, discarded plain card: accusative of the led card, dative of the chosen one.
        {1, true, false, PikAs, KreuzNeun, PikNeun,
         "Bitte spielen Sie Pik!\nSie haben versucht, das von Anna ausgespielte Pik-As mit einer Kreuz-Neun"
         " zu bedienen,  obwohl Sie noch Pik besitzen."},
        {1, false, false, PikAs, KreuzNeun, PikNeun,
         "Bitte spielen Sie Grün!\nSie haben versucht, das von Anna ausgespielte Grün-Daus mit einer Eichel-Neun"
         " zu bedienen,  obwohl Sie noch Grün besitzen."},
        {1, true, false, PikKoenig, KreuzAs, PikNeun,
         "Bitte spielen Sie Pik!\nSie haben versucht, den von Anna ausgespielten Pik-König mit einem Kreuz-As"
         " zu bedienen,  obwohl Sie noch Pik besitzen."},
        {1, true, false, PikZehn, HerzKoenig, PikNeun,
         "Bitte spielen Sie Pik!\nSie haben versucht, die von Anna ausgespielte Pik-Zehn mit einem Herz-König"
         " zu bedienen,  obwohl Sie noch Pik besitzen."},
        // Plain lead, ruffed.
        {1, true, false, PikKoenig, KreuzDame, PikNeun,
         "Bitte spielen Sie Pik!\nSie haben versucht, den von Anna ausgespielten Pik-König mit einer"
         " Kreuz-Dame(Trumpf!) zu stechen,  obwohl Sie noch Pik besitzen."},
        {1, false, false, PikKoenig, KreuzDame, PikNeun,
         "Bitte spielen Sie Grün!\nSie haben versucht, den von Anna ausgespielten Grün-König mit einem"
         " Eichel-Ober(Trumpf!) zu stechen,  obwohl Sie noch Grün besitzen."},
        {1, true, true, HerzAs, Joker, HerzKoenig,
         "Bitte spielen Sie Herz!\nSie haben versucht, das von Anna ausgespielte Herz-As mit einem"
         " Joker(Trumpf!) zu stechen,  obwohl Sie noch Herz besitzen."},
        {1, false, false, HerzAs, KreuzBube, HerzKoenig,
         "Bitte spielen Sie Rot!\nSie haben versucht, das von Anna ausgespielte Rot-Daus mit einem"
         " Eichel-Unter(Trumpf!) zu stechen,  obwohl Sie noch Rot besitzen."},
        // Trump led, plain card thrown.
        {1, true, false, KaroZehn, HerzKoenig, KaroNeun,
         "Bitte spielen Sie Trumpf!\nAuch Herz-Zehnen, Damen und Buben sind Trumpf!\nSie haben versucht, auf die"
         " von Anna ausgespielte Karo-Zehn(Trumpf!) einen Herz-König abzuwerfen, obwohl Sie noch Trumpf bedienen"
         " können."},
        {1, false, true, KaroZehn, HerzKoenig, KaroNeun,
         "Bitte spielen Sie Trumpf!\nAuch Joker, Rot-Zehnen, Ober und Unter sind Trumpf!\nSie haben versucht, auf die"
         " von Anna ausgespielte Schellen-Zehn(Trumpf!) einen Rot-König abzuwerfen, obwohl Sie noch Trumpf bedienen"
         " können."},
        {1, true, true, Joker, PikZehn, KaroNeun,
         "Bitte spielen Sie Trumpf!\nAuch Joker, Herz-Zehnen, Damen und Buben sind Trumpf!\nSie haben versucht, auf"
         " den von Anna ausgespielten Joker(Trumpf!) eine Pik-Zehn abzuwerfen, obwohl Sie noch Trumpf bedienen"
         " können."},
        {3, true, false, PikDame, HerzAs, PikNeun,
         "Bitte spielen Sie Trumpf!\nAuch Herz-Zehnen, Damen und Buben sind Trumpf!\nSie haben versucht, auf die"
         " von Anna ausgespielte Pik-Dame(Trumpf!) ein Herz-As abzuwerfen, obwohl Sie noch Trumpf bedienen können."},
        {5, true, false, KreuzBube, KreuzAs, KaroNeun + 1,
         "Bitte spielen Sie Trumpf!\nBuben sind Trumpf!\nSie haben versucht, auf den von Anna ausgespielten"
         " Kreuz-Buben(Trumpf!) ein Kreuz-As abzuwerfen, obwohl Sie noch Trumpf bedienen können."},
        {5, false, false, KreuzBube, KreuzAs, KaroNeun + 1,
         "Bitte spielen Sie Trumpf!\nUnter sind Trumpf!\nSie haben versucht, auf den von Anna ausgespielten"
         " Eichel-Unter(Trumpf!) ein Eichel-Daus abzuwerfen, obwohl Sie noch Trumpf bedienen können."},
        {6, true, false, PikDame, PikNeun, KreuzDame,
         "Bitte spielen Sie Trumpf!\nDamen sind Trumpf!\nSie haben versucht, auf die von Anna ausgespielte"
         " Pik-Dame(Trumpf!) eine Pik-Neun abzuwerfen, obwohl Sie noch Trumpf bedienen können."},
        {6, false, false, PikDame, PikNeun, KreuzDame,
         "Bitte spielen Sie Trumpf!\nOber sind Trumpf!\nSie haben versucht, auf den von Anna ausgespielten"
         " Grün-Ober(Trumpf!) eine Grün-Neun abzuwerfen, obwohl Sie noch Trumpf bedienen können."},
        {7, false, false, KreuzBube, PikNeun, KreuzDame,
         "Bitte spielen Sie Trumpf!\nOber und Unter sind Trumpf!\nSie haben versucht, auf den von Anna"
         " ausgespielten Eichel-Unter(Trumpf!) eine Grün-Neun abzuwerfen, obwohl Sie noch Trumpf bedienen können."},
    };
    for (const Fall& f : faelle) EXPECT_EQ(meldung(f), f.text);
}

TEST(FalscheKarte, VierEroeffnungenNachZufall) {
    const Fall f{1, true, false, PikAs, KreuzNeun, PikNeun, ""};
    const std::pair<double, const char*> faelle[] = {
        {0.0, "Bitte spielen Sie Pik!"}, {0.3, "Spielen Sie bitte Pik!"},
        {0.6, "Bedienen Sie bitte Pik!"}, {0.99, "Werfen Sie bitte Pik!"}};
    for (const auto& [zufall, anfang] : faelle) EXPECT_EQ(meldung(f, zufall).rfind(anfang, 0), 0u) << anfang;
}

}  // namespace

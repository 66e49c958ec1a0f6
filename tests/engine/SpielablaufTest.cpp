#include <gtest/gtest.h>

#include "AblaufHilfen.h"
#include "TestHilfen.h"
#include "engine/Selbstspiel.h"
#include "engine/Stichspiel.h"

using namespace engine;
using testhilfe::positionVon;
using testhilfe::Tisch;
using testhilfe::verteilung;

namespace {
constexpr int KaroNeun = 1, PikNeun = 13, PikAs = 18, KreuzAs = 24;

// Plays the first legal card in deck order for every seat; declares nothing.
class ErsteKarte final : public Entscheider {
public:
    int karteWaehlen(const Spiel& spiel, Sitz sitz) override {
        for (int p = spiel.deck.erstePosition(sitz); p <= spiel.deck.letztePosition(sitz); ++p)
            if (spiel.deck[p].status == InHand && karteErlaubt(spiel, sitz, p)) return p;
        return 0;
    }
    Vorbehalt vorbehaltWaehlen(const Spiel&, Sitz) override { return {}; }
    std::optional<Ansage> ansageWaehlen(const Spiel&, Sitz) override { return std::nullopt; }
};
}  // namespace

TEST(Spielablauf, AnfragenUndStatuszeilenEinesSpiels) {
    Tisch t;
    EXPECT_EQ(t.anfrage().art, Anfrageart::Geben);
    EXPECT_EQ(t.spiel.partie.spielNr, 1);
    t.geben(verteilung({{PikNeun}, {PikAs}}));
    t.alleGesund();
    Anfrage a = t.anfrage();
    ASSERT_EQ(a.art, Anfrageart::Karte);
    EXPECT_EQ(a.sitz, Sitz(1));
    EXPECT_EQ(a.status, "Ihre Karte bitte!");
    ASSERT_TRUE(t.ablauf.antworten(Antwort::karte(positionVon(t.spiel, Sitz(1), PikNeun))));
    a = t.anfrage();
    EXPECT_EQ(a.sitz, Sitz(2));
    EXPECT_EQ(a.steuerung, Steuerung::Computer);
    EXPECT_EQ(a.status, "Spieler2 überlegt...");
    t.spiel.steuerung[Sitz(2)] = Steuerung::Netz;
    EXPECT_EQ(t.anfrage().status, "Bitte warten!");
    t.karteSpielen();
    t.karteSpielen();
    t.karteSpielen();
    a = t.anfrage();
    EXPECT_EQ(a.art, Anfrageart::StichEinsammeln);
    EXPECT_EQ(a.status, "Stich komplett... bitte warten");
    EXPECT_EQ(t.spiel.stich.anzahl, 4) << "the full trick stays until collected";
    ASSERT_TRUE(t.ablauf.antworten(Antwort::weiter(Anfrageart::StichEinsammeln)));
    EXPECT_EQ(t.anfrage().sitz, t.spiel.stiche[0].gewinner) << "the winner leads";
    while (t.anfrage().art != Anfrageart::NaechstesSpiel) {
        if (t.anfrage().art == Anfrageart::Karte)
            t.karteSpielen();
        else
            ASSERT_TRUE(t.ablauf.antworten(Antwort::weiter(t.anfrage().art)));
    }
    EXPECT_EQ(t.anfrage().status, "Spiel beendet");
    EXPECT_TRUE(t.spiel.ergebnis.gewertet);
    EXPECT_EQ(t.meldungenDerArt(Meldungsart::Spielende).at(0).text, t.spiel.ergebnis.text);
    ASSERT_TRUE(t.ablauf.antworten(Antwort::weiter(Anfrageart::NaechstesSpiel)));
    EXPECT_EQ(t.anfrage().art, Anfrageart::Geben);
    EXPECT_EQ(t.spiel.partie.spielNr, 2);
    EXPECT_EQ(t.spiel.vorhand, Sitz(2));
    EXPECT_TRUE(t.spiel.stiche.empty());
}

TEST(Spielablauf, FalscheKartenUndAntwortenAendernNichts) {
    Tisch t;
    t.geben(verteilung({{PikAs, KreuzAs, KaroNeun}, {PikNeun}}));
    t.alleGesund();
    ASSERT_TRUE(t.ablauf.antworten(Antwort::karte(positionVon(t.spiel, Sitz(1), PikAs))));
    const Spiel vorher = t.spiel;
    EXPECT_FALSE(t.ablauf.antworten(Antwort::karte(positionVon(t.spiel, Sitz(1), KreuzAs)))) << "not seat 2's card";
    EXPECT_FALSE(t.ablauf.antworten(Antwort::karte(0)));
    EXPECT_FALSE(t.ablauf.antworten(Antwort::karte(99)));
    EXPECT_FALSE(t.ablauf.antworten(Antwort::weiter(Anfrageart::StichEinsammeln)));
    EXPECT_FALSE(t.ablauf.antworten(Antwort::zufallsGeben()));
    EXPECT_TRUE(t.spiel == vorher);
    // Seat 2 holds a Pik and tries a trump: refused with the wrong-card text.
    int trumpf = 0;
    for (int p = t.spiel.deck.erstePosition(Sitz(2)); p <= t.spiel.deck.letztePosition(Sitz(2)); ++p)
        if (t.spiel.deck.istTrumpf(p, Normalspiel)) trumpf = p;
    ASSERT_NE(trumpf, 0);
    const Bescheid b = t.ablauf.antworten(Antwort::karte(trumpf));
    EXPECT_FALSE(b);
    EXPECT_NE(b.grund.find("Pik!\nSie haben versucht, das von Spieler1 ausgespielte Pik-As"), std::string::npos)
        << b.grund;
    EXPECT_EQ(t.spiel.deck[trumpf].status, InHand);
    // A broken deal from outside is refused.
    Tisch neu;
    Kartenverteilung kaputt = verteilung({});
    kaputt[0] = kaputt[1] = kaputt[2];
    EXPECT_FALSE(neu.ablauf.antworten(Antwort::geben(kaputt)));
    EXPECT_EQ(neu.anfrage().art, Anfrageart::Geben);
}

// A saved game keeps no phase: loaded, it finds it from the cards, is not booked
// twice, and plays on exactly as the original (whatever the generator).
TEST(Spielablauf, GeladenesSpielFindetSeinePhaseUndLaeuftWieDasOriginal) {
    struct Fall { const char* name; int stiche, karten; bool gewertet; Anfrageart soll; };
    const Fall faelle[] = {
        {"mitten im Stich", 4, 2, false, Anfrageart::Karte},
        {"voller Stich liegt", 5, 4, false, Anfrageart::StichEinsammeln},
        {"zu Ende, noch nicht gewertet", 12, 4, false, Anfrageart::NaechstesSpiel},
        {"zu Ende und gewertet", 12, 4, true, Anfrageart::NaechstesSpiel},
    };
    for (const Fall& f : faelle) {
        Tisch t(Tisch::vorhandEins(), false);
        ErsteKarte erste;
        const ProSitz<Entscheider*> alle(&erste);
        while (f.gewertet ? !t.spiel.ergebnis.gewertet
                          : t.spiel.sticheGespielt != f.stiche || t.spiel.stich.anzahl != f.karten)
            testhilfe::beantworten(t.ablauf, t.spiel, alle);
        const ProSitz<int> stand = t.spiel.partie.punkte;
        Spiel geladen = t.spiel;
        geladen.ablauf = Ablaufstand{};
        SeedZufall andererZufall(99);
        Spielablauf weiter(geladen, andererZufall);
        weiter.geladenesSpielFortsetzen();
        EXPECT_EQ(weiter.offeneArt(), f.soll) << f.name;
        EXPECT_TRUE(!f.gewertet || geladen.partie.punkte == stand) << f.name << ": not booked twice";
        EXPECT_EQ(geladen.ergebnis.gewertet, f.stiche == 12) << f.name;
        if (f.stiche == 12) continue;  // the next deal would come from the other generator
        EXPECT_EQ(weiter.anfrage().sitz, t.anfrage().sitz) << f.name;
        Selbstspiel(t.ablauf, alle).spielen(1);
        Selbstspiel(weiter, alle).spielen(1);
        EXPECT_TRUE(geladen == t.spiel) << f.name;
    }
}

TEST(Spielablauf, PartieEndetUndNeuePartieBeginnt) {
    RegelOptionen o = Tisch::vorhandEins();
    o.endeNach = 2;
    Tisch t(o, false);
    ErsteKarte erste;
    Selbstspiel(t.ablauf, ProSitz<Entscheider*>(&erste)).spielen(2);
    ASSERT_EQ(t.anfrage().art, Anfrageart::NaechstesSpiel);
    EXPECT_TRUE(t.spiel.ergebnis.partieEnde);
    EXPECT_TRUE(t.ablauf.partieLaeuft());
    ASSERT_TRUE(t.ablauf.antworten(Antwort::weiter(Anfrageart::NaechstesSpiel)));
    EXPECT_EQ(t.anfrage().art, Anfrageart::NeuePartie);
    ASSERT_TRUE(t.ablauf.antworten(Antwort::weiter(Anfrageart::NeuePartie)));
    EXPECT_EQ(t.spiel.partie.partieNr, 2);
    EXPECT_EQ(t.spiel.partie.spielNr, 1);
    EXPECT_EQ(t.spiel.partie.punkte, ProSitz<int>(0));
    EXPECT_EQ(t.spiel.vorhand, Sitz(1)) << "the rule gives the first Vorhand again";
    EXPECT_FALSE(t.ablauf.partieLaeuft());
}

TEST(Spielablauf, AutomatikSpieltFuerSitzEins) {
    Tisch t;
    t.geben(verteilung({}));
    t.alleGesund();
    EXPECT_EQ(t.anfrage().steuerung, Steuerung::Mensch);
    EXPECT_EQ(t.ablauf.automatikUmschalten(), "&Automatik abbrechen");
    EXPECT_EQ(t.anfrage().steuerung, Steuerung::Computer);
    EXPECT_EQ(t.anfrage().status, "Spieler1 überlegt...");
    EXPECT_EQ(t.ablauf.automatikUmschalten(), " &Automatisch spielen ");
    EXPECT_EQ(t.anfrage().status, "Ihre Karte bitte!");
}

#include <gtest/gtest.h>

#include "AblaufHilfen.h"
#include "TestHilfen.h"
#include "engine/Vorbehalte.h"

using namespace engine;
using testhilfe::positionVon;
using testhilfe::proSitz;
using testhilfe::Tisch;
using testhilfe::verteilung;

namespace {
constexpr int KaroAs = 6, HerzDame = 9, PikDame = 15, KreuzDame = 21, KreuzAs = 24, KreuzBube = 20;

Vorbehalt solo(int typ) { return {Vorbehalt::Solo, typ, KeineHochzeit}; }
Vorbehalt hochzeit(int art) { return {Vorbehalt::Hochzeit, Normalspiel, art}; }

RegelOptionen mitVorhand(int v) {
    RegelOptionen o;
    o.vorhand = v;
    return o;
}
}  // namespace

TEST(Vorbehalte, SoloFrageDesMenschen) {
    struct Fall { int vorhand; bool vhSolo; const char* text; };
    const Fall faelle[] = {
        {1, true, "Sie haben Vorhand.\nErwägen Sie ein Solospiel anzusagen?"},
        {4, false,
         "Sie sitzen in Zweithand.\nSpieler4 hat kein Solospiel angesagt!\nErwägen Sie ein Solospiel anzusagen?"},
        {4, true,
         "Sie sitzen in Zweithand.\nAls Solospieler würden Sie Vorhand erhalten.\nSpieler4 hat kein Solospiel "
         "angesagt!\nErwägen Sie ein Solospiel anzusagen?"},
        {3, false,
         "Sie sitzen in Dritthand.\nDie in der Reihenfolge vor Ihnen sitzenden Spieler haben kein Solospiel "
         "angesagt.\nErwägen Sie ein Solospiel anzusagen?"},
        {2, false,
         "Sie sitzen in Hinterhand.\nDie in der Reihenfolge vor Ihnen sitzenden Spieler haben kein Solospiel "
         "angesagt.\nErwägen Sie ein Solospiel anzusagen?"},
    };
    for (const Fall& f : faelle) {
        Spiel spiel = testhilfe::spielMitHaenden(Normalspiel, {});
        spiel.vorhand = Sitz(f.vorhand);
        spiel.regeln.vhSolo = f.vhSolo;
        EXPECT_EQ(soloFrage(spiel, Sitz(1)), f.text) << f.vorhand << " " << f.vhSolo;
    }
}

TEST(Vorbehalte, ReihenfolgeAbVorhandUndSoloBeendetDieRunde) {
    Tisch t(mitVorhand(3));
    t.geben(verteilung({}));
    std::vector<int> gefragt;
    while (t.anfrage().art == Anfrageart::Vorbehalt) {
        const Anfrage a = t.anfrage();
        gefragt.push_back(a.sitz->nr());
        if (a.sitz == Sitz(1)) {
            EXPECT_EQ(a.vorbehalt.soloFrage.substr(0, 24), "Sie sitzen in Dritthand.");
            EXPECT_EQ(a.vorbehalt.soloarten, (std::vector<int>{1, 2, 3, 4, 5, 6, 8})) << "no Damen-Buben-Solo";
            EXPECT_EQ(a.status, "");
            ASSERT_TRUE(t.ablauf.antworten(Antwort::mitVorbehalt(solo(DamenSolo))));
        } else {
            EXPECT_EQ(a.status, "Warte auf Vorbehaltmeldungen...");
            ASSERT_TRUE(t.ablauf.antworten(Antwort::mitVorbehalt({})));
        }
    }
    EXPECT_EQ(gefragt, (std::vector<int>{3, 4, 1})) << "seat 2 is not asked after a solo";
    EXPECT_EQ(t.anfrage().art, Anfrageart::Karte);
    EXPECT_EQ(t.spiel.spieltyp, DamenSolo);
    EXPECT_EQ(t.spiel.solist, Sitz(1));
    EXPECT_EQ(t.spiel.partei[Sitz(1)], ParteiSolo);
    EXPECT_EQ(t.spiel.partei[Sitz(2)], ParteiKontra);
    const auto m = t.meldungenDerArt(Meldungsart::Solo);
    ASSERT_EQ(m.size(), 1u);
    EXPECT_EQ(m[0].text, "Sie spielen ein Damen-Solo!");
}

TEST(Vorbehalte, WasDieRundeErgibt) {
    struct Fall {
        const char* name;
        std::vector<Vorbehalt> antworten;  // in order from Vorhand (seat 1)
        int spieltyp;
        ProSitz<int> partei;
        int hochzeiter, stillerSolist;
        const char* meldung;  // the Solo or Hochzeit message, "" for none
    };
    const Fall faelle[] = {
        {"stilles Solo", {{}, {}, {}, {}}, Normalspiel, proSitz(3, 1, 1, 1), 0, 1, ""},
        {"Hochzeit", {hochzeit(ErsterStich), {}, {}, {}}, Normalspiel, proSitz(2, 1, 1, 1), 1, 0,
         "Sie heiraten den Gewinner  des ersten Stichs! "},
        {"Solo geht vor Hochzeit", {hochzeit(ErsterFehlstich), solo(PikSolo)}, PikSolo, proSitz(1, 3, 1, 1), 0, 0,
         "Spieler2 spielt ein Pik-Solo!"},
        {"Karo-Solo", {{}, {}, solo(Normalspiel)}, Normalspiel, proSitz(1, 1, 3, 1), 0, 0,
         "Spieler3 spielt ein Karo-Solo!"},
    };
    for (const Fall& f : faelle) {
        Tisch t;
        t.geben(verteilung({{KreuzDame, KreuzDame}}));
        for (const Vorbehalt& v : f.antworten) ASSERT_TRUE(t.ablauf.antworten(Antwort::mitVorbehalt(v))) << f.name;
        ASSERT_EQ(t.anfrage().art, Anfrageart::Karte) << f.name;
        EXPECT_EQ(t.spiel.spieltyp, f.spieltyp) << f.name;
        EXPECT_EQ(t.spiel.partei, f.partei) << f.name;
        EXPECT_EQ(nrOderNull(t.spiel.hochzeiter), f.hochzeiter) << f.name;
        EXPECT_EQ(nrOderNull(t.spiel.stillerSolist), f.stillerSolist) << f.name;
        std::string text;
        for (const Meldung& m : t.meldungen.meldungen)
            if (m.art == Meldungsart::Solo || m.art == Meldungsart::Hochzeit) text = m.text;
        EXPECT_EQ(text, f.meldung) << f.name;
    }
}

TEST(Vorbehalte, UnzulaessigeAntwortenWerdenAbgelehnt) {
    Tisch t;
    t.geben(verteilung({{}, {KreuzDame, KreuzDame}}));
    EXPECT_FALSE(t.ablauf.antworten(Antwort::mitVorbehalt(solo(DamenBubenSolo)))) << "needs DaBu_Solo";
    EXPECT_FALSE(t.ablauf.antworten(Antwort::mitVorbehalt(hochzeit(ErsterStich)))) << "seat 1 lacks the Kreuz-Damen";
    EXPECT_FALSE(t.ablauf.antworten(Antwort::karte(1))) << "a card is not a reservation";
    ASSERT_TRUE(t.ablauf.antworten(Antwort::mitVorbehalt({})));
    EXPECT_FALSE(t.ablauf.antworten(Antwort::mitVorbehalt(hochzeit(4)))) << "no such Hochzeit kind";
    EXPECT_TRUE(t.ablauf.antworten(Antwort::mitVorbehalt(hochzeit(ErsterTrumpfstich))));
    // Without solos only the holder of both Kreuz-Damen is asked.
    RegelOptionen o = Tisch::vorhandEins();
    o.solis = 0;
    Tisch ohneSolo(o);
    ohneSolo.geben(verteilung({{}, {KreuzDame, KreuzDame}}));
    EXPECT_EQ(ohneSolo.anfrage().sitz, Sitz(2));
    EXPECT_TRUE(ohneSolo.anfrage().vorbehalt.soloarten.empty());
    EXPECT_TRUE(ohneSolo.anfrage().vorbehalt.hochzeitMoeglich);
}

namespace {
struct Hochzeitsstich { bool trumpfGefuehrt; int gewinner; };

// Plays out the Hochzeit of seat 1 over the given tricks; returns the partner, 0
// for none yet, -1 when seat 1 plays alone.
int hochzeitspartner(int art, const std::vector<Hochzeitsstich>& stiche) {
    Spiel spiel = testhilfe::spielMitHaenden(Normalspiel, {{KreuzDame, KreuzDame, KreuzAs}});
    spiel.hochzeiter = Sitz(1);
    spiel.hochzeitArt = art;
    spiel.partei.fill(ParteiKontra);
    spiel.partei[Sitz(1)] = ParteiRe;
    const int trumpf = positionVon(spiel, Sitz(1), KreuzDame);
    const int fehl = positionVon(spiel, Sitz(1), KreuzAs);
    for (const Hochzeitsstich& s : stiche) {
        StichProtokoll p;
        p.karten = {s.trumpfGefuehrt ? trumpf : fehl, 13, 25, 37};
        p.gewinner = Sitz(s.gewinner);
        spiel.stiche.push_back(p);
        ++spiel.sticheGespielt;
        hochzeitKlaeren(spiel);
    }
    if (!spiel.hochzeitGeklaert) return 0;
    if (spiel.partei[Sitz(1)] == ParteiSolo) return -1;
    EXPECT_EQ(spiel.partei[*spiel.hochzeitPartner], ParteiRe);
    return spiel.hochzeitPartner->nr();
}
}  // namespace

TEST(Vorbehalte, Hochzeitspartner) {
    struct Fall { const char* name; int art; std::vector<Hochzeitsstich> stiche; int partner; };
    const Fall faelle[] = {
        {"erster Stich an Sitz 3", ErsterStich, {{true, 3}}, 3},
        {"erster Stich an den Hochzeiter, zweiter an Sitz 2", ErsterStich, {{true, 1}, {false, 2}}, 2},
        {"Fehlstich: Trumpfstich zählt nicht", ErsterFehlstich, {{true, 3}, {false, 4}}, 4},
        {"Trumpfstich: Fehlstiche zählen nicht", ErsterTrumpfstich, {{false, 3}, {false, 2}, {true, 4}}, 4},
        {"nach drei Stichen ohne Partner: allein", ErsterTrumpfstich, {{false, 3}, {false, 2}, {false, 4}}, -1},
        {"alle drei an den Hochzeiter: allein", ErsterStich, {{true, 1}, {true, 1}, {true, 1}}, -1},
        {"nach zwei Stichen noch offen", ErsterFehlstich, {{true, 2}, {true, 3}}, 0},
        {"geklärt bleibt geklärt", ErsterStich, {{true, 2}, {true, 3}, {true, 4}, {true, 1}}, 2},
    };
    for (const Fall& f : faelle) EXPECT_EQ(hochzeitspartner(f.art, f.stiche), f.partner) << f.name;
}

TEST(Vorbehalte, Pflichtsolo) {
    RegelOptionen o = Tisch::vorhandEins();
    o.solo = -1;
    o.endeNach = 4;
    // Four games left and four seats owing: seat 1, first from Vorhand, must play now.
    Tisch mensch(o);
    mensch.geben(verteilung({}));
    EXPECT_TRUE(mensch.anfrage().vorbehalt.pflichtsolo);
    const Bescheid b = mensch.ablauf.antworten(Antwort::mitVorbehalt({}));
    EXPECT_FALSE(b);
    EXPECT_EQ(b.grund, "Sie müssen jetzt Ihr Pflichtsolo spielen!");
    ASSERT_TRUE(mensch.ablauf.antworten(Antwort::mitVorbehalt(solo(HerzSolo))));
    EXPECT_TRUE(mensch.spiel.pflichtsolo);
    EXPECT_TRUE(mensch.spiel.partie.pflichtsoloGespielt[Sitz(1)]);

    // A computer seat that names no solo plays a Karo-Solo.
    Tisch computer(o, false);
    computer.geben(verteilung({}));
    ASSERT_TRUE(computer.ablauf.antworten(Antwort::mitVorbehalt({})));
    EXPECT_TRUE(computer.spiel.solo);
    EXPECT_EQ(computer.spiel.spieltyp, Normalspiel);
    EXPECT_EQ(computer.spiel.solist, Sitz(1));

    // One game more than seats owing: nobody is forced, but a solo still counts as the duty solo.
    o.endeNach = 5;
    Tisch frei(o);
    frei.geben(verteilung({}));
    EXPECT_FALSE(frei.anfrage().vorbehalt.pflichtsolo);
    ASSERT_TRUE(frei.ablauf.antworten(Antwort::mitVorbehalt({})));
    ASSERT_TRUE(frei.ablauf.antworten(Antwort::mitVorbehalt(solo(BubenSolo))));
    EXPECT_TRUE(frei.spiel.pflichtsolo);
    EXPECT_TRUE(frei.spiel.partie.pflichtsoloGespielt[Sitz(2)]);
}

// With "Vh_Solo" the soloist leads; the person's solo moves the game's Vorhand on,
// a computer's does not, and so the next Vorhand differs with "Hh_n_Solo".
TEST(Vorbehalte, SolospielerHatVorhand) {
    struct Fall { const char* name; int solist; bool hhNSolo; int vorhandImSolo; int naechste; };
    const Fall faelle[] = {
        {"Mensch, danach gemerkter Sitz", 1, false, 4, 4},
        {"Mensch, Hinterhand nach Solo", 1, true, 4, 1},
        {"Computer, danach gemerkter Sitz", 4, false, 3, 4},
        {"Computer, Hinterhand nach Solo", 4, true, 3, 4},
    };
    for (const Fall& f : faelle) {
        RegelOptionen o = mitVorhand(3);
        o.vhSolo = -1;
        o.hhNSolo = f.hhNSolo ? -1 : 0;
        Tisch t(o);
        t.geben(verteilung({}));
        while (t.anfrage().sitz != Sitz(f.solist)) ASSERT_TRUE(t.ablauf.antworten(Antwort::mitVorbehalt({})));
        ASSERT_TRUE(t.ablauf.antworten(Antwort::mitVorbehalt(solo(KreuzSolo))));
        EXPECT_EQ(t.spiel.stich.aufspieler, Sitz(f.solist)) << f.name;
        EXPECT_EQ(t.spiel.vorhand, Sitz(f.vorhandImSolo)) << f.name;
        Partiestand p = t.spiel.partie;
        SeedZufall z(1);
        EXPECT_EQ(vorhandBestimmen(p, t.spiel.regeln, z), Sitz(f.naechste)) << f.name;
    }
}

TEST(Vorbehalte, Schweine) {
    struct Fall {
        const char* name;
        bool ansagen, imKaroSolo;
        int halterSitz;
        Vorbehalt solistWahl;  // what seat 1 declares
        bool gelten;
        const char* meldung;
    };
    const Fall faelle[] = {
        {"still beim Computer", false, false, 2, {}, true, ""},
        {"angesagt", true, false, 2, {}, true, "Spieler2 hat Schweine!"},
        {"beim Menschen immer angesagt", false, false, 1, {}, true, "Sie haben Schweine!"},
        {"nicht im Herz-Solo", true, false, 2, solo(HerzSolo), false, "Spieler2 hat Schweine!"},
        {"nicht im Karo-Solo ohne Regel", false, false, 2, solo(Normalspiel), false, ""},
        {"im Karo-Solo mit Regel", false, true, 2, solo(Normalspiel), true, ""},
    };
    for (const Fall& f : faelle) {
        RegelOptionen o = Tisch::vorhandEins();
        o.zweiSchweine = -1;
        o.schweineAnsagen = f.ansagen ? -1 : 0;
        o.schweineBTrSolo = f.imKaroSolo ? -1 : 0;
        Tisch t(o);
        std::vector<std::vector<int>> haende(4);
        haende[static_cast<std::size_t>(f.halterSitz - 1)] = {KaroAs, KaroAs};
        t.geben(verteilung({haende[0], haende[1], haende[2], haende[3]}));
        ASSERT_TRUE(t.ablauf.antworten(Antwort::mitVorbehalt(f.solistWahl)));
        t.alleGesund();
        const Sitz h(f.halterSitz);
        EXPECT_EQ(t.spiel.schweineHalter.has_value(), f.gelten) << f.name;
        const int pos = positionVon(t.spiel, h, KaroAs);
        EXPECT_EQ(t.spiel.deck[pos].staerke == StaerkeJoker, f.gelten) << f.name;
        const auto m = t.meldungenDerArt(Meldungsart::Schweine);
        EXPECT_EQ(m.empty() ? std::string() : m[0].text, f.meldung) << f.name;
    }
}

TEST(Vorbehalte, SupersauImFarbsolo) {
    for (const bool still : {false, true}) {
        RegelOptionen o = Tisch::vorhandEins();
        o.zweiSchweine = -1;
        o.supersau = -1;
        o.stilleBefoerderung = still ? -1 : 0;
        Tisch t(o);
        t.geben(verteilung({{KreuzAs, KreuzAs, KreuzBube}}));
        ASSERT_TRUE(t.ablauf.antworten(Antwort::mitVorbehalt(solo(KreuzSolo))));
        EXPECT_EQ(t.spiel.supersauHalter, Sitz(1));
        const int pos = positionVon(t.spiel, Sitz(1), KreuzAs);
        EXPECT_EQ(t.spiel.deck[pos].staerke, 32) << "raised only when played";
        ASSERT_TRUE(t.ablauf.antworten(Antwort::karte(pos)));
        EXPECT_EQ(t.spiel.deck[pos].staerke, StaerkeJoker);
        EXPECT_EQ(t.meldungenDerArt(Meldungsart::Supersau).size(), still ? 0u : 1u);
        EXPECT_EQ(t.spiel.spielbericht, std::vector<std::string>{"für Schweinehirt (Spieler 1)"});
    }
}

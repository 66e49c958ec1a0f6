#include <functional>
#include <gtest/gtest.h>

#include "engine/TestHilfen.h"
#include "table/Spielanzeige.h"

namespace {

using namespace engine;

constexpr int KD = kartencode(Kreuz, Dame);

// Cards dealt and the game fixed: the first trick is about to be played.
Spiel imErstenStich(std::initializer_list<std::vector<int>> haende) {
    Spiel spiel = testhilfe::spielMitHaenden(Normalspiel, haende);
    spiel.ablauf.phase = Spielphase::Kartenspiel;
    spiel.partie.spielNr = 1;
    spiel.partei.fill(ParteiKontra);
    return spiel;
}

ProSitz<int> parteien(int a, int b, int c, int d) {
    ProSitz<int> p;
    p[Sitz(1)] = a;
    p[Sitz(2)] = b;
    p[Sitz(3)] = c;
    p[Sitz(4)] = d;
    return p;
}

constexpr int U = ParteiUnbekannt, K = ParteiKontra, R = ParteiRe;

// Before any trick is taken each seat shows what seat 1 may know: its own party from
// its cards, a declared soloist or Hochzeiter, an announcement, the other side of its
// own silent solo; the table's indicator once it shows something.
TEST(Spielanzeige, ParteienAusSichtVonSitz1) {
    const struct {
        const char* fall;
        std::function<void(Spiel&)> lage;
        ProSitz<int> erwartet;
    } faelle[] = {
        {"vor dem Spiel", [](Spiel& s) { s.ablauf.phase = Spielphase::Vorbehalte; }, parteien(U, U, U, U)},
        {"eigene Kreuz-Dame", [](Spiel& s) { s.partei[Sitz(1)] = ParteiRe; }, parteien(R, U, U, U)},
        {"ohne Kreuz-Dame", [](Spiel&) {}, parteien(K, U, U, U)},
        {"Solo von Sitz 3",
         [](Spiel& s) {
             s.solo = true;
             s.solist = Sitz(3);
             s.partei[Sitz(3)] = ParteiSolo;
         },
         parteien(K, K, R, K)},
        {"Hochzeit von Sitz 2, Partner offen",
         [](Spiel& s) {
             s.hochzeiter = Sitz(2);
             s.partei[Sitz(2)] = ParteiRe;
         },
         parteien(U, R, U, U)},
        {"eigene Hochzeit",
         [](Spiel& s) {
             s.hochzeiter = Sitz(1);
             s.partei[Sitz(1)] = ParteiRe;
         },
         parteien(R, U, U, U)},
        {"Hochzeit geklärt",
         [](Spiel& s) {
             s.hochzeiter = Sitz(2);
             s.hochzeitGeklaert = true;
             s.hochzeitPartner = Sitz(4);
             s.partei[Sitz(2)] = s.partei[Sitz(4)] = ParteiRe;
         },
         parteien(K, R, K, R)},
        {"eigenes stilles Solo",
         [](Spiel& s) {
             s.stillerSolist = Sitz(1);
             s.partei[Sitz(1)] = ParteiSolo;
         },
         parteien(R, K, K, K)},
        {"Ansagen",
         [](Spiel& s) {
             s.reAngesagt[Sitz(4)] = true;
             s.kontraAngesagt[Sitz(2)] = true;
         },
         parteien(K, K, U, R)},
        {"Kreuz-Dame gespielt", [](Spiel& s) { s.parteiMarker[Sitz(3)] = ParteiRe; }, parteien(K, U, R, U)},
    };
    for (const auto& f : faelle) {
        Spiel spiel = imErstenStich({{KD}, {KD}});
        spiel.partei[Sitz(2)] = ParteiRe;  // the other Kreuz-Dame: nobody knows yet
        f.lage(spiel);
        EXPECT_EQ(table::sichtbareParteien(spiel, ProSitz<int>(0)), f.erwartet) << f.fall;
    }
    // The indicator counts where it knows something; seat 1 knows itself regardless.
    Spiel spiel = imErstenStich({{}, {KD}});
    ProSitz<int> zeiger(0);
    zeiger[Sitz(1)] = 5;  // Re: a wrong picture does not beat the own cards
    zeiger[Sitz(3)] = 3;  // Kontra (pictures 1..2 unknown, 3..4 Kontra, 5..6 Re)
    EXPECT_EQ(table::sichtbareParteien(spiel, zeiger), parteien(K, U, K, U));
}

TEST(Spielanzeige, AnsagenJeSitz) {
    Spiel spiel = imErstenStich({});
    spiel.partei[Sitz(3)] = ParteiRe;
    spiel.reAngesagt[Sitz(3)] = true;
    spiel.limitSitz = Sitz(3);
    spiel.limitCode = Keine60;
    spiel.kontraAngesagt[Sitz(1)] = true;
    using S = table::Ansageschild;
    EXPECT_EQ(table::ansagenVon(spiel, Sitz(3)), (std::vector<S>{{"Re", R}, {"keine 60", R}}));
    EXPECT_EQ(table::ansagenVon(spiel, Sitz(1)), (std::vector<S>{{"Kontra", K}}));
    EXPECT_TRUE(table::ansagenVon(spiel, Sitz(2)).empty());
    spiel.limitSitz = Sitz(1);
    spiel.limitCode = LimitSchwarz;
    EXPECT_EQ(table::ansagenVon(spiel, Sitz(1)), (std::vector<S>{{"Kontra", K}, {"Schwarz", K}}));
}

TEST(Spielanzeige, Spielecke) {
    const struct {
        const char* fall;
        std::function<void(Spiel&)> lage;
        std::vector<std::string> zeilen;
    } faelle[] = {
        {"Normalspiel", [](Spiel&) {}, {"Normalspiel", "Spiel 5 von 24", "Geber: Spieler2", "Vorhand: Spieler3"}},
        {"nach Punkten, Faktor, Bock",
         [](Spiel& s) {
             s.regeln.abrOption = 1;
             s.regeln.endeBei = 30;
             s.regeln.bockrunden = true;
             s.partie.bock = true;
             s.faktor = 4;
         },
         {"Normalspiel", "Spiel 5 (bis 30 Punkte)", "Geber: Spieler2", "Vorhand: Spieler3", "Faktor 4, Bockspiel"}},
        {"Pflichtsolo mit deutschen Namen",
         [](Spiel& s) {
             s.solo = true;
             s.solist = Sitz(4);
             s.spieltyp = HerzSolo;
             s.pflichtsolo = true;
         },
         {"Rot-Solo (Pflichtsolo)", "Spiel 5 von 24", "Geber: Spieler2", "Vorhand: Spieler3"}},
        {"Hochzeit",
         [](Spiel& s) {
             s.hochzeiter = Sitz(2);
             s.hochzeitArt = ErsterFehlstich;
         },
         {"Hochzeit: erster Fehlstich", "Spiel 5 von 24", "Geber: Spieler2", "Vorhand: Spieler3"}},
        {"stilles Solo eines anderen bleibt still",
         [](Spiel& s) { s.stillerSolist = Sitz(2); },
         {"Normalspiel", "Spiel 5 von 24", "Geber: Spieler2", "Vorhand: Spieler3"}},
        {"vor dem Geben", [](Spiel& s) { s.ablauf.phase = Spielphase::Geben; }, {}},
        {"Vorbehalte", [](Spiel& s) { s.ablauf.phase = Spielphase::Vorbehalte; },
         {"Spiel 5 von 24", "Geber: Spieler2", "Vorhand: Spieler3"}},
    };
    for (const auto& f : faelle) {
        Spiel spiel = imErstenStich({});
        spiel.partie.spielNr = 5;
        spiel.regeln.abrOption = 2;
        spiel.regeln.endeNach = 24;
        spiel.vorhand = Sitz(3);
        spiel.stich.beginnen(Sitz(3));
        f.lage(spiel);
        EXPECT_EQ(table::spielecke(spiel, false), f.zeilen) << f.fall;
    }
}

// The dealer sits before the Vorhand of the deal, also when a soloist here took the lead.
TEST(Spielanzeige, Geber) {
    Spiel spiel = imErstenStich({});
    spiel.vorhand = Sitz(1);
    EXPECT_EQ(table::geber(spiel), Sitz(4));
    spiel.solo = true;
    spiel.solist = Sitz(1);
    spiel.regeln.vhSolo = true;
    spiel.partie.soloVorhandMarke = true;
    spiel.vorhand = Sitz(2);  // moved on from 1 by the solo of seat 1
    EXPECT_EQ(table::geber(spiel), Sitz(4));
}

TEST(Spielanzeige, ZeileDesSpielzettels) {
    Spiel spiel = imErstenStich({});
    spiel.stillerSolist = Sitz(2);
    spiel.partei[Sitz(2)] = ParteiSolo;
    spiel.reAngesagt[Sitz(2)] = true;
    spiel.kontraAngesagt[Sitz(4)] = true;
    spiel.limitSitz = Sitz(4);
    spiel.limitCode = Keine90;
    spiel.sonderpunkte = {{"Doppelkopf", R, 3}, {"Fuchs gefangen", K, 7}};
    spiel.ergebnis.gewertet = true;
    spiel.ergebnis.gewinner = K;
    spiel.ergebnis.augenRe = 100;
    spiel.ergebnis.augenKontra = 140;
    EXPECT_EQ(table::spielangaben(spiel, true),
              (table::Spielangaben{"Stilles Solo", "Kontra", "100 : 140", "Re, Kontra, keine 90 (Kontra)",
                                   "Doppelkopf (Re), Fuchs gefangen (Kontra)"}));
}

}  // namespace

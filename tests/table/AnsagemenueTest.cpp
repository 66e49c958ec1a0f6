#include <gtest/gtest.h>

#include "engine/TestHilfen.h"
#include "table/Ansagemenue.h"

namespace {

using namespace engine;

struct Menuefall {
    const char* name;
    int partei;            // seat 1's party
    int sticheGespielt;
    int kontraRegel;
    int limitRegel;
    bool reVonSitz3 = false;     // seat 3 announced Re
    bool kontraVonSitz1 = false; // seat 1 announced Kontra itself
    bool limitGesagt = false;
    bool laeuft = true;
    const char* text;
    bool reKontraAktiv;
    bool limitsAktiv;
};

TEST(Ansagemenue, BeschriftungUndFreigabeDurchDieAnsagezeitraeume) {
    const Menuefall faelle[] = {
        {"Re vor dem ersten Stich", ParteiRe, 0, 5, 5, false, false, false, true, "&Re ausrufen", true, true},
        {"Kontra im fünften Stich", ParteiKontra, 4, 5, 5, false, false, false, true, "&Kontra geben", true, true},
        {"Kontra nach dem fünften Stich", ParteiKontra, 5, 5, 5, false, false, false, true, "&Kontra geben", false, false},
        {"Zeitraum 1: im ersten Stich", ParteiRe, 0, 1, 1, false, false, false, true, "&Re ausrufen", true, true},
        {"Zeitraum 1: im zweiten Stich", ParteiRe, 1, 1, 1, false, false, false, true, "&Re ausrufen", false, false},
        {"Ansagen unzulässig", ParteiRe, 0, 0, 0, false, false, false, true, "&Re ausrufen", false, false},
        {"Limit länger erlaubt als Re", ParteiRe, 3, 2, 5, false, false, false, true, "&Re ausrufen", false, true},
        {"Partner hat Re schon ausgerufen", ParteiRe, 1, 5, 5, true, false, false, true, "&Re ausrufen", false, true},
        {"Solist darf Re ausrufen", ParteiSolo, 1, 5, 5, false, false, false, true, "&Re ausrufen", true, true},
        {"selbst Kontra gegeben", ParteiKontra, 2, 5, 5, false, true, false, true, "Kontra gegeben", false, true},
        {"Re der anderen Partei hindert Kontra nicht", ParteiKontra, 2, 5, 5, true, false, false, true, "&Kontra geben", true, true},
        {"Limit schon angesagt", ParteiKontra, 2, 5, 5, false, false, true, true, "&Kontra geben", true, false},
        {"kein Spiel im Gange", ParteiRe, 0, 5, 5, false, false, false, false, "&Re ausrufen", false, false},
        {"Partei noch offen", ParteiUnbekannt, 0, 5, 5, false, false, false, true, "&Kontra geben", false, true},
    };
    for (const auto& f : faelle) {
        Spiel spiel = testhilfe::spielMitHaenden(Normalspiel, {});
        spiel.partei[Sitz(1)] = f.partei;
        spiel.partei[Sitz(3)] = ParteiRe;
        spiel.sticheGespielt = f.sticheGespielt;
        spiel.regeln.kontra = f.kontraRegel;
        spiel.regeln.limit = f.limitRegel;
        spiel.reAngesagt[Sitz(3)] = f.reVonSitz3;
        spiel.kontraAngesagt[Sitz(1)] = f.kontraVonSitz1;
        if (f.limitGesagt) spiel.limitSitz = Sitz(2);
        const table::Ansagemenue m = table::ansagemenue(spiel, f.laeuft);
        EXPECT_EQ(m.reKontra.text, f.text) << f.name;
        EXPECT_EQ(m.reKontra.aktiv, f.reKontraAktiv) << f.name;
        for (const auto& limit : m.limits) EXPECT_EQ(limit.aktiv, f.limitsAktiv) << f.name;
    }
}

TEST(Ansagemenue, Limittexte) {
    const table::Ansagemenue m = table::ansagemenue(testhilfe::spielMitHaenden(Normalspiel, {}), true);
    EXPECT_EQ(m.limits[0].text, "Limitgebot (keine 90)");
    EXPECT_EQ(m.limits[1].text, "Limitgebot (keine 60)");
    EXPECT_EQ(m.limits[2].text, "Limitgebot (keine 30)");
    EXPECT_EQ(m.limits[3].text, "Limitgebot (kein Stich)");
}

TEST(Ansagemenue, LimitVorDerErstenKarteZuFrueh) {
    Spiel spiel = testhilfe::spielMitHaenden(Normalspiel, {});
    spiel.stich.beginnen(Sitz(2));
    EXPECT_TRUE(table::limitZuFrueh(spiel));
    spiel.stich.anzahl = 1;
    EXPECT_FALSE(table::limitZuFrueh(spiel));
    spiel.stich.beginnen(Sitz(3));
    spiel.sticheGespielt = 1;
    EXPECT_FALSE(table::limitZuFrueh(spiel));
}

}  // namespace

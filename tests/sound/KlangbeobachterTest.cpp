#include <gtest/gtest.h>

#include "AufzeichnendesGeraet.h"
#include "sound/Klangbeobachter.h"

using namespace sound;
using testhilfe::AufzeichnendesGeraet;
using engine::Sitz;
using engine::Spiel;
using Nummern = std::vector<int>;

namespace {

struct Tisch {
    AufzeichnendesGeraet geraet;
    Klangspieler spieler{geraet};
    std::int64_t jetzt = 0;
    Klangbeobachter beobachter{spieler, [this] { return jetzt; }};

    // The sound numbers played so far, read back from the segments sent.
    Nummern gespielt() const {
        Nummern n;
        for (const std::string& b : geraet.befehle)
            for (const Klangeintrag& e : standardKlangtabelle().eintraege())
                if (b == "play " + std::to_string(e.segment.start) + " " + std::to_string(e.segment.ende)) n.push_back(e.nummer);
        return n;
    }
};

engine::AnsageEintrag ansage(int partei, bool limit = false, int code = -1) {
    engine::AnsageEintrag a;
    a.partei = partei;
    a.limit = limit;
    a.limitCode = code;
    return a;
}

}  // namespace

TEST(Klangbeobachter, AnsagenWerdenGesprochen) {
    struct Fall { engine::AnsageEintrag ansage; Nummern erwartet; };
    for (const Fall& f : {Fall{ansage(engine::ParteiRe), {1}}, Fall{ansage(engine::ParteiKontra), {2}},
                          Fall{ansage(engine::ParteiSolo), {1}}, Fall{ansage(2, true, 3), {4}},
                          Fall{ansage(1, true, 2), {5}}, Fall{ansage(2, true, 1), {6}},
                          Fall{ansage(2, true, 0), {3}}, Fall{ansage(2, true, -1), {}}}) {
        Tisch t;
        t.beobachter.ansageGemacht(Spiel{}, f.ansage);
        EXPECT_EQ(t.gespielt(), f.erwartet) << f.ansage.partei << " " << f.ansage.limitCode;
    }
}

TEST(Klangbeobachter, SpielartZuBeginn) {
    struct Fall { const char* was; int spieltyp; bool solo; int hochzeiter; int schweine; bool ansagen; bool franz; Nummern erwartet; };
    for (const Fall& f : {Fall{"Karo-Solo", 1, true, 0, 0, false, true, {9}},
                          Fall{"Eichel-Solo", 4, true, 0, 0, false, false, {20}},
                          Fall{"Damen-Buben-Solo", 7, true, 0, 0, false, true, {15}},
                          Fall{"Ober-Unter-Solo", 7, true, 0, 0, false, false, {23}},
                          Fall{"Fleischloser", 8, true, 0, 0, false, false, {16}},
                          Fall{"unbekannte Spielart", 9, true, 0, 0, false, true, {}},
                          Fall{"Hochzeit", 1, false, 3, 0, false, true, {7}},
                          Fall{"stilles Solo", 1, false, 0, 0, false, true, {}},
                          Fall{"eigene Schweine", 1, false, 0, 1, false, true, {24}},
                          Fall{"fremde Schweine", 1, false, 0, 3, false, true, {}},
                          Fall{"Schweine ansagen", 1, false, 0, 3, true, true, {24}}}) {
        Tisch t;
        Spiel s;
        s.spieltyp = f.spieltyp;
        s.solo = f.solo;
        if (f.solo) s.solist = Sitz(2);
        if (!f.solo && !f.hochzeiter && !f.schweine) s.stillerSolist = Sitz(2);
        s.hochzeiter = engine::sitzOderNichts(f.hochzeiter);
        s.schweineHalter = engine::sitzOderNichts(f.schweine);
        s.regeln.schweineAnsagen = f.ansagen;
        t.beobachter.franzoesischeNamenSetzen(f.franz);
        t.beobachter.spielBegonnen(s);
        EXPECT_EQ(t.gespielt(), f.erwartet) << f.was;
    }
}

TEST(Klangbeobachter, SchweineBeimErstenGespieltenSchwein) {
    Tisch t;
    Spiel s;
    s.schweineHalter = Sitz(3);
    t.beobachter.spielBegonnen(s);
    t.beobachter.karteGespielt(s, Sitz(3), 25);
    s.schweineGespielt[Sitz(3)] = 1;
    t.jetzt = 1000;
    t.beobachter.karteGespielt(s, Sitz(3), 26);
    t.jetzt = 5000;
    s.schweineGespielt[Sitz(3)] = 2;
    t.beobachter.karteGespielt(s, Sitz(3), 27);
    EXPECT_EQ(t.gespielt(), (Nummern{60, 60, 24, 60}));
}

TEST(Klangbeobachter, EffekteSchneidenSpracheNichtAb) {
    Tisch t;
    t.beobachter.ansageGemacht(Spiel{}, ansage(engine::ParteiKontra));  // sound 2 lasts 840 ms
    t.jetzt = 100;
    t.beobachter.karteGespielt(Spiel{}, Sitz(2), 13);
    t.jetzt = 839;
    t.beobachter.stichKomplett(Spiel{}, Sitz(2));
    t.beobachter.ansageGemacht(Spiel{}, ansage(engine::ParteiRe));  // speech replaces speech
    t.jetzt = 1728;
    t.beobachter.duBistDran();
    t.jetzt = 1729;
    t.beobachter.duBistDran();
    t.beobachter.spielerKommt();
    t.beobachter.spielerGeht();
    t.beobachter.supersau();
    EXPECT_EQ(t.gespielt(), (Nummern{2, 1, 62, 56, 57, 25}));
}

TEST(Klangbeobachter, JederKlangHoertAufSeinenSchalter) {
    struct Fall { Klangoptionen optionen; Nummern erwartet; };
    for (const Fall& f : {Fall{{true, true, true}, {1, 60, 62}}, Fall{{false, true, true}, {60, 62}},
                          Fall{{true, false, true}, {1, 62}}, Fall{{true, true, false}, {1, 60}},
                          Fall{{false, false, true}, {}}}) {
        Tisch t;
        t.spieler.optionenSetzen(f.optionen);
        t.beobachter.ansageGemacht(Spiel{}, ansage(engine::ParteiRe));
        t.jetzt = 10'000;
        t.beobachter.karteGespielt(Spiel{}, Sitz(1), 1);
        t.beobachter.duBistDran();
        EXPECT_EQ(t.gespielt(), f.erwartet) << f.optionen.sprachausgabe << f.optionen.geraeusch << f.optionen.signal;
    }
}

TEST(Klangbeobachter, GewonnenOderVerlorenNachDerBuchung) {
    struct Fall { const char* was; std::array<int, 4> punkteDanach; bool begonnen; Nummern erwartet; };
    for (const Fall& f : {Fall{"eigene Partei gewinnt", {13, 10, 13, 10}, true, {61}},
                          Fall{"Gegner gewinnen", {10, 13, 10, 13}, true, {59}},
                          Fall{"Solist schlägt uns", {10, 10, 19, 10}, true, {59}},
                          Fall{"kalter Schlag", {10, 10, 10, 10}, true, {}},
                          Fall{"Spielbeginn nicht gesehen", {13, 10, 13, 10}, false, {}}}) {
        Tisch t;
        Spiel s;
        s.partie.punkte.fill(10);
        if (f.begonnen) t.beobachter.kartenGegeben(s);
        for (const Sitz sitz : engine::alleSitze) s.partie.punkte[sitz] = f.punkteDanach[static_cast<std::size_t>(sitz.nr() - 1)];
        t.beobachter.spielBeendet(s);
        t.beobachter.spielBeendet(s);  // a second report of the same end plays nothing more
        EXPECT_EQ(t.gespielt(), f.erwartet) << f.was;
    }
}

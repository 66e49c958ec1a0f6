// Host and guests in memory: the order of seats and messages, a Partie played
// across the table, the waiting guest, names, and guests that misbehave.
#include <gtest/gtest.h>

#include <algorithm>

#include "Testtisch.h"
#include "net/Netztexte.h"
#include "net/Tags.h"

using engine::Sitz;
using nettest::Testgast;
using nettest::Testtisch;

namespace {

int zaehlen(const std::vector<std::string>& tags, const std::string& tag) {
    return static_cast<int>(std::count(tags.begin(), tags.end(), tag));
}

// Runs rounds until `bedingung` holds; false after too many.
template <class F>
bool bis(Testtisch& t, F bedingung, int maxRunden = 100000) {
    for (int i = 0; i < maxRunden; ++i) {
        if (bedingung()) return true;
        t.runde();
    }
    return false;
}

// With `g` answering by hand: rounds until the host waits for g's card, with
// everything sent delivered, and `bedingung` holds; earlier questions are answered.
template <class F>
bool bisKarteGefragt(Testtisch& t, Testgast& g, F bedingung) {
    g.automatisch = false;
    return bis(t, [&] {
        if (g.kern.offeneFrage() == net::Gastfrage::Keine) return false;
        if (g.kern.offeneFrage() == net::Gastfrage::Karte && bedingung()) return t.fertig();
        net::gastfrageBeantworten(g.kern, g.ablauf, *g.spieler.spieler[0]);
        return false;
    });
}

int gespieltVon(const engine::Spiel& spiel, Sitz s) {
    int n = 0;
    for (int p = spiel.deck.erstePosition(s); p <= spiel.deck.letztePosition(s); ++p) n += spiel.deck[p].status == engine::Gespielt;
    return n;
}

// What every guest must agree on with the host after the games.
void gleichWieHost(const Testtisch& t, const Testgast& g) {
    SCOPED_TRACE("Gast an Sitz " + std::to_string(g.sitz));
    EXPECT_TRUE(g.seite.abweichungen.empty()) << g.seite.abweichungen.front();
    const net::Sitzabbildung a(g.sitz);
    for (const Sitz s : engine::alleSitze) {
        EXPECT_EQ(g.kern.hostpunkte(s.nr()), t.spiel.partie.punkte[s]);
        EXPECT_EQ(g.spiel.partie.punkte[a.lokal(s.nr())], t.spiel.partie.punkte[s]);
    }
    // The last game trick by trick: the same cards, led and won by the same seats.
    ASSERT_EQ(g.spiel.stiche.size(), t.spiel.stiche.size());
    for (std::size_t i = 0; i < t.spiel.stiche.size(); ++i) {
        const auto& h = t.spiel.stiche[i];
        const auto& l = g.spiel.stiche[i];
        EXPECT_EQ(l.codes, h.codes) << i;
        EXPECT_EQ(l.aufspieler, a.lokal(h.aufspieler.nr())) << i;
        EXPECT_EQ(l.gewinner, a.lokal(h.gewinner.nr())) << i;
    }
    EXPECT_EQ(g.spiel.spieltyp, t.spiel.spieltyp);
    EXPECT_EQ(g.spiel.ergebnis.punkte[a.lokal(1)], t.spiel.ergebnis.punkte[Sitz(1)]);
}

}  // namespace

TEST(Tisch, PlaetzeDreiZweiVierUndKeinVierterGast) {
    Testtisch t;
    Testgast* a = t.verbinden("Anna");
    ASSERT_TRUE(a);
    EXPECT_EQ(a->sitz, 3);
    EXPECT_EQ(nettest::tags(t.seite.alles[3]),
              (std::vector<std::string>{"Netzt", "Serve", "CompN", "Name2", "Name4", "Chat:", "Name?"}));
    const auto login = nettest::nachrichten(t.seite.alles[3]);
    EXPECT_EQ(login[1].nutzlast, "1Gastgeber");
    EXPECT_EQ(login[2].nutzlast, "3");
    EXPECT_EQ(login[3].nutzlast, "Computer1");
    EXPECT_EQ(login[5].nutzlast, net::texte::Willkommen);
    EXPECT_EQ(login[6].nutzlast, "x");
    ASSERT_TRUE(bis(t, [&] { return t.kern.alleBereit() && t.kern.angemeldeteGaeste() == 1; }));
    EXPECT_EQ(t.spiel.namen[Sitz(3)], "Anna");

    Testgast* b = t.verbinden("Bert");
    ASSERT_TRUE(b);
    EXPECT_EQ(b->sitz, 2);
    EXPECT_NE(t.seite.alles[2].find("Name3Anna~&~"), std::string::npos);
    Testgast* c = t.verbinden("Carla");
    ASSERT_TRUE(c);
    EXPECT_EQ(c->sitz, 4);
    EXPECT_EQ(t.kern.spielerzahl(), 4);
    EXPECT_FALSE(t.verbinden("Dora"));

    ASSERT_TRUE(bis(t, [&] { return t.kern.angemeldeteGaeste() == 3 && t.fertig(); }));
    // Each newcomer was announced to those already there, in the chat and by name.
    EXPECT_NE(t.seite.alles[3].find("Chat:*** Bert hat sich angemeldet ***~&~"), std::string::npos);
    EXPECT_NE(t.seite.alles[3].find("Name2Bert~&~"), std::string::npos);
    EXPECT_EQ(a->spiel.namen[Sitz(4)], "Bert");  // host seat 2 at Anna's local seat 4
    EXPECT_EQ(t.seite.chat.back(), "*** Carla hat sich angemeldet! ***");

    // A seat given up is free again; the others hear of it.
    t.trennen(*b);
    EXPECT_EQ(t.spiel.namen[Sitz(2)], "Computer1");
    EXPECT_NE(t.seite.alles[3].find("Abmel2~&~Chat:*** Bert ist abgemeldet! ***~&~Name2Computer1~&~"),
              std::string::npos);
    EXPECT_EQ(t.kern.freierPlatz(), Sitz(2));
}

TEST(Tisch, GaesteSpielenDiePartieWieDerGastgeber) {
    struct Fall {
        std::string name;
        engine::RegelOptionen regeln;
        int spiele;
    };
    std::vector<Fall> faelle(3);
    faelle[0].name = "Grundregeln, Partie nach 3 Spielen";
    faelle[0].regeln.endeNach = 3;
    faelle[0].spiele = 5;
    faelle[1].name = "40 Karten, Joker, Schweine, Neugeben";
    for (int* schalter : {&faelle[1].regeln.scharferRupa, &faelle[1].regeln.joker, &faelle[1].regeln.zweiSchweine,
                          &faelle[1].regeln.supersau, &faelle[1].regeln.neunerwerfen, &faelle[1].regeln.koenigewerfen,
                          &faelle[1].regeln.armut, &faelle[1].regeln.dabuSolo})
        *schalter = -1;
    faelle[1].spiele = 6;
    faelle[2].name = "Pflichtsolo, Solospieler hat Vorhand";
    faelle[2].regeln.solo = -1;
    faelle[2].regeln.vhSolo = -1;
    faelle[2].regeln.hhNSolo = -1;
    faelle[2].regeln.endeNach = 5;
    faelle[2].spiele = 5;
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.name);
        Testtisch t(f.regeln, 7);
        for (const std::string name : {"Anna", "Bert", "Carla"}) t.verbinden(name);
        ASSERT_TRUE(bis(t, [&] { return t.kern.angemeldeteGaeste() == 3 && t.kern.alleBereit(); }));
        ASSERT_TRUE(t.spielen(f.spiele));
        EXPECT_EQ(t.richter.fehlerAnzahl(), 0) << (t.richter.fehler().empty() ? "" : t.richter.fehler().front());
        EXPECT_EQ(t.automat.abgelehnt(), 0);
        for (const auto& g : t.gaeste) {
            gleichWieHost(t, *g);
            EXPECT_EQ(g->kern.spieleBeendet(), f.spiele);
        }
        if (f.regeln.endeNach == 3) {
            EXPECT_NE(std::find(t.gaeste[0]->seite.chat.begin(), t.gaeste[0]->seite.chat.end(),
                                std::string(net::texte::NeuePartieChat)),
                      t.gaeste[0]->seite.chat.end());
            EXPECT_EQ(t.gaeste[0]->spiel.partie.partieNr, 2);
        }
    }
}

// One guest at seat 3: the computer seats get nothing, and host seat 2's cards
// come to the guest's local seat 4.
TEST(Tisch, NichtsAnComputerplaetze) {
    Testtisch t;
    Testgast& g = *t.verbinden("Anna");
    ASSERT_TRUE(bis(t, [&] { return t.kern.alleBereit() && t.kern.angemeldeteGaeste() == 1; }));
    t.ziel = 2;
    t.starten();
    ASSERT_TRUE(bisKarteGefragt(t, g, [&] { return gespieltVon(t.spiel, Sitz(2)) > 0; }));
    for (int h = 1; h <= 4; ++h) EXPECT_EQ(gespieltVon(g.spiel, net::Sitzabbildung(3).lokal(h)), gespieltVon(t.spiel, Sitz(h)));
    EXPECT_GT(gespieltVon(g.spiel, Sitz(4)), 0);
    g.automatisch = true;
    ASSERT_TRUE(t.spielen(2));
    EXPECT_TRUE(t.seite.alles[2].empty());
    EXPECT_TRUE(t.seite.alles[4].empty());
    gleichWieHost(t, g);
    // Before each game: rules, game number, totals, deal, start, Vorhand.
    const auto tags = nettest::tags(t.seite.alles[3]);
    const auto einst = std::find(tags.begin(), tags.end(), "Einst");
    ASSERT_LE(einst + 9, tags.end());
    EXPECT_EQ(std::vector<std::string>(einst, einst + 9),
              (std::vector<std::string>{"Einst", "Lfdsp", "Gpkt1", "Gpkt2", "Gpkt3", "Gpkt4", "Verte", "Start", "Vorha"}));
    EXPECT_EQ(zaehlen(tags, "Endeb"), 2);
}

TEST(Tisch, WartenderGastSpieltAbDemNaechstenSpiel) {
    Testtisch t;
    Testgast& a = *t.verbinden("Anna");
    ASSERT_TRUE(bis(t, [&] { return t.kern.alleBereit() && t.kern.angemeldeteGaeste() == 1; }));
    t.ziel = 2;
    t.starten();
    ASSERT_TRUE(bisKarteGefragt(t, a, [&] { return t.spiel.sticheGespielt == 1; }));
    Testgast& b = *t.verbinden("Bert");
    EXPECT_EQ(b.sitz, 2);
    EXPECT_EQ(t.kern.platz(Sitz(2)).zustand, net::Platzzustand::Wartend);
    EXPECT_EQ(t.spiel.steuerung[Sitz(2)], engine::Steuerung::Computer);
    EXPECT_EQ(nettest::tags(t.seite.alles[2])[3], "Waite");
    ASSERT_TRUE(bisKarteGefragt(t, a, [&] { return t.spiel.sticheGespielt == 3; }));
    a.automatisch = true;
    EXPECT_EQ(b.seite.stati.front(),
              std::string(net::texte::WarteAufSpiel) + std::string(net::texte::Spitzenzeiten));
    EXPECT_EQ(b.seite.stati.back(), "Noch 9 Stiche, dann gehts los!");
    EXPECT_EQ(t.spiel.namen[Sitz(2)], "Computer1");  // still the computer's until the next deal

    ASSERT_TRUE(t.spielen(2));
    EXPECT_EQ(t.kern.platz(Sitz(2)).zustand, net::Platzzustand::Person);
    EXPECT_EQ(t.spiel.namen[Sitz(2)], "Bert");
    EXPECT_NE(t.seite.alles[3].find("Neuer2Bert~&~"), std::string::npos);
    EXPECT_EQ(a.spiel.namen[Sitz(4)], "Bert");
    gleichWieHost(t, a);
    gleichWieHost(t, b);
    EXPECT_EQ(b.kern.spieleBeendet(), 1);
}

TEST(Tisch, NamenAmTisch) {
    Testtisch t;
    Testgast& lang = *t.verbinden("Abcdefghijklmn");
    Testgast& leer = *t.verbinden("");
    ASSERT_TRUE(bis(t, [&] { return t.kern.angemeldeteGaeste() == 1; }));
    EXPECT_EQ(t.spiel.namen[Sitz(3)], "Abcdefghijklm");
    // A guest without a name keeps the computer's (it sends none by itself).
    leer.kern.nameSenden("");
    ASSERT_TRUE(bis(t, [&] { return t.kern.angemeldeteGaeste() == 2; }));
    EXPECT_EQ(t.spiel.namen[Sitz(2)], "Computer1");

    // Taken names, whatever the case: the host asks again with the name.
    Testgast& doppelt = *t.verbinden("abcdefghijklm");
    ASSERT_TRUE(bis(t, [&] { return !doppelt.seite.vergeben.empty(); }));
    EXPECT_EQ(doppelt.seite.vergeben.front(), "abcdefghijklm ist bereits vergeben!\nBitte einen anderen Namen wählen!");
    doppelt.kern.nameSenden("GASTGEBER");
    ASSERT_TRUE(bis(t, [&] { return doppelt.seite.vergeben.size() == 2; }));
    // Umlauts travel in Windows-1252.
    doppelt.kern.nameSenden("Jürgen");
    ASSERT_TRUE(bis(t, [&] { return t.kern.angemeldeteGaeste() == 3 && t.fertig(); }));
    EXPECT_NE(doppelt.seite.alles.find("Name:J\xFCrgen~&~"), std::string::npos);
    EXPECT_NE(t.seite.alles[3].find("Name4J\xFCrgen~&~"), std::string::npos);
    EXPECT_EQ(t.spiel.namen[Sitz(4)], "Jürgen");
    EXPECT_EQ(lang.spiel.namen[Sitz(2)], "Jürgen");
    EXPECT_EQ(zaehlen(nettest::tags(doppelt.seite.alles), "CBere"), 1);
}

// A guest that sends rubbish, cards it does not hold or was not asked for, and
// leaves in the middle of a trick: the host loses nothing of the game.
TEST(Tisch, FeindlicherGastStoertDieParteNicht) {
    Testtisch t;
    Testgast& ehrlich = *t.verbinden("Anna");
    Testgast& feind = *t.verbinden("Bert");
    feind.automatisch = false;
    ASSERT_TRUE(bis(t, [&] { return t.kern.angemeldeteGaeste() == 2; }));
    t.ziel = 3;
    t.starten();
    const Sitz f(feind.sitz);
    t.kern.empfangen(f, "M\xFCll~&~~&~Karte~&~Karte2#~&~Limit9~&~Kontrx~&~Name:NochEinName~&~Stich~&~Ready~&~");
    const auto kartFragen = [&] { return zaehlen(nettest::tags(t.seite.alles[2]), "Kart?"); };
    ASSERT_TRUE(bis(t, [&] {
        if (t.kern.gefragterSitz() != f) return false;
        if (t.ablauf.offeneArt() == engine::Anfrageart::Karte) return true;
        net::gastfrageBeantworten(feind.kern, feind.ablauf, *feind.spieler.spieler[0]);
        t.bytesTragen();
        return false;
    }));
    EXPECT_EQ(t.spiel.namen[f], "Bert");
    const int vorher = kartFragen();
    // A card of another hand, then a Joker nobody holds: refused, asked again each time.
    int fremd = 1;
    while (t.spiel.deck.anzahl(f, fremd) > 0) ++fremd;
    t.kern.empfangen(f, net::rahmen(net::tag::Karte, net::karteSchreiben(2, fremd)));
    t.kern.empfangen(f, "Karte264#1~&~");
    t.kern.takt();
    t.kern.takt();
    EXPECT_EQ(kartFragen(), vorher + 2);
    EXPECT_EQ(t.kern.gefragterSitz(), f);
    EXPECT_NE(t.kern.protokoll().text().find("*** Karte von Bert abgelehnt"), std::string::npos);

    // It leaves in the middle of a trick; the computer plays on from there.
    feind.automatisch = true;
    ASSERT_TRUE(bis(t, [&] { return t.spiel.stich.anzahl == 2 && t.spiel.sticheGespielt >= 2; }));
    t.trennen(feind);
    EXPECT_EQ(t.spiel.steuerung[f], engine::Steuerung::Computer);
    ASSERT_TRUE(t.spielen(3));
    EXPECT_EQ(t.richter.fehlerAnzahl(), 0);
    EXPECT_EQ(t.richter.spiele(), 3);
    gleichWieHost(t, ehrlich);
}

TEST(Tisch, UeberflutenderGastVerliertSeinenPlatz) {
    Testtisch t;
    Testgast& ehrlich = *t.verbinden("Anna");
    Testgast& flut = *t.verbinden("Bert");
    ASSERT_TRUE(bis(t, [&] { return t.kern.angemeldeteGaeste() == 2; }));
    t.ziel = 2;
    t.starten();
    ASSERT_TRUE(bis(t, [&] { return t.spiel.sticheGespielt == 1; }));
    const std::string mib(1024 * 1024, 'x');
    for (std::size_t i = 0; i < mib.size(); i += 4096) t.kern.empfangen(Sitz(flut.sitz), std::string_view(mib).substr(i, 4096));
    flut.verbunden = false;
    EXPECT_EQ(t.seite.getrennt, std::vector<int>{flut.sitz});
    EXPECT_EQ(t.kern.platz(Sitz(flut.sitz)).zustand, net::Platzzustand::Computer);
    ASSERT_TRUE(t.spielen(2));
    EXPECT_EQ(t.richter.fehlerAnzahl(), 0);
    gleichWieHost(t, ehrlich);
}

TEST(Tisch, GastLaesstKartenWartenWaehrendEineKarteFliegt) {
    Testtisch t;
    Testgast& g = *t.verbinden("Anna");
    g.kern.empfangen("Karte232#1~&~Lfdsp3~&~");
    g.kern.setzeAnzeigeBeschaeftigt(true);
    EXPECT_FALSE(g.kern.takt());
    EXPECT_TRUE(g.kern.hatUnverarbeitetes());
    g.kern.setzeAnzeigeBeschaeftigt(false);
    EXPECT_TRUE(g.kern.takt());
    g.kern.setzeAnzeigeBeschaeftigt(true);
    EXPECT_TRUE(g.kern.takt());  // other tags go through
    EXPECT_FALSE(g.kern.hatUnverarbeitetes());
}

// Announcements of the rule book: KontraPruefen's hard rules and score, and the limit rule.
#include <gtest/gtest.h>

#include <functional>

#include "Karten.h"
#include "Situation.h"
#include "players/Kontra.h"
#include "players/Texte.h"

using namespace karten;
using engine::ParteiKontra;
using engine::ParteiRe;
using engine::Sitz;
using testhilfe::Situation;

namespace {

// Seats 1 and 2 Re, 3 and 4 Kontra, mid-game. The seat before `sitz` has led a Pik,
// so `sitz` decides as Zweithand. Seat 3 holds trumps enough that seat 2 has no
// trump superiority unless `ueberlegen`.
struct Ansagelage {
    Situation s;
    const Sitz sitz;

    static std::vector<std::vector<int>> haende(bool ueberlegen) {
        std::vector<int> drei{KaroNeun, PikAs};
        if (!ueberlegen) drei.insert(drei.end(), {KaroKoenig, KaroZehn, KaroAs});
        return {{KreuzDame, PikNeun}, {KreuzDame, Dolle, HerzDame, KaroBube, PikKoenig}, drei, {HerzNeun, PikZehn}};
    }

    explicit Ansagelage(int sitzNr = 2, int stiche = 0, bool ueberlegen = true)
        : s(engine::Normalspiel, haende(ueberlegen)), sitz(sitzNr) {
        s.spiel.ablauf.phase = engine::Spielphase::Kartenspiel;
        const Sitz vorher = sitz.plus(3);
        s.aufspieler(vorher.nr());
        constexpr std::array<int, 4> pik{PikNeun, PikKoenig, PikAs, PikZehn};
        s.spielt(pik[static_cast<std::size_t>(vorher.nr() - 1)]);
        s.wissenAufbauen();
        s.spiel.sticheGespielt = stiche;
        // Everybody knows the parties.
        for (int x = 1; x <= 4; ++x) s.alleGlauben(x, x <= 2 ? ParteiRe : ParteiKontra);
    }
    players::Ansagepruefung pruefen() { return players::kontraPruefen(s.lage()); }
    void augen(int a1, int a2, int a3, int a4) {
        const std::array<int, 4> a{a1, a2, a3, a4};
        for (const Sitz x : engine::alleSitze) s.spiel.augen[x] = a[static_cast<std::size_t>(x.nr() - 1)];
    }
    void limit(int von, int code) {
        s.spiel.limitSitz = Sitz(von);
        s.spiel.limitCode = code;
    }
};

}  // namespace

TEST(KontraPruefen, AnsagewertVorUndNachDemErstenStich) {
    Ansagelage vorher;
    const int w0 = vorher.pruefen().wert;
    // Knows seat 1 as partner +1, one Kreuz-Dame +20, void in Herz +20, before the first trick -20.
    EXPECT_EQ(w0, 21);
    struct Zeile { const char* name; bool ueberlegen; int delta; };
    // After a trick: the -20 goes, -19 for the trick, +11 per trump with one trump more than everyone.
    for (const Zeile z : {Zeile{"Trumpfüberlegenheit", true, 20 - 19 + 4 * 11}, Zeile{"ohne", false, 20 - 19}}) {
        Ansagelage danach(2, 1, z.ueberlegen);
        Ansagelage davor(2, 0, z.ueberlegen);
        EXPECT_EQ(danach.pruefen().wert - davor.pruefen().wert, z.delta) << z.name;
    }
}

TEST(KontraPruefen, BeitraegeZumAnsagewert) {
    struct Zeile { const char* name; int sitz; std::function<void(Ansagelage&)> aendern; int delta; };
    const Zeile zeilen[] = {
        {"schon verdoppelt", 2, [](Ansagelage& a) { a.s.spiel.faktor = 2; }, -59},
        {"Partner an Sitz 1 unbekannt", 2, [](Ansagelage& a) { a.s.glaubt(2, 1, engine::ParteiUnbekannt); }, -12},
        {"Hochzeit, als Kontra", 3, [](Ansagelage& a) { a.s.spiel.hochzeiter = Sitz(1); }, -35},
        {"Hochzeit, als Re", 2, [](Ansagelage& a) { a.s.spiel.hochzeiter = Sitz(1); }, 0},
        {"Schweine beim Partner", 2, [](Ansagelage& a) { a.s.spiel.schweineHalter = Sitz(1); }, 10},
        {"Schweine beim Gegner",
         2,
         [](Ansagelage& a) {
             a.s.spiel.schweineHalter = Sitz(3);
             a.s.spiel.regeln.schweineAnsagen = true;
         },
         -49},
        {"Schweine beim Gegner, nicht gezeigt", 2, [](Ansagelage& a) { a.s.spiel.schweineHalter = Sitz(3); }, 0},
        {"eigene Augen", 2, [](Ansagelage& a) { a.augen(0, 30, 0, 0); }, 30},
        {"Augen der anderen", 2, [](Ansagelage& a) { a.augen(20, 0, 30, 0); }, 0},
    };
    for (const Zeile& z : zeilen) {
        Ansagelage basis(z.sitz);
        Ansagelage geaendert(z.sitz);
        z.aendern(geaendert);
        EXPECT_EQ(geaendert.pruefen().wert - basis.pruefen().wert, z.delta) << z.name;
    }
}

TEST(KontraPruefen, AsseUndZehnenDerFehlfarben) {
    struct Zeile { const char* name; int karte; int delta; };
    for (const Zeile z : {Zeile{"As", PikAs, 20}, Zeile{"Zehn", PikZehn, 10}, Zeile{"Trumpf-As zählt nicht", KaroAs, 0}}) {
        Ansagelage mitKoenig;
        Ansagelage mitKarte;
        auto& k = mitKarte.s.spiel.deck[mitKarte.s.position(2, PikKoenig)];
        k.code = z.karte;
        mitKarte.s.spiel.deck.attributeBerechnen();
        mitKarte.s.spiel.deck.staerkenBerechnen(engine::Normalspiel);
        // Without Pik the hand is void in a suit already led: no bonus for that.
        EXPECT_EQ(mitKarte.pruefen().wert - mitKoenig.pruefen().wert, z.delta) << z.name;
    }
}

// The hard rules by the Augen so far decide alone and say why: the party that holds
// the Augen it needs announces at once, at any score; with its own keine 90 and the
// others 11 Augen short of breaking it, not even with the game won; the opponents'
// limit broken, Kontra; a game that cannot be won any more, nothing.
TEST(KontraPruefen, HarteRegelnNachDenAugen) {
    const std::string gewonnen(players::text::BereitsGewonnen), nicht(players::text::NichtGewinnbar);
    const std::string gefahr = "Spieler2" + std::string(players::text::EigenesLimitInGefahr);
    const std::string erreicht = "Gebe Kontra, weil gegnerisches Limit von 90 bereits erreicht!";
    struct Zeile { const char* name; int sitz; std::array<int, 4> augen; int limitSitz; bool ansagen;
                   std::string text; bool gezeigt; };
    const Zeile zeilen[] = {
        {"Re mit 121", 2, {0, 121, 0, 0}, 0, true, gewonnen, true},
        {"Re mit 121 zusammen mit dem Partner", 2, {60, 61, 0, 0}, 0, true, gewonnen, true},
        {"Re mit 120", 2, {0, 120, 0, 0}, 0, false, gewonnen, false},
        {"Kontra mit 120", 3, {0, 0, 60, 60}, 0, true, gewonnen, true},
        {"eigenes Limit, die anderen 11 zu kurz", 2, {0, 130, 79, 0}, 2, false, gefahr, true},
        {"eigenes Limit, die anderen 12 zu kurz", 2, {0, 130, 78, 0}, 2, true, gefahr, false},
        {"gegnerisches Limit gebrochen", 2, {50, 40, 20, 0}, 3, true, erreicht, true},
        {"gegnerisches Limit noch nicht", 2, {49, 40, 20, 0}, 3, false, erreicht, false},
        {"Re, die anderen mit 119", 2, {0, 0, 119, 0}, 0, false, nicht, true},
        {"Re, die anderen mit 118", 2, {0, 0, 118, 0}, 0, false, nicht, false},
        {"Kontra, die anderen mit 120", 3, {60, 60, 0, 0}, 0, false, nicht, true},
    };
    for (const Zeile& z : zeilen) {
        Ansagelage a(z.sitz, 4, false);
        if (z.limitSitz) a.limit(z.limitSitz, engine::Keine90);
        a.augen(z.augen[0], z.augen[1], z.augen[2], z.augen[3]);
        const players::Ansagepruefung e = a.pruefen();
        EXPECT_EQ(e.ansagen, z.ansagen) << z.name;
        EXPECT_EQ(a.s.zeigte(z.text), z.gezeigt) << z.name;
        if (z.text == gewonnen && z.gezeigt) {
            EXPECT_EQ(e.wert, players::AnsageSicher) << z.name;
        }
    }
}

// A score that happens to be 101 is a score like any other: the seat says why it announces.
TEST(KontraPruefen, AnsagewertVon101IstKeineHarteRegel) {
    Ansagelage a;
    a.augen(0, 80, 0, 0);  // 21 + 80
    const players::Ansagepruefung e = a.pruefen();
    EXPECT_TRUE(e.ansagen);
    EXPECT_EQ(e.wert, 101);
    EXPECT_EQ(a.s.regeln(), std::vector<std::string>{"KontraPruefen:Wert"});
}

// Leading after the first trick the seat does not decide at all.
TEST(KontraPruefen, KeinEntscheidAmAufspiel) {
    Situation s(engine::Normalspiel, Ansagelage::haende(true));
    s.spiel.ablauf.phase = engine::Spielphase::Kartenspiel;
    s.aufspieler(2);
    s.wissenAufbauen();
    s.spiel.sticheGespielt = 1;
    s.spiel.augen[Sitz(2)] = 130;
    const players::Ansagepruefung e = players::kontraPruefen(s.lage());
    EXPECT_FALSE(e.ansagen);
    EXPECT_EQ(e.wert, 0);
}

namespace {

// Seat 1 plays a Damen-Solo and holds every trump left and the Kreuz-As; one trick is done.
struct Limitlage {
    Situation s{engine::DamenSolo,
                {{KreuzDame, KreuzDame, PikDame, KreuzAs}, {PikNeun, HerzNeun, KaroNeun, KreuzNeun},
                 {PikKoenig, HerzKoenig, KaroKoenig, KreuzKoenig}, {PikBube, HerzBube, KaroBube, KreuzBube}}};
    Limitlage(int gegnerAugen, int gegnerStiche, int aufspieler = 1) {
        s.spiel.ablauf.phase = engine::Spielphase::Kartenspiel;
        s.aufspieler(aufspieler);
        s.wissenAufbauen();
        s.solo(1);
        s.spiel.sticheGespielt = 1;
        s.spiel.augen[Sitz(3)] = gegnerAugen;
        s.spiel.stichzahl[Sitz(3)] = gegnerStiche;
    }
};

}  // namespace

// Only leading, after the first trick, with the parties known and no limit yet:
// the safest limit that the opponents' Augen and tricks still allow.
TEST(LimitPruefen, SicherNachAugenUndKarten) {
    struct Zeile { const char* name; int augen, stiche, aufspieler; void (*aendern)(Situation&); std::optional<int> limit; };
    const Zeile zeilen[] = {
        {"Gegner ohne Stich", 0, 0, 1, nullptr, engine::LimitSchwarz},
        {"Gegner mit 15 Augen", 15, 1, 1, nullptr, engine::Keine30},
        {"Gegner mit 25 Augen", 25, 1, 1, nullptr, engine::Keine60},
        {"Gegner mit 79 Augen", 79, 1, 1, nullptr, engine::Keine90},
        {"Gegner mit 80 Augen", 80, 1, 1, nullptr, std::nullopt},
        {"nicht am Aufspiel", 0, 0, 4, [](Situation& s) { s.spielt(PikBube); }, std::nullopt},
        {"vor dem ersten Stich", 0, 0, 1, [](Situation& s) { s.spiel.sticheGespielt = 0; }, std::nullopt},
        {"Partei unbekannt", 0, 0, 1, [](Situation& s) { s.glaubt(1, 3, engine::ParteiUnbekannt); }, std::nullopt},
        {"schon ein Limit", 0, 0, 1,
         [](Situation& s) { s.spiel.limitSitz = Sitz(2); s.spiel.limitCode = engine::Keine90; }, std::nullopt},
    };
    for (const Zeile& z : zeilen) {
        Limitlage l(z.augen, z.stiche, z.aufspieler);
        if (z.aendern) z.aendern(l.s);
        EXPECT_EQ(players::limitPruefen(l.s.lage()), z.limit) << z.name;
    }
}

// Through the player: leading after the first trick only a limit is considered;
// following with the game won, Re.
TEST(Regelwerk, AnsageWaehlen) {
    {
        Limitlage l(15, 1);
        l.s.spiel.augen[Sitz(1)] = 130;
        players::Regelwerk regelwerk(l.s.wissen, l.s.zufall, &l.s.meldungen);
        EXPECT_EQ(regelwerk.ansageWaehlen(l.s.spiel, Sitz(1)), (engine::Ansage{true, engine::Keine30}));
        players::Regelwerk ohne(l.s.wissen, l.s.zufall, nullptr, players::Regelwerksart{true, false});
        EXPECT_EQ(ohne.ansageWaehlen(l.s.spiel, Sitz(1)), std::nullopt);
    }
    {
        Limitlage l(15, 1, 4);
        l.s.spielt(PikBube);
        l.s.spiel.augen[Sitz(1)] = 130;
        players::Regelwerk regelwerk(l.s.wissen, l.s.zufall, &l.s.meldungen);
        EXPECT_EQ(regelwerk.ansageWaehlen(l.s.spiel, Sitz(1)), engine::Ansage{});
        l.s.spiel.reAngesagt[Sitz(1)] = true;
        EXPECT_EQ(regelwerk.ansageWaehlen(l.s.spiel, Sitz(1)), std::nullopt);
    }
}

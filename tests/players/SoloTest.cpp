// The reservations of the rule book: safe solos by the estimate, the unsafe solo
// steps, the silent solo, the duty solo and the Hochzeit kind.
#include <gtest/gtest.h>

#include "Karten.h"
#include "Situation.h"
#include "Verteilung.h"
#include "players/Solo.h"
#include "players/Texte.h"

using namespace karten;
using engine::Sitz;
using players::Sologrund;
using testhilfe::mitRest;
using testhilfe::Situation;

namespace {

struct Vorbehaltlage {
    Situation s;
    players::Solotabellen tabellen;
    players::Meldungsliste meldungen;

    explicit Vorbehaltlage(const std::vector<int>& sitz1, int vorhand = 1)
        : s(engine::Normalspiel, mitRest(sitz1)) {
        s.spiel.vorhand = Sitz(vorhand);
        s.spiel.ablauf.phase = engine::Spielphase::Vorbehalte;
    }
    players::Solowahl pruefen(players::Soloarten arten = {}) {
        if (arten == players::Soloarten{}) arten = players::soloartenAusRegeln(s.spiel.regeln);
        const players::Melder melder(&meldungen, Sitz(1), true);
        return players::soloPruefen(s.spiel, Sitz(1), arten, tabellen, melder);
    }
    engine::Vorbehalt regelwerk() {
        players::Regelwerk r(s.wissen, s.zufall, &meldungen);
        return r.vorbehaltWaehlen(s.spiel, Sitz(1));
    }
    std::string letzterText() const { return meldungen.meldungen.empty() ? "" : meldungen.meldungen.back().text; }
};

// All Damen and both Dollen: every colour solo pulls the trumps; the two last cards decide.
std::vector<int> zehnHoheTruempfe(int a, int b) {
    return {Dolle, Dolle, KreuzDame, KreuzDame, PikDame, PikDame, HerzDame, HerzDame, KaroDame, KaroDame, a, b};
}

}  // namespace

TEST(Soloschaetzung, VerlustNachTrumpfabziehen) {
    using engine::Normalspiel;
    struct Zeile {
        const char* name;
        std::vector<int> hand;
        int art;
        int vorhand;
        bool abziehen;
        int stiche;
        int augen;
    };
    const Zeile zeilen[] = {
        {"alles von oben: nichts verloren", zehnHoheTruempfe(KreuzAs, KreuzAs), engine::KreuzSolo, 1, true, 0, 0},
        {"nicht am Aufspiel: 240", zehnHoheTruempfe(KreuzAs, KreuzAs), engine::KreuzSolo, 2, true, 12, 240},
        // Two Herz-Zehnen below the others' Asse in the Damen-Solo: each takes the three fattest cards along.
        {"zwei Verlierer", zehnHoheTruempfe(KreuzAs, KreuzAs), engine::DamenSolo, 1, true, 2, 10 + 10 + 11 * 6},
        {"Buben-Solo ohne Buben zieht nicht", zehnHoheTruempfe(KreuzAs, KreuzAs), engine::BubenSolo, 1, false, 12, 240},
        {"ohne Trumpf gibt es nichts zu ziehen", {KreuzAs, KreuzAs, KreuzZehn, KreuzZehn, PikAs, PikAs, PikZehn, PikZehn,
                                                  HerzAs, HerzAs, KaroAs, KaroAs},
         engine::SoloOhneTrumpf, 1, true, 0, 0},
        {"Normalspiel ohne hohe Trümpfe", {KaroNeun, KaroKoenig, HerzNeun, HerzKoenig, PikNeun, PikKoenig, KreuzNeun,
                                           KreuzKoenig, KaroBube, HerzBube, PikBube, KreuzBube},
         Normalspiel, 1, false, 12, 240},
    };
    for (const Zeile& z : zeilen) {
        Vorbehaltlage v(z.hand, z.vorhand);
        const players::Soloschaetzung e =
            players::soloSchaetzen(v.s.spiel, Sitz(1), z.art, players::spieltZuerstAus(v.s.spiel, Sitz(1)));
        EXPECT_EQ(e.abziehen, z.abziehen) << z.name;
        EXPECT_EQ(e.stiche, z.stiche) << z.name;
        EXPECT_EQ(e.augen, z.augen) << z.name;
        if (e.abziehen && z.vorhand == 1) {
            EXPECT_LT(e.augen, players::SicherUnter) << z.name;
        }
    }
}

// The running game's kind is read from the deck, any other kind from the card codes
// gathered once: without Schweine both must see the same hands, also with cards played
// and from every seat.
TEST(Soloschaetzung, DeckUndKartencodesGleich) {
    const std::vector<int> sitz1{KreuzDame, PikDame, HerzBube, Dolle, KaroAs, KaroZehn,
                                 KreuzAs, KreuzZehn, PikKoenig, HerzAs, HerzNeun, KaroNeun};
    const auto voll = mitRest(sitz1);
    auto gespielt = voll;  // hands of 12, 9, 7 and 10 cards left
    gespielt[1].resize(9);
    gespielt[2].resize(7);
    gespielt[3].resize(10);
    for (const auto& haende : {voll, gespielt})
        for (int art = engine::Normalspiel; art <= engine::SoloOhneTrumpf; ++art) {
            Situation s(art, haende);
            s.spiel.regeln.zweiSchweine = false;
            s.spiel.regeln.supersau = false;
            s.spiel.ablauf.phase = engine::Spielphase::Kartenspiel;
            for (const Sitz sitz : engine::alleSitze)
                for (const bool amAufspiel : {true, false}) {
                    const auto ausDeck = players::soloSchaetzen(s.spiel, sitz, art, amAufspiel);
                    const auto ausCodes =
                        players::soloSchaetzen(players::solokarten(s.spiel, sitz), s.spiel.regeln, art, amAufspiel);
                    const std::string fall = "Art " + std::to_string(art) + " Sitz " + std::to_string(sitz.nr()) +
                                             " Karten " + std::to_string(haende[1].size());
                    EXPECT_EQ(ausDeck.abziehen, ausCodes.abziehen) << fall;
                    EXPECT_EQ(ausDeck.sicher, ausCodes.sicher) << fall;
                    EXPECT_EQ(ausDeck.stiche, ausCodes.stiche) << fall;
                    EXPECT_EQ(ausDeck.augen, ausCodes.augen) << fall;
                }
        }
}

TEST(Soloschaetzung, Abziehrunden) {
    struct Zeile { int fremde; std::array<int, 3> haende; double sicherheit; int runden; };
    const Zeile zeilen[] = {
        {0, {12, 12, 12}, 0.95, 0},
        {1, {12, 12, 12}, 0.95, 1},
        {3, {12, 12, 12}, 0.95, 3},   // two rounds hold in 90.8 % of the spreads only
        {3, {12, 12, 12}, 0.90, 2},
        {14, {12, 12, 12}, 0.95, 8},
        {2, {1, 1, 0}, 0.95, 1},      // one card each: no hand can hold two
        {5, {1, 1, 1}, 0.95, 5},      // more trumps than cards: never safe
    };
    for (const Zeile& z : zeilen)
        EXPECT_EQ(players::abziehrunden(z.fremde, z.haende, z.sicherheit), z.runden) << z.fremde << " " << z.sicherheit;
}

// Equal loss in several colours: the most trumps, and Herz when they tie on that too.
TEST(SicheresSolo, GleicherVerlustMehrTruempfeDannHerz) {
    struct Zeile { const char* name; int a; int b; int art; };
    const Zeile zeilen[] = {
        {"Karo- und Herz-Solo mit je 11 Trümpfen", KaroAs, HerzAs, engine::HerzSolo},
        {"Herz- und Pik-Solo mit je 11 Trümpfen", HerzAs, PikAs, engine::HerzSolo},
        {"Pik-Solo mit 12 Trümpfen", PikAs, PikAs, engine::PikSolo},
        {"Kreuz-Solo mit 12 Trümpfen", KreuzAs, KreuzAs, engine::KreuzSolo},
    };
    for (const Zeile& z : zeilen) {
        Vorbehaltlage v(zehnHoheTruempfe(z.a, z.b));
        const int art = players::sicheresSolo(v.s.spiel, Sitz(1), players::soloartenAusRegeln(v.s.spiel.regeln), v.tabellen);
        EXPECT_EQ(art, z.art) << z.name;
        for (int farbe = engine::Normalspiel; farbe <= engine::KreuzSolo; ++farbe)
            EXPECT_EQ(v.tabellen.augenVerlust[Sitz(1)][static_cast<std::size_t>(farbe)], 0) << z.name << " " << farbe;
        // Without its option the Damen-Buben-Solo is never safe.
        EXPECT_EQ(v.tabellen.augenVerlust[Sitz(1)][engine::DamenBubenSolo], players::NieSicher) << z.name;
    }
}

// A seat that does not lead is never safe; its tables hold what the estimate says.
TEST(SicheresSolo, OhneAufspielWieDieSchaetzung) {
    for (const int vorhand : {1, 2}) {
        Vorbehaltlage v(zehnHoheTruempfe(KreuzAs, KreuzAs), vorhand);
        const auto arten = players::soloartenAusRegeln(v.s.spiel.regeln);
        const int art = players::sicheresSolo(v.s.spiel, Sitz(1), arten, v.tabellen);
        EXPECT_EQ(art, vorhand == 1 ? engine::KreuzSolo : 0) << vorhand;
        if (vorhand == 1) continue;
        const auto karten = players::solokarten(v.s.spiel, Sitz(1));
        for (int a = engine::Normalspiel; a <= engine::SoloOhneTrumpf; ++a) {
            const auto i = static_cast<std::size_t>(a);
            const auto e = players::soloSchaetzen(karten, v.s.spiel.regeln, a, false);
            EXPECT_EQ(v.tabellen.stichVerlust[Sitz(1)][i], e.stiche) << a;
            EXPECT_EQ(v.tabellen.augenVerlust[Sitz(1)][i], arten[i] ? e.augen : players::NieSicher) << a;
        }
    }
}

std::vector<int> mit(std::vector<int> hand, int karte) {
    hand.push_back(karte);
    return hand;
}

TEST(SoloPruefen, Faelle) {
    using engine::Normalspiel;
    // Ten Karo trumps with three of Zehn and As, but only Dolle and Kreuz-Dame high.
    const std::vector<int> zehnKaro{KaroAs, KaroAs, KaroZehn, KaroZehn, KaroKoenig, Dolle, KreuzDame, KaroBube,
                                    KaroDame, PikAs, KreuzAs};
    // A Kreuz-Solo beside a blank Pik-König.
    const std::vector<int> blankerKoenig{KreuzAs, KreuzAs, KreuzZehn, KreuzZehn, KreuzKoenig, Dolle, Dolle, KreuzDame,
                                         PikDame, PikBube, PikKoenig, HerzAs};
    // Kreuz 4 points, Pik 3, Herz 1: exactly 8.
    const std::vector<int> achtPunkte{KreuzAs, KreuzAs, KreuzZehn, KreuzKoenig, PikAs, PikAs, PikZehn, HerzAs,
                                      HerzKoenig, KaroNeun, KaroBube};
    // Without the second Kreuz-Bube the trumps cannot be pulled.
    const std::vector<int> buben{KreuzBube, KaroBube, PikBube, PikBube, HerzBube, KaroAs, HerzAs, PikAs, KreuzAs,
                                 HerzNeun, PikNeun, KreuzNeun};
    const std::vector<int> sechsBuben{KreuzBube, KreuzBube, PikBube, PikBube, HerzBube, HerzBube, KaroAs, HerzAs, PikAs,
                                      KreuzAs, PikNeun, KreuzNeun};
    const std::vector<int> figuren{KreuzDame, PikDame, PikDame, HerzDame, HerzDame, KaroDame, KaroDame, KreuzBube,
                                   PikBube, PikBube, HerzBube, KreuzAs};
    struct Zeile {
        const char* name;
        std::vector<int> hand;
        int vorhand;
        bool vhSolo, dabu;
        int art;
        Sologrund grund;
        std::string text;     // the last report, "" unchecked
        int langeFarbe = -1;  // -1 unchecked
    };
    const Zeile zeilen[] = {
        {"sicheres Herz-Solo", zehnHoheTruempfe(HerzAs, PikAs), 1, false, false, engine::HerzSolo, Sologrund::Sicher,
         "Spieler1 hat  s i c h e r e s  Solo bei Trumpf = 2 gefunden!"},
        {"zehn Trümpfe, zwei hohe", mit(zehnKaro, HerzBube), 2, false, false, 0, Sologrund::Keiner, ""},
        {"zehn Trümpfe, drei hohe", mit(zehnKaro, PikDame), 2, false, false, Normalspiel, Sologrund::Farbe,
         "Sage unsicheres Solo der Farbe 1 an!"},
        {"blanker König in Vorhand", blankerKoenig, 1, false, false, 0, Sologrund::Keiner, ""},
        {"blanker König in Zweithand", blankerKoenig, 2, false, false, engine::KreuzSolo, Sologrund::Farbe, ""},
        {"blanker König, Solospieler hat Vorhand", blankerKoenig, 2, true, false, 0, Sologrund::Keiner, ""},
        {"fleischlos ohne lose Zehn", mit(achtPunkte, KaroKoenig), 1, false, false, engine::SoloOhneTrumpf,
         Sologrund::Fleischlos, "", engine::Kreuz},
        {"fleischlos mit loser Zehn", mit(achtPunkte, KaroZehn), 1, false, false, 0, Sologrund::Keiner, "", 0},
        {"fünf Buben und vier Asse in Vorhand", buben, 1, false, false, engine::BubenSolo, Sologrund::Buben, ""},
        {"fünf Buben reichen sonst nicht", buben, 2, false, false, 0, Sologrund::Keiner, ""},
        {"sechs Buben", sechsBuben, 2, false, false, engine::BubenSolo, Sologrund::Buben, ""},
        {"elf Damen und Buben in Vorhand", figuren, 1, false, true, engine::DamenBubenSolo, Sologrund::DamenBuben, ""},
        {"elf Damen und Buben ohne die Regel", figuren, 1, false, false, 0, Sologrund::Keiner, ""},
    };
    for (const Zeile& z : zeilen) {
        Vorbehaltlage v(z.hand, z.vorhand);
        v.s.spiel.regeln.vhSolo = z.vhSolo;
        v.s.spiel.regeln.dabuSolo = z.dabu;
        const players::Solowahl w = v.pruefen();
        EXPECT_EQ(w.art, z.art) << z.name;
        EXPECT_EQ(w.grund, z.grund) << z.name;
        if (!z.text.empty()) {
            EXPECT_EQ(v.letzterText(), z.text) << z.name;
        }
        if (z.langeFarbe >= 0) {
            EXPECT_EQ(v.tabellen.langeFarbe[Sitz(1)], z.langeFarbe) << z.name;
        }
        EXPECT_FALSE(v.tabellen.stillesSoloSpieler) << z.name;
    }
}

// Both Kreuz-Damen with ten Karo trumps: kept as a silent solo, nothing declared.
TEST(Vorbehalt, StillesSoloMitBeidenKreuzDamen) {
    Vorbehaltlage v({KreuzDame, KreuzDame, KaroAs, KaroAs, KaroZehn, KaroZehn, KaroKoenig, KaroDame, KaroBube, HerzBube,
                     PikAs, HerzAs});
    const players::Solowahl w = v.pruefen();
    EXPECT_EQ(w.art, engine::Normalspiel);
    EXPECT_EQ(v.tabellen.stillesSoloSpieler, Sitz(1));
    EXPECT_EQ(v.regelwerk(), engine::Vorbehalt{});
    EXPECT_EQ(v.letzterText(), "Spieler1" + std::string(players::text::StillesSoloBehalten));
}

TEST(Vorbehalt, HochzeitsartNachDerHand) {
    using engine::Vorbehalt;
    struct Zeile { const char* name; std::vector<int> hand; bool solis; int art; std::string_view text; };
    const std::vector<int> vieleTruempfe{KreuzDame, KreuzDame, KaroKoenig, KaroNeun, KaroBube, HerzBube, PikBube,
                                         PikKoenig, PikNeun, HerzKoenig, HerzNeun, KreuzNeun};
    const std::vector<int> dreiAsse{KreuzDame, KreuzDame, KaroBube, HerzBube, PikAs, KreuzAs, HerzAs, PikNeun,
                                    HerzNeun, KreuzNeun, KreuzKoenig, PikKoenig};
    const std::vector<int> sonst{KreuzDame, KreuzDame, KaroBube, HerzBube, PikBube, PikAs, PikNeun, HerzNeun,
                                 KreuzNeun, KreuzKoenig, PikKoenig, HerzKoenig};
    const Zeile zeilen[] = {
        {"sieben Trümpfe", vieleTruempfe, true, engine::ErsterFehlstich, players::text::HochzeitFehlstich},
        {"drei Asse", dreiAsse, true, engine::ErsterTrumpfstich, players::text::HochzeitTrumpfstich},
        {"sonst", sonst, true, engine::ErsterStich, players::text::HochzeitErsterStich},
        {"ohne Solospiele ebenso", sonst, false, engine::ErsterStich, players::text::HochzeitErsterStich},
    };
    for (const Zeile& z : zeilen) {
        Vorbehaltlage v(z.hand);
        v.s.spiel.regeln.solis = z.solis;
        EXPECT_EQ(v.regelwerk(), (Vorbehalt{Vorbehalt::Hochzeit, engine::Normalspiel, z.art})) << z.name;
        EXPECT_EQ(v.letzterText(), "Spieler1" + std::string(z.text)) << z.name;
    }
}

TEST(Vorbehalt, SoloNurMitRegelPflichtsoloImmer) {
    using engine::Vorbehalt;
    const std::vector<int> fuenfBuben{KreuzBube, KreuzBube, PikBube, PikBube, HerzBube, KaroAs, HerzAs, PikAs, KreuzAs,
                                      HerzNeun, PikNeun, KreuzNeun};
    const std::vector<int> schwach{KaroNeun, KaroKoenig, PikBube, PikNeun, PikNeun, PikKoenig, HerzNeun, HerzKoenig,
                                   KreuzNeun, KreuzKoenig, KreuzKoenig, KreuzZehn};
    struct Zeile { const char* name; std::vector<int> hand; bool solis; bool pflicht; Vorbehalt wahl; };
    const Zeile zeilen[] = {
        {"Buben-Solo", fuenfBuben, true, false, {Vorbehalt::Solo, engine::BubenSolo, engine::KeineHochzeit}},
        {"Solospiele unzulässig", fuenfBuben, false, false, {}},
        {"schwach: gesund", schwach, true, false, {}},
        // Five trumps in Kreuz (Pik-Bube and four Kreuz), fewer in the other colours.
        {"schwach, aber Pflichtsolo", schwach, true, true, {Vorbehalt::Solo, engine::KreuzSolo, engine::KeineHochzeit}},
    };
    for (const Zeile& z : zeilen) {
        Vorbehaltlage v(z.hand);
        v.s.spiel.regeln.solis = z.solis;
        if (z.pflicht) {
            v.s.spiel.regeln.solo = true;
            v.s.spiel.regeln.endeNach = 24;
            v.s.spiel.partie.spielNr = 24;  // the last game, seat 1 owes its solo
        }
        EXPECT_EQ(v.regelwerk(), z.wahl) << z.name;
    }
}

// The long suit chosen with the fleischlos solo stays, even when another suit is longer by now.
TEST(Solotabellen, LangeFarbeGiltImSpiel) {
    Situation s(engine::SoloOhneTrumpf, {{KreuzAs, PikAs, PikKoenig, PikNeun}, {KreuzNeun}, {HerzNeun}, {KaroNeun}});
    s.wissenAufbauen();
    s.solo(1);
    s.wissen.solo.langeFarbe[Sitz(1)] = engine::Kreuz;
    EXPECT_EQ(s.lage().werte.langeFarbe, engine::Kreuz);
    s.wissen.solo.langeFarbe[Sitz(1)] = 0;
    EXPECT_EQ(s.lage().werte.langeFarbe, engine::Pik);
}

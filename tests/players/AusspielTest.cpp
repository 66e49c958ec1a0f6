// AusspielWaehlen: pulling trump first, the chain of lead strategies and the trump filters.
#include <gtest/gtest.h>

#include <functional>

#include "Fall.h"
#include "Karten.h"
#include "players/Texte.h"

using namespace karten;
using engine::ParteiKontra;
using engine::ParteiRe;
using testhilfe::Fall;
using testhilfe::Situation;
using testhilfe::pruefen;

namespace {
template <int Solist>
void solistFrei(Situation& s) {
    s.solo(Solist);
    s.frei(Solist, engine::Pik);
    s.frei(Solist, engine::Herz);
    s.wissen.angespielt[engine::Herz] = 2;
    s.wissen.angespielt[engine::Pik] = 1;
}
}  // namespace

TEST(Ausspiel, Kette) {
    const Fall faelle[] = {
        {"die höchsten Trümpfe ziehen zuerst", {{KreuzDame, KreuzDame, PikAs}, {PikDame, PikNeun}, {PikKoenig}, {HerzNeun}}, {},
         nullptr, {"AusspielWaehlen:00"}, KreuzDame},
        {"alle Trümpfe in der eigenen Hand: die Höchste, die keiner sticht",
         {{PikDame, KreuzZehn, KreuzKoenig}, {KreuzNeun, PikNeun}, {HerzNeun}, {PikKoenig}}, {}, nullptr,
         {"AusspielWaehlen:05"}, KreuzZehn},
        {"blanke Dolle", {{Dolle, KreuzNeun, KreuzKoenig}, {KaroNeun, PikNeun}, {Dolle, HerzNeun}, {PikKoenig}}, {}, nullptr,
         {"AusspielWaehlen:02"}, Dolle},
        {"einziges As", {{KreuzAs, PikNeun, PikKoenig, KaroNeun}, {PikDame, KreuzNeun}, {HerzNeun}, {PikAs}}, {}, nullptr,
         {"AusspielWaehlen:03"}, KreuzAs},
        {"einfaches As der kürzeren Farbe",
         {{KreuzAs, KreuzNeun, KreuzKoenig, PikAs, PikNeun, KaroNeun}, {PikDame, KreuzNeun}, {HerzNeun}, {PikKoenig}}, {},
         nullptr, {"AusspielWaehlen:03"}, PikAs},
        {"Doppel-As", {{KreuzAs, KreuzAs, PikNeun, KaroNeun}, {PikDame, KreuzNeun}, {HerzNeun}, {PikKoenig}}, {}, nullptr,
         {"AusspielWaehlen:03"}, KreuzAs},
        {"kleinste Single", {{KaroNeun, PikKoenig, KreuzNeun, KreuzKoenig}, {PikDame, KreuzZehn}, {HerzNeun}, {PikAs}}, {},
         nullptr, {"AusspielWaehlen:04"}, PikKoenig},
        {"Fuchs von oben wird durch eine Fehlkarte ersetzt",
         {{KaroAs, KreuzNeun, KreuzNeun}, {KaroNeun, PikNeun}, {KaroKoenig}, {PikKoenig}}, {}, nullptr,
         {"AusspielWaehlen:07", "Filter:FuchsKM"}, KreuzNeun},
        {"kleiner Trumpf, dann die Dolle statt sie blank zu spielen",
         {{Dolle, KaroNeun, KreuzNeun, KreuzKoenig}, {Dolle, PikDame}, {KreuzAs, HerzNeun}, {PikKoenig}}, {}, nullptr,
         {"AusspielWaehlen:11", "Filter:DolleBlank"}, Dolle},
        // The partner holds the other trumps, the opponents none: the Dolle stays, and the
        // Kreuz goes that the opponents can neither follow nor trump.
        {"blanke Dolle nicht ohne Gegnertrumpf", {{Dolle, KreuzNeun, KreuzKoenig}, {PikNeun}, {KaroNeun, KaroKoenig}, {HerzNeun}},
         {}, [](Situation& s) { s.glaubt(1, 3, ParteiKontra); s.ohneTrumpf(2); s.ohneTrumpf(4); }, {"AusspielWaehlen:08"},
         KreuzKoenig},
        // The soloist void in Pik and Herz: Herz was led twice, Pik once. Sitting right before
        // the leader he plays last, so only the suit led twice will do.
        {"Solist in Hinterhand soll stechen", {{PikNeun, HerzNeun}, {KreuzNeun}, {PikAs, HerzAs}, {KaroNeun, KaroKoenig, KaroZehn}},
         {}, solistFrei<4>, {"AusspielWaehlen:14"}, HerzNeun},
        {"Solist in Zweithand soll stechen", {{PikNeun, HerzNeun}, {KaroNeun, KaroKoenig, KaroZehn}, {PikAs, HerzAs}, {KreuzNeun}},
         {}, solistFrei<2>, {"AusspielWaehlen:14"}, PikNeun},
    };
    for (const Fall& f : faelle) pruefen(f);
}

TEST(Ausspiel, TrumpfVonObenOpfertKeineZaehler) {
    // An opponent marked for repeating high trumps; the own two highest are Dolle and Karo-Zehn.
    Situation s(engine::Normalspiel, {{Dolle, KaroZehn, KreuzNeun, KreuzKoenig}, {PikDame, KaroNeun}, {HerzNeun}, {PikKoenig}});
    s.wissenAufbauen();
    s.glaubt(1, 2, ParteiRe);
    s.wissen.trumpfPartnerMarke[engine::Sitz(2)][engine::Sitz(1)] = true;
    s.waehlt();
    EXPECT_TRUE(s.zeigte(players::text::ZaehlerNichtOpfern));
    for (const auto& r : s.regeln()) EXPECT_NE(r, "AusspielWaehlen:07");
}


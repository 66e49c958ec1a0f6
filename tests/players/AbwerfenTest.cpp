// abwerfen: which rule fires and which card goes, by position and by who holds the trick.
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

// Seat 3 in Dritthand without trump: Kleinste is the Pik-Neun, Höchste the Pik-As.
const std::vector<int> ohneTrumpf{PikNeun, PikAs, HerzKoenig};

void re(Situation& s, int x) { s.glaubt(3, x, ParteiRe); }
void kontra(Situation& s, int x) { s.glaubt(3, x, ParteiKontra); }

}  // namespace

TEST(Abwerfen, DritthandNachBesitzDesStichs) {
    const Fall faelle[] = {
        {"Gegner hält, HH auch Feind", {{KreuzAs}, {KreuzNeun}, ohneTrumpf, {KreuzKoenig, KaroNeun}}, {KreuzAs, KreuzNeun},
         nullptr, {"abwerfen:DH030"}, PikNeun},
        {"Gegner hält, Freund in HH muss bedienen, Höchste liegt",
         {{KreuzAs}, {KreuzNeun}, ohneTrumpf, {KreuzKoenig, KaroNeun}}, {KreuzAs, KreuzNeun},
         [](Situation& s) { re(s, 1); kontra(s, 4); }, {"abwerfen:DH024"}, PikNeun},
        {"Gegner hält, Höchste vermutlich bei Freund in HH",
         {{KreuzZehn}, {KreuzNeun}, ohneTrumpf, {KreuzAs, KaroNeun}}, {KreuzZehn, KreuzNeun},
         [](Situation& s) { re(s, 1); kontra(s, 4); }, {"abwerfen:DH026"}, PikAs},
        {"Gegner hält, Freund in HH blank und kann stechen",
         {{KreuzAs}, {KreuzNeun}, ohneTrumpf, {KaroNeun, PikKoenig}}, {KreuzAs, KreuzNeun},
         [](Situation& s) { re(s, 1); kontra(s, 4); s.frei(4, engine::Kreuz); }, {"abwerfen:DH029"}, PikAs},
        {"Gegner hält, Freund in HH blank ohne Trumpf",
         {{KreuzAs}, {KreuzNeun}, ohneTrumpf, {PikKoenig, KaroNeun}}, {KreuzAs, KreuzNeun},
         [](Situation& s) { re(s, 1); kontra(s, 4); s.frei(4, engine::Kreuz); s.ohneTrumpf(4); }, {"abwerfen:DH028"},
         PikNeun},
        {"Gegner sticht, Freund in HH muss bedienen",
         {{KreuzAs}, {KaroBube}, ohneTrumpf, {KreuzKoenig, KaroNeun}}, {KreuzAs, KaroBube},
         [](Situation& s) { re(s, 2); kontra(s, 4); }, {"abwerfen:DH016"}, PikNeun},
        {"Gegner sticht, Freund in HH blank ohne Trumpf",
         {{KreuzAs}, {KaroBube}, ohneTrumpf, {PikKoenig}}, {KreuzAs, KaroBube},
         [](Situation& s) { re(s, 2); kontra(s, 4); s.frei(4, engine::Kreuz); s.ohneTrumpf(4); }, {"abwerfen:DH017"},
         PikNeun},
        {"Gegner sticht tief, Freund in HH könnte überstechen",
         {{KreuzAs}, {KaroBube}, ohneTrumpf, {PikDame, PikKoenig}}, {KreuzAs, KaroBube},
         [](Situation& s) { re(s, 2); kontra(s, 4); s.frei(4, engine::Kreuz); }, {"abwerfen:DH020"}, PikNeun},
        {"Gegner sticht mit der Dolle: genagelt",
         {{KreuzAs}, {Dolle}, ohneTrumpf, {PikDame, PikKoenig}}, {KreuzAs, Dolle},
         [](Situation& s) { re(s, 2); kontra(s, 4); s.frei(4, engine::Kreuz); }, {"abwerfen:DH018"}, PikNeun},
        {"Farbe nicht mehr im Spiel, Feind in HH kann stechen",
         {{KreuzAs}, {KreuzNeun}, ohneTrumpf, {KaroNeun, PikKoenig}}, {KreuzAs, KreuzNeun},
         [](Situation& s) { kontra(s, 1); }, {"abwerfen:DH022"}, PikNeun},
        {"Trumpfstich der Partei, HH nicht höher",
         {{KaroNeun}, {Dolle}, ohneTrumpf, {KaroDame, PikKoenig}}, {KaroNeun, Dolle},
         [](Situation& s) { kontra(s, 2); }, {"abwerfen:DH009"}, PikAs},
        {"Trumpfstich der Partei, HH kann übertrumpfen",
         {{KaroNeun}, {KaroDame}, ohneTrumpf, {PikDame, PikKoenig}}, {KaroNeun, KaroDame},
         [](Situation& s) { kontra(s, 2); }, {"abwerfen:DH008"}, PikNeun},
        {"Partner sticht, HH muss bedienen", {{KreuzAs}, {KaroBube}, ohneTrumpf, {KreuzKoenig, PikDame}},
         {KreuzAs, KaroBube}, [](Situation& s) { kontra(s, 2); }, {"abwerfen:DH010"}, PikAs},
        {"Partner sticht, HH kann überstechen", {{KreuzAs, KreuzNeun}, {KaroBube}, ohneTrumpf, {PikDame, PikKoenig}},
         {KreuzAs, KaroBube}, [](Situation& s) { kontra(s, 2); s.frei(4, engine::Kreuz); }, {"abwerfen:DH013"}, PikNeun},
        {"Partner sticht mit der Dolle: genagelt", {{KreuzAs}, {Dolle}, ohneTrumpf, {PikDame, PikKoenig}},
         {KreuzAs, Dolle}, [](Situation& s) { kontra(s, 2); s.frei(4, engine::Kreuz); }, {"abwerfen:DH012"}, PikAs},
        {"Partner sticht, HH ohne Trumpf", {{KreuzAs}, {KaroBube}, ohneTrumpf, {PikDame, PikKoenig}},
         {KreuzAs, KaroBube},
         [](Situation& s) { kontra(s, 2); s.frei(4, engine::Kreuz); s.ohneTrumpf(4); }, {"abwerfen:DH011"}, PikAs},
        {"Partner hält, HH vielleicht höher", {{KreuzZehn}, {KreuzNeun}, ohneTrumpf, {KreuzAs, KaroNeun}},
         {KreuzZehn, KreuzNeun}, [](Situation& s) { kontra(s, 1); }, {"abwerfen:DH005"}, PikNeun},
        {"Partner hält mit der Höchsten, HH muss bedienen", {{KreuzAs}, {KreuzNeun}, ohneTrumpf, {KreuzKoenig, KaroNeun}},
         {KreuzAs, KreuzNeun}, [](Situation& s) { kontra(s, 1); }, {"abwerfen:DH001"}, PikAs},
        {"Partner hält, HH kann nicht stechen", {{KreuzZehn}, {KreuzNeun}, ohneTrumpf, {PikKoenig, KaroNeun}},
         {KreuzZehn, KreuzNeun},
         [](Situation& s) { kontra(s, 1); s.frei(4, engine::Kreuz); s.ohneTrumpf(4); }, {"abwerfen:DH002"}, PikAs},
        {"Partner hält, HH kann stechen", {{KreuzAs}, {KreuzNeun}, ohneTrumpf, {KaroNeun, PikKoenig, KreuzKoenig}},
         {KreuzAs, KreuzNeun}, [](Situation& s) { kontra(s, 1); s.frei(4, engine::Kreuz); }, {"abwerfen:DH004"},
         PikNeun},
        {"Gegner hält, Freund in HH hat höheres Trumpf", {{KaroDame}, {KaroNeun}, ohneTrumpf, {PikDame, KaroKoenig}},
         {KaroDame, KaroNeun}, [](Situation& s) { re(s, 1); kontra(s, 4); }, {"abwerfen:DH014A"}, PikAs},
        {"Gegner hält, HH ohne Trumpf", {{KaroDame}, {KaroNeun}, ohneTrumpf, {PikKoenig}}, {KaroDame, KaroNeun},
         [](Situation& s) { re(s, 1); kontra(s, 4); s.ohneTrumpf(4); }, {"abwerfen:DH015A"}, PikNeun},
    };
    for (const Fall& f : faelle) pruefen(f);
}

// No chance: the suits at deck positions 26 and 27 (seat 3's second and third card)
// decide whether to butter onto the soloist's trump trick.
TEST(Abwerfen, SolistenTrumpfstichNachDeckpositionen) {
    struct Zeile { const char* name; int typ; std::vector<std::vector<int>> haende; std::initializer_list<int> stich;
                   const char* regel; int karte; };
    const Zeile zeilen[] = {
        {"27 ist Herz", engine::Normalspiel, {{KaroDame}, {KaroNeun}, {PikNeun, PikAs, HerzKoenig}, {PikDame, KaroKoenig}},
         {KaroDame, KaroNeun}, "abwerfen:DH014", PikNeun},
        {"26 und 27 Pik und Kreuz", engine::Normalspiel,
         {{KaroDame}, {KaroNeun}, {PikNeun, PikAs, KreuzKoenig}, {PikDame, KaroKoenig}}, {KaroDame, KaroNeun},
         "abwerfen:DH015", PikAs},
        // In a Herz-Solo the Karo cards are plain: a Karo card at position 26 means no butter.
        {"Karo im Herz-Solo", engine::HerzSolo,
         {{HerzDame}, {HerzNeun}, {PikNeun, KaroKoenig, PikAs}, {PikDame, HerzKoenig}}, {HerzDame, HerzNeun},
         "abwerfen:DH014", PikNeun},
    };
    for (const Zeile& z : zeilen) {
        Situation s(z.typ, z.haende);
        s.nachStich(z.stich);
        s.solo(1);
        EXPECT_EQ(s.waehlt(), z.karte) << z.name;
        EXPECT_EQ(s.ersteRegel(), z.regel) << z.name;
    }
}

TEST(Abwerfen, Hinterhand) {
    const Fall faelle[] = {
        {"Stich der Gegenpartei", {{KreuzAs}, {KreuzNeun}, {KreuzKoenig}, {PikNeun, PikAs}}, {KreuzAs, KreuzNeun, KreuzKoenig},
         [](Situation& s) { re(s, 1); }, {"abwerfen:HH002"}, PikNeun},
        {"Stich meiner Partei", {{KreuzAs}, {KreuzNeun}, {KreuzKoenig}, {PikNeun, PikAs, PikKoenig}},
         {KreuzAs, KreuzNeun, KreuzKoenig}, [](Situation& s) { s.glaubt(4, 1, ParteiKontra); }, {"abwerfen:HH001"}, PikAs},
        {"Zähler für den Doppelkopf im letzten Stich aufheben",
         {{KreuzAs, PikAs}, {KreuzNeun, KreuzZehn}, {KreuzKoenig, PikAs}, {PikNeun, PikZehn}}, {KreuzAs, KreuzNeun, KreuzKoenig},
         [](Situation& s) { s.glaubt(4, 1, ParteiKontra); }, {"abwerfen:HH002"}, PikNeun},
    };
    for (const Fall& f : faelle) pruefen(f);
}

TEST(Abwerfen, Zweithand) {
    // Seat 2 follows seat 1's lead; its hand holds no Kreuz and no trump.
    const std::vector<int> zh{PikNeun, PikAs, HerzKoenig};
    const Fall faelle[] = {
        {"Stich der Gegenpartei", {{KreuzAs}, zh, {KreuzKoenig}, {KreuzNeun}}, {KreuzAs}, nullptr, {"abwerfen:ZH01"}, PikNeun},
        {"Partner führt mit der Höchsten, alle müssen bedienen", {{KreuzAs}, zh, {KreuzKoenig}, {KreuzNeun}}, {KreuzAs},
         [](Situation& s) { s.glaubt(2, 1, ParteiKontra); }, {"abwerfen:ZH06"}, PikAs},
        {"Partner führt, Hinterhand droht zu stechen", {{KreuzAs}, zh, {KreuzKoenig}, {KaroNeun}}, {KreuzAs},
         [](Situation& s) { s.glaubt(2, 1, ParteiKontra); s.frei(4, engine::Kreuz); }, {"abwerfen:ZH07"}, PikNeun},
        {"Partner führt, Dritthand blank ohne Trumpf", {{KreuzAs}, zh, {PikKoenig}, {KreuzNeun}}, {KreuzAs},
         [](Situation& s) { s.glaubt(2, 1, ParteiKontra); s.frei(3, engine::Kreuz); s.ohneTrumpf(3); },
         {"abwerfen:ZH08"}, PikAs},
        {"Partner führt, Dritthand könnte stechen", {{KreuzAs}, zh, {KaroNeun}, {KreuzNeun}}, {KreuzAs},
         [](Situation& s) { s.glaubt(2, 1, ParteiKontra); s.frei(3, engine::Kreuz); }, {"abwerfen:ZH11"}, PikNeun},
        {"Partner führt, die Höchste liegt noch nicht", {{KreuzZehn}, zh, {KreuzAs}, {KreuzNeun}}, {KreuzZehn},
         [](Situation& s) { s.glaubt(2, 1, ParteiKontra); }, {"abwerfen:ZH12"}, PikNeun},
        {"Solist führt die Höchste", {{KreuzAs}, zh, {KreuzKoenig}, {KreuzNeun}}, {KreuzAs},
         [](Situation& s) { s.solo(1); }, {"abwerfen:ZH02"}, PikNeun},
        {"Solist führt, die Höchste der Farbe liegt noch nicht", {{KreuzZehn}, zh, {KreuzAs}, {KreuzNeun}}, {KreuzZehn},
         [](Situation& s) { s.solo(1); }, {"abwerfen:ZH05"}, PikAs},
        {"Solist führt Trumpf, Partner vermutlich höher", {{KaroDame}, zh, {PikDame}, {KaroNeun}}, {KaroDame},
         [](Situation& s) { s.solo(1); }, {"abwerfen:ZH04"}, PikAs},
        {"Solist führt Trumpf, kein Partner hat einen höheren", {{KaroDame, PikDame}, zh, {PikKoenig}, {KreuzNeun}},
         {KaroDame}, [](Situation& s) { s.solo(1); s.ohneTrumpf(3); s.ohneTrumpf(4); }, {"abwerfen:ZH03"}, PikNeun},
    };
    for (const Fall& f : faelle) pruefen(f);
}

// A seat void in the led suit that knows it has no trump goes straight to the discards;
// one that holds trump asks the ruffing rules, which also decide when to discard.
TEST(Abwerfen, WegUeberStechenOderAbwerfen) {
    for (const bool mitTrumpf : {false, true}) {
        std::vector<int> zwei{PikNeun, PikAs};
        if (mitTrumpf) zwei.push_back(KaroNeun);
        Situation s(engine::Normalspiel, {{KreuzAs}, zwei, {KreuzKoenig}, {KreuzNeun}});
        s.nachStich({KreuzAs});
        EXPECT_EQ(s.waehlt(), mitTrumpf ? KaroNeun : PikNeun) << mitTrumpf;
        EXPECT_EQ(s.ersteRegel(), mitTrumpf ? "stechen_oder_abwerfen:ZH0044" : "abwerfen:ZH01") << mitTrumpf;
        EXPECT_EQ(s.regeln().size(), 1u) << mitTrumpf;
        EXPECT_FALSE(s.zeigte(players::text::AbwurfStattStechen));
    }
}

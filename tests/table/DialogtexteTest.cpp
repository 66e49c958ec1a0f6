#include <gtest/gtest.h>

#include "engine/TestHilfen.h"
#include "table/Dialogtexte.h"

namespace {

using namespace engine;

TEST(Dialogtexte, WerfenFragen) {
    EXPECT_EQ(table::werfenFrage(table::Werfen::Neunen, 5), "Sie haben 5 Neunen!\nMöchten Sie, daß neu gegeben wird?");
    EXPECT_EQ(table::werfenFrage(table::Werfen::Koenige, 6), "Sie haben 6 Könige!\nMöchten Sie, daß neu gegeben wird?");
    EXPECT_EQ(table::werfenFrage(table::Werfen::Armut, 3), "Sie haben nur 3 Trümpfe!\nMöchten Sie, daß neu gegeben wird?");
    EXPECT_EQ(table::werfenTitel(table::Werfen::Neunen), "Neunerwerfen!");
    EXPECT_EQ(table::werfenTitel(table::Werfen::Koenige), "Königewerfen!");
    EXPECT_EQ(table::werfenTitel(table::Werfen::Armut), "Armut!");
}

TEST(Dialogtexte, SoloFrageNachPosition) {
    const struct {
        int vorhand;
        bool vhSolo;
        std::vector<std::string> zeilen;
    } faelle[] = {
        {1, true, {"Sie haben Vorhand.", "Erwägen Sie ein Solospiel anzusagen?"}},
        {4, false, {"Sie sitzen in Zweithand.", "Spieler4 hat kein Solospiel angesagt!", "Erwägen Sie ein Solospiel anzusagen?"}},
        {3, true,
         {"Sie sitzen in Dritthand.", "Als Solospieler würden Sie Vorhand erhalten.",
          "Die in der Reihenfolge vor Ihnen sitzenden Spieler haben kein Solospiel angesagt.",
          "Erwägen Sie ein Solospiel anzusagen?"}},
        {2, false,
         {"Sie sitzen in Hinterhand.", "Die in der Reihenfolge vor Ihnen sitzenden Spieler haben kein Solospiel angesagt.",
          "Erwägen Sie ein Solospiel anzusagen?"}},
    };
    for (const auto& f : faelle) {
        Spiel spiel = testhilfe::spielMitHaenden(Normalspiel, {});
        spiel.vorhand = Sitz(f.vorhand);
        spiel.regeln.vhSolo = f.vhSolo;
        EXPECT_EQ(table::soloFrage(spiel), f.zeilen) << f.vorhand;
    }
}

TEST(Dialogtexte, SoliNachRegelnUndBildern) {
    Regeln regeln;
    EXPECT_EQ(table::erlaubteSoli(regeln), (std::vector<int>{1, 2, 3, 4, 5, 6, 8}));
    regeln.dabuSolo = true;
    EXPECT_EQ(table::erlaubteSoli(regeln), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(table::soloName(Normalspiel, true), "Karo-Solo");
    EXPECT_EQ(table::soloName(Normalspiel, false), "Schellen-Solo");
    EXPECT_EQ(table::soloName(KreuzSolo, false), "Eichel-Solo");
    EXPECT_EQ(table::soloName(DamenBubenSolo, false), "Ober-Unter-Solo");
}

TEST(Dialogtexte, Hochzeit) {
    EXPECT_EQ(table::eigeneHochzeitText(ErsterStich), "Sie heiraten den Gewinner  des ersten Stichs! ");
    EXPECT_EQ(table::eigeneHochzeitText(ErsterFehlstich), "Sie heiraten den Gewinner  des ersten Fehlstichs! ");
    EXPECT_EQ(table::eigeneHochzeitText(ErsterTrumpfstich), "Sie heiraten den Gewinner  des ersten Trumpfstichs! ");
}

}  // namespace

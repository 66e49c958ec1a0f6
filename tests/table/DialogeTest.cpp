#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <gtest/gtest.h>

#include "Bildablage.h"
#include "QtAusgabe.h"

#include "engine/Neugeben.h"
#include "engine/TestHilfen.h"
#include "engine/Vorbehalte.h"
#include "table/Auswahldialoge.h"
#include "table/Dialogtexte.h"
#include "table/Kartenbilder.h"
#include "table/Meldungsdialog.h"
#include "table/Spielendedialog.h"
#include "table/Spielzettel.h"
#include "table/Stichbetrachter.h"
#include "table/Kartenfeld.h"
#include "table/Verteilungsdialog.h"
#include "engine/Zufall.h"

namespace {

using namespace engine;

// German standard buttons come from Qt's translation, which the package list installs.
TEST(Dialoge, FrageHatJaUndNeinMitDenKarten) {
    table::Kartenbilder bilder;
    const std::vector<int> neunen{kartencode(Karo, Neun), kartencode(Herz, Neun), kartencode(Pik, Neun),
                                  kartencode(Kreuz, Neun), kartencode(Kreuz, Neun)};
    table::Meldungsdialog frage(bilder, QString::fromStdString(neugebenTitel(NeunenWerfen)),
                                QString::fromStdString(neugebenFrage(NeunenWerfen, 5)), neunen,
                                table::Meldungsdialog::Art::Frage);
    EXPECT_EQ(frage.knoepfe()->button(QDialogButtonBox::Yes)->text().remove(QLatin1Char('&')), QStringLiteral("Ja"));
    EXPECT_EQ(frage.knoepfe()->button(QDialogButtonBox::No)->text().remove(QLatin1Char('&')), QStringLiteral("Nein"));
    EXPECT_EQ(frage.karten(), neunen);
    EXPECT_TRUE(frage.text().startsWith(QStringLiteral("Sie haben 5 Neunen!")));
    testhilfe::bildAblegen(frage, QStringLiteral("neunen"), true);

    table::Meldungsdialog hinweis(bilder, QStringLiteral("RE-Ausruf!"), QStringLiteral("Spieler3 ruft Re aus!"), {},
                                  table::Meldungsdialog::Art::Hinweis);
    EXPECT_EQ(hinweis.knoepfe()->buttons().size(), 1);
    EXPECT_NE(hinweis.knoepfe()->button(QDialogButtonBox::Ok), nullptr);
}

TEST(Dialoge, SoloDialogBietetNurErlaubteSoliAn) {
    Regeln regeln;
    for (const bool dabu : {false, true}) {
        regeln.dabuSolo = dabu;
        std::unique_ptr<table::Auswahldialog> dialog(table::soloDialog(erlaubteSoloarten(regeln), false, nullptr));
        const auto angeboten = dialog->angeboten();
        EXPECT_EQ(std::count(angeboten.begin(), angeboten.end(), DamenBubenSolo), dabu ? 1 : 0);
        EXPECT_EQ(angeboten.size(), dabu ? 8u : 7u);
        EXPECT_EQ(dialog->beschriftung(Normalspiel), QStringLiteral("Schellen-Solo"));
        dialog->waehlen(BubenSolo);
        dialog->accept();
        EXPECT_EQ(dialog->gewaehlt(), BubenSolo);
        dialog->reject();
        EXPECT_EQ(dialog->gewaehlt(), 0);
    }
}

TEST(Dialoge, HochzeitDialogMitDenDreiArten) {
    std::unique_ptr<table::Auswahldialog> dialog(table::hochzeitDialog(nullptr));
    EXPECT_EQ(dialog->angeboten(), (std::vector<int>{ErsterStich, ErsterFehlstich, ErsterTrumpfstich}));
    EXPECT_EQ(dialog->beschriftung(ErsterFehlstich), QStringLiteral("ersten Fehlstichs"));
    dialog->waehlen(ErsterTrumpfstich);
    dialog->accept();
    EXPECT_EQ(dialog->gewaehlt(), ErsterTrumpfstich);
    testhilfe::bildAblegen(*dialog, QStringLiteral("hochzeit"), true);
}

TEST(Dialoge, SpielzettelZeilenSummenUndEndzeile) {
    table::Spielzettelinhalt inhalt;
    for (const Sitz s : alleSitze) inhalt.namen[s] = "Spieler" + std::to_string(s.nr());
    ProSitz<int> spiel1, spiel2;
    spiel1[Sitz(1)] = 2;
    spiel1[Sitz(3)] = 2;
    spiel2[Sitz(2)] = 9;
    inhalt.spiele = {spiel1, spiel2};
    // The first game as it was played; the second comes from a loaded Partie and has only its points.
    inhalt.angaben = {{"Normalspiel", "Re", "151 : 89", "Re, keine 90 (Re)", "Doppelkopf (Re), Fuchs gefangen (Kontra)"}};
    inhalt.summen[Sitz(1)] = 2;
    inhalt.summen[Sitz(2)] = 9;
    inhalt.summen[Sitz(3)] = 2;
    table::Spielzettel zettel;
    zettel.setzeInhalt(inhalt);
    const QTableWidget& t = zettel.tabelle();
    const int sitz1 = table::Spielzettel::ErsteSitzspalte;
    ASSERT_EQ(t.rowCount(), 3);
    ASSERT_EQ(t.columnCount(), sitz1 + 4);
    const char* kopf[] = {"Spiel", "Gewinner", "Augen Re : Kontra", "Ansagen", "Sonderpunkte", "Spieler1"};
    for (int spalte = 0; spalte <= sitz1; ++spalte)
        EXPECT_EQ(t.horizontalHeaderItem(spalte)->text(), QString::fromUtf8(kopf[spalte])) << spalte;
    EXPECT_EQ(t.item(0, 0)->text(), QStringLiteral("Normalspiel"));
    EXPECT_EQ(t.item(0, 2)->text(), QStringLiteral("151 : 89"));
    EXPECT_EQ(t.item(0, 4)->text(), QStringLiteral("Doppelkopf (Re), Fuchs gefangen (Kontra)"));
    EXPECT_EQ(t.item(1, 0)->text(), QString());
    EXPECT_EQ(t.item(0, sitz1 + 2)->text(), QStringLiteral("2"));
    EXPECT_EQ(t.item(1, sitz1 + 1)->text(), QStringLiteral("9"));
    EXPECT_EQ(t.verticalHeaderItem(2)->text(), QStringLiteral("Summe"));
    EXPECT_EQ(t.item(2, sitz1 + 1)->text(), QStringLiteral("9"));
    EXPECT_EQ(zettel.endzeile(), QStringLiteral("Partieende nach 24 Spielen"));
    testhilfe::bildAblegen(zettel, QStringLiteral("spielzettel"), true);

    EXPECT_EQ(table::partieendeZeile(1, 30, 24), "Partieende bei Überschreiten von 30 Punkten");
    EXPECT_EQ(table::partieendeZeile(1, 1, 24), "Partieende bei Überschreiten von 1 Punkt");
}

TEST(Dialoge, SpielendeZeigtTextUndPunkte) {
    table::Spielergebnis ergebnis;
    ergebnis.titel = "Spielende";
    ergebnis.text = "Ihre Partei hat mit 151 Augen gewonnen!";
    for (const Sitz s : alleSitze) ergebnis.namen[s] = "Spieler" + std::to_string(s.nr());
    ergebnis.punkte[Sitz(1)] = 2;
    ergebnis.punkte[Sitz(4)] = 2;
    ergebnis.summen[Sitz(1)] = 5;
    ergebnis.summen[Sitz(4)] = 3;
    table::Spielendedialog box(ergebnis);
    EXPECT_EQ(box.text(), QString::fromStdString(ergebnis.text));
    EXPECT_EQ(box.tabelle().item(0, 3)->text(), QStringLiteral("2"));
    EXPECT_EQ(box.tabelle().item(1, 0)->text(), QStringLiteral("5"));
    EXPECT_EQ(box.tabelle().item(0, 1)->text(), QStringLiteral("0"));
    testhilfe::bildAblegen(box, QStringLiteral("spielende"), true);
}

StichProtokoll stich(Sitz aufspieler, Sitz gewinner, int augen, std::array<int, 4> codes) {
    StichProtokoll p;
    p.aufspieler = aufspieler;
    p.gewinner = gewinner;
    p.augen = augen;
    p.codes = codes;
    return p;
}

TEST(Dialoge, StichbetrachterBlaettertUndNenntAnsagen) {
    Spiel spiel = testhilfe::spielMitHaenden(Normalspiel, {});
    spiel.stiche = {stich(Sitz(1), Sitz(3), 21, {kartencode(Kreuz, As), kartencode(Kreuz, Neun), kartencode(Kreuz, Zehn), kartencode(Kreuz, Koenig)}),
                    stich(Sitz(3), Sitz(2), 28, {kartencode(Herz, As), kartencode(Herz, Zehn), kartencode(Karo, Dame), kartencode(Herz, Koenig)})};
    spiel.ansagenProStich[1].kontra = true;
    spiel.ansagenProStich[1].limitSitz = 4;
    spiel.ansagenProStich[1].limitCode = Keine90;
    table::Kartenbilder bilder;
    table::Stichbetrachter betrachter(bilder);
    betrachter.setzeStiche(spiel, spiel.stiche, 1);
    EXPECT_EQ(betrachter.beschreibung(),
              QStringLiteral("2. Stich: Spieler3 spielt aus, Spieler2 gewinnt mit 28 Augen\nKontra angesagt\n"
                             "Spieler4: Limitgebot (keine 90)"));
    testhilfe::bildAblegen(betrachter, QStringLiteral("stich"), true);
    betrachter.blaettern(-1);
    EXPECT_EQ(betrachter.beschreibung(), QStringLiteral("1. Stich: Spieler1 spielt aus, Spieler3 gewinnt mit 21 Augen"));
    betrachter.blaettern(-1);
    EXPECT_EQ(betrachter.gezeigt(), 0);

    // Only the previous trick while the next runs: it keeps its number.
    betrachter.setzeStiche(spiel, {spiel.stiche.back()}, 0);
    EXPECT_EQ(betrachter.anzahl(), 1);
    EXPECT_TRUE(betrachter.beschreibung().startsWith(QStringLiteral("2. Stich")));
}

// The pile of the manual deal: cards large enough to read their corners, a suit's
// row across the whole panel.
TEST(Dialoge, VerteilungZeigtDenStapelLesbar) {
    table::Kartenbilder bilder;
    engine::SeedZufall zufall(1);
    ProSitz<std::string> namen;
    for (const Sitz s : alleSitze) namen[s] = "Spieler" + std::to_string(s.nr());
    table::Verteilungsdialog dialog(bilder, 48, false, namen, zufall);
    dialog.show();
    QApplication::processEvents();
    const table::Kartenfeld& stapel = *dialog.stapelfeld();
    const QRect erste = stapel.kartenrechteck(0);
    EXPECT_GE(erste.height(), 80);
    EXPECT_GE(erste.width(), 50);
    // The twelve cards of the first row reach across the panel, each with more than its corner showing.
    QRect letzte = erste;
    for (std::size_t i = 1; i < 12; ++i) {
        EXPECT_GE(stapel.kartenrechteck(i).left() - stapel.kartenrechteck(i - 1).left(), erste.width() * 55 / 100) << i;
        letzte = stapel.kartenrechteck(i);
    }
    EXPECT_GE(letzte.right(), stapel.width() * 85 / 100);
    testhilfe::bildAblegen(dialog, QStringLiteral("verteilung-leer"));
}

}  // namespace

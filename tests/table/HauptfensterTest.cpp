#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include "QtAusgabe.h"

#include "Modal.h"
#include "engine/TestHilfen.h"
#include "table/Hauptfenster.h"

namespace {

TEST(Hauptfenster, MenueeintraegeMitIhrenTexten) {
    table::Hauptfenster hfo;
    EXPECT_EQ(hfo.objectName(), QStringLiteral("hfo"));
    const struct { const char* name; const char* text; } faelle[] = {
        {"m_neue_partie", "&Neue Partie"},
        {"m_automatisch", " &Automatisch spielen "},
        {"m_ansage", "&Kontra geben"},
        {"m_limit3", "Limitgebot (keine 90)"},
        {"m_limit0", "Limitgebot (kein Stich)"},
        {"m_ende", "&Ende"},
        {"m_partie_laden", "Partie &laden..."},
        {"m_partie_speichern", "Partie &speichern unter..."},
        {"m_einstellungen", "E&instellungen..."},
        {"m_vollbild", "&Vollbild"},
        {"m_spielregeln", "&Spielregeln"},
        {"mnuSendebuffer", "&Netzprotokoll zeigen"},
        {"m_msgboxen_zeigen", nullptr},
    };
    for (const auto& f : faelle) {
        auto* aktion = hfo.findChild<QAction*>(QString::fromLatin1(f.name));
        ASSERT_NE(aktion, nullptr) << f.name;
        if (f.text) {
            EXPECT_EQ(aktion->text(), QString::fromUtf8(f.text)) << f.name;
        }
    }
    // Before a game nothing can be announced.
    EXPECT_FALSE(hfo.reKontraAktion()->isEnabled());
    EXPECT_FALSE(hfo.limitMenue()->isEnabled());
}

TEST(Hauptfenster, SchalterUndTitel) {
    table::Hauptfenster hfo;
    hfo.automatikAnzeigen(true);
    EXPECT_EQ(hfo.automatikAktion()->text(), QStringLiteral("&Automatik abbrechen"));
    hfo.automatikAnzeigen(false);
    EXPECT_EQ(hfo.automatikAktion()->text(), QStringLiteral(" &Automatisch spielen "));
    hfo.partieendeAnzeigen(true);
    EXPECT_EQ(hfo.windowTitle(), QStringLiteral("Trumpona - P a r t i e e n d e"));
    hfo.partieendeAnzeigen(false);
    EXPECT_EQ(hfo.windowTitle(), QStringLiteral("Trumpona"));
    EXPECT_EQ(hfo.msgBoxModus(), 3);
    hfo.msgboxenAktion()->trigger();
    EXPECT_EQ(hfo.msgBoxModus(), 1);

    engine::Spiel spiel = testhilfe::spielMitHaenden(engine::Normalspiel, {});
    spiel.partei[engine::Sitz(1)] = engine::ParteiKontra;
    spiel.kontraAngesagt[engine::Sitz(1)] = true;
    spiel.ablauf.phase = engine::Spielphase::Kartenspiel;
    spiel.stich.anzahl = 1;
    hfo.ansagemenueSetzen(engine::ansagemenue(spiel, engine::Sitz(1)));
    EXPECT_EQ(hfo.reKontraAktion()->text(), QStringLiteral("Kontra gegeben"));
    EXPECT_FALSE(hfo.reKontraAktion()->isEnabled());
    EXPECT_TRUE(hfo.limitAktion(engine::Keine60)->isEnabled());
    EXPECT_TRUE(hfo.limitMenue()->isEnabled());
}

TEST(Hauptfenster, NeuePartieFragtNurBeiLaufenderPartie) {
    const struct {
        bool unterwegs;
        QMessageBox::StandardButton antwort;
        int neuePartien;
    } faelle[] = {{false, QMessageBox::NoButton, 1}, {true, QMessageBox::No, 0}, {true, QMessageBox::Yes, 1}};
    for (const auto& f : faelle) {
        table::Hauptfenster hfo;
        hfo.setzePartieUnterwegs(f.unterwegs);
        QSignalSpy neu(&hfo, &table::Hauptfenster::neuePartieGewuenscht);
        QString frage;
        if (f.antwort != QMessageBox::NoButton) testhilfe::meldungBeantworten(f.antwort, &frage);
        hfo.neuePartieAktion()->trigger();
        EXPECT_EQ(neu.count(), f.neuePartien) << f.unterwegs << " " << f.antwort;
        if (f.unterwegs) {
            EXPECT_EQ(frage, QStringLiteral("Möchten Sie die laufende Partie abbrechen?"));
        }
    }
}

TEST(Hauptfenster, LimitEintraegeMeldenIhrenCode) {
    table::Hauptfenster hfo;
    QSignalSpy limit(&hfo, &table::Hauptfenster::limitGewuenscht);
    for (int code = 0; code < 4; ++code) {
        hfo.limitAktion(code)->setEnabled(true);
        hfo.limitAktion(code)->trigger();
    }
    ASSERT_EQ(limit.count(), 4);
    EXPECT_EQ(limit.at(0).first().toInt(), engine::LimitSchwarz);
    EXPECT_EQ(limit.at(3).first().toInt(), engine::Keine90);
}

// The letter after '&', lower case; none for a text without one.
QChar kuerzel(const QString& text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != QLatin1Char('&')) continue;
        if (text[i + 1] == QLatin1Char('&')) { ++i; continue; }
        return text[i + 1].toLower();
    }
    return {};
}

// Alt plus a letter reaches one entry of the menu bar and one item of each menu. The
// two given texts of the game menu that share their letter are the one exception.
TEST(Hauptfenster, TastenkuerzelEindeutig) {
    table::Hauptfenster hfo;
    const QStringList erlaubt{QStringLiteral("&Neue Partie"), QStringLiteral("&Netzprotokoll zeigen")};
    QList<QWidget*> leisten{hfo.menuBar()};
    for (auto* m : hfo.menuBar()->findChildren<QMenu*>()) leisten << m;
    for (QWidget* leiste : leisten) {
        QMap<QChar, QString> vergeben;
        for (QAction* a : leiste->actions()) {
            const QChar k = kuerzel(a->text());
            if (k.isNull() || a->isSeparator()) continue;
            const auto alt = vergeben.constFind(k);
            if (alt != vergeben.constEnd() && !(erlaubt.contains(*alt) && erlaubt.contains(a->text())))
                ADD_FAILURE() << "Alt+" << QString(k).toStdString() << ": " << alt->toStdString() << " / " << a->text().toStdString();
            vergeben.insert(k, a->text());
        }
    }
}

}  // namespace

// The foyer window as a player uses it, against a real ngircd: the login with its
// dialogs, the lists, the chats, a table to sit down at.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDockWidget>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include "Ngircd.h"
#include "foyer/Foyeranmeldung.h"
#include "foyer/Foyerfenster.h"
#include "foyer/Foyerprogramm.h"
#include "foyer/Foyertexte.h"
#include "foyer/Foyerverbindung.h"
#include "settings/Benutzerspeicher.h"
#include "table/Bildablage.h"

namespace foyer {
namespace {

constexpr int Frist = 10'000;

template <class T>
T* offenesModal() {
    return qobject_cast<T*>(QApplication::activeModalWidget());
}

class Foyerfensterprobe : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(irc.laeuft()) << irc.fehler().toStdString();
        speicher.setzeText(QStringLiteral("IRCServer"), QStringLiteral("127.0.0.1"));
        speicher.setzeZahl(QStringLiteral("IRCPort"), irc.port());
        speicher.setzeText(QStringLiteral("StartNick"), QStringLiteral("Anna"));
    }
    // Fills the login dialog that is open and confirms it.
    void anmeldungAbschicken(const QString& name) {
        ASSERT_TRUE(QTest::qWaitFor([] { return offenesModal<Foyeranmeldung>() != nullptr; }, Frist));
        auto* dialog = offenesModal<Foyeranmeldung>();
        EXPECT_EQ(dialog->findChild<QSpinBox*>(QStringLiteral("txtPort"))->value(), irc.port());
        dialog->findChild<QLineEdit*>(QStringLiteral("txtName"))->setText(name);
        dialog->accept();
    }
    void gastAnmelden(Foyerverbindung& v, const QString& name) {
        QSignalSpy angemeldet(&v, &Foyerverbindung::angemeldet);
        v.anmelden(QStringLiteral("127.0.0.1"), irc.port(), name);
        ASSERT_TRUE(angemeldet.wait(Frist));
        ASSERT_TRUE(QTest::qWaitFor([&] {
            const auto alle = v.sitzung().spieler();
            return std::any_of(alle.begin(), alle.end(), [&](const auto& s) { return s.nick == name.toStdString(); });
        }, Frist));
    }
    QTreeWidget* liste(const char* name) { return programm.fenster().findChild<QTreeWidget*>(QLatin1String(name)); }
    QStringList spalte(const char* name, int spalte) {
        QStringList texte;
        QTreeWidget* l = liste(name);
        for (int i = 0; i < l->topLevelItemCount(); ++i) texte << l->topLevelItem(i)->text(spalte);
        return texte;
    }

    foyertest::Ngircd irc;
    settings::Benutzerspeicher speicher;
    Foyerprogramm programm{speicher, [](const QString& name) {
                               return name.isEmpty() ? QStringLiteral("Sie müssen einen Namen eingegeben!") : QString();
                           }};
};

TEST_F(Foyerfensterprobe, AnmeldenChattenUndPlatzNehmen) {
    QSignalSpy gewuenscht(&programm, &Foyerprogramm::platzNehmenGewuenscht);
    QSignalSpy eroeffnen(&programm, &Foyerprogramm::tischEroeffnenGewuenscht);
    programm.oeffnen();
    anmeldungAbschicken(QStringLiteral("Anna"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return spalte("lstSpieler", 0).contains(QStringLiteral("Anna")); }, Frist));
    EXPECT_EQ(speicher.text(QStringLiteral("StartNick")), QStringLiteral("Anna"));

    Foyerverbindung bert;
    gastAnmelden(bert, QStringLiteral("Bert"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return spalte("lstSpieler", 0).contains(QStringLiteral("Bert")); }, Frist));
    bert.foyerChatSenden(QStringLiteral("Hallo Anna"));
    bert.privatSenden(QStringLiteral("Anna"), QStringLiteral("Spielen wir?"));
    auto* foyerText = programm.fenster().findChild<QPlainTextEdit*>(QStringLiteral("txtFoyer"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return foyerText->toPlainText().contains(QStringLiteral("Bert: Hallo Anna")); }, Frist));
    ASSERT_TRUE(QTest::qWaitFor([&] { return programm.fenster().findChild<QWidget*>(QStringLiteral("Bert")) != nullptr; }, Frist));
    EXPECT_TRUE(programm.fenster().findChild<QWidget*>(QStringLiteral("Bert"))->findChild<QPlainTextEdit*>()->toPlainText().contains(
        QStringLiteral("Bert: Spielen wir?")));
    // A chat not in view is marked until it is looked at.
    auto* chats = programm.fenster().findChild<QTabWidget*>();
    chats->setCurrentIndex(chats->indexOf(foyerText->parentWidget()));
    bert.privatSenden(QStringLiteral("Anna"), QStringLiteral("Noch da?"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return programm.fenster().ungelesen(QStringLiteral("bert")); }, Frist));
    EXPECT_FALSE(programm.fenster().ungelesen(QString()));
    chats->setCurrentWidget(programm.fenster().findChild<QWidget*>(QStringLiteral("Bert")));
    EXPECT_FALSE(programm.fenster().ungelesen(QStringLiteral("Bert")));

    // Bert opens a table; Anna sees it, who sits there, and asks for the seat.
    bert.tischEroeffnen(QStringLiteral("127.0.0.1"), 40002, 3, QStringLiteral("48 Karten, 12 Spiele"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return liste("lstTische")->topLevelItemCount() == 1; }, Frist));
    QTreeWidgetItem* tisch = liste("lstTische")->topLevelItem(0);
    EXPECT_EQ(tisch->text(0), QStringLiteral("Tisch 1"));
    EXPECT_EQ(tisch->text(1), QStringLiteral("Bert"));
    EXPECT_EQ(tisch->text(2), QStringLiteral("3"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return spalte("lstSpieler", 1).contains(QStringLiteral("Tisch 1")); }, Frist));
    auto* platz = programm.fenster().findChild<QPushButton*>(QStringLiteral("cmdPlatzNehmen"));
    EXPECT_FALSE(platz->isEnabled());
    liste("lstTische")->setCurrentItem(tisch);
    ASSERT_TRUE(platz->isEnabled());
    platz->click();
    ASSERT_EQ(gewuenscht.count(), 1);
    EXPECT_EQ(gewuenscht.at(0).at(0).value<Tischangebot>().port, 40002);
    programm.platzGenommen(1);
    ASSERT_TRUE(QTest::qWaitFor([&] {
        const auto t = bert.sitzung().tische();
        return !t.empty() && t[0].sitzend.size() == 2;
    }, Frist));
    EXPECT_TRUE(programm.fenster().findChild<QPushButton*>(QStringLiteral("cmdZurueck"))->isEnabled());
    EXPECT_FALSE(programm.fenster().findChild<QPushButton*>(QStringLiteral("cmdTischEroeffnen"))->isEnabled());
    // The host counts the seat; a newcomer; Anna types into the foyer chat.
    bert.freiePlaetzeSetzen(2);
    Foyerverbindung carl;
    gastAnmelden(carl, QStringLiteral("Carl"));
    QSignalSpy beiCarl(&carl, &Foyerverbindung::foyerChat);
    auto* eingabe = programm.fenster().findChild<QLineEdit*>(QStringLiteral("txtFoyerEingabe"));
    eingabe->setText(QStringLiteral("Ich sitze schon an Tisch 1"));
    QTest::keyClick(eingabe, Qt::Key_Return);
    ASSERT_TRUE(beiCarl.wait(Frist));
    EXPECT_EQ(beiCarl.at(0).at(0).toString(), QStringLiteral("Anna"));
    EXPECT_TRUE(foyerText->toPlainText().endsWith(QStringLiteral("Anna: Ich sitze schon an Tisch 1")));
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return spalte("lstTische", 2) == QStringList{QStringLiteral("2")} && spalte("lstSpieler", 0).contains(QStringLiteral("Carl"));
    }, Frist));
    programm.fenster().resize(900, 560);
    testhilfe::bildAblegen(programm.fenster(), QStringLiteral("foyerfenster"));
}

TEST_F(Foyerfensterprobe, VergebenerNameUndAbbruchFuehrenZurAnmeldungZurueck) {
    Foyerverbindung schon;
    gastAnmelden(schon, QStringLiteral("Anna"));
    programm.oeffnen();
    anmeldungAbschicken(QStringLiteral("Anna"));
    ASSERT_TRUE(QTest::qWaitFor([] {
        auto* box = offenesModal<QMessageBox>();
        return box && box->objectName() != QStringLiteral("frmAnmeldungWartet");
    }, Frist));
    auto* hinweis = offenesModal<QMessageBox>();
    EXPECT_EQ(hinweis->text().toStdString(), texte::nameVergeben("Anna"));
    hinweis->button(QMessageBox::Ok)->click();

    // The login dialog is back; a server that never answers can be left with "Abbruch".
    ASSERT_TRUE(QTest::qWaitFor([] { return offenesModal<Foyeranmeldung>() != nullptr; }, Frist));
    irc.beenden();
    anmeldungAbschicken(QStringLiteral("Bertram"));
    ASSERT_TRUE(QTest::qWaitFor([] { return offenesModal<QMessageBox>() != nullptr; }, Frist));
    auto* warten = offenesModal<QMessageBox>();
    if (warten->objectName() == QStringLiteral("frmAnmeldungWartet")) {
        ASSERT_EQ(warten->buttons().size(), 1);
        EXPECT_EQ(warten->buttons()[0]->text(), QStringLiteral("Abbruch"));
        warten->buttons()[0]->click();
    } else {  // the refused connection came first
        EXPECT_TRUE(warten->text().startsWith(QStringLiteral("Fehler bei der Anmeldung im IRC: ")));
        warten->button(QMessageBox::Ok)->click();
    }
    ASSERT_TRUE(QTest::qWaitFor([] { return offenesModal<Foyeranmeldung>() != nullptr; }, Frist));
    offenesModal<Foyeranmeldung>()->reject();
}

TEST(Foyerfenster, PlatzDesFenstersAusDemSpeicherUndZurueck) {
    settings::Benutzerspeicher speicher;
    speicher.setzeZahl(QStringLiteral("chat_x"), 1500);
    speicher.setzeZahl(QStringLiteral("chat_y"), 1230);
    speicher.setzeZahl(QStringLiteral("chat_w"), 12000);
    speicher.setzeZahl(QStringLiteral("chat_h"), 9000);
    speicher.setzeZahl(QStringLiteral("spListe_w"), 3000);
    {
        Foyerprogramm programm(speicher, {});
        programm.oeffnen();
        EXPECT_EQ(programm.fenster().size(), QSize(800, 600));
        EXPECT_NEAR(programm.fenster().spielerDock()->width(), 200, 10);
        if (auto* dialog = offenesModal<Foyeranmeldung>()) dialog->reject();
        programm.fenster().resize(900, 640);
        programm.fenster().close();
    }
    EXPECT_EQ(speicher.zahl(QStringLiteral("chat_w")), 900 * 15);
    EXPECT_EQ(speicher.zahl(QStringLiteral("chat_h")), 640 * 15);
}

}  // namespace
}  // namespace foyer

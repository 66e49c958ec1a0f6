// Network play at the window: a host window and a guest window on the loopback
// play whole games and show the same at every card; a guest that goes away
// leaves its seat to the host's computer.
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <array>
#include <optional>
#include <gtest/gtest.h>

#include "Bildablage.h"
#include "Netzfenster.h"
#include "QtAusgabe.h"
#include "engine/Schiedsrichter.h"
#include "net/Gast.h"
#include "table/Netzbereiche.h"
#include "table/Netzgasttisch.h"
#include "table/Netzhosttisch.h"
#include "table/Spielendedialog.h"
#include "table/Tischansicht.h"

namespace {

using engine::Sitz;
using testhilfe::Netzfenster;
using testhilfe::warten;

// What a table shows after each card and trick, in the host's seat numbers.
struct Bild {
    int karten = 0;                  // cards played in the game
    std::array<int, 4> stich{};      // card code each host seat has in the trick, 0 none
    std::array<int, 4> augen{};
    std::array<int, 4> punkte{};     // totals of the Partie
    bool operator==(const Bild&) const = default;
};

std::ostream& operator<<(std::ostream& aus, const Bild& b) {
    aus << b.karten << " stich";
    for (int c : b.stich) aus << ' ' << c;
    aus << " augen";
    for (int a : b.augen) aus << ' ' << a;
    aus << " punkte";
    for (int p : b.punkte) aus << ' ' << p;
    return aus;
}

// Records a Bild at every card, trick and end; `lokal` maps a host seat to the table's own.
class Bildschreiber : public engine::Spielbeobachter {
public:
    std::function<Sitz(int)> lokal = [](int h) { return Sitz(h); };
    std::vector<Bild> bilder;

    void karteGespielt(const engine::Spiel& s, Sitz, int) override { aufnehmen(s); }
    void stichKomplett(const engine::Spiel& s, Sitz) override { aufnehmen(s); }
    void spielBeendet(const engine::Spiel& s) override { aufnehmen(s); }

private:
    void aufnehmen(const engine::Spiel& s) {
        Bild b;
        b.karten = s.sticheGespielt * 4 + s.stich.anzahl;
        for (int h = 1; h <= 4; ++h) {
            const Sitz l = lokal(h);
            const auto i = static_cast<std::size_t>(h - 1);
            if (const int platz = s.stich.platz[l]; platz > 0 && platz <= s.stich.anzahl)
                b.stich[i] = s.deck[s.stich.karte(platz)].code;
            b.augen[i] = s.augen[l];
            b.punkte[i] = s.partie.punkte[l];
        }
        bilder.push_back(b);
    }
};

class NetzspielTest : public ::testing::Test {
protected:
    // Host "Wirt" and guest "Anna"; both let the computer play seat 1.
    void tischeOeffnen() {
        host_.emplace(ordner_.path(), 11);
        gast_.emplace(ordner_.path(), 12);
        host_->steuerung.ablauf().beobachterHinzufuegen(&richter_);
        host_->steuerung.ablauf().beobachterHinzufuegen(&hostBilder_);
        gast_->steuerung.ablauf().beobachterHinzufuegen(&gastBilder_);
        pumpe_.antworten = [this](QWidget* w) {
            auto* ende = qobject_cast<table::Spielendedialog*>(w);
            if (!ende) return false;
            const bool vomHost = ende->parentWidget() == &host_->hfo;
            (vomHost ? hostEnden_ : gastEnden_)++;
            testhilfe::bildAblegen(*ende, vomHost ? QStringLiteral("netz-ende-host") : QStringLiteral("netz-ende-gast"));
            ende->accept();
            return true;
        };
        ASSERT_TRUE(host_->netz.hosten(QStringLiteral("Wirt"), 0));
        gast_->netz.beitreten(QStringLiteral("127.0.0.1"), host_->netz.host()->port(), QStringLiteral("Anna"));
        ASSERT_TRUE(warten([&] {
            return host_->netz.host()->gastgeber().kern().angemeldeteGaeste() == 1 && host_->netz.startAktion()->isEnabled();
        }));
        const auto& abbildung = gast_->netz.gast()->gast().kern()->abbildung();
        ASSERT_TRUE(abbildung.has_value());
        gastBilder_.lokal = [abbildung](int h) { return abbildung->lokal(h); };
        host_->hfo.automatikAktion()->trigger();
        gast_->hfo.automatikAktion()->trigger();
    }

    QTemporaryDir ordner_;
    testhilfe::Boxenpumpe pumpe_;
    std::optional<Netzfenster> host_, gast_;
    engine::Schiedsrichter richter_;
    Bildschreiber hostBilder_, gastBilder_;
    int hostEnden_ = 0, gastEnden_ = 0;
};

TEST_F(NetzspielTest, ZweiFensterSpielenGleich) {
    tischeOeffnen();
    // The keys belong to the table once joined, and again after a word in the chat (Enter or Escape).
    table::Hauptfenster& g0 = gast_->hfo;
    EXPECT_EQ(g0.focusWidget(), &g0.tisch());
    auto* eingabe = g0.findChild<QLineEdit*>(QStringLiteral("txtChatEingabe"));
    for (const auto taste : {Qt::Key_Return, Qt::Key_Escape}) {
        eingabe->setFocus();
        QTest::keyClicks(eingabe, QStringLiteral("Hallo"));
        QTest::keyClick(eingabe, taste);
        EXPECT_EQ(g0.focusWidget(), &g0.tisch()) << taste;
    }
    EXPECT_TRUE(warten([&] { return host_->netz.chat()->text().contains(QStringLiteral("Anna: Hallo")); }));
    // Who sits where, on both screens.
    const engine::Spiel& h = host_->spiel();
    EXPECT_EQ(h.namen[Sitz(1)], "Wirt");
    EXPECT_EQ(h.namen[Sitz(2)], "Computer1");
    EXPECT_EQ(h.namen[Sitz(3)], "Anna");
    EXPECT_EQ(h.namen[Sitz(4)], "Computer3");
    const engine::Spiel& g = gast_->spiel();
    EXPECT_EQ(g.namen[Sitz(1)], "Anna");
    EXPECT_EQ(g.namen[Sitz(3)], "Wirt");  // the host sits across the table
    EXPECT_EQ(g.namen[Sitz(2)], "Computer3");

    host_->netz.startAktion()->trigger();
    EXPECT_EQ(host_->netz.startAktion()->text(), QStringLiteral("Spiel gestartet! Bitte warten..."));
    ASSERT_TRUE(warten([&] { return hostEnden_ >= 2 && gastEnden_ >= 2; }, 120000))
        << host_->hfo.status().toStdString() << " / " << gast_->hfo.status().toStdString() << " phase "
        << int(host_->spiel().ablauf.phase) << "/" << int(gast_->spiel().ablauf.phase) << " karten "
        << hostBilder_.bilder.size() << "/" << gastBilder_.bilder.size() << "\n"
        << pumpe_.boxen.join(" | ").toStdString();
    testhilfe::bildAblegen(host_->hfo, QStringLiteral("netz-host"));
    testhilfe::bildAblegen(gast_->hfo, QStringLiteral("netz-gast"));

    // Every card, trick and end as the host saw it, the guest saw too (the guest may be a card behind).
    ASSERT_GE(gastBilder_.bilder.size(), 2u * 52);
    const std::size_t n = std::min(hostBilder_.bilder.size(), gastBilder_.bilder.size());
    for (std::size_t i = 0; i < n; ++i) ASSERT_EQ(gastBilder_.bilder[i], hostBilder_.bilder[i]) << "Schritt " << i;
    EXPECT_EQ(richter_.fehlerAnzahl(), 0);
    EXPECT_TRUE(gast_->netz.chat()->text().contains(QStringLiteral("*** Willkommen in der Doppelkopf-Runde ***")));
    EXPECT_TRUE(host_->netz.chat()->text().contains(QStringLiteral("*** Anna hat sich angemeldet! ***")));

    // "Neue Partie" at the host: the guest hears of it and starts from nothing too.
    auto alt = pumpe_.antworten;
    pumpe_.antworten = [&, alt](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        if (!box || box->text() != QStringLiteral("Möchten Sie die laufende Partie abbrechen?")) return alt(w);
        box->button(QMessageBox::Yes)->click();
        return true;
    };
    ASSERT_TRUE(warten([&] { return !QApplication::activeModalWidget(); }));
    host_->hfo.neuePartieAktion()->trigger();
    ASSERT_TRUE(warten([&] {
        return gast_->netz.chat()->text().contains(QStringLiteral("***Neue Partie wurde vom Server gestartet ***")) &&
               pumpe_.boxen.contains(QStringLiteral("Neue Partie wurde vom Server gestartet!"));
    }));
    ASSERT_TRUE(warten([&] { return gast_->spiel().partie.spielNr == 1 && gast_->spiel().sticheGespielt >= 1; }));
    for (const Sitz s : engine::alleSitze) EXPECT_EQ(host_->spiel().partie.punkte[s], 0);
}

TEST_F(NetzspielTest, GastWegMittenImStich) {
    tischeOeffnen();
    host_->netz.startAktion()->trigger();
    // In the fourth trick, with a card on the table, the guest's program is gone.
    ASSERT_TRUE(warten([&] {
        const engine::Spiel& s = host_->spiel();
        return s.sticheGespielt == 3 && s.stich.anzahl == 1 && !QApplication::activeModalWidget();
    }));
    gast_.reset();
    ASSERT_TRUE(warten([&] { return hostEnden_ >= 1; }, 60000));
    EXPECT_EQ(host_->spiel().steuerung[Sitz(3)], engine::Steuerung::Computer);
    EXPECT_EQ(host_->spiel().namen[Sitz(3)], "Computer2");
    EXPECT_TRUE(pumpe_.boxen.contains(QStringLiteral("Die Verbindung wurde von Anna getrennt!")) ||
                std::any_of(pumpe_.boxen.begin(), pumpe_.boxen.end(),
                            [](const QString& b) { return b.endsWith(QStringLiteral("Der Computer übernimmt die Rolle von Anna !")); }))
        << pumpe_.boxen.join(QStringLiteral(" | ")).toStdString();
    EXPECT_EQ(richter_.fehlerAnzahl(), 0);
    EXPECT_TRUE(host_->netz.chat()->text().contains(QStringLiteral("*** Anna ist abgemeldet! ***")));
    EXPECT_EQ(host_->netz.lauschenLabel()->text(), QStringLiteral("Tisch offen an Port %1").arg(host_->netz.host()->port()));
}

}  // namespace

// The foyer's table side at the window, against a real ngircd: one player opens
// a table from the foyer and hosts it at his window, another takes the seat
// offered and joins at hers, the free seats follow, and going back leaves.
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "Foyertisch.h"
#include "foyer/Foyerfenster.h"
#include "foyer/Foyerprogramm.h"
#include "foyer/Foyerverbindung.h"
#include "foyer/Foyersitzung.h"
#include "foyer/Ngircd.h"
#include "table/Netzbereiche.h"
#include "table/Netzfenster.h"
#include "table/Netzgasttisch.h"
#include "table/Netzhosttisch.h"

namespace {

using testhilfe::warten;

struct Foyerplatz {
    Foyerplatz(const QString& ordner, std::uint64_t seed, const QString& name, quint16 ircPort)
        : fenster(ordner, seed), foyer(fenster.speicher, [](const QString&) { return QString(); }) {
        fenster.speicher.setzeText(QStringLiteral("StartNick"), name);
        table::Benutzereinstellungen b = fenster.programm.benutzer();
        b.serverport = 0;  // a free port: tests run side by side
        fenster.programm.EinstUebernehmen(fenster.programm.einstellungen(), b);
        app::foyerTischVerbinden(foyer, fenster.netz, fenster.programm);
        QSignalSpy angemeldet(&foyer.verbindung(), &foyer::Foyerverbindung::angemeldet);
        foyer.verbindung().anmelden(QStringLiteral("127.0.0.1"), ircPort, name);
        EXPECT_TRUE(angemeldet.wait(10000));
    }
    testhilfe::Netzfenster fenster;
    foyer::Foyerprogramm foyer;
};

QString protokoll(Foyerplatz& platz) {
    auto* bereich = platz.fenster.hfo.findChild<table::Protokollbereich*>();
    return bereich ? bereich->text() : QString();
}

// A private ngircd and the boxes answered, for two windows of this process.
class Foyertisch : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(irc.laeuft()) << irc.fehler().toStdString(); }
    foyertest::Ngircd irc;
    QTemporaryDir ordner;
    testhilfe::Boxenpumpe pumpe;
};

TEST_F(Foyertisch, TischEroeffnenPlatzNehmenZurueck) {
    Foyerplatz wirt(ordner.path(), 1, QStringLiteral("Wirt"), irc.port());
    // One store for both windows in this process: each name is set again before it counts.
    emit wirt.foyer.tischEroeffnenGewuenscht();
    ASSERT_NE(wirt.fenster.netz.host(), nullptr);
    wirt.fenster.hfo.netzprotokollAktion()->trigger();
    Foyerplatz anna(ordner.path(), 2, QStringLiteral("Anna"), irc.port());
    auto angebot = [&]() -> std::optional<foyer::Tischangebot> {
        for (const auto& t : anna.foyer.verbindung().sitzung().tische())
            if (t.angebot.port == wirt.fenster.netz.host()->port()) return t.angebot;
        return std::nullopt;
    };
    ASSERT_TRUE(warten([&] { return angebot() && angebot()->frei == 3; }));

    emit anna.foyer.platzNehmenGewuenscht(*angebot());
    ASSERT_NE(anna.fenster.netz.gast(), nullptr);
    ASSERT_TRUE(warten([&] { return wirt.fenster.spiel().namen[engine::Sitz(3)] == "Anna"; }));
    ASSERT_TRUE(warten([&] { return angebot() && angebot()->frei == 2; }));

    // Back to the foyer: her window waits without dealing, under her own seat
    // names; his seat is free once more and her "*TRET*" reaches his log.
    emit anna.foyer.tischVerlassenGewuenscht();
    EXPECT_EQ(anna.fenster.netz.gast(), nullptr);
    EXPECT_TRUE(anna.fenster.netz.wartetImFoyer());
    EXPECT_EQ(anna.fenster.spiel().namen[engine::Sitz(3)], "Spieler3");
    EXPECT_EQ(anna.fenster.spiel().ablauf.phase, engine::Spielphase::Geben);
    ASSERT_TRUE(warten([&] { return wirt.fenster.spiel().namen[engine::Sitz(3)] == "Computer2"; }));
    ASSERT_TRUE(warten([&] { return angebot() && angebot()->frei == 3; }));
    ASSERT_TRUE(warten([&] { return protokoll(wirt).contains(QStringLiteral("*TRET*")); }));

    // The host leaves: his table vanishes from her list.
    emit wirt.foyer.tischVerlassenGewuenscht();
    EXPECT_EQ(wirt.fenster.netz.host(), nullptr);
    EXPECT_TRUE(warten([&] { return anna.foyer.verbindung().sitzung().tische().empty(); }));
}

TEST_F(Foyertisch, VerlorenerTischFuehrtInsFoyerZurueck) {
    pumpe.antworten = [](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        if (!box || box->text() != QStringLiteral("Möchten Sie ins Foyer zurückkehren?")) return false;
        box->button(QMessageBox::Yes)->click();
        return true;
    };
    Foyerplatz wirt(ordner.path(), 1, QStringLiteral("Wirt"), irc.port());
    emit wirt.foyer.tischEroeffnenGewuenscht();
    ASSERT_NE(wirt.fenster.netz.host(), nullptr);
    Foyerplatz anna(ordner.path(), 2, QStringLiteral("Anna"), irc.port());
    ASSERT_TRUE(warten([&] { return anna.foyer.verbindung().sitzung().tische().size() == 1; }));
    emit anna.foyer.platzNehmenGewuenscht(anna.foyer.verbindung().sitzung().tische()[0].angebot);
    ASSERT_TRUE(warten([&] { return anna.foyer.verbindung().sitzung().sitzAn() == 1; }));

    // The host goes; Yes to the question brings her back to this foyer, not to a new program.
    emit wirt.foyer.tischVerlassenGewuenscht();
    ASSERT_TRUE(warten([&] { return anna.fenster.netz.wartetImFoyer(); }));
    EXPECT_EQ(anna.fenster.netz.gast(), nullptr);
    EXPECT_EQ(anna.foyer.verbindung().sitzung().sitzAn(), 0);
    EXPECT_TRUE(anna.foyer.fenster().isVisible());
    EXPECT_TRUE(anna.foyer.verbindung().istAngemeldet());
}

TEST_F(Foyertisch, FoyertextImNetzprotokollMitUndOhneTisch) {
    Foyerplatz wirt(ordner.path(), 1, QStringLiteral("Wirt"), irc.port());
    Foyerplatz anna(ordner.path(), 2, QStringLiteral("Anna"), irc.port());
    const QString kopf = QStringLiteral("*************IRC************");
    // Hidden, the log takes nothing; shown, the foyer's lines come under their heading.
    EXPECT_FALSE(protokoll(wirt).contains(kopf));
    ASSERT_TRUE(wirt.fenster.hfo.netzprotokollAktion()->isEnabled());
    wirt.fenster.hfo.netzprotokollAktion()->trigger();
    anna.foyer.verbindung().foyerChatSenden(QStringLiteral("ohne Tisch"));
    EXPECT_TRUE(warten([&] { return protokoll(wirt).contains(QStringLiteral("ohne Tisch")); }));
    EXPECT_TRUE(protokoll(wirt).contains(kopf));
    // With a table the lines go into the table's own log, beside its traffic.
    emit wirt.foyer.tischEroeffnenGewuenscht();
    ASSERT_NE(wirt.fenster.netz.host(), nullptr);
    anna.foyer.verbindung().foyerChatSenden(QStringLiteral("mit Tisch"));
    EXPECT_TRUE(warten([&] { return protokoll(wirt).contains(QStringLiteral("mit Tisch")); }));
    EXPECT_FALSE(protokoll(wirt).contains(QStringLiteral("ohne Tisch")));
}

}  // namespace

// The foyer's table side at the window, against a real ngircd: one player opens
// a table from the foyer and hosts it at his window, another takes the seat
// offered and joins at hers, the free seats follow, and going back leaves.
#include <QSignalSpy>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "Foyertisch.h"
#include "foyer/Foyerprogramm.h"
#include "foyer/Foyerverbindung.h"
#include "foyer/Foyersitzung.h"
#include "foyer/Ngircd.h"
#include "table/Netzfenster.h"
#include "table/Netzgasttisch.h"
#include "table/Netzhosttisch.h"

namespace {

using testhilfe::warten;

struct Foyerplatz {
    Foyerplatz(const QString& ordner, std::uint64_t seed, const QString& name, quint16 ircPort)
        : fenster(ordner, seed), foyer(fenster.speicher, [](const QString&) { return QString(); }) {
        fenster.speicher.setzeText(QStringLiteral("StartNick"), name);
        app::foyerTischVerbinden(foyer, fenster.netz, fenster.programm, fenster.speicher);
        QSignalSpy angemeldet(&foyer.verbindung(), &foyer::Foyerverbindung::angemeldet);
        foyer.verbindung().anmelden(QStringLiteral("127.0.0.1"), ircPort, name);
        EXPECT_TRUE(angemeldet.wait(10000));
    }
    testhilfe::Netzfenster fenster;
    foyer::Foyerprogramm foyer;
};

TEST(Foyertisch, TischEroeffnenPlatzNehmenZurueck) {
    foyertest::Ngircd irc;
    ASSERT_TRUE(irc.laeuft()) << irc.fehler().toStdString();
    QTemporaryDir ordner;
    testhilfe::Boxenpumpe pumpe;
    Foyerplatz wirt(ordner.path(), 1, QStringLiteral("Wirt"), irc.port());
    // One store for both windows in this process: each name is set again before it counts.
    emit wirt.foyer.tischEroeffnenGewuenscht();
    ASSERT_NE(wirt.fenster.netz.host(), nullptr);
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

    // Back to the foyer: her window plays alone again, his seat is free once more.
    emit anna.foyer.tischVerlassenGewuenscht();
    EXPECT_EQ(anna.fenster.netz.gast(), nullptr);
    ASSERT_TRUE(warten([&] { return wirt.fenster.spiel().namen[engine::Sitz(3)] == "Computer2"; }));
    ASSERT_TRUE(warten([&] { return angebot() && angebot()->frei == 3; }));
}

}  // namespace

#include <gtest/gtest.h>

#include <QDateTime>
#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <QTemporaryDir>
#include <memory>
#include <vector>

#include "savegame/Sicherungsplatz.h"

using savegame::Sicherungsplatz;

namespace {

bool schreiben(const QString& pfad, const QByteArray& inhalt) {
    QFile datei(pfad);
    return datei.open(QIODevice::WriteOnly) && datei.write(inhalt) == inhalt.size();
}

QByteArray lesen(const QString& pfad) {
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("fehlt");
}

}  // namespace

// Programs running at once each keep their own Partie, and one started later finds
// every Partie as it was left.
TEST(Sicherungsplatz, GleichzeitigeProgrammeUeberschreibenSichNicht) {
    QTemporaryDir ordner;
    const QString datei = ordner.filePath(QStringLiteral("daten/letzte-partie.dkp"));
    std::vector<std::unique_ptr<Sicherungsplatz>> laufend;
    for (int n = 1; n <= Sicherungsplatz::Plaetze; ++n) {
        laufend.push_back(std::make_unique<Sicherungsplatz>(datei));
        ASSERT_EQ(laufend.back()->nummer(), n);
        ASSERT_TRUE(schreiben(laufend.back()->datei(), QByteArray::number(n)));
    }
    EXPECT_EQ(laufend[0]->datei(), datei);
    EXPECT_EQ(laufend[1]->datei(), ordner.filePath(QStringLiteral("daten/letzte-partie-2.dkp")));
    const Sicherungsplatz zuviel(datei);
    EXPECT_EQ(zuviel.nummer(), 0);
    EXPECT_TRUE(zuviel.datei().isEmpty());
    EXPECT_TRUE(zuviel.alleBelegt());
    // The first program ends with its Partie unfinished: the next one gets its place.
    laufend[0].reset();
    const Sicherungsplatz naechster(datei);
    EXPECT_EQ(naechster.nummer(), 1);
    for (int n = 1; n <= Sicherungsplatz::Plaetze; ++n)
        EXPECT_EQ(lesen(Sicherungsplatz::platzdatei(datei, n)), QByteArray::number(n)) << n;
    // Where no folder can be made there is no place either, and not for want of one.
    const Sicherungsplatz ohneOrdner(Sicherungsplatz::platzdatei(datei, 2) + QStringLiteral("/letzte-partie.dkp"));
    EXPECT_EQ(ohneOrdner.nummer(), 0);
    EXPECT_FALSE(ohneOrdner.alleBelegt());
}

// A Partie left on a later place by a program that has ended moves to a place without
// one, where it is offered; it never replaces a Partie nor leaves a running program.
TEST(Sicherungsplatz, VerlassenePartieRuecktVor) {
    const struct {
        bool eigene;          // place 1 holds a Partie already
        bool zweiterLaeuft;   // the program of place 2 still runs
        const char* erster;   // place 1 afterwards
        const char* zweiter;  // place 2 afterwards
    } faelle[] = {
        {false, false, "2", "fehlt"},
        {true, false, "1", "2"},
        {false, true, "fehlt", "2"},
    };
    for (const auto& f : faelle) {
        QTemporaryDir ordner;
        const QString datei = ordner.filePath(QStringLiteral("letzte-partie.dkp"));
        const QString zweite = Sicherungsplatz::platzdatei(datei, 2);
        ASSERT_TRUE(schreiben(zweite, "2"));
        if (f.eigene) {
            ASSERT_TRUE(schreiben(datei, "1"));
        }
        QLockFile zweiter(zweite + QStringLiteral(".lock"));
        if (f.zweiterLaeuft) {
            ASSERT_TRUE(zweiter.tryLock(0));
        }
        const Sicherungsplatz platz(datei);
        EXPECT_EQ(platz.nummer(), 1);
        EXPECT_EQ(lesen(datei), QByteArray(f.erster)) << f.eigene << f.zweiterLaeuft;
        EXPECT_EQ(lesen(zweite), QByteArray(f.zweiter)) << f.eigene << f.zweiterLaeuft;
    }
}

// The lock of a program that crashed does not block the save; the lock of a running
// program holds however long its Partie lasts.
TEST(Sicherungsplatz, NurVerwaisteSperrenWerdenUebernommen) {
    QTemporaryDir ordner;
    const QString datei = ordner.filePath(QStringLiteral("letzte-partie.dkp"));
    const QString sperrdatei = datei + QStringLiteral(".lock");
    // A lock as a program leaves it, but naming a process that has ended.
    QByteArray inhalt;
    {
        QLockFile muster(sperrdatei);
        ASSERT_TRUE(muster.tryLock(0));
        inhalt = lesen(sperrdatei);
    }
    QProcess beendet;
    beendet.start(QStringLiteral("true"), {});
    ASSERT_TRUE(beendet.waitForStarted(10000));
    const qint64 pid = beendet.processId();
    ASSERT_TRUE(beendet.waitForFinished(10000));
    inhalt = QByteArray::number(pid) + inhalt.mid(inhalt.indexOf('\n'));
    ASSERT_TRUE(schreiben(sperrdatei, inhalt));
    {
        const Sicherungsplatz nachAbsturz(datei);
        EXPECT_EQ(nachAbsturz.nummer(), 1);
    }
    // A running program's lock, made to look a day old.
    QLockFile laufend(sperrdatei);
    ASSERT_TRUE(laufend.tryLock(0));
    QFile alt(sperrdatei);
    ASSERT_TRUE(alt.open(QIODevice::ReadWrite));
    ASSERT_TRUE(alt.setFileTime(QDateTime::currentDateTime().addDays(-1), QFileDevice::FileModificationTime));
    alt.close();
    const Sicherungsplatz zweiter(datei);
    EXPECT_EQ(zweiter.nummer(), 2);
}

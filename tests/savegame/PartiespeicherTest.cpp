#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "Spielstaende.h"
#include "savegame/Partiespeicher.h"
#include "settings/Benutzerspeicher.h"

using namespace savegame;

TEST(Partiespeicher, SpeichernUndLadenUeberDieFestplatte) {
    QTemporaryDir ordner;
    const QString pfad = ordner.path() + "/Partie 1.dkp";
    const Spielstand gespeichert = testhilfe::vollerSpielstand();
    ASSERT_TRUE(PartieSpeichern(pfad, gespeichert));
    // saving again replaces the file and leaves no temporary file behind
    ASSERT_TRUE(PartieSpeichern(pfad, gespeichert));
    EXPECT_EQ(QDir(ordner.path()).entryList(QDir::Files), QStringList{"Partie 1.dkp"});
    Spielstand geladen;
    const Leseergebnis e = PartieLaden(pfad, geladen);
    EXPECT_EQ(e.ergebnis, Ergebnis::Erfolg);
    EXPECT_EQ(geladen, gespeichert);
}

TEST(Partiespeicher, FehlendeOderUnlesbareDatei) {
    QTemporaryDir ordner;
    Spielstand ziel = testhilfe::vollerSpielstand();
    const Spielstand vorher = ziel;
    for (const QString& pfad : {ordner.path() + "/fehlt.dkp", ordner.path()}) {
        EXPECT_EQ(PartieLaden(pfad, ziel).ergebnis, Ergebnis::KeineSpieldatei) << pfad.toStdString();
    }
    EXPECT_EQ(ziel, vorher);
    EXPECT_FALSE(PartieSpeichern(ordner.path(), vorher));
}

TEST(Partiespeicher, OrdnerWirdGemerkt) {
    settings::Benutzerspeicher speicher;
    ordnerMerken(speicher, "/home/anna/Spiele/montag.dkp");
    settings::Benutzerspeicher spaeter;
    EXPECT_EQ(letzterOrdner(spaeter), "/home/anna/Spiele");
}

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "settings/Benutzerspeicher.h"
#include "settings/Einstellungstexte.h"
#include "settings/Optionsdatei.h"
#include "settings/Tonausgabe.h"

using namespace settings;

namespace {

void schreibeDatei(const QString& pfad, const QByteArray& inhalt) {
    QFile f(pfad);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(inhalt);
}

QByteArray inhalt(const QString& pfad) {
    QFile f(pfad);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

}  // namespace

TEST(Optionsdatei, LiegtImKonfigurationsordnerDesBenutzers) {
    const QString xdg = qEnvironmentVariable("XDG_CONFIG_HOME");
    ASSERT_FALSE(xdg.isEmpty());
    EXPECT_EQ(optionsdateiPfad(), xdg + "/Trumpona/rupalive.ini");
}

// Written into a folder that does not exist yet, read back as the options file and
// imported as an export: the same values, and no temporary copy left behind.
TEST(Optionsdatei, SchreibenLesenUndImportierenUeberDieFestplatte) {
    QTemporaryDir ordner;
    const QString pfad = ordner.path() + "/neu/unter/meine.dki";
    Einstellungen e;
    e.namen = {"Jürgen", "B", "C", "D"};
    e.regeln.joker = -1;
    e.regeln.limit = 0;
    ASSERT_TRUE(EinstellungenSchreiben(pfad, e));
    EXPECT_TRUE(inhalt(pfad).startsWith("[Optionen]\r\nProgramm=Trumpona\r\nName1=J\xFCrgen\r\n"));
    EXPECT_EQ(EinstellungenLesen(pfad, Lesekontext{}), e);
    const Import i = EinstellungenImportieren(pfad, Einstellungen{}, Lesekontext{});
    ASSERT_TRUE(i.einstellungen) << i.fehler;
    EXPECT_EQ(*i.einstellungen, e);
    EXPECT_EQ(QDir(ordner.path() + "/neu/unter").entryList(QDir::Files), QStringList{"meine.dki"});
    // A file that is not there, or not an options file at all, is refused as foreign.
    schreibeDatei(ordner.path() + "/bild.dki", QByteArray("\x00\x01\x02garbage", 10));
    for (const QString& fremd : {ordner.path() + "/fehlt.dki", ordner.path() + "/bild.dki"})
        EXPECT_EQ(EinstellungenImportieren(fremd, e, Lesekontext{}).fehler, std::string(texte::KeineIniDatei));
}

TEST(Optionsdatei, UnschreibbarerPfadWirdGemeldet) {
    QTemporaryDir ordner;
    schreibeDatei(ordner.path() + "/datei", "kein Ordner");
    // the path names a folder, or a folder below a plain file
    for (const QString& pfad : {ordner.path(), ordner.path() + "/datei/rupalive.ini"}) {
        EXPECT_FALSE(EinstellungenSchreiben(pfad, Einstellungen{})) << pfad.toStdString();
    }
    EXPECT_EQ(inhalt(ordner.path() + "/datei"), QByteArray("kein Ordner"));
}

// Without an audio output speech, sounds and signal are read as off, the rest as stored.
TEST(Tonausgabe, OhneGeraetBleibtEsStill) {
    QTemporaryDir ordner;
    const QString pfad = ordner.path() + "/rupalive.ini";
    ASSERT_TRUE(EinstellungenSchreiben(pfad, Einstellungen{}));
    setzeTonpruefung([] { return false; });
    const Einstellungen ohne = EinstellungenLesen(pfad, startLesekontext());
    setzeTonpruefung([] { return true; });
    const Einstellungen mit = EinstellungenLesen(pfad, startLesekontext());
    setzeTonpruefung({});
    EXPECT_EQ((std::array{ohne.sprachausgabe, ohne.geraeusch, ohne.signal}), (std::array{0, 0, 0}));
    EXPECT_EQ((std::array{mit.sprachausgabe, mit.geraeusch, mit.signal}), (std::array{-1, -1, -1}));
    EXPECT_EQ(ohne.animation, -1);
}

TEST(Benutzerspeicher, StandardsNachBildschirmbreite) {
    struct Fall { int breite; Fenstergeometrie g; QString chatBreite; };
    for (const auto& f : {Fall{640, {495, 795, 9600, 7740}, "4320"}, Fall{800, {495, 795, 9600, 7740}, "4320"},
                          Fall{801, {555, 1410, 12375, 9675}, "6315"}, Fall{1924, {555, 1410, 12375, 9675}, "6315"},
                          Fall{1925, {2250, 1500, 16500, 12900}, "6315"}}) {
        Benutzerspeicher s(f.breite);
        s.zuruecksetzen(QString());
        EXPECT_EQ(s.hauptfenster(), f.g) << f.breite;
        EXPECT_EQ(s.text("chat_w"), f.chatBreite) << f.breite;
    }
    Benutzerspeicher s;
    EXPECT_EQ(s.zahl("Serverport"), 7001);
    EXPECT_EQ(s.zahl("IRCPort"), 6668);
    EXPECT_EQ(s.text("IRCRaum"), "Foyer");
    EXPECT_EQ(s.zahl("StartenMit"), 2);
    EXPECT_TRUE(s.wahr("Schrift"));
    EXPECT_FALSE(s.wahr("IPErfragen"));
    EXPECT_EQ(s.text("Netzadapter"), "");
}

TEST(Benutzerspeicher, WerteBleibenUeberEinenNeustart) {
    {
        Benutzerspeicher s(1024);
        s.zuruecksetzen(QString());
        s.setzeHauptfenster({1, 2, 3000, 4000});
        s.setzeZahl("Serverport", 7100);
        s.setzeText("StartNick", "Jürgen, der 2.");
        s.setzeWahr("IPErfragen", true);
        s.programmordnerVermerken("/opt/trumpona");
    }
    Benutzerspeicher s(1024);
    EXPECT_EQ(s.hauptfenster(), (Fenstergeometrie{1, 2, 3000, 4000}));
    EXPECT_EQ(s.zahl("Serverport"), 7100);
    EXPECT_EQ(s.text("StartNick"), "Jürgen, der 2.");
    EXPECT_TRUE(s.wahr("IPErfragen"));
    EXPECT_EQ(s.text("IPErfragen"), "True");
    EXPECT_EQ(s.text("Pfad"), "/opt/trumpona");
    // a damaged number falls back to the default
    s.setzeText("Serverport", "sieben");
    EXPECT_EQ(s.zahl("Serverport"), 7001);
}

TEST(Benutzerspeicher, Startvermerke) {
    Benutzerspeicher s(1024);
    s.zuruecksetzen(QString());
    EXPECT_TRUE(s.ersterStartUebernehmen());
    EXPECT_FALSE(s.ersterStartUebernehmen());
    struct Fall { int breite, hoehe; bool faellig; };
    for (const auto& f : {Fall{640, 480, true}, Fall{799, 600, true}, Fall{800, 599, true}, Fall{800, 600, false}}) {
        EXPECT_EQ(s.aufloesungswarnungFaellig(f.breite, f.hoehe), f.faellig) << f.breite << "x" << f.hoehe;
    }
    s.aufloesungswarnungVermerken();
    EXPECT_FALSE(s.aufloesungswarnungFaellig(640, 480));
    EXPECT_FALSE(s.restartUebernehmen());
    s.restartVormerken();
    EXPECT_TRUE(s.restartUebernehmen());
    EXPECT_FALSE(s.restartUebernehmen());
}

TEST(Benutzerspeicher, WahrheitstexteLesen) {
    struct Fall { QString text; bool wahr; };
    for (const auto& f : {Fall{"True", true}, Fall{"true", true}, Fall{"Wahr", true}, Fall{"-1", true},
                          Fall{"1", true}, Fall{"False", false}, Fall{"Falsch", false}, Fall{"0", false},
                          Fall{"", false}, Fall{"ja", false}}) {
        EXPECT_EQ(textIstWahr(f.text), f.wahr) << f.text.toStdString();
    }
}

TEST(Benutzerspeicher, ResetLoeschtAbschnittUndOptionsdatei) {
    Benutzerspeicher s(1024);
    s.setzeZahl("Serverport", 7100);
    s.setzeText("Warnung", "True");
    ASSERT_TRUE(EinstellungenSchreiben(optionsdateiPfad(), Einstellungen{}));
    s.zuruecksetzen(optionsdateiPfad());
    EXPECT_FALSE(QFile::exists(optionsdateiPfad()));
    Benutzerspeicher neu(1024);
    EXPECT_FALSE(neu.vorhanden("Serverport"));
    EXPECT_FALSE(neu.vorhanden("Warnung"));
    EXPECT_EQ(neu.zahl("Serverport"), 7001);
}

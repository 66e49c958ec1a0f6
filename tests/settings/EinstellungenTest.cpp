#include <gtest/gtest.h>

#include <algorithm>

#include "settings/Einstellungen.h"
#include "settings/Einstellungstexte.h"
#include "settings/Zeichensatz.h"

using namespace settings;

namespace {

const Lesekontext mitTon{true, false};

Einstellungen lesen(std::string_view bytes, const Lesekontext& k = mitTon) {
    return ausProfil(Profildatei::ausBytes(bytes), Einstellungen{}, k);
}

// Writes into an empty file and reads it back as at the next start.
Einstellungen nachNeustart(const Einstellungen& e) {
    Profildatei d;
    inProfil(d, e);
    return lesen(d.bytes());
}

// The keys of the section in file order.
std::vector<std::string> schluesselDerDatei(const Profildatei& d) {
    std::vector<std::string> liste;
    for (const auto& zeile : d.zeilen()) {
        const auto gleich = zeile.find('=');
        if (gleich != std::string::npos) liste.push_back(zeile.substr(0, gleich));
    }
    return liste;
}

}  // namespace

TEST(EinstellungenLesen, OhneDateiGeltenDieStandards) {
    const Einstellungen e = lesen("");
    EXPECT_EQ(e.namen, (std::array<std::string, 4>{"Spieler1", "Spieler2", "Spieler3", "Spieler4"}));
    EXPECT_EQ(e.charakter, (std::array<int, 4>{2, 2, 2, 2}));
    EXPECT_EQ(e.regeln.endeBei, 30);
    EXPECT_EQ(e.regeln.endeNach, 24);
    EXPECT_EQ(e.regeln.abrOption, 2);
    EXPECT_EQ(e.hintergrund, 6196318);
    EXPECT_EQ(e.vordergrund, 0);
    EXPECT_EQ(e.rueckseite, 5);
    EXPECT_EQ(e.kartenbild, 1);
    EXPECT_EQ(e.vollbild, 0);
    EXPECT_EQ(e.geraeusch, -1);
    // every rule starts at the default of the rule table
    for (const auto& r : engine::regelSchluessel()) EXPECT_EQ(e.regeln.*(r.gespeichert), r.standard) << r.schluessel;
    EXPECT_EQ(abgeleitet(e), (Abgeleitet{48, true, true}));
}

TEST(EinstellungenLesen, JederSchluesselWirdGelesen) {
    // Every options key, rules included, set to a value no default has.
    std::string datei = "[Optionen]\r\n";
    for (const auto schluessel : leseschluessel()) datei += std::string(schluessel) + "=7\r\n";
    Einstellungen e = lesen(utf8NachCp1252(datei));
    // HerzZehn 7 is "Zweite schlägt Erste", which switches the Joker off.
    EXPECT_EQ(e.regeln.joker, 0);
    e.regeln.joker = 7;
    for (const auto& r : engine::regelSchluessel()) EXPECT_EQ(e.regeln.*(r.gespeichert), 7) << r.schluessel;
    Einstellungen kopie = e;
    for (const auto schluessel : leseschluessel()) EXPECT_EQ(*feld(kopie, schluessel), 7) << schluessel;
    EXPECT_EQ(e.hintergrund, 7);
}

TEST(EinstellungenLesen, JokerNurMitErsterDolleHoch) {
    struct Fall { std::string zeilen; int herzZehn, joker; };
    for (const auto& f : {Fall{"Joker=-1\r\n", -1, -1}, Fall{"HerzZehn=-1\r\nJoker=-1\r\n", -1, -1},
                          Fall{"HerzZehn=0\r\nJoker=-1\r\n", 0, 0}, Fall{"Joker=-1\r\nHerzZehn=1\r\n", 1, 0}}) {
        const Einstellungen e = lesen("[Optionen]\r\n" + f.zeilen);
        EXPECT_EQ(e.regeln.herzZehn, f.herzZehn) << f.zeilen;
        EXPECT_EQ(e.regeln.joker, f.joker) << f.zeilen;
    }
}

TEST(EinstellungenLesen, AbgeleiteteWerte) {
    struct Fall { std::string zeilen; Abgeleitet erwartet; };
    for (const auto& f : {Fall{"Kontra=0\r\n", {48, false, true}}, Fall{"Limit=0\r\n", {48, true, false}},
                          Fall{"Kontra=1\r\nLimit=1\r\n", {48, true, true}},
                          Fall{"Kontra=-1\r\nLimit=-2\r\n", {48, false, false}},
                          Fall{"Scharfer_Rupa=-1\r\n", {40, true, true}},
                          Fall{"Scharfer_Rupa=1\r\n", {40, true, true}},
                          Fall{"Scharfer_Rupa=0\r\n", {48, true, true}}}) {
        EXPECT_EQ(abgeleitet(lesen("[Optionen]\r\n" + f.zeilen)), f.erwartet) << f.zeilen;
    }
}

TEST(EinstellungenLesen, NamenWerdenGekuerztOderBehalten) {
    const std::string datei = "[Optionen]\r\nName1=" + std::string(300, 'n') + "\r\nName2=Bo\r\n";
    EXPECT_EQ(lesen(datei).namen[0], std::string(253, 'n'));
    EXPECT_EQ(lesen(datei).namen[1], "Bo");
    // with the foyer's player list open the seats keep their network names
    Einstellungen netz;
    netz.namen = {"Netz1", "Netz2", "Netz3", "Netz4"};
    const Einstellungen e = ausProfil(Profildatei::ausBytes(datei), netz, Lesekontext{true, true});
    EXPECT_EQ(e.namen, netz.namen);
}

TEST(EinstellungenLesen, HandgemachteWindowsDateiMitGrossenUmlautSchluesseln) {
    const std::string datei =
        "; von Hand angelegt\r\n"
        "[OPTIONEN]\r\n"
        "NAME1 = J\xDCRGEN\r\n"
        "GER\xC4USCH=0\r\n"
        "R\xDC" "CKSEITE=3\r\n"
        "sprachausgabe=0\r\n"
        "HINTERGRUND=255 (rot)\r\n"
        "HH_N_SOLO=-1\r\n"
        "CHARAKTER3=1\r\n";
    const Einstellungen e = lesen(datei);
    EXPECT_EQ(e.namen[0], "JÜRGEN");
    EXPECT_EQ(e.geraeusch, 0);
    EXPECT_EQ(e.rueckseite, 3);
    EXPECT_EQ(e.sprachausgabe, 0);
    EXPECT_EQ(e.signal, -1);
    EXPECT_EQ(e.hintergrund, 255);
    EXPECT_EQ(e.regeln.hhNSolo, -1);
    EXPECT_EQ(e.charakter[2], 1);
}

TEST(EinstellungenSchreiben, SchluesselUndReihenfolge) {
    Profildatei d;
    inProfil(d, Einstellungen{});
    const std::vector<std::string> erwartet{
        "Programm", "Name1", "charakter1", "Name2", "charakter2", "Name3", "charakter3", "Name4",
        "charakter4", "Versionsnr", "Abr_Option", "Ende_bei", "Ende_nach", "Vorhand", "Kontra", "Limit",
        "HerzZehn", "Joker", "Pflichtsolo", "Vh_Solo", "Bockrunden", "Kartenbild", "Hintergrund",
        "Vordergrund", "Animation", "Boxen", "Automatic", "Iconen", "Karten", "Einsammeln", "Willkommen",
        "Hh_n_solo", "Rückseite", "Sprachausgabe", "Signal", "Sopu_Fuchs", "Sopu_doppelfuchs",
        "Sopu_karlchen", "Sopu_doppelkarlchen", "Sopu_rupa_b_Solo", "Sopu_Dollenschlag", "Sopu_Herzstich",
        "DaBu_Solo", "Neunerwerfen", "Koenigewerfen", "Armut", "Scharfer_Rupa", "Zwei_Schweine",
        "Schweine_ansagen", "Schweine_b_TrSolo", "Supersau", "Stille_befoerderung", "Vollbild",
        "Augen_zeigen", "Partei_zeigen", "Geräusch", "Solis", "Bedenkzeit"};
    EXPECT_EQ(schluesselDerDatei(d), erwartet);
    EXPECT_EQ(d.zeilen().front(), "[Optionen]");
    EXPECT_EQ(d.wert("Optionen", "Programm"), "Trumpona");
    EXPECT_EQ(d.wert("Optionen", "Versionsnr"), "200");
    EXPECT_EQ(d.wert("Optionen", "HerzZehn"), "-1");
}

TEST(EinstellungenSchreiben, NachNeustartKommtAllesAusserDemPflichtsoloZurueck) {
    Einstellungen e;
    e.namen = {"Anna, die Erste", "Bärbel", "Ølaf", "Zoë"};
    e.charakter = {1, 2, 3, 4};
    e.geraeusch = 0;
    e.rueckseite = 2;
    e.hintergrund = 255;
    e.vordergrund = 16777215;
    e.regeln.kontra = 0;
    e.regeln.hhNSolo = -1;
    e.regeln.scharferRupa = -1;
    e.regeln.solis = 0;
    e.regeln.solo = -1;
    const Einstellungen zurueck = nachNeustart(e);
    EXPECT_EQ(zurueck.regeln.solo, 0);  // written as "Pflichtsolo", read as "Solo"
    Einstellungen ohneSolo = e;
    ohneSolo.regeln.solo = 0;
    EXPECT_EQ(zurueck, ohneSolo);
    // a "Solo" key written by someone else is read
    EXPECT_EQ(lesen("[Optionen]\r\nSolo=-1\r\n").regeln.solo, -1);
}

TEST(EinstellungenSchreiben, UeberschreibenBehaeltKommentareUndUnbekannteSchluessel) {
    Profildatei d = Profildatei::ausBytes("; meine Einstellungen\r\n[Optionen]\r\nLieblingsfarbe=blau\r\nsolo=-1\r\nKONTRA=3\r\n[Fremd]\r\nx=1\r\n");
    Einstellungen e;
    e.regeln.kontra = 4;
    inProfil(d, e);
    const auto& z = d.zeilen();
    EXPECT_EQ(z[0], "; meine Einstellungen");
    EXPECT_EQ(z[2], "Lieblingsfarbe=blau");
    EXPECT_EQ(z[3], "solo=-1");
    EXPECT_EQ(z[4], "KONTRA=4");
    EXPECT_EQ(std::count(z.begin(), z.end(), "[Fremd]"), 1);
    EXPECT_EQ(z.back(), "x=1");
    EXPECT_EQ(d.wert("Optionen", "Pflichtsolo"), "0");
    // the untouched "Solo" key keeps its value and is what the next start reads
    EXPECT_EQ(ausProfil(d, Einstellungen{}, mitTon).regeln.solo, -1);
}

TEST(EinstellungenImportieren, PruefungVonKennungUndVersion) {
    struct Fall { std::string kopf; std::string fehler; };
    const std::vector<Fall> faelle{
        {"Programm=Trumpona\r\nVersionsnr=200\r\n", ""},
        {"Programm=Trumpona\r\nVersionsnr=199\r\n", std::string(texte::IniVeraltet)},
        {"Programm=Trumpona\r\n", std::string(texte::IniVeraltet)},
        {"Programm=Trumpona\r\nVersionsnr=abc\r\n", std::string(texte::IniVeraltet)},
        {"Programm=Doppelkopf\r\nVersionsnr=200\r\n", std::string(texte::KeineIniDatei)},
        {"Programm=trumpona\r\nVersionsnr=200\r\n", std::string(texte::KeineIniDatei)},
        {"Versionsnr=200\r\n", std::string(texte::KeineIniDatei)},
    };
    Einstellungen aktuell;
    aktuell.namen[1] = "Jetzt";
    aktuell.regeln.limit = 2;
    aktuell.kartenbild = 3;
    for (const auto& f : faelle) {
        const Import i = importieren(Profildatei::ausBytes("[Optionen]\r\n" + f.kopf + "Kartenbild=2\r\n"), aktuell, mitTon);
        EXPECT_EQ(i.fehler, f.fehler) << f.kopf;
        EXPECT_EQ(i.einstellungen.has_value(), f.fehler.empty()) << f.kopf;
        if (!i.einstellungen) continue;
        // keys missing from the file keep the current values
        EXPECT_EQ(i.einstellungen->namen[1], "Jetzt");
        EXPECT_EQ(i.einstellungen->regeln.limit, 2);
        EXPECT_EQ(i.einstellungen->kartenbild, 2);
    }
    EXPECT_EQ(texte::IniVeraltet.back(), ' ');
}

TEST(EinstellungenImportieren, TurnierserverKennung) {
    Profildatei d;
    inProfil(d, Einstellungen{}, std::string(Programmkennung) + std::string(TurnierserverZusatz));
    EXPECT_EQ(d.wert("Optionen", "Programm"), "Trumpona-Turnierserver");
    EXPECT_FALSE(importieren(d, Einstellungen{}, mitTon).einstellungen);
    EXPECT_TRUE(importieren(d, Einstellungen{}, mitTon, "Trumpona-Turnierserver").einstellungen);
}

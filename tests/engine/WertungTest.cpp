#include <gtest/gtest.h>

#include "AblaufHilfen.h"
#include "engine/Geben.h"
#include "engine/Wertung.h"

using namespace engine;
using testhilfe::proSitz;

namespace {

// A finished normal game: seats 1 and 2 Re, 3 and 4 Kontra; seat 1 holds the
// Re Augen and tricks, seat 3 the Kontra ones.
Spiel fertig(int augenRe, int sticheRe) {
    Spiel s;
    s.regeln.kartenanzahl = 48;
    kartenAuflegen(s, testhilfe::verteilung({}));
    for (const Sitz x : alleSitze) s.namen[x] = "Spieler" + std::to_string(x.nr());
    s.partei[Sitz(1)] = s.partei[Sitz(2)] = ParteiRe;
    s.partei[Sitz(3)] = s.partei[Sitz(4)] = ParteiKontra;
    s.augen[Sitz(1)] = augenRe;
    s.augen[Sitz(3)] = 240 - augenRe;
    s.stichzahl[Sitz(1)] = sticheRe;
    s.stichzahl[Sitz(3)] = 12 - sticheRe;
    s.partie.spielNr = 1;
    return s;
}

void limitVon(Spiel& s, int sitz, int code) {
    s.limitSitz = Sitz(sitz);
    s.limitCode = code;
}

void sonderpunkte(Spiel& s, int partei, int anzahl) {
    for (int i = 0; i < anzahl; ++i) s.sonderpunkte.push_back({"Doppelkopf", partei, 1});
}

}  // namespace

TEST(Wertung, GewinnerUndSpielwert) {
    struct Fall {
        const char* name;
        int augenRe, sticheRe;
        int limitSitz, limitCode;  // 0: no limit
        int gewinner, spielwert;
        const char* wert;  // the value line of the end box
    };
    const Fall faelle[] = {
        {"Re mit 121", 121, 6, 0, 0, ParteiRe, 1, "(Spielwert: Spiel einfach gewonnen = 1)"},
        {"120 zu 120: Kontra", 120, 6, 0, 0, ParteiKontra, 1, "(Spielwert: Spiel einfach gewonnen = 1)"},
        {"150 einfach", 150, 7, 0, 0, ParteiRe, 1, "(Spielwert: Spiel einfach gewonnen = 1)"},
        {"151 keine 90", 151, 7, 0, 0, ParteiRe, 2, "(Spielwert: Spiel einfach gewonnen, keine 90 = 2)"},
        {"Kontra mit 151", 89, 4, 0, 0, ParteiKontra, 2, "(Spielwert: Spiel einfach gewonnen, keine 90 = 2)"},
        {"181 keine 60", 181, 9, 0, 0, ParteiRe, 3, "(Spielwert: Spiel einfach gewonnen, keine 90, keine 60 = 3)"},
        {"211 keine 30", 211, 10, 0, 0, ParteiRe, 4,
         "(Spielwert: Spiel einfach gewonnen, keine 90, keine 60, keine 30 = 4)"},
        {"240 ohne alle Stiche", 240, 11, 0, 0, ParteiRe, 4,
         "(Spielwert: Spiel einfach gewonnen, keine 90, keine 60, keine 30 = 4)"},
        {"alle Stiche", 240, 12, 0, 0, ParteiRe, 5,
         "(Spielwert: Spiel einfach gewonnen, keine 90, keine 60, keine 30, kein Stich = 5)"},
        {"keine 90 angesagt und erreicht", 151, 7, 1, Keine90, ParteiRe, 3,
         "(Spielwert: Spiel einfach gewonnen, keine 90, keine 90 angesagt = 3)"},
        {"keine 90 angesagt, 181", 181, 9, 1, Keine90, ParteiRe, 4,
         "(Spielwert: Spiel einfach gewonnen, keine 90, keine 90 angesagt, keine 60 = 4)"},
        {"keine 60 angesagt und erreicht", 181, 9, 2, Keine60, ParteiRe, 5,
         "(Spielwert: Spiel einfach gewonnen, keine 90, keine 60, keine 60 angesagt = 5)"},
        {"keine 60 angesagt, kein Stich", 240, 12, 2, Keine60, ParteiRe, 7,
         "(Spielwert: Spiel einfach gewonnen, keine 90, keine 60, keine 60 angesagt, keine 30, kein Stich = 7)"},
        {"keine 30 angesagt, kein Stich", 240, 12, 1, Keine30, ParteiRe, 8,
         "(Spielwert: Spiel einfach gewonnen, keine 90, keine 60, keine 30, keine 30 angesagt, kein Stich = 8)"},
        {"Schwarz angesagt und erreicht", 240, 12, 2, LimitSchwarz, ParteiRe, 9,
         "(Spielwert: Spiel einfach gewonnen, keine 90, keine 60, keine 30, kein Stich, kein Stich angesagt = 9)"},
        {"keine 90 verfehlt mit 150", 150, 7, 1, Keine90, ParteiKontra, 2,
         "(Spielwert: Spiel einfach gewonnen, keine 90 angesagt = 2)"},
        {"Schwarz verfehlt: ein Stich fehlt", 240, 11, 1, LimitSchwarz, ParteiKontra, 5,
         "(Spielwert: Spiel einfach gewonnen, kein Stich angesagt = 5)"},
        {"Kontra sagt keine 90 und hält es", 89, 4, 3, Keine90, ParteiKontra, 3,
         "(Spielwert: Spiel einfach gewonnen, keine 90, keine 90 angesagt = 3)"},
    };
    for (const Fall& f : faelle) {
        Spiel s = fertig(f.augenRe, f.sticheRe);
        if (f.limitSitz) limitVon(s, f.limitSitz, f.limitCode);
        spielWerten(s);
        EXPECT_EQ(s.ergebnis.gewinner, f.gewinner) << f.name;
        EXPECT_EQ(s.ergebnis.spielwert, f.spielwert) << f.name;
        EXPECT_NE(s.ergebnis.text.find(f.wert), std::string::npos) << f.name << "\n" << s.ergebnis.text;
    }
}

TEST(Wertung, PunkteNachFaktorSonderpunktenUndBock) {
    struct Fall {
        const char* name;
        int augenRe;
        bool re, kontra;     // announced
        int spRe, spKontra;  // special points
        bool bockSpiel, bockrunden;
        int ergebnis;  // before the Bock doubling
        ProSitz<int> punkte;
        bool bockDanach;
        const char* textteil;
    };
    const Fall faelle[] = {
        {"Re gewinnt einfach", 130, false, false, 0, 0, false, false, 1, proSitz(1, 1, 0, 0), false,
         "Ihre Partei hat mit 130 Augen gewonnen!"},
        {"Re und Kontra: mal vier", 130, true, true, 0, 0, false, false, 4, proSitz(4, 4, 0, 0), false,
         ", Verdoppelung jeweils durch Kontra und Re = 4)"},
        {"nur Kontra: mal zwei", 100, false, true, 0, 0, false, false, 2, proSitz(0, 0, 2, 2), false,
         "Ihre Partei hat mit 100 Augen verloren!\nIhre Gegner erhalten:\n(Spielwert: Spiel einfach gewonnen, "
         "Verdoppelung durch Kontra = 2)"},
        {"ein Sonderpunkt des Gewinners", 130, true, false, 1, 0, false, false, 3, proSitz(3, 3, 0, 0), false,
         ", Verdoppelung durch Re = 2 + einen erzielten Sonderpunkt = 3)"},
        {"zwei Sonderpunkte des Gewinners", 130, false, false, 2, 0, false, false, 3, proSitz(3, 3, 0, 0), false,
         " + 2 erzielte Sonderpunkte = 3)"},
        {"kalter Schlag setzt Bock", 130, false, false, 0, 1, false, true, 0, proSitz(0, 0, 0, 0), true,
         "Abzüglich  des Sonderpunktes Ihrer Gegner hat Ihre Partei mit 0 Punkten remis gespielt (sogenannter kalter "
         "Schlag)! Die Punkte des nächsten Spiels werden daher verdoppelt!"},
        {"kalter Schlag ohne Bockrunden", 130, false, false, 0, 1, false, false, 0, proSitz(0, 0, 0, 0), false,
         "(sogenannter kalter Schlag)! "},
        {"Umkehr: der Verlierer bekommt", 130, false, false, 0, 3, false, false, -2, proSitz(0, 0, 2, 2), false,
         "Abzüglich  der 3 Sonderpunkte Ihrer Gegner hat Ihre Partei mit 2 Punkten verloren! "},
        {"eigene Sonderpunkte abgezogen", 100, false, false, 2, 0, false, false, -1, proSitz(1, 1, 0, 0), false,
         "Abzüglich der von Ihrer Partei erzielten 2 Sonderpunkte hat Ihre Partei mit 1 Punkt gewonnen! "},
        {"Bockspiel verdoppelt", 190, false, false, 0, 0, true, true, 3, proSitz(6, 6, 0, 0), false,
         "Diese Punkte werden verdoppelt, da das Spiel zuvor mit einem kalten Schlag endete!"},
        {"Bockspiel mit einem Punkt", 130, false, false, 0, 0, true, true, 1, proSitz(2, 2, 0, 0), false,
         "Der Punkt wird verdoppelt, da das Spiel zuvor mit einem kalten Schlag endete!"},
        {"Bockmarke ohne Bockrunden zählt nicht", 130, false, false, 0, 0, true, false, 1, proSitz(1, 1, 0, 0), false,
         "(Spielwert: Spiel einfach gewonnen = 1)"},
    };
    for (const Fall& f : faelle) {
        Spiel s = fertig(f.augenRe, 6);
        s.reAngesagt[Sitz(2)] = f.re;
        s.kontraAngesagt[Sitz(4)] = f.kontra;
        s.faktor = (f.re ? 2 : 1) * (f.kontra ? 2 : 1);
        sonderpunkte(s, ParteiRe, f.spRe);
        sonderpunkte(s, ParteiKontra, f.spKontra);
        s.partie.bock = f.bockSpiel;
        s.regeln.bockrunden = f.bockrunden;
        s.partie.punkte[Sitz(1)] = 5;
        spielWerten(s);
        EXPECT_EQ(s.ergebnis.ergebnis, f.ergebnis) << f.name;
        EXPECT_EQ(s.ergebnis.punkte, f.punkte) << f.name;
        EXPECT_EQ(s.partie.punkte[Sitz(1)], 5 + f.punkte[Sitz(1)]) << f.name;
        EXPECT_EQ(s.partie.bock, f.bockDanach) << f.name;
        EXPECT_NE(s.ergebnis.text.find(f.textteil), std::string::npos) << f.name << "\n" << s.ergebnis.text;
    }
}

TEST(Wertung, SoloBuchungUndKopfzeilen) {
    struct Fall { const char* name; int solist, augenSolist, sticheSolist; ProSitz<int> punkte; const char* kopf; };
    const Fall faelle[] = {
        {"Solist gewinnt alle Stiche: Punkte einmal", 1, 240, 12, proSitz(5, 0, 0, 0),
         "Sie haben alle Stiche gewonnen!\n"},
        {"Solist schwarz verloren: drei Gegner je", 1, 0, 0, proSitz(0, 5, 5, 5),
         "Sie haben schwarz verloren!\nIhre Gegner erhalten:\n"},
        {"Gegner des Solisten verliert", 4, 140, 7, proSitz(0, 0, 0, 1),
         "Ihre Partei hat mit 100 Augen verloren!\nIhr Gegner erhält:\n"},
    };
    for (const Fall& f : faelle) {
        Spiel s = fertig(0, 0);
        s.partei.fill(ParteiKontra);
        const Sitz solist(f.solist);
        const Sitz gegner = solist.naechster();
        s.partei[solist] = ParteiSolo;
        s.augen.fill(0);
        s.stichzahl.fill(0);
        s.augen[solist] = f.augenSolist;
        s.augen[gegner] = 240 - f.augenSolist;
        s.stichzahl[solist] = f.sticheSolist;
        s.stichzahl[gegner] = 12 - f.sticheSolist;
        spielWerten(s);
        EXPECT_EQ(s.ergebnis.punkte, f.punkte) << f.name;
        EXPECT_EQ(s.ergebnis.text.substr(0, std::string(f.kopf).size()), f.kopf) << f.name << "\n" << s.ergebnis.text;
    }
}

TEST(Wertung, UnbekannteParteiWirdKontra) {
    Spiel s = fertig(130, 6);
    s.partei[Sitz(4)] = ParteiUnbekannt;
    spielWerten(s);
    EXPECT_EQ(s.partei[Sitz(4)], ParteiKontra);
    EXPECT_NE(s.ergebnis.text.find("Konnte SpielerSpieler4 bisher keiner Partei zuordnen. Stecke ihn daher in die "
                                   "Partei der Jungen!"),
              std::string::npos);
}

TEST(Wertung, PartieendeUndTabelle) {
    struct Fall {
        const char* name;
        int abrOption, spielNr, endeBei, endeNach, standVorher;
        bool ende;
        bool inTabelle;
    };
    const Fall faelle[] = {
        {"nach Spielen: noch nicht", 2, 23, 30, 24, 0, false, true},
        {"nach Spielen: letztes Spiel", 2, 24, 30, 24, 0, true, true},
        {"nach Punkten: 29 + 1 erreicht 30", 1, 5, 30, 24, 29, true, false},
        {"nach Punkten: 28 + 1 nicht", 1, 5, 30, 24, 28, false, false},
        {"Spiel 96 noch in der Tabelle", 2, 96, 30, 200, 0, false, true},
        {"Spiel 97: Punkte entscheiden", 2, 97, 30, 200, 29, true, false},
        {"Spiel 97: unter dem Punktestand weiter", 2, 97, 30, 200, 10, false, false},
    };
    for (const Fall& f : faelle) {
        Spiel s = fertig(130, 6);
        s.regeln.abrOption = f.abrOption;
        s.regeln.endeBei = f.endeBei;
        s.regeln.endeNach = f.endeNach;
        s.partie.spielNr = f.spielNr;
        s.partie.punkte[Sitz(2)] = f.standVorher;
        spielWerten(s);
        EXPECT_EQ(s.ergebnis.partieEnde, f.ende) << f.name;
        EXPECT_EQ(s.regeln.abrOption, f.abrOption) << f.name;
        const bool eingetragen =
            f.spielNr <= 96 && s.partie.spieltabelle[static_cast<std::size_t>(f.spielNr - 1)][Sitz(1)] == 1;
        EXPECT_EQ(eingetragen, f.inTabelle) << f.name;
    }
    EXPECT_EQ(partieendeText(30), "Partieende bei Überschreiten von 30 Punkten");
    EXPECT_EQ(partieendeText(1), "Partieende bei Überschreiten von 1 Punkt");
}

TEST(Wertung, Limitzeilen) {
    struct Fall { const char* name; int limitSitz; int augenRe; const char* zeile; };
    const Fall faelle[] = {
        {"eigenes gehalten", 2, 151, "Ihr Limitgebot haben Sie eingehalten!"},
        {"eigenes verfehlt", 2, 140, "Ihr Limitgebot haben Sie nicht eingehalten!"},
        {"Gegner verfehlt", 3, 140, "Ihre Gegner haben ihr Limitgebot nicht eingehalten!"},
        {"Gegner gehalten", 3, 89, "Ihre Gegner haben ihr Limitgebot eingehalten!"},
    };
    for (const Fall& f : faelle) {
        Spiel s = fertig(f.augenRe, 6);
        limitVon(s, f.limitSitz, Keine90);
        spielWerten(s);
        EXPECT_NE(s.ergebnis.text.find(std::string("\n") + f.zeile + "\n"), std::string::npos) << f.name << "\n"
                                                                                               << s.ergebnis.text;
    }
}

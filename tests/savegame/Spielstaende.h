#pragma once
// A saved-game state with every field set to a value different from its
// default and from its neighbours, so a value read into the wrong field shows.
#include <string>

#include "savegame/Spielstand.h"

namespace testhilfe {

inline savegame::Spielstand vollerSpielstand(int n = 0) {
    using engine::Sitz;
    savegame::Spielstand st;
    engine::Spiel& s = st.spiel;
    s.namen = engine::ProSitz<std::string>(std::string());
    s.namen[Sitz(1)] = "  Jürgen, der Erste";
    s.namen[Sitz(2)] = "Bärbel;|x";
    s.namen[Sitz(3)] = "";
    s.namen[Sitz(4)] = "Zoë ";
    for (const Sitz x : engine::alleSitze) {
        const int i = x.nr() + n;
        s.charakter[x] = i % 4;
        s.partei[x] = i % 4;
        s.parteiMarker[x] = i * 3;
        s.schweineGespielt[x] = i % 2;
        s.reAngesagt[x] = i % 2 == 0;
        s.kontraAngesagt[x] = i % 3 == 0;
        s.augen[x] = 10 * i;
        s.stichzahl[x] = i;
        s.partie.punkte[x] = -7 * i;
        s.partie.pflichtsoloGespielt[x] = i % 2 == 1;
    }
    s.regeln = engine::regelnUebernehmen(engine::RegelOptionen{});
    s.regeln.joker = s.regeln.solo = s.regeln.hhNSolo = s.regeln.vhSolo = s.regeln.sopuFuchs = s.regeln.supersau = true;
    s.regeln.herzZehn = s.regeln.sopuKarlchen = s.regeln.solis = false;
    s.regeln.kontra = 3;
    s.regeln.limit = 0;
    s.regeln.endeBei = 41 + n;
    s.regeln.endeNach = 17;
    s.regeln.vorhand = 3;
    s.regeln.abrOption = 1;
    for (int pos = 1; pos <= engine::MaxPositionen; ++pos) {
        engine::Kartenposition& k = s.deck[pos];
        k.code = (pos * 7 + n) % 25 + 1;
        k.status = pos % 3;
        k.marke = pos % 5;
        k.farbe = pos % 8 + 1;
        k.wert = 1 << (pos % 7);
        k.staerke = pos * 1000 + n;
        k.augen = pos % 12;
    }
    s.spieltyp = 5;
    s.vorhand = Sitz(2);
    s.faktor = 4;
    s.solo = true;
    s.solist = Sitz(3);
    s.pflichtsolo = true;
    s.stillerSolist = Sitz(4);
    s.hochzeiter = Sitz(1);
    s.hochzeitArt = engine::ErsterFehlstich;
    s.hochzeitPartner = Sitz(2);
    s.hochzeitGeklaert = true;
    s.schweineHalter = Sitz(1);
    s.limitSitz = Sitz(2);
    s.limitCode = engine::Keine60;
    s.ansagenProStich[0] = {true, false, 0, -1};
    s.ansagenProStich[3] = {false, true, 4 - n, engine::Keine90};
    s.ansagenProStich[11] = {true, true, 2, engine::LimitSchwarz};
    s.ansagen = {{Sitz(1), false, 2, -1, 0}, {Sitz(4), true, 1, engine::Keine90, 3},
                 {Sitz(2), true, 2, engine::LimitSchwarz, 5}};
    // trick 4 in progress: seat 3 led, seats 3 and 4 have played
    s.stich.aufspieler = Sitz(3);
    s.stich.anzahl = 2;
    s.stich.karten = {25, 37, 0, 0};
    s.stich.platz[Sitz(3)] = 1;
    s.stich.platz[Sitz(4)] = 2;
    s.stich.farbeZuBedienen = 2;
    s.sticheGespielt = 3;
    for (int t = 0; t < 3; ++t) {
        engine::StichProtokoll p;
        p.aufspieler = Sitz(t + 1);
        p.gewinner = Sitz(4 - t);
        for (int k = 0; k < 4; ++k) {
            p.karten[static_cast<std::size_t>(k)] = 12 * k + t + 1;
            p.codes[static_cast<std::size_t>(k)] = s.deck[12 * k + t + 1].code;
        }
        p.augen = 20 + t;
        s.stiche.push_back(p);
    }
    s.sonderpunkte = {{"Doppelkopf", 2, 2}, {"Fuchs gefangen", 1, 3}};
    s.spielbericht = {"Hochzeit", "für Schweinehirt (Spieler 2)"};
    s.steuerung[Sitz(3)] = engine::Steuerung::Netz;
    s.automatik = true;
    s.supersauHalter = Sitz(4);
    s.ablauf = {engine::Spielphase::Kartenspiel, 2, 3, 4, Sitz(2), engine::ErsterStich};
    s.ergebnis.gewertet = true;
    s.ergebnis.gewinner = 2;
    s.ergebnis.augenRe = 130 + n;
    s.ergebnis.augenKontra = 110;
    s.ergebnis.sticheRe = 7;
    s.ergebnis.spielwert = 3;
    s.ergebnis.faktor = 2;
    s.ergebnis.sonderpunkteVerlierer = 1;
    s.ergebnis.ergebnis = -4;
    s.ergebnis.kalterSchlag = true;
    s.ergebnis.bock = true;
    s.ergebnis.buchungsPartei = 1;
    s.ergebnis.punkteJeSitz = 6;
    s.ergebnis.punkte[Sitz(2)] = -6;
    s.ergebnis.limitEingehalten = 0;
    s.ergebnis.partieEnde = true;
    s.ergebnis.text = "Re hat gewonnen!\nMit 130 Augen";
    s.partie.partieNr = 2 + n;
    s.partie.spielNr = 9;
    for (std::size_t g = 0; g < s.partie.spieltabelle.size(); ++g) {
        for (const Sitz x : engine::alleSitze) s.partie.spieltabelle[g][x] = static_cast<int>(g) * 10 + x.nr() + n;
    }
    s.partie.bock = true;
    s.partie.letzteVorhand = Sitz(1);
    s.partie.gemerkteVorhand = Sitz(3);
    s.partie.soloVorhandMarke = true;
    s.partie.geber = 5;

    st.optionen.sopuFuchs = -1;
    st.optionen.sopuKarlchen = 0;
    st.optionen.armut = -1;
    st.optionen.stilleBefoerderung = 1;
    st.tisch.kontraGebenAktiv = true;
    st.tisch.kontraGebenText = "&Re geben";
    st.tisch.unterHaken = {false, true, false, true};
    st.tisch.limitAktiv = true;
    st.tisch.limitText = "keine 90, ";
    st.tisch.sitzAnzeige = {1, -2, 3, 40};
    st.tisch.partnerinfo2Sichtbar = true;
    return st;
}

// The fields in which two states differ, for a readable failure.
inline std::string unterschiede(const engine::Spiel& x, const engine::Spiel& y) {
    std::string liste;
    auto feld = [&](const char* name, bool gleich) {
        if (!gleich) liste += std::string(liste.empty() ? "" : ", ") + name;
    };
    feld("namen", x.namen == y.namen);
    feld("charakter", x.charakter == y.charakter);
    feld("steuerung", x.steuerung == y.steuerung);
    feld("regeln", x.regeln == y.regeln);
    feld("deck", x.deck == y.deck);
    feld("spieltyp", x.spieltyp == y.spieltyp);
    feld("vorhand", x.vorhand == y.vorhand);
    feld("partei", x.partei == y.partei);
    feld("parteiMarker", x.parteiMarker == y.parteiMarker);
    feld("ansagen", x.ansagen == y.ansagen);
    feld("ansagenProStich", x.ansagenProStich == y.ansagenProStich);
    feld("stich", x.stich == y.stich);
    feld("stiche", x.stiche == y.stiche);
    feld("sticheGespielt", x.sticheGespielt == y.sticheGespielt);
    feld("augen", x.augen == y.augen);
    feld("stichzahl", x.stichzahl == y.stichzahl);
    feld("sonderpunkte", x.sonderpunkte == y.sonderpunkte);
    feld("spielbericht", x.spielbericht == y.spielbericht);
    feld("ergebnis", x.ergebnis == y.ergebnis);
    feld("ablauf", x.ablauf == y.ablauf);
    feld("partie", x.partie == y.partie);
    return liste.empty() ? (x == y ? "" : "ein anderes Feld") : liste;
}

}  // namespace testhilfe

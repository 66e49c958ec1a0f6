#include <gtest/gtest.h>

#include <numeric>

#include "Spielstaende.h"
#include "savegame/Ladeablauf.h"
#include "savegame/Partiedatei.h"
#include "savegame/Partietexte.h"
#include "settings/Zeichensatz.h"

using namespace savegame;
using engine::Sitz;

namespace {

// Lines per group 1..46 in version 26 (index 0 unused).
constexpr std::array<int, 47> gruppenzeilen{0,   1,   3,  4,  4,  4, 8, 3, 4,  2,  336, 40, 6, 7, 5,  112,
                                            64,  49,  8,  1,  2,  4, 2, 7, 96, 4,  1,   1,  1, 1, 156, 2,
                                            1,   96,  1,  1,  2,  64, 1, 4, 4,  2,  17,  16, 288, 12, 1};

// Index of the first line of a group.
std::size_t anfang(int gruppe) {
    return static_cast<std::size_t>(std::accumulate(gruppenzeilen.begin(), gruppenzeilen.begin() + gruppe, 0));
}

std::vector<std::string> zeilenVon(const std::string& bytes) {
    std::vector<std::string> zeilen;
    std::size_t a = 0;
    while (a < bytes.size()) {
        const auto e = bytes.find("\r\n", a);
        zeilen.push_back(bytes.substr(a, e - a));
        a = e + 2;
    }
    return zeilen;
}

std::string bytesVon(const std::vector<std::string>& zeilen) {
    std::string b;
    for (const auto& z : zeilen) b += z + "\r\n";
    return b;
}

// The file as an older version wrote it: the groups it did not know left out.
std::vector<std::string> alsVersion(std::vector<std::string> zeilen, int version) {
    struct Neu { int gruppe, seit; };
    for (const Neu n : {Neu{46, 26}, Neu{45, 25}, Neu{44, 22}, Neu{43, 21}}) {
        if (version < n.seit) {
            const auto a = static_cast<std::ptrdiff_t>(anfang(n.gruppe));
            zeilen.erase(zeilen.begin() + a, zeilen.begin() + a + gruppenzeilen[static_cast<std::size_t>(n.gruppe)]);
        }
    }
    zeilen[0] = "RUPA-PARTIE" + std::to_string(version);
    return zeilen;
}

}  // namespace

TEST(PartieSchreiben, ZeilenUndGruppen) {
    Spielstand st = testhilfe::vollerSpielstand();
    st.spiel.namen[Sitz(2)] = "a\r\nb";  // a name never spans lines
    const auto zeilen = zeilenVon(partieSchreiben(st));
    ASSERT_EQ(zeilen.size(), anfang(47));
    EXPECT_EQ(zeilen[0], "RUPA-PARTIE26");
    struct Fall { int gruppe; std::size_t zeile; std::string inhalt; };
    const std::vector<Fall> faelle{
        {2, 0, "4"}, {2, 1, "2"}, {2, 2, "5"},         // faktor, Vorhand, game type
        {4, 0, "True"}, {4, 3, "True"},                // Joker first; Bock
        {11, 8, "  J\xFCrgen, der Erste"}, {11, 18, "a  b"},  // names as whole lines, Windows-1252
        {11, 5, "0"}, {11, 25, "25"}, {11, 26, "1"},  // seat 3 played position 25 first
        {13, 4, "3"},                                  // tricks played
        {23, 0, "False"}, {23, 2, "0"}, {23, 3, "3"},  // Herz-Zehn, limit, Kontra rule
        {30, 0, "1"}, {30, 13, "2"},                   // leaders of tricks 1 and 2
        {30, 39, "0"},                                 // no fourth trick yet
        {34, 0, "1"}, {35, 0, "Doppelkopf|2|2;Fuchs gefangen|1|3"},
        {12, 0, "3"}, {12, 4, "2"}, {14, 2, "2"}, {14, 4, "True"},   // phase, Hochzeit wish; seat 3 remote
        {17, 0, "True"}, {17, 2, "130"}, {17, 21, "True"},           // game scored, Augen, end of Partie
        {26, 0, "Hochzeit\tf\xFCr Schweinehirt (Spieler 2)"}, {28, 0, "Re hat gewonnen!\tMit 130 Augen"},
        {41, 0, "4"},
        {42, 0, "-1"}, {42, 2, "0"}, {42, 10, "-1"}, {42, 16, "1"},  // stored options
        {43, 0, "1"}, {43, 14, "1"}, {43, 11, "0"},                  // in force: Fuchs, Supersau
        {46, 0, "False"},
    };
    for (const auto& f : faelle) {
        EXPECT_EQ(zeilen[anfang(f.gruppe) + f.zeile], f.inhalt) << "Gruppe " << f.gruppe << " Zeile " << f.zeile;
    }
    // The first line of every group (the texts are above), so no group trades places with another.
    std::string erste;
    for (int g = 2; g <= 46; ++g)
        if (g != 26 && g != 28 && g != 35) erste += zeilen[anfang(g)] + " ";
    EXPECT_EQ(erste, "4 1 True 3 3 True 1 2 8 10 3 3 0 0 0 True 0 9 True False True False 1 1 True 2 1 41 3 1 1 1 0 True 1 "
                     "True 4 -1 1 241 1 False ");
}

TEST(PartieLesen, RundreiseFeldFuerFeld) {
    for (int n = 0; n < 3; ++n) {
        const Spielstand gespeichert = testhilfe::vollerSpielstand(n);
        Spielstand geladen;
        const Leseergebnis e = partieLesen(partieSchreiben(gespeichert), geladen);
        ASSERT_EQ(e.ergebnis, Ergebnis::Erfolg);
        EXPECT_EQ(e.version, 26);
        EXPECT_EQ(testhilfe::unterschiede(geladen.spiel, gespeichert.spiel), "") << n;
        EXPECT_EQ(geladen.optionen, gespeichert.optionen);
        EXPECT_EQ(geladen.tisch, gespeichert.tisch);
        EXPECT_EQ(geladen, gespeichert);
    }
}

TEST(PartieLesen, AeltereVersionenLassenNeuereGruppenStehen) {
    const Spielstand gespeichert = testhilfe::vollerSpielstand(0);
    const auto zeilen26 = zeilenVon(partieSchreiben(gespeichert));
    // The live state before loading differs from the file everywhere.
    Spielstand vorher = testhilfe::vollerSpielstand(1);
    vorher.spiel.regeln.supersau = vorher.spiel.regeln.sopuFuchs = false;
    vorher.spiel.regeln.solis = true;
    vorher.spiel.regeln.scharferRupa = true;  // in force before: stays for files without group 43
    for (int version = 20; version <= 26; ++version) {
        Spielstand ziel = vorher;
        const Leseergebnis e = partieLesen(bytesVon(alsVersion(zeilen26, version)), ziel);
        ASSERT_EQ(e.ergebnis, Ergebnis::Erfolg) << version;
        const engine::Spiel& s = ziel.spiel;
        // groups 2..42 always come from the file
        EXPECT_EQ(s.namen, gespeichert.spiel.namen) << version;
        if (version >= 24) {  // older files hold positions in the trick history (converted below)
            EXPECT_EQ(s.stiche, gespeichert.spiel.stiche) << version;
        }
        EXPECT_EQ(ziel.optionen, gespeichert.optionen) << version;
        EXPECT_EQ(s.regeln.joker, gespeichert.spiel.regeln.joker) << version;
        // 43: the rules in force
        const auto& r43 = version >= 21 ? gespeichert.spiel.regeln : vorher.spiel.regeln;
        EXPECT_EQ(s.regeln.supersau, r43.supersau) << version;
        EXPECT_EQ(s.regeln.sopuFuchs, r43.sopuFuchs) << version;
        EXPECT_EQ(s.deck.kartenanzahl(), r43.scharferRupa ? 40 : 48) << version;  // deck size from "Scharfer_Rupa"
        EXPECT_EQ(s.regeln.kartenanzahl, s.deck.kartenanzahl()) << version;
        // 44: games 25..96 of the score table; games 1..24 always from the file
        const auto& p44 = version >= 22 ? gespeichert.spiel.partie : vorher.spiel.partie;
        EXPECT_EQ(s.partie.spieltabelle[30], p44.spieltabelle[30]) << version;
        EXPECT_EQ(s.partie.spieltabelle[3], gespeichert.spiel.partie.spieltabelle[3]) << version;
        // 45: zeroed up to version 24
        const engine::AnsagenImStich leer{};
        EXPECT_EQ(s.ansagenProStich[3], version >= 25 ? gespeichert.spiel.ansagenProStich[3] : leer) << version;
        EXPECT_EQ(s.ansagenProStich[0], version >= 25 ? gespeichert.spiel.ansagenProStich[0] : leer) << version;
        // 46: Solis
        EXPECT_EQ(s.regeln.solis, version >= 26 ? gespeichert.spiel.regeln.solis : true) << version;
    }
}

TEST(PartieLesen, BisVersion23StandenPositionenInDerStichfolge) {
    const Spielstand gespeichert = testhilfe::vollerSpielstand();
    auto zeilen = alsVersion(zeilenVon(partieSchreiben(gespeichert)), 23);
    // write the card columns of the trick history as positions, the new columns empty
    for (std::size_t t = 0; t < gespeichert.spiel.stiche.size(); ++t) {
        const auto zeile = anfang(30) + 13 * t;
        for (std::size_t k = 0; k < 4; ++k) {
            zeilen[zeile + 2 + k] = zeilen[zeile + 6 + k];
            zeilen[zeile + 6 + k] = "0";
        }
    }
    Spielstand geladen;
    ASSERT_EQ(partieLesen(bytesVon(zeilen), geladen).ergebnis, Ergebnis::Erfolg);
    EXPECT_EQ(geladen.spiel.stiche, gespeichert.spiel.stiche);
}

TEST(PartieLesen, KennungUndVersion) {
    struct Fall { std::string kopf; Ergebnis ergebnis; bool veraltet; };
    const std::vector<Fall> faelle{
        {"RUPA-PARTIE19", Ergebnis::Fehlgeschlagen, true},
        {"RUPA-PARTIE", Ergebnis::Fehlgeschlagen, true},
        {"RUPA-PARTIExx", Ergebnis::Fehlgeschlagen, true},
        {"XYZ", Ergebnis::KeineSpieldatei, false},
        {"rupa-partie26", Ergebnis::KeineSpieldatei, false},
        {"", Ergebnis::KeineSpieldatei, false},
        {"RUPA-PARTIE26  ", Ergebnis::Erfolg, false},
        {"RUPA-PARTIE20", Ergebnis::Erfolg, false},
    };
    auto zeilen = zeilenVon(partieSchreiben(testhilfe::vollerSpielstand()));
    const Spielstand vorher = testhilfe::vollerSpielstand(2);
    for (const auto& f : faelle) {
        zeilen[0] = f.kopf;
        Spielstand ziel = vorher;
        const Leseergebnis e = partieLesen(bytesVon(zeilen), ziel);
        EXPECT_EQ(e.ergebnis, f.ergebnis) << f.kopf;
        EXPECT_EQ(e.veraltet, f.veraltet) << f.kopf;
        if (f.ergebnis != Ergebnis::Erfolg) {
            EXPECT_EQ(ziel, vorher) << f.kopf;
        }
    }
    Spielstand ziel;
    EXPECT_EQ(partieLesen("", ziel).ergebnis, Ergebnis::KeineSpieldatei);
}

TEST(PartieLesen, JedeAbgeschnitteneDateiScheitert) {
    const std::string bytes = partieSchreiben(testhilfe::vollerSpielstand());
    const Spielstand vorher = testhilfe::vollerSpielstand(1);
    std::size_t geprueft = 0;
    for (std::size_t ende = bytes.find("\r\n"); ende + 2 < bytes.size(); ende = bytes.find("\r\n", ende + 2)) {
        Spielstand ziel = vorher;
        const Leseergebnis e = partieLesen(std::string_view(bytes).substr(0, ende + 2), ziel);
        ASSERT_EQ(e.ergebnis, Ergebnis::Fehlgeschlagen) << "nach " << ende << " Bytes";
        ASSERT_EQ(ziel, vorher);
        ++geprueft;
    }
    EXPECT_EQ(geprueft, anfang(47) - 1);
}

TEST(PartieLesen, WerteDieUnserZustandNichtFasstGeltenAlsBeschaedigt) {
    struct Fall { int gruppe; std::size_t zeile; std::string wert; Ergebnis ergebnis; };
    const std::vector<Fall> faelle{
        {2, 1, "5", Ergebnis::Fehlgeschlagen},       // Vorhand seat 5
        {2, 1, "0", Ergebnis::Fehlgeschlagen},
        {2, 2, "9", Ergebnis::Fehlgeschlagen},       // game type 9
        {5, 0, "-1", Ergebnis::Fehlgeschlagen},      // solo player
        {10, 0, "26", Ergebnis::Fehlgeschlagen},     // card code
        {13, 4, "13", Ergebnis::Fehlgeschlagen},     // tricks played
        {9, 0, "5", Ergebnis::Fehlgeschlagen},       // cards in the trick
        {11, 5, "49", Ergebnis::Fehlgeschlagen},     // deck position in the trick
        {30, 0, "7", Ergebnis::Fehlgeschlagen},      // leader of trick 1
        {30, 2, "99", Ergebnis::Fehlgeschlagen},     // code in the trick history
        {24, 0, "6", Ergebnis::Fehlgeschlagen},      // announcing seat
        {45, 0, "-3", Ergebnis::Fehlgeschlagen},
        {35, 0, "Doppelkopf|zwei|2", Ergebnis::Fehlgeschlagen},
        {3, 0, "True", Ergebnis::Fehlgeschlagen},    // an integer line holding a word
        {3, 0, "", Ergebnis::Fehlgeschlagen},
        {4, 0, "Vielleicht", Ergebnis::Fehlgeschlagen},
        {4, 0, "-1", Ergebnis::Erfolg},              // truth values may be numbers
        {4, 0, "wahr", Ergebnis::Erfolg},
        {3, 0, " 2 ", Ergebnis::Erfolg},
        {10, 3, "9", Ergebnis::Fehlgeschlagen},      // effective suit
        {10, 6, "-12345", Ergebnis::Erfolg},         // impossible Augen or strengths are taken as they stand
        {10, 5, "0", Ergebnis::Erfolg},
        {35, 0, "", Ergebnis::Erfolg},
        {12, 0, "7", Ergebnis::Fehlgeschlagen},      // phase of the cycle
        {14, 0, "3", Ergebnis::Fehlgeschlagen},      // who plays a seat
    };
    const auto zeilen = zeilenVon(partieSchreiben(testhilfe::vollerSpielstand()));
    for (const auto& f : faelle) {
        auto z = zeilen;
        z[anfang(f.gruppe) + f.zeile] = f.wert;
        Spielstand ziel;
        EXPECT_EQ(partieLesen(bytesVon(z), ziel).ergebnis, f.ergebnis) << "Gruppe " << f.gruppe << ": " << f.wert;
    }
}

TEST(PartieLesen, ZeilenendenUndKodierungen) {
    const Spielstand gespeichert = testhilfe::vollerSpielstand();
    const std::string crlf = partieSchreiben(gespeichert);
    std::string lf, utf8;
    for (const auto& z : zeilenVon(crlf)) lf += z + "\n";
    for (const auto& z : zeilenVon(crlf)) utf8 += settings::cp1252NachUtf8(z) + "\n";
    for (const auto& bytes : {crlf, lf, utf8, crlf.substr(0, crlf.size() - 2)}) {
        Spielstand geladen;
        ASSERT_EQ(partieLesen(bytes, geladen).ergebnis, Ergebnis::Erfolg);
        EXPECT_EQ(geladen.spiel.namen[Sitz(1)], "  Jürgen, der Erste");
    }
}

TEST(Ladeablauf, MeldungenUndWeiterweg) {
    using M = std::vector<Meldung>;
    const Meldung beschaedigt{std::string(texte::Beschaedigt), Symbol::Information};
    const Meldung neu{std::string(texte::NeuePartie), Symbol::Information};
    const Meldung veraltet{std::string(texte::Veraltet), Symbol::Kritisch};
    struct Fall { Leseergebnis e; M meldungen; Weiter weiter; };
    const std::vector<Fall> faelle{
        {{Ergebnis::KeineSpieldatei, 0, false}, M{beschaedigt}, Weiter::LaufendesSpiel},
        {{Ergebnis::Fehlgeschlagen, 26, false}, M{beschaedigt, neu}, Weiter::NeuePartie},
        {{Ergebnis::Fehlgeschlagen, 19, true}, M{veraltet, beschaedigt, neu}, Weiter::NeuePartie},
        {{Ergebnis::Erfolg, 26, false}, M{}, Weiter::Fortsetzen},
    };
    for (const auto& f : faelle) {
        const Ladeablauf a = ladeablauf(f.e, testhilfe::vollerSpielstand());
        EXPECT_EQ(a.meldungen, f.meldungen);
        EXPECT_EQ(a.weiter, f.weiter);
        EXPECT_FALSE(a.sticheFragen);
    }
    EXPECT_EQ(texte::NeuePartie, "Es wurde keine gültige Partie ausgewählt.\nEs wird eine neue Partie gestartet.");
}

TEST(Ladeablauf, MitteImStichGehtBeimSitzAmZugWeiter) {
    Spielstand st = testhilfe::vollerSpielstand();
    const Ladeablauf a = ladeablauf({Ergebnis::Erfolg, 26, false}, st);
    EXPECT_EQ(a.weiter, Weiter::Fortsetzen);
    EXPECT_EQ(a.amZug, Sitz(1));  // seat 3 led, seat 4 played, seat 1 is next
    st.spiel.stich.anzahl = 0;
    st.spiel.stich.aufspieler = Sitz(2);
    EXPECT_EQ(ladeablauf({Ergebnis::Erfolg, 26, false}, st).amZug, Sitz(2));
}

TEST(Ladeablauf, BeendetesSpielFragtNachDenStichen) {
    struct Fall { int karten; int stiche; std::string meldung; bool fragen; };
    for (const auto& f : {Fall{48, 12, "Re gewinnt", true}, Fall{48, 12, "", true}, Fall{40, 10, "", true},
                          Fall{48, 11, "x", false}, Fall{48, 10, "", false}}) {
        Spielstand st = testhilfe::vollerSpielstand();
        st.spiel.deck.setzeKartenanzahl(f.karten);
        st.spiel.sticheGespielt = f.stiche;
        st.spiel.stiche.resize(static_cast<std::size_t>(f.stiche));
        st.spiel.ergebnis.text = f.meldung;
        const Ladeablauf a = ladeablauf({Ergebnis::Erfolg, 26, false}, st);
        EXPECT_EQ(a.sticheFragen, f.fragen) << f.karten << "/" << f.stiche;
        if (!f.fragen) continue;
        EXPECT_EQ(a.weiter, Weiter::NaechstesSpiel);
        EXPECT_EQ(a.stichansichtBeiJa, f.stiche);
        EXPECT_EQ(a.nachDerFrage.size(), f.meldung.empty() ? 0u : 1u);
        EXPECT_TRUE(a.meldungen.empty());
    }
}

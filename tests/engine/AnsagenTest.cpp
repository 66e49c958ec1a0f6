#include <gtest/gtest.h>

#include "AblaufHilfen.h"
#include "TestHilfen.h"
#include "engine/Ansagen.h"

using namespace engine;
using testhilfe::positionVon;
using testhilfe::Tisch;
using testhilfe::verteilung;

namespace {
constexpr Ansage ReKontra{};
constexpr Ansage limit(int code) { return Ansage{true, code}; }

// A normal game under way: seats 1 and 2 Re, 3 and 4 Kontra.
Spiel laufendesSpiel(int kontra, int limitRegel, int stiche, int kartenImStich) {
    Spiel s = testhilfe::spielMitHaenden(Normalspiel, {});
    s.ablauf.phase = Spielphase::Kartenspiel;
    s.regeln.kontra = kontra;
    s.regeln.limit = limitRegel;
    s.sticheGespielt = stiche;
    s.stich.anzahl = kartenImStich;
    s.partei[Sitz(1)] = s.partei[Sitz(2)] = ParteiRe;
    s.partei[Sitz(3)] = s.partei[Sitz(4)] = ParteiKontra;
    return s;
}
}  // namespace

TEST(Ansagen, WannErlaubt) {
    struct Fall {
        const char* name;
        int kontra, limitRegel, stiche, karten;
        Ansage ansage;
        bool reSchonAngesagt, limitSchonAngesagt;
        const char* grund;  // nullptr: allowed
    };
    const Fall faelle[] = {
        {"Re vor der ersten Karte", 1, 5, 0, 0, ReKontra, false, false, nullptr},
        {"Re im ersten Stich mit Frist 1", 1, 5, 0, 3, ReKontra, false, false, nullptr},
        {"Re nach dem ersten Stich mit Frist 1", 1, 5, 1, 0, ReKontra, false, false,
         "Die Frist für diese Ansage ist abgelaufen."},
        {"Re im fünften Stich mit Frist 5", 5, 5, 4, 2, ReKontra, false, false, nullptr},
        {"Re unzulässig", 0, 5, 0, 0, ReKontra, false, false, "Re und Kontra sind nach den Regeln nicht zulässig."},
        {"Partei hat schon angesagt", 5, 5, 0, 1, ReKontra, true, false, ""},
        {"Limit vor der ersten Karte", 5, 5, 0, 0, limit(Keine90), false, false,
         "Stufenlimits können erst nach der 1. Karte angesagt werden!"},
        {"Limit nach der ersten Karte", 5, 5, 0, 1, limit(Keine90), false, false, nullptr},
        {"Schwarz im dritten Stich mit Frist 3", 5, 3, 2, 0, limit(LimitSchwarz), false, false, nullptr},
        {"Limit nach der Frist", 5, 3, 3, 0, limit(Keine60), false, false,
         "Die Frist für diese Ansage ist abgelaufen."},
        {"Limit unzulässig", 5, 0, 1, 0, limit(Keine30), false, false,
         "Limitgebote sind nach den Regeln nicht zulässig."},
        {"nur ein Limit je Spiel", 5, 5, 1, 0, limit(Keine30), false, true,
         "In diesem Spiel wurde bereits ein Limit angesagt."},
    };
    for (const Fall& f : faelle) {
        Spiel s = laufendesSpiel(f.kontra, f.limitRegel, f.stiche, f.karten);
        s.reAngesagt[Sitz(2)] = f.reSchonAngesagt;
        if (f.limitSchonAngesagt) s.limitSitz = Sitz(3);
        const auto grund = ansageVerweigert(s, Sitz(1), f.ansage);
        EXPECT_EQ(grund, f.grund ? std::optional<std::string>(f.grund) : std::nullopt) << f.name;
    }
    Spiel vorher = laufendesSpiel(5, 5, 0, 0);
    vorher.ablauf.phase = Spielphase::Vorbehalte;
    EXPECT_EQ(ansageVerweigert(vorher, Sitz(1), ReKontra), "Jetzt kann nichts angesagt werden.");
}

TEST(Ansagen, FaktorMeldungenUndProtokoll) {
    Tisch t;
    t.geben(verteilung({}));
    t.alleGesund();
    ASSERT_EQ(t.spiel.partei[Sitz(2)], ParteiRe);
    ASSERT_TRUE(t.ablauf.ansagen(Sitz(2), ReKontra));
    EXPECT_EQ(t.spiel.faktor, 2);
    EXPECT_FALSE(t.ablauf.ansagen(Sitz(1), ReKontra)) << "Re only once";
    t.karteSpielen();
    ASSERT_TRUE(t.ablauf.ansagen(Sitz(4), ReKontra));
    EXPECT_EQ(t.spiel.faktor, 4) << "Re and Kontra quadruple";
    t.karteSpielen();
    t.karteSpielen();
    t.karteSpielen();
    ASSERT_TRUE(t.ablauf.ansagen(Sitz(3), limit(Keine60)));
    ASSERT_TRUE(t.ablauf.antworten(Antwort::weiter(Anfrageart::StichEinsammeln)));
    EXPECT_FALSE(t.ablauf.ansagen(Sitz(1), limit(LimitSchwarz)));

    std::vector<std::pair<std::string, std::string>> texte;
    for (const Meldung& m : t.meldungenDerArt(Meldungsart::Ansage)) texte.emplace_back(m.titel, m.text);
    const std::vector<std::pair<std::string, std::string>> soll{
        {"RE-Ausruf!", "Spieler2 ruft Re aus!"},
        {"Kontra-Ansage!", "Spieler4 gibt Kontra!"},
        {"Limit-Ansage!", "Spieler3 sagt ein Limit von 60 an."}};
    EXPECT_EQ(texte, soll);
    EXPECT_TRUE(t.spiel.ansagenProStich[0].re);
    EXPECT_TRUE(t.spiel.ansagenProStich[0].kontra);
    EXPECT_EQ(t.spiel.ansagenProStich[1].limitSitz, 3) << "made after the first trick was complete";
    EXPECT_EQ(t.spiel.ansagenProStich[1].limitCode, Keine60);
    ASSERT_EQ(t.spiel.ansagen.size(), 3u);
    EXPECT_EQ(t.spiel.ansagen[2].stich, 1);
    EXPECT_EQ(ansageMeldung(t.spiel, AnsageEintrag{Sitz(1), true, ParteiRe, LimitSchwarz, 2}).text,
              "Spieler1 sagt SCHWARZ an.");
}

TEST(Ansagen, Umwandlung) {
    struct Fall {
        const char* name;
        int partei;
        bool re, kontra;  // announced before
        bool reDanach, kontraDanach;
        const char* text;
    };
    const Fall faelle[] = {
        {"Re eines Kontra-Spielers", ParteiKontra, true, false, false, true,
         "Das bereits von Spieler3 angesagte Re wird jetzt in ein Kontra umgewandelt!"},
        {"Kontra des Solospielers", ParteiSolo, false, true, true, false,
         "Das bereits vom Solospieler Spieler3 angesagte Kontra wird jetzt in ein Re umgewandelt!"},
        {"Kontra des Hochzeitspartners", ParteiRe, false, true, true, false,
         "Das bereits von Spieler3 angesagte Kontra wird jetzt in ein Re umgewandelt!"},
        {"passende Ansage bleibt", ParteiRe, true, false, true, false, ""},
    };
    for (const Fall& f : faelle) {
        Spiel s = laufendesSpiel(5, 5, 1, 0);
        s.partei[Sitz(3)] = f.partei;
        s.reAngesagt[Sitz(3)] = f.re;
        s.kontraAngesagt[Sitz(3)] = f.kontra;
        s.kontraAngesagt[Sitz(4)] = true;
        const auto m = ansagenUmwandeln(s);
        EXPECT_EQ(s.reAngesagt[Sitz(3)], f.reDanach) << f.name;
        EXPECT_EQ(s.kontraAngesagt[Sitz(3)], f.kontraDanach) << f.name;
        EXPECT_EQ(m.empty() ? std::string() : m[0].text, f.text) << f.name;
        if (!m.empty()) {
            EXPECT_EQ(m[0].titel, "Kontra/Re-Umwandlung!");
        }
        EXPECT_EQ(s.faktor, faktorAusAnsagen(s)) << f.name;
    }
}

// Seat 3 gives Kontra in a Hochzeit and then wins the first trick: its Kontra becomes Re.
TEST(Ansagen, HochzeitspartnerWandeltUm) {
    constexpr int KaroNeun = 1, KreuzDame = 21, HerzZehn = 11;
    Tisch t;
    t.geben(verteilung({{KreuzDame, KreuzDame, KaroNeun}, {}, {HerzZehn, HerzZehn}}));
    ASSERT_TRUE(t.ablauf.antworten(Antwort::mitVorbehalt({Vorbehalt::Hochzeit, Normalspiel, ErsterStich})));
    t.alleGesund();
    ASSERT_TRUE(t.ablauf.antworten(Antwort::karte(positionVon(t.spiel, Sitz(1), KaroNeun))));
    t.karteSpielen();
    EXPECT_EQ(t.ablauf.menue(Sitz(3)).reKontra.text, "&Kontra geben");
    ASSERT_TRUE(t.ablauf.ansagen(Sitz(3), ReKontra));
    EXPECT_EQ(t.ablauf.menue(Sitz(3)).reKontra.text, "Kontra gegeben");
    ASSERT_TRUE(t.ablauf.antworten(Antwort::karte(positionVon(t.spiel, Sitz(3), HerzZehn))));
    t.karteSpielen();
    EXPECT_EQ(t.spiel.hochzeitPartner, Sitz(3));
    EXPECT_TRUE(t.spiel.reAngesagt[Sitz(3)]);
    EXPECT_FALSE(t.spiel.kontraAngesagt[Sitz(3)]);
    EXPECT_EQ(t.spiel.faktor, 2);
    const auto m = t.meldungenDerArt(Meldungsart::Umwandlung);
    ASSERT_EQ(m.size(), 1u);
    EXPECT_EQ(m[0].text, "Das bereits von Spieler3 angesagte Kontra wird jetzt in ein Re umgewandelt!");
    EXPECT_EQ(t.ablauf.menue(Sitz(3)).reKontra.text, "Re ausgerufen");
    EXPECT_EQ(t.ablauf.menue(Sitz(4)).reKontra.text, "&Kontra geben");
}

TEST(Ansagen, MenueUndListentexte) {
    Spiel s = laufendesSpiel(5, 5, 0, 1);
    Ansagemenue m = ansagemenue(s, Sitz(3));
    EXPECT_EQ(m.reKontra.text, "&Kontra geben");
    EXPECT_TRUE(m.reKontra.aktiv);
    EXPECT_EQ(m.limits[Keine90].text, "Limitgebot (keine 90)");
    EXPECT_EQ(m.limits[Keine30].text, "Limitgebot (keine 30)");
    EXPECT_EQ(m.limits[LimitSchwarz].text, "Limitgebot (kein Stich)");
    EXPECT_TRUE(m.limit.aktiv);
    ansageEintragen(s, Sitz(1), ReKontra);
    ansageEintragen(s, Sitz(2), limit(Keine60));
    m = ansagemenue(s, Sitz(2));
    EXPECT_EQ(m.reKontra.text, "Re ausgerufen");
    EXPECT_FALSE(m.reKontra.aktiv);
    EXPECT_TRUE(m.limits[Keine60].markiert);
    EXPECT_FALSE(m.limits[Keine90].markiert);
    EXPECT_FALSE(m.limit.aktiv);
    EXPECT_EQ(m.limit.text, "Limitgebot (keine 60)");
    EXPECT_EQ(periodeText(0), "unzulässig");
    EXPECT_EQ(periodeText(3), "bis einschließlich 3. Stich");
}

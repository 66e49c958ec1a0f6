#include "Stichspiel.h"

#include <algorithm>
#include <array>

#include "Kartentext.h"
#include "Zufall.h"

namespace engine {

bool karteErlaubt(const Spiel& spiel, Sitz sitz, int pos) {
    const Stich& stich = spiel.stich;
    const Deck& deck = spiel.deck;
    if (stich.anzahl == 0) return true;
    if (deck[pos].farbe == stich.farbeZuBedienen) return true;
    for (int p = deck.erstePosition(sitz); p <= deck.letztePosition(sitz); ++p) {
        if (p != pos && deck[p].status == InHand && deck[p].farbe == stich.farbeZuBedienen) return false;
    }
    return true;
}

std::vector<int> handkarten(const Spiel& spiel, Sitz sitz) {
    std::vector<int> karten;
    karten.reserve(static_cast<std::size_t>(spiel.deck.handgroesse()));
    for (int p = spiel.deck.erstePosition(sitz); p <= spiel.deck.letztePosition(sitz); ++p)
        if (spiel.deck[p].status == InHand) karten.push_back(p);
    return karten;
}

std::vector<int> erlaubteKarten(const Spiel& spiel, Sitz sitz) {
    std::vector<int> karten = handkarten(spiel, sitz);
    const Stich& stich = spiel.stich;
    if (stich.anzahl == 0) return karten;
    // One pass instead of asking karteErlaubt per card: who holds the suit must follow it.
    const int farbe = stich.farbeZuBedienen;
    const bool kannBedienen =
        std::any_of(karten.begin(), karten.end(), [&](int p) { return spiel.deck[p].farbe == farbe; });
    if (kannBedienen) std::erase_if(karten, [&](int p) { return spiel.deck[p].farbe != farbe; });
    return karten;
}

int ersteErlaubteKarte(const Spiel& spiel, Sitz sitz) {
    const std::vector<int> karten = erlaubteKarten(spiel, sitz);
    return karten.empty() ? 0 : karten.front();
}

namespace {

// Texts of the wrong-card box.
constexpr std::array<std::string_view, 4> Eroeffnungen{
    "Bitte spielen Sie ", "Spielen Sie bitte ", "Bedienen Sie bitte ", "Werfen Sie bitte "};

// The article and ending pieces by grammatical gender.
struct Endungen {
    std::string_view artikel;       // d + ie / as / en
    std::string_view partizip;      // ausgespielte + "" / "" / n
    std::string_view einAkkusativ;  // ein + e / "" / en
    std::string_view einDativ;      // ein + er / em / em
};
Endungen endungen(Genus g) {
    switch (g) {
        case Genus::Feminin: return {"ie", "", "e", "er"};
        case Genus::Neutrum: return {"as", "", "", "em"};
        case Genus::Maskulin: break;
    }
    return {"en", "n", "en", "em"};
}

std::string trumpfErklaerung(const Spiel& spiel, bool franz) {
    std::string t;
    if (istFarbspiel(spiel.spieltyp)) {
        t = "Auch ";
        if (spiel.regeln.joker && !spiel.regeln.scharferRupa) t += "Joker, ";
        t += franz ? "Herz-Zehnen, " : "Rot-Zehnen, ";
        t += franz ? "Damen und Buben" : "Ober und Unter";
    } else if (spiel.spieltyp == BubenSolo) {
        t = franz ? "Buben" : "Unter";
    } else if (spiel.spieltyp == DamenSolo) {
        t = franz ? "Damen" : "Ober";
    } else {
        t = franz ? "Damen und Buben" : "Ober und Unter";
    }
    return t + " sind Trumpf";
}

}  // namespace

std::string falscheKarteMeldung(const Spiel& spiel, int pos, bool franz, Zufallsquelle& zufall) {
    const Stich& stich = spiel.stich;
    const int gefuehrt = stich.karte(1);
    const int ledCode = spiel.deck[gefuehrt].code;
    const int chosenCode = spiel.deck[pos].code;
    const bool trumpfGefuehrt = stich.farbeZuBedienen == spiel.spieltyp;
    const bool gewaehltTrumpf = spiel.deck[pos].farbe == spiel.spieltyp;
    const Endungen led = endungen(genusVon(ledCode, franz));
    const Endungen chosen = endungen(genusVon(chosenCode, franz));
    const std::string& aufspieler = spiel.namen[stich.aufspieler];

    std::string m(Eroeffnungen[static_cast<std::size_t>(zufall.ganzzahl(4))]);
    if (trumpfGefuehrt) {
        m += "Trumpf!\n" + trumpfErklaerung(spiel, franz) + "!";
        m += "\nSie haben versucht, auf d";
        m += led.artikel;
        m += " von " + aufspieler + " ausgespielte";
        m += led.partizip;
        m += " " + kartenname(ledCode, franz) + "(Trumpf!)" + " ein";
        m += chosen.einAkkusativ;
        m += " " + kartenname(chosenCode, franz) + " abzuwerfen," + " obwohl Sie noch Trumpf bedienen können.";
        return m;
    }
    const std::string farbe(farbwort(stich.farbeZuBedienen, franz));
    m += farbe + "!";
    m += "\nSie haben versucht, d";
    m += led.artikel;
    m += " von " + aufspieler + " ausgespielte";
    m += led.partizip;
    m += " " + kartenname(ledCode, franz) + " mit ein";
    m += chosen.einDativ;
    m += " " + kartenname(chosenCode, franz);
    m += gewaehltTrumpf ? std::string("(Trumpf!)") + " zu stechen, " : std::string(" zu bedienen, ");
    m += " obwohl Sie noch " + farbe + " besitzen.";
    return m;
}

Kartenfolge karteSpielen(Spiel& spiel, int pos) {
    Stich& stich = spiel.stich;
    assert(!stich.komplett());
    const Sitz sitz = stich.amZug();
    Kartenposition& karte = spiel.deck[pos];
    Kartenfolge folge;

    if (spiel.schweineHalter == sitz && karte.code == kartencode(Karo, As) && spiel.spieltyp == Normalspiel) {
        karte.staerke = StaerkeJoker;
        ++spiel.schweineGespielt[sitz];
        folge.schweinGespielt = true;
    }
    if (spiel.supersauHalter == sitz && istFarbspiel(spiel.spieltyp) && karte.code == kartencode(spiel.spieltyp, As)) {
        karte.staerke = StaerkeJoker;
        folge.supersau = true;
    }
    if (karte.code == kartencode(Kreuz, Dame) && !spiel.solo) {
        spiel.parteiMarker[sitz] = 2;
        folge.kreuzDameAufgedeckt = true;
    }

    karte.status = Gespielt;
    stich.karten[static_cast<std::size_t>(stich.anzahl)] = pos;
    ++stich.anzahl;
    stich.platz[sitz] = stich.anzahl;
    if (stich.anzahl == 1) stich.farbeZuBedienen = karte.farbe;
    return folge;
}

int fuehrenderPlatz(const Deck& deck, const Stich& stich, int anzahl, int spieltyp, bool ersteDolleHoch) {
    int entscheidend = stich.farbeZuBedienen;
    for (int i = 1; i <= anzahl; ++i) {
        if (deck[stich.karte(i)].farbe == spieltyp) entscheidend = spieltyp;
    }
    int bester = 0;
    int besteStaerke = 0;
    for (int i = 1; i <= anzahl; ++i) {
        const Kartenposition& k = deck[stich.karte(i)];
        if (k.farbe != entscheidend) continue;
        const bool zweiteDolle = !ersteDolleHoch && k.staerke == StaerkeDolle && k.staerke == besteStaerke;
        if (k.staerke > besteStaerke || zweiteDolle) {
            bester = i;
            besteStaerke = k.staerke;
        }
    }
    return bester;
}

Sitz stichGewinner(const Spiel& spiel) {
    const int platz = fuehrenderPlatz(spiel.deck, spiel.stich, spiel.stich.anzahl, spiel.spieltyp,
                                      spiel.regeln.herzZehn);
    return spiel.stich.sitzAn(platz);
}

}  // namespace engine

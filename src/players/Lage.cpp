#include "Lage.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <tuple>

#include "Bits.h"
#include "Solo.h"
#include "engine/Stichspiel.h"

namespace players {

using namespace engine;

namespace {
constexpr int KaroAs = kartencode(Karo, As);
constexpr int DolleCode = kartencode(Herz, Zehn);
constexpr int KreuzBube = kartencode(Kreuz, Bube);

std::size_t fi(int farbe) { return static_cast<std::size_t>(farbe); }

}  // namespace

Lage::Lage(const Spiel& s, const Tischwissen& w, Sitz sitz, const Melder& m, Zufallsquelle& z)
    : spiel(s), wissen(w), ich(sitz), melder(m), zufall(z), trumpf(s.spieltyp) {
    werteBerechnen();
    solist_ = solistSuchen();
    erlaubt = hand;
    if (spiel.stich.anzahl > 0) {
        // Who holds the suit to follow must follow it (the engine's rule, without a second pass).
        const int f = spiel.stich.farbeZuBedienen;
        if (werte.eigeneAnzahl[fi(f)] > 0) erlaubt.behalten([&](int p) { return spiel.deck[p].farbe == f; });
    }

    const Deck& deck = spiel.deck;
    const Stich& stich = spiel.stich;
    anzahl = stich.anzahl < 4 ? stich.anzahl : 0;
    if (anzahl > 0) {
        zuBedienen = stich.farbeZuBedienen;
        trumpfGefuehrt = zuBedienen == trumpf;
        fuehrPlatz = fuehrenderPlatz(deck, stich, anzahl, trumpf, spiel.regeln.herzZehn);
        gewinner = stich.sitzAn(fuehrPlatz);
        gewinnerKarte = stich.karte(fuehrPlatz);
        gestochen = !trumpfGefuehrt && deck[gewinnerKarte].farbe == trumpf;
        for (int i = 1; i <= anzahl; ++i) augenImStich += deck[stich.karte(i)].augen;
    }
}

bool Lage::schweinOeffentlich() const {
    const auto& halter = spiel.schweineHalter;
    return halter && (spiel.regeln.schweineAnsagen || *halter == Sitz(1) || spiel.schweineGespielt[*halter] > 0);
}

int Lage::staerkeBerechnen(int pos, bool schweinOffen) const {
    const auto& k = spiel.deck[pos];
    if (k.status != InHand) return k.staerke;
    if (k.code == KaroAs && trumpf == Normalspiel && spiel.schweineHalter) {
        const Sitz besitzer = spiel.deck.besitzer(pos);
        if (besitzer == *spiel.schweineHalter && (besitzer == ich || schweinOffen)) return StaerkeJoker;
    }
    // The own trump Asse of a Supersau are promoted when played.
    if (spiel.supersauHalter == ich && istFarbspiel(trumpf) && k.code == kartencode(trumpf, As) &&
        spiel.deck.besitzer(pos) == ich)
        return StaerkeJoker;
    return k.staerke;
}

bool Lage::istDolle(int pos) const { return karte(pos).code == DolleCode && istTrumpf(pos); }
bool Lage::istSchwein(int pos) const {
    return karte(pos).code == KaroAs && istTrumpf(pos) && staerke(pos) == StaerkeJoker;
}
bool Lage::istFuchs(int pos) const {
    return karte(pos).code == KaroAs && istTrumpf(pos) && trumpf == Normalspiel && !istSchwein(pos) &&
           sonderpunkteMoeglich();
}
bool Lage::istKarlchen(int pos) const {
    return karte(pos).code == KreuzBube && istTrumpf(pos) && sonderpunkteMoeglich();
}
bool Lage::istFigur(int pos) const { return karte(pos).wert == WertDame || karte(pos).wert == WertBube; }

void Lage::werteBerechnen() {
    const Deck& deck = spiel.deck;
    // Only the trump Asse can be raised, as Schweine or as a Supersau.
    const bool schwein = trumpf == Normalspiel && spiel.schweineHalter;
    const bool supersau = spiel.supersauHalter == ich && istFarbspiel(trumpf);
    const int erhoehbar = schwein || supersau ? kartencode(trumpf, As) : -1;
    const bool schweinOffen = schwein && schweinOeffentlich();
    std::size_t erhoehte = 0;
    auto staerkeVon = [&](int p, const Kartenposition& k) {
        if (k.code != erhoehbar) return k.staerke;
        const int st = staerkeBerechnen(p, schweinOffen);
        if (st != k.staerke && erhoehte < erhoeht_.size()) erhoeht_[erhoehte++] = p;
        return st;
    };

    // First the cards still in hand as bits, gathered without a branch per card (which cards
    // were played follows no pattern a processor could guess); then only those are looked at.
    std::uint64_t imHand = 0;
#pragma GCC unroll 8
    for (int p = 1; p <= deck.kartenanzahl(); ++p) imHand |= std::uint64_t{deck[p].status == InHand} << p;
    const int groesse = deck.handgroesse();
    auto handVon = [&](Sitz x) { return ((std::uint64_t{1} << groesse) - 1) << deck.erstePosition(x); };
    for (const Sitz x : alleSitze) werte.karten[x] = anzahlBits(imHand & handVon(x));

    // Summed in locals: stores into the members might alias the deck and would be kept in memory.
    // Trumps carry the game type as their suit, so the trump figures are those of that suit.
    std::array<int, AnzahlFarben> besteEigene;
    besteEigene.fill(-1);
    std::array<int, AnzahlFarben> eigeneBeste{};
    std::array<int, AnzahlFarben> eigeneAnzahl{};
    for (std::uint64_t m = imHand & handVon(ich); m != 0; m &= m - 1) {
        const int p = std::countr_zero(m);
        const auto& k = deck[p];
        const int st = staerkeVon(p, k);
        const auto f = fi(k.farbe);
        ++eigeneAnzahl[f];
        const bool besser = st > besteEigene[f];
        besteEigene[f] = besser ? st : besteEigene[f];
        eigeneBeste[f] = besser ? p : eigeneBeste[f];
        hand.push_back(p);
    }
    std::array<int, AnzahlFarben> fremdeAnzahl{};
    std::array<int, AnzahlFarben> hoechsteFremde{};
    // The Herz-Zehn is a trump (a Dolle) in the colour games only.
    const int trumpfDolle = istFarbspiel(trumpf) ? DolleCode : -1;
    int dollen = 0;
    bool joker = false;
    for (std::uint64_t m = imHand & ~handVon(ich); m != 0; m &= m - 1) {
        const int p = std::countr_zero(m);
        const auto& k = deck[p];
        const int st = staerkeVon(p, k);
        const auto f = fi(k.farbe);
        ++fremdeAnzahl[f];
        hoechsteFremde[f] = std::max(hoechsteFremde[f], st);
        dollen += k.code == trumpfDolle;
        joker |= istJoker(k.code);
    }
    const auto t = fi(trumpf);
    werte.eigeneBeste = eigeneBeste;
    werte.eigeneAnzahl = eigeneAnzahl;
    werte.fremdeAnzahl = fremdeAnzahl;
    werte.hoechsteFremde = hoechsteFremde;
    werte.eigeneTruempfe = eigeneAnzahl[t];
    werte.fremdeTruempfe = fremdeAnzahl[t];
    werte.hoechsterEigenerTrumpf = std::max(besteEigene[t], 0);
    werte.hoechsterFremderTrumpf = hoechsteFremde[t];
    werte.fremdeDollen = dollen;
    werte.jokerFremd = joker;
    werte.truempfeImSpiel = werte.eigeneTruempfe + werte.fremdeTruempfe;
    werte.hoechsterTrumpfImSpiel = std::max(werte.hoechsterEigenerTrumpf, werte.hoechsterFremderTrumpf);
    // Cards carry a plain suit or the trump value; every other entry stays 0.
    auto offen = [&](std::size_t f) { werte.hoechsteOffene[f] = std::max(hoechsteFremde[f], std::max(besteEigene[f], 0)); };
    for (std::size_t f = Karo; f <= Kreuz; ++f) offen(f);
    if (t < AnzahlFarben) offen(t);
    if (trumpf == SoloOhneTrumpf && spiel.solist == ich) {
        // The long suit chosen with the solo; a game taken over midway chooses afresh.
        werte.langeFarbe = wissen.solo.langeFarbe[ich];
        if (werte.langeFarbe != 0) return;
        int beste = 0;
        int besteSumme = 0;
        for (int f = 1; f <= 4; ++f) {
            int summe = 0;
            for (int p : hand)
                if (karte(p).farbe == f) summe += staerke(p);
            const int n = werte.eigeneAnzahl[fi(f)];
            if (n > 0 && (beste == 0 || n > werte.eigeneAnzahl[fi(beste)] ||
                          (n == werte.eigeneAnzahl[fi(beste)] && summe > besteSumme))) {
                beste = f;
                besteSumme = summe;
            }
        }
        werte.langeFarbe = beste;
    }
}

Lage::Sitzfolge Lage::nachMir() const {
    Sitzfolge v;
    for (int i = anzahl + 2; i <= 4; ++i) v.sitze[v.anzahl++] = spiel.stich.aufspieler.plus(i - 1);
    return v;
}

bool Lage::kannSchlagen() const {
    return std::any_of(erlaubt.begin(), erlaubt.end(), [this](int p) { return schlaegt(p); });
}

bool Lage::hoehereDraussen(int farbe, int s) const {
    if (farbe == trumpf) {
        if (werte.hoechsterFremderTrumpf > s) return true;
        return s == StaerkeDolle && !spiel.regeln.herzZehn && werte.fremdeDollen > 0;
    }
    return werte.hoechsteFremde[fi(farbe)] > s;
}

int Lage::stehende(int farbe) const {
    const int beste = werte.eigeneBeste[fi(farbe)];
    return beste != 0 && staerke(beste) >= werte.hoechsteFremde[fi(farbe)] ? beste : 0;
}

bool Lage::hoechsteLiegt() const {
    int best = 0;
    for (int i = 1; i <= anzahl; ++i) {
        const auto& k = karte(spiel.stich.karte(i));
        if (k.farbe == zuBedienen) best = std::max(best, k.staerke);
    }
    return anzahl > 0 && !hoehereDraussen(zuBedienen, best);
}

bool Lage::kannUebernehmen(Sitz x) const {
    return kannUebernehmen(x, karte(gewinnerKarte).farbe, karte(gewinnerKarte).staerke);
}

bool Lage::kannUebernehmen(Sitz x, int farbe, int s) const {
    // A seat not known void is expected to follow suit.
    if (farbe == trumpf) {
        if (ohneTrumpf(x)) return false;
        if (!trumpfGefuehrt && !frei(x, zuBedienen)) return false;
        return hoehereDraussen(trumpf, s);
    }
    if (!frei(x, zuBedienen)) return hoehereDraussen(zuBedienen, s);
    return !ohneTrumpf(x);
}

bool Lage::nagelt(int pos) const {
    if (!schlaegt(pos)) return false;
    for (const Sitz x : nachMir())
        if (kannUebernehmen(x, karte(pos).farbe, staerke(pos))) return false;
    return true;
}

bool Lage::genagelt() const {
    for (const Sitz x : nachMir())
        if (kannUebernehmen(x)) return false;
    return true;
}

bool Lage::abziehenDenkbar(double sicherheit) const {
    if (trumpf == SoloOhneTrumpf) return true;
    std::array<int, 3> groessen{};
    for (std::size_t i = 0; i < groessen.size(); ++i) groessen[i] = werte.karten[ich.plus(static_cast<int>(i) + 1)];
    return players::abziehenDenkbar(werte.eigeneTruempfe, werte.fremdeTruempfe, groessen, sicherheit);
}

std::optional<Sitz> Lage::solistSuchen() const {
    if (spiel.solo && spiel.solist) return spiel.solist;
    for (const Sitz x : alleSitze)
        if (glaube(x) == ParteiSolo) return x;
    return std::nullopt;
}

bool Lage::hochzeitsKlaerstich() const {
    if (!spiel.hochzeiter || spiel.hochzeitGeklaert || anzahl == 0) return false;
    switch (spiel.hochzeitArt) {
        case ErsterStich: return true;
        case ErsterFehlstich: return !trumpfGefuehrt;
        case ErsterTrumpfstich: return trumpfGefuehrt;
        default: return false;
    }
}

int Lage::kleinsteAbwurf() const {
    // Few Augen first; of equals the shorter suit, so it runs out sooner.
    const int farbkarte = kleinsteErlaubte([this](int p) { return !istTrumpf(p); }, [this](int p) {
        return std::make_tuple(augen(p), anzahlInHand(karte(p).farbe), staerke(p));
    });
    return farbkarte != 0 ? farbkarte : praktWertkleinsterTrumpf();
}

int Lage::hoechsteAbwurf() const {
    // A Zehn before an As of the same worth class: the As may still win its own trick.
    const int farbkarte = kleinsteErlaubte([this](int p) { return !istTrumpf(p); }, [this](int p) {
        return std::make_tuple(-std::min(augen(p), 10), staerke(p), anzahlInHand(karte(p).farbe));
    });
    return farbkarte != 0 ? farbkarte : praktWerthoechsterTrumpf();
}

int Lage::kleinsteDerFarbe(int farbe) const {
    return kleinsteErlaubte([&](int p) { return karte(p).farbe == farbe; },
                            [this](int p) { return std::make_tuple(staerke(p), augen(p)); });
}

int Lage::hoechsteDerFarbe(int farbe) const {
    return kleinsteErlaubte([&](int p) { return karte(p).farbe == farbe; },
                            [this](int p) { return std::make_tuple(-staerke(p), -augen(p)); });
}

int Lage::kleinsterSchlagender() const {
    return kleinsteErlaubte([this](int p) { return schlaegt(p); },
                            [this](int p) { return std::make_tuple(staerke(p), augen(p)); });
}

int Lage::praktWertkleinsterTrumpf() const {
    return kleinsteErlaubte([this](int p) { return istTrumpf(p); },
                            [this](int p) { return std::make_tuple(istZaehler(p), staerke(p)); });
}

int Lage::praktWerthoechsterTrumpf() const {
    const int klein = kleinsteErlaubte(
        [this](int p) {
            return istTrumpf(p) && !istFigur(p) && !istDolle(p) && !istSchwein(p) && !istJoker(karte(p).code);
        },
        [this](int p) { return std::make_tuple(-augen(p), staerke(p)); });
    if (klein != 0) return klein;
    return kleinsteErlaubte([this](int p) { return istTrumpf(p); }, [this](int p) { return staerke(p); });
}

int Lage::hoechsterTrumpf() const {
    return kleinsteErlaubte([this](int p) { return istTrumpf(p); }, [this](int p) { return -staerke(p); });
}

int Lage::zufaellige(const Kartenliste& karten) const {
    if (karten.empty()) return 0;
    return karten[static_cast<std::size_t>(zufall.ganzzahl(static_cast<int>(karten.size())))];
}

Kartenliste Lage::sortierteHand() const {
    Kartenliste v = hand;
    auto schluessel = [this](int p) {
        if (istTrumpf(p)) return std::make_tuple(0, -staerke(p));
        return std::make_tuple(5 - karte(p).farbe, -staerke(p));
    };
    v.stabilSortieren([&](int a, int b) { return schluessel(a) < schluessel(b); });
    return v;
}

}  // namespace players

#include "Folgelage.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <tuple>
#include <utility>

namespace players {

using namespace engine;

namespace {

std::size_t fi(int farbe) { return static_cast<std::size_t>(farbe); }

// The legal card that is smallest by `schluessel` among those passing `passt`.
template <class P, class S>
int beste(const Lage& l, P passt, S schluessel) {
    return kleinsteNach(l.erlaubt, passt, schluessel);
}

}  // namespace

Folge::Folge(const Lage& lage) : l(lage) {
    farbe = l.zuBedienen;
    trumpfGefuehrt = l.trumpfGefuehrt;
    gestochen = l.gestochen;
    gewinner = l.gewinner.value_or(l.ich);
    wKarte = l.gewinnerKarte;
    wStaerke = wKarte ? l.karte(wKarte).staerke : 0;
    augen = l.augenImStich;
    wFreund = l.freund(gewinner);
    wBekannterFeind = l.bekannterFeind(gewinner);
    gefuehrtWert = l.anzahl > 0 ? l.karte(l.spiel.stich.karte(1)).wert : 0;

    const int angespielt = farbe > 0 ? l.angespielt(farbe) : 0;
    ersteRunde = !trumpfGefuehrt && angespielt <= 1;
    letzterStich = l.hand.size() == 1;
    vorletzterStich = l.hand.size() == 2;

    for (const Sitz x : l.nachMir()) nach[static_cast<std::size_t>(nachAnzahl++)] = x;
    for (int i = 0; i < nachAnzahl; ++i) {
        const Sitz x = nach[static_cast<std::size_t>(i)];
        const bool nimmt = kannNehmen(x, l.karte(wKarte).farbe, wStaerke);
        if (l.freund(x)) {
            freundNach = true;
            freundKannNehmen = freundKannNehmen || nimmt;
        } else {
            feindKannNehmen = feindKannNehmen || nimmt;
        }
    }
    if (l.anzahl < 3) {
        hh = l.hinterhandSitz();
        hhFreund = l.freund(hh);
        hhFrei = l.frei(hh, farbe);
        hhOhneTrumpf = l.ohneTrumpf(hh);
    }

    solist = l.solist();
    binSolist = l.wissen.partei[l.ich] == ParteiSolo || (solist && *solist == l.ich);
    gegenSolist = solist && *solist != l.ich;
    wSolist = gegenSolist && gewinner == *solist;
    klaerstich = l.hochzeitsKlaerstich();
    binHochzeiter = l.binHochzeiter();

    anzahlFarbe = farbe > 0 ? l.anzahlInHand(farbe) : 0;
    trumpfAnzahl = l.werte.eigeneTruempfe;
    for (int p : l.erlaubt) {
        hatFarbkarte |= !l.istTrumpf(p);
        kannSchlagen |= l.schlaegt(p);
    }
}

bool Folge::vielleichtFrei(Sitz x) const {
    if (trumpfGefuehrt) return l.ohneTrumpf(x);
    if (l.frei(x, farbe)) return true;
    // Fewer cards of the suit out than seats after me: one of them will ruff. (Guessing
    // voids from the suit's rounds made the rule book too timid: measured weaker.)
    return l.werte.fremdeAnzahl[fi(farbe)] < nachAnzahl;
}

bool Folge::kannNehmen(Sitz x, int kartenfarbe, int staerke) const {
    if (kartenfarbe == l.trumpf) {
        if (l.ohneTrumpf(x)) return false;
        if (!trumpfGefuehrt && !vielleichtFrei(x)) return false;
        return l.hoehereDraussen(l.trumpf, staerke);
    }
    if (!l.frei(x, farbe) && l.hoehereDraussen(farbe, staerke)) return true;
    return vielleichtFrei(x) && !l.ohneTrumpf(x);
}

bool Folge::haelt(int pos) const {
    if (pos == 0 || !l.schlaegt(pos)) return false;
    for (int i = 0; i < nachAnzahl; ++i) {
        const Sitz x = nach[static_cast<std::size_t>(i)];
        if (!l.freund(x) && kannNehmen(x, l.karte(pos).farbe, l.staerke(pos))) return false;
    }
    return true;
}

bool Folge::nagelt(int pos) const {
    if (pos == 0 || !l.schlaegt(pos)) return false;
    for (int i = 0; i < nachAnzahl; ++i)
        if (kannNehmen(nach[static_cast<std::size_t>(i)], l.karte(pos).farbe, l.staerke(pos))) return false;
    return true;
}

int Folge::kleinsteDerFarbe() const { return l.kleinsteDerFarbe(farbe); }
int Folge::hoechsteDerFarbe() const { return l.hoechsteDerFarbe(farbe); }

int Folge::schmierkarte() const {
    return beste(
        l, [&](int p) { return l.karte(p).farbe == farbe; },
        [&](int p) { return std::make_tuple(-std::min(l.augen(p), 10), l.staerke(p)); });
}

int Folge::kleinsterSchlagender() const {
    return gemerkt(Schlagender, [&] {
        return beste(
            l, [&](int p) { return l.schlaegt(p); }, [&](int p) { return std::make_tuple(trumpfRang(p), l.augen(p)); });
    });
}

int Folge::kleinsterHaltender() const {
    return gemerkt(Haltender, [&] {
        return beste(
            l, [&](int p) { return haelt(p); }, [&](int p) { return std::make_tuple(trumpfRang(p), l.augen(p)); });
    });
}

int Folge::gleichOderHoeher(int pos) const {
    int n = 0;
    for (int p : l.erlaubt)
        if (l.karte(p).farbe == l.karte(pos).farbe && l.staerke(p) >= l.staerke(pos)) ++n;
    return n;
}

int Folge::hoechsteNichtSchlagende() const {
    return beste(
        l, [&](int p) { return !l.schlaegt(p); }, [&](int p) { return std::make_tuple(-l.augen(p), l.staerke(p)); });
}

void Folge::stechenVorbereiten() {
    for (int p : l.hand) {
        if (!l.istTrumpf(p)) {
            if (kleinsteFarbkarte == 0 || std::make_pair(l.augen(p), l.staerke(p)) <
                                              std::make_pair(l.augen(kleinsteFarbkarte), l.staerke(kleinsteFarbkarte)))
                kleinsteFarbkarte = p;
            continue;
        }
        if (eigenerHoechster == 0 || l.staerke(p) > l.staerke(eigenerHoechster)) {
            eigenerZweiter = eigenerHoechster;
            eigenerHoechster = p;
        } else if (eigenerZweiter == 0 || l.staerke(p) > l.staerke(eigenerZweiter)) {
            eigenerZweiter = p;
        }
    }
    hoechsteEigeneStaerke = eigenerHoechster ? l.staerke(eigenerHoechster) : 0;
    if (l.trumpf != Normalspiel || l.spiel.solo) return;
    // The two lowest own trumps: a Kreuz-Bube (16384) below a Karo-Dame (65536).
    int erster = 0;
    int zweiter = 0;
    for (int p : l.hand) {
        if (!l.istTrumpf(p)) continue;
        if (erster == 0 || l.staerke(p) < l.staerke(erster)) {
            zweiter = erster;
            erster = p;
        } else if (zweiter == 0 || l.staerke(p) < l.staerke(zweiter)) {
            zweiter = p;
        }
    }
    karlchenAlsDame = erster && zweiter && l.staerke(erster) == 16384 && l.staerke(zweiter) == 65536;
}

int Folge::trumpfRang(int pos) const {
    // Plain cards rank by their strength alone, below every trump.
    if (!l.istTrumpf(pos)) return l.staerke(pos) >> 8;
    const int s = l.staerke(pos);
    // Between the Karo-Dame and the Herz-Dame: the Dame goes first.
    if (karlchenAlsDame && s == 16384 && l.karte(pos).wert == WertBube) return 4 * 64 + 17;
    const int wert = l.karte(pos).wert;
    int klasse = 0;
    if (s >= StaerkeDolle || l.istSchwein(pos) || istJoker(l.karte(pos).code))
        klasse = 6;
    else if (l.istFuchs(pos))
        klasse = 5;
    else if (wert == WertDame)
        klasse = 4;
    else if (l.istZaehler(pos))
        klasse = 3;
    else if (wert == WertBube)
        klasse = 2;
    else
        klasse = 1;
    // Rank within the class by strength (powers of two up to 2^26).
    const int stufe = s > 1 ? static_cast<int>(std::bit_width(static_cast<unsigned>(s))) - 1 : 0;
    return klasse * 64 + stufe;
}

int Folge::wertlosterTrumpf() const {
    return gemerkt(Wertloser, [&] { return wertlosterTrumpfAusser(0); });
}

int Folge::wertlosterTrumpfAusser(int behalten) const {
    return beste(
        l, [&](int p) { return p != behalten && l.istTrumpf(p); }, [&](int p) { return trumpfRang(p); });
}

int Folge::wertlosterSchlagenderTrumpf() const {
    return beste(
        l, [&](int p) { return l.istTrumpf(p) && l.schlaegt(p); }, [&](int p) { return trumpfRang(p); });
}

int Folge::wertlosterHaltenderTrumpf() const {
    return gemerkt(HaltenderTrumpf, [&] {
        return beste(
            l, [&](int p) { return l.istTrumpf(p) && haelt(p); }, [&](int p) { return trumpfRang(p); });
    });
}

namespace {
bool kleinerTrumpf(const Lage& l, int p) {
    return l.istTrumpf(p) && !l.istFigur(p) && !l.istDolle(p) && !l.istSchwein(p) && !istJoker(l.karte(p).code) &&
           l.staerke(p) < StaerkeDolle;
}
}  // namespace

int Folge::fetterTrumpf() const {
    return beste(
        l, [&](int p) { return kleinerTrumpf(l, p) && l.istZaehler(p); },
        [&](int p) { return std::make_tuple(-l.augen(p), l.staerke(p)); });
}

int Folge::fetterTrumpfDerHaelt() const {
    return gemerkt(FetterHaelt, [&] {
        return beste(
            l, [&](int p) { return kleinerTrumpf(l, p) && l.istZaehler(p) && haelt(p); },
            [&](int p) { return std::make_tuple(-l.augen(p), l.staerke(p)); });
    });
}

int Folge::hoechsterTrumpf() const {
    return beste(
        l, [&](int p) { return l.istTrumpf(p); }, [&](int p) { return -l.staerke(p); });
}

int Folge::fuchs() const {
    return beste(
        l, [&](int p) { return l.istFuchs(p); }, [](int p) { return p; });
}
int Folge::dolle() const {
    return beste(
        l, [&](int p) { return l.istDolle(p); }, [](int p) { return p; });
}
int Folge::karlchen() const {
    return beste(
        l, [&](int p) { return l.istKarlchen(p); }, [](int p) { return p; });
}

int Folge::kleinsterAbwurf() const {
    return gemerkt(Abwurf, [&] {
        return beste(
            l, [&](int p) { return !l.istTrumpf(p); },
            [&](int p) { return std::make_tuple(l.augen(p), l.anzahlInHand(l.karte(p).farbe), l.staerke(p)); });
    });
}

int Folge::hoechsterAbwurf() const {
    return beste(
        l, [&](int p) { return !l.istTrumpf(p); },
        [&](int p) {
            return std::make_tuple(-std::min(l.augen(p), 10), l.staerke(p), l.anzahlInHand(l.karte(p).farbe));
        });
}

int Folge::blankeFarbkarte() const {
    return gemerkt(Blank, [&] {
        return beste(
            l, [&](int p) { return !l.istTrumpf(p) && l.anzahlInHand(l.karte(p).farbe) == 1 && !l.istZaehler(p); },
            [&](int p) { return std::make_tuple(l.augen(p), l.staerke(p)); });
    });
}

}  // namespace players

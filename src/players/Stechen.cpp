// stechen_oder_abwerfen: a plain suit was led, the own hand is void in it and may trump.
#include <array>
#include <utility>

#include "Regelhilfen.h"
#include "Texte.h"
#include "Verfahren.h"

namespace players {

using namespace engine;
using namespace hilfe;

namespace {

int wertkleinster(const Lage& l) { return l.praktWertkleinsterTrumpf(); }

bool ichRufe(const Lage& l) { return l.hochzeitsKlaerstich() && l.binHochzeiter() && l.gewinner != l.ich; }

// A trump of little use: no Zähler, no Dame or higher.
int billigerTrumpf(const Lage& l) {
    const int k = l.praktWertkleinsterTrumpf();
    if (k == 0 || l.istZaehler(k) || l.karte(k).wert == WertDame || l.karte(k).wert == WertJoker ||
        l.istDolle(k) || l.istSchwein(k))
        return 0;
    return k;
}
// The cheapest trump but `behalten`.
int wertkleinsterAusser(const Lage& l, int behalten) {
    int beste = 0;
    for (int p : l.erlaubt) {
        if (p == behalten || !l.istTrumpf(p)) continue;
        if (beste == 0 || std::make_pair(l.istZaehler(p), l.staerke(p)) < std::make_pair(l.istZaehler(beste), l.staerke(beste)))
            beste = p;
    }
    return beste;
}
int fuchs(const Lage& l) {
    for (int p : l.erlaubt)
        if (l.istFuchs(p)) return p;
    return 0;
}
int einzigerTrumpf(const Lage& l) { return l.werte.eigeneTruempfe == 1 ? l.hoechsterTrumpf() : 0; }
bool istHoechsterImSpiel(const Lage& l, int t) { return t != 0 && l.staerke(t) >= l.werte.hoechsterTrumpfImSpiel; }
bool mitspielerOhneTrumpf(const Lage& l) {
    for (const Sitz x : alleSitze)
        if (x != l.ich && !l.ohneTrumpf(x)) return false;
    return true;
}
bool mehrereKarten(const Lage& l) { return l.hand.size() > 1; }

const std::array<Regel, 15> hinterhand{{
    {"HH25", text::SoaHH25, [](const Lage& l) { return ichRufe(l) && l.nurTrumpf(); },
     [](const Lage& l) {
         // A trump that leaves the trick to the wanted partner, if there is one.
         int k = 0;
         for (int p : l.erlaubt)
             if (l.istTrumpf(p) && !l.schlaegt(p) &&
                 (k == 0 || std::make_pair(l.istZaehler(p), l.staerke(p)) < std::make_pair(l.istZaehler(k), l.staerke(k))))
                 k = p;
         return k != 0 ? k : l.praktWertkleinsterTrumpf();
     }},
    {"HH24", text::SoaHH24, ichRufe, hoechste},
    {"HH33", text::SoaHH33, [](const Lage& l) { return wFeind(l) && !l.gestochen && billigerTrumpf(l) != 0; },
     billigerTrumpf},
    {"HH36", text::SoaHH36, [](const Lage& l) { return wFeind(l) && l.gestochen && l.kannSchlagen(); },
     [](const Lage& l) { return dolleBeimUebernehmen(l, l.kleinsterSchlagender()); }},
    {"HH38", text::SoaHH38, [](const Lage& l) { return wFeind(l) && hatFarbkarte(l); }, kleinste},
    {"HH39", text::SoaHH39, [](const Lage& l) { return wFeind(l) && l.nurTrumpf(); }, wertkleinster},
    {"HH10", text::SoaHH10,
     [](const Lage& l) {
         const int t = einzigerTrumpf(l);
         return wFreund(l) && t != 0 && !l.istFuchs(t) && istHoechsterImSpiel(l, t) && hatFarbkarte(l);
     },
     hoechste},
    {"HH11", text::SoaHH11,
     [](const Lage& l) {
         const int t = l.hoechsterTrumpf();
         return wFreund(l) && l.nurTrumpf() && mehrereKarten(l) && !l.istFuchs(t) && istHoechsterImSpiel(l, t);
     },
     [](const Lage& l) { return wertkleinsterAusser(l, l.hoechsterTrumpf()); }},
    {"HH19", text::SoaHH19,
     [](const Lage& l) {
         const int t = einzigerTrumpf(l);
         return wFreund(l) && t != 0 && l.istFuchs(t) && mitspielerOhneTrumpf(l) && hatFarbkarte(l);
     },
     hoechste},
    {"HH20", text::SoaHH20,
     [](const Lage& l) {
         return wFreund(l) && l.nurTrumpf() && mehrereKarten(l) && fuchs(l) != 0 && mitspielerOhneTrumpf(l);
     },
     [](const Lage& l) { return wertkleinsterAusser(l, fuchs(l)); }},
    {"HH17", text::SoaHH17, [](const Lage& l) { return wFreund(l) && fuchs(l) != 0; }, fuchs},
    {"HH07", text::SoaHH07, [](const Lage& l) { return wFreund(l) && einzigerTrumpf(l) != 0 && hatFarbkarte(l); },
     hoechste},
    {"HH08", text::SoaHH08, [](const Lage& l) { return wFreund(l) && l.nurTrumpf() && einzigerTrumpf(l) != 0; },
     einzigerTrumpf},
    {"HH01", text::SoaHH01, [](const Lage& l) { return wFreund(l) && hatFarbkarte(l); }, hoechste},
    {"HH04", text::SoaHH04, wFreund, wertkleinster},
}};

// Rather than throw a Zähler onto an opponent's trick of 30 Augen or more, trump it.
int zaehlerRetten(const Lage& l, int karte) {
    if (!l.hinterhand() || l.werte.eigeneTruempfe == 0 || l.augenImStich < 30 || l.istTrumpf(karte) ||
        !l.istZaehler(karte) || !wFeind(l) || ichRufe(l))
        return karte;
    const int trumpf = l.kleinsterSchlagender();
    if (trumpf == 0 || !l.istTrumpf(trumpf)) return karte;
    l.melder.regel(verfahren::Filter, "Zaehlerstich", text::ZaehlerStechen);
    return trumpf;
}

}  // namespace

std::span<const Regel> stechenRegeln(int anzahl) {
    // The Zweithand and Dritthand rules join in their own step.
    return anzahl == 3 ? std::span<const Regel>(hinterhand) : std::span<const Regel>();
}

int stechenOderAbwerfen(const Lage& lage) {
    int karte = regelnAnwenden(stechenRegeln(lage.anzahl), lage, verfahren::Stechen);
    if (karte == 0) return 0;
    karte = zaehlerRetten(lage, karte);
    karte = freispielenFilter(lage, karte);
    karte = dolleNagelnFilter(lage, karte);
    karte = fuchsKarlchenDolleFilter(lage, karte);
    return herzFilter(lage, karte);
}

}  // namespace players

#include "Suche.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <thread>

#include "Ausspielen.h"
#include "Welten.h"
#include "engine/Stichspiel.h"

namespace players {

using namespace engine;

namespace {

// Deals tried for one world before it is left out.
constexpr int Weltversuche = 8;

std::uint64_t weltSeed(std::uint64_t seed, int i) {
    SeedZufall z(seed ^ (0x9e3779b97f4a7c15ULL * static_cast<std::uint64_t>(i + 1)));
    return z.naechste64();
}

// Runs f(0..n-1) on the threads; every index writes only its own result, so the
// outcome does not depend on how the indices fall to the threads.
template <class F>
void parallel(int n, int threads, F&& f) {
    if (threads <= 0) threads = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
    threads = std::min(threads, n);
    std::atomic<int> naechster{0};
    auto arbeiten = [&] {
        for (int i = naechster++; i < n; i = naechster++) f(i);
    };
    std::vector<std::thread> helfer;
    for (int t = 1; t < threads; ++t) helfer.emplace_back(arbeiten);
    arbeiten();
    for (auto& h : helfer) h.join();
}

// One legal card of each code: two equal cards lead to the same game.
std::vector<int> verschiedene(const std::vector<int>& karten, const Spiel& spiel) {
    std::vector<int> v;
    for (int p : karten)
        if (std::none_of(v.begin(), v.end(), [&](int q) { return spiel.deck[q].code == spiel.deck[p].code; }))
            v.push_back(p);
    return v;
}

struct Weltwerte {
    double gewicht = 0;  // 0: no world could be drawn
    std::vector<int> werte;
};

// World i: drawn from its own seed, replayed, then `bewerten` on it.
template <class F>
Weltwerte inWelt(const Sicht& sicht, const Kartenschranken& schranken, int zufallszahl, std::uint64_t seed, int i,
                 const Sucheinstellung& e, F&& bewerten) {
    SeedZufall zufall(weltSeed(seed, i));
    for (int versuch = 0; versuch < Weltversuche; ++versuch) {
        const auto zuteilung = zuteilungZiehen(sicht, schranken, zufall);
        if (!zuteilung) break;
        const auto gebaut = weltBauen(sicht, *zuteilung);
        if (!gebaut) continue;
        auto welt = weltNachspielen(sicht, *gebaut, zufallszahl, e.abweichung, zufall);
        if (!welt) continue;
        Weltwerte w;
        w.gewicht = welt->gewicht;
        w.werte = bewerten(*welt, zufall);
        return w;
    }
    return {};
}

}  // namespace

const Kartenwert* Suchergebnis::wertVon(int k) const {
    for (const Kartenwert& w : werte)
        if (w.karte == k) return &w;
    return nullptr;
}

Suchergebnis karteSuchen(const Sicht& sicht, int zufallszahl, std::uint64_t seed, const Sucheinstellung& e) {
    Suchergebnis ergebnis;
    const std::vector<int> erlaubt = erlaubteKarten(sicht.spiel, sicht.ich);
    if (erlaubt.empty()) return ergebnis;
    ergebnis.karte = erlaubt.front();
    const std::vector<int> karten = verschiedene(erlaubt, sicht.spiel);
    for (int k : karten) ergebnis.werte.push_back({k, 0});
    if (karten.size() == 1) return ergebnis;

    const int n = std::max(1, e.simulationen / static_cast<int>(karten.size()));
    const Kartenschranken schranken = schrankenAus(sicht);
    const bool exakt = e.endspielStiche > 0 &&
                       sicht.spiel.deck.handgroesse() - sicht.spiel.sticheGespielt <= e.endspielStiche &&
                       ansagenVorbei(sicht.spiel) && (!sicht.spiel.hochzeiter || sicht.spiel.hochzeitGeklaert);
    ergebnis.exakt = exakt;
    std::vector<Weltwerte> welten(static_cast<std::size_t>(n));
    parallel(n, e.threads, [&](int i) {
        welten[static_cast<std::size_t>(i)] =
            inWelt(sicht, schranken, zufallszahl, seed, i, e, [&](Welt& welt, Zufallsquelle& zufall) {
                if (exakt) return endspielWerte(*welt.spiel, karten);
                std::vector<int> werte;
                for (int k : karten) {
                    Spiel spiel = *welt.spiel;
                    Tischwissen wissen = *welt.wissen;
                    werte.push_back(ausspielen(spiel, wissen, zufall, sicht.ich, std::nullopt, k, e.rolloutAnsagen));
                }
                return werte;
            });
    });

    double summe = 0;
    for (const Weltwerte& w : welten) {
        if (w.gewicht <= 0) continue;
        ++ergebnis.welten;
        summe += w.gewicht;
        for (std::size_t c = 0; c < karten.size(); ++c) ergebnis.werte[c].mittel += w.gewicht * w.werte[c];
    }
    if (summe <= 0) return ergebnis;
    for (Kartenwert& w : ergebnis.werte) w.mittel /= summe;
    // The best mean; of equal ones the first legal card.
    const auto beste = std::max_element(ergebnis.werte.begin(), ergebnis.werte.end(),
                                        [](const Kartenwert& a, const Kartenwert& b) { return a.mittel < b.mittel; });
    ergebnis.karte = beste->karte;
    return ergebnis;
}

Ansagesuche ansageSuchen(const Sicht& sicht, int zufallszahl, std::uint64_t seed, const Sucheinstellung& e,
                         const std::vector<Ansage>& moeglich) {
    Ansagesuche ergebnis;
    if (moeglich.empty()) return ergebnis;
    const std::size_t optionen = moeglich.size() + 1;
    const int n = std::max(2, e.simulationen / static_cast<int>(optionen));
    const Kartenschranken schranken = schrankenAus(sicht);
    std::vector<Weltwerte> welten(static_cast<std::size_t>(n));
    parallel(n, e.threads, [&](int i) {
        welten[static_cast<std::size_t>(i)] =
            inWelt(sicht, schranken, zufallszahl, seed, i, e, [&](Welt& welt, Zufallsquelle& zufall) {
                std::vector<int> werte;
                for (std::size_t o = 0; o < optionen; ++o) {
                    Spiel spiel = *welt.spiel;
                    Tischwissen wissen = *welt.wissen;
                    const std::optional<Ansage> a = o == 0 ? std::nullopt : std::optional<Ansage>(moeglich[o - 1]);
                    werte.push_back(ausspielen(spiel, wissen, zufall, sicht.ich, a, 0, e.rolloutAnsagen));
                }
                return werte;
            });
    });
    // Paired gains over announcing nothing, weighted like the card search.
    for (std::size_t o = 1; o < optionen; ++o) {
        double summe = 0, mittel = 0, quadrate = 0, quadratGewichte = 0;
        int gezaehlt = 0;
        for (const Weltwerte& w : welten) {
            if (w.gewicht <= 0) continue;
            summe += w.gewicht;
            mittel += w.gewicht * (w.werte[o] - w.werte[0]);
            quadratGewichte += w.gewicht * w.gewicht;
            ++gezaehlt;
        }
        if (summe <= 0 || gezaehlt < 2) continue;
        mittel /= summe;
        for (const Weltwerte& w : welten)
            if (w.gewicht > 0) quadrate += w.gewicht * std::pow(w.werte[o] - w.werte[0] - mittel, 2);
        // Weighted spread, and the deals it effectively rests on.
        const double varianz = quadrate / summe;
        const double wirksam = summe * summe / quadratGewichte;
        const double fehler = std::sqrt(varianz / std::max(1.0, wirksam - 1));
        ergebnis.welten = gezaehlt;
        if (mittel - 1.645 * fehler > 0 && mittel > ergebnis.gewinn) {
            ergebnis.gewinn = mittel;
            ergebnis.ansage = moeglich[o - 1];
        }
    }
    return ergebnis;
}

}  // namespace players

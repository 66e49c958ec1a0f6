// What the strong player's search is made of: copying a game, drawing and replaying a
// world, one rule-book playout from the first card and from the middle of a game.
// Playouts per second on one core are 1 / the time of one.
#include <benchmark/benchmark.h>

#include <vector>

#include "Testtisch.h"
#include "players/Ausspielen.h"
#include "players/Regelwerk.h"
#include "players/Stark.h"
#include "players/Welten.h"

namespace {

// States before every card of a few seeded rule-book games, with the seat on turn.
struct Stellung {
    engine::Spiel spiel;
    engine::Sitz sitz;
};

class Mitschreiber final : public engine::Entscheider {
public:
    Mitschreiber(players::Tischwissen& w, engine::Zufallsquelle& z, std::vector<Stellung>& s)
        : regelwerk_(w, z), stellungen_(s) {}
    int karteWaehlen(const engine::Spiel& spiel, engine::Sitz sitz) override {
        stellungen_.push_back({spiel, sitz});
        return regelwerk_.karteWaehlen(spiel, sitz);
    }
    engine::Vorbehalt vorbehaltWaehlen(const engine::Spiel& s, engine::Sitz x) override {
        return regelwerk_.vorbehaltWaehlen(s, x);
    }
    std::optional<engine::Ansage> ansageWaehlen(const engine::Spiel& s, engine::Sitz x) override {
        return regelwerk_.ansageWaehlen(s, x);
    }

private:
    players::Regelwerk regelwerk_;
    std::vector<Stellung>& stellungen_;
};

const std::vector<Stellung>& stellungen() {
    static const std::vector<Stellung> alle = [] {
        std::vector<Stellung> v;
        testhilfe::Testtisch tisch(77);
        players::Tischwissen wissen(tisch.zufall);
        tisch.ablauf.beobachterHinzufuegen(&wissen);
        Mitschreiber m(wissen, tisch.zufall, v);
        tisch.spielen(20, m);
        return v;
    }();
    return alle;
}

// Positions with `karten` cards played.
std::vector<const Stellung*> bei(int karten) {
    std::vector<const Stellung*> v;
    for (const Stellung& s : stellungen())
        if (s.spiel.sticheGespielt * 4 + s.spiel.stich.anzahl == karten) v.push_back(&s);
    return v;
}

void SpielKopieren(benchmark::State& state) {
    const auto auswahl = bei(20);
    std::size_t i = 0;
    for (auto _ : state) {
        engine::Spiel kopie = auswahl[i]->spiel;
        benchmark::DoNotOptimize(kopie);
        i = (i + 1) % auswahl.size();
    }
}
BENCHMARK(SpielKopieren);

// Draw a deal from the view and replay the game in it (weighted or not).
void WeltZiehen(benchmark::State& state) {
    const auto auswahl = bei(static_cast<int>(state.range(0)));
    const double abweichung = state.range(1) ? 0.5 : 1.0;
    engine::SeedZufall zufall(1);
    std::size_t i = 0;
    for (auto _ : state) {
        const players::Sicht sicht = players::sichtVon(auswahl[i]->spiel, auswahl[i]->sitz);
        const auto schranken = players::schrankenAus(sicht);
        const auto z = players::zuteilungZiehen(sicht, schranken, zufall);
        if (auto w = z ? players::weltBauen(sicht, *z) : std::nullopt)
            benchmark::DoNotOptimize(players::weltNachspielen(sicht, *w, 1, abweichung, zufall));
        i = (i + 1) % auswahl.size();
    }
}
BENCHMARK(WeltZiehen)->Args({20, 0})->Args({20, 1})->Args({40, 1});

// One rule-book playout to the end from a position with that many cards played.
void Ausspielen(benchmark::State& state) {
    const auto auswahl = bei(static_cast<int>(state.range(0)));
    engine::SeedZufall zufall(1);
    std::vector<std::pair<engine::Spiel, players::Tischwissen>> welten;
    for (const Stellung* s : auswahl) {
        players::Tischwissen w(zufall);
        w.nachvollziehen(s->spiel);
        welten.emplace_back(s->spiel, w);
    }
    std::size_t i = 0;
    for (auto _ : state) {
        engine::Spiel spiel = welten[i].first;
        players::Tischwissen wissen = welten[i].second;
        benchmark::DoNotOptimize(
            players::ausspielen(spiel, wissen, zufall, auswahl[i]->sitz, std::nullopt, 0, true));
        i = (i + 1) % welten.size();
    }
}
BENCHMARK(Ausspielen)->Arg(0)->Arg(20)->Arg(40);

}  // namespace

BENCHMARK_MAIN();

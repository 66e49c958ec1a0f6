// Time per card decision of the rule book: positions collected from seeded games,
// each decided again in the loop. Run with --benchmark_repetitions=9 for the median.
#include <benchmark/benchmark.h>

#include <vector>

#include "Testtisch.h"
#include "players/Regelwerk.h"
#include "players/Tischwissen.h"

namespace {

struct Stellung {
    engine::Spiel spiel;
    players::Tischwissen wissen;
    engine::Sitz sitz;
};

// Records every position at which a seat chooses a card.
class Mitschreiber final : public engine::Entscheider {
public:
    Mitschreiber(players::Tischwissen& wissen, players::Regelwerk& regelwerk, std::vector<Stellung>& stellungen)
        : wissen_(wissen), regelwerk_(regelwerk), stellungen_(stellungen) {}
    int karteWaehlen(const engine::Spiel& spiel, engine::Sitz sitz) override {
        stellungen_.push_back({spiel, wissen_, sitz});
        return regelwerk_.karteWaehlen(spiel, sitz);
    }
    engine::Vorbehalt vorbehaltWaehlen(const engine::Spiel&, engine::Sitz) override { return {}; }
    std::optional<engine::Ansage> ansageWaehlen(const engine::Spiel&, engine::Sitz) override { return {}; }

private:
    players::Tischwissen& wissen_;
    players::Regelwerk& regelwerk_;
    std::vector<Stellung>& stellungen_;
};

// The knowledge copied into each position keeps drawing from this source.
engine::SeedZufall& wissensZufall() {
    static engine::SeedZufall zufall(5);
    return zufall;
}

std::vector<Stellung>& stellungen() {
    static std::vector<Stellung> alle = [] {
        std::vector<Stellung> v;
        testhilfe::Testtisch tisch(900);
        players::Tischwissen wissen(wissensZufall());
        tisch.ablauf.beobachterHinzufuegen(&wissen);
        players::Regelwerk regelwerk(wissen, wissensZufall());
        Mitschreiber mitschreiber(wissen, regelwerk, v);
        tisch.spielen(50, mitschreiber);
        return v;
    }();
    return alle;
}

void KarteWaehlen(benchmark::State& state) {
    engine::SeedZufall& zufall = wissensZufall();
    auto& alle = stellungen();
    std::size_t i = 0;
    for (auto _ : state) {
        Stellung& s = alle[i];
        players::Regelwerk regelwerk(s.wissen, zufall);
        benchmark::DoNotOptimize(regelwerk.karteWaehlen(s.spiel, s.sitz));
        i = (i + 1) % alle.size();
    }
    state.counters["Stellungen"] = static_cast<double>(alle.size());
}
BENCHMARK(KarteWaehlen);

}  // namespace

BENCHMARK_MAIN();

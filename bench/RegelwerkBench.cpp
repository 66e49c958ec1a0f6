// Time per decision of the rule book (card, reservation, announcement): positions
// collected from seeded games, each decided again in the loop. Run with
// --benchmark_repetitions=9 for the median.
#include <benchmark/benchmark.h>

#include <array>
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

enum Art { Karte, Vorbehalt, Ansage };

// Records every position at which a seat decides, by kind of decision.
class Mitschreiber final : public engine::Entscheider {
public:
    Mitschreiber(players::Tischwissen& wissen, players::Regelwerk& regelwerk,
                 std::array<std::vector<Stellung>, 3>& stellungen)
        : wissen_(wissen), regelwerk_(regelwerk), stellungen_(stellungen) {}
    int karteWaehlen(const engine::Spiel& spiel, engine::Sitz sitz) override {
        stellungen_[Karte].push_back({spiel, wissen_, sitz});
        return regelwerk_.karteWaehlen(spiel, sitz);
    }
    engine::Vorbehalt vorbehaltWaehlen(const engine::Spiel& spiel, engine::Sitz sitz) override {
        stellungen_[Vorbehalt].push_back({spiel, wissen_, sitz});
        return regelwerk_.vorbehaltWaehlen(spiel, sitz);
    }
    std::optional<engine::Ansage> ansageWaehlen(const engine::Spiel& spiel, engine::Sitz sitz) override {
        stellungen_[Ansage].push_back({spiel, wissen_, sitz});
        return regelwerk_.ansageWaehlen(spiel, sitz);
    }

private:
    players::Tischwissen& wissen_;
    players::Regelwerk& regelwerk_;
    std::array<std::vector<Stellung>, 3>& stellungen_;
};

// The knowledge copied into each position keeps drawing from this source.
engine::SeedZufall& wissensZufall() {
    static engine::SeedZufall zufall(5);
    return zufall;
}

std::vector<Stellung>& stellungen(Art art) {
    static std::array<std::vector<Stellung>, 3> alle = [] {
        std::array<std::vector<Stellung>, 3> v;
        testhilfe::Testtisch tisch(900);
        players::Tischwissen wissen(wissensZufall());
        tisch.ablauf.beobachterHinzufuegen(&wissen);
        players::Regelwerk regelwerk(wissen, wissensZufall());
        Mitschreiber mitschreiber(wissen, regelwerk, v);
        tisch.spielen(50, mitschreiber);
        return v;
    }();
    return alle[art];
}

template <class F>
void entscheiden(benchmark::State& state, Art art, F entscheidung) {
    engine::SeedZufall& zufall = wissensZufall();
    auto& alle = stellungen(art);
    std::size_t i = 0;
    for (auto _ : state) {
        Stellung& s = alle[i];
        players::Regelwerk regelwerk(s.wissen, zufall);
        benchmark::DoNotOptimize(entscheidung(regelwerk, s));
        i = (i + 1) % alle.size();
    }
    state.counters["Stellungen"] = static_cast<double>(alle.size());
}

void KarteWaehlen(benchmark::State& state) {
    entscheiden(state, Karte, [](players::Regelwerk& r, Stellung& s) { return r.karteWaehlen(s.spiel, s.sitz); });
}
BENCHMARK(KarteWaehlen);

// SoloPruefen over all eight kinds, the silent solo and the Hochzeit kind.
void VorbehaltWaehlen(benchmark::State& state) {
    entscheiden(state, Vorbehalt,
                [](players::Regelwerk& r, Stellung& s) { return r.vorbehaltWaehlen(s.spiel, s.sitz).spieltyp; });
}
BENCHMARK(VorbehaltWaehlen);

// KontraPruefen and the limit rule before a card.
void AnsageWaehlen(benchmark::State& state) {
    entscheiden(state, Ansage,
                [](players::Regelwerk& r, Stellung& s) { return r.ansageWaehlen(s.spiel, s.sitz).has_value(); });
}
BENCHMARK(AnsageWaehlen);

}  // namespace

BENCHMARK_MAIN();

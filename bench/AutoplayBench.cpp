#include <benchmark/benchmark.h>

#include <ostream>
#include <streambuf>

#include "engine/Selbstspiel.h"
#include "engine/Zufall.h"
#include "players/EinfacheSpieler.h"
#ifdef TRUMPONA_BENCH_APP
#include "Autoplay.h"
#endif

namespace {

// The cycle alone: lowest legal card at every seat, no observers, no messages.
void Spielablauf(benchmark::State& state) {
    const int spiele = static_cast<int>(state.range(0));
    for (auto _ : state) {
        engine::Spiel spiel;
        for (const engine::Sitz s : engine::alleSitze) spiel.steuerung[s] = engine::Steuerung::Computer;
        engine::SeedZufall zufall(1);
        engine::Spielablauf ablauf(spiel, zufall);
        ablauf.neuePartie();
        players::KleinsteKarte spieler;
        engine::Selbstspiel(ablauf, engine::ProSitz<engine::Entscheider*>(&spieler)).spielen(spiele);
        benchmark::DoNotOptimize(spiel.partie.punkte);
    }
    state.SetItemsProcessed(state.iterations() * spiele);
    state.SetLabel("Spiele");
}
BENCHMARK(Spielablauf)->Arg(1000)->Unit(benchmark::kMillisecond);

#ifdef TRUMPONA_BENCH_APP
struct Verwerfen final : std::streambuf {
    int overflow(int c) override { return c; }
    std::streamsize xsputn(const char*, std::streamsize n) override { return n; }
};

// What `trumpona --autoplay N --seed 1 --json -` does: referee and one JSON line per game.
void AutoplayMitJson(benchmark::State& state) {
    Verwerfen puffer;
    std::ostream nichts(&puffer);
    app::Autoplayauftrag auftrag;
    auftrag.spiele = static_cast<int>(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(app::autoplay(auftrag, &nichts, nichts));
    state.SetItemsProcessed(state.iterations() * auftrag.spiele);
    state.SetLabel("Spiele");
}
BENCHMARK(AutoplayMitJson)->Arg(1000)->Unit(benchmark::kMillisecond);
#endif

}  // namespace

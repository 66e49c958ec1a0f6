#include "Zufall.h"

namespace engine {

int Zufallsquelle::ganzzahl(int n) {
    const int r = static_cast<int>(rnd() * n);
    return r < n ? r : n - 1;
}

namespace {
std::uint64_t splitmix64(std::uint64_t& x) {
    std::uint64_t z = (x += 0x9e3779b97f4a7c15ULL);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
    return z ^ (z >> 31);
}
constexpr std::uint64_t rotl(std::uint64_t x, int k) { return (x << k) | (x >> (64 - k)); }
}  // namespace

SeedZufall::SeedZufall(std::uint64_t seed) {
    for (auto& s : s_) s = splitmix64(seed);
}

std::uint64_t SeedZufall::naechste64() {
    const std::uint64_t ergebnis = rotl(s_[1] * 5, 7) * 9;
    const std::uint64_t t = s_[1] << 17;
    s_[2] ^= s_[0];
    s_[3] ^= s_[1];
    s_[1] ^= s_[2];
    s_[0] ^= s_[3];
    s_[2] ^= t;
    s_[3] = rotl(s_[3], 45);
    return ergebnis;
}

double SeedZufall::rnd() {
    // The top 53 bits give every double in [0, 1) on the 2^-53 grid.
    return static_cast<double>(naechste64() >> 11) * 0x1.0p-53;
}

}  // namespace engine

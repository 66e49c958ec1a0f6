#pragma once
// The one source of randomness: numbers in [0, 1) like BASIC's Rnd, injectable so
// tests and network guests can replay exactly.
#include <cstdint>

namespace engine {

class Zufallsquelle {
public:
    virtual ~Zufallsquelle() = default;
    // Next number in [0, 1).
    virtual double rnd() = 0;
    // Integer part of rnd() * n, so 0..n-1.
    int ganzzahl(int n);
};

// xoshiro256** seeded through splitmix64: the same seed gives the same numbers
// on every platform and compiler.
class SeedZufall final : public Zufallsquelle {
public:
    explicit SeedZufall(std::uint64_t seed);
    double rnd() override;
    std::uint64_t naechste64();

private:
    std::uint64_t s_[4];
};

}  // namespace engine

#pragma once
// Set bits counted in a few steps: the plain x86-64 target has no instruction for it, and
// the library call behind std::popcount costs more than the whole count.
#include <cstdint>

namespace players {

inline int anzahlBits(std::uint64_t x) {
    x = x - ((x >> 1) & 0x5555555555555555u);
    x = (x & 0x3333333333333333u) + ((x >> 2) & 0x3333333333333333u);
    x = (x + (x >> 4)) & 0x0f0f0f0f0f0f0f0fu;
    return static_cast<int>((x * 0x0101010101010101u) >> 56);
}

}  // namespace players

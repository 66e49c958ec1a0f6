#pragma once
// Seats 1..4 in playing order; seat 1 is the person at this machine.
#include <array>
#include <cassert>
#include <compare>
#include <optional>

namespace engine {

class Sitz {
public:
    constexpr explicit Sitz(int nr) : nr_(nr) { assert(nr >= 1 && nr <= 4); }
    constexpr int nr() const { return nr_; }
    // The seat after this one in playing order (4 wraps to 1).
    constexpr Sitz naechster() const { return Sitz(nr_ % 4 + 1); }
    // The seat n places later in playing order.
    constexpr Sitz plus(int n) const { return Sitz((nr_ - 1 + n % 4 + 4) % 4 + 1); }
    constexpr auto operator<=>(const Sitz&) const = default;

private:
    int nr_;
};

inline constexpr std::array<Sitz, 4> alleSitze{Sitz(1), Sitz(2), Sitz(3), Sitz(4)};

// 0 stands for "no seat" in the file and wire formats.
constexpr int nrOderNull(std::optional<Sitz> s) { return s ? s->nr() : 0; }
constexpr std::optional<Sitz> sitzOderNichts(int nr) {
    return nr >= 1 && nr <= 4 ? std::optional<Sitz>(Sitz(nr)) : std::nullopt;
}

// An array indexed by seat, so a deck position or a suit can never be used by mistake.
template <class T>
class ProSitz {
public:
    constexpr ProSitz() = default;
    constexpr explicit ProSitz(const T& wert) { werte_.fill(wert); }
    constexpr T& operator[](Sitz s) { return werte_[static_cast<std::size_t>(s.nr() - 1)]; }
    constexpr const T& operator[](Sitz s) const { return werte_[static_cast<std::size_t>(s.nr() - 1)]; }
    constexpr void fill(const T& wert) { werte_.fill(wert); }
    constexpr auto begin() { return werte_.begin(); }
    constexpr auto end() { return werte_.end(); }
    constexpr auto begin() const { return werte_.begin(); }
    constexpr auto end() const { return werte_.end(); }
    constexpr bool operator==(const ProSitz&) const = default;

private:
    std::array<T, 4> werte_{};
};

}  // namespace engine

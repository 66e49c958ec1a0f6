#pragma once
// Deck positions of one hand, held without the heap: a seat never holds more than
// twelve cards, and the rule book builds such lists at every decision.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace players {

class Kartenliste {
public:
    static constexpr std::size_t Kapazitaet = 12;
    using value_type = int;
    using const_iterator = const int*;

    // A card beyond a hand's size is dropped rather than written past the end.
    void push_back(int pos) {
        if (n_ >= Kapazitaet) return;
        karten_[n_++] = pos;
        maske_ |= bit(pos);
    }
    // Keeps the cards that pass the test, in their order.
    template <class Test>
    void behalten(Test&& test) {
        // Without a branch on the test: it splits a hand in no pattern a processor could guess.
        std::size_t n = 0;
        maske_ = 0;
        for (std::size_t i = 0; i < n_; ++i) {
            const int pos = karten_[i];
            const bool ja = test(pos);
            karten_[n] = pos;
            n += ja;
            maske_ |= ja ? bit(pos) : 0;
        }
        n_ = n;
    }
    // Reorders the cards; the set stays what it was.
    template <class Vergleich>
    void sortieren(Vergleich&& vergleich) {
        std::sort(karten_.begin(), karten_.begin() + static_cast<std::ptrdiff_t>(n_), vergleich);
    }
    template <class Vergleich>
    void stabilSortieren(Vergleich&& vergleich) {
        std::stable_sort(karten_.begin(), karten_.begin() + static_cast<std::ptrdiff_t>(n_), vergleich);
    }

    std::size_t size() const { return n_; }
    bool empty() const { return n_ == 0; }
    const int* begin() const { return karten_.data(); }
    const int* end() const { return karten_.data() + n_; }
    int operator[](std::size_t i) const { return karten_[i]; }
    int front() const { return karten_[0]; }
    int back() const { return karten_[n_ - 1]; }
    bool enthaelt(int pos) const { return (maske_ & bit(pos)) != 0; }

    bool operator==(const Kartenliste& o) const { return std::equal(begin(), end(), o.begin(), o.end()); }

private:
    // Deck positions are 1..48; anything else is never held.
    static std::uint64_t bit(int pos) { return pos >= 0 && pos < 64 ? std::uint64_t{1} << pos : 0; }

    std::array<int, Kapazitaet> karten_{};  // the first n_ are held
    std::size_t n_ = 0;
    std::uint64_t maske_ = 0;  // the cards held, by position: membership without a search
};

// The first card passing the test with the smallest key, 0 if none. Each card's key is
// worked out once: some keys rank a card by several of its properties.
template <class Test, class Schluessel>
int kleinsteNach(const Kartenliste& karten, Test&& test, Schluessel&& schluessel) {
    int beste = 0;
    std::invoke_result_t<Schluessel&, int> besterSchluessel{};
    for (int p : karten) {
        if (!test(p)) continue;
        auto s = schluessel(p);
        if (beste == 0 || s < besterSchluessel) {
            beste = p;
            besterSchluessel = std::move(s);
        }
    }
    return beste;
}

}  // namespace players

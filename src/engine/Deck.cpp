#include "Deck.h"

namespace engine {

void Deck::attributeBerechnen() {
    for (auto& k : positionen_) {
        if (k.code == 0) {
            k.farbe = k.wert = k.augen = k.staerke = 0;
            continue;
        }
        if (istJoker(k.code)) {
            k.farbe = Karo;
            k.wert = WertJoker;
            k.augen = 0;
            continue;
        }
        const int rang = rangVonCode(k.code);
        k.farbe = farbeVonCode(k.code);
        k.wert = wertVonRang(rang);
        k.augen = augenVonRang(rang);
    }
}

int Deck::anzahl(Sitz s, int code) const {
    int n = 0;
    for (int p = erstePosition(s); p <= letztePosition(s); ++p) n += (*this)[p].code == code;
    return n;
}

void Deck::staerkenBerechnen(int spieltyp) {
    for (auto& k : positionen_) {
        if (k.code == 0) continue;
        const Rangierung r = rangierung(k.code, spieltyp);
        k.farbe = r.farbe;
        k.staerke = r.staerke;
    }
}

namespace {

// Types 1, 3, 4 and (one factor of 4 lower) 2.
constexpr Rangierung farbspiel(int farbe, int rang, int spieltyp) {
    const int stufe = spieltyp == HerzSolo ? 4 : 1;
    if (farbe == Herz && rang == Zehn) return {spieltyp, StaerkeDolle};
    if (rang == Bube) {
        constexpr std::array<int, 5> buben{0, 256, 1024, 4096, 16384};
        return {spieltyp, buben[static_cast<std::size_t>(farbe)] / stufe};
    }
    if (rang == Dame) {
        constexpr std::array<int, 5> damen{0, 65536, 262144, 1048576, 4194304};
        return {spieltyp, damen[static_cast<std::size_t>(farbe)] / stufe};
    }
    constexpr std::array<int, 7> fehl{0, 1, 0, 0, 4, 16, 32};
    int staerke = fehl[static_cast<std::size_t>(rang)];
    if (farbe == Herz && rang == As) staerke = 16;
    return {farbe == spieltyp ? spieltyp : farbe, staerke};
}

constexpr Rangierung rangierungRechnen(int code, int spieltyp) {
    if (istJoker(code)) {
        return istFarbspiel(spieltyp) ? Rangierung{spieltyp, StaerkeJoker} : Rangierung{Karo, 1};
    }
    const int farbe = farbeVonCode(code);
    const int rang = rangVonCode(code);
    const auto idx = static_cast<std::size_t>(rang);
    const auto fidx = static_cast<std::size_t>(farbe);
    switch (spieltyp) {
        case BubenSolo:
        case DamenSolo: {
            const int trumpfRang = spieltyp == BubenSolo ? Bube : Dame;
            if (rang == trumpfRang) {
                constexpr std::array<int, 5> trumpf{0, 1, 4, 16, 64};
                return {spieltyp, trumpf[fidx]};
            }
            // Neun 1, the other figure 4, König 16, Zehn 64, As 256.
            constexpr std::array<int, 7> fehl{0, 1, 4, 4, 16, 64, 256};
            return {farbe, fehl[idx]};
        }
        case DamenBubenSolo: {
            if (rang == Bube) {
                constexpr std::array<int, 5> buben{0, 1, 4, 16, 64};
                return {spieltyp, buben[fidx]};
            }
            if (rang == Dame) {
                constexpr std::array<int, 5> damen{0, 256, 1024, 4096, 16384};
                return {spieltyp, damen[fidx]};
            }
            constexpr std::array<int, 7> fehl{0, 1, 0, 0, 4, 16, 64};
            return {farbe, fehl[idx]};
        }
        case SoloOhneTrumpf: {
            constexpr std::array<int, 7> fehl{0, 1, 4, 16, 64, 256, 1024};
            return {farbe, fehl[idx]};
        }
        default:
            return farbspiel(farbe, rang, spieltyp);
    }
}

}  // namespace

namespace detail {

Rangierung rangierungBerechnen(int code, int spieltyp) { return rangierungRechnen(code, spieltyp); }

constinit const std::array<std::array<Rangierung, 9>, 26> rangtabelle = [] {
    static_assert(Normalspiel == 1 && SoloOhneTrumpf == 8);
    std::array<std::array<Rangierung, 9>, 26> t{};
    for (int c = 1; c <= 25; ++c)
        for (int typ = Normalspiel; typ <= SoloOhneTrumpf; ++typ)
            t[static_cast<std::size_t>(c)][static_cast<std::size_t>(typ)] = rangierungRechnen(c, typ);
    return t;
}();

}  // namespace detail

}  // namespace engine

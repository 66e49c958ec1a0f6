#pragma once
// The small helpers of the frozen follow procedures ("regelwerk1"), as they stood.
#include <utility>

#include "Regelwerk1.h"

namespace players::regelwerk1 {

namespace hilfe {

// The discard choices as table entries.
inline int kleinste(const Lage& l) { return l.kleinsteAbwurf(); }
inline int hoechste(const Lage& l) { return l.hoechsteAbwurf(); }

inline bool wFreund(const Lage& l) { return l.gewinner && l.freund(*l.gewinner); }
inline bool wFeind(const Lage& l) { return l.gewinner && !l.freund(*l.gewinner); }
inline int gewinnerStaerke(const Lage& l) { return l.karte(l.gewinnerKarte).staerke; }
inline bool hoehererTrumpfDraussen(const Lage& l) { return l.hoehereDraussen(l.trumpf, gewinnerStaerke(l)); }
inline bool hatFarbkarte(const Lage& l) {
    for (int p : l.erlaubt)
        if (!l.istTrumpf(p)) return true;
    return false;
}
// A trump that takes the trick and brings Augen home: the trump suit's As or Zehn.
inline int werthoherSchlagenderTrumpf(const Lage& l) {
    int beste = 0;
    for (int p : l.erlaubt)
        if (l.istTrumpf(p) && l.schlaegt(p) && l.istZaehler(p) && !l.istFigur(p) && !l.istDolle(p) && !l.istSchwein(p) &&
            (beste == 0 || l.augen(p) > l.augen(beste)))
            beste = p;
    return beste;
}
// Cheapest legal card (by strength, then Augen) among those passing `passt`.
template <class F>
int billigste(const Lage& l, F passt) {
    int beste = 0;
    for (int p : l.erlaubt)
        if (passt(p) && (beste == 0 || std::make_pair(l.staerke(p), l.augen(p)) <
                                           std::make_pair(l.staerke(beste), l.augen(beste))))
            beste = p;
    return beste;
}
// The own card of most Augen that leaves the trick to its present winner.
template <class F>
int hoheNichtSchlagende(const Lage& l, F passt) {
    int beste = 0;
    for (int p : l.erlaubt)
        if (passt(p) && !l.schlaegt(p) && (beste == 0 || l.augen(p) > l.augen(beste))) beste = p;
    return beste;
}

}  // namespace hilfe

}  // namespace players::regelwerk1

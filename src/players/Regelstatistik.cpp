#include "Regelstatistik.h"

#include <cstdio>

namespace players {

void Regelstatistik::melden(const Meldung& m) {
    switch (m.art) {
        case Meldungsart::Entscheidung: ++entscheidungen; break;
        case Meldungsart::Rueckfall: ++rueckfaelle; break;
        case Meldungsart::Regel: ++regeln[m.verfahren + ":" + m.code]; break;
        case Meldungsart::Hinweis: break;
    }
}

std::string Regelstatistik::bericht() const {
    std::string s;
    char zeile[160];
    for (const auto& [regel, n] : regeln) {
        std::snprintf(zeile, sizeof zeile, "%-40s %10ld\n", regel.c_str(), n);
        s += zeile;
    }
    std::snprintf(zeile, sizeof zeile, "Kartenentscheidungen %ld, Rückfall %ld (%.3f %%)\n", entscheidungen, rueckfaelle,
                  100.0 * rueckfallAnteil());
    s += zeile;
    return s;
}

}  // namespace players

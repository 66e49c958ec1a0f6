#include "Regeltabelle.h"

#include <algorithm>

namespace players {

bool istErlaubt(const Lage& lage, int pos) {
    return pos != 0 && std::find(lage.erlaubt.begin(), lage.erlaubt.end(), pos) != lage.erlaubt.end();
}

int regelnAnwenden(std::span<const Regel> regeln, const Lage& lage, std::string_view verfahren) {
    for (const Regel& r : regeln) {
        if (!r.bedingung(lage)) continue;
        const int karte = r.wahl(lage);
        if (!istErlaubt(lage, karte)) continue;
        lage.melder.regel(verfahren, r.code, r.text);
        return karte;
    }
    return 0;
}

}  // namespace players

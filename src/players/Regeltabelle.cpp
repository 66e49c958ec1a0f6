#include "Regeltabelle.h"

#include <algorithm>

namespace players {

bool istErlaubt(const Lage& lage, int pos) {
    return pos != 0 && lage.erlaubt.enthaelt(pos);
}

int regelnAnwenden(std::span<const Regel> regeln, const Lage& lage, std::string_view verfahren) {
    return regelnAnwenden<Lage>(regeln, lage, verfahren);
}

}  // namespace players

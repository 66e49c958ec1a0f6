#include "Tonausgabe.h"

#include "sound/Klangausgabe.h"

namespace settings {

namespace {

std::function<bool()>& pruefung() {
    static std::function<bool()> p;
    return p;
}

}  // namespace

bool tonVerfuegbar() {
    if (pruefung()) return pruefung()();
    return sound::klangausgabeVorhanden();
}

void setzeTonpruefung(std::function<bool()> p) { pruefung() = std::move(p); }

Lesekontext startLesekontext() { return Lesekontext{tonVerfuegbar(), false}; }

}  // namespace settings

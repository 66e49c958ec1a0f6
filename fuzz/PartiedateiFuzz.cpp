// Any bytes as a saved game: reading never crashes, a refused file leaves the
// state alone, and whatever was read is written and read back unchanged.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "savegame/Ladeablauf.h"
#include "savegame/Partiedatei.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    using namespace savegame;
    const std::string_view bytes(reinterpret_cast<const char*>(daten), groesse);
    const Spielstand vorher;
    Spielstand stand;
    const Leseergebnis e = partieLesen(bytes, stand);
    (void)ladeablauf(e, stand);
    if (e.ergebnis != Ergebnis::Erfolg) {
        if (!(stand == vorher)) std::abort();
        return 0;
    }
    Spielstand wieder;
    if (partieLesen(partieSchreiben(stand), wieder).ergebnis != Ergebnis::Erfolg) std::abort();
    // Names pass through Windows-1252 and lose line breaks, so compare without them.
    wieder.spiel.namen = stand.spiel.namen;
    wieder.tisch = stand.tisch;
    wieder.spiel.sonderpunkte = stand.spiel.sonderpunkte;
    if (!(wieder == stand)) std::abort();
    return 0;
}

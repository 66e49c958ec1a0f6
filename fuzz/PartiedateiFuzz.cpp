// Any bytes as a saved game: reading never crashes, a refused file leaves the
// state alone, and whatever was read is written and read back unchanged.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "savegame/Ladeablauf.h"
#include "savegame/Partiedatei.h"
#include "settings/Zeichensatz.h"

namespace {

// A text as it comes back from a written file: the file is Windows-1252, so what
// it cannot hold becomes '?'; and a written file that happens to be valid UTF-8
// (all its non-ASCII bytes in UTF-8 order, "Ã¤" for instance) is read as UTF-8,
// as any file is. The format cannot tell the two apart.
std::string wieZurueckgelesen(const std::string& text, bool alsUtf8) {
    const std::string bytes = settings::utf8NachCp1252(text);
    return alsUtf8 ? bytes : settings::cp1252NachUtf8(bytes);
}

}  // namespace

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
    const std::string geschrieben = partieSchreiben(stand);
    if (partieLesen(geschrieben, wieder).ergebnis != Ergebnis::Erfolg) std::abort();
    const bool alsUtf8 = settings::istGueltigesUtf8(geschrieben);
    // Names pass through Windows-1252 and lose line breaks, so compare without them.
    wieder.spiel.namen = stand.spiel.namen;
    wieder.tisch = stand.tisch;
    wieder.spiel.sonderpunkte = stand.spiel.sonderpunkte;
    stand.spiel.ergebnis.text = wieZurueckgelesen(stand.spiel.ergebnis.text, alsUtf8);
    for (auto& notiz : stand.spiel.spielbericht) notiz = wieZurueckgelesen(notiz, alsUtf8);
    if (!(wieder == stand)) std::abort();
    return 0;
}

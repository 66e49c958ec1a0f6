// Any bytes as an options file: reading, importing and rewriting never crash, a
// rewrite keeps every line, what we write reads back, and after the rewrite the
// file in memory answers as the written file does.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "settings/Einstellungen.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    using namespace settings;
    const std::string_view bytes(reinterpret_cast<const char*>(daten), groesse);
    Profildatei datei = Profildatei::ausBytes(bytes);
    const Einstellungen gelesen = ausProfil(datei, Einstellungen{}, Lesekontext{});
    (void)importieren(datei, gelesen, Lesekontext{});

    const std::string einmal = datei.bytes();
    const Profildatei wieder = Profildatei::ausBytes(einmal);
    if (wieder.zeilen().size() != datei.zeilen().size()) std::abort();
    bool nurAscii = true;
    for (const char c : bytes) nurAscii = nurAscii && static_cast<unsigned char>(c) < 0x80;
    if (nurAscii && wieder.bytes() != einmal) std::abort();

    inProfil(datei, gelesen);
    Einstellungen zurueck = ausProfil(Profildatei::ausBytes(datei.bytes()), Einstellungen{}, Lesekontext{});
    Einstellungen imSpeicher = ausProfil(datei, Einstellungen{}, Lesekontext{});
    Einstellungen erwartet = gelesen;
    // names lose blanks at their ends and whatever Windows-1252 cannot hold
    zurueck.namen = erwartet.namen = imSpeicher.namen = {};
    if (!(imSpeicher == zurueck)) std::abort();
    zurueck.regeln.solo = erwartet.regeln.solo = 0;
    if (!(zurueck == erwartet)) std::abort();
    return 0;
}

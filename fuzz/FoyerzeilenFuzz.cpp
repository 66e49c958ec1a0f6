// Any bytes from the chat server, in pieces: the foyer client never crashes,
// every line it sends is one line ending in a lone CR, and its lists stay bounded.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "foyer/Foyersitzung.h"

namespace {

void pruefen(foyer::Foyersitzung& s) {
    for (const auto& zeile : s.ausgangNehmen()) {
        if (zeile.empty() || zeile.back() != '\r' || zeile.size() > foyer::MaxZeile + 1) std::abort();
        if (zeile.find_first_of(std::string_view("\r\n\0", 3)) != zeile.size() - 1) std::abort();
    }
    if (s.spieler().size() > foyer::MaxMitglieder || s.tische().size() > foyer::MaxTische + 1) std::abort();
    for (const auto& t : s.tische()) {
        if (t.angebot.port < 1 || t.angebot.port > 65535 || t.angebot.frei > 3) std::abort();
        if (foyer::tinfoLesen(foyer::tinfoText(t.angebot)) != t.angebot) std::abort();
    }
    s.ereignisseNehmen();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    if (groesse == 0) return 0;
    const std::size_t stueck = 1 + daten[0] % 64;  // how the bytes are cut into reads
    const std::string_view bytes(reinterpret_cast<const char*>(daten + 1), groesse - 1);
    foyer::Foyersitzung s;
    s.anmelden("Anna", "ABCDE");
    s.setzeNichtErreichbar((daten[0] & 0x40) != 0);
    std::int64_t jetzt = 0;
    for (std::size_t pos = 0; pos < bytes.size(); pos += stueck) {
        s.empfangen(bytes.substr(pos, stueck), jetzt += 700);
        if (s.stand() == foyer::Anmeldestand::Angemeldet && !s.eigenerTisch()) s.tischEroeffnen("127.0.0.1", 7001, 3, "r");
        s.tick();
        pruefen(s);
    }
    s.foyerChatSenden(bytes.substr(0, 600));
    s.freiePlaetzeSetzen(1);
    s.tischSchliessen();
    pruefen(s);
    return 0;
}

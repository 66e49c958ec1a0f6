#pragma once
// The saved-game format ".dkp": writer of version 26, reader of versions 20..26.
// Pure C++ on bytes; Partiespeicher.h puts it on disk.
#include <string>
#include <string_view>
#include <vector>

#include "Spielstand.h"

namespace savegame {

inline constexpr int Schreibversion = 26;
inline constexpr int AeltesteLesbareVersion = 20;

enum class Ergebnis { Erfolg, KeineSpieldatei, Fehlgeschlagen };

struct Leseergebnis {
    Ergebnis ergebnis = Ergebnis::KeineSpieldatei;
    int version = 0;
    bool veraltet = false;  // "Diese Datei ist veraltet." is to be shown
};

std::string partieSchreiben(const Spielstand& stand);

// Reads into a copy of `ziel` (so groups an older version lacks keep the values
// `ziel` has) and hands it over only on success; on failure `ziel` is unchanged.
Leseergebnis partieLesen(std::string_view bytes, Spielstand& ziel);

}  // namespace savegame

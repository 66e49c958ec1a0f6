#pragma once
// Saved games on disk: written through a temporary file and a rename, so a crash
// or a full disk never leaves half a file; the folder last used is remembered.
#include <QString>

#include "Partiedatei.h"

namespace settings {
class Benutzerspeicher;
}

namespace savegame {

bool PartieSpeichern(const QString& pfad, const Spielstand& stand);
// A file that cannot be opened counts as not a game file.
Leseergebnis PartieLaden(const QString& pfad, Spielstand& ziel);

// The folder of the last file saved or loaded, for the next file dialog.
QString letzterOrdner(const settings::Benutzerspeicher& speicher);
void ordnerMerken(settings::Benutzerspeicher& speicher, const QString& dateipfad);

}  // namespace savegame

#include "Partiespeicher.h"

#include <QFileInfo>

#include "settings/Benutzerspeicher.h"
#include "settings/Optionsdatei.h"

namespace savegame {

namespace {
const QString OrdnerSchluessel = QStringLiteral("Partieordner");
}

bool PartieSpeichern(const QString& pfad, const Spielstand& stand) {
    return settings::atomarSchreiben(pfad, partieSchreiben(stand));
}

Leseergebnis PartieLaden(const QString& pfad, Spielstand& ziel) {
    const auto bytes = settings::dateiBytes(pfad);
    if (!bytes) return Leseergebnis{};
    return partieLesen(*bytes, ziel);
}

QString letzterOrdner(const settings::Benutzerspeicher& speicher) { return speicher.text(OrdnerSchluessel); }

void ordnerMerken(settings::Benutzerspeicher& speicher, const QString& dateipfad) {
    speicher.setzeText(OrdnerSchluessel, QFileInfo(dateipfad).absolutePath());
}

}  // namespace savegame

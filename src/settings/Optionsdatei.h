#pragma once
// The options file "rupalive.ini" and its ".dki" copies on disk. The file lies in
// the per-user configuration folder; writes go through a temporary file and a
// rename, so a crash never leaves half a file.
#include <QString>
#include <optional>
#include <string>

#include "Einstellungen.h"

namespace settings {

inline constexpr const char* Optionsdateiname = "rupalive.ini";

// <XDG_CONFIG_HOME or its platform equivalent>/Trumpona, the same folder that
// QStandardPaths::AppConfigLocation names for the application "Trumpona".
QString konfigurationsordner();
QString optionsdateiPfad();

// The bytes of a file; nothing when it cannot be read. Larger files than any
// settings file could be are cut, so a wrong choice in a dialog costs no memory.
std::optional<std::string> dateiBytes(const QString& pfad);
bool atomarSchreiben(const QString& pfad, const std::string& bytes);

Einstellungen EinstellungenLesen(const QString& pfad, const Lesekontext& kontext);
// Keeps what else the file holds (comments, unknown keys, their order).
bool EinstellungenSchreiben(const QString& pfad, const Einstellungen& e,
                            std::string_view programm = Programmkennung);
Import EinstellungenImportieren(const QString& pfad, const Einstellungen& aktuell, const Lesekontext& kontext,
                                std::string_view programm = Programmkennung);

}  // namespace settings

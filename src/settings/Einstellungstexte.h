#pragma once
// The German texts of the settings store.
#include <string_view>

namespace settings::texte {

inline constexpr std::string_view KeineIniDatei = "Keine gültige Doppelkopf-INI-Datei!";
inline constexpr std::string_view IniVeraltet = "Keine gültige Doppelkopf-INI-Datei oder Datei veraltet! ";
inline constexpr std::string_view ResetFrage =
    "Möchten Sie alle Einstellungen zurücksetzen?\n"
    "Wenn Sie mit Ja antworten, wird nach dem Reset das Programm beendet und muß neu gestartet werden!";
inline constexpr std::string_view Aufloesungswarnung =
    "Wir empfehlen eine Bildschirmauflösung von mindestens800*600 Punkten!";

// Export and import dialogs.
inline constexpr std::string_view ExportTitel = "Einstellungen speichern";
inline constexpr std::string_view ImportTitel = "Einstellungen einlesen";
inline constexpr std::string_view DateiFilter = "Doppelkopf-INI-Datei (*.dki)|*.dki|Alle Dateien(*.*)|*.*";
inline constexpr std::string_view DateiEndung = "dki";

}  // namespace settings::texte

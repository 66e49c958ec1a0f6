#pragma once
// The German texts of saving and loading a Partie.
#include <string_view>

namespace savegame::texte {

inline constexpr std::string_view Kennung = "RUPA-PARTIE";
inline constexpr std::string_view Veraltet = "Diese Datei ist veraltet.";
inline constexpr std::string_view Beschaedigt = "Keine gültige Doppelkopf-Datei oder die Datei ist beschädigt!";
inline constexpr std::string_view NeuePartie =
    "Es wurde keine gültige Partie ausgewählt.\nEs wird eine neue Partie gestartet.";
inline constexpr std::string_view SticheAnsehen =
    "Das Spiel wurde bis zu Ende gespielt. Möchten Sie sich die Stiche vor dem Start des nächsten Spiels ansehen?";

// Menu entries and file dialogs.
inline constexpr std::string_view MenueSpeichern = "Partie &speichern unter...";
inline constexpr std::string_view MenueLaden = "Partie &laden...";
inline constexpr std::string_view SpeichernTitel = "Doppelkopf-Partie speichern";
inline constexpr std::string_view SpeichernFilter = "Doppelkopf-Partie (*.dkp)|*.dkp|Alle Dateien(*.*)|*.*";
inline constexpr std::string_view LadenTitel = "Doppelkopf-Partie laden";
inline constexpr std::string_view LadenFilter = "Doppelkopf-Partie (*.DKP)|*.dkp|Alle Dateien (*.*)|*.*";
inline constexpr std::string_view DateiEndung = "dkp";

}  // namespace savegame::texte

#pragma once
// The German texts of the network table at the window (the protocol's own texts
// are in net/Netztexte.h).

namespace table::netztext {

// Menus.
inline constexpr char NetzwerkspielMenue[] = "Netz&werkspiel...";
inline constexpr char SpielStarten[] = "Netzwerkspiel sta&rten";
inline constexpr char NetzprotokollAusblenden[] = "&Netzprotokoll ausblenden";

// The login dialog.
inline constexpr char AnmeldungTitel[] = "Netzwerkspiel";
inline constexpr char TischEroeffnen[] = "Einen Tisch &eröffnen (Sie sind der Gastgeber)";
inline constexpr char PlatzNehmen[] = "An einem Tisch &Platz nehmen";
inline constexpr char IhrName[] = "Ihr &Name:";
inline constexpr char Rechner[] = "&Rechner des Gastgebers (Name oder IP-Adresse):";
inline constexpr char Regeln[] = "&Regeln...";
inline constexpr char Ok[] = "OK";
inline constexpr char Abbrechen[] = "Abbrechen";

// The listening label of the host.
inline constexpr char LauschtAnPort[] = "Tisch offen an Port ";
inline constexpr char TischVoll[] = "Tisch voll";

// The chat pane and the protocol log.
inline constexpr char ChatTitel[] = "Tischgespräch";
inline constexpr char ChatHinweis[] = "Nachricht an den Tisch, mit der Eingabetaste senden";
inline constexpr char ProtokollTitel[] = "Netzprotokoll";

// The status line while the player is in the foyer and the table waits.
inline constexpr char ImFoyer[] = "Sie sind im Internet-Foyer. Eine eigene Partie beginnt mit F2.";

// When the program could not be started anew into the foyer.
inline constexpr char KeinNeustart[] =
    "Das Programm konnte nicht neu gestartet werden. Sie spielen allein am Tisch weiter.";

}  // namespace table::netztext

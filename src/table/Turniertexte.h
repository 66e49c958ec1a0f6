#pragma once
// The German texts of the tournament Partie, the results dialog and the mail
// settings (the texts of the upload itself are in services/Diensttexte.h).
namespace table::turniertext {

// Game menu.
inline constexpr char TurnierpartieMenue[] = "T&urnierpartie...";
inline constexpr char ErgebnisseMenue[] = "Turnierergebnisse sen&den...";

// Starting a tournament Partie.
inline constexpr char TurnierTitel[] = "Turnierpartie";
inline constexpr char TurnierErklaerung[] =
    "In einer Turnierpartie gelten feste Regeln, gleich für alle Teilnehmer; Ihre eigenen Regeln gelten "
    "danach wieder. Die Computerspieler spielen nach dem Regelwerk, Karten werden nicht von Hand verteilt. "
    "Am Ende der Partie wird das Ergebnis gespeichert und kann an die Turnierleitung geschickt werden.";
inline constexpr char AnzahlSpiele[] = "Anzahl der Spiele:";
inline constexpr char RegelnDerTurnierpartie[] = "Regeln der Turnierpartie";
inline constexpr char Beginnen[] = "Turnierpartie beginnen";
inline constexpr char Laeuft[] = "Turnierpartie: Spiel %1 von %2";
inline constexpr char Abgebrochen[] =
    "Die Turnierpartie wurde abgebrochen; für sie wird kein Ergebnis gespeichert.";
inline constexpr char Gespeichert[] =
    "Die Turnierpartie ist beendet, ihr Ergebnis ist gespeichert:\n%1\n\nJetzt an die Turnierleitung senden?";
inline constexpr char NichtGespeichert[] = "Das Ergebnis der Turnierpartie konnte nicht gespeichert werden:\n";

// frmErgebnisse.
inline constexpr char ErgebnisseTitel[] = "Turnierergebnisse";
inline constexpr char Wartende[] = "Diese Ergebnisse warten darauf, an die Turnierleitung geschickt zu werden:";
inline constexpr char KeineWartenden[] = "Es warten keine Turnierergebnisse.";
inline constexpr char SpalteDatei[] = "Datei";
inline constexpr char SpalteStand[] = "Stand";
inline constexpr char SpalteFortschritt[] = "Übertragung";
inline constexpr char Senden[] = "&Senden";
inline constexpr char An[] = "An: %1 über %2:%3";
inline constexpr char OhneKonto[] = "Noch keine Turnierleitung eingetragen (Einstellungen → Netzwerk).";

// Settings, Netzwerk tab.
inline constexpr char Gruppe[] = "Turnierergebnisse per Mail";
inline constexpr char Mailserver[] = "Server";
inline constexpr char Port[] = "Port";
inline constexpr char HeloDomain[] = "HELO-Domäne";
inline constexpr char HeloLeer[] = "leer: die der Absenderadresse";
inline constexpr char Absender[] = "Absenderadresse";
inline constexpr char Absendername[] = "Absendername";
inline constexpr char Empfaenger[] = "An (Turnierleitung)";

}  // namespace table::turniertext

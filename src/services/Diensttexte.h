#pragma once
// Every text the result upload shows, word for word as the users know them
// (misspellings included).
namespace services::texte {

inline constexpr char Verbinde[] = "Verbinde...";
inline constexpr char Verbunden[] = "Verbunden";
inline constexpr char NachrichtSenden[] = "Nachricht Senden";
inline constexpr char Trennen[] = "Trennen";
inline constexpr char NachrichtVerschickt[] = "Nachricht verschickt !";
inline constexpr char FalscherRueckgabewert[] = "SMTP Error! Falscher Rückgabewert";
inline constexpr char TimeOut[] = "SMTP Error! Time out";
inline constexpr char FehlerBeimVersenden[] = "Fehler beim Versenden aufgetreten";
inline constexpr char LaeuftNoch[] = "Läuft noch!";
inline constexpr char Uebertragungsfehler[] =
    "Wärend der Übertragung ist ein Fehler aufgetreten! Bitte versuchen Sie es nochmal oder senden Sie Ihre "
    "Bestellung per Post oder Fax.";
inline constexpr char FehlerBeimUebertragen[] = "Fehler beim Übertragen!";
inline constexpr char Wiederholen[] = "Wiederholen?";
inline constexpr char NichtVollstaendig[] = "Die Turnierergebnisse wurde noch nicht vollständig übertragen!";
inline constexpr char JetztUebertragen[] = "Möchtest Du jetzt die Übertragung durchführen?";
inline constexpr char BetreffAnfang[] = "Turnierwertung ";

// Our own, where the users' texts have none.
inline constexpr char Empfaengername[] = "Turnierleitung";
inline constexpr char ZeileZuLang[] =
    "Die Ergebnisdatei ist zu lang für eine Mail (höchstens 998 Zeichen in einer Zeile).";
inline constexpr char DateiUnlesbar[] = "Die Ergebnisdatei kann nicht gelesen werden.";
inline constexpr char NichtGeloescht[] = "Gesendet, aber die Datei kann nicht gelöscht werden.";
inline constexpr char KontoUnvollstaendig[] =
    "Bitte unter „Einstellungen…“ → Netzwerk den Mailserver, die Absenderadresse und die Adresse der "
    "Turnierleitung eintragen.";
inline constexpr char Gesendet[] = "gesendet";
inline constexpr char Behalten[] = "behalten";
inline constexpr char Wartet[] = "wartet";

}  // namespace services::texte

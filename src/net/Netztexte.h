#pragma once
// The German texts of the network table, host and guest. Texts built from a name
// or a number are put together by the functions below, so their parts stay here.
#include <string>
#include <string_view>

namespace net::texte {

// Chat lines.
inline constexpr std::string_view Willkommen = "*** Willkommen in der Doppelkopf-Runde ***";
inline constexpr std::string_view WirWarten = "*** Wir warten auf Dich !!! ***";
inline constexpr std::string_view AndereRegeln =
    "*** Wenn Du andere Regeln wünscht, laß es mich bitte per Chat wissen! ***";
inline constexpr std::string_view AbNaechstemSpiel = "Ab dem nächsten Spiel bist du dabei!";
inline constexpr std::string_view NeuePartieChat = "***Neue Partie wurde vom Server gestartet ***";

// Status lines.
inline constexpr std::string_view WarteAufSpiel = "Warte auf nächstes Spiel...";
inline constexpr std::string_view Spitzenzeiten = " (Dies kann in in Spitzenzeiten bis zu mehreren Minuten dauern!)";
inline constexpr std::string_view GleichGehtsLos = "Gleich geht es los...";
inline constexpr std::string_view Soloanfrage = "Soloanfrage...";
inline constexpr std::string_view AnmeldungLaeuft = "Anmeldung läuft! Bitte warten...";
inline constexpr std::string_view SpielGestartet = "Spiel gestartet! Bitte warten...";
inline constexpr std::string_view BereitUndWarte = "Bereit und warte auf Mitspieler";

// Beside a seat after its reservation.
inline constexpr std::string_view Gesund = "Gesund";
inline constexpr std::string_view Vorbehalt = " Vorbehalt ";

// Notices and questions.
inline constexpr std::string_view NeuePartieHinweis = "Neue Partie wurde vom Server gestartet!";
inline constexpr std::string_view EndbedingungenGeaendert = "Bedingungen für Partieende wurden vom Server geändert!";
inline constexpr std::string_view ServerAntwortetNicht = "Der Server antwortet nicht mehr!\nNochmal versuchen oder Programm beenden?";
inline constexpr std::string_view TischNichtErreicht = "Der Tisch konnte nicht erreicht werden!";
inline constexpr std::string_view TischinhaberWeg = "Die Verbindung zum Tischinhaber ist unterbrochen!";
inline constexpr std::string_view InsFoyer = "Möchten Sie ins Foyer zurückkehren?";
inline constexpr std::string_view ProgrammEndet = "Das Programm wird beendet!";
inline constexpr std::string_view RolleDerMitspieler = "Der Computer übernimmt die Rolle der Mitspieler!";
inline constexpr std::string_view ServerFehlt = "Bitte den Namen oder die IP des Servers angeben!";
inline constexpr std::string_view KeineVerbindung = "Warnung: Es besteht zur Zeit keine Netzwerkverbindung!";
inline constexpr std::string_view Computername = "Computername: ";
inline constexpr std::string_view IpAdresse = "IP-Adresse: ";

// Name checks of the login, in the order they are made.
inline constexpr std::string_view KeinGuelterName =
    " ist kein gülter Name bei Netzwerkspielen! Bitte wählen Sie einen anderen Namen!";
inline constexpr std::string_view NameUngueltig = " ist ungültig! Bitte nur Buchstaben und Zahlen eingeben!";
inline constexpr std::string_view ErstesZeichen = "Das erste Zeichen muß ein Buchstabe sein!";
inline constexpr std::string_view NameZuLang = "Bitte nicht mehr als 13 Zeichen für Ihren Namen eingeben!";
inline constexpr std::string_view NameLeer = "Sie müssen einen Namen eingegeben!";
inline constexpr std::string_view KeinGueltigerName = " ist kein gültiger Name!";

// Disagreements of a guest's own engine with what the host reports (protocol log only).
inline constexpr std::string_view Abweichung = "*** Abweichung vom Tisch: ";

inline std::string angemeldet(std::string_view name) { return "*** " + std::string(name) + " hat sich angemeldet ***"; }
// The host's own chat writes it with an exclamation mark.
inline std::string angemeldetHier(std::string_view name) {
    return "*** " + std::string(name) + " hat sich angemeldet! ***";
}
inline std::string abgemeldetChat(std::string_view name) { return "*** " + std::string(name) + " ist abgemeldet! ***"; }
inline std::string abgemeldetHinweis(std::string_view name) { return std::string(name) + " hat sich abgemeldet!"; }
inline std::string nochStiche(int n) { return "Noch " + std::to_string(n) + " Stiche, dann gehts los!"; }
inline std::string ueberlegt(std::string_view name) { return std::string(name) + " überlegt..."; }
inline std::string reagiertNicht(std::string_view name) {
    return std::string(name) + " reagiert nicht! Möchten Sie dessen Rechner abmelden?";
}
inline std::string verbindeMit(std::string_view host, int port) {
    return "Verbinde mit Rechner " + std::string(host) + ":" + std::to_string(port) + ". Bitte warten ...";
}
inline std::string nichtErreicht(std::string_view host) {
    return "Der Rechner " + std::string(host) + " konnte nicht erreicht werden!";
}
inline std::string vergeben(std::string_view name) {
    return std::string(name) + " ist bereits vergeben!\nBitte einen anderen Namen wählen!";
}
inline std::string getrenntVon(std::string_view name) { return "Die Verbindung wurde von " + std::string(name) + " getrennt!"; }
inline std::string getrenntZu(std::string_view name) {
    return "Die Verbindung zu Spieler " + std::string(name) + " wurde getrennt!";
}
inline std::string netzwerkfehler(int nummer, std::string_view beschreibung) {
    return "Netzwerkfehler! " + std::to_string(nummer) + ": " + std::string(beschreibung);
}
inline std::string rolleVon(std::string_view name) {
    return "Der Computer übernimmt die Rolle von " + std::string(name) + " !";
}
inline std::string gastFehler(int nummer, std::string_view beschreibung) {
    return "Fehler " + std::to_string(nummer) + ": " + std::string(beschreibung);
}

// Default name of a seat no person holds: Computer1 for seat 2 ... Computer3 for seat 4.
inline std::string computername(int sitz) { return "Computer" + std::to_string(sitz - 1); }

}  // namespace net::texte

#pragma once
// The German texts of the internet foyer: the chat-server client's messages and
// the foyer window. Texts built from a name are put together below, so their
// parts stay here.
#include <string>
#include <string_view>

namespace foyer::texte {

// Login and connection.
inline constexpr std::string_view NameVergebenAnfang = "Es ist bereits ein Spieler mit dem Namen ";
inline constexpr std::string_view NameVergebenEnde =
    " angemeldet oder Ihr Name ist nach einem Verbindungsabbruch noch nicht freigegeben!";
inline constexpr std::string_view AndererName = "Bitte wählen Sie einen anderen Namen oder warten Sie einen Augenblick.";
inline constexpr std::string_view Abbruch = "Abbruch";
inline constexpr std::string_view AnmeldeFehler = "Fehler bei der Anmeldung im IRC";
inline constexpr std::string_view NichtImInternet = "11001: Sie sind nicht mit dem Internet verbunden!";
inline constexpr std::string_view InternetHerstellen = "Bitte stellen Sie zunächst eine Internet-Verbindung her!";
inline constexpr std::string_view GegenstelleGetrennt =
    "Die Verbindung wurde von der Gegenstelle getrennt. Mögliche Ursachen: Sie sind bereits im IRC-Netz angemeldet "
    "oder der IRC-Server ist überlastet!";
inline constexpr std::string_view Unterbrochen =
    "Die Verbindung zum IRC-Server ist unterbrochen!\n"
    "Tischlisten werden nicht mehr aktualisiert und Chats ausserhalb des Tisches sind nicht mehr möglich!\n"
    "Es wird empfohlen das Programm neu zu starten!";
inline constexpr std::string_view System = "<SYSTEM> ";
inline constexpr std::string_view NichtMehrAngemeldet = " ist nicht mehr angemeldet!";
inline constexpr std::string_view Protokollkopf = "*************IRC************";

// Our own descriptions of socket errors (Qt's are English).
inline constexpr std::string_view VerbindungAbgelehnt = "Der Server hat die Verbindung abgelehnt.";
inline constexpr std::string_view Zeitueberschreitung = "Der Server antwortet nicht.";
inline constexpr std::string_view Netzfehler = "Netzwerkfehler.";
inline constexpr std::string_view AnmeldungLaeuft = "Anmeldung im Foyer läuft. Bitte warten...";

// The foyer window.
inline constexpr std::string_view Fenstertitel = "Trumpona - Internet-Foyer";
inline constexpr std::string_view Anmeldetitel = "Anmeldung im Internet-Foyer";
inline constexpr std::string_view Name = "Name:";
inline constexpr std::string_view Server = "Server:";
inline constexpr std::string_view Port = "Port:";
inline constexpr std::string_view ServerFehlt = "Bitte den Namen oder die Adresse des Chat-Servers angeben!";
inline constexpr std::string_view Spieler = "Spieler";
inline constexpr std::string_view SpalteName = "Name";
inline constexpr std::string_view Tische = "Tische";
inline constexpr std::string_view SpalteTisch = "Tisch";
inline constexpr std::string_view SpalteGastgeber = "Gastgeber";
inline constexpr std::string_view SpalteFrei = "Freie Plätze";
inline constexpr std::string_view SpalteRegeln = "Regeln";
inline constexpr std::string_view SpalteAmTisch = "Am Tisch";
inline constexpr std::string_view ImFoyer = "im Foyer";
inline constexpr std::string_view FoyerChat = "Foyer-Chat";
inline constexpr std::string_view PrivatChat = "Privat-Chat";
inline constexpr std::string_view Senden = "Senden";
inline constexpr std::string_view An = "An:";
inline constexpr std::string_view TischEroeffnen = "Tisch eröffnen";
inline constexpr std::string_view PlatzNehmen = "Platz nehmen";
inline constexpr std::string_view ZurueckZumFoyer = "Zurück zum Foyer";
inline constexpr std::string_view Verlassen = "Foyer verlassen";
inline constexpr std::string_view KeinFreierTisch = "Bitte wählen Sie einen Tisch mit freiem Platz.";
inline constexpr std::string_view KeinPrivatpartner = "Bitte wählen Sie zuerst einen Spieler in der Liste.";

// The rules of a table in its announcement: "48 Karten, Ende nach 24 Spielen, Schweine".
inline constexpr std::string_view Karten = " Karten";
inline constexpr std::string_view EndeNach = ", Ende nach ";
inline constexpr std::string_view Spielen = " Spielen";
inline constexpr std::string_view EndeBei = ", Ende bei ";
inline constexpr std::string_view Punkten = " Punkten";
inline constexpr std::string_view MitJoker = ", Joker";
inline constexpr std::string_view MitSchweinen = ", Schweine";
inline constexpr std::string_view OhneSolo = ", ohne Solo";

// The headless foyer player.
inline constexpr std::string_view KeinFreierPlatz = "Im Foyer ist kein Tisch mit freiem Platz zu finden.";
inline constexpr std::string_view FoyerAufruf = "--foyer braucht --name, --auto und --open-table oder --take-seat";

// The automatic answer of a player who cannot take chat messages now.
inline constexpr std::string_view KannNichtEmpfangen = "_kann_im_Moment_keine_Nachrichten_von_Dir_empfangen!";

inline std::string nameVergeben(std::string_view name) {
    return std::string(NameVergebenAnfang) + std::string(name) + std::string(NameVergebenEnde) + "\n\n" +
           std::string(AndererName);
}
inline std::string anmeldeFehler(std::string_view fehler) {
    return std::string(AnmeldeFehler) + ": " + std::string(fehler);
}
inline std::string systemzeile(std::string_view text) { return std::string(System) + std::string(text); }
inline std::string nichtMehrAngemeldet(std::string_view nick) {
    return std::string(nick) + std::string(NichtMehrAngemeldet);
}
// "Tisch 3" for the window; on the wire the channel is "+Tisch_3".
inline std::string tischname(int nummer) { return std::string(SpalteTisch) + " " + std::to_string(nummer); }

}  // namespace foyer::texte

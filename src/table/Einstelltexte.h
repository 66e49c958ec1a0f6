#pragma once
// The captions of the settings dialog `einstellform`, in one place.

namespace table::einstelltext {

inline constexpr char Titel[] = "Einstellungen";
inline constexpr char TabRegeln[] = "Regeln";
inline constexpr char TabSonderpunkte[] = "Sonderpunkte";
inline constexpr char TabSpieler[] = "Spieler";
inline constexpr char TabAnzeige[] = "Anzeige";
inline constexpr char TabSound[] = "Sound";
inline constexpr char TabNetzwerk[] = "Netzwerk";

// Rules.
inline constexpr char Partieende[] = "Partieende";
inline constexpr char BeiUeberschreiten[] = "bei Überschreiten von";
inline constexpr char Punkten[] = "Punkten";
inline constexpr char Nach[] = "nach";
inline constexpr char Spielen[] = "Spielen";
inline constexpr char VorhandErstesSpiel[] = "Vorhand im 1. Spiel";
inline constexpr char VorhandZufall[] = "wird durch Zufall bestimmt";
inline constexpr char VorhandAnwender[] = "Anwender";
inline constexpr char Ansagen[] = "Ansagen";
inline constexpr char KontraRe[] = "Kontra/Re";
inline constexpr char Limitgebot[] = "Limitgebot";
inline constexpr char Unzulaessig[] = "unzulässig";
inline constexpr char BisEinschliesslich[] = "bis einschließlich ";
inline constexpr char StichEnde[] = ". Stich";
inline constexpr char Karten[] = "Karten";
inline constexpr char Dollen[] = "Herz-Zehnen (Dollen)";
inline constexpr char ZweiteSchlaegtErste[] = "Zweite schlägt Erste";
inline constexpr char ErsteSchlaegtZweite[] = "Erste schlägt Zweite";
inline constexpr char Joker[] = "Spiel mit Joker";
inline constexpr char JokerHinweis[] = "Beim Spiel mit Joker gilt immer: Erste Dolle ist hoch!";
inline constexpr char ScharferRupa[] = "Scharfer Doppelkopf (ohne Neunen)";
inline constexpr char Bockrunden[] = "Doppelt nach kaltem Schlag";
inline constexpr char Solospiele[] = "Solospiele";
inline constexpr char Solis[] = "Solospiele zulässig";
inline constexpr char Pflichtsolo[] = "Pflichtsolo";
inline constexpr char VhSolo[] = "Solospieler hat Vorhand";
inline constexpr char HhNSolo[] = "Anschließend Hinterhand";
inline constexpr char DabuSolo[] = "auch Damen-Buben-Solo";
inline constexpr char NeuGeben[] = "Neu geben bei";
inline constexpr char Neunerwerfen[] = "Neunerwerfen";
inline constexpr char Koenigewerfen[] = "Königewerfen";
inline constexpr char Armut[] = "Armut";
inline constexpr char Schweine[] = "Schweine";
inline constexpr char ZweiSchweine[] = "Zwei Schweinchen";
inline constexpr char SchweineAnsagen[] = "vor Spielbeginn ansagen";
inline constexpr char SchweineKaroSolo[] = "auch bei Karo-Solo";
inline constexpr char Supersau[] = "Supersau";
inline constexpr char StilleBefoerderung[] = "Stille Beförderung zur Supersau";
inline constexpr char AbNaechstemSpiel[] = "Geänderte Regeln gelten ab dem nächsten Spiel.";

// Special points.
inline constexpr char Sonderpunkte[] = "Sonderpunkte";
inline constexpr char SopuFuchs[] = "Fuchs letzter Stich";
inline constexpr char SopuDoppelfuchs[] = "Doppelfuchs";
inline constexpr char SopuKarlchen[] = "Karlchen";
inline constexpr char SopuDoppelkarlchen[] = "Doppelkarlchen";
inline constexpr char SopuRupaBSolo[] = "Doppelkopf bei Solospiel";
inline constexpr char SopuDollenschlag[] = "Dullenschlag";
inline constexpr char SopuHerzstich[] = "Herzstich";
inline constexpr char ImmerSonderpunkte[] =
    "Doppelkopf (ein Stich mit 40 Augen oder mehr) und Fuchs gefangen zählen immer, im Solo nur mit "
    "„Doppelkopf bei Solospiel“.";

// Seats.
inline constexpr char Sitz[] = "Sitz";
inline constexpr char Name[] = "Name";
inline constexpr char Spielweise[] = "Spielweise des Computers";
inline constexpr char SitzSie[] = "1 (Sie)";
inline constexpr char SpielweiseSitz1[] = "Die Spielweise von Sitz 1 gilt, wenn der Computer für Sie spielt (Automatisch spielen).";
inline constexpr char Kartenverteilung[] = "Kartenverteilung";
inline constexpr char ManuelleVerteilung[] = "Vor jedem Spiel fragen: „Manuelle Kartenverteilung?“";
inline constexpr char UnbekannterWert[] = "Wert ";

// Display.
inline constexpr char Kartenbild[] = "Kartenbild";
inline constexpr char Kartenbild1[] = "Französisches Blatt (Karo, Herz, Pik, Kreuz)";
inline constexpr char Kartenbild2[] = "Deutsches Blatt (Schellen, Rot, Grün, Eichel)";
inline constexpr char Kartenbild3[] = "Französisches Blatt, Standardbild (Karo, Herz, Pik, Kreuz)";
inline constexpr char Rueckseite[] = "Rückseite";
inline constexpr char Farben[] = "Farben";
inline constexpr char Hintergrund[] = "Tischfarbe";
inline constexpr char Vordergrund[] = "Schriftfarbe am Tisch";
inline constexpr char FarbeWaehlen[] = "Farbe wählen";
inline constexpr char Tisch[] = "Tisch";
inline constexpr char Einsammeln[] = "Stiche einsammeln";
inline constexpr char EinsammelnSofort[] = "sofort";
inline constexpr char EinsammelnKlick[] = "nach Mausklick auf den Stich";
inline constexpr char AugenZeigen[] = "Augen anzeigen";
inline constexpr char ParteiZeigen[] = "Parteien anzeigen";
inline constexpr char Karten_[] = "Nicht spielbare Karten abdunkeln";
inline constexpr char Boxen[] = "Spielmeldungen in Fenstern";
inline constexpr char Fenster[] = "Fenster";
inline constexpr char Willkommen[] = "Willkommen-Bildschirm beim Start";
inline constexpr char Vollbild[] = "Vollbild";
inline constexpr char Iconen[] = "Symbole in den Menüs";
inline constexpr char Automatic[] = "„Automatisch spielen“ im Menü";

// Sound.
inline constexpr char Klang[] = "Klang";
inline constexpr char Sprachausgabe[] = "Ansagen sprechen (Sprachausgabe)";
inline constexpr char Geraeusch[] = "Geräusche";
inline constexpr char Signal[] = "Signal, wenn Sie am Zug sind";
inline constexpr char KeinTon[] = "Es wurde kein Audio-Ausgabegerät gefunden; Sprache und Geräusche bleiben aus.";

// Network.
inline constexpr char LokalesNetz[] = "Lokales Netz";
inline constexpr char Netzadapter[] = "Netzwerkadapter";
inline constexpr char AlleAdressen[] = "(alle Adressen)";
inline constexpr char Serverport[] = "Port";
inline constexpr char Netztempo[] = "Netztempo";
inline constexpr char Verbindungsart[] = "Verbindungsart";
inline constexpr char VerbindungLan[] = "Lokales Netz (LAN)";
inline constexpr char VerbindungInternet[] = "Internet";
inline constexpr char IpErfragen[] = "Öffentliche IP-Adresse vor dem Eröffnen erfragen";
inline constexpr char ProxyServer[] = "Proxyserver";
inline constexpr char Foyer[] = "Internet-Foyer";
inline constexpr char IrcServer[] = "Server";
inline constexpr char IrcPort[] = "Port";
inline constexpr char IrcRaum[] = "Raum";

// The dialog's own controls.
inline constexpr char SpeichernJn[] = "Einstellungen dauerhaft speichern";
inline constexpr char Exportieren[] = "Einstellungen speichern...";
inline constexpr char Importieren[] = "Einstellungen einlesen...";
inline constexpr char Zuruecksetzen[] = "Alles zurücksetzen...";
inline constexpr char NichtGeschrieben[] = "Die Datei konnte nicht geschrieben werden:\n";

}  // namespace table::einstelltext

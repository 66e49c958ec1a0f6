#pragma once
// The German texts of the table window, in one place.

namespace table::texte {

inline constexpr char Fenstertitel[] = "Trumpona";
inline constexpr char Partieende[] = " - P a r t i e e n d e";
inline constexpr char LetztePartieFortsetzen[] =
    "Die letzte Partie wurde nicht zu Ende gespielt. Möchten Sie sie fortsetzen?";
inline constexpr char Aufloesungswarnung[] = "Wir empfehlen eine Bildschirmauflösung von mindestens800*600 Punkten!";

// Menus.
inline constexpr char MenuSpiel[] = "&Spiel";
inline constexpr char NeuePartie[] = "&Neue Partie";
inline constexpr char Tipp[] = "&Tipp";
inline constexpr char TippUeberlegt[] = "Tipp: der starke Spieler überlegt...";
inline constexpr char TippNichtAmZug[] = "Einen Tipp gibt es, wenn Sie eine Karte spielen sollen.";
inline constexpr char TippVorsatz[] = "Tipp: ";
inline constexpr char EinstellungenMenue[] = "E&instellungen...";
inline constexpr char NetzprotokollZeigen[] = "&Netzprotokoll zeigen";
inline constexpr char FoyerMenue[] = "Internet-&Foyer...";
inline constexpr char Ende[] = "&Ende";
inline constexpr char MenuAnsagen[] = "A&nsagen";
inline constexpr char MenuAnsicht[] = "Ans&icht";
inline constexpr char LetzterStich[] = "&Letzter Stich";
inline constexpr char AlleStiche[] = "Alle &Stiche des Spiels";
inline constexpr char Spielzettel[] = "S&pielzettel";
inline constexpr char MsgboxenZeigen[] = "&Überlegungen der Mitspieler zeigen";
inline constexpr char VollbildMenue[] = "&Vollbild";
inline constexpr char MenuHilfe[] = "&Hilfe";
inline constexpr char SpielregelnMenue[] = "&Spielregeln";

// Status line (the texts of the game cycle come from the engine).
inline constexpr char Einsammeln[] = "Zum Einsammeln bitte auf den Stich klicken";

// Name plates and the party pictures.
inline constexpr char Augen[] = "Augen: ";
inline constexpr char ParteiRe[] = "Re";
inline constexpr char ParteiKontra[] = "Kontra";
inline constexpr char ParteiUnbekannt[] = "?";

// Announcements beside the seats, by limit code (0 Schwarz .. 3 keine 90).
inline constexpr const char* LimitSchilder[] = {"Schwarz", "keine 30", "keine 60", "keine 90"};

// The game corner of the table.
inline constexpr char Normalspiel[] = "Normalspiel";
inline constexpr char Pflichtsolo[] = " (Pflichtsolo)";
inline constexpr char StillesSolo[] = "Stilles Solo";
inline constexpr char HochzeitErsterStich[] = "Hochzeit: erster Stich";
inline constexpr char HochzeitErsterFehlstich[] = "Hochzeit: erster Fehlstich";
inline constexpr char HochzeitErsterTrumpfstich[] = "Hochzeit: erster Trumpfstich";
inline constexpr char HochzeitMit[] = "Hochzeit mit ";
inline constexpr char HochzeitAllein[] = "Hochzeit ohne Partner";
inline constexpr char SpielNummer[] = "Spiel ";
inline constexpr char SpielVon[] = " von ";
inline constexpr char SpielBisPunkte[] = " (bis %1 Punkte)";
inline constexpr char Geber[] = "Geber: ";
inline constexpr char Vorhand[] = "Vorhand: ";
inline constexpr char Faktor[] = "Faktor ";
inline constexpr char Bockspiel[] = "Bockspiel";

// The computer players' reasoning boxes.
inline constexpr char UeberlegungVon[] = "Überlegung von ";
inline constexpr char RegelKennung[] = "Regel ";

// Saving, and ending the program during a Partie.
inline constexpr char NichtGespeichert[] = "Die Partie konnte nicht gespeichert werden:\n";
inline constexpr char BeendenFrage[] = "Die Partie ist noch nicht zu Ende. Möchten Sie sie vor dem Beenden speichern?";
inline constexpr char BeendenSicherung[] = "Auch ohne Speichern können Sie sie beim nächsten Start fortsetzen.";
inline constexpr char BeendenSpeichern[] = "&Speichern...";
inline constexpr char BeendenOhneSpeichern[] = "&Beenden";
inline constexpr char BeendenAbbrechen[] = "&Abbrechen";
// The status line of a program that does not keep the one automatic save.
inline constexpr char SicherungGetrennt[] = "Trumpona läuft schon: diese Partie wird getrennt gesichert.";
inline constexpr char SicherungBelegt[] = "Trumpona läuft schon mehrfach: diese Partie wird nicht automatisch gesichert.";
inline constexpr char SicherungUnmoeglich[] = "Der Datenordner ist nicht beschreibbar: die Partie wird nicht automatisch gesichert.";

// The welcome screen and the rules page.
inline constexpr char WillkommenTitel[] = "Willkommen";
inline constexpr char WillkommenKopf[] = "Willkommen bei Trumpona!";
inline constexpr char WillkommenText[] =
    "Doppelkopf zu viert: Sie spielen an Sitz 1 gegen drei Computerspieler. Wie möchten Sie beginnen?";
inline constexpr char WillkommenNeu[] = "&Neue Partie beginnen";
inline constexpr char WillkommenLaden[] = "Gespeicherte Partie &laden...";
inline constexpr char WillkommenFortsetzen[] = "Letzte Partie &fortsetzen";
inline constexpr char WillkommenRegeln[] = "&Spielregeln lesen";
inline constexpr char WillkommenAbschalten[] =
    "Diesen Bildschirm können Sie unter Spiel, Einstellungen, Anzeige abschalten.";
inline constexpr char RegelnTitel[] = "Spielregeln";
inline constexpr char IhreRegeln[] = "Ihre Einstellungen";
inline constexpr char RegelAn[] = "ja";
inline constexpr char RegelAus[] = "nein";
inline constexpr char RegelKeine[] = "keine";

// Dealing by hand.
inline constexpr char VerteilungTitel[] = "Manuelle Kartenverteilung";
inline constexpr char VerteilungHinweis[] =
    "Klicken Sie auf eine Karte des Stapels, um sie dem gewählten Spieler zu geben. "
    "Eine Karte in einer Hand geht mit einem Klick zurück auf den Stapel.";
inline constexpr char Stapel[] = "Stapel";
inline constexpr char RestZufaellig[] = "&Rest zufällig verteilen";
inline constexpr char AllesZurueck[] = "&Alle Karten zurücklegen";
inline constexpr char NochZuVerteilen[] = "Es sind noch ";
inline constexpr char KartenZuVerteilen[] = " Karten zu verteilen.";

// The score sheet.
inline constexpr char PartieendeNach[] = "Partieende nach ";
inline constexpr char Spielen[] = " Spielen";
inline constexpr char Summe[] = "Summe";
inline constexpr char DiesesSpiel[] = "Dieses Spiel";
inline constexpr char SpalteSpiel[] = "Spiel";
inline constexpr char SpalteGewinner[] = "Gewinner";
inline constexpr char SpalteAugen[] = "Augen Re : Kontra";
inline constexpr char SpalteAnsagen[] = "Ansagen";
inline constexpr char SpalteSonderpunkte[] = "Sonderpunkte";
inline constexpr char SpielzettelTitel[] = "Spielzettel";
inline constexpr char SpielendeTitel[] = "Spielergebnis";

// The trick viewer.
inline constexpr char StichTitel[] = "Stiche";
inline constexpr char StichNummer[] = ". Stich";
inline constexpr char SpieltAus[] = " spielt aus, ";
inline constexpr char Gewinnt[] = " gewinnt mit ";
inline constexpr char AugenKurz[] = " Augen";
inline constexpr char ReAngesagt[] = "Re angesagt";
inline constexpr char KontraAngesagt[] = "Kontra angesagt";
inline constexpr char Zurueck[] = "< &Zurück";
inline constexpr char Weiter[] = "&Weiter >";

}  // namespace table::texte

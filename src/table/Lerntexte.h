#pragma once
// Texts of the learning aids: the game review, the statistics, the open hands, the
// cards played, the rule presets and the pace of the table.
namespace table::lerntext {

// Menus.
inline constexpr char SpielverlaufMenue[] = "Spiel&verlauf...";
inline constexpr char StatistikMenue[] = "St&atistik...";
inline constexpr char AlleKartenZeigen[] = "Alle &Karten zeigen";
inline constexpr char GespielteKartenMenue[] = "&Gespielte Karten";

// The game review.
inline constexpr char VerlaufTitel[] = "Spielverlauf";
inline constexpr char VerlaufKnopf[] = "Spiel&verlauf...";
inline constexpr char Anfang[] = "|< &Anfang";
inline constexpr char Ende[] = "&Ende >|";
inline constexpr char VorDemErstenStich[] = "Vor dem ersten Stich";
inline constexpr char Schritt[] = "Schritt ";
inline constexpr char Von[] = " von ";
inline constexpr char Vorhand[] = "Vorhand: ";
inline constexpr char Normalspiel[] = "Normalspiel";
inline constexpr char SpieltEin[] = " spielt ein ";
inline constexpr char Pflichtsolo[] = " (Pflichtsolo)";
inline constexpr char StillesSolo[] = " spielt ein stilles Solo (beide Kreuz-Damen, nichts angesagt)";
inline constexpr char SpieltHochzeit[] = " spielt eine Hochzeit";
inline constexpr char Partner[] = ", Partner: ";
inline constexpr char OhnePartner[] = ", ohne Partner";
inline constexpr char SchweineBei[] = "Schweine: ";
inline constexpr char Re[] = "Re";
inline constexpr char Kontra[] = "Kontra";
inline constexpr char AngesagtRe[] = ": Re angesagt";
inline constexpr char AngesagtKontra[] = ": Kontra angesagt";
inline constexpr char Sonderpunkt[] = "Sonderpunkt „";
inline constexpr char SonderpunktFuer[] = "“ für ";
inline constexpr char ReSeite[] = "die Re-Partei";
inline constexpr char KontraSeite[] = "die Kontra-Partei";
inline constexpr char Spielende[] = "Spielende";
inline constexpr char AugenRe[] = "Augen Re: ";
inline constexpr char AugenKontra[] = ", Kontra: ";
inline constexpr char Punkte[] = " Punkte";
inline constexpr char KeinGrund[] = "(keine Begründung aufgezeichnet)";
inline constexpr char Regel[] = "Regel ";

// The statistics.
inline constexpr char StatistikTitel[] = "Statistik";
inline constexpr char Zuruecksetzen[] = "Statistik &zurücksetzen";
inline constexpr char ZuruecksetzenFrage[] = "Möchten Sie die gesamte Statistik löschen?";
inline constexpr char NichtGeschrieben[] = "Die Statistik konnte nicht gespeichert werden:\n";
inline constexpr char Name[] = "Name";
inline constexpr char Partien[] = "Partien";
inline constexpr char Spiele[] = "Spiele (gewonnen)";
inline constexpr char PunkteJeSpiel[] = "Punkte je Spiel";
inline constexpr char ReSpiele[] = "Re-Spiele (gewonnen)";
inline constexpr char KontraSpiele[] = "Kontra-Spiele (gewonnen)";
inline constexpr char Hochzeiten[] = "Hochzeiten (gewonnen)";
inline constexpr char Ansagen[] = "Ansagen (gehalten)";
inline constexpr char BestePartie[] = "beste Partie";
inline constexpr char SchlechtestePartie[] = "schlechteste Partie";
inline constexpr char KeineStatistik[] = "Noch keine Spiele aufgezeichnet.";
inline constexpr char Verlauf[] = "Punkte im Verlauf der Partie";
inline constexpr char LaufendePartie[] = "";
inline constexpr char LetztePartie[] = " (letzte Partie)";
inline constexpr char SpielNr[] = "Spiel";
inline constexpr char StillesSoloKurz[] = "Stilles Solo";

// Cards played.
inline constexpr char GespielteKartenTitel[] = "Gespielte Karten";
inline constexpr char Trumpf[] = "Trumpf";
inline constexpr char NochImSpiel[] = " im Spiel";

// Rule presets.
inline constexpr char Regelvorlage[] = "Regelvorlage:";
inline constexpr char KeineVorlage[] = "(eigene Auswahl)";
inline constexpr char AlsHausregeln[] = "Als &Hausregeln merken";
inline constexpr char HausregelnGemerkt[] = "Die Regeln dieses Reiters gelten nun als Ihre Hausregeln.";

// Pace.
inline constexpr char Tempo[] = "Tempo:";
inline constexpr char TempoAus[] = "Aus (ohne Kartenbewegung)";
inline constexpr char TempoSchnell[] = "Schnell";
inline constexpr char TempoNormal[] = "Normal";
inline constexpr char TempoLangsam[] = "Langsam";

}  // namespace table::lerntext

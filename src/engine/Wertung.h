#pragma once
// Scoring a finished game, booking it and the end of the Partie.
#include <string>
#include <string_view>

#include "Spiel.h"

namespace engine {

namespace wertungstext {
inline constexpr std::string_view EinfachGewonnen = "Spiel einfach gewonnen";
inline constexpr std::string_view StufeKeine90 = ", keine 90";
inline constexpr std::string_view StufeKeine60 = ", keine 60";
inline constexpr std::string_view StufeKeine30 = ", keine 30";
inline constexpr std::string_view StufeKeinStich = ", kein Stich";
inline constexpr std::string_view Angesagt = " angesagt";
inline constexpr std::string_view VerdoppelungBeide = ", Verdoppelung jeweils durch Kontra und Re = ";
inline constexpr std::string_view VerdoppelungKontra = ", Verdoppelung durch Kontra = ";
inline constexpr std::string_view VerdoppelungRe = ", Verdoppelung durch Re = ";
inline constexpr std::string_view EinSonderpunkt = " + einen erzielten Sonderpunkt = ";
inline constexpr std::string_view ErzielteSonderpunkte = " erzielte Sonderpunkte = ";
inline constexpr std::string_view Abzueglich = "Abzüglich ";
inline constexpr std::string_view EigenerSonderpunkt = "des von Ihrer Partei erzielten Sonderpunktes ";
inline constexpr std::string_view EigeneSonderpunkte = "der von Ihrer Partei erzielten ";
inline constexpr std::string_view GegnerSonderpunkt = " des Sonderpunktes Ihrer Gegner ";
inline constexpr std::string_view HatIhrePartei = "hat Ihre Partei mit ";
inline constexpr std::string_view Gewonnen = "gewonnen! ";
inline constexpr std::string_view Verloren = "verloren! ";
inline constexpr std::string_view KalterSchlag = "remis gespielt (sogenannter kalter Schlag)! ";
inline constexpr std::string_view BockEinPunkt = "Der Punkt wird";
inline constexpr std::string_view BockPunkte = "Diese Punkte werden";
inline constexpr std::string_view BockGrund = " verdoppelt, da das Spiel zuvor mit einem kalten Schlag endete!";
inline constexpr std::string_view NaechstesVerdoppelt = "Die Punkte des nächsten Spiels werden daher verdoppelt!";
inline constexpr std::string_view Spielwert = "(Spielwert: ";
inline constexpr std::string_view SieHaben = "Sie haben";
inline constexpr std::string_view IhreParteiHat = "Ihre Partei hat";
inline constexpr std::string_view AlleStiche = " alle Stiche gewonnen!";
inline constexpr std::string_view SchwarzVerloren = " schwarz verloren!";
inline constexpr std::string_view AugenGewonnen = " Augen gewonnen!";
inline constexpr std::string_view AugenVerloren = " Augen verloren!";
inline constexpr std::string_view GegnerErhaelt = "Ihr Gegner erhält:";
inline constexpr std::string_view GegnerErhalten = "Ihre Gegner erhalten:";
inline constexpr std::string_view LimitEingehalten = "Ihr Limitgebot haben Sie eingehalten!";
inline constexpr std::string_view LimitNichtEingehalten = "Ihr Limitgebot haben Sie nicht eingehalten!";
inline constexpr std::string_view GegnerLimitEingehalten = "Ihre Gegner haben ihr Limitgebot eingehalten!";
inline constexpr std::string_view GegnerLimitNichtEingehalten = "Ihre Gegner haben ihr Limitgebot nicht eingehalten!";
inline constexpr std::string_view TitelPartieende = " - P a r t i e e n d e";
inline constexpr std::string_view NeuePartie = "&Neue Partie";
}  // namespace wertungstext

// Augen of all cards in the game (240 with or without nines).
int augenImSpiel(const Deck& deck);

// The numbers of the scoring without its texts and without booking anything: for
// searches that score thousands of simulated games. A seat not placed counts as Kontra.
struct Wertzahlen {
    int gewinner = 0;           // 1 Kontra, 2 Re
    int augenRe = 0;
    int augenKontra = 0;
    int sticheRe = 0;
    int sticheKontra = 0;
    int erreicht = 0;           // levels the winner passed
    int angesagt = 0;           // announced limit levels (0 without a limit)
    int limitSeite = 0;
    bool eingehalten = false;
    int spielwert = 0;
    int sonderpunkteGewinner = 0;
    int sonderpunkteVerlierer = 0;
    int ergebnis = 0;           // after factor and special points, before the Bock doubling
    int buchungsPartei = 0;     // side whose seats are booked
    int betrag = 0;             // points booked to each of its seats, Bock doubling included
};
Wertzahlen wertungRechnen(const Spiel& spiel);

// Points the game brings the side (1 Kontra, 2 Re): the points booked to each of its
// seats, negative when the other side is booked.
int punkteFuerSeite(const Wertzahlen& w, int seiteNr);

// Scores the finished game into spiel.ergebnis, books the points on the score
// sheet, sets or clears the Bock mark and decides the end of the Partie.
void spielWerten(Spiel& spiel);

// "Partieende bei Überschreiten von 30 Punkten".
std::string partieendeText(int endeBei);

}  // namespace engine

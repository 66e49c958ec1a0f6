#pragma once
// Texts of the questions put to the person at seat 1 and of the dialogs.
#include <string>
#include <vector>

#include "engine/Spiel.h"

namespace table {

namespace texte {
inline constexpr char SieHaben[] = "Sie haben ";
inline constexpr char SieHabenNur[] = "Sie haben nur ";
inline constexpr char Neunen[] = " Neunen!";
inline constexpr char Koenige[] = " Könige!";
inline constexpr char Truempfe[] = " Trümpfe!";
inline constexpr char NeuGeben[] = "Möchten Sie, daß neu gegeben wird?";
inline constexpr char Neunerwerfen[] = "Neunerwerfen!";
inline constexpr char Koenigewerfen[] = "Königewerfen!";
inline constexpr char Armut[] = "Armut!";

inline constexpr char SoloSieHaben[] = "Sie haben";
inline constexpr char SoloVorhand[] = "Vorhand";
inline constexpr char SoloSitzenIn[] = "Sie sitzen in";
inline constexpr char SoloVorhandErhalten[] = "Als Solospieler würden Sie Vorhand erhalten.";
inline constexpr char SoloKeinSolo[] = " hat kein Solospiel angesagt!";
inline constexpr char SoloVorIhnen[] = "Die in der Reihenfolge vor Ihnen sitzenden Spieler haben kein Solospiel angesagt.";
inline constexpr char SoloErwaegen[] = "Erwägen Sie ein Solospiel anzusagen?";
inline constexpr char SoloTitel[] = "Solo";
inline constexpr char SoloWahl[] = "Welches Solo möchten Sie spielen?";

inline constexpr char HochzeitTitel[] = "Hochzeit";
inline constexpr char SieHeiraten[] = "Sie heiraten den Gewinner ";
inline constexpr char Des[] = " des ";
inline constexpr char ErsterStich[] = "ersten Stichs";
inline constexpr char ErsterFehlstich[] = "ersten Fehlstichs";
inline constexpr char ErsterTrumpfstich[] = "ersten Trumpfstichs";
}  // namespace texte

// The redeal rules, in the order they are checked.
enum class Werfen { Neunen, Koenige, Armut };

// "Sie haben 5 Neunen!" / "Sie haben nur 3 Trümpfe!" and the question after it.
std::string werfenFrage(Werfen art, int anzahl);
// "Neunerwerfen!", "Königewerfen!", "Armut!".
std::string werfenTitel(Werfen art);

// The solo question to seat 1 (`SoloSP1`), line by line.
std::vector<std::string> soloFrage(const engine::Spiel& spiel);
// The human's position for a Vorhand seat: "Vorhand", "Hinterhand", "Dritthand", "Zweithand".
std::string positionVonSitz1(engine::Sitz vorhand);

// The solo kinds the rules allow, as game types (1 is the Karo-Solo).
std::vector<int> erlaubteSoli(const engine::Regeln& regeln);
// "Karo-Solo" / "Schellen-Solo", "Buben-Solo" / "Unter-Solo", ...
std::string soloName(int spieltyp, bool franzoesisch);

// "ersten Stichs", "ersten Fehlstichs", "ersten Trumpfstichs".
std::string hochzeitArtText(int art);
// "Sie heiraten den Gewinner  des ersten Stichs! "
std::string eigeneHochzeitText(int art);

}  // namespace table

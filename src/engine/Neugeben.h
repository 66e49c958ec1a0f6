#pragma once
// The redeal checks after the deal: too many Neunen, too many Könige, too few trumps.
#include <string>
#include <string_view>
#include <vector>

#include "Spiel.h"

namespace engine {

// The checks, in the order they run.
enum Neugebegrund : int { KeinNeugeben = 0, NeunenWerfen = 1, KoenigeWerfen = 2, ArmutWerfen = 3 };

namespace neugebetext {
inline constexpr std::string_view FrageNeugeben = "Möchten Sie, daß neu gegeben wird?";
inline constexpr std::string_view TitelNeunen = "Neunerwerfen!";
inline constexpr std::string_view TitelKoenige = "Königewerfen!";
inline constexpr std::string_view TitelArmut = "Armut!";
inline constexpr std::string_view EingepasstNetz = "Spiel wurde eingepasst, es wird neu gegeben...";
inline constexpr std::string_view WarteAufPassen = "Warte, ob einer der Mitspieler passen möchte...";
}  // namespace neugebetext

bool neugebenRegelInKraft(const Regeln& regeln, int grund);

// Counted on the attributes of the normal game: strength 1 is a Neun, 4 a König.
int zaehleStaerke(const Spiel& spiel, Sitz sitz, int staerke);
int zaehleTruempfe(const Spiel& spiel, Sitz sitz);
long long staerkeSumme(const Spiel& spiel, Sitz sitz);

// The count the check looks at (Neunen, Könige or trumps).
int neugebeAnzahl(const Spiel& spiel, Sitz sitz, int grund);
// 5 or more Neunen or Könige; 3 or fewer trumps.
bool darfNeugeben(const Spiel& spiel, Sitz sitz, int grund);
// A computer seat that may ask does so, unless a strong hand keeps its Neunen or
// Könige: at least 7 trumps and a strength sum above 23085089.
bool computerWillNeugeben(const Spiel& spiel, Sitz sitz, int grund);
// The cards shown with the announcement: the seat's Neunen, Könige or trumps.
std::vector<int> gezeigteKarten(const Spiel& spiel, Sitz sitz, int grund);

// "Sie haben 5 Neunen!" + line break + the question.
std::string neugebenFrage(int grund, int anzahl);
std::string neugebenTitel(int grund);
// name + " hat 5 Neunen! Es wird neu gegeben!" and the like.
std::string neugebenAnsage(const std::string& name, int grund, int anzahl);

}  // namespace engine

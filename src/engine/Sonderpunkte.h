#pragma once
// Special points, judged trick by trick for the side of the trick's winner.
#include <string_view>
#include <vector>

#include "Meldung.h"
#include "Spiel.h"

namespace engine {

namespace sonderpunkttext {
inline constexpr std::string_view Doppelkopf = "Doppelkopf!";
inline constexpr std::string_view GefangeneDolle = "Gefangene Dolle!";
inline constexpr std::string_view GeschlageneDolle = "Geschlagene Dolle im Stich!";
inline constexpr std::string_view GefangenerFuchs = "Gefangener Fuchs!";
inline constexpr std::string_view GefangeneFuechse = "Gefangene Füchse!";
inline constexpr std::string_view FuchsImStich = "Fuchs im Stich!";
inline constexpr std::string_view ZweiFuechseImStich = "Zwei Füchse im Stich!";
inline constexpr std::string_view Karlchen = "Karlchen!";
inline constexpr std::string_view Doppelkarlchen = "Doppelkarlchen!";
inline constexpr std::string_view Herzstich = "Herzstich!";
inline constexpr std::string_view SonderpunktFuer = "Sonderpunkt für ";
inline constexpr std::string_view ZweiSonderpunkteFuer = "2 Sonderpunkte für ";
inline constexpr std::string_view SchweinSchlugDolle =
    "Gewinner schlug Dolle mit Schwein! Daher kein Sonderpunkt möglich für den Gewinner des Stichs! "
    "Weitere Prüfung erfolgt hier daher nicht mehr.";
inline constexpr std::string_view TitelSonderpunkt = "Sonderpunkt!";
}  // namespace sonderpunkttext

// Kinds as recorded in Sonderpunkt::art.
namespace sonderpunktart {
inline constexpr std::string_view Doppelkopf = "Doppelkopf";
inline constexpr std::string_view FuchsGefangen = "Fuchs gefangen";
inline constexpr std::string_view FuchsLetzterStich = "Fuchs letzter Stich";
inline constexpr std::string_view Doppelfuchs = "Doppelfuchs";
inline constexpr std::string_view Karlchen = "Karlchen";
inline constexpr std::string_view Doppelkarlchen = "Doppelkarlchen";
inline constexpr std::string_view DolleGefangen = "Dolle gefangen";
inline constexpr std::string_view Dullenschlag = "Dullenschlag";
inline constexpr std::string_view Herzstich = "Herzstich";
}  // namespace sonderpunktart

// The special points of completed trick `nr` (1-based, in spiel.stiche) under the
// current parties; the messages for the table go to `meldungen` when given.
std::vector<Sonderpunkt> sonderpunkteDesStichs(const Spiel& spiel, int nr, std::vector<Meldung>* meldungen);

// Tricks 1..bisStich judged again, after the parties became known or changed.
void sonderpunkteNeuBewerten(Spiel& spiel, int bisStich);

}  // namespace engine

#pragma once
// Reservations before the first card: solos, the Hochzeit, the silent solo,
// the duty solo, the Schweine, and the game they fix.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Meldung.h"
#include "Spiel.h"

namespace engine {

namespace vorbehalttext {
inline constexpr std::string_view SieHaben = "Sie haben";
inline constexpr std::string_view SieSitzenIn = "Sie sitzen in";
inline constexpr std::string_view VorhandErhalten = "Als Solospieler würden Sie Vorhand erhalten.";
inline constexpr std::string_view KeinSoloAngesagt = " hat kein Solospiel angesagt!";
inline constexpr std::string_view VorIhnenKeinSolo =
    "Die in der Reihenfolge vor Ihnen sitzenden Spieler haben kein Solospiel angesagt.";
inline constexpr std::string_view SoloErwaegen = "Erwägen Sie ein Solospiel anzusagen?";
inline constexpr std::string_view WarteAufVorbehalte = "Warte auf Vorbehaltmeldungen...";
inline constexpr std::string_view HeiratetDenGewinner = " heiratet den Gewinner ";
inline constexpr std::string_view SieHeiraten = "Sie heiraten den Gewinner ";
inline constexpr std::string_view DuHeiratest = "Du heiratest den Gewinner ";
inline constexpr std::string_view TitelHochzeit = "Hochzeit!";
inline constexpr std::string_view TitelSolo = "Solo!";
inline constexpr std::string_view TitelSchweine = "Schweine!";
inline constexpr std::string_view TitelSupersau = "Supersau!";
inline constexpr std::string_view SoloNichtErlaubt = "Dieses Solo ist nach den Regeln nicht zulässig.";
inline constexpr std::string_view KeineHochzeitMoeglich = "Eine Hochzeit braucht beide Kreuz-Damen.";
inline constexpr std::string_view PflichtsoloFaellig = "Sie müssen jetzt Ihr Pflichtsolo spielen!";
}  // namespace vorbehalttext

// "Vorhand", "Zweithand", "Dritthand" or "Hinterhand" of a seat in a game with this Vorhand.
std::string_view positionsname(Sitz vorhand, Sitz sitz);

// The question to a person before its solo declaration, lines joined by line breaks.
std::string soloFrage(const Spiel& spiel, Sitz sitz);

// Game types a solo may be declared in; empty when solos are not allowed.
std::vector<int> erlaubteSoloarten(const Regeln& regeln);
bool soloErlaubt(const Regeln& regeln, int spieltyp);

bool hatBeideKreuzDamen(const Spiel& spiel, Sitz sitz);
// "ersten Stichs", "ersten Fehlstichs", "ersten Trumpfstichs"; empty for no kind.
std::string_view hochzeitArtText(int art);

// Under the duty-solo rule with a fixed number of games, the seats that still owe
// their solo are made to play it once no more games are left than seats owing:
// the first owing seat from Vorhand.
bool mussPflichtsolo(const Spiel& spiel, Sitz sitz);

// Schweine count in the normal game and the Hochzeit, and with "Schweine_b_TrSolo"
// also in the Karo-Solo; the holder is the first seat with both Karo-Asse.
std::optional<Sitz> schweineHalterSuchen(const Spiel& spiel);
bool schweineGelten(const Regeln& regeln, int spieltyp, bool solo);

// After the redeal checks: marks the holder, raises both Karo-Asse, and returns
// the announcement when the holder sits at this machine or "Schweine_ansagen" is on.
std::optional<Meldung> schweineMarkieren(Spiel& spiel);

// What the reservations fixed.
struct Spielwahl {
    enum Art { Normal, Solo, Hochzeit, StillesSolo } art = Normal;
    Sitz sitz{1};  // soloist, Hochzeiter or silent soloist
    int spieltyp = Normalspiel;
    int hochzeitArt = KeineHochzeit;
};

// Sets game type, parties, strengths, Schweine, the duty solo and the Vorhand
// rules for a solo; starts the first trick. Returns the messages for the table.
std::vector<Meldung> spielFestlegen(Spiel& spiel, const Spielwahl& wahl, bool franzoesisch);

// After a trick of a Hochzeit not yet settled: the partner is the first winner
// other than the Hochzeiter of a trick of the chosen kind within the first three
// tricks; after the third without one the Hochzeiter plays alone.
// Returns the message when the parties became known.
std::optional<Meldung> hochzeitKlaeren(Spiel& spiel);

}  // namespace engine

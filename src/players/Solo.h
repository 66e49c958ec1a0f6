#pragma once
// Reservations of the computer players: the safe-solo estimate for every game
// kind (SoloBewerten, SicheresSolo), the unsafe solo steps (SoloPruefen), the
// silent solo, the duty solo and the kind of a Hochzeit.
#include <array>
#include <cstdint>
#include <string_view>

#include "Melder.h"
#include "Solotabellen.h"
#include "engine/Spiel.h"

namespace players {

using engine::Sitz;
using engine::Spiel;

inline constexpr int NichtSicher = 240;  // Augen lost by a hand that cannot pull trumps or does not lead
inline constexpr int NieSicher = 1111;   // a kind that may not be played
inline constexpr int SicherUnter = 120;  // a kind is safe below this Augen loss

// Confidence that the top trumps pull every trump of the other hands.
inline constexpr double AbziehenSolo = 0.95;

// What one hand would lose playing alone in a kind, from its cards still in hand.
struct Soloschaetzung {
    bool abziehen = false;  // the top trumps pull the others' trumps (with the confidence asked)
    bool sicher = false;    // ... for any distribution of the others' trumps
    int stiche = 0;         // tricks lost: the hand size when it cannot pull or does not lead
    int augen = 0;          // Augen lost: 240 when it cannot pull or does not lead
};

// The cards still in hand, by code: the own one by one, the others' counted.
struct Solokarten {
    std::array<int, engine::MaxPositionen / 4> eigene{};
    std::size_t nEigene = 0;
    std::array<int, 26> fremdeJeCode{};
    std::array<int, 3> groessen{};  // the other hands in seat order after the seat
    bool beideKreuzDamen = false;
    // Bit `code` of [0]: held once or more, of [1]: held twice (own hand, the other hands).
    std::array<std::uint32_t, 2> eigeneCodes{};
    std::array<std::uint32_t, 2> fremdeCodes{};
};
Solokarten solokarten(const Spiel& spiel, Sitz sitz);

// The estimate behind SoloBewerten. `amAufspiel`: the seat leads (so it pulls trumps at once).
// After pulling, trumps and side cards that no other card beats win; every other side
// card loses a trick, into which the others throw their fattest plain cards.
Soloschaetzung soloSchaetzen(const Spiel& spiel, Sitz sitz, int art, bool amAufspiel,
                             double sicherheit = AbziehenSolo);
// ... for a kind that is not the running game's, from the cards gathered once.
Soloschaetzung soloSchaetzen(const Solokarten& karten, const engine::Regeln& regeln, int art, bool amAufspiel,
                             double sicherheit = AbziehenSolo);

// The rounds of trump leads after which, with the given confidence, none of the other
// hands (sizes as given) holds trump any more when `fremde` trumps are spread over them.
int abziehrunden(int fremde, const std::array<int, 3>& handgroessen, double sicherheit);

// Whether `eigene` trumps could pull `fremde` at all: when not, the estimate is the one of a
// hand that cannot pull (NichtSicher), whatever the cards are. Most hands end here, cheaply.
inline bool abziehenDenkbar(int eigene, int fremde, const std::array<int, 3>& handgroessen, double sicherheit) {
    // Some hand holds at least a third of the others' trumps, so fewer rounds never do.
    if (fremde > 0 && eigene < (fremde + 2) / 3) return false;
    return eigene >= abziehrunden(fremde, handgroessen, sicherheit);
}

// Own trumps in the kind (cards in hand).
int truempfeIn(const Spiel& spiel, Sitz sitz, int art);

// The seat leads the first trick, or a soloist always does ("Vh_Solo").
bool spieltZuerstAus(const Spiel& spiel, Sitz sitz);

// Game kinds the seat may choose (index 1..8).
using Soloarten = std::array<bool, AnzahlSpielarten + 1>;
Soloarten soloartenAusRegeln(const engine::Regeln& regeln);

// SoloBewerten: stores the estimates of the kind and returns its Augen loss.
int soloBewerten(const Spiel& spiel, const Solokarten& karten, Sitz sitz, int art, Solotabellen& tabellen);
// SicheresSolo: the safe kind with the least loss (ties: more trumps, then Herz), or 0.
int sicheresSolo(const Spiel& spiel, Sitz sitz, const Soloarten& arten, Solotabellen& tabellen);

// Why SoloPruefen chose its kind.
enum class Sologrund { Keiner, Sicher, Farbe, DamenBuben, Buben, Damen, Fleischlos };

// The code under which the reasoning and the statistics report the choice.
std::string_view sologrundCode(Sologrund grund);

struct Solowahl {
    int art = 0;  // 1..8, 0 no solo
    Sologrund grund = Sologrund::Keiner;
};

// SoloPruefen: a safe solo, else an unsafe one by counting trumps, aces and tens.
// Records the silent soloist and the long suit of a fleischlos solo in the tables.
Solowahl soloPruefen(const Spiel& spiel, Sitz sitz, const Soloarten& arten, Solotabellen& tabellen,
                     const Melder& melder);

// A duty solo when SoloPruefen found none: the colour with most trumps (the first on ties).
int pflichtsoloArt(const Spiel& spiel, Sitz sitz, const Soloarten& arten);

// The Hochzeit kind for a hand with both Kreuz-Damen, and the sentence that explains it.
struct Hochzeitwahl {
    int art = engine::ErsterStich;
    std::string_view text;
};
Hochzeitwahl hochzeitArtWaehlen(const Spiel& spiel, Sitz sitz);

}  // namespace players

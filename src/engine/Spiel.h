#pragma once
// The state of the running Partie and game: one object, owned by whoever runs
// the table (the main window, the autoplay loop, a network host or guest).
// Every field can be set and read back, so a saved or received game resumes.
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "Deck.h"
#include "Regeln.h"
#include "Stich.h"

namespace engine {

// Party codes: 0 unknown, 1 Kontra, 2 Re, 3 Re alone (solo or silent solo).
enum Partei : int { ParteiUnbekannt = 0, ParteiKontra = 1, ParteiRe = 2, ParteiSolo = 3 };

// Hochzeit kinds: how the partner is found.
enum HochzeitArt : int { KeineHochzeit = 0, ErsterStich = 5, ErsterFehlstich = 6, ErsterTrumpfstich = 7 };

// Limit codes: 3 keine 90, 2 keine 60, 1 keine 30, 0 Schwarz.
enum Limit : int { LimitSchwarz = 0, Keine30 = 1, Keine60 = 2, Keine90 = 3 };

// Who decides for a seat: the person at this machine, a computer player, or a
// person at another machine (network play).
enum class Steuerung : int { Mensch = 0, Computer = 1, Netz = 2 };

// Where the game cycle stands; the cycle resumes from any of them.
enum class Spielphase : int {
    Geben = 0,      // a deal is needed (from the generator or given from outside)
    Neugeben,       // redeal checks
    Vorbehalte,     // reservations in playing order
    Kartenspiel,    // a seat is to play a card
    StichVoll,      // the fourth card has fallen; the trick waits to be collected
    Spielende,      // scored; the next game waits
    Partieende,     // the Partie is over; a new one waits
};

// A completed trick, kept for the trick viewer, scoring and the saved game.
struct StichProtokoll {
    Sitz aufspieler{1};
    std::array<int, 4> karten{};  // deck positions in playing order
    std::array<int, 4> codes{};   // their card codes
    Sitz gewinner{1};
    int augen = 0;
    bool operator==(const StichProtokoll&) const = default;
};

// What was announced during one trick (index: tricks completed when announced).
struct AnsagenImStich {
    bool re = false;
    bool kontra = false;
    int limitSitz = 0;  // 0 none
    int limitCode = -1; // Limit, -1 none
    bool operator==(const AnsagenImStich&) const = default;
};

// One announcement in the order made.
struct AnsageEintrag {
    Sitz sitz{1};
    bool limit = false;     // false: Re or Kontra
    int partei = 0;         // party it was made for (1 Kontra, 2 Re)
    int limitCode = -1;
    int stich = 0;          // tricks completed when made
    bool operator==(const AnsageEintrag&) const = default;
};

struct Sonderpunkt {
    std::string art;   // "Doppelkopf", "Fuchs gefangen", "Karlchen", ...
    int partei = 0;    // 1 Kontra, 2 Re (the solo player counts as Re)
    int stich = 0;     // number of the trick, 1..12
    bool operator==(const Sonderpunkt&) const = default;
};

// The scoring of a finished game.
struct Spielergebnis {
    bool gewertet = false;
    int gewinner = 0;              // party that won the game: 1 Kontra, 2 Re (the solo player counts as Re)
    int augenRe = 0;
    int augenKontra = 0;
    int sticheRe = 0;
    int sticheKontra = 0;
    int spielwert = 0;             // value in steps, before the factor
    int faktor = 1;
    int sonderpunkteGewinner = 0;
    int sonderpunkteVerlierer = 0;
    int ergebnis = 0;              // after factor and special points, before the Bock doubling; may be <= 0
    bool kalterSchlag = false;
    bool umkehr = false;           // the loser's special points outweighed the win
    bool bock = false;             // this game was a Bock game
    int buchungsPartei = 0;        // party whose seats were booked (after a reversal the loser of the game)
    int punkteJeSitz = 0;          // points booked to each seat of that party
    ProSitz<int> punkte;           // points booked to each seat by this game
    int limitEingehalten = -1;     // -1 no limit, 0 failed, 1 kept
    bool partieEnde = false;
    std::string text;              // the text of the end box
    bool operator==(const Spielergebnis&) const = default;
};

// Progress of the cycle inside a phase, so a saved or received state resumes exactly.
struct Ablaufstand {
    Spielphase phase = Spielphase::Geben;
    int pruefung = 0;               // redeal check under way: 1 Neunen, 2 Könige, 3 Armut
    int pruefSitz = 0;              // seat examined in it
    int vorbehaltGefragt = 0;       // seats asked for their reservation, counted from Vorhand
    std::optional<Sitz> hochzeitWunsch;
    int hochzeitWunschArt = KeineHochzeit;
    bool operator==(const Ablaufstand&) const = default;
};

// Everything about the series of games.
struct Partiestand {
    int partieNr = 1;
    int spielNr = 0;                           // running game number, 1 for the first game
    ProSitz<int> punkte;                       // running totals
    std::array<ProSitz<int>, 96> spieltabelle; // points per game with "Abr_Option" 2
    bool bock = false;                         // next game is a Bock game
    std::optional<Sitz> letzteVorhand;         // Vorhand of the running game, the previous one at the next deal
    std::optional<Sitz> gemerkteVorhand;       // saved seat while a soloist took Vorhand
    bool soloVorhandMarke = false;
    ProSitz<bool> pflichtsoloGespielt;
    int geber = 0;                             // dealer counter
    bool operator==(const Partiestand&) const = default;
};

struct Spiel {
    // --- Who sits at the table.
    ProSitz<std::string> namen{std::string()};
    ProSitz<int> charakter{2};
    ProSitz<Steuerung> steuerung = standardSteuerung();
    bool automatik = false;             // the computer plays seat 1's cards as well

    // --- The game.
    Regeln regeln;                      // rules in force for this game
    Deck deck;
    int spieltyp = Normalspiel;
    Sitz vorhand{1};                    // Vorhand of the game; leads the first trick unless a
                                        // soloist took the lead (see stich.aufspieler)

    // Reservations.
    bool solo = false;                  // any declared solo, the Karo-Solo included
    std::optional<Sitz> solist;
    bool pflichtsolo = false;           // the solo is a duty solo
    std::optional<Sitz> stillerSolist;  // holder of both Kreuz-Damen who announced nothing
    std::optional<Sitz> hochzeiter;
    int hochzeitArt = KeineHochzeit;
    std::optional<Sitz> hochzeitPartner;
    bool hochzeitGeklaert = false;
    std::optional<Sitz> schweineHalter; // holder of both Karo-Asse when Schweine count
    std::optional<Sitz> supersauHalter; // holder of both trump Asse of a colour solo under "Supersau"

    // Parties: the truth, and what cards have revealed.
    ProSitz<int> partei;                // Partei codes
    ProSitz<int> parteiMarker;          // 2 once a seat revealed Re by a Kreuz-Dame
    ProSitz<int> schweineGespielt;      // raised Karo-Asse played per seat

    // Announcements.
    ProSitz<bool> reAngesagt;
    ProSitz<bool> kontraAngesagt;
    int faktor = 1;                     // 1, 2 after Re or Kontra, 4 after both
    std::optional<Sitz> limitSitz;
    int limitCode = -1;                 // Limit, -1 none
    std::array<AnsagenImStich, 13> ansagenProStich{};
    std::vector<AnsageEintrag> ansagen;

    // Tricks.
    Stich stich;                        // the trick in progress (or just completed)
    int sticheGespielt = 0;             // completed tricks
    std::vector<StichProtokoll> stiche;
    ProSitz<int> augen;                 // Augen won per seat
    ProSitz<int> stichzahl;             // tricks won per seat
    std::vector<Sonderpunkt> sonderpunkte;
    std::vector<std::string> spielbericht;  // notes for the game information view

    Spielergebnis ergebnis;
    Ablaufstand ablauf;

    // --- The series.
    Partiestand partie;

    static ProSitz<Steuerung> standardSteuerung() {
        ProSitz<Steuerung> s(Steuerung::Computer);
        s[Sitz(1)] = Steuerung::Mensch;
        return s;
    }

    bool operator==(const Spiel&) const = default;
};

// The side a seat plays on: Re for Re and the solo player, Kontra otherwise
// (a seat not yet placed counts with the Kontra party).
constexpr int seite(int partei) { return partei == ParteiRe || partei == ParteiSolo ? ParteiRe : ParteiKontra; }
inline int seite(const Spiel& spiel, Sitz s) { return seite(spiel.partei[s]); }

}  // namespace engine

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

// Everything about the series of games.
struct Partiestand {
    int partieNr = 1;
    int spielNr = 0;                           // running game number, 1 for the first game
    ProSitz<int> punkte;                       // running totals
    std::array<ProSitz<int>, 96> spieltabelle; // points per game with "Abr_Option" 2
    bool bock = false;                         // next game is a Bock game
    std::optional<Sitz> letzteVorhand;         // Vorhand of the previous game
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

    // --- The game.
    Regeln regeln;                      // rules in force for this game
    Deck deck;
    int spieltyp = Normalspiel;
    Sitz vorhand{1};                    // leads the first trick

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

    // --- The series.
    Partiestand partie;

    bool operator==(const Spiel&) const = default;
};

}  // namespace engine

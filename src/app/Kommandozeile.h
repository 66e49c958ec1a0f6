#pragma once
// The command line: every mode of the program and its options.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace app {

enum class Modus { Spiel, Hilfe, Version, Autoplay, Turnier, Screenshot, Host, Join, Foyer, Ergebnisse };

// What a headless foyer player does there.
enum class Foyerrolle { Keine, TischEroeffnen, PlatzNehmen };

struct Aufruf {
    Modus modus = Modus::Spiel;
    std::optional<std::uint64_t> seed;
    int anzahl = 0;                    // --autoplay N / --tournament N
    std::string regelDatei;            // --rules FILE
    std::string jsonDatei;             // --json FILE|-
    std::string ladeDatei;             // --load FILE
    std::string screenshotDatei;       // --screenshot FILE
    bool statistik = false;            // --stats
    std::vector<std::string> spieler;  // --players A,B
    std::string joinAdresse;           // --join HOST[:PORT]
    std::string foyerAdresse;          // --foyer HOST[:PORT]
    Foyerrolle foyerrolle = Foyerrolle::Keine;  // --open-table / --take-seat
    std::optional<int> port;           // --port P (0: any free port)
    std::string name;                  // --name NAME
    bool automatisch = false;          // --auto
    int spiele = 0;                    // --games N
    int gaeste = 0;                    // --guests K
    std::optional<int> takt;           // --tick MS: the network pump interval
    std::string ergebnisOrdner;        // --upload-results --dir DIR
    std::string smtpHost;              // --smtp HOST[:PORT]
    int smtpPort = 0;                  //   0: the configured port
    std::string absender;              // --from ADDR
    std::string empfaenger;            // --to ADDR
};

struct Auswertung {
    std::optional<Aufruf> aufruf;
    std::string fehler;  // set when the command line is wrong
};

Auswertung kommandozeileAuswerten(const std::vector<std::string>& argumente);

std::string hilfetext();

}  // namespace app

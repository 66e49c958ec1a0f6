#pragma once
// Messages for the table: what the engine wants shown leaves it as data.
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Sitz.h"

namespace engine {

enum class Meldungsart {
    Neugeben,     // a redeal, with the qualifying cards to show
    Schweine,     // the Schweine are announced
    Solo,         // a solo was declared
    Hochzeit,     // a Hochzeit is played, or its partner became known
    Ansage,       // Re, Kontra or a limit
    Umwandlung,   // an announcement moved to the other party
    Sonderpunkt,  // a special point in the trick just taken
    Supersau,     // a trump As was promoted
    Spielende,    // the text of the end box
};

struct Meldung {
    Meldungsart art;
    std::string titel;  // title of the box, empty for none
    std::string text;
    std::optional<Sitz> sitz;  // the seat it is about
    std::vector<int> karten;   // deck positions to show with it
    bool operator==(const Meldung&) const = default;
};

class Meldungssenke {
public:
    virtual ~Meldungssenke() = default;
    virtual void meldung(const Meldung& m) = 0;
};

// Keeps every message; for the table to fetch and for tests.
class Meldungsliste final : public Meldungssenke {
public:
    void meldung(const Meldung& m) override { meldungen.push_back(m); }
    std::vector<Meldung> abholen() { return std::exchange(meldungen, {}); }
    std::vector<Meldung> meldungen;
};

}  // namespace engine

#pragma once
// What the table controller asks of a network table, host or guest. The table
// plays a network game as a local one; only where another machine decides does
// it ask here. Without one the table plays alone.
#include <QString>
#include <optional>

#include "engine/Spielablauf.h"

namespace table {

class Netzanbindung {
public:
    virtual ~Netzanbindung() = default;

    // The host deals once the person started its Partie; a guest never: the host's deal arrives.
    virtual bool darfGeben() const = 0;
    // Whether the Partie is this table's own: a guest's is the host's, so it is
    // neither kept for the next start nor asked about when the program ends.
    virtual bool eigenePartie() const { return true; }
    // Only holds the table still while its player is elsewhere (in the foyer): a
    // Partie the table begins or loads itself takes its place.
    virtual bool nurWartend() const { return false; }
    // A request for a seat played at another machine: the host asks that guest; a
    // guest waits for the host's report. Called again on every step while it is open.
    virtual void anfrageAnNetz(const engine::Anfrage&) {}
    // Whether seat 1 may answer the open request: a guest only once the host asked.
    virtual bool darfAntworten() const { return true; }
    // Seat 1's decisions: a guest hands them to the host (its own cycle checks them
    // first); nothing when the table answers its cycle itself.
    virtual std::optional<engine::Bescheid> antworten(const engine::Antwort&) { return std::nullopt; }
    virtual std::optional<engine::Bescheid> ansagen(const engine::Ansage&) { return std::nullopt; }
    // The status line for the open request, given the engine's text.
    virtual QString status(const engine::Anfrage&, const QString& status) const { return status; }
    // Whether the scored game may be shown: a guest waits for the host's end of game.
    virtual bool spielendeDa() const { return true; }
    // A card is moving, a full trick lies or a box is open: a guest holds the host's cards back meanwhile.
    virtual void anzeigeBeschaeftigt(bool) {}
};

}  // namespace table

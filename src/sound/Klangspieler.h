#pragma once
// Plays the numbered sounds of trumpona.wav through an audio back end, as the
// sound options allow. The main window opens it once at start-up and closes it
// when the program ends.
#include <string>
#include <string_view>

#include "Klanggeraet.h"
#include "Klangtabelle.h"

namespace sound {

inline constexpr std::string_view Klangdateiname = "trumpona.wav";

// The options "Sprachausgabe", "Geräusch" and "Signal".
struct Klangoptionen {
    bool sprachausgabe = true;
    bool geraeusch = true;
    bool signal = true;
    bool operator==(const Klangoptionen&) const = default;
};

class Klangspieler {
public:
    explicit Klangspieler(Klanggeraet& geraet, const Klangtabelle& tabelle = standardKlangtabelle());

    // Opens trumpona.wav in the given folder (the program's own).
    void soundOeffnen(const std::string& programmordner);
    // Plays sound 1..63 unless both speech and sound effects are off; with
    // `warten` it returns when the sound has finished. Other numbers play nothing.
    void soundSpielen(int nummer, bool warten);
    // Closes the file; on a machine without audio output there is nothing to close.
    void soundSchliessen();

    void optionenSetzen(const Klangoptionen& optionen) { optionen_ = optionen; }
    const Klangoptionen& optionen() const { return optionen_; }
    const Klangtabelle& tabelle() const { return tabelle_; }
    // Result of the last command sent to the back end (failures are not shown to the user).
    bool letztesErgebnis() const { return letztesErgebnis_; }

private:
    Klanggeraet& geraet_;
    const Klangtabelle& tabelle_;
    Klangoptionen optionen_;
    bool letztesErgebnis_ = false;
};

}  // namespace sound

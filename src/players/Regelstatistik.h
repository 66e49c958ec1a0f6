#pragma once
// Counts what the rule book did: card decisions, each rule that fired (by
// procedure and code) and how often the last resort had to choose.
#include <map>
#include <string>

#include "Begruendung.h"

namespace players {

class Regelstatistik final : public Begruendungssenke {
public:
    void melden(const Meldung& meldung) override;

    long entscheidungen = 0;
    long rueckfaelle = 0;
    std::map<std::string, long> regeln;  // "Verfahren:Code" -> count

    double rueckfallAnteil() const { return entscheidungen ? double(rueckfaelle) / double(entscheidungen) : 0.0; }
    // One line per rule, then the totals.
    std::string bericht() const;
};

}  // namespace players

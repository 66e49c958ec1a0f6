#pragma once
// The computer players' reasoning leaves them as data: the table window shows the
// texts marked for display (reasoning switch on), the statistics count every event.
#include <optional>
#include <string>
#include <vector>

#include "engine/Sitz.h"

namespace players {

enum class Meldungsart {
    Entscheidung,  // a seat starts choosing a card (leads and follows)
    Regel,         // a rule of a procedure fired: verfahren + code + text
    Hinweis,       // a plain message box (bluff, fault, filter, "Ratlos", ...)
    Rueckfall,     // the last-resort procedure had to choose the card
};

struct Meldung {
    Meldungsart art = Meldungsart::Hinweis;
    std::optional<engine::Sitz> sitz;  // deciding seat; none for knowledge updates
    std::string verfahren;             // "AusspielWaehlen", "abwerfen", ...
    std::string code;                  // rule code within the procedure
    std::string text;                  // as shown to the user
    bool anzeigen = false;             // reasoning display switched on (MsgBoxModus 1)
};

class Begruendungssenke {
public:
    virtual ~Begruendungssenke() = default;
    virtual void melden(const Meldung& meldung) = 0;
};

// Forwards to several sinks (table window and statistics at once).
class Senkenverteiler final : public Begruendungssenke {
public:
    void hinzufuegen(Begruendungssenke& senke) { senken_.push_back(&senke); }
    void melden(const Meldung& meldung) override {
        for (auto* s : senken_) s->melden(meldung);
    }

private:
    std::vector<Begruendungssenke*> senken_;
};

// Keeps every message; for tests and the trick viewer.
class Meldungsliste final : public Begruendungssenke {
public:
    void melden(const Meldung& meldung) override { meldungen.push_back(meldung); }
    std::vector<Meldung> meldungen;
};

}  // namespace players

#pragma once
// The computer players' reasoning as message boxes: while the reasoning switch
// is on, every rule that fired and every plain message of the rule book waits
// here until the table shows it, one modal box after the other.
#include <QString>
#include <vector>

#include "engine/Spiel.h"
#include "players/Begruendung.h"

class QWidget;

namespace table {

struct Begruendungsbox {
    QString titel;
    QString text;
};

// A rule's box is titled with the deciding seat's name; plain messages with the program's.
Begruendungsbox begruendungsbox(const players::Meldung& m, const engine::ProSitz<std::string>& namen);

class Begruendungsanzeige final : public players::Begruendungssenke {
public:
    // Keeps the messages marked for display; the statistics' events are not for people.
    void melden(const players::Meldung& m) override;
    bool leer() const { return offen_.empty(); }
    void verwerfen() { offen_.clear(); }
    // Shows each kept message in a modal box, in the order they came.
    void zeigen(QWidget* eltern, const engine::ProSitz<std::string>& namen);

private:
    std::vector<players::Meldung> offen_;
};

}  // namespace table

#include <gtest/gtest.h>

#include "QtAusgabe.h"
#include "table/Begruendungsanzeige.h"

namespace {

using players::Meldung;
using players::Meldungsart;

engine::ProSitz<std::string> namen() {
    engine::ProSitz<std::string> n;
    n[engine::Sitz(1)] = "Ich";
    n[engine::Sitz(2)] = "Anna";
    n[engine::Sitz(3)] = "Bert";
    n[engine::Sitz(4)] = "Cleo";
    return n;
}

TEST(Begruendungsanzeige, BoxZeigtSatzUndRegel) {
    const struct { Meldung meldung; const char* titel; const char* text; } faelle[] = {
        // The sentence names its rule already.
        {{Meldungsart::Regel, engine::Sitz(3), "abwerfen", "DH030", "Mld.(abwerfen):DH030 Werfe Kleinste ab!", true},
         "Überlegung von Bert", "Mld.(abwerfen):DH030 Werfe Kleinste ab!"},
        // It does not: the rule is added below.
        {{Meldungsart::Regel, engine::Sitz(2), "AusspielWaehlen", "00", "Relativ zufällig ausspielen!", true},
         "Überlegung von Anna", "Relativ zufällig ausspielen!\n\nRegel AusspielWaehlen 00"},
        // Plain messages of the knowledge belong to nobody.
        {{Meldungsart::Hinweis, std::nullopt, "", "", "Spieler 2 läßt sich bluffen", true}, "Trumpona",
         "Spieler 2 läßt sich bluffen"},
    };
    for (const auto& f : faelle) {
        const table::Begruendungsbox box = table::begruendungsbox(f.meldung, namen());
        EXPECT_EQ(box.titel, QString::fromUtf8(f.titel));
        EXPECT_EQ(box.text, QString::fromUtf8(f.text));
    }
}

TEST(Begruendungsanzeige, BehaeltNurWasGezeigtWerdenSoll) {
    const struct { Meldung meldung; bool behalten; } faelle[] = {
        {{Meldungsart::Regel, engine::Sitz(2), "abwerfen", "DH030", "Satz", true}, true},
        {{Meldungsart::Hinweis, std::nullopt, "", "", "Satz", true}, true},
        {{Meldungsart::Regel, engine::Sitz(2), "abwerfen", "DH030", "Satz", false}, false},  // switch was off
        {{Meldungsart::Entscheidung, engine::Sitz(2), "", "", "", true}, false},               // for the statistics
        {{Meldungsart::Rueckfall, engine::Sitz(2), "Regelwerk", "", "", true}, false},
    };
    for (const auto& f : faelle) {
        table::Begruendungsanzeige anzeige;
        anzeige.melden(f.meldung);
        EXPECT_EQ(!anzeige.leer(), f.behalten) << static_cast<int>(f.meldung.art);
    }
}

}  // namespace

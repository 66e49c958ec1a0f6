#pragma once
// The rule book as it played before its whole following rule book: the player kind
// "regelwerk1", kept for measuring (tournaments against it), not offered at the table.
// Leads, reservations and announcements are the rule book's own; the follow
// procedures are a frozen copy (Regelwerk1Folgen.cpp).
#include "Lage.h"

namespace players::regelwerk1 {

// The frozen follow dispatcher; never 0.
int bedienenWaehlen(const Lage& lage);

// The frozen filters it uses (Regelwerk1Filter.cpp).
int dolleBeimUebernehmen(const Lage& lage, int karte);
int freispielenFilter(const Lage& lage, int karte);
int fuchsKarlchenDolleFilter(const Lage& lage, int karte);
int dolleNagelnFilter(const Lage& lage, int karte);
int herzFilter(const Lage& lage, int karte);

}  // namespace players::regelwerk1

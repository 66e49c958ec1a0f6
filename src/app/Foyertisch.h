#pragma once
// The foyer's table side at the window: "open a table" hosts one at this window
// and announces it with its free seats, "take a seat" joins the table offered,
// going back to the foyer leaves the table here (the window then waits without
// dealing), and so does a guest whose table is lost. The foyer's traffic goes
// into the table's protocol log.
namespace foyer {
class Foyerprogramm;
}
namespace table {
class Netzspiel;
class Tischprogramm;
}

namespace app {

void foyerTischVerbinden(foyer::Foyerprogramm& foyer, table::Netzspiel& netz, const table::Tischprogramm& programm);

}  // namespace app

#include "Regelwerk.h"

#include "Verfahren.h"

namespace players {

int Regelwerk::karteWaehlen(const Spiel& spiel, Sitz sitz) {
    // A game loaded or taken over midway: rebuild what the table has seen.
    if (!wissen_.aktuell(spiel)) wissen_.nachvollziehen(spiel);
    wissen_.zugVorbereiten(spiel, sitz);
    const Melder melder(senke_, sitz, wissen_.msgBoxModus == MsgBoxZeigen);
    melder.entscheidung();
    const Lage lage(spiel, wissen_, sitz, melder, zufall_);
    if (lage.erlaubt.empty()) return 0;
    int karte = lage.anzahl == 0 ? ausspielWaehlen(lage) : bedienenWaehlen(lage);
    if (!istErlaubt(lage, karte)) {
        melder.rueckfall("Regelwerk");
        karte = rueckfallKarte(lage);
    }
    return karte;
}

}  // namespace players

#include "Klangspieler.h"

namespace sound {

Klangspieler::Klangspieler(Klanggeraet& geraet, const Klangtabelle& tabelle) : geraet_(geraet), tabelle_(tabelle) {}

void Klangspieler::soundOeffnen(const std::string& programmordner) {
    std::string pfad = programmordner;
    if (!pfad.empty() && pfad.back() != '/' && pfad.back() != '\\') pfad += '/';
    pfad += Klangdateiname;
    letztesErgebnis_ = geraet_.oeffnen(pfad);
}

void Klangspieler::soundSpielen(int nummer, bool warten) {
    if (!optionen_.sprachausgabe && !optionen_.geraeusch) return;
    const Klangeintrag* eintrag = tabelle_.eintrag(nummer);
    if (!eintrag) {
        letztesErgebnis_ = false;
        return;
    }
    letztesErgebnis_ = geraet_.spielen(eintrag->segment, warten);
}

void Klangspieler::soundSchliessen() {
    if (geraet_.ausgabeVorhanden()) geraet_.schliessen();
}

}  // namespace sound

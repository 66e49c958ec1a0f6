#include "Spielliste.h"

#include <iomanip>

namespace app {

using engine::Sitz;

void Spielliste::spielGewertet(const engine::Spiel& s) {
    if (zeilen_.empty() || zeilen_.back().partie != s.partie.partieNr) zeilen_.push_back({s.partie.partieNr, 0, false, {}});
    zeilen_.back().spiele = s.partie.spielNr;
    zeilen_.back().beendet = s.ergebnis.partieEnde;
    zeilen_.back().stand = s.partie.punkte;
}

void Spielliste::schreiben(std::ostream& aus, const engine::Spiel& spiel, int spiele, std::uint64_t seed) const {
    aus << "Spielliste: " << spiele << " Spiele, Startwert " << seed << "\n";
    aus << std::setw(7) << "Partie" << std::setw(8) << "Spiele";
    for (const Sitz s : engine::alleSitze) aus << std::setw(12) << spiel.namen[s];
    aus << "\n";
    engine::ProSitz<int> summe(0);
    for (const Partiezeile& z : zeilen_) {
        aus << std::setw(7) << z.partie << std::setw(8) << z.spiele;
        for (const Sitz s : engine::alleSitze) {
            aus << std::setw(12) << z.stand[s];
            summe[s] += z.stand[s];
        }
        aus << (z.beendet ? "" : "  (läuft)") << "\n";
    }
    aus << std::setw(15) << "Summe";
    for (const Sitz s : engine::alleSitze) aus << std::setw(12) << summe[s];
    aus << "\n";
}

}  // namespace app

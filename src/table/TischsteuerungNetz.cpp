// The table at a network game: answers and announcements go through the connection,
// the other seats' cards arrive from it and are laid one after the other.
#include "Tischsteuerung.h"

#include "Hauptfenster.h"
#include "Netzanbindung.h"
#include "Tischansicht.h"

namespace table {

using engine::Antwort;
using engine::Sitz;
using engine::Steuerung;

void Tischsteuerung::netzAnbinden(Netzanbindung* netz) {
    netz_ = netz;
    begonnen_ = true;
    ablaufZuruecksetzen();
    begruendungen_.verwerfen();
    zeilen_.clear();
    angaben_.clear();
    letztesSpiel_ = engine::Spiel{};
    letzteBegruendungen_ = {};
    spiel_.automatik = false;
    spiel_.steuerung = engine::Spiel::standardSteuerung();
    hfo_.tisch().bewegungAbbrechen();
    hfo_.partieendeAnzeigen(false);
    ablauf_.neuePartie();
    hfo_.tisch().setzeStichSichtbar(true);
    weiter();
}

void Tischsteuerung::netzBeschaeftigtMelden() {
    if (!netz_) return;
    netz_->anzeigeBeschaeftigt(beschaeftigt_ || imDialog() || !fremdeKarten_.empty() ||
                               spiel_.ablauf.phase == engine::Spielphase::StichVoll);
}

void Tischsteuerung::karteGespielt(const engine::Spiel&, Sitz sitz, int pos) {
    if (spiel_.steuerung[sitz] != Steuerung::Netz) return;
    fremdeKarten_.emplace_back(pos, sitz);
    netzBeschaeftigtMelden();
}

engine::Bescheid Tischsteuerung::beantworten(const Antwort& antwort) {
    if (netz_)
        if (const auto b = netz_->antworten(antwort)) return *b;
    return ablauf_.antworten(antwort);
}

engine::Bescheid Tischsteuerung::ansagen(Sitz sitz, const engine::Ansage& ansage) {
    if (netz_ && sitz == Sitz(1))
        if (const auto b = netz_->ansagen(ansage)) return *b;
    return ablauf_.ansagen(sitz, ansage);
}

int Tischsteuerung::gelegteKarte(Sitz sitz, int gewaehlt) const {
    const int platz = spiel_.stich.platz[sitz];
    return platz > 0 ? spiel_.stich.karte(platz) : gewaehlt;
}

}  // namespace table

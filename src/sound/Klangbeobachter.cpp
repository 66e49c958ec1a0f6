#include "Klangbeobachter.h"

namespace sound {

using engine::Sitz;
using engine::Spiel;

std::int64_t Klangbeobachter::steadyMs() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

Klangbeobachter::Klangbeobachter(Klangspieler& spieler, Uhr uhr) : spieler_(spieler), uhr_(std::move(uhr)) {}

void Klangbeobachter::spielen(Klang klang) {
    const Klangzuordnung& z = zuordnung(klang);
    const Klangoptionen& o = spieler_.optionen();
    const bool erlaubt = z.schalter == Klangschalter::Sprachausgabe ? o.sprachausgabe
                         : z.schalter == Klangschalter::Geraeusch  ? o.geraeusch
                                                                   : o.signal;
    if (!erlaubt) return;
    const std::int64_t jetzt = uhr_();
    const bool sprache = z.schalter == Klangschalter::Sprachausgabe;
    if (!sprache && jetzt < spracheBis_) return;
    spieler_.soundSpielen(z.nummer, false);
    if (sprache) {
        const Klangeintrag* e = spieler_.tabelle().eintrag(z.nummer);
        spracheBis_ = jetzt + (e ? e->segment.dauer() : 0);
    }
}

void Klangbeobachter::spielAnfang(const Spiel& spiel) {
    schweineGesagt_ = false;
    punkteVorher_ = spiel.partie.punkte;
}

void Klangbeobachter::kartenGegeben(const Spiel& spiel) { spielAnfang(spiel); }

void Klangbeobachter::spielBegonnen(const Spiel& spiel) {
    spielAnfang(spiel);
    if (spiel.solo && spiel.solist) {
        if (const auto k = soloKlang(spiel.spieltyp, franzoesisch_)) spielen(*k);
        return;
    }
    if (spiel.hochzeiter) {
        spielen(Klang::Hochzeit);
        return;
    }
    // Schweine shown before the first card: the holder is the person here, or the
    // rules want them announced. Otherwise they are heard with the first one played.
    if (spiel.schweineHalter && (*spiel.schweineHalter == Sitz(1) || spiel.regeln.schweineAnsagen)) {
        spielen(Klang::Schweine);
        schweineGesagt_ = true;
    }
}

void Klangbeobachter::karteGespielt(const Spiel& spiel, Sitz sitz, int) {
    spielen(Klang::KarteGespielt);
    if (!schweineGesagt_ && spiel.schweineHalter == sitz && spiel.schweineGespielt[sitz] > 0) {
        spielen(Klang::Schweine);
        schweineGesagt_ = true;
    }
}

void Klangbeobachter::stichKomplett(const Spiel&, Sitz) { spielen(Klang::StichEingesammelt); }

void Klangbeobachter::ansageGemacht(const Spiel&, const engine::AnsageEintrag& ansage) {
    if (ansage.limit) {
        if (const auto k = limitKlang(ansage.limitCode)) spielen(*k);
        return;
    }
    spielen(ansage.partei == engine::ParteiKontra ? Klang::Kontra : Klang::Re);
}

void Klangbeobachter::spielBeendet(const Spiel& spiel) {
    if (!punkteVorher_) return;
    const engine::ProSitz<int> vorher = *punkteVorher_;
    punkteVorher_.reset();
    // The booking decides, so reversals by special points and limits count:
    // the winners' totals grow, a kalter Schlag changes nothing.
    const auto gewann = [&](Sitz s) { return spiel.partie.punkte[s] > vorher[s]; };
    if (gewann(Sitz(1))) {
        spielen(Klang::SpielGewonnen);
    } else if (gewann(Sitz(2)) || gewann(Sitz(3)) || gewann(Sitz(4))) {
        spielen(Klang::SpielVerloren);
    }
}

}  // namespace sound

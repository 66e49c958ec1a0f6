#include "Ansagemenue.h"

#include "Tischtexte.h"

namespace table {

std::string limittext(int limitCode) {
    std::string t = texte::LimitKein;
    switch (limitCode) {
        case engine::Keine90: return t + texte::LimitE + "90)";
        case engine::Keine60: return t + texte::LimitE + "60)";
        case engine::Keine30: return t + texte::LimitE + "30)";
        default: return t + texte::LimitStich;
    }
}

bool limitZuFrueh(const engine::Spiel& spiel) { return spiel.sticheGespielt == 0 && spiel.stich.anzahl == 0; }

Ansagemenue ansagemenue(const engine::Spiel& spiel, bool laeuft, engine::Sitz mensch) {
    Ansagemenue menue;
    const int partei = spiel.partei[mensch];
    const bool re = partei == engine::ParteiRe || partei == engine::ParteiSolo;
    bool parteiHatAngesagt = false;
    for (const engine::Sitz s : engine::alleSitze) parteiHatAngesagt |= re ? spiel.reAngesagt[s] : spiel.kontraAngesagt[s];
    const bool selbst = re ? spiel.reAngesagt[mensch] : spiel.kontraAngesagt[mensch];
    menue.reKontra.text = re ? (selbst ? texte::ReAusgerufen : texte::ReAusrufen)
                             : (selbst ? texte::KontraGegeben : texte::KontraGeben);
    // "up to and including the n-th trick": the n-th trick is the one running while n-1 are complete.
    const bool imKontraZeitraum = spiel.regeln.kontra > 0 && spiel.sticheGespielt < spiel.regeln.kontra;
    menue.reKontra.aktiv = laeuft && imKontraZeitraum && partei != engine::ParteiUnbekannt && !parteiHatAngesagt;

    const bool imLimitZeitraum = spiel.regeln.limit > 0 && spiel.sticheGespielt < spiel.regeln.limit;
    for (std::size_t i = 0; i < menue.limits.size(); ++i) {
        menue.limits[i].text = limittext(LimitcodesImMenue[i]);
        menue.limits[i].aktiv = laeuft && imLimitZeitraum && !spiel.limitSitz;
    }
    return menue;
}

}  // namespace table

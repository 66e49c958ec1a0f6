#include "Regeln.h"

namespace engine {

const std::array<RegelSchluessel, 30>& regelSchluessel() {
    using O = RegelOptionen;
    using R = Regeln;
    static const std::array<RegelSchluessel, 30> tabelle{{
        {"Abr_Option", &O::abrOption, nullptr, &R::abrOption, 2},
        {"Ende_bei", &O::endeBei, nullptr, &R::endeBei, 30},
        {"Ende_nach", &O::endeNach, nullptr, &R::endeNach, 24},
        {"Vorhand", &O::vorhand, nullptr, &R::vorhand, 0},
        {"Kontra", &O::kontra, nullptr, &R::kontra, 5},
        {"Limit", &O::limit, nullptr, &R::limit, 5},
        {"HerzZehn", &O::herzZehn, &R::herzZehn, nullptr, -1},
        {"Joker", &O::joker, &R::joker, nullptr, 0},
        {"Solo", &O::solo, &R::solo, nullptr, 0},
        {"Vh_Solo", &O::vhSolo, &R::vhSolo, nullptr, 0},
        {"Hh_n_Solo", &O::hhNSolo, &R::hhNSolo, nullptr, 0},
        {"Bockrunden", &O::bockrunden, &R::bockrunden, nullptr, 0},
        {"Sopu_Fuchs", &O::sopuFuchs, &R::sopuFuchs, nullptr, 0},
        {"Sopu_doppelfuchs", &O::sopuDoppelfuchs, &R::sopuDoppelfuchs, nullptr, 0},
        {"Sopu_karlchen", &O::sopuKarlchen, &R::sopuKarlchen, nullptr, -1},
        {"Sopu_doppelkarlchen", &O::sopuDoppelkarlchen, &R::sopuDoppelkarlchen, nullptr, 0},
        {"Sopu_rupa_b_Solo", &O::sopuRupaBSolo, &R::sopuRupaBSolo, nullptr, 0},
        {"Sopu_Dollenschlag", &O::sopuDollenschlag, &R::sopuDollenschlag, nullptr, 0},
        {"Sopu_Herzstich", &O::sopuHerzstich, &R::sopuHerzstich, nullptr, 0},
        {"DaBu_Solo", &O::dabuSolo, &R::dabuSolo, nullptr, 0},
        {"Neunerwerfen", &O::neunerwerfen, &R::neunerwerfen, nullptr, 0},
        {"Koenigewerfen", &O::koenigewerfen, &R::koenigewerfen, nullptr, 0},
        {"Armut", &O::armut, &R::armut, nullptr, 0},
        {"Scharfer_Rupa", &O::scharferRupa, &R::scharferRupa, nullptr, 0},
        {"Zwei_Schweine", &O::zweiSchweine, &R::zweiSchweine, nullptr, 0},
        {"Schweine_ansagen", &O::schweineAnsagen, &R::schweineAnsagen, nullptr, 0},
        {"Schweine_b_TrSolo", &O::schweineBTrSolo, &R::schweineBTrSolo, nullptr, 0},
        {"Supersau", &O::supersau, &R::supersau, nullptr, 0},
        {"Stille_befoerderung", &O::stilleBefoerderung, &R::stilleBefoerderung, nullptr, 0},
        {"Solis", &O::solis, &R::solis, nullptr, -1},
    }};
    return tabelle;
}

void jokerAbgleichen(RegelOptionen& gespeichert) {
    if (gespeichert.herzZehn != -1) gespeichert.joker = 0;
}

Regeln regelnUebernehmen(const RegelOptionen& gespeichert) {
    RegelOptionen o = gespeichert;
    jokerAbgleichen(o);
    Regeln r;
    for (const auto& e : regelSchluessel()) {
        const int wert = o.*(e.gespeichert);
        if (e.schalter) r.*(e.schalter) = wert == -1;
        else r.*(e.zahl) = wert;
    }
    r.kartenanzahl = r.scharferRupa ? 40 : 48;
    return r;
}

int regelWert(const Regeln& regeln, const RegelSchluessel& eintrag) {
    if (eintrag.schalter) return regeln.*(eintrag.schalter) ? -1 : 0;
    return regeln.*(eintrag.zahl);
}

}  // namespace engine

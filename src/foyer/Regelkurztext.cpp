#include "Regelkurztext.h"

#include "Foyertexte.h"

namespace foyer {

std::string regelKurztext(const engine::RegelOptionen& r) {
    std::string text = std::to_string(r.scharferRupa != 0 ? 40 : 48) + std::string(texte::Karten);
    if (r.abrOption == 1)
        text += std::string(texte::EndeBei) + std::to_string(r.endeBei) + std::string(texte::Punkten);
    else
        text += std::string(texte::EndeNach) + std::to_string(r.endeNach) + std::string(texte::Spielen);
    if (r.joker != 0) text += texte::MitJoker;
    if (r.zweiSchweine != 0) text += texte::MitSchweinen;
    if (r.solis == 0) text += texte::OhneSolo;
    return text;
}

}  // namespace foyer

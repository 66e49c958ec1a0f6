#pragma once
// A decision procedure is an ordered table of rules; the order of the table is the
// order of evaluation, so the rule book can be read, tested and extended as data.
#include <span>
#include <string_view>

#include "Lage.h"

namespace players {

// A rule reads the game through a view: the seat's `Lage`, or a view built on it
// (`lageVon` leads back to the Lage).
template <class Sicht>
struct RegelFuer {
    std::string_view code;
    std::string_view text;             // reasoning text as shown; empty when the choice reports itself
    bool (*bedingung)(const Sicht&);
    int (*wahl)(const Sicht&);         // a card of the own hand, 0 when none fits after all
};
using Regel = RegelFuer<Lage>;

inline const Lage& lageVon(const Lage& lage) { return lage; }

bool istErlaubt(const Lage& lage, int pos);

// The card of the first rule whose condition holds and whose choice is a legal card;
// that rule is reported. 0 when no rule fired.
template <class Sicht>
int regelnAnwenden(std::span<const RegelFuer<Sicht>> regeln, const Sicht& sicht, std::string_view verfahren) {
    const Lage& lage = lageVon(sicht);
    for (const auto& r : regeln) {
        if (!r.bedingung(sicht)) continue;
        const int karte = r.wahl(sicht);
        if (!istErlaubt(lage, karte)) continue;
        lage.melder.regel(verfahren, r.code, r.text);
        return karte;
    }
    return 0;
}
int regelnAnwenden(std::span<const Regel> regeln, const Lage& lage, std::string_view verfahren);

// Procedure names as the reasoning and the statistics name them.
namespace verfahren {
inline constexpr std::string_view Ausspiel = "AusspielWaehlen";
inline constexpr std::string_view FarbeBedienen = "Farbe_bedienen";
inline constexpr std::string_view TrumpfBedienen = "Trumpf_bedienen";
inline constexpr std::string_view Stechen = "stechen_oder_abwerfen";
inline constexpr std::string_view Abwerfen = "abwerfen";
inline constexpr std::string_view Filter = "Filter";
inline constexpr std::string_view Bedienen = "BedienenWaehlen";
inline constexpr std::string_view SoloPruefen = "SoloPruefen";
inline constexpr std::string_view Solospiel = "Solospiel";
inline constexpr std::string_view Vorbehalt = "Vorbehalt";
inline constexpr std::string_view KontraPruefen = "KontraPruefen";
inline constexpr std::string_view LimitPruefen = "LimitPruefen";
}  // namespace verfahren

}  // namespace players

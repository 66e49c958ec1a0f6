#pragma once
// A decision procedure is an ordered table of rules; the order of the table is the
// order of evaluation, so the rule book can be read, tested and extended as data.
#include <span>
#include <string_view>

#include "Lage.h"

namespace players {

struct Regel {
    std::string_view code;
    std::string_view text;             // reasoning text as shown; empty when the choice reports itself
    bool (*bedingung)(const Lage&);
    int (*wahl)(const Lage&);          // a card of the own hand, 0 when none fits after all
};

// The card of the first rule whose condition holds and whose choice is a legal card;
// that rule is reported. 0 when no rule fired.
int regelnAnwenden(std::span<const Regel> regeln, const Lage& lage, std::string_view verfahren);

bool istErlaubt(const Lage& lage, int pos);

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

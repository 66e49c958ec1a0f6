#pragma once
// The German texts of the table window, in one place.

namespace table::texte {

// Name plates and the party pictures.
inline constexpr char Augen[] = "Augen: ";
inline constexpr char ParteiRe[] = "Re";
inline constexpr char ParteiKontra[] = "Kontra";
inline constexpr char ParteiUnbekannt[] = "?";

}  // namespace table::texte

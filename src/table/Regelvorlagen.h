#pragma once
// Rule presets of the settings dialog: "Turnierregeln", "Einsteiger" and the
// person's own "Hausregeln (eigene)". A preset sets only existing rule options; the
// dialog shows which preset the options in it match.
#include <string>
#include <utility>
#include <vector>

#include "engine/Regeln.h"

namespace table {

struct Regelvorlage {
    std::string name;
    std::vector<std::pair<std::string, int>> werte;  // options-file key, stored value
};

// The key names a rule option (not a display or sound option).
bool istRegel(const std::string& schluessel);

// The two presets that come with the program.
const std::vector<Regelvorlage>& festeVorlagen();

// The options with the preset's values put in.
engine::RegelOptionen anwenden(engine::RegelOptionen regeln, const Regelvorlage& vorlage);
// Every value of the preset holds (a switch counts as on only at -1, as in the game).
bool passt(const engine::RegelOptionen& regeln, const Regelvorlage& vorlage);

// The own house rules: every rule option, kept as "Key=Wert;..." in the per-user store.
Regelvorlage hausregeln(const engine::RegelOptionen& regeln);
std::string hausregelnText(const Regelvorlage& vorlage);
// Unknown keys and values that are no numbers are left out.
Regelvorlage hausregelnAusText(const std::string& text);

}  // namespace table

#pragma once
// The stored options as the table window takes them.
#include "settings/Einstellungen.h"
#include "table/Anzeigeoptionen.h"

namespace table {
class Tischsteuerung;
}

namespace app {

table::Anzeigeoptionen anzeigeoptionen(const settings::Einstellungen& e);
// Names, rules and display options into the table's controller.
void einstellungenUebernehmen(table::Tischsteuerung& steuerung, const settings::Einstellungen& e);

}  // namespace app

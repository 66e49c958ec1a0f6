#pragma once
// The rules of a table in a few words, for its announcement in the foyer.
#include <string>

#include "engine/Regeln.h"

namespace foyer {

std::string regelKurztext(const engine::RegelOptionen& regeln);

}  // namespace foyer

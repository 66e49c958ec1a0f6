#pragma once
// One finished game as one line of JSON, for --autoplay --json.
#include <string>

#include "engine/Spiel.h"

namespace app {

std::string spielAlsJson(const engine::Spiel& spiel);

// A JSON string literal with its quotes.
std::string jsonText(const std::string& text);

}  // namespace app

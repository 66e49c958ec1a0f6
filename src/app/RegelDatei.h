#pragma once
// Reads the rule options of an options file ("Optionen" section, -1/0 switches,
// Windows-1252 or UTF-8, CRLF or LF). A small reader for --rules; the settings
// store replaces it with the full one.
#include <optional>
#include <string>
#include <string_view>

#include "engine/Regeln.h"

namespace app {

// Keys missing from the text keep their defaults; keys compare without case.
engine::RegelOptionen regelnAusText(std::string_view text);

// Empty with `fehler` set when the file cannot be read.
std::optional<engine::RegelOptionen> regelDateiLesen(const std::string& pfad, std::string& fehler);

}  // namespace app

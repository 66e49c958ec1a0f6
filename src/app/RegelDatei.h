#pragma once
// The options file named by --rules, read by the settings store's reader.
#include <optional>
#include <string>

#include "settings/Einstellungen.h"

namespace app {

// Empty with `fehler` set when the file cannot be read; missing keys keep their defaults.
std::optional<settings::Einstellungen> optionenLesen(const std::string& pfad, std::string& fehler);

}  // namespace app

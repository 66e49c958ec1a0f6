#pragma once
// Player names at a network table: the checks of the login dialog, and what the
// host makes of whatever name a guest sends.
#include <optional>
#include <string>
#include <string_view>

namespace net {

inline constexpr std::size_t MaxNamenlaenge = 13;

// The login's checks in their order; the message to show, or nothing for a valid
// name. Letters are those of Windows-1252, umlauts included.
std::optional<std::string> namePruefen(std::string_view name);

// A name as received (Windows-1252 bytes) made fit for the table: control
// characters dropped, cut to 13 characters; UTF-8.
std::string nameBereinigen(std::string_view bytes);

}  // namespace net

#pragma once
// The German texts are UTF-8 (constants, and strings from the engine); the widgets take QString.
#include <QString>
#include <string_view>

namespace table {

inline QString t(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

}  // namespace table

#include "Anzeigeoptionen.h"

namespace table {

QColor ausWindowsFarbe(int wert) {
    const auto w = static_cast<unsigned>(wert);
    return QColor(static_cast<int>(w & 0xFFu), static_cast<int>((w >> 8) & 0xFFu), static_cast<int>((w >> 16) & 0xFFu));
}

int zuWindowsFarbe(const QColor& farbe) { return farbe.red() | (farbe.green() << 8) | (farbe.blue() << 16); }

}  // namespace table

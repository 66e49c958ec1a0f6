#include "Anzeigeoptionen.h"

namespace table {

Anzeigeoptionen anzeigeoptionen(const settings::Einstellungen& e) {
    Anzeigeoptionen o;
    o.kartenbild = e.kartenbild;
    o.rueckseite = e.rueckseite;
    o.animation = e.animation != 0;
    o.boxen = e.boxen != 0;
    o.einsammeln = e.einsammeln;
    o.augenZeigen = e.augenZeigen != 0;
    o.parteiZeigen = e.parteiZeigen != 0;
    o.spielbareHervorheben = e.karten != 0;
    o.hintergrund = e.hintergrund;
    o.vordergrund = e.vordergrund;
    return o;
}

QColor ausWindowsFarbe(int wert) {
    const auto w = static_cast<unsigned>(wert);
    return QColor(static_cast<int>(w & 0xFFu), static_cast<int>((w >> 8) & 0xFFu), static_cast<int>((w >> 16) & 0xFFu));
}

int zuWindowsFarbe(const QColor& farbe) { return farbe.red() | (farbe.green() << 8) | (farbe.blue() << 16); }

}  // namespace table

#pragma once
// The display options of the table, with the defaults of a fresh installation.
#include <QColor>

#include "settings/Einstellungen.h"

namespace table {

struct Anzeigeoptionen {
    int kartenbild = 1;            // 1 and 3 French pictures, every other German
    int rueckseite = 5;            // number of the card back
    bool animation = true;
    bool boxen = true;             // messages of the game in boxes, otherwise in the status line
    int einsammeln = 0;            // 0 collect at once, otherwise wait for a click
    bool augenZeigen = true;
    bool parteiZeigen = true;
    bool spielbareHervorheben = true;  // "Karten": cards that may not be played are shaded
    int hintergrund = 6196318;     // Windows colour value (0x00BBGGRR)
    int vordergrund = 0;
};

// The display options among the stored ones.
Anzeigeoptionen anzeigeoptionen(const settings::Einstellungen& e);

// A Windows colour value holds red in the lowest byte, then green, then blue.
QColor ausWindowsFarbe(int wert);
int zuWindowsFarbe(const QColor& farbe);

}  // namespace table

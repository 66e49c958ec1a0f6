#pragma once
// The pace of the table ("Tempo" in the Anzeige tab): off (cards jump, no movement),
// fast, normal (the pace the table always had) and slow.
#include "Tischsteuerung.h"

namespace table {

enum Tempostufe : int { TempoAus = 0, TempoSchnell = 1, TempoNormal = 2, TempoLangsam = 3 };

// The pauses and movements of a step; an unknown step is normal.
Tempo tempoFuer(int stufe);

}  // namespace table

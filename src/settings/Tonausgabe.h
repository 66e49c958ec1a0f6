#pragma once
// Whether sound can be played: the sound module finds an audio output device. Tests replace
// the check so they do not depend on the machine's devices.
#include <functional>

#include "Einstellungen.h"

namespace settings {

bool tonVerfuegbar();
// An empty function restores the check of the real devices.
void setzeTonpruefung(std::function<bool()> pruefung);

// The context of an ordinary read at start: sound as the machine has it.
Lesekontext startLesekontext();

}  // namespace settings

#pragma once
// trumpona --autoplay N --load FILE: computer players play a saved Partie on.
#include <ostream>

#include "Kommandozeile.h"

namespace app {

// A refused file prints the German messages of the loading flow to `fehler` and
// returns 2; otherwise the score sheet goes to `aus` and the autoplay's status is returned.
int geladenePartieSpielen(const Aufruf& aufruf, std::ostream& aus, std::ostream& fehler);

}  // namespace app

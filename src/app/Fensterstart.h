#pragma once
// The desktop game: the main window and a new Partie.
#include "Kommandozeile.h"

namespace app {

int spielStarten(const Aufruf& aufruf, int& argc, char** argv);

}  // namespace app

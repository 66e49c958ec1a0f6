#pragma once
// --foyer without a window: meet on the chat server, then open a table there or
// sit down at the first one with a free seat, and play it with the computer.
#include "Kommandozeile.h"

namespace app {

int foyerStarten(const Aufruf& aufruf, int& argc, char** argv);

}  // namespace app

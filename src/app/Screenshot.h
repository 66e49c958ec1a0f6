#pragma once
// trumpona --screenshot FILE [--seed S]: the table in the middle of a seeded game as PNG.
#include "Kommandozeile.h"

namespace app {

int screenshotSchreiben(const Aufruf& aufruf, int& argc, char** argv);

}  // namespace app

#pragma once
// trumpona --upload-results: mails every waiting result file without a window,
// one line per file, exit status 0 when all went out, 1 otherwise.
#include "Kommandozeile.h"

namespace app {

int ergebnisseSenden(const Aufruf& aufruf, int& argc, char** argv);

}  // namespace app

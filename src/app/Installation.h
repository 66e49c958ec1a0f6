#pragma once
// Where the program finds what is installed with it.
#include <QString>

namespace app {

// The folder holding "trumpona.wav": beside the program (the build tree, a copied
// folder), otherwise <prefix>/share/trumpona of an installation.
QString klangordner(const QString& programmordner);

}  // namespace app

#pragma once
// The result files on disk: written atomically into the program's data folder,
// listed in the order they were written.
#include <QString>
#include <QStringList>

#include "Ergebnisdatei.h"

namespace services {

// "Trumpona" and the version, as the result files and the X-Mailer name the program.
QString programmkennung();

// QStandardPaths::AppDataLocation: the program folder of the result files.
QString ergebnisordner();

// Names of the files in `ordner` that wait to be sent ("RPPT12*.D4T"), oldest stamp first.
QStringList wartendeErgebnisse(const QString& ordner);

// Writes "RPPT12" + stamp + ".D4T" through QSaveFile; returns its path, empty when
// it could not be written. The stamp is the end time, with "-2", "-3", ... when
// a file of that second exists.
QString ergebnisSchreiben(const QString& ordner, const Turnierergebnis& ergebnis);

// A result file larger than this is no file of ours; it is not read into memory.
inline constexpr qint64 MaxDateigroesse = 64 * 1024;

}  // namespace services

#pragma once
// German standard buttons ("Ja", "Nein", "Abbrechen") from Qt's own translation.
class QCoreApplication;

namespace table {

// Installs Qt's German translation into the application; false when it is missing.
bool qtUebersetzungLaden(QCoreApplication& anwendung);

}  // namespace table

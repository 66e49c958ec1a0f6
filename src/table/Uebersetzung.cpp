#include "Uebersetzung.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace table {

bool qtUebersetzungLaden(QCoreApplication& anwendung) {
    auto* uebersetzung = new QTranslator(&anwendung);
    if (!uebersetzung->load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete uebersetzung;
        return false;
    }
    QCoreApplication::installTranslator(uebersetzung);
    return true;
}

}  // namespace table

#include "Oberflaeche.h"

#include <QIcon>
#include <QLocale>

#include "table/Uebersetzung.h"

namespace app {

std::unique_ptr<QApplication> anwendungStarten(int& argc, char** argv, bool ohneAnzeigeErlaubt) {
    const bool keineAnzeige = qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (ohneAnzeigeErlaubt && keineAnzeige && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setApplicationName(QStringLiteral("Trumpona"));
    QApplication::setOrganizationName(QStringLiteral("Trumpona"));
    auto anwendung = std::make_unique<QApplication>(argc, argv);
    // The installed desktop entry names the window's program; the icon travels inside it.
    QGuiApplication::setDesktopFileName(QStringLiteral("de.trumpona.Trumpona"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/trumpona.svg")));
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    table::qtUebersetzungLaden(*anwendung);
    return anwendung;
}

}  // namespace app

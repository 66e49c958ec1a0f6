#include "Oberflaeche.h"

#include <QIcon>
#include <QLocale>
#include <chrono>
#include <iostream>
#include <thread>
#include <xcb/xcb.h>

#include "table/Uebersetzung.h"

namespace app {

namespace {

constexpr char KeineAnzeige[] =
    "trumpona: Keine Anzeige erreichbar (DISPLAY=\"%1\"). Bitte in einer grafischen Sitzung starten.";

// Whether Qt will ask an X server for the display: its default platform here.
bool xcbGewaehlt() {
    const QByteArray plattform = qgetenv("QT_QPA_PLATFORM");
    if (!plattform.isEmpty()) return plattform.startsWith("xcb");
    return !qEnvironmentVariableIsEmpty("DISPLAY") || qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

// Whether the X server of DISPLAY takes a connection. One that is only coming up
// (a session starting, a test's Xvfb) gets three seconds: Qt's own attempt does
// not wait and aborts the program (SIGABRT) when it fails.
bool xAnzeigeErreichbar() {
    if (qEnvironmentVariableIsEmpty("DISPLAY")) return false;
    for (int versuch = 0; versuch < 30; ++versuch) {
        xcb_connection_t* verbindung = xcb_connect(nullptr, nullptr);
        const bool erreichbar = xcb_connection_has_error(verbindung) == 0;
        xcb_disconnect(verbindung);
        if (erreichbar) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return false;
}

}  // namespace

std::unique_ptr<QApplication> anwendungStarten(int& argc, char** argv, bool ohneAnzeigeErlaubt) {
    if (xcbGewaehlt() && !xAnzeigeErreichbar()) {
        if (!ohneAnzeigeErlaubt) {
            std::cerr << QString::fromUtf8(KeineAnzeige).arg(qEnvironmentVariable("DISPLAY")).toStdString() << "\n";
            return nullptr;
        }
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
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

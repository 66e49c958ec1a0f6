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

struct XTrennen {
    void operator()(xcb_connection_t* verbindung) const { xcb_disconnect(verbindung); }
};
using XVerbindung = std::unique_ptr<xcb_connection_t, XTrennen>;

// A connection to the X server of DISPLAY, or none. A server that is only coming
// up (a session starting, a test's Xvfb) gets three seconds: Qt's own attempt does
// not wait and aborts the program (SIGABRT) when it fails. The caller keeps the
// connection until Qt has its own: an X server with no client left resets itself,
// and a connection made during that reset fails.
XVerbindung xAnzeigeVerbinden() {
    if (qEnvironmentVariableIsEmpty("DISPLAY")) return nullptr;
    for (int versuch = 0; versuch < 30; ++versuch) {
        XVerbindung verbindung(xcb_connect(nullptr, nullptr));
        if (xcb_connection_has_error(verbindung.get()) == 0) return verbindung;
        verbindung.reset();
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return nullptr;
}

}  // namespace

std::unique_ptr<QApplication> anwendungStarten(int& argc, char** argv, bool ohneAnzeigeErlaubt) {
    XVerbindung halten;
    if (xcbGewaehlt() && !(halten = xAnzeigeVerbinden())) {
        if (!ohneAnzeigeErlaubt) {
            std::cerr << QString::fromUtf8(KeineAnzeige).arg(qEnvironmentVariable("DISPLAY")).toStdString() << "\n";
            return nullptr;
        }
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication::setApplicationName(QStringLiteral("Trumpona"));
    QApplication::setOrganizationName(QStringLiteral("Trumpona"));
    auto anwendung = std::make_unique<QApplication>(argc, argv);
    halten.reset();  // Qt holds its own connection now
    // The installed desktop entry names the window's program; the icon travels inside it.
    QGuiApplication::setDesktopFileName(QStringLiteral("de.trumpona.Trumpona"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/trumpona.svg")));
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    table::qtUebersetzungLaden(*anwendung);
    return anwendung;
}

}  // namespace app

// Test main for widget tests: one QApplication on the offscreen platform, with the
// per-user configuration in a fresh folder so no test touches the real settings.
#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "settings/Tonausgabe.h"
#include "table/Uebersetzung.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir konfiguration;
    qputenv("XDG_CONFIG_HOME", konfiguration.path().toLocal8Bit());
    QApplication anwendung(argc, argv);
    table::qtUebersetzungLaden(anwendung);
    // The tests must not depend on the machine's sound devices.
    settings::setzeTonpruefung([] { return true; });
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

// Test main for widget tests: one QApplication on the offscreen platform.
#include <QApplication>
#include <gtest/gtest.h>

#include "table/Uebersetzung.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication anwendung(argc, argv);
    table::qtUebersetzungLaden(anwendung);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

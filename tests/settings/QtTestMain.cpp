// Points the per-user configuration at a fresh folder before Qt looks at it, so
// the tests neither read nor touch the settings of whoever runs them.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

int main(int argc, char** argv) {
    QTemporaryDir ordner;
    qputenv("XDG_CONFIG_HOME", ordner.path().toLocal8Bit());
    QCoreApplication anwendung(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "Installation.h"

// The sound file is found beside the program first, then in share/trumpona of the installation.
TEST(Installation, KlangdateiNebenDemProgrammOderImShareOrdner) {
    QTemporaryDir wurzel;
    const QDir w(wurzel.path());
    ASSERT_TRUE(w.mkpath(QStringLiteral("usr/bin")) && w.mkpath(QStringLiteral("usr/share/trumpona")));
    const QString bin = w.filePath(QStringLiteral("usr/bin"));
    const QString share = w.filePath(QStringLiteral("usr/share/trumpona"));
    EXPECT_EQ(app::klangordner(bin), bin);  // nowhere: the program's folder, where the player reports it missing
    QFile(share + QStringLiteral("/trumpona.wav")).open(QIODevice::WriteOnly);
    EXPECT_EQ(app::klangordner(bin), share);
    QFile(bin + QStringLiteral("/trumpona.wav")).open(QIODevice::WriteOnly);
    EXPECT_EQ(app::klangordner(bin), bin);
}

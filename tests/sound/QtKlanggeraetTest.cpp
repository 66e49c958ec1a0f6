#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <fstream>

#include "sound/QtKlanggeraet.h"

using namespace sound;

// A missing or broken wave file is no error for the user: every play just fails.
TEST(QtKlanggeraet, UnbrauchbareDateiLaesstJedesSpielenScheitern) {
    int argc = 0;
    QCoreApplication app(argc, nullptr);
    QTemporaryDir ordner;
    const std::string kaputt = ordner.filePath("kaputt.wav").toStdString();
    std::ofstream(kaputt) << "RIFF\x10\0\0\0WAVEdata";
    struct Fall { std::string datei; bool lesbar; };
    for (const Fall& f : {Fall{ordner.filePath("fehlt.wav").toStdString(), false}, Fall{kaputt, false},
                          Fall{KLANGDATEI, true}}) {
        QtKlanggeraet geraet;
        EXPECT_EQ(geraet.oeffnen(f.datei), f.lesbar) << f.datei;
        if (!f.lesbar) {
            EXPECT_FALSE(geraet.spielen({0, 890}, false)) << f.datei;
        }
        EXPECT_TRUE(geraet.spielen({1, 1}, true) == f.lesbar);  // the empty slice needs no device
        geraet.schliessen();
        EXPECT_FALSE(geraet.spielen({0, 890}, true)) << "nach dem Schließen";
    }
}

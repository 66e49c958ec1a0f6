// Memory of the desktop table over a long session: the window plays by itself
// (automatic play), is resized again and again and changes its card deck; the
// resident size (VmRSS) is printed at trick 11 of the first game and again at
// trick 11 of a game after all the resizing. Runs on the offscreen platform
// unless a display is set (e.g. under Xvfb).
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <cstdio>

#include "engine/Zufall.h"
#include "settings/Benutzerspeicher.h"
#include "table/Dateiwahl.h"
#include "table/Hauptfenster.h"
#include "table/Tischprogramm.h"
#include "table/Tischsteuerung.h"

namespace {

double vmRssMb() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& zeile : status.readAll().split('\n'))
        if (zeile.startsWith("VmRSS:")) return zeile.mid(6).trimmed().split(' ').first().toDouble() / 1024.0;
    return 0;
}

// Runs the event loop until the game stands at trick 11 (10 tricks done).
bool bisStich11(const table::Tischsteuerung& s, int spielNr) {
    return QTest::qWaitFor(
        [&] { return s.spiel().partie.spielNr >= spielNr && s.spiel().sticheGespielt == 10; }, 120000);
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir konfiguration;
    qputenv("XDG_CONFIG_HOME", konfiguration.path().toLocal8Bit());
    QApplication anwendung(argc, argv);

    settings::Benutzerspeicher speicher;
    table::Dateidialoge dateien;
    table::Hauptfenster hfo;
    table::Tischsteuerung steuerung(hfo, std::make_unique<engine::SeedZufall>(4711));
    table::Tischprogramm programm(hfo, steuerung, speicher, dateien, konfiguration.filePath(QStringLiteral("rupalive.ini")));
    settings::Einstellungen e;
    e.willkommen = 0;
    e.boxen = 0;
    programm.EinstUebernehmen(e, programm.benutzer());
    steuerung.setzeTempo({20, 20});
    // Whatever box still comes (the end of a game) is closed as a person would.
    QTimer pumpe;
    QObject::connect(&pumpe, &QTimer::timeout, [] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) dialog->accept();
    });
    pumpe.start(50);

    hfo.resize(1024, 768);
    hfo.show();
    steuerung.neuePartie();
    hfo.automatikAktion()->trigger();
    if (!bisStich11(steuerung, 1)) return 1;
    std::printf("Stich 11 des ersten Spiels:        %.1f MB\n", vmRssMb());

    // An hour of use in a minute: many window sizes, and the decks changed twice.
    int spielNr = steuerung.spiel().partie.spielNr;
    for (int runde = 0; runde < 3; ++runde) {
        for (int i = 0; i < 40; ++i) {
            hfo.resize(700 + (i * 37 + runde * 11) % 1200, 520 + (i * 23 + runde * 7) % 560);
            hfo.grab();
            QTest::qWait(30);
        }
        e.kartenbild = runde == 0 ? 2 : runde == 1 ? 3 : 1;
        programm.EinstUebernehmen(e, programm.benutzer());
        hfo.grab();
    }
    hfo.resize(1024, 768);
    spielNr = steuerung.spiel().partie.spielNr + 1;
    if (!bisStich11(steuerung, spielNr)) return 1;
    std::printf("Stich 11 nach Größen und Decks:    %.1f MB\n", vmRssMb());
    return 0;
}

// Developer tool: plays sounds of a wave file by number through the real back
// end so their audible length can be measured (tools/klang-messen.sh).
//   klangprobe WAVDATEI NUMMER...              each to its end, with pauses between
//   klangprobe WAVDATEI --abstand MS NUMMER... one every MS ms without waiting,
//                                              so each cuts off the one before
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <QTimer>
#include <iostream>

#include "QtKlanggeraet.h"

namespace {

constexpr int PauseMs = 700;  // silence between sounds, so the measurement can tell them apart

const sound::Klangeintrag* eintrag(const QString& nummer) {
    return sound::standardKlangtabelle().eintrag(nummer.toInt());
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QStringList args = app.arguments();
    if (args.size() < 3) {
        std::cerr << "Aufruf: klangprobe WAVDATEI [--abstand MS] NUMMER...\n";
        return 2;
    }
    int abstand = 0;
    if (args[2] == "--abstand" && args.size() > 4) {
        abstand = args[3].toInt();
        args.remove(2, 2);
    }
    sound::QtKlanggeraet geraet;
    if (!geraet.ausgabeVorhanden()) {
        std::cerr << "klangprobe: keine Audioausgabe\n";
        return 1;
    }
    if (!geraet.oeffnen(QFileInfo(args[1]).absoluteFilePath().toStdString())) {
        std::cerr << "klangprobe: Datei nicht lesbar\n";
        return 1;
    }
    const QStringList nummern = args.mid(2);
    if (abstand <= 0) {
        for (const QString& n : nummern) {
            const sound::Klangeintrag* e = eintrag(n);
            if (!e) continue;
            QElapsedTimer uhr;
            uhr.start();
            geraet.spielen(e->segment, true);
            std::cout << e->nummer << ": " << e->segment.start << "-" << e->segment.ende << " ms, gewartet "
                      << uhr.elapsed() << " ms\n";
            QThread::msleep(PauseMs);
        }
        return 0;
    }
    // Without waiting the sink is fed from the event loop, as in the game.
    for (qsizetype i = 0; i < nummern.size(); ++i) {
        QTimer::singleShot(static_cast<int>(i) * abstand, Qt::PreciseTimer, &app, [&geraet, n = nummern[i]] {
            const sound::Klangeintrag* e = eintrag(n);
            if (!e) return;
            QElapsedTimer uhr;
            uhr.start();
            geraet.spielen(e->segment, false);
            std::cout << e->nummer << ": " << e->segment.start << "-" << e->segment.ende << " ms, Aufruf "
                      << uhr.nsecsElapsed() / 1000 << " µs\n";
        });
    }
    QTimer::singleShot(static_cast<int>(nummern.size()) * abstand + 3000, &app, &QCoreApplication::quit);
    return app.exec();
}

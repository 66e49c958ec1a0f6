// Developer tool: plays sounds of a wave file by number through the real
// back end, each until it has finished, so their length can be measured.
//   klangprobe WAVDATEI NUMMER...
#include <QCoreApplication>
#include <QFileInfo>
#include <QThread>
#include <iostream>

#include "Klangspieler.h"
#include "QtKlanggeraet.h"

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 3) {
        std::cerr << "Aufruf: klangprobe WAVDATEI NUMMER...\n";
        return 2;
    }
    sound::QtKlanggeraet geraet;
    if (!geraet.ausgabeVorhanden()) {
        std::cerr << "klangprobe: keine Audioausgabe\n";
        return 1;
    }
    const QFileInfo datei(args[1]);
    if (!geraet.oeffnen(datei.absoluteFilePath().toStdString())) {
        std::cerr << "klangprobe: Datei nicht lesbar\n";
        return 1;
    }
    const sound::Klangtabelle& tabelle = sound::standardKlangtabelle();
    for (qsizetype i = 2; i < args.size(); ++i) {
        const int nummer = args[i].toInt();
        const sound::Klangeintrag* e = tabelle.eintrag(nummer);
        if (!e) continue;
        QElapsedTimer uhr;
        uhr.start();
        geraet.spielen(e->segment, true);
        std::cout << nummer << " " << e->segment.start << " " << e->segment.ende << " gewartet " << uhr.elapsed()
                  << " ms\n";
        QThread::msleep(700);  // clear pauses between the sounds for the measurement
    }
    geraet.schliessen();
    return 0;
}

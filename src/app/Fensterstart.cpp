#include "Fensterstart.h"

#include <QAction>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <iostream>

#include "Oberflaeche.h"
#include "engine/Kartentext.h"
#include "settings/Benutzerspeicher.h"
#include "settings/Optionsdatei.h"
#include "settings/Tonausgabe.h"
#include "sound/Klangbeobachter.h"
#include "sound/Klangspieler.h"
#include "sound/QtKlanggeraet.h"
#include "table/Dateiwahl.h"
#include "table/Fensterplatz.h"
#include "table/Hauptfenster.h"
#include "table/Tischprogramm.h"
#include "table/Tischsteuerung.h"
#include "table/Tischtexte.h"

namespace app {

namespace {

bool wahr(int wert) { return wert != 0; }

// For start-and-quit soaks: TRUMPONA_BEENDEN_NACH=ms ends the program through its
// menu that long after the start, as a person would: close whatever box is open
// (Escape), then "Beenden" in the game menu.
void beendenNachUmgebung(table::Hauptfenster& hfo) {
    bool gesetzt = false;
    const int ms = qEnvironmentVariableIntValue("TRUMPONA_BEENDEN_NACH", &gesetzt);
    if (!gesetzt) return;
    auto* takt = new QTimer(&hfo);
    takt->setInterval(50);
    QObject::connect(takt, &QTimer::timeout, &hfo, [&hfo] {
        if (QWidget* offen = QApplication::activeModalWidget()) {
            if (auto* dialog = qobject_cast<QDialog*>(offen)) dialog->reject();
            else offen->close();
            return;
        }
        hfo.endeAktion()->trigger();
    });
    QTimer::singleShot(std::max(ms, 0), takt, qOverload<>(&QTimer::start));
}

}  // namespace

int spielStarten(const Aufruf& aufruf, int& argc, char** argv) {
    QElapsedTimer uhr;
    uhr.start();
    const auto anwendung = anwendungStarten(argc, argv, false);
    if (!anwendung) return 1;
    QScreen* schirm = QGuiApplication::primaryScreen();
    const QSize bildschirm = schirm ? schirm->size() : QSize(1024, 768);
    settings::Benutzerspeicher speicher(bildschirm.width());
    speicher.programmordnerVermerken(QCoreApplication::applicationDirPath());
    if (speicher.aufloesungswarnungFaellig(bildschirm.width(), bildschirm.height())) {
        QMessageBox::critical(nullptr, QString::fromUtf8(table::texte::Fenstertitel),
                              QString::fromUtf8(table::texte::Aufloesungswarnung));
        speicher.aufloesungswarnungVermerken();
    }
    speicher.ersterStartUebernehmen();
    const settings::Lesekontext kontext = settings::startLesekontext();
    const settings::Einstellungen einstellungen = settings::EinstellungenLesen(settings::optionsdateiPfad(), kontext);

    table::Hauptfenster hfo;
    const std::uint64_t seed = aufruf.seed.value_or(QRandomGenerator::global()->generate64());
    table::Tischsteuerung steuerung(hfo, std::make_unique<engine::SeedZufall>(seed));
    table::Dateidialoge dateidialoge;
    table::Tischprogramm programm(hfo, steuerung, speicher, dateidialoge, settings::optionsdateiPfad());
    programm.setzeLesekontext(kontext);

    sound::QtKlanggeraet geraet;
    sound::Klangspieler klangspieler(geraet);
    sound::Klangbeobachter klaenge(klangspieler);
    auto klangEinstellen = [&](const settings::Einstellungen& e) {
        klangspieler.optionenSetzen({wahr(e.sprachausgabe), wahr(e.geraeusch), wahr(e.signal)});
        klaenge.franzoesischeNamenSetzen(engine::franzoesischeBilder(e.kartenbild));
    };
    QObject::connect(&programm, &table::Tischprogramm::einstellungenUebernommen, klangEinstellen);
    programm.EinstUebernehmen(einstellungen, programm.benutzer());
    klangspieler.soundOeffnen(QCoreApplication::applicationDirPath().toStdString());
    steuerung.ablauf().beobachterHinzufuegen(&klaenge);
    QObject::connect(&steuerung, &table::Tischsteuerung::menschAmZug, [&] { klaenge.duBistDran(); });
    QObject::connect(&steuerung, &table::Tischsteuerung::supersauGemeldet, [&] { klaenge.supersau(); });

    hfo.setGeometry(
        table::fensterrahmen(speicher.hauptfenster(), schirm ? schirm->availableGeometry() : QRect(0, 0, 1024, 768)));
    programm.fensterZeigen();
    bool zurueckgesetzt = false;
    QObject::connect(&programm, &table::Tischprogramm::programmEndeVerlangt, [&] {
        // After a reset nothing is written back: the next start runs on defaults.
        zurueckgesetzt = true;
        hfo.SubPrgBeenden();
    });
    QObject::connect(&hfo, &table::Hauptfenster::beendenGewuenscht, [&] {
        if (zurueckgesetzt) return;
        speicher.setzeHauptfenster(table::fenstergeometrie(hfo.normalGeometry()));
        speicher.synchronisieren();
    });

    const QString ladeDatei = QString::fromStdString(aufruf.ladeDatei);
    QTimer::singleShot(0, &steuerung, [&] {
        // For measuring the start: TRUMPONA_STARTZEIT prints when the table first stood.
        if (qEnvironmentVariableIsSet("TRUMPONA_STARTZEIT"))
            QTimer::singleShot(0, [&] { std::cerr << "Tisch sichtbar nach " << uhr.elapsed() << " ms\n"; });
        beendenNachUmgebung(hfo);
        programm.starten(ladeDatei);
    });
    const int ergebnis = QApplication::exec();
    klangspieler.soundSchliessen();
    return ergebnis;
}

}  // namespace app

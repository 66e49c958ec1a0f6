#include "Fensterstart.h"

#include <QElapsedTimer>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QScreen>
#include <QTimer>
#include <iostream>

#include "Oberflaeche.h"
#include "Tischoptionen.h"
#include "engine/Kartentext.h"
#include "settings/Benutzerspeicher.h"
#include "settings/Optionsdatei.h"
#include "settings/Tonausgabe.h"
#include "sound/Klangbeobachter.h"
#include "sound/Klangspieler.h"
#include "sound/QtKlanggeraet.h"
#include "table/Hauptfenster.h"
#include "table/Tischsteuerung.h"
#include "table/Tischtexte.h"

namespace app {

namespace {

// The per-user store keeps the window in twips, 15 to a pixel at the usual 96 dpi.
constexpr int TwipsProPixel = 15;

bool wahr(int wert) { return wert != 0; }

}  // namespace

int spielStarten(const Aufruf& aufruf, int& argc, char** argv) {
    QElapsedTimer uhr;
    uhr.start();
    const auto anwendung = anwendungStarten(argc, argv, false);
    const QSize bildschirm = QGuiApplication::primaryScreen() ? QGuiApplication::primaryScreen()->size() : QSize(1024, 768);
    settings::Benutzerspeicher speicher(bildschirm.width());
    speicher.programmordnerVermerken(QCoreApplication::applicationDirPath());
    if (speicher.aufloesungswarnungFaellig(bildschirm.width(), bildschirm.height())) {
        QMessageBox::critical(nullptr, QString::fromUtf8(table::texte::Fenstertitel),
                              QString::fromUtf8(table::texte::Aufloesungswarnung));
        speicher.aufloesungswarnungVermerken();
    }
    const settings::Einstellungen einstellungen =
        settings::EinstellungenLesen(settings::optionsdateiPfad(), settings::startLesekontext());

    table::Hauptfenster hfo;
    const std::uint64_t seed = aufruf.seed.value_or(QRandomGenerator::global()->generate64());
    table::Tischsteuerung steuerung(hfo, std::make_unique<engine::SeedZufall>(seed));
    einstellungenUebernehmen(steuerung, einstellungen);
    const table::Anzeigeoptionen optionen = anzeigeoptionen(einstellungen);

    sound::QtKlanggeraet geraet;
    sound::Klangspieler klangspieler(geraet);
    klangspieler.optionenSetzen({wahr(einstellungen.sprachausgabe), wahr(einstellungen.geraeusch), wahr(einstellungen.signal)});
    klangspieler.soundOeffnen(QCoreApplication::applicationDirPath().toStdString());
    sound::Klangbeobachter klaenge(klangspieler);
    klaenge.franzoesischeNamenSetzen(engine::franzoesischeBilder(optionen.kartenbild));
    steuerung.ablauf().beobachterHinzufuegen(&klaenge);
    QObject::connect(&steuerung, &table::Tischsteuerung::menschAmZug, [&] { klaenge.duBistDran(); });
    QObject::connect(&steuerung, &table::Tischsteuerung::supersauGemeldet, [&] { klaenge.supersau(); });

    const settings::Fenstergeometrie g = speicher.hauptfenster();
    hfo.setGeometry(g.x / TwipsProPixel, g.y / TwipsProPixel, g.breite / TwipsProPixel, g.hoehe / TwipsProPixel);
    if (wahr(einstellungen.vollbild)) hfo.showMaximized();
    else hfo.show();
    QObject::connect(&hfo, &table::Hauptfenster::beendenGewuenscht, [&] {
        const QRect r = hfo.normalGeometry();
        speicher.setzeHauptfenster({r.x() * TwipsProPixel, r.y() * TwipsProPixel, r.width() * TwipsProPixel,
                                    r.height() * TwipsProPixel});
        speicher.synchronisieren();
    });

    QTimer::singleShot(0, &steuerung, [&] {
        // For measuring the start: TRUMPONA_STARTZEIT prints when the table first stood.
        if (qEnvironmentVariableIsSet("TRUMPONA_STARTZEIT"))
            QTimer::singleShot(0, [&] { std::cerr << "Tisch sichtbar nach " << uhr.elapsed() << " ms\n"; });
        steuerung.neuePartie();
    });
    const int ergebnis = QApplication::exec();
    klangspieler.soundSchliessen();
    return ergebnis;
}

}  // namespace app

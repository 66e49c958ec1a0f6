#include "Fensterstart.h"

#include <QAbstractButton>
#include <QAction>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <iostream>

#include "Foyertisch.h"
#include "Installation.h"
#include "Oberflaeche.h"
#include "foyer/Foyerfenster.h"
#include "foyer/Foyerprogramm.h"
#include "net/Namen.h"
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
#include "table/Netzspiel.h"
#include "table/Tischprogramm.h"
#include "table/Tischsteuerung.h"
#include "table/Tischtexte.h"
#include "table/Turnierpartie.h"
#include "services/Ergebnisablage.h"

namespace app {

namespace {

bool wahr(int wert) { return wert != 0; }

// For start-and-quit soaks: TRUMPONA_BEENDEN_NACH=ms ends the program through its
// menu that long after the start, as a person would: close whatever box is open
// (Escape), choose "&Ende" in the game menu, and there end without saving.
void beendenNachUmgebung(table::Hauptfenster& hfo) {
    bool gesetzt = false;
    const int ms = qEnvironmentVariableIntValue("TRUMPONA_BEENDEN_NACH", &gesetzt);
    if (!gesetzt) return;
    auto* takt = new QTimer(&hfo);
    takt->setInterval(50);
    QObject::connect(takt, &QTimer::timeout, &hfo, [&hfo] {
        if (QWidget* offen = QApplication::activeModalWidget()) {
            auto* frage = qobject_cast<QMessageBox*>(offen);
            const auto knoepfe = frage ? frage->buttons() : QList<QAbstractButton*>{};
            const auto beenden = std::find_if(knoepfe.begin(), knoepfe.end(), [frage](QAbstractButton* k) {
                return frage->buttonRole(k) == QMessageBox::DestructiveRole;
            });
            if (beenden != knoepfe.end()) (*beenden)->click();
            else if (auto* dialog = qobject_cast<QDialog*>(offen)) dialog->reject();
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
    programm.setzeSicherungsdatei(table::Tischprogramm::standardSicherungsdatei());
    table::Turnierpartie turnier(hfo, steuerung, programm, services::ergebnisordner());

    sound::QtKlanggeraet geraet;
    sound::Klangspieler klangspieler(geraet);
    sound::Klangbeobachter klaenge(klangspieler);
    auto klangEinstellen = [&](const settings::Einstellungen& e) {
        klangspieler.optionenSetzen({wahr(e.sprachausgabe), wahr(e.geraeusch), wahr(e.signal)});
        klaenge.franzoesischeNamenSetzen(engine::franzoesischeBilder(e.kartenbild));
    };
    QObject::connect(&programm, &table::Tischprogramm::einstellungenUebernommen, klangEinstellen);
    programm.EinstUebernehmen(einstellungen, programm.benutzer());
    klangspieler.soundOeffnen(klangordner(QCoreApplication::applicationDirPath()).toStdString());
    steuerung.ablauf().beobachterHinzufuegen(&klaenge);
    QObject::connect(&steuerung, &table::Tischsteuerung::menschAmZug, [&] { klaenge.duBistDran(); });
    QObject::connect(&steuerung, &table::Tischsteuerung::supersauGemeldet, [&] { klaenge.supersau(); });
    table::Netzspiel netz(hfo, steuerung, programm, speicher);
    QObject::connect(&netz, &table::Netzspiel::spielerKommt, [&] { klaenge.spielerKommt(); });
    QObject::connect(&netz, &table::Netzspiel::spielerGeht, [&] { klaenge.spielerGeht(); });

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

    // The foyer opens from the game menu, and at once when the program was restarted into it.
    std::unique_ptr<foyer::Foyerprogramm> foyerprogramm;
    auto foyerOeffnen = [&] {
        if (!foyerprogramm) {
            foyerprogramm = std::make_unique<foyer::Foyerprogramm>(speicher, [](const QString& name) {
                const auto fehler = net::namePruefen(name.toStdString());
                return fehler ? QString::fromStdString(*fehler) : QString();
            });
            foyerTischVerbinden(*foyerprogramm, netz, programm);
        }
        foyerprogramm->oeffnen();
    };
    QObject::connect(hfo.foyerAktion(), &QAction::triggered, &hfo, foyerOeffnen);
    // The program ends with its table window: the foyer closes too (and leaves the server).
    // Qt's own end on the last window closed does not come while any other top-level
    // window still counts as open, which once left a program running without a window.
    QObject::connect(&hfo, &table::Hauptfenster::beendenGewuenscht, [&] {
        if (foyerprogramm) foyerprogramm->fenster().close();
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    });
    // A guest whose table is lost may go back to the foyer: the program starts anew into it.
    netz.setzeFoyerRueckkehr([&] { return foyer::insFoyerNeustarten(speicher); });
    const bool insFoyer = speicher.restartUebernehmen();

    const QString ladeDatei = QString::fromStdString(aufruf.ladeDatei);
    QTimer::singleShot(0, &steuerung, [&] {
        // For measuring the start: TRUMPONA_STARTZEIT prints when the table first stood.
        if (qEnvironmentVariableIsSet("TRUMPONA_STARTZEIT"))
            QTimer::singleShot(0, [&] { std::cerr << "Tisch sichtbar nach " << uhr.elapsed() << " ms\n"; });
        beendenNachUmgebung(hfo);
        // --host and --join open the window in that role; the name falls back to the last one used.
        const QString name = aufruf.name.empty() ? speicher.text(QStringLiteral("StartNick")) : QString::fromStdString(aufruf.name);
        bool amNetz = false;
        if (aufruf.modus == Modus::Host) amNetz = netz.hostenMitName(name, aufruf.port);
        else if (aufruf.modus == Modus::Join) amNetz = netz.beitretenMitAdresse(QString::fromStdString(aufruf.joinAdresse), name);
        if (insFoyer) {
            // Restarted into the foyer: the table waits there instead of starting a local Partie.
            if (!amNetz) netz.imFoyerWarten();
            foyerOeffnen();
        } else if (!amNetz) {
            programm.starten(ladeDatei);
        }
    });
    const int ergebnis = QApplication::exec();
    foyerprogramm.reset();
    klangspieler.soundSchliessen();
    return ergebnis;
}

}  // namespace app

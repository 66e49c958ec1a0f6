#pragma once
// Network tables at the window for the tests: a window with its controller,
// program and network play, fast and without animation, and a pump that
// answers every box the way the test says (else as a cautious person).
#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>

#include "Testdateiwahl.h"
#include "settings/Benutzerspeicher.h"
#include "table/Hauptfenster.h"
#include "table/Meldungsdialog.h"
#include "table/Netzspiel.h"
#include "table/Tischprogramm.h"
#include "table/Tischsteuerung.h"

namespace testhilfe {

inline bool warten(const std::function<bool()>& bedingung, int ms = 30000) { return QTest::qWaitFor(bedingung, ms); }

inline net::Netzzeiten schnelleZeiten() {
    net::Netzzeiten z;
    z.takt = 0;
    return z;
}

struct Netzfenster {
    Netzfenster(const QString& ordner, std::uint64_t seed, net::Netzzeiten zeiten = schnelleZeiten())
        : steuerung(hfo, std::make_unique<engine::SeedZufall>(seed)),
          programm(hfo, steuerung, speicher, wahl, QDir(ordner).filePath(QStringLiteral("rupalive.ini"))),
          netz(hfo, steuerung, programm, speicher) {
        settings::Einstellungen e;
        e.animation = 0;
        table::Benutzereinstellungen b = programm.benutzer();
        b.netzadapter = QStringLiteral("127.0.0.1");
        programm.EinstUebernehmen(e, b);
        steuerung.setzeTempo({0, 0});
        netz.setzeZeiten(zeiten);
        hfo.resize(1024, 768);
        hfo.show();
    }

    const engine::Spiel& spiel() const { return steuerung.spiel(); }

    settings::Benutzerspeicher speicher;
    Testdateiwahl wahl;
    table::Hauptfenster hfo;
    table::Tischsteuerung steuerung;
    table::Tischprogramm programm;
    table::Netzspiel netz;
};

// Answers the open modal widget from a timer of its own, so an answer that
// opens the next box waits in that one while the pump goes on.
class Boxenpumpe {
public:
    // true: answered.
    std::function<bool(QWidget*)> antworten;
    QStringList boxen;  // texts of the message boxes answered by default

    Boxenpumpe() {
        QObject::connect(&takt_, &QTimer::timeout, [this] {
            if (geplant_ || !QApplication::activeModalWidget()) return;
            geplant_ = true;
            QTimer::singleShot(0, [this] {
                geplant_ = false;
                if (QWidget* modal = QApplication::activeModalWidget()) beantworten(modal);
            });
        });
        takt_.start(2);
    }

private:
    void beantworten(QWidget* modal) {
        if (antworten && antworten(modal)) return;
        if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            boxen << box->text();
            QAbstractButton* nein = box->button(QMessageBox::No);
            (nein ? nein : box->buttons().first())->click();
        } else if (auto* dialog = qobject_cast<QDialog*>(modal)) {
            qobject_cast<table::Meldungsdialog*>(dialog) ? dialog->accept() : dialog->reject();
        }
    }

    QTimer takt_;
    bool geplant_ = false;
};

}  // namespace testhilfe

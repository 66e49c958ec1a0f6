#pragma once
// Upload all: every waiting result file of a folder goes to the organiser as one
// mail, one after the other. A file is deleted only once the server took its
// mail; after a failure the listener is asked whether to try the same file again
// (`wiederholenFragen`, answered by `wiederholen`); No keeps it for a later upload
// and goes on with the next file.
#include <QObject>
#include <QStringList>

#include "Mailkonto.h"
#include "Smtpclient.h"

namespace services {

class Ergebnisversand : public QObject {
    Q_OBJECT
public:
    explicit Ergebnisversand(Smtpclient& client, QObject* parent = nullptr);

    // Starts the upload. False while one is under way ("Läuft noch!" goes to
    // `meldung`) and when the account lacks server or addresses.
    bool alleSenden(const QString& ordner, const Mailkonto& konto);
    bool laeuft() const { return laeuft_; }

public slots:
    // The answer to `wiederholenFragen`.
    void wiederholen(bool nochmal);

signals:
    void begonnen(const QStringList& dateien);
    void status(const QString& datei, const QString& text);
    void fortschritt(const QString& datei, int erledigt, int stufen);
    void gesendet(const QString& datei);
    void behalten(const QString& datei, const QString& grund);
    void wiederholenFragen(const QString& datei, const QString& grund);
    void meldung(const QString& text);
    void fertig(int gesendet, int behalten);

private:
    void naechsteDatei();
    void dateiSenden();
    void mailFertig(const Versandergebnis& e);
    void dateiAbschliessen(bool geschickt, const QString& grund);

    Smtpclient& client_;
    QString ordner_;
    Mailkonto konto_;
    QStringList dateien_;
    int index_ = -1;
    int gesendet_ = 0;
    int behalten_ = 0;
    QString grund_;  // of the last failure, while the question is open
    bool laeuft_ = false;
    bool frageOffen_ = false;
};

}  // namespace services

#pragma once
// The foyer as the desktop program runs it: the login with its dialogs, the
// window fed from the connection, the settings and the window's place. What a
// table needs (open one, sit down at one, leave it) goes out as signals to
// whoever runs the network table, and comes back by the calls below.
#include <QObject>
#include <QPointer>

#include "Foyeranmeldung.h"

class QMessageBox;

namespace settings {
class Benutzerspeicher;
}

namespace foyer {

class Foyerfenster;
class Foyerverbindung;
struct Tischangebot;

class Foyerprogramm : public QObject {
    Q_OBJECT
public:
    Foyerprogramm(settings::Benutzerspeicher& speicher, Namenspruefung pruefung, QObject* parent = nullptr);
    ~Foyerprogramm() override;

    // Shows the foyer; without a login yet, the login dialog first.
    void oeffnen();

    Foyerfenster& fenster() { return *fenster_; }
    Foyerverbindung& verbindung() { return *verbindung_; }

    // The table side reports: our table listens (announce it), its free seats
    // changed, we sat down at a table, or we are back in the foyer.
    void tischAnsagen(const QString& adresse, int port, int frei, const QString& regeln);
    void freiePlaetzeSetzen(int frei);
    void platzGenommen(int nummer);
    // The table here is gone: its offer is withdrawn, or its seat left ("*TRET*").
    void tischWeg();
    // That, and the foyer comes to the front.
    void zurueckImFoyer();

signals:
    void tischEroeffnenGewuenscht();
    void platzNehmenGewuenscht(const foyer::Tischangebot& angebot);
    // The player leaves the table he sits at (his own or another's).
    void tischVerlassenGewuenscht();

private:
    void anmeldedialogZeigen();
    void anmelden(const QString& name, const QString& server, int port);
    void wartenBeenden();
    void melden(int symbol, const QString& text, std::function<void()> danach = {});
    void listenZeigen();
    void platzGeometrieLaden();
    void platzGeometrieSichern();

    settings::Benutzerspeicher& speicher_;
    Namenspruefung pruefung_;
    Foyerverbindung* verbindung_;
    Foyerfenster* fenster_;
    QPointer<QMessageBox> warten_;
    bool geometrieGeladen_ = false;
};

// The "Restart" path of a guest whose table was lost: marks the restart and
// starts the program anew, which then opens the foyer; the caller ends this
// one. False when no new program could be started.
bool insFoyerNeustarten(settings::Benutzerspeicher& speicher);

}  // namespace foyer

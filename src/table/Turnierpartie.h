#pragma once
// A tournament Partie at the desktop table: "Turnierpartie..." shows the fixed
// rules and starts a Partie with them; when it ends, its result file goes into
// the data folder, ready to be mailed. The person's own rules and players come
// back with the next Partie. A Partie that is abandoned, replaced by a loaded one
// or dealt under other rules writes nothing.
//
// Also here: "Turnierergebnisse senden..." (frmErgebnisse) and, before the
// program ends, the question whether the waiting results should go out now.
#include <QDateTime>
#include <QObject>
#include <functional>
#include <optional>

#include "engine/Entscheider.h"
#include "services/Ergebnisdatei.h"

class QLabel;

namespace table {

class Hauptfenster;
class Tischprogramm;
class Tischsteuerung;

class Turnierpartie : public QObject, public engine::Spielbeobachter {
    Q_OBJECT
public:
    // `ordner`: where result files are written and read (the data folder).
    Turnierpartie(Hauptfenster& hfo, Tischsteuerung& steuerung, Tischprogramm& programm, QString ordner,
                  QObject* parent = nullptr);

    bool laeuft() const { return spiele_ > 0; }
    const QString& ordner() const { return ordner_; }
    // The clock of the result file's date (tests).
    void setzeUhr(std::function<QDateTime()> uhr) { uhr_ = std::move(uhr); }

    // Starts a tournament Partie of `spiele` games (one of services::Turnierlaengen).
    void beginnen(int spiele);

    // Before the program ends: while result files wait, asks whether to send them now.
    // Returns whether it asked.
    bool beimBeendenAnbieten();

signals:
    void ergebnisGeschrieben(const QString& pfad);

public slots:
    // "Turnierpartie...": the rules, the number of games, and on OK the start.
    void turnierpartieZeigen();
    // "Turnierergebnisse senden...": frmErgebnisse; `sofort` starts the upload at once.
    void ergebnisseZeigen(bool sofort = false);

private:
    void kartenGegeben(const engine::Spiel& spiel) override;
    void spielBeendet(const engine::Spiel& spiel) override;
    void partieEnde();
    // Ends the tournament Partie without a result; the person's rules and players come back.
    void aufgeben();
    void regelnDurchsetzen();
    void anzeigen();

    Hauptfenster& hfo_;
    Tischsteuerung& steuerung_;
    Tischprogramm& programm_;
    QString ordner_;
    std::function<QDateTime()> uhr_;
    int spiele_ = 0;                 // games of the running tournament Partie, 0: none
    std::optional<int> partieNr_;    // taken from its first deal
    int gewertet_ = 0;               // its games scored so far
    bool gestoert_ = false;          // a deal not of this Partie or not under its rules
    QLabel* anzeige_ = nullptr;      // "Turnierpartie: Spiel 3 von 8" in the status bar
};

// The rules of a tournament Partie as a page, headed by the options in force.
QString turnierregelnHtml(int spiele);

}  // namespace table

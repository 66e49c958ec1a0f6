#pragma once
// The learning aids around the table: the review of the last game, the statistics
// (recorded after every game and Partie), the open hands and the window of cards
// played. They read the controller's state and hold the game while their dialogs
// are open; the controller knows nothing of them but the end box's review button.
#include <QObject>
#include <QPointer>
#include <memory>

#include "Statistikdialog.h"
#include "engine/Entscheider.h"

namespace settings {
class Benutzerspeicher;
}

namespace table {

class Hauptfenster;
class Kartenuebersicht;
class Tischsteuerung;

class Lernhilfen : public QObject, private engine::Spielbeobachter {
    Q_OBJECT
public:
    Lernhilfen(Hauptfenster& hfo, Tischsteuerung& steuerung, settings::Benutzerspeicher& speicher,
               Statistikspeicher statistik = Statistikspeicher(), QObject* parent = nullptr);
    ~Lernhilfen() override;

    const Statistikspeicher& statistikspeicher() const { return statistik_; }
    Kartenuebersicht* kartenuebersicht() const;

public slots:
    // Opens the review of the last scored game over `eltern` (the end box holds the game already).
    void spielverlaufZeigen(QWidget* eltern);
    void statistikZeigen();
    void alleKartenZeigen(bool an);
    void gespielteKartenZeigen();

private:
    void spielGewertet();
    void partieBeendet();
    void statistikSchreiben(const Statistik& statistik);
    void menueAnpassen();
    void kartenGegeben(const engine::Spiel&) override;
    void spielBegonnen(const engine::Spiel&) override;
    void karteGespielt(const engine::Spiel&, engine::Sitz, int) override;

    Hauptfenster& hfo_;
    Tischsteuerung& steuerung_;
    settings::Benutzerspeicher& speicher_;
    Statistikspeicher statistik_;
    QPointer<Kartenuebersicht> uebersicht_;
};

}  // namespace table

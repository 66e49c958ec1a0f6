#pragma once
// The controller of the desktop table: it owns the game state and the game
// cycle, answers the cycle's requests (seat 1 through clicks and dialogs, the
// computer seats through their Entscheider, paced by timers) and keeps the main
// window's menus, status line and table in step. Nothing here waits in a loop:
// every step is a slot that runs when its timer, click or animation is done.
#include <QObject>
#include <QPointer>
#include <memory>
#include <vector>

#include "Anzeigeoptionen.h"
#include "Spielzettel.h"
#include "engine/Meldung.h"
#include "engine/Spielablauf.h"
#include "engine/Zufall.h"

namespace table {

class Hauptfenster;
class Spielzettel;
class Stichbetrachter;

// How long the table lets a computer card or a full trick be seen (milliseconds).
struct Tempo {
    int karte = 550;
    int stich = 1100;
};

class Tischsteuerung : public QObject, public engine::Meldungssenke {
    Q_OBJECT
public:
    Tischsteuerung(Hauptfenster& hfo, std::unique_ptr<engine::Zufallsquelle> zufall, QObject* parent = nullptr);
    ~Tischsteuerung() override;

    void setzeOptionen(const Anzeigeoptionen& optionen);
    void setzeRegelOptionen(const engine::RegelOptionen& regeln);
    void setzeNamen(const engine::ProSitz<std::string>& namen);
    void setzeTempo(Tempo tempo) { tempo_ = tempo; }
    // The seat's computer player; seat 1's plays during automatic play.
    void setzeEntscheider(engine::Sitz sitz, std::shared_ptr<engine::Entscheider> entscheider);

    // Clears the score sheet and starts the first game.
    void neuePartie();
    // Takes over a game state (a loaded game, a prepared table) and carries on from it.
    void fortsetzen(const engine::Spiel& stand);

    const engine::Spiel& spiel() const { return spiel_; }
    // The last scored game (its tricks stay viewable while the next one runs).
    const engine::Spiel& letztesSpiel() const { return letztesSpiel_; }
    engine::Spielablauf& ablauf() { return ablauf_; }
    // The score sheet rows of the running Partie, one per scored game.
    const std::vector<engine::ProSitz<int>>& spielzettelZeilen() const { return zeilen_; }
    Spielzettelinhalt spielzettelInhalt() const;

    void meldung(const engine::Meldung& m) override;

signals:
    // Seat 1 is to play a card (for the your-turn signal).
    void menschAmZug();
    // A trump As was promoted to Supersau.
    void supersauGemeldet();
    // A game was scored and its end box closed.
    void spielGewertet();
    void partieBeendet();

public slots:
    void weiter();

private slots:
    void karteGewaehlt(int pos);
    void stichGeklickt();
    void automatikUmschalten();
    void reKontra();
    void limit(int limitCode);
    void letzterStich();
    void alleStiche();
    void spielzettelZeigen();

private:
    // Runs one step after `ms` milliseconds; at most one step is planned at a time.
    void planen(int ms, void (Tischsteuerung::*schritt)());
    void karteGelegt(int pos, engine::Sitz sitz);
    void anzeigen(const engine::Anfrage& a);
    void meldungenZeigen();
    void neugebenBeantworten(const engine::Anfrage& a);
    void vorbehaltBeantworten(const engine::Anfrage& a);
    engine::Vorbehalt vorbehaltFragen(const engine::Anfrage& a);
    void computerKarte();
    void karteSpielen(int pos);
    void einsammeln();
    void spielendeZeigen();
    void ansageBescheid(const engine::Bescheid& b);
    engine::Entscheider& entscheider(engine::Sitz sitz);

    Hauptfenster& hfo_;
    std::unique_ptr<engine::Zufallsquelle> zufall_;
    engine::Spiel spiel_;
    engine::Spielablauf ablauf_;
    Anzeigeoptionen optionen_;
    Tempo tempo_;
    engine::ProSitz<std::shared_ptr<engine::Entscheider>> entscheider_;
    std::vector<engine::Meldung> meldungen_;
    std::vector<engine::ProSitz<int>> zeilen_;
    engine::Spiel letztesSpiel_;  // the last scored game, for its tricks
    bool geplant_ = false;        // a step is scheduled
    bool beschaeftigt_ = false;   // a card flies or a trick is being collected
    bool imDialog_ = false;       // a modal dialog of ours is open
    bool einsammelnLaeuft_ = false;
    bool partieendeGemeldet_ = false;
    int zugGemeldet_ = -1;        // the card count at which seat 1's turn was last signalled
    int schritt_ = 0;             // counts Partien, so a timer of an abandoned one does nothing
};

}  // namespace table

#pragma once
// The controller of the desktop table: it owns the game state and the game
// cycle, answers the cycle's requests (seat 1 through clicks and dialogs, the
// computer seats through their Entscheider, paced by timers) and keeps the main
// window's menus, status line and table in step. Nothing here waits in a loop:
// every step is a slot that runs when its timer, click or animation is done.
#include <QObject>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <tuple>
#include <vector>

#include "Anzeigeoptionen.h"
#include "Begruendungsanzeige.h"
#include "Spielanzeige.h"
#include "Spielzettel.h"
#include "engine/Geben.h"
#include "engine/Meldung.h"
#include "engine/Spielablauf.h"
#include "engine/Zufall.h"
#include "players/Begruendungsprotokoll.h"
#include "players/Tischwissen.h"

namespace players {
class Stark;
struct Starkart;
}  // namespace players

namespace table {

class Hauptfenster;
class Netzanbindung;
class Spielzettel;
class Stichbetrachter;

// How long the table lets a computer card or a full trick be seen, and how long a
// card flies to the trick and a trick to its winner (milliseconds; see Tempostufen.h).
struct Tempo {
    int karte = 550;
    int stich = 1500;  // long enough to see the marked winner of the trick
    int flug = 260;
    int einsammeln = 320;
    int spielende = 4500;  // the end box during automatic play, then it closes by itself
};

class Tischsteuerung : public QObject, public engine::Meldungssenke, public engine::Spielbeobachter {
    Q_OBJECT
public:
    Tischsteuerung(Hauptfenster& hfo, std::unique_ptr<engine::Zufallsquelle> zufall, QObject* parent = nullptr);
    ~Tischsteuerung() override;

    void setzeOptionen(const Anzeigeoptionen& optionen);
    void setzeRegelOptionen(const engine::RegelOptionen& regeln);
    void setzeNamen(const engine::ProSitz<std::string>& namen);
    void setzeTempo(Tempo tempo);
    // The seats' "charakter" (kind of computer player); taken over with the next deal.
    void setzeCharaktere(const engine::ProSitz<int>& charaktere);
    // Thinking time of the strong player (character 3) in ms; taken over with the next player made.
    void setzeBedenkzeit(int ms);
    // Puts a fixed player at a seat instead of the one its character names (tests).
    void setzeEntscheider(engine::Sitz sitz, std::shared_ptr<engine::Entscheider> entscheider);
    // Asked at every deal; a distribution it returns is dealt instead of a random one.
    using Kartengeber = std::function<std::optional<engine::Kartenverteilung>(const engine::Spiel&)>;
    void setzeKartengeber(Kartengeber geber) { kartengeber_ = std::move(geber); }

    // Clears the score sheet and starts the first game.
    void neuePartie();
    // Takes over a game state (a prepared table) and carries on from its phase.
    void fortsetzen(const engine::Spiel& stand);
    // Takes over a saved game: its phase follows from the cards played; a finished
    // game is not scored again, the next one starts.
    void geladenFortsetzen(const engine::Spiel& stand);
    // While a dialog of the program is open the game waits; closing it carries on.
    void dialogOffen(bool offen);
    // Whether the state is one a saved game can hold (cards are being played, or the Partie is over).
    bool speicherbar() const;
    // A Partie is under way and not yet over: ending the program would lose it.
    bool partieOffen() const;

    // Plays at a network table from here on (nullptr: alone again). The table is
    // cleared and waits for the network's first deal.
    void netzAnbinden(Netzanbindung* netz);
    Netzanbindung* netz() const { return netz_; }
    // The game state, for the network table that keeps it in step (names, who
    // plays each seat, the cards and decisions of the other machines).
    engine::Spiel& spielFuerNetz() { return spiel_; }

    const engine::Spiel& spiel() const { return spiel_; }
    // The last scored game (its tricks stay viewable while the next one runs).
    const engine::Spiel& letztesSpiel() const { return letztesSpiel_; }
    // What the computer players gave as reasons in the last scored game.
    const players::Spielbegruendungen& letzteBegruendungen() const { return letzteBegruendungen_; }
    // Offered in the end box: opens the review of the game just scored over it.
    void setzeVerlaufAnzeige(std::function<void(QWidget* eltern)> zeigen) { verlaufZeigen_ = std::move(zeigen); }
    engine::Spielablauf& ablauf() { return ablauf_; }
    // What the computer seats believe; it also drives the party pictures.
    const players::Tischwissen& wissen() const { return wissen_; }
    // The score sheet rows of the running Partie, one per scored game.
    const std::vector<engine::ProSitz<int>>& spielzettelZeilen() const { return zeilen_; }
    // What each of those games was (empty for games of a loaded Partie).
    const std::vector<Spielangaben>& spielzettelAngaben() const { return angaben_; }
    Spielzettelinhalt spielzettelInhalt() const;

    void meldung(const engine::Meldung& m) override;
    // A card played at another machine flies in as a computer card does.
    void karteGespielt(const engine::Spiel& spiel, engine::Sitz sitz, int pos) override;

signals:
    // Seat 1 is to play a card (for the your-turn signal).
    void menschAmZug();
    // A trump As was promoted to Supersau.
    void supersauGemeldet();
    // A game was scored and its end box closed.
    void spielGewertet();
    void partieBeendet();
    // The game moved on to a state worth keeping (a card, a trick, a score, the end).
    void standGeaendert();

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
    void tipp();

private:
    struct Denkjob;
    // A strong player thinks on a thread of its own; the window goes on meanwhile and
    // plays the result when it comes, unless the game has moved on.
    void denkenLassen(engine::Sitz sitz, const players::Stark& stark);
    void gedacht(const std::shared_ptr<Denkjob>& job);
    void tippGedacht(const std::shared_ptr<Denkjob>& job);
    bool stimmtNoch(const Denkjob& job) const;
    std::shared_ptr<Denkjob> denkjob(engine::Sitz sitz, const players::Starkart& art, std::uint64_t seed);
    // Runs a box or dialog of ours and returns what it returns; the game waits meanwhile.
    template <class F>
    auto modal(F&& zeigen);
    void hinweisen(const QString& titel, const std::string& text);
    // The open request is for the person at seat 1 (not the computer playing for it).
    bool menschGefragt(const engine::Anfrage& a) const;
    // Runs one step after `ms` milliseconds; at most one step is planned at a time.
    void planen(int ms, void (Tischsteuerung::*schritt)());
    void karteGelegt(int pos, engine::Sitz sitz);
    void anzeigen(const engine::Anfrage& a);
    void meldungenZeigen();
    void neugebenBeantworten(const engine::Anfrage& a);
    void vorbehaltBeantworten(const engine::Anfrage& a);
    engine::Vorbehalt vorbehaltFragen(const engine::Anfrage& a);
    void computerKarte();
    void geben();
    void begruendungenZeigen();
    void spielerPassend();
    engine::ProSitz<int> parteibilder() const;
    // Forgets every step under way (timers, boxes, animations) before a new start.
    void ablaufZuruecksetzen();
    void zustandUebernehmen(const engine::Spiel& stand);
    void einsammeln();
    void spielendeZeigen();
    bool imDialog() const { return dialoge_ > 0; }
    void standMelden();
    void sticheZeigen(const engine::Spiel& spiel, const std::vector<engine::StichProtokoll>& stiche);
    void ansageBescheid(const engine::Bescheid& b);
    // Seat 1's decisions go to the network when it takes them, else to the cycle.
    engine::Bescheid beantworten(const engine::Antwort& antwort);
    engine::Bescheid ansagen(engine::Sitz sitz, const engine::Ansage& ansage);
    // The position the cycle took for the seat's card (a guest plays the first of two equal cards).
    int gelegteKarte(engine::Sitz sitz, int gewaehlt) const;
    void netzBeschaeftigtMelden();
    engine::Entscheider& entscheider(engine::Sitz sitz);

    Hauptfenster& hfo_;
    std::unique_ptr<engine::Zufallsquelle> zufall_;
    engine::Spiel spiel_;
    engine::Spielablauf ablauf_;
    Anzeigeoptionen optionen_;
    Tempo tempo_;
    Begruendungsanzeige begruendungen_;
    players::Begruendungsprotokoll protokoll_{&begruendungen_};  // keeps the reasons, then shows them
    players::Tischwissen wissen_;
    engine::ProSitz<int> charaktere_{2};
    engine::ProSitz<std::shared_ptr<engine::Entscheider>> entscheider_;
    engine::ProSitz<int> gebaut_{-1};        // the character each seat's player was made for
    engine::ProSitz<bool> vorgegeben_{false};  // set from outside, kept whatever the character
    Kartengeber kartengeber_;
    std::vector<engine::Meldung> meldungen_;
    std::vector<engine::ProSitz<int>> zeilen_;
    std::vector<Spielangaben> angaben_;
    engine::Spiel letztesSpiel_;  // the last scored game, for its tricks
    players::Spielbegruendungen letzteBegruendungen_;
    std::function<void(QWidget*)> verlaufZeigen_;
    bool begonnen_ = false;       // nothing is dealt before a Partie is begun or a game taken over
    bool geplant_ = false;        // a step is scheduled
    bool beschaeftigt_ = false;   // a card flies or a trick is being collected
    int dialoge_ = 0;             // modal dialogs open (ours and the program's, one may open over another)
    bool einsammelnLaeuft_ = false;
    bool partieendeGemeldet_ = false;
    int zugGemeldet_ = -1;        // the card count at which seat 1's turn was last signalled
    std::tuple<int, int, int> gemeldeterStand_{-1, -1, -1};  // game, cards, phase of the last standGeaendert
    int schritt_ = 0;             // counts Partien, so a timer of an abandoned one does nothing
    Netzanbindung* netz_ = nullptr;
    std::vector<std::pair<int, engine::Sitz>> fremdeKarten_;  // played at another machine, not yet shown
    int bedenkzeit_ = 500;
    std::thread denker_;          // a computer seat thinking
    std::shared_ptr<Denkjob> denkjob_;  // what denker_ works on
    std::thread tippDenker_;      // the hint being worked out
    std::atomic<bool> tippLaeuft_{false};
};

}  // namespace table

#pragma once
// What the desktop program does around the game: it holds the live options and
// takes changed ones over (EinstUebernehmen), opens the settings dialog, saves
// and loads a Partie, shows the welcome screen at the first new Partie and asks
// for a deal by hand. The controller plays; the main window shows.
#include <QObject>
#include <memory>
#include <optional>

#include "Benutzereinstellungen.h"
#include "engine/Geben.h"
#include "savegame/Spielstand.h"
#include "settings/Einstellungen.h"

class QLabel;

namespace savegame {
class Sicherungsplatz;
}
namespace settings {
class Benutzerspeicher;
}

namespace table {

class Dateiwahl;
class Hauptfenster;
class Lernhilfen;
class Tischsteuerung;

class Tischprogramm : public QObject {
    Q_OBJECT
public:
    Tischprogramm(Hauptfenster& hfo, Tischsteuerung& steuerung, settings::Benutzerspeicher& speicher,
                  Dateiwahl& dateiwahl, QString optionsdatei, QObject* parent = nullptr);
    ~Tischprogramm() override;

    const settings::Einstellungen& einstellungen() const { return einstellungen_; }
    const Benutzereinstellungen& benutzer() const { return benutzer_; }
    Lernhilfen& lernhilfen() { return *lernhilfen_; }
    void setzeLesekontext(const settings::Lesekontext& kontext) { kontext_ = kontext; }

    // Takes changed options into the running program: display, names and sound at
    // once, the rules and the seats' players with the next game.
    void EinstUebernehmen(const settings::Einstellungen& e, const Benutzereinstellungen& b);

    // The first new Partie after the start: the welcome screen when it is wanted,
    // or the saved Partie named on the command line.
    void starten(const QString& ladeDatei = {});

    // The window as the options want it: full screen or with its own frame.
    void fensterZeigen();

    // Whether "Manuelle Kartenverteilung?" may be asked (not in a tournament Partie).
    void setzeManuellesGebenErlaubt(bool erlaubt) { manuellErlaubt_ = erlaubt; }

    // The state a saved file gets (also for tests).
    savegame::Spielstand spielstand() const;

    // The file that always holds the running Partie (empty: none is kept); the
    // welcome screen offers to resume it. The program's own lies in the data folder.
    // While another program of this user keeps its Partie there, this one keeps its
    // own under a further name, or none when all are taken; the status line says so.
    void setzeSicherungsdatei(const QString& pfad);
    // The file this program keeps its Partie in (empty: none).
    const QString& sicherungsdatei() const { return sicherung_; }
    static QString standardSicherungsdatei();

    // Before the program ends: during a Partie the person may save it or stay.
    bool beendenPruefen();

signals:
    // Sound options or card names changed; the sound player follows.
    void einstellungenUebernommen(const settings::Einstellungen& e);
    // The settings were reset: the program ends without writing anything back.
    void programmEndeVerlangt();
    // A saved Partie replaces the running one (or a new one begins after it).
    void partieGeladen();

public slots:
    void willkommen_zeigen();
    bool fortsetzbar() const;
    bool partieZumWeiterspielen() const;
    // True when the automatic save was a Partie to play on.
    bool sicherungLaden();
    void einstellungenZeigen();
    void regelnZeigen();
    void m_partie_speichern_Click();
    // Keeps the running Partie in the automatic save, or removes it once the Partie is over.
    void sichern();
    void m_partie_laden_Click();
    // The loading flow for a file: its messages, the finished-game question, resuming.
    void partieLaden(const QString& pfad);

private:
    std::optional<engine::Kartenverteilung> kartenGeben(const engine::Spiel& spiel);
    void menueAnpassen();
    // The save dialog for `stand`; false when cancelled or not written.
    bool speichernUnter(const savegame::Spielstand& stand);

    Hauptfenster& hfo_;
    Tischsteuerung& steuerung_;
    settings::Benutzerspeicher& speicher_;
    Dateiwahl& dateiwahl_;
    QString optionsdatei_;
    settings::Lesekontext kontext_;
    settings::Einstellungen einstellungen_;
    Benutzereinstellungen benutzer_;
    std::unique_ptr<Lernhilfen> lernhilfen_;
    int tempostufe_ = -1;  // the "Tempo" last taken over
    bool manuellErlaubt_ = true;
    std::unique_ptr<savegame::Sicherungsplatz> platz_;
    QString sicherung_;
    QLabel* sicherungshinweis_ = nullptr;
    std::optional<savegame::Spielstand> letzterStand_;  // the last state a file can hold
    bool ohneFrageBeenden_ = false;                      // after a reset of the settings
};

}  // namespace table

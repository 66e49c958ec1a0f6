#pragma once
// Network play at the table window: "Netzwerkspiel..." and its login dialog,
// hosting and joining (also straight from the command line), the chat and
// protocol panes, the host's start entry and listening label, and what happens
// when a guest loses its host. The table stays the one table of the program;
// a network game runs on it exactly as a local one.
#include <QObject>
#include <functional>
#include <memory>
#include <optional>

#include "net/Netzzeiten.h"
#include "net/Protokoll.h"

class QAction;
class QLabel;

namespace settings {
class Benutzerspeicher;
}

namespace table {

class Chatbereich;
class Foyerruhe;
class Hauptfenster;
class Netzanmeldung;
class Netzgasttisch;
class Netzhosttisch;
class Netztisch;
class Protokollbereich;
class Tischprogramm;
class Tischsteuerung;

// "Netztempo" as the pump's interval: 40 ms at 1 (the default), 10 ms less for
// each step up, 0 (every pass of the event loop) from 5 on, 50 ms at 0.
int pumpintervall(int netztempo);

class Netzspiel : public QObject {
    Q_OBJECT
public:
    Netzspiel(Hauptfenster& hfo, Tischsteuerung& steuerung, Tischprogramm& programm, settings::Benutzerspeicher& speicher,
              QObject* parent = nullptr);
    ~Netzspiel() override;

    // Times of the table instead of the settings' (tests make them short).
    void setzeZeiten(const net::Netzzeiten& zeiten) { zeiten_ = zeiten; }
    // How Yes to "Möchten Sie ins Foyer zurückkehren?" is carried out: "Restart"
    // is written and the program started anew (it then opens the foyer); true
    // when it was, and this one ends. Without it only the marker is written.
    void setzeFoyerRueckkehr(std::function<bool()> rueckkehr) { foyerRueckkehr_ = std::move(rueckkehr); }
    // Tried before that: back to the foyer this program is logged in to (true),
    // or there is none (false).
    void setzeFoyerZurueck(std::function<bool()> zurueck) { foyerZurueck_ = std::move(zurueck); }

    // Opens the table; false, after a box, when the port cannot be opened.
    bool hosten(const QString& name, int port);
    void beitreten(const QString& host, int port, const QString& name);
    // From the command line: with a name that fails the checks the dialog comes
    // first. False when no network table came of it (cancelled, port taken).
    bool hostenMitName(const QString& name, std::optional<int> port);
    bool beitretenMitAdresse(const QString& adresse, const QString& name);

    // The player is in the foyer: a network table is left and the window waits
    // without dealing (no box of a local game stands in the foyer's way) until he
    // sits down at a table or starts, loads or plays a Partie of his own.
    void imFoyerWarten();
    bool wartetImFoyer() const;
    // Before a network table takes the place of a running local Partie: the usual
    // question. True when there is none or the person gives it up.
    bool partieAufgeben();
    // While the foyer is connected its traffic can be logged, with or without a table.
    void foyerVerbunden(bool verbunden);
    // Text received from the foyer: into the protocol log while the log is shown.
    void foyertextProtokollieren(const QString& text);

    Netzhosttisch* host() const { return host_; }
    Netzgasttisch* gast() const { return gast_; }
    Chatbereich* chat() const { return chat_; }
    Protokollbereich* protokoll() const { return protokoll_; }
    QAction* startAktion() const { return start_; }
    QAction* netzwerkspielAktion() const { return netzwerkspiel_; }
    QLabel* lauschenLabel() const { return lauschen_; }

signals:
    void spielerKommt();
    void spielerGeht();
    // The network table of this window is gone (left, lost or given up for a Partie alone).
    void tischAbgebaut();

public slots:
    // "Netzwerkspiel...": the login dialog; OK hosts or joins.
    void anmeldungZeigen();

private:
    // The dialog with a preset choice; `nurName` when only the name may change (after a refusal).
    std::unique_ptr<Netzanmeldung> dialog(std::optional<bool> beitreten, const QString& name);
    bool dialogAusfuehren(Netzanmeldung& d);
    net::Netzzeiten zeiten() const;
    void anbinden(Netztisch* tisch);
    void alleinSpielen();
    void tischAbbauen();
    void nameVergeben(const QString& text);
    void verloren(bool erreicht, int nummer, const QString& beschreibung);
    void programmBeenden();
    void protokollUmschalten(bool zeigen);
    void menueAnpassen();

    Hauptfenster& hfo_;
    Tischsteuerung& steuerung_;
    Tischprogramm& programm_;
    settings::Benutzerspeicher& speicher_;
    std::optional<net::Netzzeiten> zeiten_;
    std::function<bool()> foyerRueckkehr_;
    std::function<bool()> foyerZurueck_;
    std::unique_ptr<Foyerruhe> ruhe_;
    net::Protokoll foyerprotokoll_;  // the foyer's traffic while no table keeps a log
    bool foyerVerbunden_ = false;

    QAction* netzwerkspiel_ = nullptr;
    QAction* start_ = nullptr;
    QLabel* lauschen_ = nullptr;
    Chatbereich* chat_ = nullptr;
    Protokollbereich* protokoll_ = nullptr;
    Netzhosttisch* host_ = nullptr;
    Netzgasttisch* gast_ = nullptr;
    QString serverHost_;     // the host being joined, for the messages
    bool ausDialog_ = false;  // the join came from the dialog, which opens again on failure
};

}  // namespace table

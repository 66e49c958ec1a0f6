#pragma once
// A guest at a network table: one connection to the host, the pump that takes
// one message per tick, and the own game cycle that replays what the host
// reports (see Gastkern). The owner keeps the game and shows it; it answers
// seat 1's requests after gefragt() through antworten() and ansagen() here.
// Everything reaches the owner as signals; nothing here opens a box or waits.
#include <QObject>
#include <QTcpSocket>
#include <QTimer>
#include <memory>

#include "Gastkern.h"
#include "Netzzeiten.h"

namespace net {

class Gast final : public QObject {
    Q_OBJECT
public:
    Gast(engine::Spiel& spiel, engine::Spielablauf& ablauf, Netzzeiten zeiten = {}, QObject* parent = nullptr);
    ~Gast() override;

    // Connects and logs in with the name (checked by the caller with namePruefen()).
    void verbinden(const QString& host, quint16 port, const QString& name);
    // Leaves the table: what is still to be written goes out, then the connection closes.
    void verlassen();

    void setzeAnzeigeBeschaeftigt(bool beschaeftigt);
    engine::Bescheid antworten(const engine::Antwort& antwort);
    engine::Bescheid ansagen(const engine::Ansage& ansage);
    void nameSenden(const QString& name);
    void chatSenden(const QString& text);
    // The answer to serverAntwortetNicht(): wait again, or give up (the connection closes).
    void wartenBeantworten(bool nochmal);
    // The pump's interval in milliseconds (a window follows the host's "Netzt" with it).
    void setzeTakt(int ms) { takt_.setInterval(ms); }

    // The core, for what the game needs to know (open question, host totals, log).
    const Gastkern* kern() const { return kern_.get(); }
    Gastkern* kern() { return kern_.get(); }

signals:
    void verbunden();
    void status(const QString& text);
    void chatzeile(const QString& zeile);
    // A message box with a notice.
    void hinweis(const QString& text);
    void protokollzeile(const QString& zeile);
    void namenGeaendert();
    void netztempoErhalten(int netztempo);
    // The host refused the name: the text to show; a new one goes by nameSenden().
    void nameVergeben(const QString& text);
    void gefragt();
    void weiter();
    void sitzVorbehalt(int sitz, const QString& text);
    void spielBeendet();
    void punkteErhalten();
    void abweichung(const QString& text);
    // The host has not answered during the login: Retry/Cancel, answered by wartenBeantworten().
    void serverAntwortetNicht(const QString& frage);
    // The connection failed (`erreicht` false: it never came up) or broke; see
    // texte::gastFehler() and the texts that follow it.
    void verbindungVerloren(bool erreicht, int nummer, const QString& beschreibung);
    // After verlassen(): the connection is closed.
    void verlassenFertig();

private:
    class Ausgang;
    friend class Ausgang;
    void pumpen();
    void verloren(int nummer, const QString& beschreibung);

    engine::Spiel& spiel_;
    engine::Spielablauf& ablauf_;
    Netzzeiten zeiten_;
    std::unique_ptr<Ausgang> ausgang_;
    std::unique_ptr<Gastkern> kern_;
    QTcpSocket socket_;
    QTimer takt_;
    QTimer warten_;
    bool erreicht_ = false;    // the connection came up
    bool gehoert_ = false;     // a message of the host has arrived
    bool anmeldung_ = false;   // waiting for the host's name question
    bool getrennt_ = false;    // the connection is gone; the buffer is still being worked off
    bool verlassen_ = false;
    int fehlerNummer_ = 0;
    QString fehlerText_;
};

}  // namespace net

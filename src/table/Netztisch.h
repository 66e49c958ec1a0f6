#pragma once
// A network table at the window, host or guest: it stands between the table
// controller and the connection object (net::Gastgeber or net::Gast), shows the
// status texts and boxes of network play and carries the chat. Boxes hold the
// game while they are open, as the table's own do.
#include <QObject>
#include <QString>

#include "Netzanbindung.h"

namespace net {
class Protokoll;
}

namespace table {

class Hauptfenster;
class Tischsteuerung;

class Netztisch : public QObject, public Netzanbindung {
    Q_OBJECT
public:
    Netztisch(Hauptfenster& hfo, Tischsteuerung& steuerung, QObject* parent = nullptr);
    ~Netztisch() override;

    // A line typed into the chat pane.
    virtual void chatSenden(const QString& text) = 0;
    // The traffic so far (empty before there is any).
    virtual const net::Protokoll* protokoll() const = 0;
    // A line from beside the table (the foyer) into its protocol log; false while there is none.
    virtual bool vermerken(const QString& text) = 0;

    // The last status text of the network (what the line shows while the game has none).
    const QString& netzstatus() const { return netzstatus_; }

    QString status(const engine::Anfrage& a, const QString& status) const override;

signals:
    void chatzeile(const QString& zeile);
    void protokollzeile(const QString& zeile);

protected:
    void statusZeigen(const QString& text);
    // A box of network play; the game waits while it is open.
    void hinweisen(bool kritisch, const QString& text);
    bool fragen(const QString& text);  // Yes/No

    Hauptfenster& hfo_;
    Tischsteuerung& steuerung_;
    QString netzstatus_;
};

}  // namespace table

#pragma once
// A network table without a person here: the computer plays every seat no guest
// holds (the host's own too), and a guest's own seat is played by its rule book.
// The headless --host/--join modes and the tests run their tables with these.
#include <QObject>

#include "Gast.h"
#include "Gastgeber.h"
#include "Tischautomat.h"

namespace net {

class Automatiktisch final : public QObject {
    Q_OBJECT
public:
    // Starts the Partie once `gaeste` guests have logged in and are ready, and
    // plays until the automat's nachSpiel says stop.
    Automatiktisch(Gastgeber& host, engine::Spielablauf& ablauf, Tischautomat& automat, int gaeste,
                   QObject* parent = nullptr);

    bool gestartet() const { return gestartet_; }

signals:
    void begonnen();
    void fertig();

private:
    void weiter();

    Gastgeber& host_;
    engine::Spielablauf& ablauf_;
    Tischautomat& automat_;
    int gaeste_;
    bool gestartet_ = false;
    bool fertig_ = false;
};

// Lets the rule book answer every question the host asks the guest.
void automatischSpielen(Gast& gast, const engine::Spielablauf& ablauf, engine::Entscheider& spieler);

}  // namespace net

#include "Automatiktisch.h"

#include <QTimer>

namespace net {

Automatiktisch::Automatiktisch(Gastgeber& host, engine::Spielablauf& ablauf, Tischautomat& automat, int gaeste,
                               QObject* parent)
    : QObject(parent), host_(host), ablauf_(ablauf), automat_(automat), gaeste_(gaeste) {
    if (!automat_.vorNeuerPartie) automat_.vorNeuerPartie = [this] { host_.neuePartieMelden(); };
    connect(&host_, &Gastgeber::bereitGeaendert, this, &Automatiktisch::weiter, Qt::QueuedConnection);
    connect(&host_, &Gastgeber::weiter, this, &Automatiktisch::weiter);
    QTimer::singleShot(0, this, &Automatiktisch::weiter);
}

void Automatiktisch::weiter() {
    if (fertig_) return;
    if (!gestartet_) {
        if (host_.kern().angemeldeteGaeste() < gaeste_ || !host_.kern().alleBereit()) return;
        gestartet_ = true;
        ablauf_.neuePartie();
        emit begonnen();
    }
    // A bounded run, so the pump and the sockets get their turn in between.
    switch (automat_.laufen(2000)) {
        case Tischautomat::Halt::Person: host_.anfrageStellen(); break;
        case Tischautomat::Halt::Schritte: QTimer::singleShot(0, this, &Automatiktisch::weiter); break;
        case Tischautomat::Halt::Spielende:
            fertig_ = true;
            emit fertig();
            break;
    }
}

void automatischSpielen(Gast& gast, const engine::Spielablauf& ablauf, engine::Entscheider& spieler) {
    QObject::connect(
        &gast, &Gast::gefragt, &gast,
        [&gast, &ablauf, &spieler] {
            if (gast.kern()) gastfrageBeantworten(*gast.kern(), ablauf, spieler);
        },
        Qt::QueuedConnection);
}

}  // namespace net

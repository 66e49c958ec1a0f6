#pragma once
// Where everything lies on the table for a given window size: pure geometry, so
// the view only paints and hit-tests, and tests can check that nothing overlaps.
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>
#include <vector>

#include "engine/Sitz.h"

namespace table {

// A card placed by its centre and its rotation in degrees (clockwise).
struct Kartenplatz {
    QPointF mitte;
    qreal winkel = 0;
};

// The card's outline on the table.
QPolygonF umriss(const Kartenplatz& platz, QSizeF groesse);

class Tischlayout {
public:
    Tischlayout(QSizeF flaeche, qreal seitenverhaeltnis);

    QSizeF flaeche() const { return flaeche_; }
    QSizeF kartengroesse() const { return karte_; }   // the own hand and the trick
    QSizeF kleineKarte() const { return klein_; }     // the other seats' backs
    // How far a card is lifted: legal cards a little, the selected one more.
    qreal anhebung(bool ausgewaehlt) const { return karte_.height() * (ausgewaehlt ? 0.16 : 0.07); }

    // Seat 1's cards, left to right, in a gentle fan at the bottom.
    std::vector<Kartenplatz> hand(int anzahl) const;
    // The face-down hands of seats 2 (left), 3 (top) and 4 (right).
    std::vector<Kartenplatz> verdeckteHand(engine::Sitz sitz, int anzahl) const;
    // The same hands face up ("Alle Karten zeigen"): seat 3 as before, seats 2 and 4
    // upright in a grid of three columns, so each card's corner can be read.
    std::vector<Kartenplatz> offeneHand(engine::Sitz sitz, int anzahl) const;
    QSizeF offeneKarte(engine::Sitz sitz) const { return sitz.nr() == 3 ? klein_ : klein_ * 0.75; }
    // A seat's card in the trick.
    Kartenplatz stichplatz(engine::Sitz sitz) const;
    // Where a seat's cards come from when they fly to the trick.
    QPointF handmitte(engine::Sitz sitz) const;
    // Everything the trick can cover (clicked to collect it).
    QRectF stichflaeche() const;
    // Name plate (name, Augen) and the party picture beside it.
    QRectF namensschild(engine::Sitz sitz) const;
    QRectF parteibild(engine::Sitz sitz) const;
    // The seat's announcements (the first two) next to its party picture.
    QRectF ansageschild(engine::Sitz sitz, int nr) const;
    // The quiet corner top right for the game type, number, dealer and Vorhand.
    QRectF spielecke() const;

private:
    // Height of the top row (seat 3's hand and plate); the side columns begin below it.
    qreal kopfzeile() const;

    QSizeF flaeche_;
    QSizeF karte_;
    QSizeF klein_;
    qreal rand_;
    QSizeF schild_;
    qreal streifen_ = 0;  // width of the side strips (seats 2 and 4)
    QPointF stichmitte_;
};

}  // namespace table

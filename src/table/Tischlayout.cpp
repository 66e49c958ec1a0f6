#include "Tischlayout.h"

#include <QTransform>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace table {

namespace {

constexpr int VolleHand = 12;
constexpr qreal FaecherGrad = 1.8;   // turn between two neighbouring cards of the fan
constexpr qreal KleinFaktor = 0.6;   // backs of the other seats against the own cards

qreal bogenmass(qreal grad) { return grad * std::numbers::pi / 180.0; }

// Half the height the card covers when turned by `winkel`.
qreal halbeHoehe(QSizeF karte, qreal winkel) {
    const qreal w = bogenmass(winkel);
    return (karte.height() * std::abs(std::cos(w)) + karte.width() * std::abs(std::sin(w))) / 2;
}

// Places of a fan of `anzahl` cards around x = 0, the middle card's centre at y = 0.
std::vector<Kartenplatz> faecher(int anzahl, qreal schritt) {
    std::vector<Kartenplatz> plaetze;
    const qreal mitte = (anzahl - 1) / 2.0;
    const qreal winkel = anzahl > 1 ? std::min(FaecherGrad, 22.0 / (anzahl - 1)) : 0;
    for (int i = 0; i < anzahl; ++i) {
        const qreal d = i - mitte;
        // A parabola through the card centres approximates a circle of radius schritt / winkel.
        const qreal y = d * d * schritt * bogenmass(winkel) / 2;
        plaetze.push_back({QPointF(d * schritt, y), d * winkel});
    }
    return plaetze;
}

}  // namespace

QPolygonF umriss(const Kartenplatz& platz, QSizeF groesse) {
    QTransform t;
    t.translate(platz.mitte.x(), platz.mitte.y());
    t.rotate(platz.winkel);
    return t.map(QPolygonF(QRectF(QPointF(-groesse.width() / 2, -groesse.height() / 2), groesse)));
}

Tischlayout::Tischlayout(QSizeF flaeche, qreal seitenverhaeltnis) : flaeche_(flaeche) {
    const qreal w = std::max<qreal>(flaeche.width(), 200);
    const qreal h = std::max<qreal>(flaeche.height(), 150);
    rand_ = std::max<qreal>(6, 0.012 * std::min(w, h));
    schild_ = QSizeF(std::clamp(0.15 * w, 110.0, 230.0), std::clamp(0.075 * h, 40.0, 60.0));

    // The width holds the own fan between the side strips with at least a third of
    // each card showing; the height holds the top hand, the trick and the own fan.
    qreal kh = (h - 5 * rand_) / 3.5;
    for (int versuch = 0; versuch < 8; ++versuch) {
        karte_ = QSizeF(kh * seitenverhaeltnis, kh);
        klein_ = karte_ * KleinFaktor;
        streifen_ = rand_ + std::max(schild_.width(), klein_.height() + rand_ + schild_.height() * 0.55);
        const qreal handbreite = w - 2 * (streifen_ + rand_);
        const qreal noetig = karte_.width() * (1 + (VolleHand - 1) * 0.36);
        if (noetig > handbreite) {
            kh *= std::max(0.5, handbreite / noetig);
            continue;
        }
        // The trick goes midway between the top hand and the lifted own fan.
        qreal handOben = h;
        for (Kartenplatz p : hand(VolleHand)) {
            p.mitte.ry() -= anhebung(true);
            handOben = std::min(handOben, umriss(p, karte_).boundingRect().top());
        }
        stichmitte_ = QPointF(w / 2, 0);
        const QRectF stich = stichflaeche();
        const qreal oben = kopfzeile();
        const qreal platz = handOben - rand_ - oben;
        stichmitte_.setY(oben + platz / 2 - stich.center().y());
        if (stich.height() <= platz) break;
        kh *= std::max(0.5, platz / stich.height() * 0.99);
    }
}

std::vector<Kartenplatz> Tischlayout::hand(int anzahl) const {
    if (anzahl <= 0) return {};
    const qreal breite = flaeche_.width() - 2 * (streifen_ + rand_);
    const qreal schritt = anzahl > 1 ? std::min(karte_.width() * 0.62, (breite - karte_.width()) / (anzahl - 1)) : 0;
    std::vector<Kartenplatz> plaetze = faecher(anzahl, schritt);
    qreal tiefster = 0;
    for (const auto& p : plaetze) tiefster = std::max(tiefster, p.mitte.y() + halbeHoehe(karte_, p.winkel));
    const QPointF verschiebung(flaeche_.width() / 2, flaeche_.height() - rand_ - tiefster);
    for (auto& p : plaetze) p.mitte += verschiebung;
    return plaetze;
}

std::vector<Kartenplatz> Tischlayout::verdeckteHand(engine::Sitz sitz, int anzahl) const {
    if (anzahl <= 0) return {};
    std::vector<Kartenplatz> plaetze;
    const qreal mitte = (anzahl - 1) / 2.0;
    if (sitz.nr() == 3) {
        const qreal schritt = klein_.width() * 0.24;
        for (int i = 0; i < anzahl; ++i)
            plaetze.push_back({QPointF(flaeche_.width() / 2 + (i - mitte) * schritt, rand_ + klein_.height() / 2), 0});
        return plaetze;
    }
    // Seats 2 and 4 hold their cards sideways in a column beside the trick.
    const qreal x = sitz.nr() == 2 ? rand_ + klein_.height() / 2 : flaeche_.width() - rand_ - klein_.height() / 2;
    const QRectF schild = namensschild(sitz);
    const qreal oben = kopfzeile();
    const qreal platz = schild.top() - rand_ - oben;
    const qreal schritt = anzahl > 1 ? std::min(klein_.width() * 0.24, (platz - klein_.width()) / (anzahl - 1)) : 0;
    const qreal y = (oben + schild.top() - rand_) / 2;
    for (int i = 0; i < anzahl; ++i)
        plaetze.push_back({QPointF(x, y + (i - mitte) * schritt), sitz.nr() == 2 ? 90.0 : -90.0});
    return plaetze;
}

std::vector<Kartenplatz> Tischlayout::offeneHand(engine::Sitz sitz, int anzahl) const {
    if (sitz.nr() == 1 || sitz.nr() == 3 || anzahl <= 0) return verdeckteHand(sitz, anzahl);
    constexpr int Spalten = 3;
    const QSizeF karte = offeneKarte(sitz);
    const int zeilen = (anzahl + Spalten - 1) / Spalten;
    // The grid fills the strip the face-down column takes, between the top and the name plate.
    const qreal links = sitz.nr() == 2 ? rand_ : flaeche_.width() - rand_ - klein_.height();
    const qreal oben = rand_ + std::max(klein_.height(), schild_.height() * 1.6 + rand_) + rand_;
    const qreal unten = namensschild(sitz).top() - rand_;
    const qreal dx = std::min(karte.width() * 0.6, (klein_.height() - karte.width()) / (Spalten - 1));
    const qreal dy = zeilen > 1 ? std::clamp((unten - oben - karte.height()) / (zeilen - 1), 0.0, karte.height() * 0.45) : 0;
    const qreal y0 = (oben + unten) / 2 - (karte.height() + dy * (zeilen - 1)) / 2 + karte.height() / 2;
    std::vector<Kartenplatz> plaetze;
    for (int i = 0; i < anzahl; ++i)
        plaetze.push_back({QPointF(links + karte.width() / 2 + (i % Spalten) * dx, y0 + (i / Spalten) * dy), 0});
    return plaetze;
}

Kartenplatz Tischlayout::stichplatz(engine::Sitz sitz) const {
    const qreal dx = karte_.width() * 0.62;
    const qreal dy = karte_.height() * 0.3;
    switch (sitz.nr()) {
        case 1: return {stichmitte_ + QPointF(0, dy), 2};
        case 2: return {stichmitte_ + QPointF(-dx, -dy * 0.1), -8};
        case 3: return {stichmitte_ + QPointF(0, -dy), -3};
        default: return {stichmitte_ + QPointF(dx, dy * 0.1), 7};
    }
}

QPointF Tischlayout::handmitte(engine::Sitz sitz) const {
    if (sitz.nr() == 1) return QPointF(flaeche_.width() / 2, flaeche_.height() - rand_ - karte_.height() / 2);
    const auto karten = verdeckteHand(sitz, VolleHand);
    return (karten.front().mitte + karten.back().mitte) / 2;
}

QRectF Tischlayout::stichflaeche() const {
    QRectF flaeche;
    for (const engine::Sitz s : engine::alleSitze) flaeche |= umriss(stichplatz(s), karte_).boundingRect();
    return flaeche;
}

QRectF Tischlayout::namensschild(engine::Sitz sitz) const {
    const qreal w = flaeche_.width();
    const qreal h = flaeche_.height();
    switch (sitz.nr()) {
        case 1: return QRectF(QPointF(rand_, h - rand_ - schild_.height()), schild_);
        case 2: return QRectF(QPointF(rand_, stichmitte_.y() + karte_.height() * 0.25), schild_);
        case 3: {
            const qreal reihe = klein_.width() * (1 + (VolleHand - 1) * 0.24);
            return QRectF(QPointF(w / 2 - reihe / 2 - 2 * rand_ - schild_.width(), rand_), schild_);
        }
        default: return QRectF(QPointF(w - rand_ - schild_.width(), stichmitte_.y() + karte_.height() * 0.25), schild_);
    }
}

QRectF Tischlayout::parteibild(engine::Sitz sitz) const {
    const QRectF schild = namensschild(sitz);
    const qreal e = schild_.height() * 0.55;
    switch (sitz.nr()) {
        case 1: return QRectF(schild.left(), schild.top() - rand_ - e, e * 2.4, e);
        case 3: return QRectF(schild.left(), schild.bottom() + rand_, e * 2.4, e);
        case 2: return QRectF(rand_ + klein_.height() + rand_, schild.top() - rand_ - e * 2.4, e, e * 2.4);
        default: return QRectF(flaeche_.width() - 2 * rand_ - klein_.height() - e, schild.top() - rand_ - e * 2.4, e, e * 2.4);
    }
}

QRectF Tischlayout::ansageschild(engine::Sitz sitz, int nr) const {
    const QRectF bild = parteibild(sitz);
    const qreal e = schild_.height() * 0.55;
    const QSizeF g(e * 2.4, e * 0.8);
    const qreal schritt = nr * (g.height() + rand_);
    switch (sitz.nr()) {
        case 1: return QRectF(QPointF(bild.left(), bild.top() - rand_ - g.height() - schritt), g);
        case 3: return QRectF(QPointF(bild.left(), bild.bottom() + rand_ + schritt), g);
        case 2: return QRectF(QPointF(bild.right() + rand_, bild.top() + schritt), g);
        default: return QRectF(QPointF(bild.left() - rand_ - g.width(), bild.top() + schritt), g);
    }
}

QRectF Tischlayout::spielecke() const {
    const qreal reihe = klein_.width() * (1 + (VolleHand - 1) * 0.24);
    return QRectF(QPointF(flaeche_.width() / 2 + reihe / 2 + 2 * rand_, rand_),
                  QPointF(flaeche_.width() - rand_, kopfzeile() - rand_));
}

qreal Tischlayout::kopfzeile() const { return rand_ + std::max(klein_.height(), schild_.height() * 1.6 + rand_) + rand_; }

}  // namespace table

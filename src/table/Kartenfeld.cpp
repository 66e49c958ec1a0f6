#include "Kartenfeld.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "Kartenbilder.h"

namespace table {

namespace {
constexpr int Rand = 4;
}

Kartenfeld::Kartenfeld(Kartenbilder& bilder, int kartenhoehe, int proZeile, QWidget* parent)
    : QWidget(parent), bilder_(bilder), hoehe_(kartenhoehe), proZeile_(proZeile) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
}

void Kartenfeld::setzeKarten(std::vector<int> codes) {
    codes_ = std::move(codes);
    anordnen();
}

void Kartenfeld::setzeZeilenwahl(std::function<int(int)> zeile) {
    zeilenwahl_ = std::move(zeile);
    anordnen();
}

void Kartenfeld::anordnen() {
    platz_.clear();
    std::vector<int> belegt;
    for (std::size_t i = 0; i < codes_.size(); ++i) {
        const int zeile = zeilenwahl_ ? std::max(0, zeilenwahl_(codes_[i])) : static_cast<int>(i) / proZeile_;
        if (static_cast<int>(belegt.size()) <= zeile) belegt.resize(static_cast<std::size_t>(zeile) + 1, 0);
        platz_.emplace_back(belegt[static_cast<std::size_t>(zeile)]++, zeile);
    }
    zeilen_ = std::max(mindestzeilen_, static_cast<int>(belegt.size()));
    setMinimumHeight(sizeHint().height());
    updateGeometry();
    update();
}

QSize Kartenfeld::kartengroesse() const {
    return {static_cast<int>(hoehe_ * bilder_.seitenverhaeltnis()), hoehe_};
}

// Each card shows at least a little more than half its width, enough for its
// corner; a wider field spreads the row out, up to cards side by side.
int Kartenfeld::versatz() const {
    const int breite = kartengroesse().width();
    const int mindestens = breite * 55 / 100;
    if (proZeile_ < 2) return mindestens;
    return std::clamp((width() - 2 * Rand - breite) / (proZeile_ - 1), mindestens, breite + Rand);
}

QRect Kartenfeld::kartenrechteck(std::size_t index) const {
    const QPoint p = platz_[index];
    return {QPoint(Rand + p.x() * versatz(), Rand + p.y() * (hoehe_ + Rand)), kartengroesse()};
}

QPoint Kartenfeld::kartenmitte(std::size_t index) const {
    const QRect r = kartenrechteck(index);
    // The last card of its row shows whole; the others only up to the next one.
    const bool zuoberst = index + 1 == codes_.size() || platz_[index + 1].y() != platz_[index].y();
    return {r.left() + (zuoberst ? r.width() : std::min(versatz(), r.width())) / 2, r.center().y()};
}

QSize Kartenfeld::sizeHint() const {
    return {2 * Rand + (proZeile_ - 1) * (kartengroesse().width() * 55 / 100) + kartengroesse().width(),
            Rand + zeilen_ * (hoehe_ + Rand)};
}

void Kartenfeld::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::SmoothPixmapTransform);
    const qreal dpr = devicePixelRatioF();
    for (std::size_t i = 0; i < codes_.size(); ++i) {
        const QPixmap bild = bilder_.vorderseite(codes_[i], kartengroesse(), dpr);
        maler.drawPixmap(QRectF(kartenrechteck(i)), bild, QRectF(bild.rect()));
    }
}

void Kartenfeld::mousePressEvent(QMouseEvent* event) {
    // Later cards lie on top, so the last one under the pointer is meant.
    for (std::size_t i = codes_.size(); i-- > 0;)
        if (kartenrechteck(i).contains(event->position().toPoint())) {
            emit geklickt(static_cast<int>(i));
            return;
        }
}

}  // namespace table

#include "Kartenreihe.h"

#include <QPainter>
#include <cmath>

#include "Kartenbilder.h"

namespace table {

namespace {
constexpr qreal Ueberdeckung = 0.45;  // share of a card covered by the next one
}

Kartenreihe::Kartenreihe(Kartenbilder& bilder, std::vector<int> codes, int kartenhoehe, QWidget* parent)
    : QWidget(parent), bilder_(bilder), codes_(std::move(codes)), hoehe_(kartenhoehe) {
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

QSize Kartenreihe::sizeHint() const {
    if (codes_.empty()) return {0, 0};
    const qreal breite = hoehe_ * bilder_.seitenverhaeltnis();
    const qreal gesamt = breite * (1 + (1 - Ueberdeckung) * static_cast<qreal>(codes_.size() - 1));
    return {static_cast<int>(std::ceil(gesamt)) + 8, hoehe_ + 8};
}

void Kartenreihe::paintEvent(QPaintEvent*) {
    if (codes_.empty()) return;
    QPainter maler(this);
    maler.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSizeF karte(hoehe_ * bilder_.seitenverhaeltnis(), hoehe_);
    const qreal schritt = karte.width() * (1 - Ueberdeckung);
    const qreal gesamt = karte.width() + schritt * static_cast<qreal>(codes_.size() - 1);
    qreal x = (width() - gesamt) / 2;
    for (int code : codes_) {
        maler.drawPixmap(QRectF(QPointF(x, 4), karte), bilder_.vorderseite(code, karte, devicePixelRatioF()),
                         QRectF());
        x += schritt;
    }
}

}  // namespace table

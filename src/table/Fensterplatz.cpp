#include "Fensterplatz.h"

#include <algorithm>

namespace table {

namespace {
constexpr QSize Mindestgroesse(640, 480);
}

QRect fensterrahmen(const settings::Fenstergeometrie& g, const QRect& bildschirm) {
    QRect r(g.x / TwipsProPixel, g.y / TwipsProPixel, g.breite / TwipsProPixel, g.hoehe / TwipsProPixel);
    // A screen smaller than before, or a monitor gone: the window comes back whole.
    r.setSize(r.size().expandedTo(Mindestgroesse).boundedTo(bildschirm.size()));
    r.moveLeft(std::clamp(r.left(), bildschirm.left(), bildschirm.left() + bildschirm.width() - r.width()));
    r.moveTop(std::clamp(r.top(), bildschirm.top(), bildschirm.top() + bildschirm.height() - r.height()));
    return r;
}

settings::Fenstergeometrie fenstergeometrie(const QRect& r) {
    return {r.x() * TwipsProPixel, r.y() * TwipsProPixel, r.width() * TwipsProPixel, r.height() * TwipsProPixel};
}

}  // namespace table

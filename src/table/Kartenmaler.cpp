#include "Kartenmaler.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "engine/Karte.h"

namespace table {

namespace {

// --- Suit symbols, drawn in a box from -1 to 1 around the origin.

QPainterPath herzForm() {
    QPainterPath p;
    p.moveTo(0, 0.95);
    p.cubicTo(-0.3, 0.62, -1.0, 0.22, -1.0, -0.33);
    p.cubicTo(-1.0, -0.82, -0.42, -1.08, 0, -0.55);
    p.cubicTo(0.42, -1.08, 1.0, -0.82, 1.0, -0.33);
    p.cubicTo(1.0, 0.22, 0.3, 0.62, 0, 0.95);
    return p;
}

QPainterPath karoForm() {
    QPainterPath p;
    p.moveTo(0, -1);
    p.lineTo(0.74, 0);
    p.lineTo(0, 1);
    p.lineTo(-0.74, 0);
    p.closeSubpath();
    return p;
}

QPainterPath stiel() {
    QPainterPath p;
    p.moveTo(-0.07, 0.25);
    p.quadTo(-0.12, 0.8, -0.38, 1.0);
    p.lineTo(0.38, 1.0);
    p.quadTo(0.12, 0.8, 0.07, 0.25);
    p.closeSubpath();
    return p;
}

QPainterPath pikForm() {
    QPainterPath p;
    p.moveTo(0, -1.0);
    p.cubicTo(0.3, -0.62, 1.0, -0.3, 1.0, 0.18);
    p.cubicTo(1.0, 0.62, 0.42, 0.78, 0, 0.38);
    p.cubicTo(-0.42, 0.78, -1.0, 0.62, -1.0, 0.18);
    p.cubicTo(-1.0, -0.3, -0.3, -0.62, 0, -1.0);
    return p.united(stiel());
}

QPainterPath kreuzForm() {
    QPainterPath p;
    const qreal r = 0.42;
    p.addEllipse(QPointF(0, -0.52), r, r);
    p.addEllipse(QPointF(-0.5, 0.12), r, r);
    p.addEllipse(QPointF(0.5, 0.12), r, r);
    p.addEllipse(QPointF(0, -0.05), 0.25, 0.25);
    p.setFillRule(Qt::WindingFill);
    return p.united(stiel());
}

const QColor Rot(208, 28, 28);
const QColor Schwarz(26, 26, 26);
const QColor Gruen(40, 128, 44);
const QColor Gold(226, 166, 14);
const QColor Braun(107, 63, 18);

// Colour of a suit's index letters.
QColor farbeVon(int farbe, bool franz) {
    if (franz) return farbe == engine::Karo || farbe == engine::Herz ? Rot : Schwarz;
    switch (farbe) {
        case engine::Karo: return QColor(170, 110, 0);  // Schellen
        case engine::Herz: return Rot;
        case engine::Pik: return Gruen;
        default: return Braun;  // Eichel
    }
}

void schelleMalen(QPainter& m) {
    m.setPen(QPen(QColor(120, 80, 0), 0.07));
    m.setBrush(Gold);
    m.drawEllipse(QPointF(0, 0.08), 0.86, 0.86);
    m.setBrush(QColor(179, 38, 30));
    m.setPen(Qt::NoPen);
    QPainterPath kreis;
    kreis.addEllipse(QPointF(0, 0.08), 0.82, 0.82);
    QPainterPath band;
    band.addRect(QRectF(-1, -0.16, 2, 0.26));
    m.drawPath(kreis.intersected(band));
    m.setBrush(QColor(70, 40, 0));
    m.drawEllipse(QPointF(0, 0.52), 0.15, 0.15);
    m.drawRect(QRectF(-0.04, 0.52, 0.08, 0.32));
    m.setBrush(QColor(120, 80, 0));
    m.drawEllipse(QPointF(0, -0.82), 0.14, 0.12);
}

void blattMalen(QPainter& m) {
    QPainterPath blatt;
    blatt.moveTo(0, -1.0);
    blatt.cubicTo(0.95, -0.45, 0.75, 0.45, 0, 0.78);
    blatt.cubicTo(-0.75, 0.45, -0.95, -0.45, 0, -1.0);
    m.setPen(QPen(QColor(20, 80, 20), 0.06));
    m.setBrush(Gruen);
    m.drawPath(blatt);
    m.setPen(QPen(QColor(170, 220, 150), 0.07));
    m.drawLine(QPointF(0, -0.78), QPointF(0, 0.74));
    m.setPen(QPen(QColor(20, 80, 20), 0.12, Qt::SolidLine, Qt::RoundCap));
    m.drawLine(QPointF(0, 0.76), QPointF(0.08, 1.0));
}

void eichelMalen(QPainter& m) {
    m.setPen(QPen(QColor(90, 50, 10), 0.06));
    m.setBrush(QColor(196, 135, 58));
    m.drawEllipse(QPointF(0, 0.28), 0.5, 0.68);
    QPainterPath kappe;
    kappe.moveTo(-0.66, -0.12);
    kappe.cubicTo(-0.66, -0.72, 0.66, -0.72, 0.66, -0.12);
    kappe.closeSubpath();
    m.setBrush(Braun);
    m.drawPath(kappe);
    m.setPen(QPen(QColor(160, 110, 50), 0.05));
    for (qreal x = -0.45; x <= 0.46; x += 0.22) m.drawLine(QPointF(x - 0.1, -0.5), QPointF(x + 0.1, -0.15));
    m.setPen(QPen(Braun, 0.13, Qt::SolidLine, Qt::RoundCap));
    m.drawLine(QPointF(0, -0.57), QPointF(0.06, -0.95));
}

// Draws a suit symbol centred on `mitte` with the given half height.
void symbolMalen(QPainter& m, QPointF mitte, qreal halbeHoehe, int farbe, bool franz, bool kopfueber = false) {
    m.save();
    m.translate(mitte);
    m.scale(halbeHoehe, halbeHoehe);
    if (kopfueber) m.rotate(180);
    if (franz || farbe == engine::Herz) {
        m.setPen(Qt::NoPen);
        m.setBrush(farbeVon(farbe, true));
        switch (farbe) {
            case engine::Karo: m.drawPath(karoForm()); break;
            case engine::Herz: m.drawPath(herzForm()); break;
            case engine::Pik: m.drawPath(pikForm()); break;
            default: m.drawPath(kreuzForm()); break;
        }
    } else if (farbe == engine::Karo) {
        schelleMalen(m);
    } else if (farbe == engine::Pik) {
        blattMalen(m);
    } else {
        eichelMalen(m);
    }
    m.restore();
}

QString indexText(int rang, bool franz) {
    switch (rang) {
        case engine::Neun: return QStringLiteral("9");
        case engine::Bube: return franz ? QStringLiteral("B") : QStringLiteral("U");
        case engine::Dame: return franz ? QStringLiteral("D") : QStringLiteral("O");
        case engine::Koenig: return QStringLiteral("K");
        case engine::Zehn: return QStringLiteral("10");
        default: return QStringLiteral("A");
    }
}

QFont kartenschrift(qreal pixel, bool fett = true) {
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPixelSize(std::max(1, static_cast<int>(std::lround(pixel))));
    f.setBold(fett);
    return f;
}

QPainterPath kartenUmriss(const QRectF& r) {
    QPainterPath p;
    const qreal radius = r.width() * 0.07;
    p.addRoundedRect(r, radius, radius);
    return p;
}

// The index in the top-left corner and, turned, in the bottom-right corner.
void eckenMalen(QPainter& m, const QRectF& r, const QString& text, int farbe, bool franz, bool mitSymbol) {
    const qreal w = r.width();
    for (int seite = 0; seite < 2; ++seite) {
        m.save();
        m.translate(r.center());
        if (seite == 1) m.rotate(180);
        m.translate(-r.width() / 2, -r.height() / 2);
        m.setPen(farbeVon(farbe, franz));
        m.setFont(kartenschrift(w * (text.size() > 1 ? 0.17 : 0.2)));
        const QRectF textFeld(w * 0.02, w * 0.04, w * 0.24, w * 0.22);
        m.drawText(textFeld, Qt::AlignCenter, text);
        if (mitSymbol) symbolMalen(m, QPointF(w * 0.14, w * 0.36), w * 0.075, farbe, franz);
        m.restore();
    }
}

void augenMalen(QPainter& m, const QRectF& r, int rang, int farbe, bool franz) {
    const qreal w = r.width();
    if (rang == engine::As) {
        symbolMalen(m, r.center(), w * 0.26, farbe, franz);
        return;
    }
    // Pip places in a field from 0 to 1; the lower half is turned, as on real cards.
    std::vector<QPointF> orte;
    for (qreal y : {0.0, 1.0 / 3, 2.0 / 3, 1.0}) {
        orte.emplace_back(0.0, y);
        orte.emplace_back(1.0, y);
    }
    if (rang == engine::Neun) orte.emplace_back(0.5, 0.5);
    else {
        orte.emplace_back(0.5, 1.0 / 6);
        orte.emplace_back(0.5, 5.0 / 6);
    }
    const QRectF feld(r.left() + w * 0.3, r.top() + r.height() * 0.17, w * 0.4, r.height() * 0.66);
    for (const QPointF& o : orte) {
        const QPointF p(feld.left() + o.x() * feld.width(), feld.top() + o.y() * feld.height());
        symbolMalen(m, p, w * 0.085, farbe, franz, o.y() > 0.5);
    }
}

void bildkarteMalen(QPainter& m, const QRectF& r, int rang, int farbe, bool franz) {
    const qreal w = r.width();
    const QRectF rahmen = r.adjusted(w * 0.2, w * 0.2, -w * 0.2, -w * 0.2);
    const QColor farbeSuit = farbeVon(farbe, franz);
    m.setPen(QPen(farbeSuit, std::max<qreal>(1.0, w * 0.012)));
    QColor tonung = farbeSuit;
    tonung.setAlpha(28);
    m.setBrush(tonung);
    m.drawRect(rahmen);
    m.drawLine(QPointF(rahmen.left(), rahmen.center().y()), QPointF(rahmen.right(), rahmen.center().y()));
    const QString buchstabe = indexText(rang, franz);
    for (int haelfte = 0; haelfte < 2; ++haelfte) {
        m.save();
        m.translate(rahmen.center());
        if (haelfte == 1) m.rotate(180);
        const qreal hh = rahmen.height() / 2;
        m.setPen(farbeSuit);
        m.setFont(kartenschrift(hh * 0.56));
        m.drawText(QRectF(-rahmen.width() / 2, -hh, rahmen.width(), hh * 0.62), Qt::AlignCenter, buchstabe);
        symbolMalen(m, QPointF(0, -hh * 0.24), hh * 0.17, farbe, franz);
        m.restore();
    }
}

void jokerMalen(QPainter& m, const QRectF& r) {
    const qreal w = r.width();
    const QPointF mitte = r.center();
    // A jester's cap with three bells.
    const std::array<QColor, 3> farben{QColor(200, 30, 40), QColor(40, 120, 200), QColor(40, 150, 60)};
    const std::array<QPointF, 3> spitzen{QPointF(-0.42, -0.3), QPointF(0, -0.52), QPointF(0.42, -0.3)};
    m.save();
    m.translate(mitte);
    m.scale(w, w);
    for (std::size_t i = 0; i < 3; ++i) {
        QPainterPath zipfel;
        zipfel.moveTo(-0.2 + 0.2 * static_cast<qreal>(i), 0.05);
        zipfel.quadTo(spitzen[i].x() * 0.6, spitzen[i].y() * 0.4, spitzen[i].x(), spitzen[i].y());
        zipfel.quadTo(spitzen[i].x() * 0.3 + 0.05, -0.1, 0.2 * static_cast<qreal>(i), 0.05);
        zipfel.closeSubpath();
        m.setPen(QPen(QColor(40, 40, 40), 0.008));
        m.setBrush(farben[i]);
        m.drawPath(zipfel);
        m.setBrush(Gold);
        m.drawEllipse(spitzen[i], 0.045, 0.045);
    }
    m.setBrush(QColor(240, 200, 60));
    m.drawRoundedRect(QRectF(-0.26, 0.03, 0.52, 0.1), 0.03, 0.03);
    m.restore();
    m.setPen(farben[0]);
    m.setFont(kartenschrift(w * 0.15));
    m.drawText(QRectF(r.left(), mitte.y() + w * 0.2, w, w * 0.3), Qt::AlignCenter, QStringLiteral("JOKER"));
    for (int seite = 0; seite < 2; ++seite) {
        m.save();
        m.translate(mitte);
        if (seite == 1) m.rotate(180);
        m.translate(-r.width() / 2, -r.height() / 2);
        m.setFont(kartenschrift(w * 0.11));
        const QString wort = QStringLiteral("JOKER");
        for (int i = 0; i < wort.size(); ++i) {
            m.setPen(farben[static_cast<std::size_t>(i % 3)]);
            m.drawText(QRectF(w * 0.03, w * (0.05 + 0.12 * i), w * 0.16, w * 0.13), Qt::AlignCenter, wort.mid(i, 1));
        }
        m.restore();
    }
}

// --- Backs.

void gitterMalen(QPainter& m, const QRectF& r, qreal abstand, const QColor& linie, qreal breite) {
    m.setPen(QPen(linie, breite));
    const qreal h = r.height();
    for (qreal x = r.left() - h; x < r.right() + h; x += abstand) {
        m.drawLine(QPointF(x, r.top()), QPointF(x + h, r.bottom()));
        m.drawLine(QPointF(x, r.bottom()), QPointF(x + h, r.top()));
    }
}

void rueckseitenMuster(QPainter& m, const QRectF& r, int nummer) {
    const qreal w = r.width();
    switch (nummer) {
        case 1:  // blue lattice
            m.fillRect(r, QColor(32, 72, 160));
            gitterMalen(m, r, w * 0.12, QColor(170, 200, 255), w * 0.012);
            break;
        case 2:  // red lattice
            m.fillRect(r, QColor(170, 30, 36));
            gitterMalen(m, r, w * 0.12, QColor(255, 200, 190), w * 0.012);
            break;
        case 3: {  // green chequers
            m.fillRect(r, QColor(30, 110, 60));
            const qreal s = w * 0.1;
            for (int i = 0; i * s < r.width(); ++i)
                for (int j = 0; j * s < r.height(); ++j)
                    if ((i + j) % 2 == 0) m.fillRect(QRectF(r.left() + i * s, r.top() + j * s, s, s), QColor(60, 150, 90));
            break;
        }
        case 4: {  // blue rings
            m.fillRect(r, QColor(20, 50, 110));
            m.setPen(QPen(QColor(120, 170, 240), w * 0.018));
            m.setBrush(Qt::NoBrush);
            for (qreal rad = w * 0.06; rad < r.height(); rad += w * 0.08) m.drawEllipse(r.center(), rad, rad);
            break;
        }
        case 5: {  // wine red with a golden lattice and a medallion
            m.fillRect(r, QColor(120, 16, 34));
            gitterMalen(m, r, w * 0.16, QColor(212, 170, 80), w * 0.01);
            m.setPen(QPen(QColor(212, 170, 80), w * 0.02));
            m.setBrush(QColor(120, 16, 34));
            m.drawEllipse(r.center(), w * 0.26, w * 0.34);
            m.setBrush(QColor(212, 170, 80));
            QPainterPath stern;
            for (int i = 0; i < 10; ++i) {
                const qreal winkel = std::numbers::pi / 5 * i - std::numbers::pi / 2;
                const qreal rad = (i % 2 == 0 ? 0.18 : 0.08) * w;
                const QPointF p = r.center() + QPointF(std::cos(winkel) * rad, std::sin(winkel) * rad);
                if (i == 0) stern.moveTo(p);
                else stern.lineTo(p);
            }
            stern.closeSubpath();
            m.setPen(Qt::NoPen);
            m.drawPath(stern);
            break;
        }
        case 6: {  // grey stripes
            m.fillRect(r, QColor(50, 50, 56));
            m.setPen(QPen(QColor(140, 140, 150), w * 0.03));
            for (qreal x = r.left() - r.height(); x < r.right(); x += w * 0.1)
                m.drawLine(QPointF(x, r.bottom()), QPointF(x + r.height(), r.top()));
            break;
        }
        case 7: {  // violet dots
            m.fillRect(r, QColor(90, 40, 120));
            m.setPen(Qt::NoPen);
            m.setBrush(QColor(220, 190, 240));
            const qreal s = w * 0.11;
            for (int i = 0; i * s < r.width() + s; ++i)
                for (int j = 0; j * s < r.height() + s; ++j)
                    m.drawEllipse(QPointF(r.left() + i * s + (j % 2) * s / 2, r.top() + j * s), s * 0.22, s * 0.22);
            break;
        }
        default: {  // teal waves
            m.fillRect(r, QColor(0, 100, 110));
            m.setPen(QPen(QColor(150, 220, 220), w * 0.015));
            m.setBrush(Qt::NoBrush);
            for (qreal y = r.top(); y < r.bottom() + w * 0.1; y += w * 0.09) {
                QPainterPath welle;
                welle.moveTo(r.left(), y);
                for (qreal x = r.left(); x < r.right(); x += w * 0.2)
                    welle.cubicTo(x + w * 0.05, y - w * 0.05, x + w * 0.15, y + w * 0.05, x + w * 0.2, y);
                m.drawPath(welle);
            }
            break;
        }
    }
}

}  // namespace

int rueckseiteNummer(int gespeichert) {
    return ((gespeichert - 1) % AnzahlRueckseiten + AnzahlRueckseiten) % AnzahlRueckseiten + 1;
}

namespace {
// The white card with its thin edge; returns the outline.
QPainterPath kartengrundMalen(QPainter& m, const QRectF& r) {
    m.setRenderHint(QPainter::Antialiasing);
    const QPainterPath umriss = kartenUmriss(r);
    m.setPen(QPen(QColor(90, 90, 90), std::max<qreal>(1.0, r.width() * 0.008)));
    m.setBrush(QColor(252, 252, 248));
    m.drawPath(umriss);
    return umriss;
}
}  // namespace

void vorderseiteMalen(QPainter& m, const QRectF& r, int code, bool franz) {
    m.save();
    m.setClipPath(kartengrundMalen(m, r));
    if (engine::istJoker(code)) {
        jokerMalen(m, r);
    } else if (code >= 1 && code <= 24) {
        const int farbe = engine::farbeVonCode(code);
        const int rang = engine::rangVonCode(code);
        eckenMalen(m, r, indexText(rang, franz), farbe, franz, true);
        if (rang == engine::Bube || rang == engine::Dame || rang == engine::Koenig)
            bildkarteMalen(m, r, rang, farbe, franz);
        else
            augenMalen(m, r, rang, farbe, franz);
    }
    m.restore();
}

void rueckseiteMalen(QPainter& m, const QRectF& r, int nummer) {
    m.save();
    kartengrundMalen(m, r);
    const qreal rand = r.width() * 0.06;
    const QRectF innen = r.adjusted(rand, rand, -rand, -rand);
    QPainterPath innenUmriss;
    innenUmriss.addRoundedRect(innen, rand, rand);
    m.setClipPath(innenUmriss);
    rueckseitenMuster(m, innen, rueckseiteNummer(nummer));
    m.restore();
}

}  // namespace table

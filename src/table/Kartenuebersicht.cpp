#include "Kartenuebersicht.h"

#include <QPainter>
#include <algorithm>

#include "Kartenbilder.h"
#include "Lerntexte.h"
#include "Qtext.h"
#include "engine/Kartentext.h"
#include "engine/Stichspiel.h"

namespace table {

namespace {
constexpr int Kartenhoehe = 72;
constexpr int Rand = 6;
constexpr int Beschriftung = 150;  // width of the row labels
constexpr int HoechstensJeZeile = 27;
}  // namespace

std::vector<Kartenzeile> kartenzeilen(const engine::Spiel& spiel) {
    std::vector<Kartenzeile> zeilen{{spiel.spieltyp, {}, 0}};
    for (int f : {engine::Kreuz, engine::Pik, engine::Herz, engine::Karo})
        if (f != spiel.spieltyp) zeilen.push_back({f, {}, 0});
    for (int p = 1; p <= spiel.deck.kartenanzahl(); ++p) {
        const engine::Kartenposition& k = spiel.deck[p];
        if (k.code == 0) continue;
        for (Kartenzeile& z : zeilen)
            if (z.farbe == k.farbe) {
                z.positionen.push_back(p);
                z.gespielt += k.status == engine::Gespielt;
            }
    }
    for (Kartenzeile& z : zeilen)
        std::sort(z.positionen.begin(), z.positionen.end(), [&](int a, int b) {
            const auto& ka = spiel.deck[a];
            const auto& kb = spiel.deck[b];
            if (ka.staerke != kb.staerke) return ka.staerke > kb.staerke;
            if (ka.code != kb.code) return engine::rangVonCode(ka.code) > engine::rangVonCode(kb.code);
            return a < b;
        });
    zeilen.erase(std::remove_if(zeilen.begin(), zeilen.end(), [](const Kartenzeile& z) { return z.positionen.empty(); }),
                 zeilen.end());
    return zeilen;
}

Kartenuebersicht::Kartenuebersicht(Kartenbilder& bilder, const engine::Spiel& spiel, QWidget* parent)
    : QDialog(parent, Qt::Tool), bilder_(bilder), spiel_(spiel) {
    setObjectName(QStringLiteral("gespielte_karten"));
    setWindowTitle(t(lerntext::GespielteKartenTitel));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize Kartenuebersicht::sizeHint() const {
    const int breite = static_cast<int>(Kartenhoehe * bilder_.seitenverhaeltnis());
    return {Beschriftung + 2 * Rand + breite + (HoechstensJeZeile - 1) * breite / 2, Rand + 5 * (Kartenhoehe + Rand)};
}

void Kartenuebersicht::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::SmoothPixmapTransform);
    maler.fillRect(rect(), QColor(70, 120, 70));
    const std::vector<Kartenzeile> zeilen = kartenzeilen(spiel_);
    if (zeilen.empty()) return;
    // Rows share the height; a long trump row overlaps more, the corners stay visible.
    const qreal hoehe = std::min<qreal>(Kartenhoehe * 1.4, (height() - Rand) / qreal(zeilen.size()) - Rand);
    const QSizeF karte(hoehe * bilder_.seitenverhaeltnis(), hoehe);
    const bool franz = bilder_.franzoesisch();
    QFont f = font();
    f.setBold(true);
    maler.setFont(f);
    qreal y = Rand;
    for (const Kartenzeile& z : zeilen) {
        const int n = static_cast<int>(z.positionen.size());
        const QString name = z.farbe == spiel_.spieltyp ? t(lerntext::Trumpf) : t(engine::farbwort(z.farbe, franz));
        maler.setPen(Qt::white);
        maler.drawText(QRectF(Rand, y, Beschriftung - Rand, hoehe), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap,
                       name + QStringLiteral("\n") + QString::number(n - z.gespielt) + t(lerntext::Von) +
                           QString::number(n) + t(lerntext::NochImSpiel));
        const qreal platz = width() - Beschriftung - 2 * Rand - karte.width();
        const qreal schritt = n > 1 ? std::min(karte.width() * 0.6, platz / (n - 1)) : 0;
        for (int i = 0; i < n; ++i) {
            const int pos = z.positionen[static_cast<std::size_t>(i)];
            const QRectF r(QPointF(Beschriftung + Rand + i * schritt, y), karte);
            maler.drawPixmap(r, bilder_.vorderseite(spiel_.deck[pos].code, karte, devicePixelRatioF()), QRectF());
            if (spiel_.deck[pos].status == engine::Gespielt) maler.fillRect(r, QColor(60, 60, 60, 170));
        }
        y += hoehe + Rand;
    }
}

}  // namespace table

#include "Parteizeiger.h"

#include <QPainter>
#include <QString>

#include "Tischtexte.h"

namespace table {

void parteibildMalen(QPainter& maler, const QRectF& feld, int bild) {
    if (bild < 1 || bild > AnzahlParteibilder) return;
    const int art = (bild + 1) / 2;  // 1 unknown, 2 Kontra, 3 Re
    const bool aufrecht = bild % 2 == 0;
    QColor grund;
    const char* text = texte::ParteiUnbekannt;
    switch (art) {
        case 2: grund = QColor(40, 80, 170); text = texte::ParteiKontra; break;
        case 3: grund = QColor(190, 30, 40); text = texte::ParteiRe; break;
        default: grund = QColor(120, 120, 120); break;
    }
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.translate(feld.center());
    QSizeF groesse = feld.size();
    if (aufrecht) {
        maler.rotate(-90);
        groesse.transpose();
    }
    const QRectF pille(QPointF(-groesse.width() / 2, -groesse.height() / 2), groesse);
    maler.setPen(QPen(grund.darker(150), 1.5));
    maler.setBrush(grund);
    maler.drawRoundedRect(pille, groesse.height() / 2, groesse.height() / 2);
    QFont schrift = maler.font();
    schrift.setBold(true);
    schrift.setPixelSize(std::max(8, static_cast<int>(groesse.height() * 0.55)));
    maler.setFont(schrift);
    maler.setPen(Qt::white);
    maler.drawText(pille, Qt::AlignCenter, QString::fromUtf8(text));
    maler.restore();
}

}  // namespace table

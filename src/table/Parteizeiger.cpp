#include "Parteizeiger.h"

#include <QPainter>
#include <QString>

#include "Tischtexte.h"

namespace table {

int parteibildFuer(engine::Sitz sitz, int parteiBekannt) {
    const int s = sitz.nr();
    switch (parteiBekannt) {
        case 1: return s + 2 > 4 ? s : s + 2;
        case 2:
        case 3: return s + 4 > 6 ? s + 2 : s + 4;
        default: return s > 2 ? s - 2 : s;
    }
}

engine::ProSitz<int> oeffentlicheParteibilder(const engine::Spiel& spiel) {
    engine::ProSitz<int> bekannt;
    bekannt[engine::Sitz(1)] = spiel.partei[engine::Sitz(1)];
    int reBekannt = 0;
    for (const engine::Sitz s : engine::alleSitze) {
        if (spiel.solist || spiel.parteiMarker[s] == engine::ParteiRe) bekannt[s] = spiel.partei[s];
        if (spiel.hochzeiter && (spiel.hochzeitGeklaert || spiel.hochzeiter == s)) bekannt[s] = spiel.partei[s];
        reBekannt += engine::seite(bekannt[s]) == engine::ParteiRe && bekannt[s] != engine::ParteiUnbekannt;
    }
    // Holding both Kreuz-Damen, seat 1 knows everybody else plays Kontra.
    const bool stillesSoloVonSitz1 = spiel.partei[engine::Sitz(1)] == engine::ParteiSolo && !spiel.solo && !spiel.hochzeiter;
    for (const engine::Sitz s : engine::alleSitze) {
        if (reBekannt >= 2) bekannt[s] = spiel.partei[s];
        if (stillesSoloVonSitz1 && bekannt[s] == engine::ParteiUnbekannt) bekannt[s] = engine::ParteiKontra;
    }
    engine::ProSitz<int> bilder;
    for (const engine::Sitz s : engine::alleSitze) bilder[s] = parteibildFuer(s, bekannt[s]);
    return bilder;
}

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

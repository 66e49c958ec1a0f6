#pragma once
// The party pictures beside the seats: 1 and 2 unknown, 3 and 4 Kontra, 5 and 6 Re;
// odd pictures lie across (seats 1 and 3), even ones stand upright (seats 2 and 4).
#include <QRectF>

#include "engine/Spiel.h"

class QPainter;

namespace table {

inline constexpr int AnzahlParteibilder = 6;

// The picture for what is known of a seat's party (0 unknown, 1 Kontra, 2 or 3 Re).
int parteibildFuer(engine::Sitz sitz, int parteiBekannt);

void parteibildMalen(QPainter& maler, const QRectF& feld, int bild);

}  // namespace table

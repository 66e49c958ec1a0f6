#pragma once
// The party pictures beside the seats; which picture a seat shows is players::parteibild.
#include <QRectF>

class QPainter;

namespace table {

inline constexpr int AnzahlParteibilder = 6;

void parteibildMalen(QPainter& maler, const QRectF& feld, int bild);

}  // namespace table

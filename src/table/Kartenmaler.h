#pragma once
// Our own card painter: every back, and the faces when no SVG deck is installed
// (and the Joker, which the decks lack).
#include <QRectF>

class QPainter;

namespace table {

// Width to height of the painted cards (the usual playing-card proportion).
inline constexpr qreal GemaltesSeitenverhaeltnis = 0.69;

// Numbers 1..AnzahlRueckseiten; other numbers wrap into that range.
inline constexpr int AnzahlRueckseiten = 8;

void vorderseiteMalen(QPainter& maler, const QRectF& karte, int code, bool franzoesisch);
void rueckseiteMalen(QPainter& maler, const QRectF& karte, int nummer);

// The back number actually drawn for a stored "Rückseite" value.
int rueckseiteNummer(int gespeichert);

}  // namespace table

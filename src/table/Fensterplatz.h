#pragma once
// Where the main window goes at start: the place stored in the per-user store (in
// twips), kept on the screen it now has.
#include <QRect>

#include "settings/Benutzerspeicher.h"

namespace table {

// The store keeps the window in twips, 15 to a pixel at the usual 96 dpi.
inline constexpr int TwipsProPixel = 15;

QRect fensterrahmen(const settings::Fenstergeometrie& gespeichert, const QRect& bildschirm);
settings::Fenstergeometrie fenstergeometrie(const QRect& rahmen);

}  // namespace table

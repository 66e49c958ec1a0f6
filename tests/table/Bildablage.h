#pragma once
// With TRUMPONA_TESTBILDER set, widgets are kept as pictures for looking at.
#include <QDir>
#include <QWidget>

namespace testhilfe {

inline void bildAblegen(QWidget& w, const QString& name, bool groesseAnpassen = false) {
    const QString ordner = qEnvironmentVariable("TRUMPONA_TESTBILDER");
    if (ordner.isEmpty()) return;
    if (groesseAnpassen) w.adjustSize();
    w.grab().save(QDir(ordner).filePath(name + QStringLiteral(".png")));
}

}  // namespace testhilfe

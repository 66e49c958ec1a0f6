#include "Installation.h"

#include <QDir>
#include <QFileInfo>

namespace app {

QString klangordner(const QString& programmordner) {
    const QString dateiname = QStringLiteral("trumpona.wav");
    const QDir neben(programmordner);
    if (QFileInfo::exists(neben.filePath(dateiname))) return programmordner;
    const QString installiert = QDir::cleanPath(neben.filePath(QStringLiteral("../share/trumpona")));
    return QFileInfo::exists(QDir(installiert).filePath(dateiname)) ? installiert : programmordner;
}

}  // namespace app

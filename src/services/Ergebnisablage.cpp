#include "Ergebnisablage.h"

#include <QDir>
#include <QSaveFile>
#include <QStandardPaths>

namespace services {

QString programmkennung() { return QStringLiteral("Trumpona " TRUMPONA_VERSION_TEXT); }

QString ergebnisordner() { return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation); }

QStringList wartendeErgebnisse(const QString& ordner) {
    QStringList namen;
    const QStringList kandidaten = QDir(ordner).entryList({QStringLiteral("RPPT12*.D4T")}, QDir::Files, QDir::Name);
    for (const QString& n : kandidaten)
        if (istErgebnisdatei(n.toStdString())) namen << n;
    return namen;
}

QString ergebnisSchreiben(const QString& ordner, const Turnierergebnis& e) {
    if (!QDir().mkpath(ordner)) return {};
    const QString stempel = QString::asprintf("%04d%02d%02d-%02d%02d%02d", e.ende.jahr, e.ende.monat, e.ende.tag,
                                              e.ende.stunde, e.ende.minute, e.ende.sekunde);
    const QDir dir(ordner);
    QString pfad = dir.filePath(QStringLiteral("RPPT12") + stempel + QStringLiteral(".D4T"));
    for (int n = 2; QFile::exists(pfad); ++n)
        pfad = dir.filePath(QStringLiteral("RPPT12%1-%2.D4T").arg(stempel).arg(n));
    QSaveFile datei(pfad);
    if (!datei.open(QIODevice::WriteOnly)) return {};
    const std::string text = ergebnisdateiText(e);
    if (datei.write(text.data(), static_cast<qint64>(text.size())) != static_cast<qint64>(text.size())) return {};
    return datei.commit() ? pfad : QString();
}

}  // namespace services

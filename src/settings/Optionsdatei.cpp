#include "Optionsdatei.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace settings {

namespace {

constexpr qint64 HoechstgroesseBytes = 4 * 1024 * 1024;

Profildatei profilVon(const QString& pfad) {
    const auto bytes = dateiBytes(pfad);
    return bytes ? Profildatei::ausBytes(*bytes) : Profildatei{};
}

}  // namespace

QString konfigurationsordner() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/Trumpona");
}

QString optionsdateiPfad() { return konfigurationsordner() + QLatin1Char('/') + QLatin1String(Optionsdateiname); }

std::optional<std::string> dateiBytes(const QString& pfad) {
    QFile datei(pfad);
    if (!datei.open(QIODevice::ReadOnly)) return std::nullopt;
    const QByteArray inhalt = datei.read(HoechstgroesseBytes);
    return inhalt.toStdString();
}

bool atomarSchreiben(const QString& pfad, const std::string& bytes) {
    QDir().mkpath(QFileInfo(pfad).absolutePath());
    QSaveFile datei(pfad);
    if (!datei.open(QIODevice::WriteOnly)) return false;
    if (datei.write(bytes.data(), static_cast<qint64>(bytes.size())) != static_cast<qint64>(bytes.size())) {
        datei.cancelWriting();
        return false;
    }
    return datei.commit();
}

Einstellungen EinstellungenLesen(const QString& pfad, const Lesekontext& kontext) {
    return ausProfil(profilVon(pfad), Einstellungen{}, kontext);
}

bool EinstellungenSchreiben(const QString& pfad, const Einstellungen& e, std::string_view programm) {
    Profildatei datei = profilVon(pfad);
    inProfil(datei, e, programm);
    return atomarSchreiben(pfad, datei.bytes());
}

Import EinstellungenImportieren(const QString& pfad, const Einstellungen& aktuell, const Lesekontext& kontext,
                                std::string_view programm) {
    return importieren(profilVon(pfad), aktuell, kontext, programm);
}

}  // namespace settings

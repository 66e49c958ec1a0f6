#include "Sicherungsplatz.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

namespace savegame {

namespace {

std::unique_ptr<QLockFile> sperren(const QString& datei, QLockFile::LockError& fehler) {
    // A lock whose program no longer runs is stale and taken over at once; one older
    // than the stale time is only broken when its owner no longer holds it (Qt checks
    // the owner's file lock), so a long Partie keeps its place.
    auto sperre = std::make_unique<QLockFile>(datei + QStringLiteral(".lock"));
    if (sperre->tryLock(0)) return sperre;
    fehler = sperre->error();
    return nullptr;
}

}  // namespace

QString Sicherungsplatz::platzdatei(const QString& datei, int nummer) {
    if (nummer <= 1) return datei;
    const QFileInfo info(datei);
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    return info.dir().filePath(info.completeBaseName() + QLatin1Char('-') + QString::number(nummer) + suffix);
}

Sicherungsplatz::Sicherungsplatz(const QString& datei) {
    QDir().mkpath(QFileInfo(datei).absolutePath());
    bool nurBelegt = true;
    for (int n = 1; n <= Plaetze && !sperre_; ++n) {
        QLockFile::LockError fehler = QLockFile::NoError;
        sperre_ = sperren(platzdatei(datei, n), fehler);
        if (sperre_) nummer_ = n;
        else nurBelegt = nurBelegt && fehler == QLockFile::LockFailedError;
    }
    if (!sperre_) {
        alleBelegt_ = nurBelegt;
        return;
    }
    datei_ = platzdatei(datei, nummer_);
    if (QFile::exists(datei_)) return;
    // A Partie on a later place whose program has ended moves here, where it is offered;
    // its lock is held while it moves.
    for (int n = nummer_ + 1; n <= Plaetze; ++n) {
        QLockFile::LockError fehler = QLockFile::NoError;
        const auto spaeter = sperren(platzdatei(datei, n), fehler);
        if (spaeter && QFile::rename(platzdatei(datei, n), datei_)) break;
    }
}

Sicherungsplatz::~Sicherungsplatz() = default;

}  // namespace savegame

#include "Ngircd.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTextStream>
#include <unistd.h>

namespace foyertest {

quint16 freierPort() {
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost, 0);
    return probe.serverPort();
}

Ngircd::Ngircd() {
    // The port may be taken between the probe and the start; then try another.
    for (int versuch = 0; versuch < 3 && !port_; ++versuch)
        if (starten(freierPort())) break;
}

Ngircd::~Ngircd() { beenden(); }

bool Ngircd::starten(quint16 port) {
    QString programm = QStandardPaths::findExecutable(QStringLiteral("ngircd"));
    if (programm.isEmpty()) programm = QStandardPaths::findExecutable(QStringLiteral("ngircd"), {QStringLiteral("/usr/sbin")});
    if (programm.isEmpty()) {
        fehler_ = QStringLiteral("ngircd ist nicht installiert (Debian-Paket ngircd)");
        return false;
    }
    const QString datei = ordner_.filePath(QStringLiteral("ngircd.conf"));
    QFile conf(datei);
    if (!conf.open(QIODevice::WriteOnly | QIODevice::Text)) return false;
    QTextStream(&conf) << "[Global]\nName = irc.test\nInfo = Trumpona-Test\nListen = 127.0.0.1\nPorts = " << port
                       << "\nServerUID = " << getuid() << "\nServerGID = " << getgid()
                       << "\nPidFile = " << ordner_.filePath(QStringLiteral("ngircd.pid"))
                       << "\nMotdPhrase = Test\n[Limits]\nMaxNickLength = 12\nMaxPenaltyTime = 0\n"
                          "[Options]\nPAM = no\nDNS = no\nIdent = no\n";
    conf.close();
    prozess_ = std::make_unique<QProcess>();
    prozess_->setProcessChannelMode(QProcess::MergedChannels);
    prozess_->start(programm, {QStringLiteral("-n"), QStringLiteral("-f"), datei});
    if (!prozess_->waitForStarted(5000)) {
        fehler_ = QStringLiteral("ngircd startet nicht");
        return false;
    }
    const QDeadlineTimer frist(10'000);
    while (!frist.hasExpired() && prozess_->state() == QProcess::Running) {
        QTcpSocket probe;
        probe.connectToHost(QHostAddress::LocalHost, port);
        if (probe.waitForConnected(200)) {
            probe.abort();
            port_ = port;
            return true;
        }
        prozess_->waitForFinished(100);
    }
    fehler_ = QStringLiteral("ngircd hört nicht auf Port %1: %2").arg(port).arg(QString::fromLocal8Bit(prozess_->readAll()));
    beenden();
    return false;
}

void Ngircd::beenden() {
    if (!prozess_) return;
    if (prozess_->state() != QProcess::NotRunning) {
        prozess_->terminate();
        if (!prozess_->waitForFinished(5000)) {
            prozess_->kill();
            prozess_->waitForFinished(2000);
        }
    }
    prozess_.reset();
}

}  // namespace foyertest

#pragma once
// A mail server for the upload tests on a free port of 127.0.0.1: Debian's
// aiosmtpd delivering into a Maildir, or smtp_attrappe.py refusing on purpose.
// It is stopped when the object goes.
#include <QDir>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <memory>

#ifndef SMTP_ATTRAPPE
#error "SMTP_ATTRAPPE must name tests/services/smtp_attrappe.py"
#endif

namespace testhilfe {

class Postserver {
public:
    // aiosmtpd with its Mailbox handler: every mail lands in `postfach` (a Maildir).
    static std::unique_ptr<Postserver> aiosmtpd(const QString& postfach) {
        auto s = std::unique_ptr<Postserver>(new Postserver);
        s->starten(QStringLiteral("/usr/bin/python3"),
                   {QStringLiteral("-m"), QStringLiteral("aiosmtpd"), QStringLiteral("-n"), QStringLiteral("-l"),
                    QStringLiteral("127.0.0.1:%1").arg(s->port_), QStringLiteral("-c"),
                    QStringLiteral("aiosmtpd.handlers.Mailbox"), postfach});
        return s;
    }
    // "einmal550" or "stumm"; what arrives is kept in `ordner`.
    static std::unique_ptr<Postserver> attrappe(const QString& art, const QString& ordner) {
        auto s = std::unique_ptr<Postserver>(new Postserver);
        s->starten(QStringLiteral("/usr/bin/python3"),
                   {QStringLiteral(SMTP_ATTRAPPE), QString::number(s->port_), art, ordner});
        return s;
    }

    ~Postserver() {
        prozess_.kill();
        prozess_.waitForFinished(5000);
    }

    quint16 port() const { return port_; }
    bool bereit() const { return bereit_; }

private:
    Postserver() {
        QTcpServer frei;
        frei.listen(QHostAddress::LocalHost, 0);
        port_ = frei.serverPort();
    }

    void starten(const QString& programm, const QStringList& argumente) {
        prozess_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        prozess_.start(programm, argumente);
        if (!prozess_.waitForStarted(5000)) return;
        // Ready once it takes a connection; ten seconds at most.
        bereit_ = QTest::qWaitFor(
            [this] {
                QTcpSocket probe;
                probe.connectToHost(QHostAddress::LocalHost, port_);
                const bool verbunden = probe.waitForConnected(200);
                probe.abort();
                return verbunden || prozess_.state() == QProcess::NotRunning;
            },
            10000) && prozess_.state() == QProcess::Running;
    }

    QProcess prozess_;
    quint16 port_ = 0;
    bool bereit_ = false;
};

// The mails of a Maildir, oldest first, as stored.
inline QList<QByteArray> postfachLesen(const QString& postfach) {
    QList<QByteArray> mails;
    const QDir neu(postfach + QStringLiteral("/new"));
    for (const QString& name : neu.entryList(QDir::Files, QDir::Time | QDir::Reversed)) {
        QFile f(neu.filePath(name));
        if (f.open(QIODevice::ReadOnly)) mails << f.readAll();
    }
    return mails;
}

}  // namespace testhilfe

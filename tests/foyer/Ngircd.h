#pragma once
// A real ngircd for one test: a generated configuration on a free loopback port,
// started in the foreground and stopped when the object goes.
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <memory>

namespace foyertest {

class Ngircd {
public:
    Ngircd();
    ~Ngircd();
    Ngircd(const Ngircd&) = delete;
    Ngircd& operator=(const Ngircd&) = delete;

    bool laeuft() const { return port_ != 0; }
    quint16 port() const { return port_; }
    QString fehler() const { return fehler_; }
    void beenden();

private:
    bool starten(quint16 port);

    QTemporaryDir ordner_;
    std::unique_ptr<QProcess> prozess_;
    quint16 port_ = 0;
    QString fehler_;
};

// A port nobody listens on right now.
quint16 freierPort();

}  // namespace foyertest

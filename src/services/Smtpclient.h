#pragma once
// Sends one mail over a plain SMTP connection of its own (`winsock1`): the
// dialogue of Smtpdialog on one QTcpSocket, every wait bounded by a time-out.
// The Date header comes from an injectable clock; the X-Mailer is "Trumpona" and the version. Results are reported from the
// event loop, never from inside a socket signal, so a listener may start the
// next mail at once.
#include <QDateTime>
#include <QObject>
#include <QString>
#include <QTcpSocket>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>

#include "Smtpdialog.h"

namespace services {

struct Mailserver {
    QString host;
    quint16 port = 25;
    QString heloDomain;
};

struct Versandergebnis {
    bool verschickt = false;  // the whole dialogue ran through
    bool angenommen = false;  // the server took the mail ("250" to the ".")
    QString grund;            // the status text of the failure
    QString serverantwort;    // the reply that did not fit, if any
};

class Smtpclient : public QObject {
    Q_OBJECT
public:
    using Uhr = std::function<QDateTime()>;

    explicit Smtpclient(QObject* parent = nullptr);
    ~Smtpclient() override;

    void setzeUhr(Uhr uhr) { uhr_ = std::move(uhr); }
    void setzeZeitlimit(std::chrono::milliseconds grenze) { grenze_ = grenze; }

    // Starts one mail. While one is under way it refuses: false, and the status "Läuft noch!".
    bool senden(const Mailserver& server, const Mail& mail);
    bool laeuft() const { return dialog_ != nullptr; }
    // Ends a mail under way as failed (the dialog was closed).
    void abbrechen();

signals:
    void status(const QString& text);
    void fortschritt(int erledigt, int stufen);
    void fertig(const services::Versandergebnis& ergebnis);

private:
    void ausfuehren(const Smtpdialog::Schritt& schritt);
    void eingang();
    void beenden();

    QTcpSocket socket_;
    QTimer wecker_;
    Antwortleser leser_;
    std::unique_ptr<Smtpdialog> dialog_;
    Uhr uhr_;
    std::chrono::milliseconds grenze_{30000};
    QString xMailer_;
};

// Local time as the Date header writes it.
Zeitpunkt zeitpunktVon(const QDateTime& zeit);

}  // namespace services

#include "Mailkonto.h"

#include "settings/Benutzerspeicher.h"

namespace services {

namespace {
const QString Server = QStringLiteral("MailServer");
const QString Port = QStringLiteral("MailPort");
const QString Helo = QStringLiteral("MailHelo");
const QString Absender = QStringLiteral("MailAbsender");
const QString Absendername = QStringLiteral("MailAbsendername");
const QString Empfaenger = QStringLiteral("MailEmpfaenger");
}  // namespace

bool Mailkonto::vollstaendig() const {
    return !server.trimmed().isEmpty() && !absender.trimmed().isEmpty() && !empfaenger.trimmed().isEmpty();
}

Mailserver Mailkonto::mailserver() const {
    QString helo = heloDomain.trimmed();
    if (helo.isEmpty()) helo = QString::fromStdString(domainVon(absender.trimmed().toStdString()));
    if (helo.isEmpty()) helo = QStringLiteral("localhost");
    return {server.trimmed(), static_cast<quint16>(port), helo};
}

Mailkonto mailkontoLesen(const settings::Benutzerspeicher& s) {
    Mailkonto k;
    k.server = s.text(Server);
    const int port = s.vorhanden(Port) ? s.zahl(Port) : 25;
    k.port = port >= 1 && port <= 65535 ? port : 25;
    k.heloDomain = s.text(Helo);
    k.absender = s.text(Absender);
    k.absendername = s.text(Absendername);
    k.empfaenger = s.text(Empfaenger);
    return k;
}

void mailkontoSchreiben(settings::Benutzerspeicher& s, const Mailkonto& k) {
    s.setzeText(Server, k.server);
    s.setzeZahl(Port, k.port);
    s.setzeText(Helo, k.heloDomain);
    s.setzeText(Absender, k.absender);
    s.setzeText(Absendername, k.absendername);
    s.setzeText(Empfaenger, k.empfaenger);
}

}  // namespace services

#pragma once
// Where result mails go: the organiser's mail server and addresses, kept in the
// per-user store beside the other network settings.
#include <QString>

#include "Smtpclient.h"

namespace settings {
class Benutzerspeicher;
}

namespace services {

struct Mailkonto {
    QString server;
    int port = 25;
    QString heloDomain;  // empty: the domain of the sender address
    QString absender;
    QString absendername;
    QString empfaenger;  // the organiser

    // Server, sender and recipient are given.
    bool vollstaendig() const;
    Mailserver mailserver() const;
    bool operator==(const Mailkonto&) const = default;
};

Mailkonto mailkontoLesen(const settings::Benutzerspeicher& speicher);
void mailkontoSchreiben(settings::Benutzerspeicher& speicher, const Mailkonto& konto);

}  // namespace services

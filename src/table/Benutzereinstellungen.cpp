#include "Benutzereinstellungen.h"

#include <algorithm>

#include "settings/Benutzerspeicher.h"

namespace table {

namespace {
const QString ManuelleVerteilung = QStringLiteral("ManuelleVerteilung");
const QString Tempo = QStringLiteral("Tempo");
}

Benutzereinstellungen benutzereinstellungenLesen(const settings::Benutzerspeicher& s) {
    Benutzereinstellungen b;
    b.netzadapter = s.text(QStringLiteral("Netzadapter"));
    b.ipErfragen = s.wahr(QStringLiteral("IPErfragen"));
    b.serverport = s.zahl(QStringLiteral("Serverport"));
    b.netztempo = s.zahl(QStringLiteral("Netztempo"));
    b.verbindungsart = s.zahl(QStringLiteral("Verbindungsart"));
    b.proxyServer = s.text(QStringLiteral("ProxyServer"));
    b.ircServer = s.text(QStringLiteral("IRCServer"));
    b.ircPort = s.zahl(QStringLiteral("IRCPort"));
    b.ircRaum = s.text(QStringLiteral("IRCRaum"));
    b.manuelleVerteilung = s.vorhanden(ManuelleVerteilung) && s.wahr(ManuelleVerteilung);
    if (s.vorhanden(Tempo)) b.tempo = std::clamp(s.zahl(Tempo), 1, 3);
    b.mail = services::mailkontoLesen(s);
    return b;
}

void benutzereinstellungenSchreiben(settings::Benutzerspeicher& s, const Benutzereinstellungen& b, bool dauerhaft) {
    if (dauerhaft) {
        s.setzeZahl(QStringLiteral("Netztempo"), b.netztempo);
        s.setzeZahl(QStringLiteral("Serverport"), b.serverport);
        s.setzeZahl(QStringLiteral("Verbindungsart"), b.verbindungsart);
        s.setzeText(QStringLiteral("ProxyServer"), b.proxyServer);
        if (!b.netzadapter.isEmpty()) s.setzeText(QStringLiteral("Netzadapter"), b.netzadapter);
        s.setzeWahr(ManuelleVerteilung, b.manuelleVerteilung);
        s.setzeZahl(Tempo, b.tempo);
    }
    s.setzeZahl(QStringLiteral("IRCPort"), b.ircPort);
    s.setzeText(QStringLiteral("IRCServer"), b.ircServer);
    s.setzeText(QStringLiteral("IRCRaum"), b.ircRaum);
    s.setzeWahr(QStringLiteral("IPErfragen"), b.ipErfragen);
    services::mailkontoSchreiben(s, b.mail);
    s.synchronisieren();
}

}  // namespace table

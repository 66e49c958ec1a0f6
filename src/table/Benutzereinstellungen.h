#pragma once
// The settings of the dialog that live in the per-user store rather than in the
// options file: the network and foyer keys, and whether a deal may be made by hand.
#include <QString>

#include "services/Mailkonto.h"

namespace settings {
class Benutzerspeicher;
}

namespace table {

struct Benutzereinstellungen {
    QString netzadapter;  // empty: listen on every address
    bool ipErfragen = false;
    int serverport = 7001;
    int netztempo = 1;
    int verbindungsart = 1;
    QString proxyServer;
    QString ircServer;
    int ircPort = 6668;
    QString ircRaum;
    bool manuelleVerteilung = false;  // ask "Manuelle Kartenverteilung?" before each deal
    int tempo = 2;                    // pace while "Animation" is on: 1 fast, 2 normal, 3 slow
    services::Mailkonto mail;         // where tournament results are mailed
    bool operator==(const Benutzereinstellungen&) const = default;
};

Benutzereinstellungen benutzereinstellungenLesen(const settings::Benutzerspeicher& speicher);

// The foyer and mail keys and "IPErfragen" are stored on every OK of the dialog; the rest
// only when the person asked for the settings to be saved.
void benutzereinstellungenSchreiben(settings::Benutzerspeicher& speicher, const Benutzereinstellungen& b,
                                    bool dauerhaft);

}  // namespace table

#include "Foyertisch.h"

#include "foyer/Foyerprogramm.h"
#include "foyer/Foyerverbindung.h"
#include "foyer/Regelkurztext.h"
#include "foyer/Steuerwort.h"
#include "settings/Benutzerspeicher.h"
#include "table/Netzgasttisch.h"
#include "table/Netzhosttisch.h"
#include "table/Netzspiel.h"
#include "table/Tischprogramm.h"

namespace app {

void foyerTischVerbinden(foyer::Foyerprogramm& foyer, table::Netzspiel& netz, const table::Tischprogramm& programm,
                         const settings::Benutzerspeicher& speicher) {
    // At the table a player is called by the name of the foyer login.
    auto name = [&speicher] { return speicher.text(QStringLiteral("StartNick")); };
    QObject::connect(&foyer, &foyer::Foyerprogramm::tischEroeffnenGewuenscht, &netz, [&, name] {
        if (netz.host() || netz.gast() || !netz.hosten(name(), programm.benutzer().serverport)) return;
        table::Netzhosttisch* host = netz.host();
        auto frei = [host] { return 4 - host->gastgeber().kern().spielerzahl(); };
        foyer.tischAnsagen(foyer.verbindung().lokaleAdresse().toString(), host->port(), frei(),
                           QString::fromStdString(foyer::regelKurztext(programm.einstellungen().regeln)));
        auto melden = [&foyer, frei] { foyer.freiePlaetzeSetzen(frei()); };
        QObject::connect(host, &table::Netzhosttisch::spielerKommt, &foyer, melden);
        QObject::connect(host, &table::Netzhosttisch::spielerGeht, &foyer, melden);
    });
    QObject::connect(&foyer, &foyer::Foyerprogramm::platzNehmenGewuenscht, &netz,
                     [&, name](const foyer::Tischangebot& angebot) {
                         if (netz.host() || netz.gast()) return;
                         netz.beitreten(QString::fromStdString(angebot.adresse), angebot.port, name());
                         const int nummer = angebot.nummer;
                         QObject::connect(&netz.gast()->gast(), &net::Gast::verbunden, &foyer,
                                          [&foyer, nummer] { foyer.platzGenommen(nummer); });
                     });
    QObject::connect(&foyer, &foyer::Foyerprogramm::tischVerlassenGewuenscht, &netz, [&] {
        netz.tischVerlassen();
        foyer.zurueckImFoyer();
    });
}

}  // namespace app

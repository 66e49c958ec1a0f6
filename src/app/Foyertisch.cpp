#include "Foyertisch.h"

#include "foyer/Foyerprogramm.h"
#include "foyer/Foyerverbindung.h"
#include "foyer/Regelkurztext.h"
#include "foyer/Steuerwort.h"
#include "table/Netzgasttisch.h"
#include "table/Netzhosttisch.h"
#include "table/Netzspiel.h"
#include "table/Tischprogramm.h"

namespace app {

void foyerTischVerbinden(foyer::Foyerprogramm& foyer, table::Netzspiel& netz, const table::Tischprogramm& programm) {
    // At the table a player is called by the name he logged in to the foyer with.
    QObject::connect(&foyer, &foyer::Foyerprogramm::tischEroeffnenGewuenscht, &netz, [&] {
        if (netz.host() || netz.gast() || !netz.partieAufgeben() ||
            !netz.hosten(foyer.verbindung().name(), programm.benutzer().serverport))
            return;
        table::Netzhosttisch* host = netz.host();
        auto frei = [host] { return 4 - host->gastgeber().kern().spielerzahl(); };
        foyer.tischAnsagen(foyer.verbindung().lokaleAdresse().toString(), host->port(), frei(),
                           QString::fromStdString(foyer::regelKurztext(programm.einstellungen().regeln)));
        // A seat taken or freed (a guest gone, removed or lost) is announced at once.
        auto melden = [&foyer, frei] { foyer.freiePlaetzeSetzen(frei()); };
        QObject::connect(host, &table::Netzhosttisch::spielerKommt, &foyer, melden);
        QObject::connect(host, &table::Netzhosttisch::spielerGeht, &foyer, melden);
    });
    QObject::connect(&foyer, &foyer::Foyerprogramm::platzNehmenGewuenscht, &netz,
                     [&](const foyer::Tischangebot& angebot) {
                         if (netz.host() || netz.gast() || !netz.partieAufgeben()) return;
                         netz.beitreten(QString::fromStdString(angebot.adresse), angebot.port, foyer.verbindung().name());
                         const int nummer = angebot.nummer;
                         QObject::connect(&netz.gast()->gast(), &net::Gast::verbunden, &foyer,
                                          [&foyer, nummer] { foyer.platzGenommen(nummer); });
                     });
    QObject::connect(&foyer, &foyer::Foyerprogramm::tischVerlassenGewuenscht, &netz, [&] {
        netz.imFoyerWarten();
        foyer.zurueckImFoyer();
    });
    // However the table here ends, the foyer hears of it.
    QObject::connect(&netz, &table::Netzspiel::tischAbgebaut, &foyer, &foyer::Foyerprogramm::tischWeg);
    // A guest whose table is lost goes back to this foyer while it is connected.
    netz.setzeFoyerZurueck([&foyer] {
        if (!foyer.verbindung().istAngemeldet()) return false;
        foyer.zurueckImFoyer();
        return true;
    });
    // The foyer's traffic goes into the protocol log, which can be shown while it is connected.
    foyer::Foyerverbindung& v = foyer.verbindung();
    QObject::connect(&v, &foyer::Foyerverbindung::protokoll, &netz, &table::Netzspiel::foyertextProtokollieren);
    QObject::connect(&v, &foyer::Foyerverbindung::angemeldet, &netz, [&netz] { netz.foyerVerbunden(true); });
    QObject::connect(&v, &foyer::Foyerverbindung::verbindungVerloren, &netz, [&netz] { netz.foyerVerbunden(false); });
}

}  // namespace app

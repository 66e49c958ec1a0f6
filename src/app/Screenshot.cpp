#include "Screenshot.h"

#include <QImage>
#include <iostream>

#include "Oberflaeche.h"
#include "engine/Regeln.h"
#include "engine/Stichspiel.h"
#include "engine/Zufall.h"
#include "players/EinfacheSpieler.h"
#include "table/Kartenbilder.h"
#include "table/Parteizeiger.h"
#include "table/Tischansicht.h"

namespace app {

namespace {

using engine::Sitz;

// A seeded game played by the simple computer players until, after a few tricks,
// seat 1 is to follow: everything the table shows is then on it.
engine::Spiel spielMitten(std::uint64_t seed) {
    engine::SeedZufall zufall(seed);
    engine::Spiel spiel;
    spiel.regeln = engine::regelnUebernehmen(engine::RegelOptionen{});
    std::vector<int> codes;
    for (int runde = 0; runde < 2; ++runde)
        for (int c = 1; c <= 24; ++c) codes.push_back(c);
    for (std::size_t i = codes.size(); i > 1; --i)
        std::swap(codes[i - 1], codes[static_cast<std::size_t>(zufall.ganzzahl(static_cast<int>(i)))]);
    for (int p = 1; p <= 48; ++p) {
        spiel.deck[p].code = codes[static_cast<std::size_t>(p - 1)];
        spiel.deck[p].status = engine::InHand;
    }
    spiel.deck.attributeBerechnen();
    spiel.deck.staerkenBerechnen(engine::Normalspiel);
    for (const Sitz s : engine::alleSitze) {
        spiel.namen[s] = "Spieler" + std::to_string(s.nr());
        int damen = 0;
        for (int p = spiel.deck.erstePosition(s); p <= spiel.deck.letztePosition(s); ++p)
            damen += spiel.deck[p].code == engine::kartencode(engine::Kreuz, engine::Dame);
        spiel.partei[s] = damen == 0 ? engine::ParteiKontra : damen == 1 ? engine::ParteiRe : engine::ParteiSolo;
    }
    spiel.vorhand = Sitz(zufall.ganzzahl(4) + 1);
    spiel.stich.beginnen(spiel.vorhand);

    players::KleinsteKarte spieler;
    while (spiel.sticheGespielt < 11) {
        if (spiel.sticheGespielt >= 4 && spiel.stich.anzahl > 0 && spiel.stich.amZug() == Sitz(1)) break;
        engine::karteSpielen(spiel, spieler.karteWaehlen(spiel, spiel.stich.amZug()));
        if (!spiel.stich.komplett()) continue;
        const Sitz gewinner = engine::stichGewinner(spiel);
        engine::StichProtokoll protokoll{spiel.stich.aufspieler, spiel.stich.karten, {}, gewinner, 0};
        for (std::size_t i = 0; i < 4; ++i) {
            protokoll.codes[i] = spiel.deck[protokoll.karten[i]].code;
            protokoll.augen += spiel.deck[protokoll.karten[i]].augen;
        }
        spiel.stiche.push_back(protokoll);
        spiel.augen[gewinner] += protokoll.augen;
        ++spiel.stichzahl[gewinner];
        ++spiel.sticheGespielt;
        spiel.stich.beginnen(gewinner);
    }
    return spiel;
}

}  // namespace

int screenshotSchreiben(const Aufruf& aufruf, int& argc, char** argv) {
    const auto anwendung = anwendungStarten(argc, argv, true);
    const engine::Spiel spiel = spielMitten(aufruf.seed.value_or(1));

    table::Kartenbilder bilder;
    table::Tischansicht tisch(bilder);
    tisch.resize(tisch.sizeHint());
    tisch.setzeSpiel(&spiel);
    tisch.setzeAmZug(spiel.stich.amZug());
    tisch.setzeKartenwahl(spiel.stich.amZug() == Sitz(1));
    engine::ProSitz<int> bilderProSitz;
    for (const Sitz s : engine::alleSitze)
        bilderProSitz[s] = table::parteibildFuer(s, s == Sitz(1) || spiel.parteiMarker[s] ? spiel.partei[s] : 0);
    tisch.setzeParteibilder(bilderProSitz);

    const QImage bild = tisch.grab().toImage();
    if (!bild.save(QString::fromStdString(aufruf.screenshotDatei), "PNG")) {
        std::cerr << "trumpona: " << aufruf.screenshotDatei << " kann nicht geschrieben werden.\n";
        return 1;
    }
    return 0;
}

}  // namespace app

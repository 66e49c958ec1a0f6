#include "Spielanzeige.h"

#include <QString>

#include "Tischtexte.h"
#include "engine/Kartentext.h"

namespace table {

using engine::Sitz;

namespace {

// The reservations are over and the game type is fixed.
bool gespielt(const engine::Spiel& spiel) { return spiel.ablauf.phase >= engine::Spielphase::Kartenspiel; }

std::string parteiname(int seite) { return seite == engine::ParteiRe ? texte::ParteiRe : texte::ParteiKontra; }

std::string verbunden(const std::vector<std::string>& teile) {
    std::string text;
    for (const std::string& teil : teile) text += (text.empty() ? "" : ", ") + teil;
    return text;
}

}  // namespace

engine::ProSitz<int> sichtbareParteien(const engine::Spiel& spiel, const engine::ProSitz<int>& zeigerBild) {
    using namespace engine;
    ProSitz<int> partei(ParteiUnbekannt);
    if (!gespielt(spiel)) return partei;
    // Pictures 1/2 unknown, 3/4 Kontra, 5/6 Re.
    for (const Sitz s : alleSitze)
        if (zeigerBild[s] > 0) partei[s] = (zeigerBild[s] + 1) / 2 - 1;
    auto bekannt = [&](Sitz s, int p) {
        if (partei[s] == ParteiUnbekannt) partei[s] = p;
    };
    // Declared, and so known to everyone from the first card on.
    if (spiel.solist)
        for (const Sitz s : alleSitze) bekannt(s, s == *spiel.solist ? ParteiRe : ParteiKontra);
    if (spiel.hochzeiter) bekannt(*spiel.hochzeiter, ParteiRe);
    if (spiel.hochzeiter && spiel.hochzeitGeklaert)
        for (const Sitz s : alleSitze) bekannt(s, seite(spiel, s));
    for (const Sitz s : alleSitze) {
        if (spiel.reAngesagt[s] || spiel.parteiMarker[s] == ParteiRe) bekannt(s, ParteiRe);
        if (spiel.kontraAngesagt[s]) bekannt(s, ParteiKontra);
    }
    // Seat 1 knows its own cards; only the partner of an open Hochzeit is not yet found.
    const Sitz ich(1);
    if (!spiel.hochzeiter || spiel.hochzeitGeklaert || spiel.hochzeiter == ich) partei[ich] = seite(spiel, ich);
    if (spiel.stillerSolist == ich)
        for (const Sitz s : alleSitze) bekannt(s, ParteiKontra);
    return partei;
}

std::vector<Ansageschild> ansagenVon(const engine::Spiel& spiel, Sitz sitz) {
    std::vector<Ansageschild> schilder;
    if (spiel.reAngesagt[sitz]) schilder.push_back({texte::ParteiRe, engine::ParteiRe});
    if (spiel.kontraAngesagt[sitz]) schilder.push_back({texte::ParteiKontra, engine::ParteiKontra});
    if (spiel.limitSitz == sitz && spiel.limitCode >= engine::LimitSchwarz && spiel.limitCode <= engine::Keine90)
        schilder.push_back({texte::LimitSchilder[spiel.limitCode], engine::seite(spiel, sitz)});
    return schilder;
}

std::string spielart(const engine::Spiel& spiel, bool franzoesisch, bool allesOffen) {
    if (spiel.solo) return engine::soloName(spiel.spieltyp, franzoesisch) + (spiel.pflichtsolo ? texte::Pflichtsolo : "");
    if (spiel.hochzeiter) {
        if (spiel.hochzeitGeklaert)
            return spiel.hochzeitPartner ? texte::HochzeitMit + spiel.namen[*spiel.hochzeitPartner] : texte::HochzeitAllein;
        switch (spiel.hochzeitArt) {
            case engine::ErsterFehlstich: return texte::HochzeitErsterFehlstich;
            case engine::ErsterTrumpfstich: return texte::HochzeitErsterTrumpfstich;
            default: return texte::HochzeitErsterStich;
        }
    }
    if (spiel.stillerSolist && (allesOffen || spiel.stillerSolist == Sitz(1))) return texte::StillesSolo;
    return texte::Normalspiel;
}

Sitz geber(const engine::Spiel& spiel) {
    // A soloist at this machine who took the lead moved the game's Vorhand on by one.
    const bool vorhandVerschoben = spiel.solo && spiel.regeln.vhSolo && spiel.solist && spiel.partie.soloVorhandMarke &&
                                   spiel.steuerung[*spiel.solist] == engine::Steuerung::Mensch;
    return spiel.vorhand.plus(vorhandVerschoben ? -2 : -1);
}

std::vector<std::string> spielecke(const engine::Spiel& spiel, bool franzoesisch) {
    if (spiel.ablauf.phase == engine::Spielphase::Geben || spiel.partie.spielNr < 1) return {};
    std::vector<std::string> zeilen;
    if (gespielt(spiel)) zeilen.push_back(spielart(spiel, franzoesisch, false));
    const engine::Regeln& r = spiel.regeln;
    std::string nummer = texte::SpielNummer + std::to_string(spiel.partie.spielNr);
    if (r.abrOption == 2 && spiel.partie.spielNr <= static_cast<int>(spiel.partie.spieltabelle.size()))
        nummer += texte::SpielVon + std::to_string(r.endeNach);
    else
        nummer += QString::fromUtf8(texte::SpielBisPunkte).arg(r.endeBei).toStdString();
    zeilen.push_back(nummer);
    zeilen.push_back(texte::Geber + spiel.namen[geber(spiel)]);
    const Sitz vorhand = spiel.stiche.empty() ? spiel.stich.aufspieler : spiel.stiche.front().aufspieler;
    zeilen.push_back(texte::Vorhand + spiel.namen[vorhand]);
    std::vector<std::string> wert;
    if (spiel.faktor > 1) wert.push_back(texte::Faktor + std::to_string(spiel.faktor));
    // After scoring the Partie's mark is already the next game's.
    if (spiel.ergebnis.gewertet ? spiel.ergebnis.bock : spiel.partie.bock && r.bockrunden) wert.push_back(texte::Bockspiel);
    if (!wert.empty()) zeilen.push_back(verbunden(wert));
    return zeilen;
}

Spielangaben spielangaben(const engine::Spiel& gewertet, bool franzoesisch) {
    const engine::Spielergebnis& e = gewertet.ergebnis;
    Spielangaben a;
    a.spielart = spielart(gewertet, franzoesisch, true);
    a.gewinner = parteiname(e.gewinner);
    a.augen = std::to_string(e.augenRe) + " : " + std::to_string(e.augenKontra);
    std::vector<std::string> ansagen;
    for (const Sitz s : engine::alleSitze)
        for (const Ansageschild& schild : ansagenVon(gewertet, s))
            ansagen.push_back(schild.text == parteiname(schild.seite) ? schild.text
                                                                       : schild.text + " (" + parteiname(schild.seite) + ")");
    a.ansagen = verbunden(ansagen);
    std::vector<std::string> sonderpunkte;
    for (const engine::Sonderpunkt& p : gewertet.sonderpunkte)
        sonderpunkte.push_back(p.art + " (" + parteiname(p.partei) + ")");
    a.sonderpunkte = verbunden(sonderpunkte);
    return a;
}

}  // namespace table

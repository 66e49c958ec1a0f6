#include "Spielstatistik.h"

#include <cstdio>

#include "Regeltabelle.h"
#include "engine/Ansagen.h"
#include "engine/Kartentext.h"

namespace players {

using namespace engine;

void Spielstatistik::melden(const Meldung& m) {
    if (m.art == Meldungsart::Regel && m.sitz && m.verfahren == verfahren::SoloPruefen && m.code == "Sicher")
        sicher_[*m.sitz] = true;
}

void Spielstatistik::kartenGegeben(const Spiel&) { sicher_.fill(false); }

void Spielstatistik::spielBeendet(const Spiel& spiel) {
    ++spiele;
    const Spielergebnis& e = spiel.ergebnis;
    const bool reGewinnt = e.gewinner == ParteiRe;
    auto zaehlen = [](Quote& q, bool gewonnen) {
        ++q.anzahl;
        q.gewonnen += gewonnen;
    };
    if (spiel.solo && spiel.solist) {
        zaehlen(solos[static_cast<std::size_t>(spiel.spieltyp)], reGewinnt);
        if (sicher_[*spiel.solist]) zaehlen(sichereSolos, reGewinnt);
        if (spiel.pflichtsolo) zaehlen(pflichtsolos, reGewinnt);
    }
    if (spiel.stillerSolist) {
        zaehlen(stilleSolos, reGewinnt);
        if (sicher_[*spiel.stillerSolist]) zaehlen(sichereStilleSolos, reGewinnt);
    }
    if (spiel.hochzeiter) {
        zaehlen(hochzeiten, reGewinnt);
        if (!spiel.hochzeitPartner) ++hochzeitenAllein;
        if (spiel.hochzeitArt >= ErsterStich && spiel.hochzeitArt <= ErsterTrumpfstich)
            ++hochzeitArten[static_cast<std::size_t>(spiel.hochzeitArt)];
    }
    for (const AnsageEintrag& a : spiel.ansagen) {
        if (a.limit) continue;
        if (a.partei == ParteiRe) ++reAnsagen;
        else ++kontraAnsagen;
    }
    for (const int seiteNr : {ParteiRe, ParteiKontra})
        if (parteiHatAngesagt(spiel, seiteNr)) zaehlen(ansagendeParteien, e.gewinner == seiteNr);
    if (spiel.limitSitz && spiel.limitCode >= LimitSchwarz && spiel.limitCode <= Keine90)
        zaehlen(limits[static_cast<std::size_t>(spiel.limitCode)], e.limitEingehalten == 1);
}

std::string Spielstatistik::bericht() const {
    std::string s;
    char zeile[200];
    auto quote = [&](const char* name, const Quote& q) {
        std::snprintf(zeile, sizeof zeile, "%-34s %8ld, gewonnen %8ld (%5.1f %%)\n", name, q.anzahl, q.gewonnen,
                      100.0 * q.anteil());
        s += zeile;
    };
    std::snprintf(zeile, sizeof zeile, "Spiele %ld\n", spiele);
    s += zeile;
    Quote alle;
    for (int art = 1; art <= AnzahlSpielarten; ++art) {
        const Quote& q = solos[static_cast<std::size_t>(art)];
        alle.anzahl += q.anzahl;
        alle.gewonnen += q.gewonnen;
        const std::string name = "Solo " + (art == Normalspiel ? std::string("Karo-Solo") : spieltypName(art, true));
        quote(name.c_str(), q);
    }
    quote("Solos zusammen", alle);
    quote("Sichere Solos", sichereSolos);
    quote("Pflichtsolos", pflichtsolos);
    quote("Stille Solos", stilleSolos);
    quote("Stille Solos, sicher", sichereStilleSolos);
    quote("Hochzeiten", hochzeiten);
    std::snprintf(zeile, sizeof zeile,
                  "Hochzeiten ersten Stichs %ld, ersten Fehlstichs %ld, ersten Trumpfstichs %ld, ohne Partner %ld\n",
                  hochzeitArten[ErsterStich], hochzeitArten[ErsterFehlstich], hochzeitArten[ErsterTrumpfstich],
                  hochzeitenAllein);
    s += zeile;
    std::snprintf(zeile, sizeof zeile, "Ansagen Re %ld, Kontra %ld\n", reAnsagen, kontraAnsagen);
    s += zeile;
    quote("Ansagende Parteien", ansagendeParteien);
    Quote alleLimits;
    for (int code = Keine90; code >= LimitSchwarz; --code) {
        const Quote& q = limits[static_cast<std::size_t>(code)];
        alleLimits.anzahl += q.anzahl;
        alleLimits.gewonnen += q.gewonnen;
        const std::string name = "Limit " + limitMenuetext(code).substr(std::string("Limitgebot ").size());
        quote(name.c_str(), q);
    }
    quote("Limits zusammen (eingehalten)", alleLimits);
    return s;
}

}  // namespace players

#include "Spielverlauf.h"

#include <algorithm>

#include "Handordnung.h"
#include "Lerntexte.h"
#include "Tischtexte.h"
#include "engine/Ansagen.h"
#include "engine/Kartentext.h"

namespace table {

using engine::Sitz;

namespace {

std::vector<std::string> grundTexte(const std::vector<players::Grund>& gruende) {
    std::vector<std::string> t;
    for (const auto& g : gruende) t.push_back(grundText(g));
    return t;
}

std::string seitenText(int partei) { return partei == engine::ParteiKontra ? lerntext::KontraSeite : lerntext::ReSeite; }

std::string ansageText(const engine::Spiel& spiel, const engine::AnsageEintrag& a) {
    const std::string& name = spiel.namen[a.sitz];
    if (a.limit) return name + ": " + engine::limitMenuetext(a.limitCode);
    return name + (a.partei == engine::ParteiKontra ? lerntext::AngesagtKontra : lerntext::AngesagtRe);
}

// The deal and the reservations: who plays what with whom.
std::vector<std::string> vorbehaltZeilen(const engine::Spiel& spiel, const players::Spielbegruendungen& gruende,
                                         bool franz) {
    const auto& n = spiel.namen;
    std::vector<std::string> z{lerntext::Vorhand + n[spiel.vorhand]};
    if (spiel.solo && spiel.solist) {
        z.push_back(n[*spiel.solist] + lerntext::SpieltEin + engine::soloName(spiel.spieltyp, franz) +
                    (spiel.pflichtsolo ? lerntext::Pflichtsolo : ""));
    } else if (spiel.stillerSolist) {
        z.push_back(n[*spiel.stillerSolist] + lerntext::StillesSolo);
    } else if (spiel.hochzeiter) {
        z.push_back(n[*spiel.hochzeiter] + lerntext::SpieltHochzeit +
                    (spiel.hochzeitPartner ? lerntext::Partner + n[*spiel.hochzeitPartner] : std::string(lerntext::OhnePartner)));
    } else {
        z.push_back(lerntext::Normalspiel);
    }
    if (spiel.schweineHalter) z.push_back(lerntext::SchweineBei + n[*spiel.schweineHalter]);
    for (const Sitz s : engine::alleSitze)
        for (const std::string& g : grundTexte(gruende.vorbehalte[s])) z.push_back(n[s] + ": " + g);
    return z;
}

}  // namespace

std::string grundText(const players::Grund& grund) {
    if (!grund.text.empty()) return grund.text;
    return lerntext::Regel + grund.verfahren + " " + grund.code;
}

std::vector<Verlaufsschritt> spielverlauf(const engine::Spiel& spiel, const players::Spielbegruendungen& gruende,
                                          bool franz) {
    std::vector<Verlaufsschritt> schritte;
    engine::ProSitz<std::vector<int>> haende;
    for (const Sitz s : engine::alleSitze) {
        for (int p = spiel.deck.erstePosition(s); p <= spiel.deck.letztePosition(s); ++p) haende[s].push_back(p);
        haende[s] = sortiert(spiel, haende[s]);
    }

    Verlaufsschritt start;
    start.ueberschrift = lerntext::VorDemErstenStich;
    start.haende = haende;
    start.zeilen = vorbehaltZeilen(spiel, gruende, franz);
    schritte.push_back(start);

    for (std::size_t i = 0; i < spiel.stiche.size(); ++i) {
        const engine::StichProtokoll& st = spiel.stiche[i];
        const int nummer = static_cast<int>(i) + 1;
        Verlaufsschritt s;
        s.art = Verlaufsschritt::Art::Stich;
        s.stich = nummer;
        s.haende = haende;
        s.gewinner = st.gewinner;
        s.augen = st.augen;
        s.ueberschrift = std::to_string(nummer) + texte::StichNummer + ": " + spiel.namen[st.aufspieler] + texte::SpieltAus +
                         spiel.namen[st.gewinner] + texte::Gewinnt + std::to_string(st.augen) + texte::AugenKurz;
        // Announcements are filed under the number of tricks completed when they were made.
        for (std::size_t a = 0; a < spiel.ansagen.size(); ++a) {
            if (spiel.ansagen[a].stich != nummer - 1) continue;
            s.zeilen.push_back(ansageText(spiel, spiel.ansagen[a]));
            if (a < gruende.ansagen.size())
                for (const std::string& g : grundTexte(gruende.ansagen[a])) s.zeilen.push_back("    " + g);
        }
        for (int platz = 0; platz < 4; ++platz) {
            const int pos = st.karten[static_cast<std::size_t>(platz)];
            const Sitz sitz = st.aufspieler.plus(platz);
            s.karten.push_back({sitz, pos, grundTexte(gruende.karte(pos))});
            auto& hand = haende[sitz];
            hand.erase(std::remove(hand.begin(), hand.end(), pos), hand.end());
        }
        for (const engine::Sonderpunkt& sp : spiel.sonderpunkte)
            if (sp.stich == nummer)
                s.zeilen.push_back(lerntext::Sonderpunkt + sp.art + lerntext::SonderpunktFuer + seitenText(sp.partei));
        schritte.push_back(std::move(s));
    }

    Verlaufsschritt ende;
    ende.art = Verlaufsschritt::Art::Ende;
    ende.ueberschrift = lerntext::Spielende;
    ende.haende = haende;
    const engine::Spielergebnis& e = spiel.ergebnis;
    if (e.gewertet) {
        ende.zeilen.push_back(lerntext::AugenRe + std::to_string(e.augenRe) + lerntext::AugenKontra +
                              std::to_string(e.augenKontra));
        ende.zeilen.push_back(e.text);
        for (const Sitz s : engine::alleSitze)
            ende.zeilen.push_back(spiel.namen[s] + ": " + std::to_string(e.punkte[s]) + lerntext::Punkte);
    }
    schritte.push_back(std::move(ende));
    return schritte;
}

}  // namespace table

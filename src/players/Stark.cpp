#include "Stark.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "Regelwerk.h"
#include "engine/Ansagen.h"
#include "engine/Kartentext.h"
#include "engine/Stichspiel.h"

namespace players {

using namespace engine;

int simulationenFuer(int bedenkzeitMs) { return std::max(1, bedenkzeitMs * SimulationenJeMs); }

Stark::Stark(Tischwissen& wissen, Zufallsquelle& zufall, Begruendungssenke* senke, Starkart art, std::uint64_t seed)
    : wissen_(wissen), zufall_(zufall), senke_(senke), art_(art), seed_(seed) {}

std::uint64_t Stark::seedFuer(const Sicht& sicht) const { return seed_ ^ sichtSchluessel(sicht); }

namespace {
template <class F>
auto gestoppt(std::vector<double>& zeiten, F&& f) {
    const auto start = std::chrono::steady_clock::now();
    auto ergebnis = f();
    zeiten.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    return ergebnis;
}
}  // namespace

int Stark::karteWaehlen(const Spiel& spiel, Sitz sitz) {
    // The table's move preparation runs for this seat as for any computer seat.
    if (!wissen_.aktuell(spiel)) wissen_.nachvollziehen(spiel);
    wissen_.zugVorbereiten(spiel, sitz);
    const Sicht sicht = sichtVon(spiel, sitz);
    const std::vector<int> erlaubt = erlaubteKarten(sicht.spiel, sitz);
    if (erlaubt.size() <= 1) return erlaubt.empty() ? 0 : erlaubt.front();
    return gestoppt(denkzeiten_, [&] { return karteSuchen(sicht, wissen_.zufallszahl, seedFuer(sicht), art_.suche); })
        .karte;
}

Vorbehalt Stark::vorbehaltWaehlen(const Spiel& spiel, Sitz sitz) {
    return Regelwerk(wissen_, zufall_, senke_).vorbehaltWaehlen(spiel, sitz);
}

std::optional<Ansage> Stark::ansageWaehlen(const Spiel& spiel, Sitz sitz) {
    if (auto regel = Regelwerk(wissen_, zufall_, senke_).ansageWaehlen(spiel, sitz)) return regel;
    if (!art_.ansagesuche) return std::nullopt;
    std::vector<Ansage> moeglich;
    if (ansageSperre(spiel, sitz, Ansage{}) == Ansagesperre::Keine) moeglich.push_back(Ansage{});
    for (int code = Keine90; code >= LimitSchwarz; --code)
        if (ansageSperre(spiel, sitz, Ansage{true, code}) == Ansagesperre::Keine) moeglich.push_back(Ansage{true, code});
    if (moeglich.empty()) return std::nullopt;
    const Sicht sicht = sichtVon(spiel, sitz);
    // Half the budget: the card is still to come.
    Sucheinstellung e = art_.suche;
    e.simulationen = std::max(2, e.simulationen / 2);
    return gestoppt(denkzeiten_, [&] { return ansageSuchen(sicht, wissen_.zufallszahl, seedFuer(sicht) + 1, e, moeglich); })
        .ansage;
}

Kartenerklaerung Stark::karteErklaeren(const Spiel& spiel, Sitz sitz) {
    Kartenerklaerung k;
    if (!wissen_.aktuell(spiel)) wissen_.nachvollziehen(spiel);
    Meldungsliste gruende;
    // The rule book's card at this table, asked without touching the table's number.
    // With the reasoning switched on, so that rules whose choice explains itself say so.
    Tischwissen kopie = wissen_;
    kopie.msgBoxModus = MsgBoxZeigen;
    k.regelwerkKarte = Regelwerk(kopie, zufall_, &gruende).karteWaehlen(spiel, sitz);
    std::string hinweis;
    for (const Meldung& m : gruende.meldungen) {
        if (m.text.empty() || m.sitz != sitz) continue;
        if (m.art == Meldungsart::Regel) k.regelText = m.text;
        if (m.art == Meldungsart::Hinweis) hinweis = m.text;
    }
    if (k.regelText.empty()) k.regelText = hinweis;
    const Sicht sicht = sichtVon(spiel, sitz);
    const Suchergebnis e = karteSuchen(sicht, wissen_.zufallszahl, seedFuer(sicht), art_.suche);
    k.karte = e.karte;
    k.welten = e.welten;
    k.exakt = e.exakt;
    const Kartenwert* eigen = e.wertVon(k.karte);
    // The rule book's card may be the other copy of an equal card.
    const Kartenwert* regel = nullptr;
    for (const Kartenwert& w : e.werte)
        if (spiel.deck[w.karte].code == spiel.deck[k.regelwerkKarte].code) regel = &w;
    if (eigen && regel) k.vorsprung = eigen->mittel - regel->mittel;
    if (regel && regel->karte != k.karte && spiel.deck[regel->karte].code == spiel.deck[k.karte].code)
        k.vorsprung = 0;
    return k;
}

std::string erklaerungText(const Kartenerklaerung& e, const Spiel& spiel, bool franz) {
    const bool gleich = e.regelwerkKarte != 0 && spiel.deck[e.regelwerkKarte].code == spiel.deck[e.karte].code;
    if (gleich && !e.regelText.empty()) return e.regelText;
    if (gleich || e.regelwerkKarte == 0) return "Diese Karte ist nach " + std::to_string(e.welten) + " möglichen Verteilungen die beste.";
    char zahl[32];
    std::snprintf(zahl, sizeof zahl, "%+.1f", e.vorsprung);
    std::string betrag(zahl);
    std::replace(betrag.begin(), betrag.end(), '.', ',');
    return "Diese Karte bringt im Mittel " + betrag + " Punkte mehr als " +
           kartenname(spiel.deck[e.regelwerkKarte].code, franz) + ", über " + std::to_string(e.welten) +
           " mögliche Verteilungen";
}

}  // namespace players

#include "Regelwerk.h"

#include <string>

#include "Kontra.h"
#include "Solo.h"
#include "Texte.h"
#include "Verfahren.h"
#include "engine/Ansagen.h"
#include "engine/Vorbehalte.h"

namespace players {

using namespace engine;

namespace {
std::string_view hochzeitCode(int art) {
    switch (art) {
        case ErsterFehlstich: return "Fehlstich";
        case ErsterTrumpfstich: return "Trumpfstich";
        default: return "ErsterStich";
    }
}
}  // namespace

int Regelwerk::karteWaehlen(const Spiel& spiel, Sitz sitz) {
    // A game loaded or taken over midway: rebuild what the table has seen.
    if (!wissen_.aktuell(spiel)) wissen_.nachvollziehen(spiel);
    wissen_.zugVorbereiten(spiel, sitz);
    const Melder melder(senke_, sitz, wissen_.msgBoxModus == MsgBoxZeigen);
    melder.entscheidung();
    const Lage lage(spiel, wissen_, sitz, melder, zufall_);
    if (lage.erlaubt.empty()) return 0;
    int karte = lage.anzahl == 0 ? ausspielWaehlen(lage) : (art_.bedienen ? art_.bedienen : bedienenWaehlen)(lage);
    if (!istErlaubt(lage, karte)) {
        melder.rueckfall("Regelwerk");
        karte = rueckfallKarte(lage);
    }
    if (lage.neueZufallszahl) wissen_.zufallszahl = *lage.neueZufallszahl;
    return karte;
}

Vorbehalt Regelwerk::vorbehaltWaehlen(const Spiel& spiel, Sitz sitz) {
    const bool pflicht = mussPflichtsolo(spiel, sitz);
    if (!art_.vorbehalte && !pflicht) return {};
    const Melder melder(senke_, sitz, wissen_.msgBoxModus == MsgBoxZeigen);
    const bool beideKreuzDamen = hatBeideKreuzDamen(spiel, sitz);
    Soloarten arten = soloartenAusRegeln(spiel.regeln);
    // Without solos the holder of both Kreuz-Damen may still keep a silent one.
    if (!spiel.regeln.solis) arten[Normalspiel] = beideKreuzDamen;
    Solotabellen& tabellen = wissen_.solo;

    const Solowahl wahl = soloPruefen(spiel, sitz, arten, tabellen, melder);
    if (wahl.art != 0 && tabellen.stillesSoloSpieler == sitz && !pflicht) {
        melder.regel(verfahren::Vorbehalt, "Still", text::spieler(sitz) + std::string(text::StillesSoloBehalten));
        return {};
    }
    if (wahl.art != 0 && spiel.regeln.solis) return {Vorbehalt::Solo, wahl.art, KeineHochzeit};
    if (pflicht) {
        const int art = pflichtsoloArt(spiel, sitz, arten);
        melder.regel(verfahren::Vorbehalt, "Pflicht",
                     text::spieler(sitz) + std::string(text::PflichtsoloWahl) + std::to_string(art) + "!");
        return {Vorbehalt::Solo, art, KeineHochzeit};
    }
    if (beideKreuzDamen) {
        const Hochzeitwahl h = hochzeitArtWaehlen(spiel, sitz);
        melder.regel(verfahren::Vorbehalt, hochzeitCode(h.art), text::spieler(sitz) + std::string(h.text));
        return {Vorbehalt::Hochzeit, Normalspiel, h.art};
    }
    return {};
}

std::optional<Ansage> Regelwerk::ansageWaehlen(const Spiel& spiel, Sitz sitz) {
    if (!art_.ansagen) return std::nullopt;
    if (!wissen_.aktuell(spiel)) wissen_.nachvollziehen(spiel);
    const Melder melder(senke_, sitz, wissen_.msgBoxModus == MsgBoxZeigen);
    const Lage lage(spiel, wissen_, sitz, melder, zufall_);
    if (ansageSperre(spiel, sitz, Ansage{}) == Ansagesperre::Keine && kontraPruefen(lage).ansagen) return Ansage{};
    if (const auto code = limitPruefen(lage)) return Ansage{true, *code};
    return std::nullopt;
}

}  // namespace players

#include "Regelwerk.h"

#include <optional>
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
    const Melder melder(senke_, sitz, wissen_.msgBoxModus == MsgBoxZeigen);
    melder.entscheidung();
    // The view of the announcement check just made, if it was for this very state; used once.
    // Building a Lage reads nothing the preparation of the move changes.
    auto waehlen = [&](const Lage& lage) {
        wissen_.zugVorbereiten(spiel, sitz, lage.werte.eigeneTruempfe);
        return karteNachLage(lage, melder);
    };
    // (Not an empty std::optional<Lage>: that clears its whole storage first.)
    const int karte = passt(vorlage_, spiel, sitz) ? waehlen(*vorlage_.lage)
                                                   : waehlen(Lage(spiel, wissen_, sitz, melder, zufall_));
    vorlage_.verwerfen();
    return karte;
}

int Regelwerk::karteNachLage(const Lage& lage, const Melder& melder) {
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
    vorlage_.verwerfen();
    if (!art_.ansagen) return std::nullopt;
    // Re or Kontra is weighed during a trick or before the first card, a limit only when
    // leading after the first trick: elsewhere neither rule can say yes.
    const bool leer = spiel.stich.anzahl == 0 || spiel.stich.komplett();
    const bool reKontraErlaubt = ansageSperre(spiel, sitz, Ansage{}) == Ansagesperre::Keine;
    const bool reKontra = reKontraErlaubt && !(leer && spiel.sticheGespielt > 0);
    const bool limit = leer && spiel.sticheGespielt > 0 &&
                       ansageSperre(spiel, sitz, Ansage{true, Keine90}) == Ansagesperre::Keine;
    if (!reKontra && !limit) return std::nullopt;
    if (!wissen_.aktuell(spiel)) wissen_.nachvollziehen(spiel);
    Vorlage& v = vorlage_;
    v.melder.emplace(senke_, sitz, wissen_.msgBoxModus == MsgBoxZeigen);
    const Lage& lage = v.lage.emplace(spiel, wissen_, sitz, *v.melder, zufall_);
    if (reKontraErlaubt && kontraPruefen(lage).ansagen) {
        v.verwerfen();
        return Ansage{};
    }
    if (const auto code = limitPruefen(lage)) {
        v.verwerfen();
        return Ansage{true, *code};
    }
    v.spiel = &spiel;
    v.sitz = sitz;
    v.karten = spiel.sticheGespielt * 4 + spiel.stich.anzahl;
    v.ansagen = spiel.ansagen.size();
    return std::nullopt;
}

bool Regelwerk::passt(const Vorlage& v, const Spiel& spiel, Sitz sitz) const {
    return v.lage && v.melder && v.spiel == &spiel && v.sitz == sitz && v.karten == spiel.sticheGespielt * 4 + spiel.stich.anzahl &&
           v.ansagen == spiel.ansagen.size() && v.melder->zeigt() == (senke_ && wissen_.msgBoxModus == MsgBoxZeigen);
}

}  // namespace players

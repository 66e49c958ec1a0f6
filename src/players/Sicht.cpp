#include "Sicht.h"

namespace players {

using namespace engine;

bool schweineOeffentlich(const Spiel& spiel, Sitz halter) {
    return spiel.regeln.schweineAnsagen || spiel.steuerung[halter] == Steuerung::Mensch ||
           spiel.schweineGespielt[halter] > 0;
}

namespace {
// A promoted trump As of the Supersau holder has been played.
bool supersauGesehen(const Spiel& spiel, Sitz halter) {
    const Deck& d = spiel.deck;
    for (int p = d.erstePosition(halter); p <= d.letztePosition(halter); ++p)
        if (d[p].status == Gespielt && d[p].code == kartencode(spiel.spieltyp, As) && d[p].staerke == StaerkeJoker)
            return true;
    return false;
}
}  // namespace

Sicht sichtVon(const Spiel& spiel, Sitz ich) {
    Sicht v{spiel, ich};
    Spiel& s = v.spiel;
    Deck& d = s.deck;
    for (int p = 1; p <= MaxPositionen; ++p) {
        d[p].marke = 0;
        if (d[p].status == InHand && d.besitzer(p) != ich) d[p] = Kartenposition{0, InHand, 0, 0, 0, 0, 0};
    }
    // Parties: a declared game makes them public (a Hochzeit its Hochzeiter, and the
    // partner once found); otherwise the seat knows only its own.
    if (!s.solo && !s.hochzeiter)
        for (const Sitz x : alleSitze)
            if (x != ich) s.partei[x] = ParteiUnbekannt;
    if (s.stillerSolist != ich) s.stillerSolist.reset();
    if (s.schweineHalter && *s.schweineHalter != ich && !schweineOeffentlich(s, *s.schweineHalter))
        s.schweineHalter.reset();
    if (s.supersauHalter && *s.supersauHalter != ich && !supersauGesehen(s, *s.supersauHalter))
        s.supersauHalter.reset();
    // Judged with the parties, which the seat may not know: the world recomputes them.
    s.sonderpunkte.clear();
    s.spielbericht.clear();
    s.ergebnis = Spielergebnis{};
    s.namen.fill(std::string());
    return v;
}

std::uint64_t sichtSchluessel(const Sicht& sicht) {
    const Spiel& s = sicht.spiel;
    std::uint64_t h = 0xcbf29ce484222325ULL;
    auto mischen = [&](std::uint64_t x) {
        h ^= x;
        h *= 0x100000001b3ULL;
    };
    for (int p = 1; p <= MaxPositionen; ++p) {
        mischen(static_cast<std::uint64_t>(s.deck[p].code));
        mischen(static_cast<std::uint64_t>(s.deck[p].status));
    }
    for (const StichProtokoll& st : s.stiche)
        for (int pos : st.karten) mischen(static_cast<std::uint64_t>(pos));
    for (int i = 1; i <= s.stich.anzahl; ++i) mischen(static_cast<std::uint64_t>(s.stich.karte(i)) * 7);
    mischen(static_cast<std::uint64_t>(sicht.ich.nr()));
    mischen(s.ansagen.size());
    mischen(static_cast<std::uint64_t>(s.spieltyp));
    return h;
}

}  // namespace players

#pragma once
// Conditions and card choices shared by the follow tables, as table entries.
#include "Folgelage.h"
#include "Regeltabelle.h"

namespace players::folgen {

using R = RegelFuer<Folge>;

inline bool immer(const Folge&) { return true; }
inline int zufaellig(const Folge& f) { return f.l.zufaellige(f.l.erlaubt); }

// Who decides the trick's fate.
inline bool gast(const Folge& f) { return f.klaerstich && !f.binHochzeiter; }
inline bool rufer(const Folge& f) { return f.klaerstich && f.binHochzeiter; }
// The normal game: no Hochzeit trick to clarify, nobody playing alone.
inline bool normal(const Folge& f) { return !f.klaerstich && !f.binSolist && !f.gegenSolist; }
inline bool freundHaelt(const Folge& f) { return normal(f) && f.wFreund; }
inline bool feindHaelt(const Folge& f) { return normal(f) && !f.wFreund; }
inline bool solistPartnerHaelt(const Folge& f) { return f.gegenSolist && f.wFreund; }
// The trick held by a seat believed of the other party, or by one of unknown party.
inline bool bekannt(const Folge& f) { return feindHaelt(f) && f.wBekannterFeind; }
inline bool unbekannt(const Folge& f) { return feindHaelt(f) && !f.wBekannterFeind; }

// Card choices.
inline int haltend(const Folge& f) { return f.kleinsterHaltender(); }
inline int billigNehmen(const Folge& f) { return f.kleinsterSchlagender(); }
inline int geschenk(const Folge& f) { return f.hoechsteNichtSchlagende(); }
inline int wertloster(const Folge& f) { return f.wertlosterTrumpf(); }
inline int fetter(const Folge& f) { return f.fetterTrumpf(); }
inline int fuchs(const Folge& f) { return f.fuchs(); }
inline int dolle(const Folge& f) { return f.dolle(); }
inline int hoechsterTrumpf(const Folge& f) { return f.hoechsterTrumpf(); }
inline int kleinsterAbwurf(const Folge& f) { return f.kleinsterAbwurf(); }
inline int hoechsterAbwurf(const Folge& f) { return f.hoechsterAbwurf(); }

// The class of a trump in the ranking of `Folge::trumpfRang`: 1 small, 2 Bube,
// 3 Zähler, 4 Dame, 5 Fuchs, 6 Dolle, Schwein or Joker; 0 for a plain card or none.
inline int klasse(const Folge& f, int pos) { return pos && f.l.istTrumpf(pos) ? f.trumpfRang(pos) / 64 : 0; }

inline int fetterSonstWertloster(const Folge& f) { return fetter(f) ? fetter(f) : wertloster(f); }

// Keep the Karlchen for the last trick when it can bring the special point.
inline bool karlchenBehalten(const Folge& f) {
    return f.vorletzterStich && f.karlchen() && f.l.erlaubt.size() >= 2 && f.l.spiel.regeln.sopuKarlchen;
}
inline int ohneKarlchen(const Folge& f) { return f.wertlosterTrumpfAusser(f.karlchen()); }

// The least missed trump that does not take the trick, else the least missed.
inline int wertlosterOhneStich(const Folge& f) {
    int beste = 0;
    for (int p : f.l.erlaubt)
        if (f.l.istTrumpf(p) && !f.l.schlaegt(p) && (beste == 0 || f.trumpfRang(p) < f.trumpfRang(beste))) beste = p;
    return beste ? beste : f.wertlosterTrumpf();
}
// A fat trump that leaves the trick to its winner (a gift to the Hochzeit partner).
inline int fetterOhneStich(const Folge& f) {
    int beste = 0;
    for (int p : f.l.erlaubt)
        if (f.l.istTrumpf(p) && f.l.istZaehler(p) && !f.l.schlaegt(p) && klasse(f, p) < 6 &&
            (beste == 0 || f.l.augen(p) > f.l.augen(beste)))
            beste = p;
    return beste;
}

}  // namespace players::folgen

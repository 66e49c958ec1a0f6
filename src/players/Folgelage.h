#pragma once
// What a following seat decides by: the trick, who holds it and who may still take
// it, worked out once per card from the seat's view, and the card choices the follow
// rule tables are written in. The tables try a hundred rules and more per card, so
// their conditions only read what is computed here.
#include <array>
#include <optional>

#include "Lage.h"

namespace players {

class Folge {
public:
    Folge(const Folge&) = delete;
    Folge& operator=(const Folge&) = delete;
    explicit Folge(const Lage& lage);
    Folge(Lage&&) = delete;  // the view keeps a reference

    const Lage& l;

    // --- The trick so far.
    int farbe = 0;  // the suit to follow (effective)
    bool trumpfGefuehrt = false;
    bool gestochen = false;  // a plain lead taken by trump
    Sitz gewinner{1};
    int wKarte = 0;  // the winning card so far
    int wStaerke = 0;
    int augen = 0;                 // in the trick
    bool wFreund = false;          // the winner is believed of the own party
    bool wBekannterFeind = false;  // ... believed of the other party (not just unknown)
    bool wFeind() const { return !wFreund; }
    int gefuehrtWert = 0;  // value flag of the led card

    // --- The seats still to play after this one (0..2), in order.
    int nachAnzahl = 0;
    std::array<Sitz, 2> nach{Sitz(1), Sitz(1)};
    bool freundNach = false;        // a believed partner plays after me
    bool feindKannNehmen = false;   // a non-partner after me may take the trick from its winner
    bool freundKannNehmen = false;  // ... a partner after me may
    bool sicher() const { return !feindKannNehmen; }
    // The seat in Hinterhand (only while this seat is not Hinterhand itself).
    Sitz hh{1};
    bool hhFreund = false;
    bool hhFrei = false;  // known void in the suit led
    bool hhOhneTrumpf = false;

    // --- The game.
    std::optional<Sitz> solist;  // a declared soloist, or a believed silent one
    bool binSolist = false;
    bool gegenSolist = false;  // another seat plays alone against me and my partners
    bool wSolist = false;      // the soloist holds the trick
    bool klaerstich = false;   // this trick may find the Hochzeit partner
    bool binHochzeiter = false;
    bool ersteRunde = false;  // the plain suit led goes round for the first time
    bool letzterStich = false;
    bool vorletzterStich = false;

    // --- The preparation of stechen_oder_abwerfen, as the lead chain computes it: the
    // own highest and next trumps, the lowest plain card and the own top strength.
    // In the normal game the own lowest trump, a Kreuz-Bube right below an own
    // Karo-Dame, counts as that Dame, so cheap ruffs spend the Dame and keep the Karlchen.
    void stechenVorbereiten();
    int eigenerHoechster = 0;
    int eigenerZweiter = 0;
    int kleinsteFarbkarte = 0;
    int hoechsteEigeneStaerke = 0;
    bool karlchenAlsDame = false;

    // --- The own cards.
    int anzahlFarbe = 0;  // own cards of the suit led
    int trumpfAnzahl = 0;
    bool hatFarbkarte = false;  // a plain card among the legal ones
    bool kannSchlagen = false;  // a legal card beats the winner

    // --- Threats to a card, as if it were the best card of the trick.
    // Could seat x, still to play, take the trick from a card of this suit and strength?
    // A seat not known void is expected to follow, unless too few cards of the suit are out.
    bool kannNehmen(Sitz x, int kartenfarbe, int staerke) const;
    // Played now, the card wins and no non-partner after me may take the trick from it.
    bool haelt(int pos) const;
    // ... nobody after me at all, partner or not.
    bool nagelt(int pos) const;
    // x is known void in the suit led, or fewer cards of it are out than seats after me.
    bool vielleichtFrei(Sitz x) const;

    // --- Card choices (0 when there is none).
    int kleinsteDerFarbe() const;
    int hoechsteDerFarbe() const;
    // The card of the suit led with most Augen to give; a Zehn before the As, which may
    // still win a trick of its own.
    int schmierkarte() const;
    int kleinsterSchlagender() const;
    // The cheapest card that wins and holds against every non-partner after me.
    int kleinsterHaltender() const;
    // Own cards of the suit led at least as strong as the card, the card included.
    int gleichOderHoeher(int pos) const;
    // The highest own card that leaves the trick to its winner (a gift to it).
    int hoechsteNichtSchlagende() const;

    // Trumps by their use: the own trumps ranked from the one least missed on up.
    // Small trumps of few Augen first, then the Buben (the Karlchen last), the Zähler
    // below the Damen, the Damen, the Fuchs, then Dolle, Schwein and Joker.
    int trumpfRang(int pos) const;
    int wertlosterTrumpf() const;  // least missed trump
    int wertlosterTrumpfAusser(int behalten) const;
    int wertlosterSchlagenderTrumpf() const;  // least missed trump that wins
    int wertlosterHaltenderTrumpf() const;    // ... that wins and holds
    // The small trump of most Augen (Fuchs, the trump Zehn): a fat trump to give.
    int fetterTrumpf() const;
    int fetterTrumpfDerHaelt() const;
    int hoechsterTrumpf() const;
    int fuchs() const;
    int dolle() const;
    int karlchen() const;

    // Discards: the least valuable plain card (a lone card of a suit first, so the suit
    // becomes void), and the plain card of most Augen.
    int kleinsterAbwurf() const;
    int hoechsterAbwurf() const;
    // A plain card of the suit with a single card left, so that suit becomes void.
    int blankeFarbkarte() const;

private:
    // Choices the tables ask for again and again, worked out once.
    enum Merker { Haltender, Schlagender, Wertloser, HaltenderTrumpf, FetterHaelt, Abwurf, Blank, AnzahlMerker };
    template <class F>
    int gemerkt(Merker m, F rechnen) const {
        int& w = merker_[static_cast<std::size_t>(m)];
        if (w < 0) w = rechnen();
        return w;
    }
    mutable std::array<int, AnzahlMerker> merker_{-1, -1, -1, -1, -1, -1, -1};
};

inline const Lage& lageVon(const Folge& f) { return f.l; }

}  // namespace players

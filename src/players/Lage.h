#pragma once
// One seat's view of the game at the moment it chooses a card: its hand and legal
// cards, the trick so far, the per-move values and its knowledge, with the card
// choices the rule books are written in ("Kleinste", "Höchste", ...).
#include <array>
#include <optional>

#include "Kartenliste.h"
#include "Melder.h"
#include "Tischwissen.h"
#include "engine/Zufall.h"

namespace players {

// Values computed before every card of a computer seat.
struct Zugwerte {
    int truempfeImSpiel = 0;           // trumps not yet played, all hands
    int eigeneTruempfe = 0;
    int fremdeTruempfe = 0;            // held by the other three seats
    int hoechsterTrumpfImSpiel = 0;    // strengths
    int hoechsterEigenerTrumpf = 0;
    int hoechsterFremderTrumpf = 0;
    int fremdeDollen = 0;              // Dollen still out in other hands
    bool jokerFremd = false;           // the Joker is still out in another hand
    std::array<int, AnzahlFarben> hoechsteOffene{};  // per effective suit, all hands
    std::array<int, AnzahlFarben> hoechsteFremde{};  // per effective suit, other hands
    std::array<int, AnzahlFarben> fremdeAnzahl{};    // cards still out in other hands
    std::array<int, AnzahlFarben> eigeneBeste{};     // own best card (deck position)
    std::array<int, AnzahlFarben> eigeneAnzahl{};
    int langeFarbe = 0;                // the long suit of a fleischlos solo
    engine::ProSitz<int> karten;       // cards in each hand
};

class Lage {
public:
    Lage(const Spiel& spiel, const Tischwissen& wissen, Sitz ich, const Melder& melder,
         engine::Zufallsquelle& zufall);

    const Spiel& spiel;
    const Tischwissen& wissen;
    const Sitz ich;
    const Melder& melder;
    engine::Zufallsquelle& zufall;
    const int trumpf;                  // the game type
    Zugwerte werte;

    Kartenliste hand;                  // own cards in hand (deck positions)
    Kartenliste erlaubt;               // the legal ones

    // --- The trick so far (anzahl 0 when leading).
    int anzahl = 0;
    int zuBedienen = 0;
    bool trumpfGefuehrt = false;
    int fuehrPlatz = 0;
    std::optional<Sitz> gewinner;      // provisional winner
    int gewinnerKarte = 0;
    bool gestochen = false;            // a plain lead taken by trump
    int augenImStich = 0;
    bool zweithand() const { return anzahl == 1; }
    bool dritthand() const { return anzahl == 2; }
    bool hinterhand() const { return anzahl == 3; }
    // Seats still to play after this one, in order (asked at most cards, so not on the heap).
    struct Sitzfolge {
        std::array<Sitz, 3> sitze{Sitz(1), Sitz(1), Sitz(1)};
        std::size_t anzahl = 0;
        const Sitz* begin() const { return sitze.data(); }
        const Sitz* end() const { return sitze.data() + anzahl; }
    };
    Sitzfolge nachMir() const;
    Sitz hinterhandSitz() const { return spiel.stich.aufspieler.plus(3); }
    Sitz dritthandSitz() const { return spiel.stich.aufspieler.plus(2); }

    // --- Cards.
    const engine::Kartenposition& karte(int pos) const { return spiel.deck[pos]; }
    bool istTrumpf(int pos) const { return spiel.deck[pos].farbe == trumpf; }
    // Strength as it will count: a known Schwein counts raised before it is played.
    int staerke(int pos) const {
        return pos == erhoeht_[0] || pos == erhoeht_[1] ? engine::StaerkeJoker : spiel.deck[pos].staerke;
    }
    int augen(int pos) const { return spiel.deck[pos].augen; }
    bool istDolle(int pos) const;
    // Special points count for neither card in a solo (known to the soloist when silent).
    bool istFuchs(int pos) const;      // a Karo-As as trump that is not a Schwein
    bool istKarlchen(int pos) const;   // Kreuz-Bube as trump
    bool sonderpunkteMoeglich() const { return !spiel.solo && eigenePartei() != engine::ParteiSolo; }
    bool istSchwein(int pos) const;
    bool istFigur(int pos) const;      // Dame or Bube
    bool istZaehler(int pos) const { return augen(pos) > 9; }
    // Number of the card within the own hand, 1..12, as the texts count them.
    int handNummer(int pos) const { return pos - spiel.deck.erstePosition(ich) + 1; }
    int anzahlInHand(int farbe) const { return werte.eigeneAnzahl[static_cast<std::size_t>(farbe)]; }
    bool nurTrumpf() const { return werte.eigeneTruempfe == static_cast<int>(hand.size()); }
    bool letzterStich() const { return hand.size() == 1; }

    // Would the card win the trick if played now? (Without branches: asked of every card.)
    bool schlaegt(int pos) const {
        if (anzahl == 0) return true;
        const auto& bester = karte(gewinnerKarte);
        const int f = karte(pos).farbe;
        const int s = staerke(pos);
        const bool sticht = (f == trumpf) & (bester.farbe != trumpf);
        const bool hoeher = (s > bester.staerke) |
                            ((s == bester.staerke) & (s == engine::StaerkeDolle) & !spiel.regeln.herzZehn);
        return sticht | ((f == bester.farbe) & hoeher);
    }
    bool kannSchlagen() const;
    // Is there still a card out in other hands that beats `staerke` in the suit?
    bool hoehereDraussen(int farbe, int staerke) const;
    // The own best card of a plain suit when no card out in other hands beats it, else 0.
    int stehende(int farbe) const;
    // The highest card of the suit to follow is already in the trick.
    bool hoechsteLiegt() const;
    // Could seat x, still to play, take the trick from its present winner?
    bool kannUebernehmen(Sitz x) const;
    // ... from a best card of that suit and strength (as if it were in the trick).
    bool kannUebernehmen(Sitz x, int farbe, int staerke) const;
    // Played now, the card would win and nobody after could take the trick from it.
    bool nagelt(int pos) const;
    // Nobody after this seat can take the trick any more.
    bool genagelt() const;

    // --- Knowledge from the own point of view.
    int glaube(Sitz x) const { return wissen.glaube(x, ich); }
    int eigenePartei() const { return wissen.glaube(ich, ich); }
    bool freund(Sitz x) const {
        if (x == ich) return true;
        const int e = eigenePartei();
        const int g = glaube(x);
        if (e == engine::ParteiUnbekannt || g == engine::ParteiUnbekannt || e == engine::ParteiSolo ||
            g == engine::ParteiSolo)
            return false;
        return (e == engine::ParteiKontra) == (g == engine::ParteiKontra);
    }
    bool feind(Sitz x) const { return x != ich && !freund(x); }
    // Another seat believed in a party that is not the own one.
    bool bekannterFeind(Sitz x) const { return feind(x) && glaube(x) != engine::ParteiUnbekannt; }
    // Known (or certainly) void in the suit.
    bool frei(Sitz x, int farbe) const {
        const auto f = static_cast<std::size_t>(farbe);
        return wissen.farbeFrei[x][f][ich] || werte.fremdeAnzahl[f] == 0;
    }
    // Known (or certainly) without trump.
    bool ohneTrumpf(Sitz x) const { return wissen.keinTrumpf[x][ich] || werte.fremdeTruempfe == 0; }
    std::optional<Sitz> solist() const { return solist_; }  // declared or believed soloist
    // Whether the own trumps could pull the others' at all (with the confidence asked);
    // when not, the solo estimate of the running game says they cannot.
    bool abziehenDenkbar(double sicherheit) const;
    bool hochzeitsKlaerstich() const;            // this trick may find the Hochzeit partner
    bool binHochzeiter() const { return spiel.hochzeiter == ich; }
    int angespielt(int farbe) const { return wissen.angespielt[static_cast<std::size_t>(farbe)]; }

    // --- Choices (0 when there is no such card).
    int kleinsteAbwurf() const;      // least valuable card to throw away
    int hoechsteAbwurf() const;      // the card of most Augen to give (buttering)
    int kleinsteDerFarbe(int farbe) const;
    int hoechsteDerFarbe(int farbe) const;
    int kleinsterSchlagender() const;            // cheapest card that wins the trick
    int praktWertkleinsterTrumpf() const;        // trump of least use and few Augen
    int praktWerthoechsterTrumpf() const;        // the small trump of most Augen
    int hoechsterTrumpf() const;
    int zufaellige(const Kartenliste& karten) const;
    // Own cards matching a test, legal ones only.
    template <class F>
    Kartenliste auswahl(F&& test) const {
        Kartenliste v;
        for (int p : erlaubt)
            if (test(p)) v.push_back(p);
        return v;
    }
    // The first legal card passing the test with the smallest key, 0 if none: a choice
    // without building the list of candidates.
    template <class Test, class Schluessel>
    int kleinsteErlaubte(Test&& test, Schluessel&& schluessel) const {
        return kleinsteNach(erlaubt, test, schluessel);
    }
    // Own hand in display order: trumps from the top, then Kreuz, Pik, Herz, Karo.
    Kartenliste sortierteHand() const;

    // The Schweine holder is known to every seat (announced, seat 1's own, or one played).
    bool schweinOeffentlich() const;

    // A rule whose bluff counts on the first trick's random number sets it here; the
    // rule book writes it to the table's knowledge with the card.
    mutable std::optional<int> neueZufallszahl;

private:
    int staerkeBerechnen(int pos, bool schweinOffen) const;
    void werteBerechnen();
    std::optional<Sitz> solistSuchen() const;

    // Asked by most rules; the knowledge does not change while a seat decides.
    std::optional<Sitz> solist_;

    // Only a Schwein or a Supersau counts otherwise than the deck says: the positions of
    // such raised cards (at most the two trump Asse), -1 where there is none.
    std::array<int, 2> erhoeht_{-1, -1};
};

}  // namespace players

// SoloBewerten, SicheresSolo, SoloPruefen and the Hochzeit kind.
#include "Solo.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstdint>
#include <span>
#include <vector>

#include "Bits.h"
#include "Kartenliste.h"
#include "Kontra.h"
#include "Regeltabelle.h"
#include "Texte.h"
#include "engine/Stichspiel.h"
#include "engine/Vorbehalte.h"

namespace players {

using namespace engine;

namespace {

constexpr int KaroAs = kartencode(Karo, As);

// Counts the elements passing a test, without a branch on it: which cards of a hand pass
// follows no pattern a processor could guess.
template <class Bereich, class Test>
int zaehleWenn(const Bereich& bereich, const Test& test) {
    int n = 0;
    for (const auto& x : bereich) n += test(x) ? 1 : 0;
    return n;
}

bool laufend(const Spiel& spiel) {
    const Spielphase p = spiel.ablauf.phase;
    return p == Spielphase::Kartenspiel || p == Spielphase::StichVoll || p == Spielphase::Spielende;
}

// The own hand in hand, as positions.
Kartenliste eigeneKarten(const Spiel& spiel, Sitz sitz) {
    Kartenliste hand;
    for (int p = spiel.deck.erstePosition(sitz); p <= spiel.deck.letztePosition(sitz); ++p)
        if (spiel.deck[p].status == InHand) hand.push_back(p);
    return hand;
}

// The seat's own positions of the deck with the strengths of a kind; read by position
// like the deck, without copying the other hands.
class Handdeck {
public:
    Handdeck(const Deck& deck, Sitz sitz) : erste_(deck.erstePosition(sitz)) {
        for (int p = erste_; p <= deck.letztePosition(sitz); ++p) karten_[index(p)] = deck[p];
    }
    const Kartenposition& operator[](int pos) const { return karten_[index(pos)]; }
    Kartenposition& operator[](int pos) { return karten_[index(pos)]; }

private:
    std::size_t index(int pos) const { return static_cast<std::size_t>(pos - erste_); }
    int erste_;
    std::array<Kartenposition, MaxPositionen / 4> karten_{};
};

// The own cards with the strengths of a kind. The running game keeps its own; for another
// kind the own Schweine and an own Supersau rank at the top (another seat's are unknown).
Handdeck deckFuer(const Spiel& spiel, Sitz sitz, const Kartenliste& hand, int art) {
    Handdeck d(spiel.deck, sitz);
    if (laufend(spiel) && art == spiel.spieltyp) return d;
    for (int p = spiel.deck.erstePosition(sitz); p <= spiel.deck.letztePosition(sitz); ++p) {
        if (d[p].code == 0) continue;
        const Rangierung r = rangierung(d[p].code, art);
        d[p].farbe = r.farbe;
        d[p].staerke = r.staerke;
    }
    const Regeln& r = spiel.regeln;
    auto obenauf = [&](int code) {
        if (zaehleWenn(hand, [&](int p) { return d[p].code == code; }) < 2) return false;
        for (int p : hand)
            if (d[p].code == code) d[p].staerke = StaerkeJoker;
        return true;
    };
    bool schweine = false;
    if (art == Normalspiel && r.zweiSchweine && (r.schweineBTrSolo || hatBeideKreuzDamen(spiel, sitz)))
        schweine = obenauf(KaroAs);
    if (!schweine && istFarbspiel(art) && r.supersau && r.zweiSchweine) obenauf(kartencode(art, As));
    return d;
}

double binom(int n, int k) {
    if (k < 0 || k > n) return 0;
    double b = 1;
    for (int i = 1; i <= k; ++i) b = b * (n - k + i) / i;
    return b;
}

// An own card led beats an equal one of another hand, except a Dolle where the second beats the first.
bool schlaegtGefuehrt(int eigene, int fremde, const Regeln& r) {
    return eigene > fremde || (eigene == fremde && !(eigene == StaerkeDolle && !r.herzZehn));
}

}  // namespace

namespace {
int abziehrundenRechnen(int fremde, const std::array<int, 3>& n, double sicherheit) {
    const int gesamt = n[0] + n[1] + n[2];
    const double alle = binom(gesamt, fremde);
    for (int m = 1; m < fremde; ++m) {
        // Share of the spreads in which no hand holds more than m trumps.
        double passend = 0;
        for (int a = 0; a <= std::min(m, n[0]); ++a)
            for (int b = 0; b <= std::min(m, n[1]); ++b) {
                const int c = fremde - a - b;
                if (c >= 0 && c <= std::min(m, n[2])) passend += binom(n[0], a) * binom(n[1], b) * binom(n[2], c);
            }
        if (passend / alle >= sicherheit) return m;
    }
    return fremde;
}

// The answers for the two confidences the players ask with, remembered: the solo
// estimate asks them again and again, from several threads during a search.
constexpr int MaxHand = 12;
constexpr int MaxFremde = 3 * MaxHand;
constexpr std::size_t Eintraege = (MaxFremde + 1) * (MaxHand + 1) * (MaxHand + 1) * (MaxHand + 1);
struct Gedaechtnis {
    // -1: not yet computed.
    Gedaechtnis() {
        for (auto& e : runden) e.store(-1, std::memory_order_relaxed);
    }
    std::array<std::atomic<signed char>, Eintraege> runden;
};

Gedaechtnis* gedaechtnisFuer(double sicherheit) {
    static Gedaechtnis solo;
    static Gedaechtnis limit;
    if (sicherheit == AbziehenSolo) return &solo;
    if (sicherheit == AbziehenLimit) return &limit;
    return nullptr;
}
}  // namespace

int abziehrunden(int fremde, const std::array<int, 3>& n, double sicherheit) {
    const int gesamt = n[0] + n[1] + n[2];
    if (fremde <= 0) return 0;
    if (fremde > gesamt) return fremde;
    const bool imRahmen = std::all_of(n.begin(), n.end(), [](int h) { return h >= 0 && h <= MaxHand; });
    Gedaechtnis* g = imRahmen ? gedaechtnisFuer(sicherheit) : nullptr;
    if (!g) return abziehrundenRechnen(fremde, n, sicherheit);
    const auto i = static_cast<std::size_t>(((fremde * (MaxHand + 1) + n[0]) * (MaxHand + 1) + n[1]) * (MaxHand + 1) + n[2]);
    signed char bekannt = g->runden[i].load(std::memory_order_relaxed);
    if (bekannt < 0) {
        bekannt = static_cast<signed char>(abziehrundenRechnen(fremde, n, sicherheit));
        g->runden[i].store(bekannt, std::memory_order_relaxed);
    }
    return bekannt;
}

namespace {

// Suit and strength of a card as deckFuer would give them, for the cards in hand only
// and without copying the deck: the estimate runs for every kind at every deal.
struct Solokarte {
    int farbe;
    int staerke;
    int augen;
};

// The own cards one by one, the other hands only as far as the estimate asks.
struct Solohaende {
    std::array<Solokarte, MaxPositionen / 4> eigene;
    std::size_t nEigene = 0;
    std::array<int, 3> groessen{};  // the other hands in seat order after `sitz`
    int fremdeTruempfe = 0;
    int hoechsterFremder = 0;              // strength of their best trump
    std::array<int, 9> besteFremde{};      // their best strength per suit
    std::array<int, 12> fettNachAugen{};   // their plain cards counted by Augen
};

constexpr auto augenJeCode = [] {
    std::array<int, 26> a{};
    for (int code = 1; code <= 25; ++code) a[static_cast<std::size_t>(code)] = istJoker(code) ? 0 : augenVonRang(rangVonCode(code));
    return a;
}();
int augenVonCode(int code) { return augenJeCode[static_cast<std::size_t>(code)]; }

inline void fremdeKarteZaehlen(Solohaende& h, int art, int farbe, int staerke, int augen, int anzahl) {
    auto& b = h.besteFremde[static_cast<std::size_t>(farbe)];
    b = std::max(b, staerke);
    const bool trumpf = farbe == art;
    h.fremdeTruempfe += trumpf ? anzahl : 0;
    h.hoechsterFremder = std::max(h.hoechsterFremder, trumpf ? staerke : 0);
    h.fettNachAugen[static_cast<std::size_t>(augen)] += trumpf ? 0 : anzahl;
}

// The running game's kind: the deck knows every card's suit and strength.
Solohaende solohaendeDesSpiels(const Spiel& spiel, Sitz sitz, int art) {
    Solohaende h;
    const Deck& d = spiel.deck;
    const int groesse = d.handgroesse();
    for (int i = 0; i <= 3; ++i) {
        const Sitz s = sitz.plus(i);
        const int erste = d.erstePosition(s);
        for (int p = erste; p < erste + groesse; ++p) {
            const Kartenposition& k = d[p];
            const bool da = k.status == InHand;
            if (i == 0) {
                if (da) h.eigene[h.nEigene++] = Solokarte{k.farbe, k.staerke, k.augen};
                continue;
            }
            // A played card counts nothing, without a branch on it.
            h.groessen[static_cast<std::size_t>(i - 1)] += da;
            fremdeKarteZaehlen(h, art, k.farbe, da ? k.staerke : 0, k.augen, da);
        }
    }
    return h;
}

}  // namespace

Solokarten solokarten(const Spiel& spiel, Sitz sitz) {
    Solokarten c;
    const Deck& d = spiel.deck;
    const int groesse = d.handgroesse();
    for (int i = 0; i <= 3; ++i) {
        const int erste = d.erstePosition(sitz.plus(i));
        for (int p = erste; p < erste + groesse; ++p) {
            const Kartenposition& k = d[p];
            if (k.status != InHand) continue;
            if (i == 0) {
                c.eigene[c.nEigene++] = k.code;
            } else {
                ++c.groessen[static_cast<std::size_t>(i - 1)];
                ++c.fremdeJeCode[static_cast<std::size_t>(k.code)];
            }
        }
    }
    // The codes held once or more and twice, as bits: a deck holds no code three times.
    std::array<int, 26> eigeneJeCode{};
    for (std::size_t i = 0; i < c.nEigene; ++i) ++eigeneJeCode[static_cast<std::size_t>(c.eigene[i])];
    for (std::size_t code = 1; code < eigeneJeCode.size(); ++code) {
        for (std::size_t n = 0; n < 2; ++n) {
            c.eigeneCodes[n] |= static_cast<std::uint32_t>(eigeneJeCode[code] > static_cast<int>(n)) << code;
            c.fremdeCodes[n] |= static_cast<std::uint32_t>(c.fremdeJeCode[code] > static_cast<int>(n)) << code;
        }
    }
    c.beideKreuzDamen = hatBeideKreuzDamen(spiel, sitz);
    return c;
}

namespace {

// Another kind than the running game's: suits and strengths from the codes, the own
// Schweine and an own Supersau at the top (another seat's are unknown).
Solohaende solohaendeDerArt(const Solokarten& c, const Regeln& regeln, int art) {
    Solohaende h;
    h.groessen = c.groessen;
    for (std::size_t i = 0; i < c.nEigene; ++i) {
        const int code = c.eigene[i];
        const Rangierung rang = rangierung(code, art);
        h.eigene[i] = Solokarte{rang.farbe, rang.staerke, augenVonCode(code)};
    }
    h.nEigene = c.nEigene;
    // Only the codes the others hold, walked by their bits.
    for (std::uint32_t m = c.fremdeCodes[0]; m != 0; m &= m - 1) {
        const int code = std::countr_zero(m);
        const int n = c.fremdeJeCode[static_cast<std::size_t>(code)];
        const Rangierung rang = rangierung(code, art);
        fremdeKarteZaehlen(h, art, rang.farbe, rang.staerke, augenVonCode(code), n);
    }
    auto obenauf = [&](int code) {
        const auto ende = c.eigene.begin() + static_cast<std::ptrdiff_t>(c.nEigene);
        if (std::count(c.eigene.begin(), ende, code) < 2) return false;
        for (std::size_t i = 0; i < c.nEigene; ++i)
            if (c.eigene[i] == code) h.eigene[i].staerke = StaerkeJoker;
        return true;
    };
    bool schweine = false;
    if (art == Normalspiel && regeln.zweiSchweine && (regeln.schweineBTrSolo || c.beideKreuzDamen))
        schweine = obenauf(KaroAs);
    if (!schweine && istFarbspiel(art) && regeln.supersau && regeln.zweiSchweine) obenauf(kartencode(art, As));
    return h;
}

Soloschaetzung schaetzen(const Solohaende& h, const Regeln& r, int art, bool amAufspiel, double sicherheit);

}  // namespace

int truempfeIn(const Spiel& spiel, Sitz sitz, int art) {
    const Deck& d = spiel.deck;
    const bool eigenes = laufend(spiel) && art == spiel.spieltyp;
    int n = 0;
    for (int p = d.erstePosition(sitz); p <= d.letztePosition(sitz); ++p)
        if (d[p].status == InHand) n += (eigenes ? d[p].farbe : rangierung(d[p].code, art).farbe) == art;
    return n;
}

bool spieltZuerstAus(const Spiel& spiel, Sitz sitz) { return sitz == spiel.vorhand || spiel.regeln.vhSolo; }

Soloschaetzung soloSchaetzen(const Spiel& spiel, Sitz sitz, int art, bool amAufspiel, double sicherheit) {
    if (laufend(spiel) && art == spiel.spieltyp)
        return schaetzen(solohaendeDesSpiels(spiel, sitz, art), spiel.regeln, art, amAufspiel, sicherheit);
    return soloSchaetzen(solokarten(spiel, sitz), spiel.regeln, art, amAufspiel, sicherheit);
}

namespace {
// Per kind the codes that are trump in it, as bits.
const std::array<std::uint32_t, AnzahlSpielarten + 1> trumpfcodes = [] {
    std::array<std::uint32_t, AnzahlSpielarten + 1> t{};
    for (int art = 1; art <= AnzahlSpielarten; ++art)
        for (int code = 1; code <= 25; ++code)
            if (rangierung(code, art).farbe == art) t[static_cast<std::size_t>(art)] |= 1u << code;
    return t;
}();
}  // namespace

Soloschaetzung soloSchaetzen(const Solokarten& karten, const Regeln& regeln, int art, bool amAufspiel,
                             double sicherheit) {
    if (art != SoloOhneTrumpf && art >= 1 && art <= AnzahlSpielarten) {
        const std::uint32_t maske = trumpfcodes[static_cast<std::size_t>(art)];
        const int eigene = anzahlBits(karten.eigeneCodes[0] & maske) + anzahlBits(karten.eigeneCodes[1] & maske);
        const int fremde = anzahlBits(karten.fremdeCodes[0] & maske) + anzahlBits(karten.fremdeCodes[1] & maske);
        if (!abziehenDenkbar(eigene, fremde, karten.groessen, sicherheit))
            return {false, false, static_cast<int>(karten.nEigene), NichtSicher};
    }
    return schaetzen(solohaendeDerArt(karten, regeln, art), regeln, art, amAufspiel, sicherheit);
}

namespace {
Soloschaetzung schaetzen(const Solohaende& h, const Regeln& r, int art, bool amAufspiel, double sicherheit) {
    const auto eigeneKarten = std::span(h.eigene).first(h.nEigene);

    Soloschaetzung e;
    if (art == SoloOhneTrumpf) {
        e.abziehen = e.sicher = true;
    } else {
        const int oben = zaehleWenn(eigeneKarten, [&](const Solokarte& k) {
            return k.farbe == art && schlaegtGefuehrt(k.staerke, h.hoechsterFremder, r);
        });
        e.sicher = oben >= h.fremdeTruempfe;
        e.abziehen = oben >= abziehrunden(h.fremdeTruempfe, h.groessen, sicherheit);
    }
    if (!e.abziehen || !amAufspiel) {
        e.stiche = static_cast<int>(h.nEigene);
        e.augen = NichtSicher;
        return e;
    }

    // Trumps pulled: a side card loses when another hand holds a stronger one of its suit
    // (or an equal second Dolle); the others' best card per suit tells.
    int verlierer = 0;
    for (const Solokarte& k : eigeneKarten) {
        if (k.farbe == art) continue;
        const int fremd = h.besteFremde[static_cast<std::size_t>(k.farbe)];
        const bool geschlagen = fremd > 0 && !schlaegtGefuehrt(k.staerke, fremd, r);
        if (!geschlagen) continue;
        ++verlierer;
        e.augen += k.augen;
    }
    // Into each lost trick the others throw their fattest plain cards.
    int zuGeben = 3 * verlierer;
    for (int a = 11; a >= 0 && zuGeben > 0; --a) {
        const int n = std::min(zuGeben, h.fettNachAugen[static_cast<std::size_t>(a)]);
        e.augen += n * a;
        zuGeben -= n;
    }
    e.stiche = verlierer;
    return e;
}
}  // namespace

Soloarten soloartenAusRegeln(const Regeln& regeln) {
    Soloarten arten{};
    for (int art = 1; art <= AnzahlSpielarten; ++art) arten[static_cast<std::size_t>(art)] = soloErlaubt(regeln, art);
    return arten;
}

int soloBewerten(const Spiel& spiel, const Solokarten& karten, Sitz sitz, int art, Solotabellen& tabellen) {
    const bool zuerst = spieltZuerstAus(spiel, sitz);
    const Soloschaetzung e = laufend(spiel) && art == spiel.spieltyp ? soloSchaetzen(spiel, sitz, art, zuerst)
                                                                     : soloSchaetzen(karten, spiel.regeln, art, zuerst);
    const auto i = static_cast<std::size_t>(art);
    tabellen.stichVerlust[sitz][i] = e.stiche;
    tabellen.augenVerlust[sitz][i] = e.augen;
    return e.augen;
}

int sicheresSolo(const Spiel& spiel, Sitz sitz, const Soloarten& arten, Solotabellen& tabellen) {
    if (!spieltZuerstAus(spiel, sitz)) {
        // Without the lead every estimate loses the whole hand, whatever it holds: no kind is safe.
        const int karten = static_cast<int>(eigeneKarten(spiel, sitz).size());
        for (std::size_t i = 1; i <= AnzahlSpielarten; ++i) {
            tabellen.stichVerlust[sitz][i] = karten;
            tabellen.augenVerlust[sitz][i] = arten[i] ? NichtSicher : NieSicher;
        }
        return 0;
    }
    ProSpielart wert{};
    const Solokarten karten = solokarten(spiel, sitz);
    for (int art = 1; art <= AnzahlSpielarten; ++art) {
        const auto i = static_cast<std::size_t>(art);
        wert[i] = soloBewerten(spiel, karten, sitz, art, tabellen);
        if (!arten[i]) wert[i] = tabellen.augenVerlust[sitz][i] = NieSicher;
    }
    int beste = 0;
    for (int art = 1; art <= AnzahlSpielarten; ++art)
        if (wert[static_cast<std::size_t>(art)] < SicherUnter &&
            (beste == 0 || wert[static_cast<std::size_t>(art)] < wert[static_cast<std::size_t>(beste)]))
            beste = art;
    if (beste == 0 || !istFarbspiel(beste)) return beste;
    // Among the colours of equal loss the most trumps; Herz when it ties on both.
    int truempfe = truempfeIn(spiel, sitz, beste);
    for (int art = beste + 1; art <= Kreuz; ++art) {
        if (wert[static_cast<std::size_t>(art)] != wert[static_cast<std::size_t>(beste)]) continue;
        const int t = truempfeIn(spiel, sitz, art);
        if (t > truempfe || (t == truempfe && art == HerzSolo)) {
            beste = art;
            truempfe = t;
        }
    }
    return beste;
}

namespace {

// Steps 2 to 6: a colour with many trumps, its Zehn and As, high trumps and no blank side card.
int unsichereFarbe(const Spiel& spiel, Sitz sitz, const Kartenliste& hand, const Soloarten& arten,
                   Solotabellen& tabellen, bool& still) {
    const Deck& roh = spiel.deck;
    bool doppelteZehn = false;
    for (int f = Karo; f <= Kreuz; ++f)
        doppelteZehn = doppelteZehn || zaehleWenn(hand, [&](int p) {
                                           return roh[p].code == kartencode(f, Zehn);
                                       }) == 2;
    if (!doppelteZehn) return 0;

    // Damen and Buben out of the way, each suit counts its As, Zehn, König and Neun.
    const Handdeck ohneFiguren = deckFuer(spiel, sitz, hand, DamenBubenSolo);
    int farbe = 0;
    int meiste = -1;
    for (int f = Karo; f <= Kreuz; ++f) {
        const int n =
            zaehleWenn(hand, [&](int p) { return ohneFiguren[p].farbe == f; });
        if (n > meiste) {
            meiste = n;
            farbe = f;
        }
    }
    if (!arten[static_cast<std::size_t>(farbe)]) return 0;

    const Handdeck d = deckFuer(spiel, sitz, hand, farbe);
    int truempfe = 0;
    int zehnUndAs = 0;
    for (int p : hand) {
        if (d[p].farbe != farbe) continue;
        ++truempfe;
        if (d[p].wert == WertZehn || d[p].wert == WertAs) ++zehnUndAs;
    }
    if (zehnUndAs <= 2 || truempfe <= 9) return 0;
    if (farbe == Normalspiel && hatBeideKreuzDamen(spiel, sitz)) {
        tabellen.stillesSoloSpieler = sitz;
        still = true;
        return farbe;
    }
    const bool herz = farbe == HerzSolo;
    const int hochGrenze = herz ? 65536 : 262144;
    if (zaehleWenn(hand, [&](int p) { return d[p].farbe == farbe && d[p].staerke > hochGrenze; }) < 3)
        return 0;
    const int tiefGrenze = herz ? 16 : 32;
    if (zaehleWenn(hand, [&](int p) {
            return farbeVonCode(d[p].code) == farbe && d[p].farbe == farbe && d[p].staerke < tiefGrenze;
        }) >= 4)
        return 0;
    if (spieltZuerstAus(spiel, sitz)) {
        // A blank side card that is no As is lost at once and opens the suit for the others.
        for (int f = Karo; f <= Kreuz; ++f) {
            if (f == farbe) continue;
            int n = 0;
            int einzige = 0;
            for (int p : hand)
                if (d[p].farbe == f) {
                    ++n;
                    einzige = p;
                }
            if (n == 1 && d[einzige].wert != WertAs) return 0;
        }
    }
    return farbe;
}

template <class Karten, class Test>
int zaehle(const Karten& d, const Kartenliste& hand, const Test& test) {
    return zaehleWenn(hand, [&](int p) { return test(d[p]); });
}

bool figurenSolo(const Spiel& spiel, const Kartenliste& hand, int rang, bool zuerst) {
    const Deck& d = spiel.deck;
    const int figuren = zaehle(d, hand, [&](const Kartenposition& k) { return !istJoker(k.code) && rangVonCode(k.code) == rang; });
    const int asse = zaehle(d, hand, [](const Kartenposition& k) { return k.wert == WertAs; });
    return asse >= 4 && figuren >= (zuerst ? 5 : 6);
}

// Step 10: aces and tens, else points for suits headed by As-As-Zehn, As-As, a single As.
bool fleischlos(const Spiel& spiel, Sitz sitz, const Kartenliste& hand, bool zuerst) {
    const Handdeck d = deckFuer(spiel, sitz, hand, SoloOhneTrumpf);
    // One pass over the hand: per suit its cards, Asse, Zehnen and strength.
    std::array<int, Kreuz + 1> n{};
    std::array<int, Kreuz + 1> asseDerFarbe{};
    std::array<int, Kreuz + 1> zehnenDerFarbe{};
    std::array<int, Kreuz + 1> summe{};
    for (int p : hand) {
        const Kartenposition& k = d[p];
        const auto f = static_cast<std::size_t>(std::clamp(k.farbe, 0, static_cast<int>(Kreuz)));
        ++n[f];
        asseDerFarbe[f] += k.wert == WertAs;
        zehnenDerFarbe[f] += k.wert == WertZehn;
        summe[f] += k.staerke;
    }
    int asse = 0;
    int zehnen = 0;
    for (std::size_t f = 0; f <= Kreuz; ++f) {
        asse += asseDerFarbe[f];
        zehnen += zehnenDerFarbe[f];
    }
    if (asse + zehnen > 9 && asse >= 6) return true;
    bool asInJederFarbe = true;
    bool keinSingle = true;
    for (std::size_t f = Karo; f <= Kreuz; ++f) {
        asInJederFarbe = asInJederFarbe && asseDerFarbe[f] > 0;
        keinSingle = keinSingle && n[f] != 1;
    }
    if (!zuerst && !(asInJederFarbe && keinSingle)) return false;
    const bool beide = asInJederFarbe && keinSingle;
    int punkte = 0;
    int loseZehnen = 0;
    for (std::size_t f = Karo; f <= Kreuz; ++f) {
        if (summe[f] >= 2304) {
            punkte += n[f];
        } else if (summe[f] >= 2048) {
            punkte += beide && summe[f] >= 2176 && n[f] >= 6 ? n[f] - 3 : 2;
        } else {
            if (summe[f] >= 1024) punkte += 1;
            loseZehnen += zehnenDerFarbe[f];
        }
    }
    return punkte >= 9 || (punkte == 8 && loseZehnen == 0);
}

int langeFarbe(const Spiel& spiel, Sitz sitz, const Kartenliste& hand) {
    const Handdeck d = deckFuer(spiel, sitz, hand, SoloOhneTrumpf);
    int farbe = 0;
    int meiste = 0;
    for (int f = Karo; f <= Kreuz; ++f) {
        const int n = zaehle(d, hand, [&](const Kartenposition& k) { return k.farbe == f; });
        if (n > meiste) {
            meiste = n;
            farbe = f;
        }
    }
    return farbe;
}

}  // namespace

std::string_view sologrundCode(Sologrund grund) {
    switch (grund) {
        case Sologrund::Sicher: return "Sicher";
        case Sologrund::Farbe: return "Farbe";
        case Sologrund::DamenBuben: return "DamenBuben";
        case Sologrund::Buben: return "Buben";
        case Sologrund::Damen: return "Damen";
        case Sologrund::Fleischlos: return "Fleischlos";
        case Sologrund::Keiner: break;
    }
    return "";
}

Solowahl soloPruefen(const Spiel& spiel, Sitz sitz, const Soloarten& arten, Solotabellen& tabellen,
                     const Melder& melder) {
    Solowahl w;
    const Kartenliste hand = eigeneKarten(spiel, sitz);
    const bool beideKreuzDamen = hatBeideKreuzDamen(spiel, sitz);
    w.art = sicheresSolo(spiel, sitz, arten, tabellen);
    if (w.art != 0) {
        w.grund = Sologrund::Sicher;
        if (beideKreuzDamen && w.art == Normalspiel) tabellen.stillesSoloSpieler = sitz;
        if (w.art == SoloOhneTrumpf) tabellen.langeFarbe[sitz] = langeFarbe(spiel, sitz, hand);
        melder.regel(verfahren::SoloPruefen, sologrundCode(w.grund),
                     text::spieler(sitz) + std::string(text::SicheresSoloMitte) + std::to_string(w.art) +
                         std::string(text::SicheresSoloEnde));
        return w;
    }
    const bool zuerst = spieltZuerstAus(spiel, sitz);
    bool still = false;
    const auto erlaubt = [&](int art) { return arten[static_cast<std::size_t>(art)]; };
    if ((w.art = unsichereFarbe(spiel, sitz, hand, arten, tabellen, still)) != 0) {
        w.grund = Sologrund::Farbe;
        if (still) return w;
    } else if (erlaubt(DamenBubenSolo) && truempfeIn(spiel, sitz, DamenBubenSolo) > (zuerst ? 9 : 10)) {
        w = {DamenBubenSolo, Sologrund::DamenBuben};
    } else if (erlaubt(BubenSolo) && figurenSolo(spiel, hand, Bube, zuerst)) {
        w = {BubenSolo, Sologrund::Buben};
    } else if (erlaubt(DamenSolo) && figurenSolo(spiel, hand, Dame, zuerst)) {
        w = {DamenSolo, Sologrund::Damen};
    } else if (erlaubt(SoloOhneTrumpf) && fleischlos(spiel, sitz, hand, zuerst)) {
        w = {SoloOhneTrumpf, Sologrund::Fleischlos};
        tabellen.langeFarbe[sitz] = langeFarbe(spiel, sitz, hand);
    }
    if (w.art != 0)
        melder.regel(verfahren::SoloPruefen, sologrundCode(w.grund),
                     std::string(text::UnsicheresSolo) + std::to_string(w.art) + std::string(text::UnsicheresSoloEnde));
    return w;
}

int pflichtsoloArt(const Spiel& spiel, Sitz sitz, const Soloarten& arten) {
    int beste = 0;
    int meiste = -1;
    for (int art = Normalspiel; art <= KreuzSolo; ++art) {
        if (!arten[static_cast<std::size_t>(art)]) continue;
        const int t = truempfeIn(spiel, sitz, art);
        if (t > meiste) {
            meiste = t;
            beste = art;
        }
    }
    return beste;
}

Hochzeitwahl hochzeitArtWaehlen(const Spiel& spiel, Sitz sitz) {
    const Kartenliste hand = eigeneKarten(spiel, sitz);
    const Handdeck d = deckFuer(spiel, sitz, hand, Normalspiel);
    const int truempfe = zaehle(d, hand, [](const Kartenposition& k) { return k.farbe == Normalspiel; });
    const int asse = zaehle(d, hand, [](const Kartenposition& k) { return k.farbe != Normalspiel && k.wert == WertAs; });
    if (truempfe >= 7) return {ErsterFehlstich, text::HochzeitFehlstich};
    if (asse >= 3) return {ErsterTrumpfstich, text::HochzeitTrumpfstich};
    return {ErsterStich, text::HochzeitErsterStich};
}

}  // namespace players

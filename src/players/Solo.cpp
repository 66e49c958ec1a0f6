// SoloBewerten, SicheresSolo, SoloPruefen and the Hochzeit kind.
#include "Solo.h"

#include <algorithm>
#include <atomic>
#include <functional>
#include <span>
#include <vector>

#include "Kontra.h"
#include "Regeltabelle.h"
#include "Texte.h"
#include "engine/Stichspiel.h"
#include "engine/Vorbehalte.h"

namespace players {

using namespace engine;

namespace {

constexpr int KaroAs = kartencode(Karo, As);

bool laufend(const Spiel& spiel) {
    const Spielphase p = spiel.ablauf.phase;
    return p == Spielphase::Kartenspiel || p == Spielphase::StichVoll || p == Spielphase::Spielende;
}

// The deck with the strengths of a kind. The running game keeps its own; for another
// kind the own Schweine and an own Supersau rank at the top (another seat's are unknown).
Deck deckFuer(const Spiel& spiel, Sitz sitz, int art) {
    if (laufend(spiel) && art == spiel.spieltyp) return spiel.deck;
    Deck d = spiel.deck;
    d.staerkenBerechnen(art);
    const Regeln& r = spiel.regeln;
    const std::vector<int> hand = handkarten(spiel, sitz);
    auto obenauf = [&](int code) {
        if (std::count_if(hand.begin(), hand.end(), [&](int p) { return d[p].code == code; }) < 2) return false;
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

// Suit and strength per position as deckFuer would give them, for the cards in hand
// only and without copying the deck: the estimate runs for every kind at every deal.
struct Rangliste {
    std::array<int, MaxPositionen + 1> farbe{};
    std::array<int, MaxPositionen + 1> staerke{};
};

Rangliste ranglisteFuer(const Spiel& spiel, Sitz sitz, int art) {
    Rangliste r;
    const Deck& deck = spiel.deck;
    const bool eigenes = laufend(spiel) && art == spiel.spieltyp;
    for (int p = 1; p <= deck.kartenanzahl(); ++p) {
        const Kartenposition& k = deck[p];
        if (k.status != InHand) continue;
        const auto i = static_cast<std::size_t>(p);
        if (eigenes) {
            r.farbe[i] = k.farbe;
            r.staerke[i] = k.staerke;
        } else {
            const Rangierung rang = rangierung(k.code, art);
            r.farbe[i] = rang.farbe;
            r.staerke[i] = rang.staerke;
        }
    }
    if (eigenes) return r;
    const Regeln& regeln = spiel.regeln;
    auto obenauf = [&](int code) {
        int inHand = 0;
        for (int p = deck.erstePosition(sitz); p <= deck.letztePosition(sitz); ++p)
            inHand += deck[p].code == code && deck[p].status == InHand;
        if (inHand < 2) return false;
        for (int p = deck.erstePosition(sitz); p <= deck.letztePosition(sitz); ++p)
            if (deck[p].code == code && deck[p].status == InHand) r.staerke[static_cast<std::size_t>(p)] = StaerkeJoker;
        return true;
    };
    bool schweine = false;
    if (art == Normalspiel && regeln.zweiSchweine && (regeln.schweineBTrSolo || hatBeideKreuzDamen(spiel, sitz)))
        schweine = obenauf(KaroAs);
    if (!schweine && istFarbspiel(art) && regeln.supersau && regeln.zweiSchweine) obenauf(kartencode(art, As));
    return r;
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

int truempfeIn(const Spiel& spiel, Sitz sitz, int art) {
    const Deck d = deckFuer(spiel, sitz, art);
    const std::vector<int> hand = handkarten(spiel, sitz);
    return static_cast<int>(std::count_if(hand.begin(), hand.end(), [&](int p) { return d[p].farbe == art; }));
}

bool spieltZuerstAus(const Spiel& spiel, Sitz sitz) { return sitz == spiel.vorhand || spiel.regeln.vhSolo; }

Soloschaetzung soloSchaetzen(const Spiel& spiel, Sitz sitz, int art, bool amAufspiel, double sicherheit) {
    const Deck& d = spiel.deck;
    const Rangliste rang = ranglisteFuer(spiel, sitz, art);
    auto farbe = [&](int p) { return rang.farbe[static_cast<std::size_t>(p)]; };
    auto staerke = [&](int p) { return rang.staerke[static_cast<std::size_t>(p)]; };
    const Regeln& r = spiel.regeln;
    // Fixed arrays: the reservations and the announcement rules ask this for every kind.
    std::array<int, MaxPositionen> eigene{};
    std::array<int, MaxPositionen> fremde{};
    std::size_t nEigene = 0;
    std::size_t nFremde = 0;
    std::array<int, 3> groessen{};
    int fremdeTruempfe = 0;
    int hoechsterFremder = 0;
    for (int i = 0; i <= 3; ++i) {
        const Sitz s = sitz.plus(i);
        for (int p = d.erstePosition(s); p <= d.letztePosition(s); ++p) {
            if (d[p].status != InHand) continue;
            if (i == 0) {
                eigene[nEigene++] = p;
                continue;
            }
            ++groessen[static_cast<std::size_t>(i - 1)];
            fremde[nFremde++] = p;
            if (farbe(p) != art) continue;
            ++fremdeTruempfe;
            hoechsterFremder = std::max(hoechsterFremder, staerke(p));
        }
    }
    const auto eigeneKarten = std::span(eigene).first(nEigene);
    const auto fremdeKarten = std::span(fremde).first(nFremde);

    Soloschaetzung e;
    if (art == SoloOhneTrumpf) {
        e.abziehen = e.sicher = true;
    } else {
        const int oben = static_cast<int>(std::count_if(eigeneKarten.begin(), eigeneKarten.end(), [&](int p) {
            return farbe(p) == art && schlaegtGefuehrt(staerke(p), hoechsterFremder, r);
        }));
        e.sicher = oben >= fremdeTruempfe;
        e.abziehen = oben >= abziehrunden(fremdeTruempfe, groessen, sicherheit);
    }
    if (!e.abziehen || !amAufspiel) {
        e.stiche = static_cast<int>(nEigene);
        e.augen = NichtSicher;
        return e;
    }

    // Trumps pulled: a side card loses when another hand holds a stronger one of its suit
    // (or an equal second Dolle); the others' best card per suit tells.
    std::array<int, 9> besteFremde{};
    for (int q : fremdeKarten) {
        auto& b = besteFremde[static_cast<std::size_t>(farbe(q))];
        b = std::max(b, staerke(q));
    }
    int verlierer = 0;
    for (int p : eigeneKarten) {
        if (farbe(p) == art) continue;
        const int fremd = besteFremde[static_cast<std::size_t>(farbe(p))];
        const bool geschlagen = fremd > 0 && !schlaegtGefuehrt(staerke(p), fremd, r);
        if (!geschlagen) continue;
        ++verlierer;
        e.augen += d[p].augen;
    }
    std::array<int, MaxPositionen> fett{};
    std::size_t nFett = 0;
    for (int q : fremdeKarten)
        if (farbe(q) != art) fett[nFett++] = d[q].augen;
    std::sort(fett.begin(), fett.begin() + static_cast<std::ptrdiff_t>(nFett), std::greater<>());
    for (std::size_t i = 0; i < nFett && i < static_cast<std::size_t>(3 * verlierer); ++i) e.augen += fett[i];
    e.stiche = verlierer;
    return e;
}

Soloarten soloartenAusRegeln(const Regeln& regeln) {
    Soloarten arten{};
    for (int art : erlaubteSoloarten(regeln)) arten[static_cast<std::size_t>(art)] = true;
    return arten;
}

int soloBewerten(const Spiel& spiel, Sitz sitz, int art, Solotabellen& tabellen) {
    const Soloschaetzung e = soloSchaetzen(spiel, sitz, art, spieltZuerstAus(spiel, sitz));
    const auto i = static_cast<std::size_t>(art);
    tabellen.stichVerlust[sitz][i] = e.stiche;
    tabellen.augenVerlust[sitz][i] = e.augen;
    return e.augen;
}

int sicheresSolo(const Spiel& spiel, Sitz sitz, const Soloarten& arten, Solotabellen& tabellen) {
    ProSpielart wert{};
    for (int art = 1; art <= AnzahlSpielarten; ++art) {
        const auto i = static_cast<std::size_t>(art);
        wert[i] = soloBewerten(spiel, sitz, art, tabellen);
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
int unsichereFarbe(const Spiel& spiel, Sitz sitz, const Soloarten& arten, Solotabellen& tabellen, bool& still) {
    const std::vector<int> hand = handkarten(spiel, sitz);
    const Deck& roh = spiel.deck;
    bool doppelteZehn = false;
    for (int f = Karo; f <= Kreuz; ++f)
        doppelteZehn = doppelteZehn || std::count_if(hand.begin(), hand.end(), [&](int p) {
                                           return roh[p].code == kartencode(f, Zehn);
                                       }) == 2;
    if (!doppelteZehn) return 0;

    // Damen and Buben out of the way, each suit counts its As, Zehn, König and Neun.
    const Deck ohneFiguren = deckFuer(spiel, sitz, DamenBubenSolo);
    int farbe = 0;
    int meiste = -1;
    for (int f = Karo; f <= Kreuz; ++f) {
        const int n =
            static_cast<int>(std::count_if(hand.begin(), hand.end(), [&](int p) { return ohneFiguren[p].farbe == f; }));
        if (n > meiste) {
            meiste = n;
            farbe = f;
        }
    }
    if (!arten[static_cast<std::size_t>(farbe)]) return 0;

    const Deck d = deckFuer(spiel, sitz, farbe);
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
    if (std::count_if(hand.begin(), hand.end(), [&](int p) { return d[p].farbe == farbe && d[p].staerke > hochGrenze; }) < 3)
        return 0;
    const int tiefGrenze = herz ? 16 : 32;
    if (std::count_if(hand.begin(), hand.end(), [&](int p) {
            return farbeVonCode(d[p].code) == farbe && d[p].farbe == farbe && d[p].staerke < tiefGrenze;
        }) >= 4)
        return 0;
    if (spieltZuerstAus(spiel, sitz)) {
        // A blank side card that is no As is lost at once and opens the suit for the others.
        for (int f = Karo; f <= Kreuz; ++f) {
            if (f == farbe) continue;
            std::vector<int> karten;
            for (int p : hand)
                if (d[p].farbe == f) karten.push_back(p);
            if (karten.size() == 1 && d[karten.front()].wert != WertAs) return 0;
        }
    }
    return farbe;
}

int zaehle(const Deck& d, const std::vector<int>& hand, const std::function<bool(const Kartenposition&)>& test) {
    return static_cast<int>(std::count_if(hand.begin(), hand.end(), [&](int p) { return test(d[p]); }));
}

bool figurenSolo(const Spiel& spiel, Sitz sitz, int rang, bool zuerst) {
    const std::vector<int> hand = handkarten(spiel, sitz);
    const Deck& d = spiel.deck;
    const int figuren = zaehle(d, hand, [&](const Kartenposition& k) { return !istJoker(k.code) && rangVonCode(k.code) == rang; });
    const int asse = zaehle(d, hand, [](const Kartenposition& k) { return k.wert == WertAs; });
    return asse >= 4 && figuren >= (zuerst ? 5 : 6);
}

// Step 10: aces and tens, else points for suits headed by As-As-Zehn, As-As, a single As.
bool fleischlos(const Spiel& spiel, Sitz sitz, bool zuerst) {
    const std::vector<int> hand = handkarten(spiel, sitz);
    const Deck d = deckFuer(spiel, sitz, SoloOhneTrumpf);
    const int asse = zaehle(d, hand, [](const Kartenposition& k) { return k.wert == WertAs; });
    const int zehnen = zaehle(d, hand, [](const Kartenposition& k) { return k.wert == WertZehn; });
    if (asse + zehnen > 9 && asse >= 6) return true;
    bool asInJederFarbe = true;
    bool keinSingle = true;
    for (int f = Karo; f <= Kreuz; ++f) {
        const int n = zaehle(d, hand, [&](const Kartenposition& k) { return k.farbe == f; });
        asInJederFarbe = asInJederFarbe && zaehle(d, hand, [&](const Kartenposition& k) {
                                               return k.farbe == f && k.wert == WertAs;
                                           }) > 0;
        keinSingle = keinSingle && n != 1;
    }
    if (!zuerst && !(asInJederFarbe && keinSingle)) return false;
    const bool beide = asInJederFarbe && keinSingle;
    int punkte = 0;
    int loseZehnen = 0;
    for (int f = Karo; f <= Kreuz; ++f) {
        int summe = 0;
        int n = 0;
        int zehnenDerFarbe = 0;
        for (int p : hand) {
            if (d[p].farbe != f) continue;
            summe += d[p].staerke;
            ++n;
            if (d[p].wert == WertZehn) ++zehnenDerFarbe;
        }
        if (summe >= 2304) {
            punkte += n;
        } else if (summe >= 2048) {
            punkte += beide && summe >= 2176 && n >= 6 ? n - 3 : 2;
        } else {
            if (summe >= 1024) punkte += 1;
            loseZehnen += zehnenDerFarbe;
        }
    }
    return punkte >= 9 || (punkte == 8 && loseZehnen == 0);
}

int langeFarbe(const Spiel& spiel, Sitz sitz) {
    const std::vector<int> hand = handkarten(spiel, sitz);
    const Deck d = deckFuer(spiel, sitz, SoloOhneTrumpf);
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
    const bool beideKreuzDamen = hatBeideKreuzDamen(spiel, sitz);
    w.art = sicheresSolo(spiel, sitz, arten, tabellen);
    if (w.art != 0) {
        w.grund = Sologrund::Sicher;
        if (beideKreuzDamen && w.art == Normalspiel) tabellen.stillesSoloSpieler = sitz;
        if (w.art == SoloOhneTrumpf) tabellen.langeFarbe[sitz] = langeFarbe(spiel, sitz);
        melder.regel(verfahren::SoloPruefen, sologrundCode(w.grund),
                     text::spieler(sitz) + std::string(text::SicheresSoloMitte) + std::to_string(w.art) +
                         std::string(text::SicheresSoloEnde));
        return w;
    }
    const bool zuerst = spieltZuerstAus(spiel, sitz);
    bool still = false;
    const auto erlaubt = [&](int art) { return arten[static_cast<std::size_t>(art)]; };
    if ((w.art = unsichereFarbe(spiel, sitz, arten, tabellen, still)) != 0) {
        w.grund = Sologrund::Farbe;
        if (still) return w;
    } else if (erlaubt(DamenBubenSolo) && truempfeIn(spiel, sitz, DamenBubenSolo) > (zuerst ? 9 : 10)) {
        w = {DamenBubenSolo, Sologrund::DamenBuben};
    } else if (erlaubt(BubenSolo) && figurenSolo(spiel, sitz, Bube, zuerst)) {
        w = {BubenSolo, Sologrund::Buben};
    } else if (erlaubt(DamenSolo) && figurenSolo(spiel, sitz, Dame, zuerst)) {
        w = {DamenSolo, Sologrund::Damen};
    } else if (erlaubt(SoloOhneTrumpf) && fleischlos(spiel, sitz, zuerst)) {
        w = {SoloOhneTrumpf, Sologrund::Fleischlos};
        tabellen.langeFarbe[sitz] = langeFarbe(spiel, sitz);
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
    const std::vector<int> hand = handkarten(spiel, sitz);
    const Deck d = deckFuer(spiel, sitz, Normalspiel);
    const int truempfe = zaehle(d, hand, [](const Kartenposition& k) { return k.farbe == Normalspiel; });
    const int asse = zaehle(d, hand, [](const Kartenposition& k) { return k.farbe != Normalspiel && k.wert == WertAs; });
    if (truempfe >= 7) return {ErsterFehlstich, text::HochzeitFehlstich};
    if (asse >= 3) return {ErsterTrumpfstich, text::HochzeitTrumpfstich};
    return {ErsterStich, text::HochzeitErsterStich};
}

}  // namespace players

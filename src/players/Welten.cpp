#include "Welten.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "Regelwerk.h"
#include "engine/Sonderpunkte.h"
#include "engine/Spielablauf.h"
#include "engine/Vorbehalte.h"

namespace players {

using namespace engine;

namespace {

constexpr int KreuzDame = kartencode(Kreuz, Dame);
constexpr int KaroAs = kartencode(Karo, As);
// Deals tried before a view counts as not to be met (it always can be met; this only
// bounds the work when the bounds are tight).
constexpr int Versuche = 40;

std::size_t ix(int i) { return static_cast<std::size_t>(i); }

bool istNeunNummer(int n) { return n % 6 == 1; }

// The effective suit a card code has in this game.
int spielfarbe(const Spiel& spiel, int code) { return rangierung(code, spiel.spieltyp).farbe; }

void attributeSetzen(Kartenposition& k, int code, int spieltyp) {
    k.code = code;
    if (istJoker(code)) {
        k.wert = WertJoker;
        k.augen = 0;
    } else {
        k.wert = wertVonRang(rangVonCode(code));
        k.augen = augenVonRang(rangVonCode(code));
    }
    const Rangierung r = rangierung(code, spieltyp);
    k.farbe = r.farbe;
    k.staerke = r.staerke;
}

int gespielteKreuzDamen(const Spiel& spiel, Sitz x) {
    int n = 0;
    for (int p = spiel.deck.erstePosition(x); p <= spiel.deck.letztePosition(x); ++p)
        n += spiel.deck[p].status == Gespielt && spiel.deck[p].code == KreuzDame;
    return n;
}

bool spielteKarte(const Spiel& spiel, Sitz x, int code) {
    for (int p = spiel.deck.erstePosition(x); p <= spiel.deck.letztePosition(x); ++p)
        if (spiel.deck[p].status == Gespielt && spiel.deck[p].code == code) return true;
    return false;
}

}  // namespace

std::vector<int> ungeseheneKarten(const Sicht& sicht) {
    const Spiel& s = sicht.spiel;
    const int anzahl = s.deck.kartenanzahl();
    std::array<int, JokerCode + 1> bestand{};
    for (int n = 1; n <= MaxPositionen; ++n) {
        if (anzahl == 40 && istNeunNummer(n)) continue;
        const int code = n > 24 && !(n == JokerCode && s.regeln.joker) ? n - 24 : n;
        ++bestand[ix(code)];
    }
    for (int p = 1; p <= anzahl; ++p)
        if (s.deck[p].code != 0) --bestand[ix(s.deck[p].code)];
    std::vector<int> karten;
    for (int code = 1; code <= JokerCode; ++code)
        for (int i = 0; i < bestand[ix(code)]; ++i) karten.push_back(code);
    return karten;
}

Kartenschranken schrankenAus(const Sicht& sicht) {
    const Spiel& s = sicht.spiel;
    Kartenschranken k;
    auto stichLesen = [&](Sitz aufspieler, const std::array<int, 4>& karten, int anzahl) {
        if (anzahl == 0) return;
        const int gefuehrt = s.deck[karten[0]].farbe;
        for (int i = 1; i < anzahl; ++i)
            if (s.deck[karten[ix(i)]].farbe != gefuehrt) k.frei[aufspieler.plus(i)][ix(gefuehrt)] = true;
    };
    for (const StichProtokoll& st : s.stiche) stichLesen(st.aufspieler, st.karten, 4);
    if (!s.stich.komplett()) stichLesen(s.stich.aufspieler, s.stich.karten, s.stich.anzahl);

    if (s.hochzeiter) {
        if (*s.hochzeiter != sicht.ich) k.kreuzDamenBei = s.hochzeiter;
        for (const Sitz x : alleSitze) k.keineKreuzDame[x] = x != *s.hochzeiter;
    } else if (!s.solo) {
        // In the normal game an announcement shows the side, and the side the Kreuz-Damen.
        for (const AnsageEintrag& a : s.ansagen) {
            if (a.limit || a.sitz == sicht.ich) continue;
            if (a.partei == ParteiKontra) k.keineKreuzDame[a.sitz] = true;
            if (a.partei == ParteiRe && gespielteKreuzDamen(s, a.sitz) == 0) k.brauchtKreuzDame[a.sitz] = true;
        }
    }
    if (s.schweineHalter && *s.schweineHalter != sicht.ich) k.karoAsseBei = s.schweineHalter;
    return k;
}

std::optional<Zuteilung> zuteilungZiehen(const Sicht& sicht, const Kartenschranken& k, Zufallsquelle& zufall) {
    const Spiel& s = sicht.spiel;
    ProSitz<std::vector<int>> plaetze;
    for (int p = 1; p <= s.deck.kartenanzahl(); ++p)
        if (verdeckt(sicht, p)) plaetze[s.deck.besitzer(p)].push_back(p);
    const std::vector<int> ungesehen = ungeseheneKarten(sicht);

    auto erlaubt = [&](Sitz x, int code) {
        if (x == sicht.ich) return false;
        if (k.frei[x][ix(spielfarbe(s, code))]) return false;
        if (code == KreuzDame && (k.keineKreuzDame[x] || (k.kreuzDamenBei && *k.kreuzDamenBei != x))) return false;
        if (code == KaroAs && k.karoAsseBei && *k.karoAsseBei != x) return false;
        return true;
    };
    auto ziehen = [&](int n) { return zufall.ganzzahl(n); };

    for (int versuch = 0; versuch < Versuche; ++versuch) {
        std::vector<int> karten = ungesehen;
        for (std::size_t i = karten.size(); i > 1; --i) std::swap(karten[i - 1], karten[ix(ziehen(static_cast<int>(i)))]);
        ProSitz<int> frei;
        for (const Sitz x : alleSitze) frei[x] = static_cast<int>(plaetze[x].size());
        ProSitz<std::vector<int>> haende;
        auto geben = [&](Sitz x, int code) {
            haende[x].push_back(code);
            --frei[x];
        };
        std::vector<int> rest;
        // First what the bounds place: the Schweine, a Hochzeiter's Kreuz-Damen, one
        // Kreuz-Dame for each seat that announced Re without showing one.
        ProSitz<bool> hatDame{};
        for (int code : karten) {
            if (code == KaroAs && k.karoAsseBei && frei[*k.karoAsseBei] > 0) {
                geben(*k.karoAsseBei, code);
            } else if (code == KreuzDame && k.kreuzDamenBei && frei[*k.kreuzDamenBei] > 0) {
                geben(*k.kreuzDamenBei, code);
            } else if (code == KreuzDame) {
                std::optional<Sitz> braucht;
                for (const Sitz x : alleSitze)
                    if (k.brauchtKreuzDame[x] && !hatDame[x] && frei[x] > 0 && erlaubt(x, code)) {
                        braucht = x;
                        break;
                    }
                if (braucht) {
                    hatDame[*braucht] = true;
                    geben(*braucht, code);
                } else {
                    rest.push_back(code);
                }
            } else {
                rest.push_back(code);
            }
        }
        // The most bound cards first; each goes to a seat with room, by the room left.
        auto moeglich = [&](int code) {
            int n = 0;
            for (const Sitz x : alleSitze) n += erlaubt(x, code);
            return n;
        };
        std::stable_sort(rest.begin(), rest.end(), [&](int a, int b) { return moeglich(a) < moeglich(b); });
        bool gelungen = true;
        for (int code : rest) {
            int summe = 0;
            for (const Sitz x : alleSitze)
                if (frei[x] > 0 && erlaubt(x, code)) summe += frei[x];
            if (summe == 0) {
                gelungen = false;
                break;
            }
            int r = ziehen(summe);
            for (const Sitz x : alleSitze) {
                if (frei[x] <= 0 || !erlaubt(x, code)) continue;
                if (r < frei[x]) {
                    geben(x, code);
                    break;
                }
                r -= frei[x];
            }
        }
        if (!gelungen) continue;
        bool damenDa = true;
        for (const Sitz x : alleSitze) damenDa = damenDa && (!k.brauchtKreuzDame[x] || hatDame[x]);
        if (!damenDa) continue;
        Zuteilung z{};
        for (const Sitz x : alleSitze)
            for (std::size_t i = 0; i < plaetze[x].size(); ++i) z[ix(plaetze[x][i])] = haende[x][i];
        return z;
    }
    return std::nullopt;
}

std::optional<Spiel> weltBauen(const Sicht& sicht, const Zuteilung& zuteilung) {
    const Spiel& v = sicht.spiel;
    Spiel w = v;
    Deck& d = w.deck;
    for (int p = 1; p <= d.kartenanzahl(); ++p)
        if (verdeckt(sicht, p)) attributeSetzen(d[p], zuteilung[ix(p)], w.spieltyp);

    // The Schweine of this deal: marked at the deal, kept by the game type.
    w.schweineHalter.reset();
    if (schweineGelten(w.regeln, Normalspiel, false)) {
        const std::optional<Sitz> halter = schweineHalterSuchen(w);
        if (halter && schweineGelten(w.regeln, w.spieltyp, w.solo)) {
            // A holder the view does not know must not have shown himself.
            if (v.schweineHalter != halter &&
                (v.schweineHalter || schweineOeffentlich(w, *halter) || spielteKarte(w, *halter, KaroAs)))
                return std::nullopt;
            w.schweineHalter = halter;
            for (int p = d.erstePosition(*halter); p <= d.letztePosition(*halter); ++p)
                if (d[p].code == KaroAs && d[p].status == InHand) d[p].staerke = StaerkeJoker;
        }
    }
    if (v.schweineHalter && w.schweineHalter != v.schweineHalter) return std::nullopt;

    // A Supersau of this deal would have shown with its first trump As.
    if (!v.supersauHalter) w.supersauHalter.reset();
    if (w.regeln.supersau && w.regeln.zweiSchweine && w.solo && istFarbspiel(w.spieltyp) && !w.schweineHalter) {
        const int trumpfAs = kartencode(w.spieltyp, As);
        std::optional<Sitz> halter;
        for (const Sitz x : alleSitze)
            if (d.anzahl(x, trumpfAs) == 2) halter = x;
        if (halter != v.supersauHalter && (v.supersauHalter || spielteKarte(w, *halter, trumpfAs))) return std::nullopt;
        w.supersauHalter = halter;
    }

    // Parties of the normal game from the Kreuz-Damen dealt; both in one hand is a silent solo.
    if (!w.solo && !w.hochzeiter) {
        w.stillerSolist.reset();
        for (const Sitz x : alleSitze) {
            const int damen = d.anzahl(x, KreuzDame);
            w.partei[x] = damen == 0 ? ParteiKontra : ParteiRe;
            if (damen == 2) w.stillerSolist = x;
        }
        if (w.stillerSolist) {
            w.partei.fill(ParteiKontra);
            w.partei[*w.stillerSolist] = ParteiSolo;
        }
        if (w.partei[sicht.ich] != v.partei[sicht.ich]) return std::nullopt;
        for (const AnsageEintrag& a : w.ansagen)
            if (!a.limit && seite(w, a.sitz) != a.partei) return std::nullopt;
    }
    sonderpunkteNeuBewerten(w, w.sticheGespielt);
    return w;
}

std::optional<Welt> weltNachspielen(const Sicht& sicht, const Spiel& welt, int zufallszahl, double abweichung,
                                    Zufallsquelle& zufall) {
    auto start = std::make_unique<Spiel>(welt);
    Spiel& s = *start;
    // Back to the first card: every card in hand, nothing booked, nothing announced.
    Deck& d = s.deck;
    for (int p = 1; p <= d.kartenanzahl(); ++p) {
        d[p].status = InHand;
        const Rangierung r = rangierung(d[p].code, s.spieltyp);
        d[p].farbe = r.farbe;
        d[p].staerke = r.staerke;
    }
    if (s.schweineHalter)
        for (int p = d.erstePosition(*s.schweineHalter); p <= d.letztePosition(*s.schweineHalter); ++p)
            if (d[p].code == KaroAs) d[p].staerke = StaerkeJoker;
    s.stich.beginnen(welt.stiche.empty() ? welt.stich.aufspieler : welt.stiche.front().aufspieler);
    s.sticheGespielt = 0;
    s.stiche.clear();
    s.augen.fill(0);
    s.stichzahl.fill(0);
    s.sonderpunkte.clear();
    s.spielbericht.clear();
    s.parteiMarker.fill(0);
    s.schweineGespielt.fill(0);
    s.reAngesagt.fill(false);
    s.kontraAngesagt.fill(false);
    s.faktor = 1;
    s.limitSitz.reset();
    s.limitCode = -1;
    s.ansagenProStich = {};
    s.ansagen.clear();
    s.steuerung.fill(Steuerung::Computer);
    if (s.hochzeiter) {
        s.partei.fill(ParteiKontra);
        s.partei[*s.hochzeiter] = ParteiRe;
        s.hochzeitPartner.reset();
        s.hochzeitGeklaert = false;
    }
    s.ablauf = Ablaufstand{};
    s.ablauf.phase = Spielphase::Kartenspiel;

    auto wissen = std::make_unique<Tischwissen>(zufall);
    wissen->spielBegonnen(s);
    Spielablauf ablauf(s, zufall);
    ablauf.beobachterHinzufuegen(wissen.get());
    Regelwerk regelwerk(*wissen, zufall, nullptr, Regelwerksart{false, false});

    std::vector<int> folge;
    for (const StichProtokoll& st : welt.stiche) folge.insert(folge.end(), st.karten.begin(), st.karten.end());
    for (int i = 1; i <= welt.stich.anzahl; ++i) folge.push_back(welt.stich.karte(i));

    // Announcements come in at the start of the trick they were made in (a limit in the
    // first trick after its first card): where within the trick is not kept.
    std::size_t naechsteAnsage = 0;
    auto ansagenBis = [&](int stich, bool ersteKarteGefallen) {
        while (naechsteAnsage < welt.ansagen.size()) {
            const AnsageEintrag& a = welt.ansagen[naechsteAnsage];
            if (a.stich > stich || (a.limit && a.stich == 0 && !ersteKarteGefallen)) return;
            ablauf.ansagen(a.sitz, Ansage{a.limit, a.limitCode});
            ++naechsteAnsage;
        }
    };
    double gewicht = 1;
    for (std::size_t i = 0; i < folge.size(); ++i) {
        ansagenBis(static_cast<int>(i / 4), i > 0);
        const int pos = folge[i];
        const Sitz x = s.stich.amZug();
        if (abweichung < 1 && x != sicht.ich) {
            const int karte = regelwerk.karteWaehlen(s, x);
            if (karte == 0 || d[karte].code != d[pos].code) gewicht *= abweichung;
        }
        if (!ablauf.antworten(Antwort::karte(pos))) return std::nullopt;
        if (ablauf.offeneArt() == Anfrageart::StichEinsammeln) ablauf.antworten(Antwort::weiter(Anfrageart::StichEinsammeln));
    }
    ansagenBis(welt.sticheGespielt, !folge.empty());
    wissen->zufallszahl = zufallszahl;
    return Welt{std::move(start), std::move(wissen), gewicht};
}

}  // namespace players

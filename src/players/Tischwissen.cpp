#include "Tischwissen.h"

#include <string>

#include "Texte.h"
#include "engine/Stichspiel.h"

namespace players {

using namespace engine;

namespace {

constexpr int KreuzDameCode = kartencode(Kreuz, Dame);
constexpr int DolleCode = kartencode(Herz, Zehn);
// The lowest strength the high-trump test accepts (a Kreuz-Bube in the normal game).
constexpr int HoheTrumpfStaerke = 16384;

std::string nr(Sitz s) { return std::to_string(s.nr()); }

bool istDolle(const Spiel& spiel, int pos) {
    const auto& k = spiel.deck[pos];
    return k.code == DolleCode && k.farbe == spiel.spieltyp && k.staerke == StaerkeDolle;
}

bool hochzeitOffen(const Spiel& spiel) { return spiel.hochzeiter && !spiel.hochzeitGeklaert; }

// Cards played so far (a full trick is already among the tricks played).
int gespielteKarten(const Spiel& spiel) {
    return 4 * spiel.sticheGespielt + (spiel.stich.anzahl < 4 ? spiel.stich.anzahl : 0);
}

}  // namespace

int parteibild(Sitz sitz, int parteiBekannt) {
    const int s = sitz.nr();
    if (parteiBekannt == ParteiKontra) return s + 2 > 4 ? s : s + 2;
    if (parteiBekannt >= ParteiRe) return s + 4 > 6 ? s + 2 : s + 4;
    return s > 2 ? s - 2 : s;
}

int truempfeInHand(const Spiel& spiel, Sitz sitz) {
    int n = 0;
    // Counted without a branch: which cards are left follows no pattern.
    for (int p = spiel.deck.erstePosition(sitz); p <= spiel.deck.letztePosition(sitz); ++p)
        n += (spiel.deck[p].status == InHand) & (spiel.deck[p].farbe == spiel.spieltyp);
    return n;
}

void Tischwissen::hinweis(const std::string& text) {
    if (!senke_ || msgBoxModus != MsgBoxZeigen || stumm_) return;
    Meldung m;
    m.art = Meldungsart::Hinweis;
    m.text = text;
    m.anzeigen = true;
    senke_->melden(m);
}

void Tischwissen::zuruecksetzen() {
    partei.fill(0);
    stillerSolist.reset();
    for (auto& zeile : parteiWissen) zeile.fill(0);
    for (auto& farben : farbeFrei)
        for (auto& zeile : farben) zeile.fill(false);
    for (auto& zeile : keinTrumpf) zeile.fill(false);
    for (auto& zeile : abwurfZaehler) zeile.fill(0);
    for (auto& zeile : trumpfPartnerMarke) zeile.fill(false);
    parteiBekannt.fill(0);
    parteiBild.fill(0);
    zeigerBild.fill(0);
    angespielt.fill(0);
    naechsterAufspieler.reset();
    kreuzDamenGespielt_.fill(0);
    beobachteteKarten_ = 0;
    begonnen_ = false;
}

void Tischwissen::allenBekannt(Sitz sitz, int wert) {
    for (const Sitz k : alleSitze) parteiWissen[sitz][k] = wert;
}

void Tischwissen::parteienFestlegen(const Spiel& spiel) {
    const bool angesagt = spiel.solo || spiel.hochzeiter.has_value();
    ProSitz<int> damen;
    for (const Sitz s : alleSitze) {
        damen[s] = spiel.deck.anzahl(s, KreuzDameCode);
        kreuzDamenSumme[s] += damen[s];
        partei[s] = damen[s] == 0 ? ParteiKontra : damen[s] == 1 ? ParteiRe : ParteiSolo;
        if (damen[s] == 2) {
            if (!angesagt) stillerSolist = s;
            hinweis(std::string(text::StillesSoloVor) + nr(s) + std::string(text::StillesSoloNach));
        }
    }
    // A declared game has its parties from the reservations.
    if (angesagt)
        for (const Sitz s : alleSitze)
            if (spiel.partei[s] != ParteiUnbekannt) partei[s] = spiel.partei[s];

    for (const Sitz s : alleSitze) parteiWissen[s][s] = partei[s];
    if (stillerSolist)
        for (const Sitz x : alleSitze)
            if (x != *stillerSolist) parteiWissen[x][*stillerSolist] = ParteiKontra;
    if (spiel.solo)
        for (const Sitz x : alleSitze) allenBekannt(x, partei[x]);
    if (spiel.hochzeiter) {
        allenBekannt(*spiel.hochzeiter, partei[*spiel.hochzeiter]);
        if (spiel.hochzeitGeklaert)
            for (const Sitz x : alleSitze) allenBekannt(x, partei[x]);
    }

    // What the person at seat 1 knows from the own hand.
    const Sitz eins(1);
    parteiBekannt[eins] = damen[eins] == 0 ? ParteiKontra : damen[eins] == 1 ? ParteiRe : ParteiSolo;
    if (damen[eins] == 2)
        for (const Sitz x : alleSitze)
            if (x != eins) parteiBekannt[x] = ParteiKontra;
    if (spiel.solo || spiel.hochzeitGeklaert)
        for (const Sitz x : alleSitze) parteiBekannt[x] = partei[x];
    else if (spiel.hochzeiter)
        parteiBekannt[*spiel.hochzeiter] = ParteiRe;
    parteizeigerSetzen(spiel);
}

void Tischwissen::karteVerarbeiten(const Spiel& spiel, const Stich& stich, int anzahl) {
    const Deck& deck = spiel.deck;
    const int trumpf = spiel.spieltyp;
    const int gefuehrt = deck[stich.karte(1)].farbe;
    if (anzahl == 1) {
        ++angespielt[static_cast<std::size_t>(gefuehrt)];
        return;
    }
    const Sitz p = stich.sitzAn(anzahl);
    const int farbe = deck[stich.karte(anzahl)].farbe;
    const auto g = static_cast<std::size_t>(gefuehrt);
    if (gefuehrt != trumpf && farbe == trumpf) farbeFrei[p][g].fill(true);
    if (gefuehrt == trumpf && farbe != trumpf) {
        keinTrumpf[p].fill(true);
        farbeFrei[p][g].fill(true);
    }
    if (gefuehrt != trumpf && farbe != trumpf && farbe != gefuehrt) {
        ++abwurfZaehler[p][static_cast<std::size_t>(farbe)];
        farbeFrei[p][g].fill(true);
    }
}

void Tischwissen::bluffRegel(const Spiel& spiel, const Stich& stich, int anzahl) {
    // Only where the first Dolle beats the second can a Dolle over a Kreuz-Dame bluff.
    if (!spiel.regeln.herzZehn) return;
    const int w = fuehrenderPlatz(spiel.deck, stich, anzahl, spiel.spieltyp, spiel.regeln.herzZehn);
    if (w == 0 || !istDolle(spiel, stich.karte(w))) return;
    const Sitz gewinner = stich.sitzAn(w);
    bool ueberKreuzDame = false;
    for (int j = 1; j < w; ++j)
        if (spiel.deck[stich.karte(j)].code == KreuzDameCode && stich.sitzAn(j) != gewinner) ueberKreuzDame = true;
    if (!ueberKreuzDame) return;
    if (partei[gewinner] == ParteiKontra) {
        allenBekannt(gewinner, partei[gewinner]);
        return;
    }
    // Only the seats 1 and 2 fall for it, and only with the first trick's number.
    for (const Sitz k : {Sitz(1), Sitz(2)}) {
        if (parteiWissen[gewinner][k] != ParteiUnbekannt || zufallszahl > 50) continue;
        parteiWissen[gewinner][k] = ParteiKontra;
        hinweis(std::string(text::Spieler_) + nr(k) + std::string(text::BluffMitte) + nr(gewinner) +
                std::string(text::BluffEnde));
    }
}

void Tischwissen::karteGesehen(const Spiel& spiel, const Stich& stich, int anzahl) {
    if (spiel.deck[stich.karte(anzahl)].code == KreuzDameCode && !spiel.solo) kreuzDameGesehen(stich.sitzAn(anzahl));
    karteVerarbeiten(spiel, stich, anzahl);
    bluffRegel(spiel, stich, anzahl);
}

void Tischwissen::stichAuswerten(const Spiel& spiel, const Stich& stich) {
    const Deck& deck = spiel.deck;
    const int trumpf = spiel.spieltyp;
    const int w = fuehrenderPlatz(deck, stich, 4, trumpf, spiel.regeln.herzZehn);
    const Sitz gewinner = stich.sitzAn(w);
    const auto& gewinnerKarte = deck[stich.karte(w)];
    const auto& erste = deck[stich.karte(1)];
    const bool trumpfGefuehrt = erste.farbe == trumpf;

    // Repeated high trump: a seat adds a high trump of the same rank as an earlier one.
    if (trumpfGefuehrt) {
        for (int i = 2; i <= 4; ++i) {
            const Sitz p = stich.sitzAn(i);
            const auto& k = deck[stich.karte(i)];
            if (p == gewinner || k.farbe != trumpf) continue;
            for (int j = 1; j < i; ++j) {
                if (k.staerke < HoheTrumpfStaerke || k.wert != deck[stich.karte(j)].wert || gewinnerKarte.wert == 0)
                    continue;
                for (const Sitz b : alleSitze)
                    if (parteiWissen[p][b] > 0 && parteiWissen[p][b] == parteiWissen[gewinner][b])
                        trumpfPartnerMarke[p][b] = true;
            }
        }
    }

    // A Re player opens the first trump trick with a fat small trump.
    if (trumpfGefuehrt && angespielt[static_cast<std::size_t>(trumpf)] == 1 && erste.staerke < StaerkeKreuzDame &&
        erste.augen >= 5 && !spiel.solo && !spiel.hochzeiter && partei[stich.aufspieler] == ParteiRe)
        allenBekannt(stich.aufspieler, ParteiRe);

    // Buttering onto a partner's trick shows both, but only when they are partners.
    for (int i = w + 1; i <= 4; ++i) {
        const Sitz b = stich.sitzAn(i);
        const auto& k = deck[stich.karte(i)];
        if (k.staerke >= StaerkeDolle || k.augen < 5 || partei[b] != partei[gewinner]) continue;
        const int vorher = parteiWissen[b][Sitz(1)];
        allenBekannt(b, partei[b]);
        allenBekannt(gewinner, partei[gewinner]);
        if (parteiWissen[b][Sitz(1)] != vorher)
            hinweis(std::string(text::Spieler_) + std::to_string(i) + std::string(text::ButterStelle) +
                    std::string(text::ButterAlle) + std::to_string(k.augen) + std::string(text::ButterAugen) + nr(b) +
                    std::string(text::ButterPartei) + nr(gewinner) + std::string(text::ButterEnde));
    }

    bluffRegel(spiel, stich, 4);

    // In the figure solos a seat that follows trump without winning may have run out.
    if (trumpf >= BubenSolo && trumpf <= DamenBubenSolo && trumpfGefuehrt) {
        int hoechster = 0;
        for (int p = 1; p <= deck.kartenanzahl(); ++p)
            if (deck[p].status == InHand && deck[p].farbe == trumpf && deck[p].staerke > hoechster)
                hoechster = deck[p].staerke;
        for (int i = 2; i <= 4; ++i) {
            const Sitz p = stich.sitzAn(i);
            const auto& k = deck[stich.karte(i)];
            if (k.farbe != trumpf || p == gewinner || parteiWissen[p][p] == ParteiSolo) continue;
            if (hoechster > 0 && k.staerke >= hoechster)
                hinweis(std::string(text::Spieler_) + nr(p) + std::string(text::HoechsterRang) +
                        std::to_string(k.staerke) + std::string(text::HoechsterMitte) + std::to_string(hoechster) +
                        std::string(text::HoechsterEnde));
            if (truempfeInHand(spiel, p) > 0) continue;
            for (const Sitz b : alleSitze) {
                keinTrumpf[p][b] = true;
                hinweis(std::string(text::Spieler_) + nr(b) + std::string(text::KeinTrumpfMitte) + nr(p) +
                        std::string(text::KeinTrumpfEnde));
            }
        }
    }

    naechsterAufspieler = gewinner;
    folgern(spiel);
    parteizeigerSetzen(spiel);
}

void Tischwissen::kreuzDameGesehen(Sitz sitz) {
    ++kreuzDamenGespielt_[sitz];
    if (kreuzDamenGespielt_[sitz] >= 2) {
        allenBekannt(sitz, partei[sitz]);
        return;
    }
    for (const Sitz k : alleSitze) {
        int& w = parteiWissen[sitz][k];
        if (w == ParteiUnbekannt)
            w = ParteiRe;
        else if (w != ParteiRe && w != ParteiSolo)
            w = partei[sitz];
    }
}

void Tischwissen::folgern(const Spiel& spiel) {
    // Two seats of one party named: the others belong to the other side. Only the
    // true party is ever written, so no rule but the bluff plants a false belief.
    if (spiel.solo || hochzeitOffen(spiel)) return;
    for (const Sitz k : alleSitze) {
        int re = 0;
        int kontra = 0;
        for (const Sitz x : alleSitze) {
            const int g = parteiWissen[x][k];
            if (g == ParteiKontra) ++kontra;
            if (g == ParteiRe || g == ParteiSolo) ++re;
        }
        if (re < 2 && kontra < 2) continue;
        for (const Sitz x : alleSitze)
            if (parteiWissen[x][k] == ParteiUnbekannt) parteiWissen[x][k] = partei[x];
    }
}

void Tischwissen::parteizeigerSetzen(const Spiel& spiel) {
    const bool angesagt = spiel.solo || spiel.hochzeiter.has_value();
    for (const Sitz x : alleSitze) {
        if (parteiBekannt[x] != ParteiUnbekannt) continue;
        // What every other seat believes is public (a Kreuz-Dame, an announcement, ...).
        int gemeinsam = -1;
        for (const Sitz k : alleSitze) {
            if (k == x) continue;
            const int g = parteiWissen[x][k];
            gemeinsam = (gemeinsam == -1 || gemeinsam == g) ? g : 0;
        }
        if (gemeinsam > 0) parteiBekannt[x] = gemeinsam;
    }
    if (!angesagt && partei[Sitz(1)] == ParteiSolo)
        for (const Sitz x : alleSitze)
            if (parteiBekannt[x] == ParteiUnbekannt) parteiBekannt[x] = ParteiKontra;

    int re = 0;
    for (const Sitz x : alleSitze) {
        parteiBild[x] = parteibild(x, parteiBekannt[x]);
        if (parteiBekannt[x] >= ParteiRe) ++re;
    }
    if (re >= 2) {
        bool unbekannt = false;
        for (const Sitz x : alleSitze) {
            parteiBekannt[x] = partei[x];
            parteiBild[x] = parteibild(x, parteiBekannt[x]);
            if (parteiBekannt[x] == ParteiUnbekannt) unbekannt = true;
        }
        if (unbekannt) hinweis(std::string(text::ParteizeigerFehler));
    }
    if (spiel.sticheGespielt > 0)
        for (const Sitz x : alleSitze)
            if (zeigerBild[x] < 7) zeigerBild[x] = parteiBild[x];
}

void Tischwissen::zugVorbereiten(const Spiel& spiel, Sitz sitz) {
    zugVorbereiten(spiel, sitz, truempfeInHand(spiel, sitz));
}

void Tischwissen::zugVorbereiten(const Spiel& spiel, Sitz sitz, int eigeneTruempfe) {
    // Drawn only in the first trick, and only for these seats and moments: a game
    // keeps its first-trick number for all later tricks.
    const int n = spiel.stich.anzahl;
    if (spiel.sticheGespielt == 0 && ((n == 0 && sitz != Sitz(1)) || (n == 1 && sitz == Sitz(2))))
        zufallszahl = static_cast<int>(zufall_->rnd() * 100 + 1);
    if (eigeneTruempfe == 0) keinTrumpf[sitz][sitz] = true;
}

void Tischwissen::nachvollziehen(const Spiel& spiel) {
    const int zahl = zufallszahl;
    stumm_ = true;
    zuruecksetzen();
    parteienFestlegen(spiel);
    auto ansagenBis = [&](std::size_t stiche) {
        for (const auto& ansage : spiel.ansagen)
            if (static_cast<std::size_t>(ansage.stich) == stiche) ansageGemacht(spiel, ansage);
    };
    for (std::size_t t = 0; t < spiel.stiche.size(); ++t) {
        ansagenBis(t);
        const auto& protokoll = spiel.stiche[t];
        Stich stich;
        stich.beginnen(protokoll.aufspieler);
        for (int i = 1; i <= 4; ++i) {
            stich.karten[static_cast<std::size_t>(i - 1)] = protokoll.karten[static_cast<std::size_t>(i - 1)];
            stich.anzahl = i;
            stich.platz[stich.sitzAn(i)] = i;
            if (i == 1) stich.farbeZuBedienen = spiel.deck[stich.karte(1)].farbe;
            karteGesehen(spiel, stich, i);
        }
        stichAuswerten(spiel, stich);
    }
    ansagenBis(spiel.stiche.size());
    if (spiel.stich.anzahl < 4)
        for (int i = 1; i <= spiel.stich.anzahl; ++i) karteGesehen(spiel, spiel.stich, i);
    beobachteteKarten_ = gespielteKarten(spiel);
    begonnen_ = true;
    zufallszahl = zahl;
    stumm_ = false;
}

bool Tischwissen::aktuell(const Spiel& spiel) const {
    return begonnen_ && beobachteteKarten_ == gespielteKarten(spiel);
}

void Tischwissen::kartenGegeben(const Spiel&) {
    zuruecksetzen();
    solo.leeren();
}

void Tischwissen::spielBegonnen(const Spiel& spiel) {
    zuruecksetzen();
    parteienFestlegen(spiel);
    begonnen_ = true;
}

void Tischwissen::karteGespielt(const Spiel& spiel, Sitz, int) {
    karteGesehen(spiel, spiel.stich, spiel.stich.anzahl);
    ++beobachteteKarten_;
}

void Tischwissen::stichKomplett(const Spiel& spiel, Sitz) { stichAuswerten(spiel, spiel.stich); }

void Tischwissen::parteienGeaendert(const Spiel& spiel) {
    for (const Sitz s : alleSitze) {
        if (spiel.partei[s] == ParteiUnbekannt) continue;
        partei[s] = spiel.partei[s];
        parteiWissen[s][s] = partei[s];
    }
    // A settled Hochzeit or a declared solo is known to everybody, the indicator included.
    if (spiel.solo || spiel.hochzeitGeklaert)
        for (const Sitz x : alleSitze) {
            allenBekannt(x, partei[x]);
            parteiBekannt[x] = partei[x];
        }
    parteizeigerSetzen(spiel);
}

void Tischwissen::ansageGemacht(const Spiel& spiel, const engine::AnsageEintrag& ansage) {
    if (!ansage.limit && partei[ansage.sitz] != ParteiUnbekannt) allenBekannt(ansage.sitz, partei[ansage.sitz]);
    parteizeigerSetzen(spiel);
}

}  // namespace players

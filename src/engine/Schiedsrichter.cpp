#include "Schiedsrichter.h"

#include "Geben.h"
#include "Vorbehalte.h"

namespace engine {

namespace {
constexpr int KaroAs = kartencode(Karo, As);
constexpr int KreuzDame = kartencode(Kreuz, Dame);

int kreuzDamen(const Spiel& spiel, Sitz s) {
    int n = 0;
    for (int p = spiel.deck.erstePosition(s); p <= spiel.deck.letztePosition(s); ++p) n += spiel.deck[p].code == KreuzDame;
    return n;
}

// Strength and suit a played card must have: its ranking in the game type,
// raised to the top for the Schweine and a promoted Supersau.
Rangierung erwartet(const Spiel& spiel, int pos) {
    const int code = spiel.deck[pos].code;
    Rangierung r = rangierung(code, spiel.spieltyp);
    const Sitz besitzer = spiel.deck.besitzer(pos);
    if (spiel.schweineHalter == besitzer && code == KaroAs && spiel.spieltyp == Normalspiel) r.staerke = StaerkeJoker;
    if (spiel.supersauHalter == besitzer && istFarbspiel(spiel.spieltyp) && code == kartencode(spiel.spieltyp, As))
        r.staerke = StaerkeJoker;
    return r;
}

int stufen(int augen, int stiche, int alle) {
    return (augen > 150) + (augen > 180) + (augen > 210) + (augen == 240 && stiche == alle);
}
}  // namespace

void Schiedsrichter::pruefe(const Spiel& spiel, bool bedingung, const std::string& was) {
    if (bedingung) return;
    ++fehlerAnzahl_;
    if (fehler_.size() >= 50) return;
    fehler_.push_back("Partie " + std::to_string(spiel.partie.partieNr) + ", Spiel " +
                      std::to_string(spiel.partie.spielNr) + ", nach " + std::to_string(spiel.sticheGespielt) +
                      " Stichen: " + was);
}

void Schiedsrichter::kartenGegeben(const Spiel& spiel) {
    Kartenverteilung karten{};
    for (int p = 1; p <= MaxPositionen; ++p) karten[static_cast<std::size_t>(p - 1)] = spiel.deck[p].code;
    const std::string fehler = verteilungPruefen(karten, spiel.regeln.kartenanzahl, spiel.regeln.joker);
    pruefe(spiel, fehler.empty(), "Kartenverteilung: " + fehler);
    for (int p = 1; p <= spiel.deck.kartenanzahl(); ++p)
        pruefe(spiel, spiel.deck[p].status == InHand, "Karte nicht auf der Hand: " + std::to_string(p));
    gespielt_.fill(false);
    standVorher_ = spiel.partie.punkte;
    if (spiel.partie.spielNr == 1) bockFaellig_ = false;
}

void Schiedsrichter::parteienPruefen(const Spiel& spiel, bool amEnde) {
    ProSitz<int> soll(ParteiKontra);
    if (spiel.solo) {
        pruefe(spiel, spiel.solist.has_value(), "Solo ohne Solospieler");
        pruefe(spiel, soloErlaubt(spiel.regeln, spiel.spieltyp), "Solo nicht erlaubt");
        if (spiel.solist) soll[*spiel.solist] = ParteiSolo;
    } else if (spiel.hochzeiter) {
        const Sitz h = *spiel.hochzeiter;
        pruefe(spiel, kreuzDamen(spiel, h) == 2, "Hochzeit ohne beide Kreuz-Damen");
        soll[h] = ParteiRe;
        if (amEnde) {
            // The partner: first winner other than the Hochzeiter of a trick of the kind within three.
            std::optional<Sitz> partner;
            for (std::size_t i = 0; i < 3 && i < spiel.stiche.size() && !partner; ++i) {
                const StichProtokoll& st = spiel.stiche[i];
                const bool trumpf = rangierung(st.codes[0], spiel.spieltyp).farbe == spiel.spieltyp;
                const bool passt = spiel.hochzeitArt == ErsterStich ||
                                   (spiel.hochzeitArt == ErsterFehlstich && !trumpf) ||
                                   (spiel.hochzeitArt == ErsterTrumpfstich && trumpf);
                if (passt && st.gewinner != h) partner = st.gewinner;
            }
            if (partner) soll[*partner] = ParteiRe;
            else soll[h] = ParteiSolo;
            pruefe(spiel, spiel.hochzeitPartner == partner, "Hochzeitspartner falsch");
        }
    } else if (spiel.stillerSolist) {
        pruefe(spiel, kreuzDamen(spiel, *spiel.stillerSolist) == 2, "stilles Solo ohne beide Kreuz-Damen");
        soll[*spiel.stillerSolist] = ParteiSolo;
    } else {
        int re = 0;
        for (const Sitz s : alleSitze) {
            pruefe(spiel, kreuzDamen(spiel, s) < 2, "beide Kreuz-Damen im Normalspiel");
            if (kreuzDamen(spiel, s) > 0) {
                soll[s] = ParteiRe;
                ++re;
            }
        }
        pruefe(spiel, re == 2, "Normalspiel ohne zwei Re-Spieler");
    }
    for (const Sitz s : alleSitze)
        pruefe(spiel, spiel.partei[s] == soll[s], "Partei von Sitz " + std::to_string(s.nr()) + " ist " +
                                                      std::to_string(spiel.partei[s]) + ", erwartet " +
                                                      std::to_string(soll[s]));
}

void Schiedsrichter::spielBegonnen(const Spiel& spiel) {
    parteienPruefen(spiel, false);
    for (int p = 1; p <= spiel.deck.kartenanzahl(); ++p) {
        const Rangierung r = erwartet(spiel, p);
        // A Supersau is only raised when it is played.
        if (spiel.supersauHalter && spiel.deck[p].code == kartencode(spiel.spieltyp, As)) continue;
        pruefe(spiel, spiel.deck[p].farbe == r.farbe && spiel.deck[p].staerke == r.staerke,
               "Rang der Position " + std::to_string(p));
    }
    const bool soloVorhand = spiel.solo && spiel.regeln.vhSolo;
    pruefe(spiel, spiel.stich.aufspieler == (soloVorhand ? *spiel.solist : spiel.vorhand), "falscher erster Aufspieler");
}

void Schiedsrichter::karteGespielt(const Spiel& spiel, Sitz sitz, int pos) {
    const Stich& stich = spiel.stich;
    const Deck& deck = spiel.deck;
    pruefe(spiel, stich.anzahl >= 1 && stich.sitzAn(stich.anzahl) == sitz && stich.karte(stich.anzahl) == pos,
           "Karte nicht vom Sitz am Zug");
    pruefe(spiel, pos >= deck.erstePosition(sitz) && pos <= deck.letztePosition(sitz), "fremde Karte gespielt");
    pruefe(spiel, !gespielt_[static_cast<std::size_t>(pos)] && deck[pos].status == Gespielt, "Karte doppelt gespielt");
    gespielt_[static_cast<std::size_t>(pos)] = true;
    if (stich.anzahl > 1 && deck[pos].farbe != stich.farbeZuBedienen) {
        for (int p = deck.erstePosition(sitz); p <= deck.letztePosition(sitz); ++p)
            pruefe(spiel, p == pos || deck[p].status != InHand || deck[p].farbe != stich.farbeZuBedienen,
                   "nicht bedient, obwohl möglich (Position " + std::to_string(pos) + ")");
    }
}

void Schiedsrichter::stichKomplett(const Spiel& spiel, Sitz gewinner) {
    const Stich& stich = spiel.stich;
    bool trumpf = false;
    for (int i = 1; i <= 4; ++i) trumpf = trumpf || erwartet(spiel, stich.karte(i)).farbe == spiel.spieltyp;
    const int entscheidend = trumpf ? spiel.spieltyp : erwartet(spiel, stich.karte(1)).farbe;
    int besterPlatz = 0, besteStaerke = -1, augen = 0;
    for (int i = 1; i <= 4; ++i) {
        const int pos = stich.karte(i);
        const Rangierung r = erwartet(spiel, pos);
        pruefe(spiel, spiel.deck[pos].staerke == r.staerke && spiel.deck[pos].farbe == r.farbe,
               "Rang der gespielten Position " + std::to_string(pos));
        augen += spiel.deck[pos].augen;
        if (r.farbe != entscheidend) continue;
        const bool zweiteDolle = r.staerke == StaerkeDolle && r.staerke == besteStaerke && !spiel.regeln.herzZehn;
        if (r.staerke > besteStaerke || zweiteDolle) {
            besterPlatz = i;
            besteStaerke = r.staerke;
        }
    }
    pruefe(spiel, gewinner == stich.sitzAn(besterPlatz), "Stichgewinner passt nicht zu den Stärken");
    pruefe(spiel, !spiel.stiche.empty() && spiel.stiche.back().gewinner == gewinner && spiel.stiche.back().augen == augen,
           "Stichprotokoll falsch");
    pruefe(spiel, static_cast<int>(spiel.stiche.size()) == spiel.sticheGespielt, "Stichzahl falsch");
}

void Schiedsrichter::ansageGemacht(const Spiel& spiel, const AnsageEintrag& e) {
    pruefe(spiel, e.stich == spiel.sticheGespielt, "Ansage im falschen Stich vermerkt");
    if (e.limit) {
        pruefe(spiel, e.stich < spiel.regeln.limit, "Limit nach der Frist");
        pruefe(spiel, e.stich > 0 || spiel.stich.anzahl > 0, "Limit vor der ersten Karte");
        int limits = 0;
        for (const AnsageEintrag& a : spiel.ansagen) limits += a.limit;
        pruefe(spiel, limits == 1, "mehr als ein Limit");
    } else {
        pruefe(spiel, e.stich < spiel.regeln.kontra, "Re/Kontra nach der Frist");
    }
}

void Schiedsrichter::spielBeendet(const Spiel& spiel) {
    ++spiele_;
    const Deck& deck = spiel.deck;
    int gesamt = 0;
    for (int p = 1; p <= deck.kartenanzahl(); ++p) {
        gesamt += augenVonRang(istJoker(deck[p].code) ? Neun : rangVonCode(deck[p].code));
        pruefe(spiel, deck[p].status == Gespielt, "Karte nicht gespielt: " + std::to_string(p));
    }
    pruefe(spiel, gesamt == 240, "Augen im Spiel: " + std::to_string(gesamt));
    int summe = 0, stichAugen = 0;
    for (const Sitz s : alleSitze) summe += spiel.augen[s];
    for (const StichProtokoll& st : spiel.stiche) stichAugen += st.augen;
    pruefe(spiel, summe == gesamt && stichAugen == gesamt, "Augen der Sitze: " + std::to_string(summe));
    pruefe(spiel, spiel.sticheGespielt == deck.handgroesse(), "nicht alle Stiche gespielt");
    parteienPruefen(spiel, true);
    wertungPruefen(spiel);
}

void Schiedsrichter::wertungPruefen(const Spiel& spiel) {
    const Spielergebnis& e = spiel.ergebnis;
    pruefe(spiel, e.gewertet, "nicht gewertet");
    int augenRe = 0, sticheRe = 0, sticheKontra = 0;
    for (const Sitz s : alleSitze) {
        if (seite(spiel, s) == ParteiRe) {
            augenRe += spiel.augen[s];
            sticheRe += spiel.stichzahl[s];
        } else {
            sticheKontra += spiel.stichzahl[s];
        }
    }
    pruefe(spiel, e.augenRe == augenRe && e.augenKontra == 240 - augenRe, "Augen der Parteien");

    const int alle = spiel.deck.handgroesse();
    const int augenKontra = 240 - augenRe;
    int gewinner = augenKontra >= 120 ? ParteiKontra : ParteiRe;
    int angesagt = 0;
    if (spiel.limitSitz) {
        const int ls = seite(spiel, *spiel.limitSitz);
        angesagt = 4 - spiel.limitCode;
        const bool gehalten = ls == ParteiRe ? stufen(augenRe, sticheRe, alle) >= angesagt
                                             : stufen(augenKontra, sticheKontra, alle) >= angesagt;
        gewinner = gehalten ? ls : (ls == ParteiRe ? ParteiKontra : ParteiRe);
    }
    pruefe(spiel, e.gewinner == gewinner, "Gewinner passt nicht zu den Augen");
    const int erreicht = gewinner == ParteiRe ? stufen(augenRe, sticheRe, alle) : stufen(augenKontra, sticheKontra, alle);
    pruefe(spiel, e.spielwert == 1 + erreicht + angesagt, "Spielwert " + std::to_string(e.spielwert));

    bool re = false, kontra = false;
    for (const Sitz s : alleSitze) {
        re = re || spiel.reAngesagt[s];
        kontra = kontra || spiel.kontraAngesagt[s];
    }
    pruefe(spiel, e.faktor == (re ? 2 : 1) * (kontra ? 2 : 1), "Faktor " + std::to_string(e.faktor));

    int spGewinner = 0, spVerlierer = 0;
    bool soloartig = false;
    for (const Sitz s : alleSitze) soloartig = soloartig || spiel.partei[s] == ParteiSolo;
    for (const Sonderpunkt& sp : spiel.sonderpunkte) {
        (sp.partei == gewinner ? spGewinner : spVerlierer) += 1;
        pruefe(spiel, !soloartig || sp.art == "Doppelkopf", "Sonderpunkt im Solo: " + sp.art);
        pruefe(spiel, sp.stich >= 1 && sp.stich <= alle, "Sonderpunkt ohne Stich");
        if (sp.stich >= 1 && sp.stich <= static_cast<int>(spiel.stiche.size()))
            pruefe(spiel, sp.partei == seite(spiel, spiel.stiche[static_cast<std::size_t>(sp.stich - 1)].gewinner),
                   "Sonderpunkt an die falsche Partei");
    }
    const int ergebnis = e.spielwert * e.faktor + spGewinner - spVerlierer;
    pruefe(spiel, e.ergebnis == ergebnis, "Ergebnis " + std::to_string(e.ergebnis) + ", erwartet " +
                                              std::to_string(ergebnis));
    pruefe(spiel, e.bock == (bockFaellig_ && spiel.regeln.bockrunden), "Bockspiel falsch");
    bockFaellig_ = ergebnis == 0 && spiel.regeln.bockrunden;
    int betrag = ergebnis < 0 ? -ergebnis : ergebnis;
    if (e.bock) betrag *= 2;
    const int gebucht = ergebnis < 0 ? (gewinner == ParteiRe ? ParteiKontra : ParteiRe) : gewinner;
    for (const Sitz s : alleSitze) {
        const int soll = ergebnis != 0 && seite(spiel, s) == gebucht ? betrag : 0;
        pruefe(spiel, e.punkte[s] == soll, "Punkte von Sitz " + std::to_string(s.nr()));
        pruefe(spiel, spiel.partie.punkte[s] == standVorher_[s] + e.punkte[s], "Stand von Sitz " + std::to_string(s.nr()));
    }
}

}  // namespace engine

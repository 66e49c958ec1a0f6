#include "Schiedsrichter.h"

#include "Geben.h"
#include "Vorbehalte.h"

namespace engine {

namespace {
constexpr int KaroAs = kartencode(Karo, As);
constexpr int KreuzDame = kartencode(Kreuz, Dame);

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

void Schiedsrichter::melde(const Spiel& spiel, const std::string& was) {
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
    if (!fehler.empty()) melde(spiel, "Kartenverteilung: " + fehler);
    for (int p = 1; p <= spiel.deck.kartenanzahl(); ++p)
        if (spiel.deck[p].status != InHand) melde(spiel, "Karte nicht auf der Hand: " + std::to_string(p));
    gespielt_.fill(false);
    standVorher_ = spiel.partie.punkte;
    if (spiel.partie.spielNr == 1) bockFaellig_ = false;
}

void Schiedsrichter::parteienPruefen(const Spiel& spiel, bool amEnde) {
    ProSitz<int> soll(ParteiKontra);
    if (spiel.solo) {
        if (!spiel.solist) melde(spiel, "Solo ohne Solospieler");
        if (!soloErlaubt(spiel.regeln, spiel.spieltyp)) melde(spiel, "Solo nicht erlaubt");
        if (spiel.solist) soll[*spiel.solist] = ParteiSolo;
    } else if (spiel.hochzeiter) {
        const Sitz h = *spiel.hochzeiter;
        if (spiel.deck.anzahl(h, KreuzDame) != 2) melde(spiel, "Hochzeit ohne beide Kreuz-Damen");
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
            if (partner)
                soll[*partner] = ParteiRe;
            else
                soll[h] = ParteiSolo;
            if (spiel.hochzeitPartner != partner) melde(spiel, "Hochzeitspartner falsch");
        }
    } else if (spiel.stillerSolist) {
        if (spiel.deck.anzahl(*spiel.stillerSolist, KreuzDame) != 2)
            melde(spiel, "stilles Solo ohne beide Kreuz-Damen");
        soll[*spiel.stillerSolist] = ParteiSolo;
    } else {
        int re = 0;
        for (const Sitz s : alleSitze) {
            if (spiel.deck.anzahl(s, KreuzDame) >= 2) melde(spiel, "beide Kreuz-Damen im Normalspiel");
            if (spiel.deck.anzahl(s, KreuzDame) > 0) {
                soll[s] = ParteiRe;
                ++re;
            }
        }
        if (re != 2) melde(spiel, "Normalspiel ohne zwei Re-Spieler");
    }
    for (const Sitz s : alleSitze)
        if (spiel.partei[s] != soll[s])
            melde(spiel, "Partei von Sitz " + std::to_string(s.nr()) + " ist " + std::to_string(spiel.partei[s]) +
                             ", erwartet " + std::to_string(soll[s]));
}

void Schiedsrichter::spielBegonnen(const Spiel& spiel) {
    parteienPruefen(spiel, false);
    for (int p = 1; p <= spiel.deck.kartenanzahl(); ++p) {
        const Rangierung r = erwartet(spiel, p);
        // A Supersau is only raised when it is played.
        if (spiel.supersauHalter && spiel.deck[p].code == kartencode(spiel.spieltyp, As)) continue;
        if (!(spiel.deck[p].farbe == r.farbe && spiel.deck[p].staerke == r.staerke))
            melde(spiel, "Rang der Position " + std::to_string(p));
    }
    const bool soloVorhand = spiel.solo && spiel.regeln.vhSolo;
    if (!(spiel.stich.aufspieler == (soloVorhand ? *spiel.solist : spiel.vorhand)))
        melde(spiel, "falscher erster Aufspieler");
}

void Schiedsrichter::karteGespielt(const Spiel& spiel, Sitz sitz, int pos) {
    const Stich& stich = spiel.stich;
    const Deck& deck = spiel.deck;
    if (!(stich.anzahl >= 1 && stich.sitzAn(stich.anzahl) == sitz && stich.karte(stich.anzahl) == pos))
        melde(spiel, "Karte nicht vom Sitz am Zug");
    if (!(pos >= deck.erstePosition(sitz) && pos <= deck.letztePosition(sitz))) melde(spiel, "fremde Karte gespielt");
    if (gespielt_[static_cast<std::size_t>(pos)] || deck[pos].status != Gespielt)
        melde(spiel, "Karte doppelt gespielt");
    gespielt_[static_cast<std::size_t>(pos)] = true;
    if (stich.anzahl > 1 && deck[pos].farbe != stich.farbeZuBedienen) {
        for (int p = deck.erstePosition(sitz); p <= deck.letztePosition(sitz); ++p)
            if (p != pos && deck[p].status == InHand && deck[p].farbe == stich.farbeZuBedienen)
                melde(spiel, "nicht bedient, obwohl möglich (Position " + std::to_string(pos) + ")");
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
        if (!(spiel.deck[pos].staerke == r.staerke && spiel.deck[pos].farbe == r.farbe))
            melde(spiel, "Rang der gespielten Position " + std::to_string(pos));
        augen += spiel.deck[pos].augen;
        if (r.farbe != entscheidend) continue;
        const bool zweiteDolle = r.staerke == StaerkeDolle && r.staerke == besteStaerke && !spiel.regeln.herzZehn;
        if (r.staerke > besteStaerke || zweiteDolle) {
            besterPlatz = i;
            besteStaerke = r.staerke;
        }
    }
    if (gewinner != stich.sitzAn(besterPlatz)) melde(spiel, "Stichgewinner passt nicht zu den Stärken");
    if (!(!spiel.stiche.empty() && spiel.stiche.back().gewinner == gewinner && spiel.stiche.back().augen == augen))
        melde(spiel, "Stichprotokoll falsch");
    if (static_cast<int>(spiel.stiche.size()) != spiel.sticheGespielt) melde(spiel, "Stichzahl falsch");
}

void Schiedsrichter::ansageGemacht(const Spiel& spiel, const AnsageEintrag& e) {
    if (e.stich != spiel.sticheGespielt) melde(spiel, "Ansage im falschen Stich vermerkt");
    if (e.limit) {
        if (e.stich >= spiel.regeln.limit) melde(spiel, "Limit nach der Frist");
        if (!(e.stich > 0 || spiel.stich.anzahl > 0)) melde(spiel, "Limit vor der ersten Karte");
        int limits = 0;
        for (const AnsageEintrag& a : spiel.ansagen) limits += a.limit;
        if (limits != 1) melde(spiel, "mehr als ein Limit");
    } else {
        if (e.stich >= spiel.regeln.kontra) melde(spiel, "Re/Kontra nach der Frist");
    }
}

void Schiedsrichter::spielBeendet(const Spiel& spiel) {
    ++spiele_;
    const Deck& deck = spiel.deck;
    int gesamt = 0;
    for (int p = 1; p <= deck.kartenanzahl(); ++p) {
        gesamt += augenVonRang(istJoker(deck[p].code) ? Neun : rangVonCode(deck[p].code));
        if (deck[p].status != Gespielt) melde(spiel, "Karte nicht gespielt: " + std::to_string(p));
    }
    if (gesamt != 240) melde(spiel, "Augen im Spiel: " + std::to_string(gesamt));
    int summe = 0, stichAugen = 0;
    for (const Sitz s : alleSitze) summe += spiel.augen[s];
    for (const StichProtokoll& st : spiel.stiche) stichAugen += st.augen;
    if (!(summe == gesamt && stichAugen == gesamt)) melde(spiel, "Augen der Sitze: " + std::to_string(summe));
    if (spiel.sticheGespielt != deck.handgroesse()) melde(spiel, "nicht alle Stiche gespielt");
    parteienPruefen(spiel, true);
    wertungPruefen(spiel);
}

void Schiedsrichter::wertungPruefen(const Spiel& spiel) {
    const Spielergebnis& e = spiel.ergebnis;
    if (!e.gewertet) melde(spiel, "nicht gewertet");
    int augenRe = 0, sticheRe = 0, sticheKontra = 0;
    for (const Sitz s : alleSitze) {
        if (seite(spiel, s) == ParteiRe) {
            augenRe += spiel.augen[s];
            sticheRe += spiel.stichzahl[s];
        } else {
            sticheKontra += spiel.stichzahl[s];
        }
    }
    if (!(e.augenRe == augenRe && e.augenKontra == 240 - augenRe)) melde(spiel, "Augen der Parteien");

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
    if (e.gewinner != gewinner) melde(spiel, "Gewinner passt nicht zu den Augen");
    const int erreicht =
        gewinner == ParteiRe ? stufen(augenRe, sticheRe, alle) : stufen(augenKontra, sticheKontra, alle);
    if (e.spielwert != 1 + erreicht + angesagt) melde(spiel, "Spielwert " + std::to_string(e.spielwert));

    bool re = false, kontra = false;
    for (const Sitz s : alleSitze) {
        re = re || spiel.reAngesagt[s];
        kontra = kontra || spiel.kontraAngesagt[s];
    }
    if (!(e.faktor == (re ? 2 : 1) * (kontra ? 2 : 1))) melde(spiel, "Faktor " + std::to_string(e.faktor));

    int spGewinner = 0, spVerlierer = 0;
    bool soloartig = false;
    for (const Sitz s : alleSitze) soloartig = soloartig || spiel.partei[s] == ParteiSolo;
    for (const Sonderpunkt& sp : spiel.sonderpunkte) {
        (sp.partei == gewinner ? spGewinner : spVerlierer) += 1;
        if (soloartig && sp.art != "Doppelkopf") melde(spiel, "Sonderpunkt im Solo: " + sp.art);
        if (!(sp.stich >= 1 && sp.stich <= alle)) melde(spiel, "Sonderpunkt ohne Stich");
        if (sp.stich >= 1 && sp.stich <= static_cast<int>(spiel.stiche.size()))
            if (sp.partei != seite(spiel, spiel.stiche[static_cast<std::size_t>(sp.stich - 1)].gewinner))
                melde(spiel, "Sonderpunkt an die falsche Partei");
    }
    const int ergebnis = e.spielwert * e.faktor + spGewinner - spVerlierer;
    if (e.ergebnis != ergebnis)
        melde(spiel, "Ergebnis " + std::to_string(e.ergebnis) + ", erwartet " + std::to_string(ergebnis));
    if (!(e.bock == (bockFaellig_ && spiel.regeln.bockrunden))) melde(spiel, "Bockspiel falsch");
    bockFaellig_ = ergebnis == 0 && spiel.regeln.bockrunden;
    int betrag = ergebnis < 0 ? -ergebnis : ergebnis;
    if (e.bock) betrag *= 2;
    const int gebucht = ergebnis < 0 ? (gewinner == ParteiRe ? ParteiKontra : ParteiRe) : gewinner;
    for (const Sitz s : alleSitze) {
        const int soll = ergebnis != 0 && seite(spiel, s) == gebucht ? betrag : 0;
        if (e.punkte[s] != soll) melde(spiel, "Punkte von Sitz " + std::to_string(s.nr()));
        if (spiel.partie.punkte[s] != standVorher_[s] + e.punkte[s])
            melde(spiel, "Stand von Sitz " + std::to_string(s.nr()));
    }
}

}  // namespace engine

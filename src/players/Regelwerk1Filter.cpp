// The filters of the follow procedures as they stood before the whole following rule
// book, frozen with them for the player kind "regelwerk1". Do not improve.
#include <string>
#include <utility>

#include "Regelwerk1Hilfen.h"
#include "Texte.h"
#include "Verfahren.h"

namespace players::regelwerk1 {

using namespace engine;
using namespace hilfe;

namespace {

std::string nr(const Lage& l, int pos) { return std::to_string(l.handNummer(pos)); }

void melden(const Lage& l, std::string_view code, std::string_view text) {
    l.melder.regel(verfahren::Filter, code, text);
}

bool zweiteDolleDraussen(const Lage& l) { return !l.spiel.regeln.herzZehn && l.werte.fremdeDollen > 0; }

// A later opponent may hold the second Dolle and take the first.
bool gegnerMitZweiterDolle(const Lage& l) {
    if (!zweiteDolleDraussen(l)) return false;
    for (const Sitz x : l.nachMir())
        if (l.feind(x) && !l.ohneTrumpf(x) && (l.trumpfGefuehrt || l.frei(x, l.zuBedienen))) return true;
    return false;
}

bool partnerOhneTrumpf(const Lage& l) {
    for (const Sitz x : alleSitze)
        if (x != l.ich && l.freund(x) && l.ohneTrumpf(x)) return true;
    return false;
}

int zufaelligeFarbkarte(const Lage& l) { return l.zufaellige(l.auswahl([&](int p) { return !l.istTrumpf(p); })); }

}  // namespace

int freispielenFilter(const Lage& l, int karte) {
    if (karte == 0 || l.anzahl == 0 || l.istTrumpf(karte) || l.schlaegt(karte) || l.augen(karte) < 4 ||
        l.wissen.partei[l.ich] == ParteiSolo)
        return karte;
    // Throwing a lone König instead of a card of equal worth frees that suit for trumping.
    for (int f : {Kreuz, Pik, Herz}) {
        if (f == l.trumpf || f == l.karte(karte).farbe || l.anzahlInHand(f) != 1) continue;
        const int koenig = l.werte.eigeneBeste[static_cast<std::size_t>(f)];
        if (l.karte(koenig).wert == WertKoenig && l.augen(koenig) <= l.augen(karte)) {
            melden(l, "Freispielen", text::Freispielen);
            return koenig;
        }
    }
    return karte;
}

int dolleBeimUebernehmen(const Lage& l, int karte) {
    if (karte == 0 || l.anzahl == 0) return karte;
    if (l.istDolle(karte) && gegnerMitZweiterDolle(l)) {
        const int statt = billigste(l, [&](int p) { return l.schlaegt(p) && !l.istDolle(p); });
        if (statt != 0) {
            melden(l, "Dolle", std::string(text::UebernehmeStatt) + nr(l, karte) + std::string(text::KarteNunmehrMit) +
                                   nr(l, statt) + std::string(text::DolleNichtAnNachfolgenden));
            return statt;
        }
    }
    // With two cards left a kept Dolle would have to lead the last trick and lose.
    if (!l.istDolle(karte) && l.hand.size() == 2 && zweiteDolleDraussen(l)) {
        const int dolle = billigste(l, [&](int p) { return l.istDolle(p) && l.schlaegt(p); });
        if (dolle != 0) {
            melden(l, "Dolle", std::string(text::UebernehmeStatt) + nr(l, karte) + std::string(text::DolleNichtImLetzten));
            return dolle;
        }
    }
    return karte;
}

int dolleNagelnFilter(const Lage& l, int karte) {
    if (karte == 0 || l.anzahl == 0 || !l.schlaegt(karte)) return karte;
    // A trick worth having is made safe with the cheapest card that nails it.
    if (!l.nagelt(karte) && l.augenImStich + l.augen(karte) >= 10) {
        const int sicher = billigste(l, [&](int p) { return l.nagelt(p); });
        if (sicher != 0 && sicher != karte) {
            melden(l, "Nageln", std::string(text::NageleStatt) + nr(l, karte) + std::string(text::KarteNunmehrMit) +
                                    nr(l, sicher) +
                                    std::string(l.istSchwein(sicher) ? text::KarteSchweinEnde : text::KarteEnde));
            return sicher;
        }
    }
    // No need to spend the Dolle where a smaller card nails the trick as well (unless
    // it is played now so that it need not lead the last trick).
    if (l.istDolle(karte) && l.nagelt(karte) && !(l.hand.size() == 2 && zweiteDolleDraussen(l))) {
        const int kleiner = billigste(l, [&](int p) { return l.nagelt(p) && !l.istDolle(p) && l.staerke(p) < StaerkeDolle; });
        if (kleiner != 0) {
            melden(l, "Nageln", std::string(text::NageleStattDolle) + nr(l, kleiner) + std::string(text::KarteEnde));
            return kleiner;
        }
    }
    return karte;
}

int fuchsKarlchenDolleFilter(const Lage& l, int karte) {
    if (karte == 0 || !l.istTrumpf(karte)) return karte;
    const bool folgen = l.anzahl > 0;
    const bool karlchenZaehlt = l.spiel.regeln.sopuKarlchen && !l.letzterStich();

    if (folgen && l.istKarlchen(karte) && karlchenZaehlt && partnerOhneTrumpf(l)) {
        const bool gewinnt = l.schlaegt(karte);
        const int statt = billigste(l, [&](int p) { return l.istTrumpf(p) && !l.istKarlchen(p) && l.schlaegt(p) == gewinnt; });
        if (statt != 0) {
            melden(l, "KM", text::SchoneKm);
            return statt;
        }
    }
    if (folgen && l.istDolle(karte) && gegnerMitZweiterDolle(l)) {
        const int statt = billigste(l, [&](int p) { return l.istTrumpf(p) && !l.istDolle(p) && l.schlaegt(p); });
        if (statt != 0) {
            melden(l, "TiefeDolle", text::TiefeDolleSuche);
            return statt;
        }
        const int klein = billigste(l, [&](int p) { return l.istTrumpf(p) && !l.istDolle(p); });
        if (klein != 0) {
            melden(l, "TiefeDolle", text::TiefeDolleKlein);
            return klein;
        }
    }
    if (!folgen && hatFarbkarte(l)) {
        if (l.istFuchs(karte) || (l.istKarlchen(karte) && karlchenZaehlt)) {
            melden(l, "FuchsKM", text::FuchsKmNicht);
            return zufaelligeFarbkarte(l);
        }
        if (l.istDolle(karte) && zweiteDolleDraussen(l)) {
            melden(l, "DolleKM", text::DolleKmNicht);
            return zufaelligeFarbkarte(l);
        }
    }
    if (folgen && l.istFigur(karte) && !l.istKarlchen(karte)) {
        // Spare the Dame or Bube when a small trump does the same job.
        const int klein = billigste(
            l, [&](int p) { return l.istTrumpf(p) && !l.istFigur(p) && !l.istZaehler(p) && !l.istDolle(p); });
        if (klein != 0) {
            const bool figurGewinnt = l.schlaegt(karte);
            if (l.schlaegt(klein)) {
                melden(l, "Figur", text::SchoneFigur);
                return klein;
            }
            if (!figurGewinnt) {
                melden(l, "Figur", text::SchoneFigur);
                l.melder.hinweis(text::SchonenNichtUebernehmen);
                l.melder.hinweis(text::FigurAuchNicht);
                return klein;
            }
            if (!l.nagelt(karte)) {
                melden(l, "Figur", text::SchoneFigur);
                l.melder.hinweis(text::SchonenNichtUebernehmen);
                l.melder.hinweis(text::FigurMoeglich);
                l.melder.hinweis(text::FigurWeiterSchonen);
                return klein;
            }
        }
    }
    if (folgen && l.istDolle(karte) && !l.schlaegt(karte)) {
        const int km = billigste(l, [&](int p) { return l.istKarlchen(p); });
        if (km != 0) {
            melden(l, "KarlchenStattDolle", text::KarlchenStattDolle);
            return km;
        }
    }
    return karte;
}

int herzFilter(const Lage& l, int karte) {
    if (karte == 0 || l.anzahl == 0 || l.trumpfGefuehrt || l.zuBedienen != Herz || !l.istTrumpf(karte)) return karte;
    // A cheap Herz trick: throw from the suit being discarded, to trump that later.
    if (l.augenImStich < 10) {
        const int abwurf = billigste(l, [&](int p) {
            const int f = l.karte(p).farbe;
            return !l.istTrumpf(p) && !l.istZaehler(p) && l.wissen.abwurfZaehler[l.ich][static_cast<std::size_t>(f)] > 0;
        });
        if (abwurf != 0) {
            melden(l, "Herz", text::HerzNichtStechen);
            return abwurf;
        }
    }
    // With many trumps there is no need to risk the Fuchs where it may be overtrumped.
    if (l.istFuchs(karte) && l.werte.eigeneTruempfe >= 5 && !l.nagelt(karte)) {
        int statt = billigste(l, [&](int p) { return l.istTrumpf(p) && !l.istFuchs(p) && l.schlaegt(p); });
        if (statt == 0) statt = billigste(l, [&](int p) { return l.istTrumpf(p) && !l.istFuchs(p); });
        if (statt != 0) {
            melden(l, "Herz", text::HerzNichtMitFuchs);
            return statt;
        }
    }
    return karte;
}

}  // namespace players::regelwerk1

// KontraPruefen and the limit rule of the computer players.
#include "Kontra.h"

#include <string>

#include "Regeltabelle.h"
#include "Solo.h"
#include "Texte.h"
#include "engine/Ansagen.h"

namespace players {

using namespace engine;

namespace {

constexpr int KreuzDame = kartencode(Kreuz, Dame);

// Augen of the own party (the own seat and believed partners) and of everybody else.
struct Augenstand {
    int eigene = 0;
    int andere = 0;
};
Augenstand augenstand(const Lage& l) {
    Augenstand a;
    for (const Sitz x : alleSitze) {
        const int augen = l.spiel.augen[x];
        const bool freund = l.freund(x);
        a.eigene += freund ? augen : 0;
        a.andere += freund ? 0 : augen;
    }
    return a;
}

template <class Test>
int zaehleInHand(const Lage& l, Test&& test) {
    int n = 0;
    for (int p : l.hand) n += test(l.karte(p));
    return n;
}

// The score of step 4: Augen so far against tricks played, then the hand and the game.
int ansagewert(const Lage& l) {
    const Spiel& s = l.spiel;
    const bool kennePartei = l.eigenePartei() != ParteiUnbekannt;
    int w = s.augen[l.ich] - 19 * s.sticheGespielt;
    const Sitz eins(1);
    w += kennePartei && (l.ich == eins || l.freund(eins)) ? 1 : -11;
    if (s.faktor > 1) w -= 59;
    if (s.hochzeiter && seite(l.eigenePartei()) == ParteiKontra) w -= 35;
    if (s.schweineHalter && !s.solo && l.schweinOeffentlich()) {
        const Sitz halter = *s.schweineHalter;
        w += l.freund(halter) ? 10 : -49;
    }
    if (s.solo && s.solist == l.ich) {
        w -= 55;
        for (const Sitz x : alleSitze)
            if (x != l.ich) w -= s.augen[x];
    } else if (s.solo) {
        w += 1;
    }
    if (l.trumpf != BubenSolo && l.trumpf != SoloOhneTrumpf)
        w += 20 * zaehleInHand(l, [](const Kartenposition& k) { return k.code == KreuzDame; });
    if (l.trumpf != SoloOhneTrumpf) {
        for (int f = Karo; f <= Kreuz; ++f) {
            if (f == l.trumpf || l.anzahlInHand(f) > 0 || l.angespielt(f) > 0) continue;
            w += 20;
            break;
        }
    }
    int asse = 0;
    int zehnen = 0;
    for (int p : l.hand) {
        const bool farbkarte = !l.istTrumpf(p);
        asse += farbkarte & (l.karte(p).wert == WertAs);
        zehnen += farbkarte & (l.karte(p).wert == WertZehn);
    }
    if (s.solo && s.solist == l.ich)
        w += 10 * asse;
    else if (s.solo)
        w += 5 * asse + zehnen;
    else
        w += 20 * asse + 10 * zehnen;
    if (s.sticheGespielt == 0) {
        w -= 20;
    } else {
        // Trump superiority: at least one trump more than every other hand.
        const int eigene = l.werte.eigeneTruempfe;
        // Hands are counted only where it matters: some hand holds at least a third of the
        // others' trumps, and none can hold more than all of them together.
        bool ueberlegen = eigene >= 1 && l.werte.fremdeTruempfe <= 3 * (eigene - 1);
        if (ueberlegen && l.werte.fremdeTruempfe > eigene - 1)
            for (const Sitz x : alleSitze)
                if (x != l.ich && eigene - 1 < truempfeInHand(s, x)) ueberlegen = false;
        if (ueberlegen) w += 11 * eigene;
    }
    return w;
}

}  // namespace

Ansagepruefung kontraPruefen(const Lage& l) {
    const Spiel& s = l.spiel;
    Ansagepruefung e;
    int& w = e.wert;
    // Leading, a seat decides before the first card of the game only.
    if (l.anzahl == 0 && s.sticheGespielt > 0) return e;

    // 1. The relevant limit and who announced it.
    const bool limitRegel = s.regeln.limit > 0;
    const int limit = limitRegel && s.limitSitz ? limitAugen(s.limitCode) : 120;
    const bool kennePartei = l.eigenePartei() != ParteiUnbekannt;
    const bool eigenesLimit = s.limitSitz && l.freund(*s.limitSitz);
    const Augenstand augen = augenstand(l);

    // 2. The opponents' limit is broken already.
    if (kennePartei && limitRegel && s.limitSitz && !eigenesLimit) {
        w = augen.eigene;
        bool gegnerDa = false;
        for (const Sitz x : alleSitze) gegnerDa = gegnerDa || l.bekannterFeind(x);
        if (gegnerDa && w >= limit && w > 0) {
            l.melder.regel(verfahren::KontraPruefen, "Limit",
                           std::string(text::GegnerLimitErreicht) + std::to_string(limit) +
                               std::string(text::GegnerLimitErreichtEnde));
            e.ansagen = true;
            return e;
        }
    }
    // 3. The own limit is in danger.
    if (limitRegel && s.limitSitz && eigenesLimit) {
        w = augen.andere;
        if (augen.andere + 11 >= limit) {
            l.melder.hinweis(text::spieler(l.ich) + std::string(text::EigenesLimitInGefahr));
            return e;
        }
    }

    // 4. The score.
    w = ansagewert(l);
    // Whether a hard rule said yes; a score that happens to be 101 is reported like any other.
    bool hart = false;

    // 5.-7. Hard rules on the Augen so far and a safe solo.
    const int noetig = seite(l.eigenePartei()) == ParteiRe ? 121 : 120;
    if (augen.eigene > 0 && augen.eigene >= noetig) {
        w = AnsageSicher;
        hart = true;
        l.melder.regel(verfahren::KontraPruefen, "Gewonnen", text::BereitsGewonnen);
    } else if ((l.trumpf != SoloOhneTrumpf || s.solist == l.ich) && l.abziehenDenkbar(AbziehenSolo)) {
        // The others end below what they need against us: 240 - noetig + 1.
        const int verlust = soloSchaetzen(s, l.ich, l.trumpf, spieltZuerstAus(s, l.ich)).augen;
        if (verlust + augen.andere <= 240 - noetig) {
            w = AnsageSicher;
            hart = true;
            l.melder.regel(verfahren::KontraPruefen, "Solo",
                           l.trumpf == SoloOhneTrumpf ? text::FleischlosSicher : text::SoloSicherGewonnen);
        }
    }
    // 8. Not winnable any more: no, unless a rule above already said yes.
    if (augen.andere >= 240 - noetig && w <= AnsageSchwelle) l.melder.hinweis(text::NichtGewinnbar);
    // 9.
    e.ansagen = w > AnsageSchwelle;
    if (e.ansagen && !hart)
        l.melder.regel(verfahren::KontraPruefen, "Wert",
                       std::string(text::AnsagewertHoch) + std::to_string(w) + std::string(text::AnsagewertHochEnde));
    return e;
}

std::optional<int> limitPruefen(const Lage& l) {
    const Spiel& s = l.spiel;
    if (l.anzahl != 0 || s.sticheGespielt == 0 || l.eigenePartei() == ParteiUnbekannt) return std::nullopt;
    for (const Sitz x : alleSitze)
        if (x != l.ich && l.glaube(x) == ParteiUnbekannt) return std::nullopt;
    if (!l.abziehenDenkbar(AbziehenLimit)) return std::nullopt;
    const Soloschaetzung e = soloSchaetzen(s, l.ich, l.trumpf, true, AbziehenLimit);
    if (!e.abziehen) return std::nullopt;
    int gegnerAugen = 0;
    int gegnerStiche = 0;
    for (const Sitz x : alleSitze) {
        if (l.freund(x)) continue;
        gegnerAugen += s.augen[x];
        gegnerStiche += s.stichzahl[x];
    }
    auto erlaubt = [&](int code) { return ansageSperre(s, l.ich, Ansage{true, code}) == Ansagesperre::Keine; };
    if (e.sicher && e.stiche == 0 && gegnerStiche == 0 && erlaubt(LimitSchwarz)) {
        l.melder.regel(verfahren::LimitPruefen, "Schwarz", text::SchwarzAnsagen);
        return LimitSchwarz;
    }
    for (int code = Keine30; code <= Keine90; ++code) {
        if (gegnerAugen + e.augen + LimitReserve >= limitAugen(code) || !erlaubt(code)) continue;
        l.melder.regel(verfahren::LimitPruefen, std::to_string(limitAugen(code)),
                       std::string(text::LimitAnsagen) + std::to_string(limitAugen(code)) +
                           std::string(text::LimitAnsagenGegner) + std::to_string(gegnerAugen) +
                           std::string(text::LimitAnsagenRest) + std::to_string(e.augen) +
                           std::string(text::LimitAnsagenEnde));
        return code;
    }
    return std::nullopt;
}

}  // namespace players

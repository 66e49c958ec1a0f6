#include "Ansagen.h"

namespace engine {

using namespace ansagetext;

std::string periodeText(int n) {
    if (n <= 0) return std::string(Unzulaessig);
    return "bis einschließlich " + std::to_string(n) + ". Stich";
}

int limitAugen(int limitCode) { return limitCode >= Keine30 && limitCode <= Keine90 ? limitCode * 30 : 0; }

std::string limitMenuetext(int limitCode) {
    if (limitCode == LimitSchwarz) return std::string("Limitgebot (kein") + " Stich)";
    return std::string("Limitgebot (kein") + "e " + std::to_string(limitAugen(limitCode)) + ")";
}

bool parteiHatAngesagt(const Spiel& spiel, int seiteNr) {
    for (const Sitz s : alleSitze) {
        if (seiteNr == ParteiRe && spiel.reAngesagt[s]) return true;
        if (seiteNr == ParteiKontra && spiel.kontraAngesagt[s]) return true;
    }
    return false;
}

int faktorAusAnsagen(const Spiel& spiel) {
    return (parteiHatAngesagt(spiel, ParteiRe) ? 2 : 1) * (parteiHatAngesagt(spiel, ParteiKontra) ? 2 : 1);
}

Ansagesperre ansageSperre(const Spiel& spiel, Sitz sitz, const Ansage& ansage) {
    const Spielphase phase = spiel.ablauf.phase;
    if (phase != Spielphase::Kartenspiel && phase != Spielphase::StichVoll) return Ansagesperre::NichtJetzt;
    if (!ansage.limit) {
        if (spiel.regeln.kontra <= 0) return Ansagesperre::KeineAnsagen;
        if (spiel.sticheGespielt >= spiel.regeln.kontra) return Ansagesperre::FristVorbei;
        if (parteiHatAngesagt(spiel, seite(spiel, sitz))) return Ansagesperre::SchonAngesagt;
        return Ansagesperre::Keine;
    }
    if (spiel.regeln.limit <= 0) return Ansagesperre::KeineLimits;
    if (ansage.limitCode < LimitSchwarz || ansage.limitCode > Keine90) return Ansagesperre::NichtJetzt;
    if (spiel.sticheGespielt == 0 && spiel.stich.anzahl == 0) return Ansagesperre::VorErsterKarte;
    if (spiel.sticheGespielt >= spiel.regeln.limit) return Ansagesperre::FristVorbei;
    if (spiel.limitSitz) return Ansagesperre::LimitSchon;
    return Ansagesperre::Keine;
}

std::string_view sperrText(Ansagesperre sperre) {
    switch (sperre) {
        case Ansagesperre::NichtJetzt: return NichtJetzt;
        case Ansagesperre::KeineAnsagen: return KeineAnsagen;
        case Ansagesperre::KeineLimits: return KeineLimits;
        case Ansagesperre::FristVorbei: return FristVorbei;
        case Ansagesperre::VorErsterKarte: return LimitVorErsterKarte;
        case Ansagesperre::LimitSchon: return LimitSchonAngesagt;
        case Ansagesperre::Keine:
        case Ansagesperre::SchonAngesagt: break;
    }
    return {};
}

std::optional<std::string> ansageVerweigert(const Spiel& spiel, Sitz sitz, const Ansage& ansage) {
    const Ansagesperre sperre = ansageSperre(spiel, sitz, ansage);
    if (sperre == Ansagesperre::Keine) return std::nullopt;
    return std::string(sperrText(sperre));
}

AnsageEintrag ansageEintragen(Spiel& spiel, Sitz sitz, const Ansage& ansage) {
    AnsageEintrag e;
    e.sitz = sitz;
    e.limit = ansage.limit;
    e.partei = seite(spiel, sitz);
    e.stich = spiel.sticheGespielt;
    AnsagenImStich& protokoll = spiel.ansagenProStich[static_cast<std::size_t>(spiel.sticheGespielt)];
    if (ansage.limit) {
        e.limitCode = ansage.limitCode;
        spiel.limitSitz = sitz;
        spiel.limitCode = ansage.limitCode;
        protokoll.limitSitz = sitz.nr();
        protokoll.limitCode = ansage.limitCode;
    } else if (e.partei == ParteiRe) {
        spiel.reAngesagt[sitz] = true;
        protokoll.re = true;
    } else {
        spiel.kontraAngesagt[sitz] = true;
        protokoll.kontra = true;
    }
    spiel.faktor = faktorAusAnsagen(spiel);
    spiel.ansagen.push_back(e);
    return e;
}

Meldung ansageMeldung(const Spiel& spiel, const AnsageEintrag& e) {
    const std::string& name = spiel.namen[e.sitz];
    if (e.limit) {
        const std::string text = e.limitCode == LimitSchwarz
                                     ? name + " sagt SCHWARZ an."
                                     : name + " sagt ein Limit von " + std::to_string(limitAugen(e.limitCode)) + " an.";
        return {Meldungsart::Ansage, std::string(TitelLimit), text, e.sitz, {}};
    }
    if (e.partei == ParteiRe)
        return {Meldungsart::Ansage, std::string(TitelRe), name + std::string(RuftReAus), e.sitz, {}};
    return {Meldungsart::Ansage, std::string(TitelKontra), name + std::string(GibtKontra), e.sitz, {}};
}

std::vector<Meldung> ansagenUmwandeln(Spiel& spiel) {
    std::vector<Meldung> meldungen;
    const std::string titel(TitelUmwandlung);
    for (const Sitz s : alleSitze) {
        const std::string& name = spiel.namen[s];
        const int seiteNr = seite(spiel, s);
        if (spiel.reAngesagt[s] && seiteNr == ParteiKontra) {
            spiel.reAngesagt[s] = false;
            spiel.kontraAngesagt[s] = true;
            meldungen.push_back({Meldungsart::Umwandlung,
                                 titel,
                                 "Das bereits von " + name + " " + "angesagte Re wird jetzt in ein Kontra umgewandelt!",
                                 s,
                                 {}});
        } else if (spiel.kontraAngesagt[s] && seiteNr == ParteiRe) {
            spiel.kontraAngesagt[s] = false;
            spiel.reAngesagt[s] = true;
            const std::string von = spiel.partei[s] == ParteiSolo ? "Das bereits vom Solospieler " : "Das bereits von ";
            meldungen.push_back({Meldungsart::Umwandlung,
                                 titel,
                                 von + name + " " + "angesagte Kontra wird jetzt in ein Re umgewandelt!",
                                 s,
                                 {}});
        }
    }
    spiel.faktor = faktorAusAnsagen(spiel);
    return meldungen;
}

Ansagemenue ansagemenue(const Spiel& spiel, Sitz sitz) {
    Ansagemenue m;
    const bool re = seite(spiel, sitz) == ParteiRe;
    const bool angesagt = parteiHatAngesagt(spiel, re ? ParteiRe : ParteiKontra);
    m.reKontra.text =
        std::string(re ? (angesagt ? ReAusgerufen : ReAusrufen) : (angesagt ? KontraGegeben : KontraGeben));
    m.reKontra.aktiv = ansageSperre(spiel, sitz, Ansage{}) == Ansagesperre::Keine;
    for (int code = LimitSchwarz; code <= Keine90; ++code) {
        Menuepunkt& p = m.limits[static_cast<std::size_t>(code)];
        p.text = limitMenuetext(code);
        p.aktiv = ansageSperre(spiel, sitz, Ansage{true, code}) == Ansagesperre::Keine;
        p.markiert = spiel.limitSitz.has_value() && spiel.limitCode == code;
        m.limit.aktiv = m.limit.aktiv || p.aktiv;
    }
    m.limit.text = spiel.limitSitz ? limitMenuetext(spiel.limitCode) : std::string(Limitgebot);
    m.limit.markiert = spiel.limitSitz.has_value();
    return m;
}

}  // namespace engine

// AusspielWaehlen: the lead. Pulling trump first, then the chain of lead strategies
// (the first that yields a card wins), then the two trump filters.
#include <algorithm>
#include <array>
#include <string>

#include "Regelhilfen.h"
#include "Solo.h"
#include "Texte.h"
#include "Verfahren.h"

namespace players {

using namespace engine;
using namespace hilfe;

namespace {

std::size_t fi(int farbe) { return static_cast<std::size_t>(farbe); }

bool istFarbe(const Lage& l, int f) { return f >= 1 && f <= 4 && f != l.trumpf; }

// Own trumps that beat every trump still out when led (an equal card led first wins,
// but a second Dolle takes the first where that rule is in force).
int uebermaechtigeTruempfe(const Lage& l) {
    const int fremd = l.werte.hoechsterFremderTrumpf;
    const bool gleichSchlaegt = !(fremd == StaerkeDolle && !l.spiel.regeln.herzZehn);
    int n = 0;
    for (int p : l.hand) {
        const int s = l.staerke(p);
        n += l.istTrumpf(p) & ((s > fremd) | ((s == fremd) & gleichSchlaegt));
    }
    return n;
}

// KannTrumpfAbziehen: the own top trumps pull all the others'. A soloist counts on the
// others' trumps being spread, as his solo evaluation does.
bool kannTrumpfAbziehen(const Lage& l, int oben) {
    if (oben >= l.werte.fremdeTruempfe) return true;
    return l.wissen.partei[l.ich] == ParteiSolo && l.abziehenDenkbar(AbziehenSolo) &&
           soloSchaetzen(l.spiel, l.ich, l.trumpf, true).abziehen;
}
bool kannTrumpfAbziehen(const Lage& l) { return kannTrumpfAbziehen(l, uebermaechtigeTruempfe(l)); }
// Second form: also when no Dolle is out against the own highest trump.
bool kannTrumpfAbziehen2(const Lage& l) {
    const int oben = uebermaechtigeTruempfe(l);
    return kannTrumpfAbziehen(l, oben) || (l.werte.fremdeDollen == 0 && oben >= 1);
}
void abziehenMelden(const Lage& l, bool zweiteForm) {
    if (!l.melder.zeigt()) return;
    if (kannTrumpfAbziehen(l)) {
        if (l.spiel.solo)
            l.melder.hinweis(text::spieler(l.ich) + std::string(text::KannTrumpffarbe) + std::to_string(l.trumpf) +
                             std::string(text::TatsaechlichAbziehen));
        else
            l.melder.hinweis(text::spieler(l.ich) + std::string(text::KannAbziehen));
    } else if (zweiteForm) {
        l.melder.hinweis(text::spieler(l.ich) + std::string(text::KannAbziehenKeineDolle));
    }
}

// Some other seat, not known as partner, may still hold trump.
bool gegnerKannTrumpfHaben(const Lage& l) {
    for (const Sitz x : alleSitze)
        if (l.feind(x) && !l.ohneTrumpf(x)) return true;
    return false;
}

int eigenerTrumpfNachRang(const Lage& l, int rang) {
    Kartenliste t = l.hand;
    t.behalten([&](int p) { return l.istTrumpf(p); });
    t.sortieren([&](int a, int b) { return l.staerke(a) > l.staerke(b); });
    return rang < static_cast<int>(t.size()) ? t[static_cast<std::size_t>(rang)] : 0;
}

// The own trumps at the top of all trumps left, without a gap: those at least as strong as
// the others' best (of equal ones the own counts first).
int hoechsteInFolge(const Lage& l) {
    const int fremd = l.werte.hoechsterFremderTrumpf;
    int n = 0;
    for (int p : l.hand) n += l.istTrumpf(p) && l.staerke(p) >= fremd;
    return n;
}

int kleinsteFarbkarte(const Lage& l) {
    int beste = 0;
    for (int p : l.hand)
        if (!l.istTrumpf(p) && (beste == 0 || std::make_pair(l.augen(p), l.staerke(p)) <
                                                  std::make_pair(l.augen(beste), l.staerke(beste))))
            beste = p;
    return beste;
}

// A suit in which a seat that may trump is known void: leading it invites a ruff.
bool gegnerStichtFarbe(const Lage& l, int f) {
    for (const Sitz x : alleSitze)
        if (l.feind(x) && l.frei(x, f) && !l.ohneTrumpf(x)) return true;
    return false;
}

// --- The strategies.

int fleischlos(const Lage& l) {
    const int f = l.werte.langeFarbe;
    if (f == 0 || l.anzahlInHand(f) == 0) return 0;
    if (l.angespielt(f) == 0) return l.werte.eigeneBeste[fi(f)];  // the top card either way
    return l.stehende(f);
}

int blankeDolle(const Lage& l) {
    if (!gegnerKannTrumpfHaben(l) || l.werte.fremdeDollen < 1 || l.spiel.solo || !l.spiel.regeln.herzZehn ||
        l.werte.eigeneTruempfe != 1)
        return 0;
    const int t = l.hoechsterTrumpf();
    return l.istDolle(t) ? t : 0;
}

int asAusspielen(const Lage& l) {
    Kartenliste asse = l.hand;
    asse.behalten([&](int p) { return !l.istTrumpf(p) && l.karte(p).wert == WertAs; });
    Kartenliste kandidaten;
    bool zweiteRunde = false;
    for (int p : asse) {
        const int f = l.karte(p).farbe;
        if (gegnerStichtFarbe(l, f)) continue;
        if (l.angespielt(f) == 0) kandidaten.push_back(p);
    }
    if (kandidaten.empty() && !gegnerKannTrumpfHaben(l)) {
        // Nobody can trump any more: an As of a suit led before still runs.
        kandidaten = asse;
        zweiteRunde = !kandidaten.empty();
    }
    if (kandidaten.empty()) return 0;
    auto asseDerFarbe = [&](int f) {
        return std::count_if(asse.begin(), asse.end(), [&](int p) { return l.karte(p).farbe == f; });
    };
    int wahl = 0;
    std::string_view text;
    if (asse.size() == 1) {
        wahl = kandidaten.front();
        text = text::EinzigesAs;
    } else {
        for (int p : kandidaten) {
            const int f = l.karte(p).farbe;
            if (asseDerFarbe(f) != 1) continue;
            if (wahl == 0 || l.anzahlInHand(f) < l.anzahlInHand(l.karte(wahl).farbe)) wahl = p;
        }
        text = text::EinfachesAs;
        if (wahl == 0) {
            wahl = kandidaten.front();
            text = text::DoppelAs;
        }
    }
    if (l.melder.zeigt()) {
        l.melder.hinweis(text::spieler(l.ich) + std::string(text));
        if (zweiteRunde && l.angespielt(l.karte(wahl).farbe) > 0) {
            l.melder.hinweis(text::AsVersaeumt);
            l.melder.hinweis(text::Versager);
        }
    }
    return wahl;
}

int kleinsteSingle(const Lage& l) {
    if (l.trumpf == SoloOhneTrumpf || l.werte.eigeneTruempfe == 0) return 0;
    int wahl = 0;
    for (int p : l.hand) {
        const int f = l.karte(p).farbe;
        if (!istFarbe(l, f) || l.anzahlInHand(f) != 1 || l.istZaehler(p)) continue;
        if (wahl == 0 || l.staerke(p) < l.staerke(wahl)) wahl = p;
    }
    return wahl;
}

int keinerKannStechen(const Lage& l) {
    if (l.werte.fremdeTruempfe != 0 && l.trumpf != SoloOhneTrumpf) return 0;
    for (int f = 1; f <= 4; ++f)
        if (istFarbe(l, f))
            if (const int k = l.stehende(f)) return k;
    return 0;
}

int freispielen(const Lage& l) {
    if (l.wissen.partei[l.ich] == ParteiSolo) return 0;
    int wahl = 0;
    for (int f : {Kreuz, Pik, Herz}) {
        if (!istFarbe(l, f) || l.anzahlInHand(f) != 1) continue;
        const int k = l.werte.eigeneBeste[fi(f)];
        if (l.karte(k).wert != WertKoenig || l.augen(k) >= 10) continue;
        if (wahl == 0 || l.augen(k) < l.augen(wahl)) wahl = k;
    }
    return wahl;
}

int trumpfVonOben(const Lage& l) {
    if (!gegnerKannTrumpfHaben(l)) return 0;
    const int oben = l.hoechsterTrumpf();
    if (oben == 0) return 0;
    bool markierterGegner = false;
    for (const Sitz x : alleSitze)
        if (l.wissen.trumpfPartnerMarke[x][l.ich] && l.bekannterFeind(x)) markierterGegner = true;
    if (markierterGegner && l.werte.fremdeTruempfe > 0) {
        if (!l.istZaehler(oben) || !kannTrumpfAbziehen2(l)) return oben;
        const int darunter = eigenerTrumpfNachRang(l, 1);
        if (darunter == 0 || l.istZaehler(darunter)) {
            l.melder.hinweis(text::ZaehlerNichtOpfern);
            return 0;
        }
        l.melder.hinweis(text::NichtMitZaehler);
        return darunter;
    }
    if (!markierterGegner && kannTrumpfAbziehen2(l)) {
        abziehenMelden(l, true);
        l.melder.hinweis(text::VonObenAbziehen);
        return oben;
    }
    const int n = hoechsteInFolge(l);
    if (n > 2 && l.werte.fremdeTruempfe < n * n) {
        l.melder.hinweis(text::DreiHoechste);
        return oben;
    }
    return 0;
}

int absenteFarbe(const Lage& l) {
    for (int f = 1; f <= 4; ++f) {
        if (!istFarbe(l, f) || l.anzahlInHand(f) == 0) continue;
        bool keinGegnerHat = true;
        for (const Sitz x : alleSitze)
            if (l.feind(x) && !(l.frei(x, f) && l.ohneTrumpf(x))) keinGegnerHat = false;
        if (keinGegnerHat) {
            l.melder.hinweis(text::FarbeGegnerNicht);
            return l.werte.eigeneBeste[fi(f)];
        }
    }
    if (l.werte.eigeneTruempfe == 0) {
        int wahl = 0;
        for (int f = 1; f <= 4; ++f) {
            const int k = istFarbe(l, f) ? l.stehende(f) : 0;
            if (k != 0 && (wahl == 0 || l.staerke(k) > l.staerke(wahl))) wahl = k;
        }
        if (wahl != 0) {
            l.melder.hinweis(text::IrgendeineFarbe);
            return wahl;
        }
    }
    if (l.nurTrumpf()) {
        int hoch = 0;
        for (int p : l.hand)
            if (!l.istFigur(p) && (hoch == 0 || l.staerke(p) > l.staerke(hoch))) hoch = p;
        if (hoch != 0 && l.staerke(hoch) >= StaerkeDolle && !(l.istDolle(hoch) && !l.spiel.regeln.herzZehn && l.werte.fremdeDollen > 0)) {
            l.melder.hinweis(text::TrumpfKeineFigur);
            return hoch;
        }
        if (std::all_of(l.hand.begin(), l.hand.end(), [&](int p) { return l.istFigur(p); })) {
            int klein = 0;
            for (int p : l.hand)
                if (klein == 0 || l.staerke(p) < l.staerke(klein)) klein = p;
            l.melder.hinweis(text::KleinsteFigur);
            return klein;
        }
    }
    return 0;
}

int fehlStattLetztemTrumpf(const Lage& l) {
    if (l.werte.truempfeImSpiel != 2 || l.werte.eigeneTruempfe != 1 || kannTrumpfAbziehen2(l)) return 0;
    return kleinsteFarbkarte(l);
}

int mittelmaessigerTrumpf(const Lage& l) {
    if (l.werte.fremdeTruempfe == 0) return 0;
    for (int f = 1; f <= 4; ++f)
        if (istFarbe(l, f) && l.anzahlInHand(f) > 0 && !gegnerStichtFarbe(l, f)) return 0;
    Kartenliste mittel = l.hand;
    mittel.behalten([&](int p) {
        return l.istTrumpf(p) && !l.istZaehler(p) && l.staerke(p) < l.werte.hoechsterFremderTrumpf;
    });
    if (mittel.empty()) return 0;
    mittel.sortieren([&](int a, int b) { return l.staerke(a) < l.staerke(b); });
    return mittel[mittel.size() / 2];
}

int dieKleinen(const Lage& l) {
    if (!gegnerKannTrumpfHaben(l) || l.werte.eigeneTruempfe <= 1) return 0;
    for (const Sitz x : alleSitze)
        if (x != l.ich && l.wissen.trumpfPartnerMarke[x][l.ich] && !l.freund(x)) return 0;
    int grenze = StaerkeJoker + 1;
    if (l.wissen.partei[l.ich] == ParteiSolo) {
        if (l.trumpf >= BubenSolo) return 0;
        grenze = l.trumpf == HerzSolo ? 16384 : 65536;
    } else {
        for (const Sitz x : alleSitze)
            if (x != l.ich && l.glaube(x) == ParteiSolo) return 0;
    }
    int klein = 0;
    for (int p : l.hand)
        if (l.istTrumpf(p) && l.staerke(p) < grenze && (klein == 0 || l.staerke(p) < l.staerke(klein))) klein = p;
    return klein != 0 && l.augen(klein) <= 9 ? klein : 0;
}

int langeFarbe(const Lage& l) {
    int farbe = 0;
    for (int f = 1; f <= 4; ++f)
        if (istFarbe(l, f) && l.anzahlInHand(f) >= 3 && (farbe == 0 || l.anzahlInHand(f) > l.anzahlInHand(farbe)))
            farbe = f;
    if (farbe == 0) return 0;
    if (const int k = l.stehende(farbe)) return k;
    return l.kleinsteDerFarbe(farbe);
}

std::optional<Sitz> andererSolist(const Lage& l) {
    for (const Sitz x : alleSitze)
        if (x != l.ich && l.glaube(x) == ParteiSolo) return x;
    return std::nullopt;
}

int hochGegenSolisten(const Lage& l) {
    if (!andererSolist(l)) return 0;
    for (int f = 4; f >= 1; --f)
        if (istFarbe(l, f))
            if (const int k = l.stehende(f)) return k;
    return 0;
}

int solistSollStechen(const Lage& l) {
    const auto solist = andererSolist(l);
    if (!solist) return 0;
    // Sitting right before us he plays last: only suits run out or led twice.
    const bool sitztVorMir = *solist == l.ich.plus(3);
    for (int f = 4; f >= 1; --f) {
        if (!istFarbe(l, f) || l.anzahlInHand(f) == 0 || !l.wissen.farbeFrei[*solist][fi(f)][l.ich]) continue;
        if (sitztVorMir && l.werte.fremdeAnzahl[fi(f)] != 0 && l.angespielt(f) < 2) continue;
        return l.kleinsteDerFarbe(f);
    }
    return 0;
}

int relativZufaellig(const Lage& l) {
    const Kartenliste hand = l.sortierteHand();
    if (l.wissen.stillerSolist == l.ich) {
        for (int p : hand) {
            if (l.istTrumpf(p) && l.augen(p) != 11 && (!l.istDolle(p) || l.spiel.regeln.herzZehn)) return p;
            if ((l.augen(p) == 11 || !l.istTrumpf(p)) && l.spiel.schweineHalter == l.ich) return p;
        }
        return 0;
    }
    if (l.eigenePartei() != ParteiUnbekannt && andererSolist(l)) {
        for (int p : hand)
            if (!l.istTrumpf(p) && l.augen(p) < 10) return p;
    }
    return hand.back();
}

const std::array<Regel, 15> kette{{
    {"01", text::Fleischlos, [](const Lage& l) { return l.trumpf == SoloOhneTrumpf; }, fleischlos},
    {"02", text::BlankeDolle, [](const Lage&) { return true; }, blankeDolle},
    {"03", "", [](const Lage&) { return true; }, asAusspielen},
    {"04", text::KleinsteSingle, [](const Lage&) { return true; }, kleinsteSingle},
    {"05", text::KeinerSticht, [](const Lage&) { return true; }, keinerKannStechen},
    {"06", text::Freispielen, [](const Lage&) { return true; }, freispielen},
    {"07", text::VonOben, [](const Lage&) { return true; }, trumpfVonOben},
    {"08", "", [](const Lage&) { return true; }, absenteFarbe},
    {"09", text::FehlStattTrumpf, [](const Lage&) { return true; }, fehlStattLetztemTrumpf},
    {"10", text::Mittelmaessig, [](const Lage&) { return true; }, mittelmaessigerTrumpf},
    {"11", text::DieKleinen, [](const Lage&) { return true; }, dieKleinen},
    {"12", text::LangeFarbe, [](const Lage&) { return true; }, langeFarbe},
    {"13", text::HochGegenSolist, [](const Lage&) { return true; }, hochGegenSolisten},
    {"14", text::SolistSollStechen, [](const Lage&) { return true; }, solistSollStechen},
    {"15", text::RelativZufaellig, [](const Lage&) { return true; }, relativZufaellig},
}};

// Two trumps left, one of them the Dolle: better lead the Dolle than leave it bare.
int dolleBlankFilter(const Lage& l, int karte) {
    if (l.werte.eigeneTruempfe != 2 || l.istDolle(karte)) return karte;
    int dolle = 0;
    for (int p : l.hand)
        if (l.istDolle(p)) dolle = p;
    if (dolle == 0) return karte;
    if (!l.werte.jokerFremd) {
        if (l.spiel.regeln.herzZehn || l.werte.fremdeDollen == 0) {
            l.melder.regel(verfahren::Filter, "DolleBlank", text::DolleLieberAus);
            return dolle;
        }
        return karte;
    }
    const int farbkarte = kleinsteFarbkarte(l);
    if (farbkarte == 0) {
        l.melder.regel(verfahren::Filter, "DolleBlank", text::DolleBlank);
        return karte;
    }
    l.melder.regel(verfahren::Filter, "DolleBlank", text::LieberFarbkarte);
    return farbkarte;
}

}  // namespace

std::span<const Regel> ausspielRegeln() { return kette; }

int ausspielWaehlen(const Lage& l) {
    int karte = 0;
    if (kannTrumpfAbziehen(l) && l.werte.fremdeTruempfe >= 1) {
        abziehenMelden(l, false);
        karte = l.hoechsterTrumpf();
        l.melder.regel(verfahren::Ausspiel, "00", text::TrumpfZuerstZiehen);
    }
    if (karte == 0) karte = solistAusspielen(l);
    if (karte == 0) karte = regelnAnwenden(kette, l, verfahren::Ausspiel);
    if (karte == 0) {
        l.melder.rueckfall(verfahren::Ausspiel);
        if (l.spiel.sticheGespielt < l.spiel.deck.handgroesse() - 1) l.melder.hinweis(text::RatlosAusspiel);
        karte = rueckfallKarte(l);
    }
    if (l.istTrumpf(karte)) {
        karte = fuchsKarlchenDolleFilter(l, karte);
        if (l.istTrumpf(karte)) karte = dolleBlankFilter(l, karte);
    }
    return karte;
}

}  // namespace players

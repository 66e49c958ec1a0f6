#include "Gastgeberkern.h"

#include "Namen.h"
#include "Netztexte.h"
#include "Nutzlast.h"
#include "Tags.h"
#include "engine/Neugeben.h"
#include "settings/Zeichensatz.h"

namespace net {

using engine::Anfrageart;
using engine::Antwort;
using engine::Sitz;
using engine::Steuerung;

namespace {
constexpr std::array<Sitz, 3> Gastsitze{Sitz(2), Sitz(3), Sitz(4)};
// Seats given to arriving guests, in this order.
constexpr std::array<Sitz, 3> Vergabefolge{Sitz(3), Sitz(2), Sitz(4)};
constexpr std::size_t MaxChatzeichen = 400;

std::string ziffer(Sitz s) { return std::to_string(s.nr()); }
}  // namespace

Gastgeberkern::Gastgeberkern(engine::Spiel& spiel, engine::Spielablauf& ablauf, Gastgeberausgang& ausgang)
    : spiel_(spiel), ablauf_(ablauf), ausgang_(ausgang) {
    ablauf_.beobachterHinzufuegen(this);
    for (const Sitz s : Gastsitze) {
        spiel_.namen[s] = texte::computername(s.nr());
        spiel_.steuerung[s] = Steuerung::Computer;
    }
}

void Gastgeberkern::setzeHost(const std::string& name, int netztempo) {
    hostname_ = name;
    netztempo_ = netztempo;
    spiel_.namen[Sitz(1)] = name;
}

const std::string& Gastgeberkern::gastname(Sitz sitz) const {
    const std::string& name = platz(sitz).gastname;
    return name.empty() ? spiel_.namen[sitz] : name;
}

int Gastgeberkern::spielerzahl() const {
    int n = 1;
    for (const Sitz s : Gastsitze) n += verbunden(s);
    return n;
}

int Gastgeberkern::angemeldeteGaeste() const {
    int n = 0;
    for (const Sitz s : Gastsitze) n += verbunden(s) && platz(s).angemeldet;
    return n;
}

bool Gastgeberkern::alleBereit() const {
    for (const Sitz s : Gastsitze)
        if (platz(s).zustand == Platzzustand::Person && !(platz(s).angemeldet && platz(s).bereit)) return false;
    return true;
}

std::optional<Sitz> Gastgeberkern::gefragterSitz() const {
    if (!frage_) return std::nullopt;
    return frage_->sitz;
}

// --- Sending ---------------------------------------------------------------

void Gastgeberkern::senden(Sitz sitz, std::string_view tag, std::string_view nutzlast) {
    if (sitz == Sitz(1) || !verbunden(sitz)) return;
    const std::string bytes = rahmen(tag, nutzlast);
    protokoll_.hostGesendet(spiel_.namen[sitz], std::string_view(bytes).substr(0, bytes.size() - Trenner.size()));
    ausgang_.protokollzeile(protokoll_.letzteZeile());
    ausgang_.schreiben(sitz, bytes);
}

void Gastgeberkern::anSpieler(std::string_view tag, std::string_view nutzlast, std::optional<Sitz> ausser) {
    for (const Sitz s : Gastsitze)
        if (s != ausser && platz(s).zustand == Platzzustand::Person) senden(s, tag, nutzlast);
}

void Gastgeberkern::anGaeste(std::string_view tag, std::string_view nutzlast, std::optional<Sitz> ausser) {
    for (const Sitz s : Gastsitze)
        if (s != ausser) senden(s, tag, nutzlast);
}

void Gastgeberkern::vermerk(const std::string& text) {
    protokoll_.vermerk(text);
    ausgang_.protokollzeile(protokoll_.letzteZeile());
}

// --- Seats -----------------------------------------------------------------

std::optional<Sitz> Gastgeberkern::freierPlatz() const {
    for (const Sitz s : Vergabefolge)
        if (!verbunden(s)) return s;
    return std::nullopt;
}

void Gastgeberkern::platzBesetzen(Sitz sitz) {
    if (sitz == Sitz(1) || verbunden(sitz)) return;
    Platz& p = platzVon(sitz);
    p = Platz{};
    p.zustand = spielLaeuft_ ? Platzzustand::Wartend : Platzzustand::Person;
    if (p.zustand == Platzzustand::Person) spiel_.steuerung[sitz] = Steuerung::Netz;
    anmeldungSenden(sitz);
    ausgang_.sitzBesetzt(sitz);
}

void Gastgeberkern::anmeldungSenden(Sitz sitz) {
    senden(sitz, tag::Netzt, std::to_string(netztempo_));
    senden(sitz, tag::Serve, "1" + hostname_);
    senden(sitz, tag::CompN, ziffer(sitz));
    if (platz(sitz).zustand == Platzzustand::Wartend) senden(sitz, tag::Waite, "x");
    for (const Sitz s : Gastsitze)
        if (s != sitz) senden(sitz, tag::name(s.nr()), spiel_.namen[s]);
    senden(sitz, tag::Chat, texte::Willkommen);
    senden(sitz, tag::NameFrage, "x");
}

void Gastgeberkern::abmelden(Sitz sitz) {
    if (sitz == Sitz(1) || !verbunden(sitz)) return;
    const bool spielte = platz(sitz).zustand == Platzzustand::Person;
    const bool angemeldet = platz(sitz).angemeldet;
    const std::string name = spielte ? spiel_.namen[sitz] : platz(sitz).gastname;
    platzVon(sitz) = Platz{};
    ausgang_.trennen(sitz);
    spiel_.steuerung[sitz] = Steuerung::Computer;
    if (!spielLaeuft_) ausgang_.status(std::string(texte::BereitUndWarte));
    if (spielte) anGaeste(tag::Abmel, ziffer(sitz));
    if (spielte || angemeldet) anGaeste(tag::Chat, texte::abgemeldetChat(name));
    spiel_.namen[sitz] = texte::computername(sitz.nr());
    anGaeste(tag::name(sitz.nr()), spiel_.namen[sitz]);
    ausgang_.namenGeaendert();
    ausgang_.sitzFrei(sitz);
    if (frage_ && frage_->sitz == sitz) frageVergessen();
    // The computer plays on from exactly here.
    if (spielLaeuft_) ausgang_.weiter();
}

void Gastgeberkern::alleAbmelden() {
    for (const Sitz s : Gastsitze) abmelden(s);
}

void Gastgeberkern::erinnern(Sitz sitz) {
    if (platz(sitz).zustand == Platzzustand::Person) senden(sitz, tag::Chat, texte::WirWarten);
}

void Gastgeberkern::neuePartieMelden() { anSpieler(tag::NeueP, {}); }

void Gastgeberkern::endbedingungenMelden(const engine::RegelOptionen& alt, const engine::RegelOptionen& neu) {
    if (alt.abrOption != neu.abrOption) anSpieler(tag::Abrec, std::to_string(neu.abrOption));
    if (alt.endeBei != neu.endeBei) anSpieler(tag::EndeB, std::to_string(neu.endeBei));
    if (alt.endeNach != neu.endeNach) anSpieler(tag::EndeN, std::to_string(neu.endeNach));
}

void Gastgeberkern::chatSenden(std::string_view text) {
    const std::string zeile = spiel_.namen[Sitz(1)] + ": " + std::string(text);
    ausgang_.chatzeile(zeile);
    anGaeste(tag::Chat, zeile);
}

// --- Receiving -------------------------------------------------------------

void Gastgeberkern::empfangen(Sitz sitz, std::string_view bytes) {
    if (sitz == Sitz(1) || !verbunden(sitz)) return;
    if (platzVon(sitz).puffer.anhaengen(bytes)) return;
    vermerk("*** Empfangspuffer von " + spiel_.namen[sitz] + " übergelaufen ***");
    abmelden(sitz);
}

bool Gastgeberkern::takt() {
    bool genommen = false;
    for (const Sitz s : Gastsitze) {
        if (!verbunden(s)) continue;
        Empfangspuffer& puffer = platzVon(s).puffer;
        const auto nachricht = puffer.nehmen();
        if (!nachricht) continue;
        genommen = true;
        if (!puffer.leer()) {
            protokoll_.nochZuBearbeiten(puffer.rest());
            ausgang_.protokollzeile(protokoll_.letzteZeile());
        }
        verarbeiten(s, *nachricht);
    }
    return genommen;
}

bool Gastgeberkern::hatUnverarbeitetes() const {
    for (const Sitz s : Gastsitze)
        if (verbunden(s) && platz(s).puffer.vollstaendig()) return true;
    return false;
}

void Gastgeberkern::verarbeiten(Sitz sitz, const std::string& nachricht) {
    protokoll_.hostEmpfangen(spiel_.namen[sitz], nachricht);
    ausgang_.protokollzeile(protokoll_.letzteZeile());
    const Nachricht n = zerlegen(nachricht);
    switch (gastnachricht(n.tag)) {
        case Gastnachricht::Name: nameAnnehmen(sitz, n.nutzlast); break;
        case Gastnachricht::CBere:
            platzVon(sitz).bereit = true;
            ausgang_.bereitGeaendert();
            break;
        case Gastnachricht::Neune: neugebenAnnehmen(sitz, engine::NeunenWerfen, n.nutzlast); break;
        case Gastnachricht::Koeni: neugebenAnnehmen(sitz, engine::KoenigeWerfen, n.nutzlast); break;
        case Gastnachricht::Armut: neugebenAnnehmen(sitz, engine::ArmutWerfen, n.nutzlast); break;
        case Gastnachricht::Antwo: soloAnnehmen(sitz, n.nutzlast); break;
        case Gastnachricht::Hochz: hochzeitAnnehmen(sitz, n.nutzlast); break;
        case Gastnachricht::Karte: karteAnnehmen(sitz, n.nutzlast); break;
        case Gastnachricht::Kontr: ansageAnnehmen(sitz, engine::Ansage{}); break;
        case Gastnachricht::Limit: {
            const int code = zahlWert(n.nutzlast);
            if (code >= engine::LimitSchwarz && code <= engine::Keine90) ansageAnnehmen(sitz, engine::Ansage{true, code});
            break;
        }
        case Gastnachricht::Chat: chatAnnehmen(sitz, n.nutzlast); break;
        // The reservation reaches the others from the cycle itself ("Gesun" there);
        // "Ready" and "Stich" are reserved; anything unknown is ignored.
        case Gastnachricht::Gesun:
        case Gastnachricht::Ready:
        case Gastnachricht::Stich:
        case Gastnachricht::Unbekannt: break;
    }
}

void Gastgeberkern::nameAnnehmen(Sitz sitz, std::string_view bytes) {
    Platz& p = platzVon(sitz);
    if (p.angemeldet) return;
    std::string name = nameBereinigen(bytes);
    if (name.empty()) name = spiel_.namen[sitz];  // keeps the computer's name
    for (const Sitz s : engine::alleSitze) {
        if (s == sitz) continue;
        const bool vergeben = settings::gleichOhneGrossschreibung(spiel_.namen[s], name) ||
                              (verbunden(s) && settings::gleichOhneGrossschreibung(platz(s).gastname, name));
        if (vergeben) {
            // A name already at the table: the question again, with the name refused.
            senden(sitz, tag::NameFrage, name);
            return;
        }
    }
    p.angemeldet = true;
    p.gastname = name;
    ausgang_.chatzeile(texte::angemeldetHier(name));
    anGaeste(tag::Chat, texte::angemeldet(name), sitz);
    if (p.zustand == Platzzustand::Wartend) {
        senden(sitz, tag::NochS, std::to_string(spiel_.deck.handgroesse() - spiel_.sticheGespielt));
    } else {
        spiel_.namen[sitz] = name;
        anGaeste(tag::name(sitz.nr()), name, sitz);
        ausgang_.namenGeaendert();
    }
    ausgang_.bereitGeaendert();
}

void Gastgeberkern::chatAnnehmen(Sitz sitz, std::string_view bytes) {
    std::string text = settings::cp1252NachUtf8(bytes.substr(0, MaxChatzeichen));
    std::erase_if(text, [](char c) { return static_cast<unsigned char>(c) < 0x20; });
    const std::string zeile = spiel_.namen[sitz] + ": " + text;
    ausgang_.chatzeile(zeile);
    anGaeste(tag::Chat, zeile, sitz);
}

// --- Questions to a network seat -------------------------------------------

long Gastgeberkern::anfrageKennung() const {
    const engine::Ablaufstand& a = spiel_.ablauf;
    long stufe = 0;
    switch (ablauf_.offeneArt()) {
        case Anfrageart::Neugeben: stufe = a.pruefung * 10 + a.pruefSitz; break;
        case Anfrageart::Vorbehalt: stufe = 100 + a.vorbehaltGefragt; break;
        case Anfrageart::Karte: stufe = 200 + spiel_.sticheGespielt * 4 + spiel_.stich.anzahl; break;
        default: break;
    }
    return gebenZaehler_ * 1000 + stufe;
}

bool Gastgeberkern::gefragt(Sitz sitz, Frageart art) const {
    return frage_ && frage_->sitz == sitz && frage_->art == art && frage_->kennung == anfrageKennung();
}

void Gastgeberkern::frageStellen(Sitz sitz, Frageart art, std::string_view tag, std::string_view nutzlast) {
    const bool neu = !frage_ || frage_->sitz != sitz;
    frage_ = Frage{sitz, art, anfrageKennung()};
    senden(sitz, tag, nutzlast);
    if (neu) ausgang_.warteAuf(sitz, true);
}

void Gastgeberkern::frageVergessen() {
    if (!frage_) return;
    const Sitz s = frage_->sitz;
    frage_.reset();
    ausgang_.warteAuf(s, false);
}

void Gastgeberkern::beantwortet() {
    if (!frage_) return;
    const Sitz s = frage_->sitz;
    frage_.reset();
    ausgang_.warteAuf(s, false);
    ausgang_.weiter();
}

void Gastgeberkern::anfrageStellen() {
    const engine::Anfrage a = ablauf_.anfrage();
    if (!a.sitz || a.steuerung != Steuerung::Netz) return;
    const Sitz s = *a.sitz;
    if (platz(s).zustand != Platzzustand::Person) {
        // No guest holds it any more: the computer answers.
        spiel_.steuerung[s] = Steuerung::Computer;
        ausgang_.weiter();
        return;
    }
    if (frage_ && frage_->sitz == s && frage_->kennung == anfrageKennung()) return;
    frageVergessen();
    switch (a.art) {
        case Anfrageart::Neugeben: frageStellen(s, Frageart::Neugeben, neugebeFrage(a.neugeben.grund)); break;
        case Anfrageart::Vorbehalt:
            if (!a.vorbehalt.soloarten.empty()) frageStellen(s, Frageart::Solo, tag::SoloFrage);
            else frageStellen(s, Frageart::Hochzeit, tag::HochFrage, "x");
            break;
        case Anfrageart::Karte:
            frageStellen(s, Frageart::Karte, tag::KartFrage, ziffer(s));
            ausgang_.status(texte::ueberlegt(spiel_.namen[s]));
            break;
        default: break;
    }
}

void Gastgeberkern::neugebenAnnehmen(Sitz sitz, int grund, std::string_view nutzlast) {
    if (!gefragt(sitz, Frageart::Neugeben) || spiel_.ablauf.pruefung != grund) return;
    ablauf_.antworten(Antwort::neugeben(zahlWert(nutzlast) == 1));
    beantwortet();
}

void Gastgeberkern::vorbehaltGeben(const engine::Vorbehalt& v) {
    const bool pflicht = ablauf_.anfrage().vorbehalt.pflichtsolo;
    if (!ablauf_.antworten(Antwort::mitVorbehalt(v))) {
        vermerk("*** Vorbehalt von " + spiel_.namen[frage_->sitz] + " abgelehnt ***");
        // What the cycle does for a computer seat: a duty solo becomes a Karo-Solo.
        const engine::Vorbehalt ersatz{pflicht ? engine::Vorbehalt::Solo : engine::Vorbehalt::Gesund,
                                       engine::Normalspiel, engine::KeineHochzeit};
        if (!ablauf_.antworten(Antwort::mitVorbehalt(ersatz)))
            ablauf_.antworten(Antwort::mitVorbehalt(engine::Vorbehalt{}));
    }
    beantwortet();
}

void Gastgeberkern::soloAnnehmen(Sitz sitz, std::string_view nutzlast) {
    if (!gefragt(sitz, Frageart::Solo)) return;
    if (const int typ = soloantwortLesen(nutzlast))
        return vorbehaltGeben({engine::Vorbehalt::Solo, typ, engine::KeineHochzeit});
    if (ablauf_.anfrage().vorbehalt.hochzeitMoeglich) return frageStellen(sitz, Frageart::Hochzeit, tag::HochFrage, "x");
    vorbehaltGeben(engine::Vorbehalt{});
}

void Gastgeberkern::hochzeitAnnehmen(Sitz sitz, std::string_view nutzlast) {
    if (!gefragt(sitz, Frageart::Hochzeit)) return;
    const int art = letzteZiffer(nutzlast);
    if (art >= engine::ErsterStich && art <= engine::ErsterTrumpfstich)
        return vorbehaltGeben({engine::Vorbehalt::Hochzeit, engine::Normalspiel, art});
    vorbehaltGeben(engine::Vorbehalt{});
}

void Gastgeberkern::karteAnnehmen(Sitz sitz, std::string_view nutzlast) {
    if (!gefragt(sitz, Frageart::Karte)) return;  // a card when not asked is ignored
    const int pos = positionSuchen(spiel_, sitz, karteLesen(nutzlast));
    const engine::Bescheid b = pos ? ablauf_.antworten(Antwort::karte(pos)) : engine::Bescheid::abgelehnt({});
    if (!b) {
        vermerk("*** Karte von " + spiel_.namen[sitz] + " abgelehnt: " + std::string(nutzlast) + " ***");
        senden(sitz, tag::KartFrage, ziffer(sitz));
        return;
    }
    beantwortet();
}

void Gastgeberkern::ansageAnnehmen(Sitz sitz, const engine::Ansage& ansage) {
    if (platz(sitz).zustand != Platzzustand::Person || !spielLaeuft_) return;
    const engine::Bescheid b = ablauf_.ansagen(sitz, ansage);
    if (!b) {
        vermerk("*** Ansage von " + spiel_.namen[sitz] + " abgelehnt: " + b.grund + " ***");
        return;
    }
    ausgang_.weiter();
}

// --- What the cycle does, relayed ------------------------------------------

void Gastgeberkern::wartendeAufnehmen() {
    for (const Sitz s : Gastsitze) {
        Platz& p = platzVon(s);
        if (p.zustand != Platzzustand::Wartend) continue;
        p.zustand = Platzzustand::Person;
        spiel_.steuerung[s] = Steuerung::Netz;
        if (p.angemeldet) spiel_.namen[s] = p.gastname;
        anGaeste(tag::Neuer, ziffer(s) + spiel_.namen[s], s);
        ausgang_.namenGeaendert();
    }
}

void Gastgeberkern::spielblockSenden(Sitz sitz) {
    const engine::Regeln& r = spiel_.regeln;
    senden(sitz, tag::Einst, einstellungenSchreiben(r));
    // What does not fit a field of three characters follows on its own.
    if (!passtInFeld(r.abrOption)) senden(sitz, tag::Abrec, std::to_string(r.abrOption));
    if (!passtInFeld(r.endeBei)) senden(sitz, tag::EndeB, std::to_string(r.endeBei));
    if (!passtInFeld(r.endeNach)) senden(sitz, tag::EndeN, std::to_string(r.endeNach));
    senden(sitz, tag::Lfdsp, std::to_string(spiel_.partie.spielNr));
    for (const Sitz s : engine::alleSitze) senden(sitz, tag::gpkt(s.nr()), std::to_string(spiel_.partie.punkte[s]));
    engine::Kartenverteilung karten{};
    for (int p = 1; p <= engine::MaxPositionen; ++p) karten[static_cast<std::size_t>(p - 1)] = spiel_.deck[p].code;
    senden(sitz, tag::Verte, verteilungSchreiben(karten));
    senden(sitz, tag::Start);
    senden(sitz, tag::Vorha, ziffer(spiel_.vorhand));
}

void Gastgeberkern::kartenGegeben(const engine::Spiel&) {
    ++gebenZaehler_;
    spielLaeuft_ = true;
    frageVergessen();
    wartendeAufnehmen();
    for (const Sitz s : Gastsitze)
        if (platz(s).zustand == Platzzustand::Person) spielblockSenden(s);
}

void Gastgeberkern::neugebenVerlangt(const engine::Spiel&, Sitz sitz, int grund) {
    anSpieler(neugebeAntwort(grund), ziffer(sitz), sitz);
}

void Gastgeberkern::vorbehaltGemacht(const engine::Spiel&, Sitz sitz, const engine::Vorbehalt& v) {
    anSpieler(tag::Gesun, ziffer(sitz) + vorbehaltSchreiben(v), sitz);
}

void Gastgeberkern::spielBegonnen(const engine::Spiel& spiel) {
    if (spiel.hochzeiter) anSpieler(tag::Hochz, ziffer(*spiel.hochzeiter) + std::to_string(spiel.hochzeitArt));
    // A soloist who took the lead leads the first trick instead of the Vorhand.
    if (spiel.stich.aufspieler != spiel.vorhand) anSpieler(tag::EVorh, ziffer(spiel.stich.aufspieler));
    const Sitz wer = spiel.solist ? *spiel.solist : spiel.hochzeiter ? *spiel.hochzeiter : spiel.vorhand;
    anSpieler(tag::Vorbe, ziffer(wer) + std::to_string(spiel.spieltyp));
}

void Gastgeberkern::karteGespielt(const engine::Spiel& spiel, Sitz sitz, int pos) {
    anSpieler(tag::Karte, karteSchreiben(sitz.nr(), spiel.deck[pos].code), sitz);
}

void Gastgeberkern::stichKomplett(const engine::Spiel& spiel, Sitz) {
    const int rest = spiel.deck.handgroesse() - spiel.sticheGespielt;
    if (rest <= 0) return;
    for (const Sitz s : Gastsitze)
        if (platz(s).zustand == Platzzustand::Wartend) senden(s, tag::NochS, std::to_string(rest));
}

void Gastgeberkern::ansageGemacht(const engine::Spiel&, const engine::AnsageEintrag& e) {
    if (e.limit) anSpieler(tag::Limit, ziffer(e.sitz) + std::to_string(e.limitCode), e.sitz);
    else anSpieler(tag::Kontr, ziffer(e.sitz), e.sitz);
}

void Gastgeberkern::spielBeendet(const engine::Spiel& spiel) {
    spielLaeuft_ = false;
    frageVergessen();
    anSpieler(tag::Endeb, {});
    for (const Sitz s : engine::alleSitze) anSpieler(tag::gpkt(s.nr()), std::to_string(spiel.partie.punkte[s]));
}

}  // namespace net

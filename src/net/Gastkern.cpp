#include "Gastkern.h"

#include <algorithm>

#include "Namen.h"
#include "Netztexte.h"
#include "Tags.h"
#include "settings/Zeichensatz.h"

namespace net {

using engine::Sitz;

namespace {
constexpr std::size_t MaxChatzeichen = 400;

std::string chattext(std::string_view bytes) {
    std::string text = settings::cp1252NachUtf8(bytes.substr(0, MaxChatzeichen));
    std::erase_if(text, [](char c) { return static_cast<unsigned char>(c) < 0x20; });
    return text;
}
}  // namespace

Gastkern::Gastkern(engine::Spiel& spiel, engine::Spielablauf& ablauf, Gastausgang& ausgang, std::string name)
    : spiel_(spiel), ablauf_(ablauf), ausgang_(ausgang), name_(std::move(name)) {
    spiel_.steuerung.fill(engine::Steuerung::Netz);
    spiel_.steuerung[Sitz(1)] = engine::Steuerung::Mensch;
    spiel_.namen[Sitz(1)] = name_;
    ablauf_.neuePartie();
}

void Gastkern::senden(std::string_view tag, std::string_view nutzlast) {
    const std::string bytes = rahmen(tag, nutzlast);
    protokoll_.gastGesendet(std::string_view(bytes).substr(0, bytes.size() - Trenner.size()));
    ausgang_.protokollzeile(protokoll_.letzteZeile());
    ausgang_.schreiben(bytes);
}

void Gastkern::vermerk(const std::string& text) {
    protokoll_.vermerk(text);
    ausgang_.protokollzeile(protokoll_.letzteZeile());
}

bool Gastkern::abweichen(const std::string& text) {
    vermerk(std::string(texte::Abweichung) + text + " ***");
    ausgang_.abweichung(text);
    return false;
}

std::optional<Sitz> Gastkern::lokal(int hostSitz) const {
    if (!abbildung_ || hostSitz < 1 || hostSitz > 4) return std::nullopt;
    return abbildung_->lokal(hostSitz);
}

bool Gastkern::empfangen(std::string_view bytes) { return puffer_.anhaengen(bytes); }

bool Gastkern::takt() {
    if (!puffer_.vollstaendig()) return false;
    const std::string_view kopf = puffer_.kopf();
    if (beschaeftigt_ && (kopf == tag::Karte || kopf == tag::KartFrage)) return false;
    const auto nachricht = puffer_.nehmen();
    if (!puffer_.leer()) {
        protokoll_.nochZuBearbeiten(puffer_.rest());
        ausgang_.protokollzeile(protokoll_.letzteZeile());
    }
    verarbeiten(*nachricht);
    return true;
}

void Gastkern::verarbeiten(const std::string& nachricht) {
    protokoll_.gastEmpfangen(nachricht);
    ausgang_.protokollzeile(protokoll_.letzteZeile());
    const Nachricht n = zerlegen(nachricht);
    int sitz = 0;
    using H = Hostnachricht;
    switch (hostnachricht(n.tag, sitz)) {
        case H::CompN:
        case H::Netzt:
        case H::Serve:
        case H::Name:
        case H::Neuer:
        case H::NameFrage:
        case H::Waite:
        case H::NochS:
        case H::Start:
        case H::Abmel:
        case H::Chat: anmeldung(n); break;
        case H::SoloAusruf:
        case H::SBere:
        case H::ABere:
        case H::NoPas:
        case H::Unbekannt: break;
        default: spielnachricht(n); break;
    }
}

// Login, names, status and chat: everything that does not touch the cycle.
void Gastkern::anmeldung(const Nachricht& n) {
    int tagSitz = 0;
    const std::string_view p = n.nutzlast;
    switch (hostnachricht(n.tag, tagSitz)) {
        case Hostnachricht::CompN: {
            const int k = zahlWert(p);
            if (k < 2 || k > 4 || abbildung_) break;
            abbildung_ = Sitzabbildung(k);
            namenAnwenden();
            break;
        }
        case Hostnachricht::Netzt:
            netztempo_ = zahlWert(p);
            ausgang_.netztempo(netztempo_);
            break;
        case Hostnachricht::Serve:
        case Hostnachricht::Neuer:
            if (const int h = sitzZiffer(p)) {
                hostNamen_[static_cast<std::size_t>(h - 1)] = nameBereinigen(p.substr(1));
                namenAnwenden();
            }
            break;
        case Hostnachricht::Name:
            hostNamen_[static_cast<std::size_t>(tagSitz - 1)] = nameBereinigen(p);
            namenAnwenden();
            break;
        case Hostnachricht::NameFrage:
            ausgang_.nameGefragt();
            if (p == "x") {
                if (!name_.empty()) nameSenden(name_);
            } else {
                ausgang_.nameVergeben(texte::vergeben(nameBereinigen(p)));
            }
            break;
        case Hostnachricht::Waite:
            ausgang_.status(std::string(texte::WarteAufSpiel) + std::string(texte::Spitzenzeiten));
            break;
        case Hostnachricht::NochS: ausgang_.status(texte::nochStiche(zahlWert(p))); break;
        case Hostnachricht::Start: ausgang_.status(std::string(texte::GleichGehtsLos)); break;
        case Hostnachricht::Abmel:
            if (const int h = sitzZiffer(p))
                ausgang_.hinweis(texte::abgemeldetHinweis(hostNamen_[static_cast<std::size_t>(h - 1)]));
            break;
        case Hostnachricht::Chat: ausgang_.chatzeile(chattext(p)); break;
        default: break;
    }
}

void Gastkern::namenAnwenden() {
    spiel_.namen[Sitz(1)] = name_;
    if (abbildung_) {
        for (int h = 1; h <= 4; ++h) {
            const std::string& name = hostNamen_[static_cast<std::size_t>(h - 1)];
            if (h != abbildung_->eigener() && !name.empty()) spiel_.namen[abbildung_->lokal(h)] = name;
        }
    }
    ausgang_.namenGeaendert();
}

void Gastkern::nameSenden(const std::string& name) {
    name_ = name;
    spiel_.namen[Sitz(1)] = name_;
    senden(tag::NameAntwort, name_);
    if (!nameGesendet_) senden(tag::CBere);
    nameGesendet_ = true;
}

void Gastkern::chatSenden(std::string_view text) { senden(tag::Chat, text); }

// --- Seat 1's decisions ------------------------------------------------------

engine::Bescheid Gastkern::antworten(const engine::Antwort& a) {
    using engine::Anfrageart;
    const auto falsch = engine::Bescheid::abgelehnt(std::string(engine::ablauftext::FalscheAntwort));
    const engine::Anfrage offen = ablauf_.anfrage();
    if (frage_ == Gastfrage::Keine || offen.sitz != Sitz(1)) return falsch;
    if (frage_ == Gastfrage::Karte) {
        if (a.art != Anfrageart::Karte) return falsch;
        const engine::Deck& d = spiel_.deck;
        if (a.position < d.erstePosition(Sitz(1)) || a.position > d.letztePosition(Sitz(1)) ||
            d[a.position].status != engine::InHand)
            return engine::Bescheid::abgelehnt(std::string(engine::ablauftext::NichtInDerHand));
        // Of two equal cards the host plays the first in the hand; so do we.
        const int code = d[a.position].code;
        const engine::Bescheid b = ablauf_.antworten(engine::Antwort::karte(positionSuchen(spiel_, Sitz(1), code)));
        if (!b) return b;
        frage_ = Gastfrage::Keine;
        senden(tag::Karte, karteSchreiben(eigenerSitz(), code));
    } else if (frage_ == Gastfrage::Neugeben) {
        if (a.art != Anfrageart::Neugeben) return falsch;
        const engine::Bescheid b = ablauf_.antworten(a);
        if (!b) return b;
        frage_ = Gastfrage::Keine;
        senden(neugebeAntwort(frageGrund_), a.ja ? "1" : "0");
    } else {
        if (a.art != Anfrageart::Vorbehalt) return falsch;
        const bool hochzeitMoeglich = offen.vorbehalt.hochzeitMoeglich;
        const engine::Bescheid b = ablauf_.antworten(a);
        if (!b) return b;
        frage_ = Gastfrage::Keine;
        const engine::Vorbehalt& v = a.vorbehalt;
        if (!soloGefragt_) {
            hochzeitMelden(v);
        } else {
            senden(tag::Antwo, soloantwortSchreiben(v));
            // Without a solo the host asks about the Hochzeit next, if there can be one.
            if (v.art != engine::Vorbehalt::Solo && hochzeitMoeglich) hochzeitOffen_ = v;
            else senden(tag::Gesun, hostSitzText() + vorbehaltSchreiben(v));
        }
    }
    ausgang_.weiter();
    return {};
}

void Gastkern::hochzeitMelden(const engine::Vorbehalt& v) {
    const bool hochzeit = v.art == engine::Vorbehalt::Hochzeit;
    senden(tag::Hochz, hostSitzText() + std::to_string(hochzeit ? v.hochzeitArt : 0));
    senden(tag::Gesun, hostSitzText() + vorbehaltSchreiben(v));
}

engine::Bescheid Gastkern::ansagen(const engine::Ansage& ansage) {
    if (!abbildung_) return engine::Bescheid::abgelehnt(std::string(engine::ansagetext::NichtJetzt));
    const engine::Bescheid b = ablauf_.ansagen(Sitz(1), ansage);
    if (!b) return b;
    if (ansage.limit) senden(tag::Limit, std::to_string(ansage.limitCode));
    else senden(tag::Kontr, hostSitzText());
    ausgang_.weiter();
    return b;
}

void Gastkern::fragen(Gastfrage art, int grund) {
    frage_ = art;
    frageGrund_ = grund;
    ausgang_.gefragt();
}

}  // namespace net

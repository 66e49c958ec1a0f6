// The guest's own game cycle, driven by what the host reports: the deal, every
// seat's redeal wish and reservation, the cards, announcements and totals.
#include "Gastkern.h"
#include "Netztexte.h"
#include "Tags.h"
#include "engine/Neugeben.h"

namespace net {

using engine::Anfrageart;
using engine::Antwort;
using engine::Sitz;

void Gastkern::spielnachricht(const Nachricht& n) {
    int tagSitz = 0;
    const std::string_view p = n.nutzlast;
    const auto art = hostnachricht(n.tag, tagSitz);
    if (art == Hostnachricht::Einst) {
        regeln_ = einstellungenLesen(p, regeln_);
        if (!einstErhalten_) {
            ausgang_.chatzeile(std::string(texte::AndereRegeln));
            ausgang_.chatzeile(std::string(texte::AbNaechstemSpiel));
        }
        einstErhalten_ = true;
        return;
    }
    if (art == Hostnachricht::Abrec || art == Hostnachricht::EndeB || art == Hostnachricht::EndeN) {
        int& ziel = art == Hostnachricht::Abrec   ? regeln_.abrOption
                    : art == Hostnachricht::EndeB ? regeln_.endeBei
                                                  : regeln_.endeNach;
        ziel = zahlWert(p);
        ausgang_.hinweis(std::string(texte::EndbedingungenGeaendert));
        return;
    }
    if (art == Hostnachricht::Lfdsp) {
        lfdsp_ = zahlWert(p);
        return;
    }
    if (art == Hostnachricht::Gpkt) return hostpunkteSetzen(tagSitz, zahlWert(p));
    if (art == Hostnachricht::NeueP) {
        ausgang_.chatzeile(std::string(texte::NeuePartieChat));
        ausgang_.hinweis(std::string(texte::NeuePartieHinweis));
        ablauf_.neuePartie();
        hostPunkte_ = {};
        lfdsp_ = 0;
        blatt_.reset();
        frage_ = Gastfrage::Keine;
        hochzeitOffen_.reset();
        nachEndeb_ = false;
        ausgang_.weiter();
        return;
    }
    // Everything below names seats, which only the seat mapping makes ours.
    if (!abbildung_) return void(abweichen(n.tag + " vor der Sitzzuordnung"));
    const auto sitz = lokal(sitzZiffer(p));
    switch (art) {
        case Hostnachricht::Verte: blattAufnehmen(p); break;
        case Hostnachricht::Vorha:
            if (sitz) vorhandSetzen(*sitz);
            break;
        case Hostnachricht::Neune: neugebenVon(sitz.value_or(Sitz(1)), engine::NeunenWerfen); break;
        case Hostnachricht::Koeni: neugebenVon(sitz.value_or(Sitz(1)), engine::KoenigeWerfen); break;
        case Hostnachricht::Armut: neugebenVon(sitz.value_or(Sitz(1)), engine::ArmutWerfen); break;
        case Hostnachricht::NeunFrage:
        case Hostnachricht::KoenFrage:
        case Hostnachricht::ArmuFrage: {
            const int grund = art == Hostnachricht::NeunFrage ? 1 : art == Hostnachricht::KoenFrage ? 2 : 3;
            if (vorruecken(Ziel::Neugeben, Sitz(1), grund)) fragen(Gastfrage::Neugeben, grund);
            break;
        }
        case Hostnachricht::Gesun:
            if (sitz) vorbehaltVon(*sitz, p.substr(1));
            break;
        case Hostnachricht::SoloFrage:
            if (!vorruecken(Ziel::Vorbehalt)) break;
            soloGefragt_ = true;
            hochzeitOffen_.reset();
            ausgang_.status(std::string(texte::Soloanfrage));
            fragen(Gastfrage::Vorbehalt);
            break;
        case Hostnachricht::HochFrage:
            if (hochzeitOffen_) {
                hochzeitMelden(*hochzeitOffen_);
                hochzeitOffen_.reset();
            } else if (vorruecken(Ziel::Vorbehalt)) {
                soloGefragt_ = false;
                fragen(Gastfrage::Vorbehalt);
            }
            break;
        case Hostnachricht::Vorbe:
            if (vorruecken(Ziel::Spielbeginn) && spiel_.spieltyp != zahlWert(p.substr(std::min<std::size_t>(1, p.size()))))
                abweichen("Spieltyp " + std::string(p));
            ausgang_.weiter();
            break;
        case Hostnachricht::EVorh:
            if (vorruecken(Ziel::Spielbeginn) && sitz && spiel_.stich.anzahl == 0 && spiel_.sticheGespielt == 0 &&
                spiel_.stich.aufspieler != *sitz)
                abweichen("Aufspieler " + std::string(p));
            break;
        case Hostnachricht::KartFrage:
            if (!vorruecken(Ziel::Karte)) break;
            ausgang_.status(std::string(engine::ablauftext::IhreKarte));
            fragen(Gastfrage::Karte);
            break;
        case Hostnachricht::Karte:
            if (sitz) karteVon(*sitz, p);
            break;
        case Hostnachricht::Kontr:
            if (sitz) ansageVon(*sitz, engine::Ansage{});
            break;
        case Hostnachricht::Limit: {
            const int code = letzteZiffer(p.substr(std::min<std::size_t>(1, p.size())));
            if (sitz && code >= engine::LimitSchwarz && code <= engine::Keine90) ansageVon(*sitz, {true, code});
            break;
        }
        case Hostnachricht::Endeb:
            if (!vorruecken(Ziel::Spielende)) break;
            nachEndeb_ = true;
            ausgang_.spielBeendet();
            ausgang_.weiter();
            break;
        default: break;  // "Hochz" only repeats what "Gesun" told
    }
}

void Gastkern::blattAufnehmen(std::string_view text) {
    const int karten = engine::regelnUebernehmen(regeln_).kartenanzahl;
    const auto blatt = verteilungLesen(text, karten, *abbildung_);
    if (!blatt) return void(abweichen("unlesbares Blatt"));
    zumGeben();
    blatt_ = blatt;
    vorhand_.reset();
    frage_ = Gastfrage::Keine;
    hochzeitOffen_.reset();
}

void Gastkern::zumGeben() {
    for (int i = 0; i < 3 && ablauf_.offeneArt() != Anfrageart::Geben; ++i) {
        const Anfrageart art = ablauf_.offeneArt();
        if (art == Anfrageart::NaechstesSpiel || art == Anfrageart::NeuePartie) {
            ablauf_.antworten(Antwort::weiter(art));
            continue;
        }
        // A deal in the middle of a game: the host has moved on without us.
        abweichen("neues Blatt mitten im Spiel");
        const engine::Partiestand partie = spiel_.partie;
        ablauf_.neuePartie();
        spiel_.partie = partie;
    }
    // The host's rules, game number and totals hold for the game about to be dealt.
    ablauf_.regelOptionenSetzen(regeln_);
    spiel_.regeln = engine::regelnUebernehmen(regeln_);
    spiel_.deck.setzeKartenanzahl(spiel_.regeln.kartenanzahl);
    if (lfdsp_ > 0) spiel_.partie.spielNr = lfdsp_;
    for (int h = 1; h <= 4; ++h) spiel_.partie.punkte[*lokal(h)] = hostPunkte_[static_cast<std::size_t>(h - 1)];
}

void Gastkern::vorhandSetzen(Sitz vorhand) {
    vorhand_ = vorhand;
    if (blatt_) {
        geben();
        return;
    }
    // Dealt already (a message came before "Vorha"): fine while nobody has been asked yet.
    const engine::Spielphase phase = spiel_.ablauf.phase;
    if (spiel_.vorhand == vorhand) return;
    if (phase == engine::Spielphase::Neugeben ||
        (phase == engine::Spielphase::Vorbehalte && spiel_.ablauf.vorbehaltGefragt == 0)) {
        spiel_.vorhand = vorhand;
        spiel_.partie.letzteVorhand = vorhand;
        spiel_.stich.beginnen(vorhand);
    } else {
        abweichen("Vorhand");
    }
}

bool Gastkern::geben() {
    if (!blatt_) return abweichen("kein Blatt");
    const Sitz v = vorhand_.value_or(spiel_.vorhand);
    spiel_.vorhand = v;
    spiel_.partie.letzteVorhand = v;
    spiel_.stich.beginnen(v);
    const engine::Bescheid b = ablauf_.antworten(Antwort::geben(*blatt_));
    blatt_.reset();
    ausgang_.weiter();
    if (!b) return abweichen(b.grund);
    return true;
}

// Answers the requests of the other seats that the host's messages passed over
// (nobody asked for a redeal, a reservation nobody made, a trick to collect)
// until the cycle is where `ziel` says. False, logged, when it cannot get there.
bool Gastkern::vorruecken(Ziel ziel, Sitz sitz, int grund) {
    for (int schritt = 0; schritt < 64; ++schritt) {
        const Anfrageart art = ablauf_.offeneArt();
        switch (art) {
            case Anfrageart::Geben:
                if (!blatt_ || !geben()) return abweichen("kein Blatt");
                continue;
            case Anfrageart::Neugeben: {
                const Sitz s = ablauf_.sitzDerAnfrage();
                const int g = spiel_.ablauf.pruefung;
                if (ziel == Ziel::Neugeben) {
                    if (s == sitz && g == grund) return true;
                    if (g > grund || (g == grund && s > sitz)) return abweichen("Neugeben");
                }
                if (s == Sitz(1)) abweichen("keine Neugebefrage an uns");
                ablauf_.antworten(Antwort::neugeben(false));
                continue;
            }
            case Anfrageart::Vorbehalt: {
                if (ziel == Ziel::Neugeben) return abweichen("Neugeben nach den Vorbehalten");
                const Sitz s = ablauf_.sitzDerAnfrage();
                if (ziel == Ziel::Vorbehalt) {
                    if (s == sitz) return true;
                    // Seats are asked from Vorhand on; one already passed cannot come again.
                    const auto platz = [&](Sitz x) { return (x.nr() - spiel_.vorhand.nr() + 4) % 4; };
                    if (platz(s) > platz(sitz)) return abweichen("Vorbehalt");
                }
                if (s == Sitz(1)) abweichen("keine Vorbehaltsfrage an uns");
                vorbehaltGeben(s, engine::Vorbehalt{});
                continue;
            }
            case Anfrageart::Karte:
                if (ziel == Ziel::Spielbeginn) return true;
                if (ziel == Ziel::Karte && ablauf_.sitzDerAnfrage() == sitz) return true;
                return abweichen("Karte erwartet von Spieler " + std::to_string(ablauf_.sitzDerAnfrage().nr()));
            case Anfrageart::StichEinsammeln:
                if (ziel == Ziel::Spielbeginn) return true;
                ablauf_.antworten(Antwort::weiter(art));
                continue;
            case Anfrageart::NaechstesSpiel:
            case Anfrageart::NeuePartie:
                if (ziel == Ziel::Spielende) return true;
                return abweichen("das Spiel ist schon zu Ende");
        }
    }
    return abweichen("kein Fortschritt");
}

void Gastkern::neugebenVon(Sitz sitz, int grund) {
    if (sitz == Sitz(1) || !vorruecken(Ziel::Neugeben, sitz, grund)) return;
    ablauf_.antworten(Antwort::neugeben(true));
    ausgang_.weiter();
}

void Gastkern::vorbehaltVon(Sitz sitz, std::string_view code) {
    if (sitz == Sitz(1)) return;
    ausgang_.sitzVorbehalt(sitz, std::string(code == "0" ? texte::Gesund : texte::Vorbehalt));
    if (!vorruecken(Ziel::Vorbehalt, sitz)) return;
    vorbehaltGeben(sitz, vorbehaltLesen(code));
    ausgang_.weiter();
}

void Gastkern::vorbehaltGeben(Sitz sitz, const engine::Vorbehalt& v) {
    if (ablauf_.antworten(Antwort::mitVorbehalt(v))) return;
    abweichen("Vorbehalt von Spieler " + std::to_string(sitz.nr()));
    // A seat that owes its duty solo plays a Karo-Solo, as the host's cycle makes it.
    if (!ablauf_.antworten(Antwort::mitVorbehalt({engine::Vorbehalt::Solo, engine::Normalspiel, 0})))
        ablauf_.antworten(Antwort::mitVorbehalt(engine::Vorbehalt{}));
}

void Gastkern::karteVon(Sitz sitz, std::string_view nutzlast) {
    if (sitz == Sitz(1)) return void(abweichen("eigene Karte vom Tisch"));
    if (!vorruecken(Ziel::Karte, sitz)) return;
    const int pos = positionSuchen(spiel_, sitz, karteLesen(nutzlast));
    const engine::Bescheid b = pos ? ablauf_.antworten(Antwort::karte(pos)) : engine::Bescheid::abgelehnt("");
    if (!b) abweichen("Karte " + std::string(nutzlast) + " abgelehnt");
    ausgang_.weiter();
}

void Gastkern::ansageVon(Sitz sitz, const engine::Ansage& ansage) {
    if (sitz == Sitz(1)) return;
    if (ablauf_.offeneArt() == Anfrageart::StichEinsammeln)
        ablauf_.antworten(Antwort::weiter(Anfrageart::StichEinsammeln));
    if (const engine::Bescheid b = ablauf_.ansagen(sitz, ansage); !b) abweichen("Ansage abgelehnt: " + b.grund);
    ausgang_.weiter();
}

void Gastkern::hostpunkteSetzen(int hostSitz, int punkte) {
    hostPunkte_[static_cast<std::size_t>(hostSitz - 1)] = punkte;
    if (!nachEndeb_ || hostSitz != 4) return;
    nachEndeb_ = false;
    for (int h = 1; h <= 4; ++h) {
        int& eigen = spiel_.partie.punkte[*lokal(h)];
        const int host = hostPunkte_[static_cast<std::size_t>(h - 1)];
        if (eigen != host)
            abweichen("Punkte von Spieler " + std::to_string(h) + ": " + std::to_string(eigen) + " statt " +
                      std::to_string(host));
        eigen = host;
    }
    ++spieleBeendet_;
    ausgang_.punkteErhalten();
    ausgang_.weiter();
}

}  // namespace net

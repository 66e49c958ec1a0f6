#include "Nutzlast.h"

#include <algorithm>
#include <array>

#include "Nachricht.h"
#include "engine/Karte.h"

namespace net {

using engine::Sitz;

int sitzZiffer(std::string_view nutzlast) {
    if (nutzlast.empty() || nutzlast[0] < '1' || nutzlast[0] > '4') return 0;
    return nutzlast[0] - '0';
}

int letzteZiffer(std::string_view nutzlast) {
    if (nutzlast.empty() || nutzlast.back() < '0' || nutzlast.back() > '9') return -1;
    return nutzlast.back() - '0';
}

std::string verteilungSchreiben(const engine::Kartenverteilung& karten) {
    std::string text;
    text.reserve(2 * engine::MaxPositionen);
    for (const int code : karten) {
        std::string feld = std::to_string(code);
        feld.resize(2, ' ');
        text += feld;
    }
    return text;
}

std::optional<engine::Kartenverteilung> verteilungLesen(std::string_view text, int kartenanzahl,
                                                         const Sitzabbildung& abbildung) {
    const int n = kartenanzahl / 4;
    if (text.size() < static_cast<std::size_t>(8 * n)) return std::nullopt;
    engine::Kartenverteilung karten{};
    for (int h = 1; h <= 4; ++h) {
        const int ziel = (abbildung.lokal(h).nr() - 1) * n;
        for (int i = 0; i < n; ++i) {
            const int code = zahlWert(text.substr(static_cast<std::size_t>(2 * ((h - 1) * n + i)), 2));
            if (code < 0 || code > engine::JokerCode) return std::nullopt;
            karten[static_cast<std::size_t>(ziel + i)] = code;
        }
    }
    return karten;
}

namespace {

// The fields of "Einst" in their order. Field 27 is a switch derived from "Kontra"
// and is not read back; field 28 carries the duty-solo switch "Solo".
constexpr std::array<std::string_view, EinstFelder> Einstfelder{
    "Solis", "Sopu_Fuchs", "Sopu_doppelfuchs", "Sopu_karlchen", "Sopu_doppelkarlchen", "Sopu_rupa_b_Solo",
    "Sopu_Dollenschlag", "Sopu_Herzstich", "DaBu_Solo", "Neunerwerfen", "Koenigewerfen", "Armut",
    "Scharfer_Rupa", "Zwei_Schweine", "Schweine_ansagen", "Schweine_b_TrSolo", "Supersau", "Stille_befoerderung",
    "Vh_Solo", "Hh_n_Solo", "Abr_Option", "Ende_bei", "Ende_nach", "Joker", "Bockrunden", "HerzZehn",
    "",  // -1 when announcing is allowed ("Kontra" at least 1)
    "Solo", "Limit", "Kontra",
};

const engine::RegelSchluessel* schluessel(std::string_view name) {
    for (const auto& e : engine::regelSchluessel())
        if (e.schluessel == name) return &e;
    return nullptr;
}

}  // namespace

bool passtInFeld(int wert) { return wert >= -99 && wert <= 999; }

std::string einstellungenSchreiben(const engine::Regeln& regeln) {
    std::string text(96, ' ');
    for (std::size_t i = 0; i < Einstfelder.size(); ++i) {
        int wert = regeln.kontra >= 1 ? -1 : 0;
        if (const auto* e = schluessel(Einstfelder[i])) wert = engine::regelWert(regeln, *e);
        const std::string feld = std::to_string(std::clamp(wert, -99, 999));
        text.replace(3 * i, feld.size(), feld);
    }
    return text;
}

engine::RegelOptionen einstellungenLesen(std::string_view text, engine::RegelOptionen basis) {
    for (std::size_t i = 0; i < Einstfelder.size() && 3 * i < text.size(); ++i) {
        const auto* e = schluessel(Einstfelder[i]);
        if (!e) continue;
        basis.*(e->gespeichert) = zahlWert(text.substr(3 * i, 3));
    }
    return basis;
}

std::string karteSchreiben(int sitz, int code) {
    using namespace engine;
    const int wert = istJoker(code) ? WertJoker : wertVonRang(rangVonCode(code));
    const int farbe = istJoker(code) ? Karo : farbeVonCode(code);
    return std::to_string(sitz) + std::to_string(wert) + "#" + std::to_string(farbe);
}

int karteLesen(std::string_view nutzlast) {
    using namespace engine;
    const auto raute = nutzlast.find('#');
    if (raute == std::string_view::npos || raute < 1) return 0;
    const int wert = zahlWert(nutzlast.substr(1, raute - 1));
    const int farbe = zahlWert(nutzlast.substr(raute + 1));
    if (wert == WertJoker) return JokerCode;
    if (farbe < Karo || farbe > Kreuz) return 0;
    for (int rang = Neun; rang <= As; ++rang)
        if (wertVonRang(rang) == wert) return kartencode(farbe, rang);
    return 0;
}

int positionSuchen(const engine::Spiel& spiel, Sitz sitz, int code) {
    if (code == 0) return 0;
    for (int p = spiel.deck.erstePosition(sitz); p <= spiel.deck.letztePosition(sitz); ++p)
        if (spiel.deck[p].code == code && spiel.deck[p].status == engine::InHand) return p;
    return 0;
}

std::string vorbehaltSchreiben(const engine::Vorbehalt& v) {
    switch (v.art) {
        case engine::Vorbehalt::Solo: return "1" + std::to_string(v.spieltyp);
        case engine::Vorbehalt::Hochzeit: return "2" + std::to_string(v.hochzeitArt);
        case engine::Vorbehalt::Gesund: break;
    }
    return "0";
}

engine::Vorbehalt vorbehaltLesen(std::string_view code) {
    engine::Vorbehalt v;
    if (code.size() < 2) return v;
    const int zahl = zahlWert(code.substr(1, 1));
    if (code[0] == '1' && zahl >= engine::Normalspiel && zahl <= engine::SoloOhneTrumpf) {
        v.art = engine::Vorbehalt::Solo;
        v.spieltyp = zahl;
    } else if (code[0] == '2' && zahl >= engine::ErsterStich && zahl <= engine::ErsterTrumpfstich) {
        v.art = engine::Vorbehalt::Hochzeit;
        v.hochzeitArt = zahl;
    }
    return v;
}

std::string soloantwortSchreiben(const engine::Vorbehalt& v) {
    if (v.art != engine::Vorbehalt::Solo) return "Solo10";
    return "Solo11" + std::to_string(v.spieltyp);
}

int soloantwortLesen(std::string_view nutzlast) {
    if (nutzlast.size() < 7 || nutzlast.substr(0, 6) != "Solo11") return 0;
    const int typ = zahlWert(nutzlast.substr(6, 1));
    return typ >= engine::Normalspiel && typ <= engine::SoloOhneTrumpf ? typ : 0;
}

}  // namespace net

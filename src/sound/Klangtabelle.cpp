#include "Klangtabelle.h"

#include <charconv>
#include <stdexcept>
#include <vector>

namespace sound {

namespace {

constexpr int LaufEnde = 57;      // sounds 1..57 run one after the other
constexpr int AbstandMs = 10;     // silence between two sounds of the run

std::vector<std::string_view> felder(std::string_view zeile, std::size_t anzahl, std::string_view& rest) {
    std::vector<std::string_view> ergebnis;
    std::size_t i = 0;
    while (ergebnis.size() < anzahl) {
        while (i < zeile.size() && (zeile[i] == ' ' || zeile[i] == '\t')) ++i;
        if (i >= zeile.size()) break;
        const std::size_t anfang = i;
        while (i < zeile.size() && zeile[i] != ' ' && zeile[i] != '\t') ++i;
        ergebnis.push_back(zeile.substr(anfang, i - anfang));
    }
    while (i < zeile.size() && (zeile[i] == ' ' || zeile[i] == '\t')) ++i;
    rest = zeile.substr(i);
    while (!rest.empty() && (rest.back() == ' ' || rest.back() == '\t' || rest.back() == '\r')) rest.remove_suffix(1);
    return ergebnis;
}

std::optional<int> zahl(std::string_view text) {
    int wert = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
    if (fehler != std::errc() || ende != text.data() + text.size()) return std::nullopt;
    return wert;
}

std::optional<Klangart> artLesen(std::string_view text) {
    if (text == "sprache") return Klangart::Sprache;
    if (text == "effekt") return Klangart::Effekt;
    if (text == "ausschnitt") return Klangart::Ausschnitt;
    if (text == "leer") return Klangart::Leer;
    if (text == "frei") return Klangart::Frei;
    return std::nullopt;
}

struct Zeilenfehler : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// One row: number, run end (hundredths) and fixed position as read.
struct Zeile {
    int nummer;
    std::optional<int> endeHundertstel;
    std::optional<Segment> fest;
    Klangeintrag eintrag;
};

Zeile zeileLesen(std::string_view text, int erwartet) {
    std::string_view rest;
    const auto f = felder(text, 5, rest);
    if (f.size() < 5) throw Zeilenfehler("zu wenige Spalten");
    Zeile z{};
    const auto nummer = zahl(f[0]);
    if (!nummer || *nummer != erwartet) throw Zeilenfehler("Nummer " + std::to_string(erwartet) + " erwartet");
    z.nummer = *nummer;
    if (f[1] != "-") {
        z.endeHundertstel = zahl(f[1]);
        if (!z.endeHundertstel || *z.endeHundertstel < 0) throw Zeilenfehler("Ende ist keine Zahl");
    }
    if (f[2] != "-") {
        const auto strich = f[2].find('-');
        const auto von = strich == std::string_view::npos ? std::nullopt : zahl(f[2].substr(0, strich));
        const auto bis = strich == std::string_view::npos ? std::nullopt : zahl(f[2].substr(strich + 1));
        if (!von || !bis || *von < 0 || *bis < *von) throw Zeilenfehler("feste Lage ist nicht start-ende");
        z.fest = Segment{*von, *bis};
    }
    const bool imLauf = z.nummer <= LaufEnde;
    if (imLauf != z.endeHundertstel.has_value()) throw Zeilenfehler(imLauf ? "Ende fehlt" : "Ende nur bis 57");
    if (!imLauf && !z.fest) throw Zeilenfehler("feste Lage fehlt");
    const auto art = artLesen(f[3]);
    if (!art) throw Zeilenfehler("unbekannte Art");
    z.eintrag.nummer = z.nummer;
    z.eintrag.art = *art;
    z.eintrag.name = std::string(f[4]);
    z.eintrag.inhalt = std::string(rest);
    return z;
}

}  // namespace

std::optional<Klangtabelle> Klangtabelle::lesen(std::string_view text, std::string* fehler) {
    Klangtabelle tabelle;
    int naechste = 1;
    int zeilenNr = 0;
    int laufEndeMs = -AbstandMs;
    try {
        std::size_t pos = 0;
        while (pos <= text.size()) {
            const std::size_t nl = text.find('\n', pos);
            const std::string_view zeile =
                text.substr(pos, nl == std::string_view::npos ? std::string_view::npos : nl - pos);
            pos = nl == std::string_view::npos ? text.size() + 1 : nl + 1;
            ++zeilenNr;
            const auto erstes = zeile.find_first_not_of(" \t\r");
            if (erstes == std::string_view::npos || zeile[erstes] == '#') continue;
            if (naechste > KlangAnzahl) throw Zeilenfehler("mehr als 63 Klänge");
            Zeile z = zeileLesen(zeile, naechste);
            if (z.endeHundertstel) {
                const int start = laufEndeMs + AbstandMs;
                const int ende = *z.endeHundertstel * 10;
                if (ende < start) throw Zeilenfehler("Ende liegt vor dem Anfang");
                z.eintrag.segment = Segment{start, ende};
                laufEndeMs = ende;
            }
            if (z.fest) z.eintrag.segment = *z.fest;
            tabelle.eintraege_[static_cast<std::size_t>(naechste - 1)] = std::move(z.eintrag);
            ++naechste;
        }
        if (naechste <= KlangAnzahl) throw Zeilenfehler("Klang " + std::to_string(naechste) + " fehlt");
    } catch (const Zeilenfehler& e) {
        if (fehler) *fehler = "Zeile " + std::to_string(zeilenNr) + ": " + e.what();
        return std::nullopt;
    }
    return tabelle;
}

const Klangeintrag* Klangtabelle::eintrag(int nummer) const {
    if (nummer < 1 || nummer > KlangAnzahl) return nullptr;
    return &eintraege_[static_cast<std::size_t>(nummer - 1)];
}

const Klangtabelle& standardKlangtabelle() {
    // The built-in text is checked by the tests; a broken one must not start silently wrong.
    static const Klangtabelle tabelle = [] {
        std::string fehler;
        auto t = Klangtabelle::lesen(eingebauterTabellentext(), &fehler);
        if (!t) throw std::logic_error("eingebaute Klangtabelle: " + fehler);
        return *t;
    }();
    return tabelle;
}

}  // namespace sound

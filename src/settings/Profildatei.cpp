#include "Profildatei.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "Zeichensatz.h"

namespace settings {

namespace {

bool leer(char c) { return c == ' ' || c == '\t'; }

std::string_view getrimmt(std::string_view s) {
    while (!s.empty() && leer(s.front())) s.remove_prefix(1);
    while (!s.empty() && leer(s.back())) s.remove_suffix(1);
    return s;
}

bool istKommentar(std::string_view getrimmteZeile) {
    return getrimmteZeile.starts_with(';') || getrimmteZeile.starts_with('#');
}

// The section name of a header line "[name]" (given without its blanks), or nothing.
std::optional<std::string_view> abschnittsnameGetrimmt(std::string_view z) {
    if (!z.starts_with('[')) return std::nullopt;
    const auto zu = z.rfind(']');
    if (zu == std::string_view::npos || zu == 0) return std::nullopt;
    return getrimmt(z.substr(1, zu - 1));
}

std::optional<std::string_view> abschnittsname(std::string_view zeile) { return abschnittsnameGetrimmt(getrimmt(zeile)); }

struct Zeileneintrag {
    std::string_view schluessel;
    std::string_view wert;
};

// A line "key=value" (given without its blanks), or nothing.
std::optional<Zeileneintrag> eintragGetrimmt(std::string_view z) {
    if (z.empty() || istKommentar(z) || z.starts_with('[')) return std::nullopt;
    const auto gleich = z.find('=');
    if (gleich == std::string_view::npos) return std::nullopt;
    return Zeileneintrag{getrimmt(z.substr(0, gleich)), getrimmt(z.substr(gleich + 1))};
}

std::optional<Zeileneintrag> eintrag(std::string_view zeile) { return eintragGetrimmt(getrimmt(zeile)); }

std::string einzeilig(std::string_view wert) {
    std::string s(wert.substr(0, wert.find('\0')));
    std::replace(s.begin(), s.end(), '\r', ' ');
    std::replace(s.begin(), s.end(), '\n', ' ');
    return s;
}

// The value as the reader sees it: one pair of enclosing quotes removed.
std::string_view ohneAnfuehrung(std::string_view w) {
    if (w.size() >= 2 && (w.front() == '"' || w.front() == '\'') && w.back() == w.front()) return w.substr(1, w.size() - 2);
    return w;
}

// Of two lines for the same name the earlier one counts.
void frueheste(std::size_t& gemerkt, std::size_t zeile) { gemerkt = std::min(gemerkt, zeile); }

}  // namespace

Profildatei Profildatei::ausBytes(std::string_view bytes) {
    Profildatei datei;
    datei.zeilen_ = dateiZeilen(bytes);
    Abschnittsort* abschnitt = nullptr;
    for (std::size_t i = 0; i < datei.zeilen_.size(); ++i) abschnitt = datei.verzeichnen(i, abschnitt);
    return datei;
}

std::string Profildatei::bytes() const {
    std::string text;
    for (const auto& zeile : zeilen_) {
        text += zeile;
        text += "\r\n";
    }
    return utf8NachCp1252(text);
}

Profildatei::Abschnittsort* Profildatei::verzeichnen(std::size_t zeile, Abschnittsort* abschnitt) {
    const std::string_view z = getrimmt(zeilen_[zeile]);
    if (const auto name = abschnittsnameGetrimmt(z)) {
        const Gefaltet gefaltet(*name);
        auto ort = orte_.find(gefaltet.sicht());
        if (ort == orte_.end()) ort = orte_.emplace(gefaltet.sicht(), Abschnittsort{zeile, 0, {}}).first;
        frueheste(ort->second.kopf, zeile);
        return &ort->second;
    }
    if (!abschnitt) return nullptr;
    if (const auto e = eintragGetrimmt(z)) {
        const Gefaltet gefaltet(e->schluessel);
        const auto ort = abschnitt->schluessel.find(gefaltet.sicht());
        if (ort == abschnitt->schluessel.end()) abschnitt->schluessel.emplace(gefaltet.sicht(), zeile);
        else frueheste(ort->second, zeile);
    }
    return abschnitt;
}

std::optional<std::size_t> Profildatei::schluesselZeile(std::string_view abschnitt, std::string_view schluessel) const {
    const auto ort = orte_.find(Gefaltet(abschnitt).sicht());
    if (ort == orte_.end()) return std::nullopt;
    const auto zeile = ort->second.schluessel.find(Gefaltet(schluessel).sicht());
    if (zeile == ort->second.schluessel.end()) return std::nullopt;
    return zeile->second;
}

std::optional<std::string> Profildatei::wert(std::string_view abschnitt, std::string_view schluessel) const {
    const auto zeile = schluesselZeile(abschnitt, schluessel);
    if (!zeile) return std::nullopt;
    return std::string(ohneAnfuehrung(eintrag(zeilen_[*zeile])->wert));
}

std::vector<Profildatei::Eintrag> Profildatei::eintraege(std::string_view abschnitt) const {
    std::vector<Eintrag> liste;
    const auto ort = orte_.find(Gefaltet(abschnitt).sicht());
    if (ort == orte_.end()) return liste;
    liste.reserve(ort->second.schluessel.size());
    for (const auto& [name, zeile] : ort->second.schluessel)
        liste.push_back({name, ohneAnfuehrung(eintrag(zeilen_[zeile])->wert)});
    return liste;
}

void Profildatei::einfuegen(std::size_t zeile, std::string text, Abschnittsort& abschnitt) {
    // The lines from here on move down by one (at the end of the file there are none).
    if (zeile < zeilen_.size()) {
        for (auto& [name, ort] : orte_) {
            if (ort.kopf >= zeile) ++ort.kopf;
            if (ort.ende != 0 && ort.ende >= zeile) ++ort.ende;
            for (auto& [schluessel, z] : ort.schluessel)
                if (z >= zeile) ++z;
        }
    } else if (abschnitt.ende == zeile) {
        ++abschnitt.ende;
    }
    zeilen_.insert(zeilen_.begin() + static_cast<std::ptrdiff_t>(zeile), std::move(text));
    verzeichnen(zeile, &abschnitt);
}

void Profildatei::setze(std::string_view abschnitt, std::string_view schluessel, std::string_view wert) {
    const std::string neuerWert = einzeilig(wert);
    const auto ort = orte_.find(Gefaltet(abschnitt).sicht());
    if (ort != orte_.end()) {
        const auto zeile = ort->second.schluessel.find(Gefaltet(schluessel).sicht());
        if (zeile != ort->second.schluessel.end()) {
            std::string& text = zeilen_[zeile->second];
            const auto name = eintrag(text)->schluessel;
            text = std::string(name) + "=" + neuerWert;
            return;
        }
    }
    std::string neueZeile = std::string(schluessel) + "=" + neuerWert;
    if (ort == orte_.end()) {
        if (!zeilen_.empty() && !getrimmt(zeilen_.back()).empty()) zeilen_.emplace_back();
        zeilen_.push_back("[" + std::string(abschnitt) + "]");
        zeilen_.push_back(std::move(neueZeile));
        verzeichnen(zeilen_.size() - 1, verzeichnen(zeilen_.size() - 2, nullptr));
        return;
    }
    Abschnittsort& a = ort->second;
    if (a.ende == 0) {
        a.ende = a.kopf + 1;
        for (std::size_t i = a.ende; i < zeilen_.size() && !abschnittsname(zeilen_[i]); ++i) {
            if (!getrimmt(zeilen_[i]).empty()) a.ende = i + 1;
        }
    }
    einfuegen(a.ende, std::move(neueZeile), a);
}

std::string profilText(const Profildatei& datei, std::string_view abschnitt, std::string_view schluessel,
                       std::string_view standard, std::size_t puffergroesse) {
    const auto gefunden = datei.wert(abschnitt, schluessel);
    return profilText(gefunden ? std::string_view(*gefunden) : standard, puffergroesse);
}

std::string profilText(std::string_view text, std::size_t puffergroesse) {
    return ersteZeichen(text.substr(0, text.find('\0')), puffergroesse > 0 ? puffergroesse - 1 : 0);
}

int profilZahl(const Profildatei& datei, std::string_view abschnitt, std::string_view schluessel, int standard) {
    const auto gefunden = datei.wert(abschnitt, schluessel);
    return gefunden ? profilZahl(*gefunden, standard) : standard;
}

int profilZahl(std::string_view text, int standard) {
    text = text.substr(0, text.find('\0'));
    if (text.empty()) return standard;
    bool negativ = false;
    if (text.front() == '-' || text.front() == '+') {
        negativ = text.front() == '-';
        text.remove_prefix(1);
    }
    int basis = 10;
    if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
        basis = 16;
        text.remove_prefix(2);
    }
    // Like the Windows reader the value wraps at 32 bits instead of failing.
    std::uint32_t wert = 0;
    for (const char c : text) {
        int ziffer = -1;
        if (c >= '0' && c <= '9') ziffer = c - '0';
        else if (basis == 16 && c >= 'a' && c <= 'f') ziffer = c - 'a' + 10;
        else if (basis == 16 && c >= 'A' && c <= 'F') ziffer = c - 'A' + 10;
        if (ziffer < 0) break;
        wert = wert * static_cast<std::uint32_t>(basis) + static_cast<std::uint32_t>(ziffer);
    }
    if (negativ) wert = 0u - wert;
    return static_cast<int>(wert);
}

long long fuehrendeZahl(std::string_view text) {
    text = getrimmt(text);
    bool negativ = false;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        negativ = text.front() == '-';
        text.remove_prefix(1);
    }
    constexpr long long grenze = std::numeric_limits<long long>::max() / 10 - 9;
    long long wert = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') break;
        if (wert < grenze) wert = wert * 10 + (c - '0');
    }
    return negativ ? -wert : wert;
}

}  // namespace settings

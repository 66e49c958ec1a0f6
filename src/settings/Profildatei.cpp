#include "Profildatei.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "Zeichensatz.h"

namespace settings {

namespace {

constexpr std::string_view Leerraum = " \t";

std::string_view getrimmt(std::string_view s) {
    const auto anfang = s.find_first_not_of(Leerraum);
    if (anfang == std::string_view::npos) return {};
    const auto ende = s.find_last_not_of(Leerraum);
    return s.substr(anfang, ende - anfang + 1);
}

bool istKommentar(std::string_view getrimmteZeile) {
    return getrimmteZeile.starts_with(';') || getrimmteZeile.starts_with('#');
}

// The section name of a header line "[name]", or nothing.
std::optional<std::string_view> abschnittsname(std::string_view zeile) {
    const auto z = getrimmt(zeile);
    if (!z.starts_with('[')) return std::nullopt;
    const auto zu = z.rfind(']');
    if (zu == std::string_view::npos || zu == 0) return std::nullopt;
    return getrimmt(z.substr(1, zu - 1));
}

struct Eintrag {
    std::string_view schluessel;
    std::string_view wert;
};

std::optional<Eintrag> eintrag(std::string_view zeile) {
    const auto z = getrimmt(zeile);
    if (z.empty() || istKommentar(z) || z.starts_with('[')) return std::nullopt;
    const auto gleich = z.find('=');
    if (gleich == std::string_view::npos) return std::nullopt;
    return Eintrag{getrimmt(z.substr(0, gleich)), getrimmt(z.substr(gleich + 1))};
}

std::string einzeilig(std::string_view wert) {
    std::string s(wert.substr(0, wert.find('\0')));
    std::replace(s.begin(), s.end(), '\r', ' ');
    std::replace(s.begin(), s.end(), '\n', ' ');
    return s;
}

}  // namespace

Profildatei Profildatei::ausBytes(std::string_view bytes) {
    Profildatei datei;
    datei.zeilen_ = dateiZeilen(bytes);
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

Profildatei::Fundstelle Profildatei::suche(std::string_view abschnitt, std::string_view schluessel) const {
    const std::string abschnittGefaltet = faltung(abschnitt);
    const std::string schluesselGefaltet = faltung(schluessel);
    Fundstelle fund;
    bool imAbschnitt = false;
    for (std::size_t i = 0; i < zeilen_.size(); ++i) {
        if (const auto name = abschnittsname(zeilen_[i])) {
            imAbschnitt = faltung(*name) == abschnittGefaltet;
            if (imAbschnitt && !fund.abschnittKopf) fund.abschnittKopf = i;
            continue;
        }
        if (!imAbschnitt) continue;
        const auto e = eintrag(zeilen_[i]);
        if (e && !fund.schluesselZeile && faltung(e->schluessel) == schluesselGefaltet) fund.schluesselZeile = i;
    }
    return fund;
}

std::optional<std::string> Profildatei::wert(std::string_view abschnitt, std::string_view schluessel) const {
    const auto fund = suche(abschnitt, schluessel);
    if (!fund.schluesselZeile) return std::nullopt;
    std::string_view w = eintrag(zeilen_[*fund.schluesselZeile])->wert;
    if (w.size() >= 2 && (w.front() == '"' || w.front() == '\'') && w.back() == w.front()) {
        w = w.substr(1, w.size() - 2);
    }
    return std::string(w);
}

void Profildatei::setze(std::string_view abschnitt, std::string_view schluessel, std::string_view wert) {
    const std::string neuerWert = einzeilig(wert);
    const auto fund = suche(abschnitt, schluessel);
    if (fund.schluesselZeile) {
        std::string& zeile = zeilen_[*fund.schluesselZeile];
        const auto name = eintrag(zeile)->schluessel;
        zeile = std::string(name) + "=" + neuerWert;
        return;
    }
    const std::string neueZeile = std::string(schluessel) + "=" + neuerWert;
    if (!fund.abschnittKopf) {
        if (!zeilen_.empty() && !getrimmt(zeilen_.back()).empty()) zeilen_.emplace_back();
        zeilen_.push_back("[" + std::string(abschnitt) + "]");
        zeilen_.push_back(neueZeile);
        return;
    }
    // After the last non-blank line of the section's first occurrence.
    std::size_t einfuegen = *fund.abschnittKopf + 1;
    for (std::size_t i = einfuegen; i < zeilen_.size() && !abschnittsname(zeilen_[i]); ++i) {
        if (!getrimmt(zeilen_[i]).empty()) einfuegen = i + 1;
    }
    zeilen_.insert(zeilen_.begin() + static_cast<std::ptrdiff_t>(einfuegen), neueZeile);
}

std::string profilText(const Profildatei& datei, std::string_view abschnitt, std::string_view schluessel,
                       std::string_view standard, std::size_t puffergroesse) {
    const auto gefunden = datei.wert(abschnitt, schluessel);
    std::string_view text = gefunden ? std::string_view(*gefunden) : standard;
    text = text.substr(0, text.find('\0'));
    return ersteZeichen(text, puffergroesse > 0 ? puffergroesse - 1 : 0);
}

int profilZahl(const Profildatei& datei, std::string_view abschnitt, std::string_view schluessel, int standard) {
    const auto gefunden = datei.wert(abschnitt, schluessel);
    if (!gefunden) return standard;
    std::string_view text = *gefunden;
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

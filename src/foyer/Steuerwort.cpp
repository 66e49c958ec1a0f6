#include "Steuerwort.h"

#include <algorithm>
#include <cctype>

#include "Foyertexte.h"
#include "Irczeile.h"
#include "Kanal.h"

namespace foyer {

namespace {

std::string_view ohneFuehrendeBlanks(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    return text;
}

// Splits off the next word; blanks between words are skipped.
std::string_view wort(std::string_view& text) {
    text = ohneFuehrendeBlanks(text);
    const auto ende = text.find(' ');
    const std::string_view w = text.substr(0, ende);
    text = ende == std::string_view::npos ? std::string_view() : text.substr(ende);
    return w;
}

bool adresseGueltig(std::string_view a) {
    if (a.empty() || a.size() > MaxAdresse || a.front() == '-') return false;
    return std::all_of(a.begin(), a.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' || c == '-' ||
               c == ':';
    });
}

}  // namespace

std::string tinfoText(const Tischangebot& a) {
    return std::string(TinfoWort) + " " + std::to_string(a.nummer) + " " + a.adresse + " " + std::to_string(a.port) +
           " " + std::to_string(a.frei) + " " + anzeigetext(a.regeln);
}

std::optional<Tischangebot> tinfoLesen(std::string_view text) {
    if (wort(text) != TinfoWort) return std::nullopt;
    Tischangebot a;
    const auto nummer = zahlLesen(wort(text), MaxTischnummer);
    const std::string_view adresse = wort(text);
    const auto port = zahlLesen(wort(text), 65535);
    const auto frei = zahlLesen(wort(text), 3);
    if (!nummer || *nummer < 1 || !adresseGueltig(adresse) || !port || *port < 1 || !frei) return std::nullopt;
    a.nummer = *nummer;
    a.adresse = std::string(adresse);
    a.port = *port;
    a.frei = *frei;
    // Blanks that stood behind dropped control characters lead no more than others do.
    const std::string regeln = anzeigetext(text);
    a.regeln = utf8Anfang(ohneFuehrendeBlanks(regeln), MaxRegeltext);
    return a;
}

std::string tretText(int nummer) { return std::string(TretWort) + " " + std::to_string(nummer); }

std::optional<int> tretLesen(std::string_view text) {
    if (wort(text) != TretWort) return std::nullopt;
    const auto nummer = zahlLesen(wort(text), MaxTischnummer);
    if (!nummer || *nummer < 1 || !ohneFuehrendeBlanks(text).empty()) return std::nullopt;
    return nummer;
}

std::string chateText(std::string_view nick) {
    return std::string(ChateWort) + " " + std::string(nick) + std::string(texte::KannNichtEmpfangen);
}

bool istChate(std::string_view text) { return ohneFuehrendeBlanks(text).starts_with(ohneFuehrendeBlanks(ChateWort)); }

std::string chateAnzeige(std::string_view text) {
    std::string_view rest = ohneFuehrendeBlanks(text).substr(ohneFuehrendeBlanks(ChateWort).size());
    std::string anzeige = anzeigetext(ohneFuehrendeBlanks(rest));
    std::replace(anzeige.begin(), anzeige.end(), '_', ' ');
    return anzeige;
}

bool istSteuerwort(std::string_view text) {
    const std::string_view t = ohneFuehrendeBlanks(text);
    return t.starts_with(TinfoWort) || t.starts_with(TretWort) || istChate(t);
}

std::string anzeigetext(std::string_view text) {
    std::string sauber;
    sauber.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c == 0x03) {  // a colour: up to two digits, then maybe a comma and two more
            for (int n = 0; n < 2 && i + 1 < text.size() && std::isdigit(static_cast<unsigned char>(text[i + 1])); ++n) ++i;
            if (i + 2 < text.size() && text[i + 1] == ',' && std::isdigit(static_cast<unsigned char>(text[i + 2]))) {
                i += 2;
                if (i + 1 < text.size() && std::isdigit(static_cast<unsigned char>(text[i + 1]))) ++i;
            }
            continue;
        }
        if (c < 0x20 || c == 0x7F) continue;
        sauber += text[i];
    }
    return sauber;
}

}  // namespace foyer

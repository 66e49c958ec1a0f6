#include "Namen.h"

#include "Netztexte.h"
#include "settings/Zeichensatz.h"

namespace net {

namespace {

bool istBuchstabe(unsigned char c) {
    if ((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')) return true;
    if (c >= 0xC0) return c != 0xD7 && c != 0xF7;
    // Š Œ Ž š œ ž Ÿ
    return c == 0x8A || c == 0x8C || c == 0x8E || c == 0x9A || c == 0x9C || c == 0x9E || c == 0x9F;
}

bool istZiffer(unsigned char c) { return c >= '0' && c <= '9'; }

bool beginntMit(std::string_view name, std::string_view anfang) {
    return settings::gleichOhneGrossschreibung(settings::ersteZeichen(name, anfang.size()), anfang);
}

}  // namespace

std::optional<std::string> namePruefen(std::string_view name) {
    using namespace texte;
    const std::string bytes = settings::utf8NachCp1252(name);
    if (beginntMit(name, "SPIELER")) return std::string(name) + std::string(KeinGuelterName);
    bool gueltig = bytes.empty() || istBuchstabe(static_cast<unsigned char>(bytes[0]));
    for (const char c : bytes) gueltig = gueltig && (istBuchstabe(static_cast<unsigned char>(c)) || istZiffer(static_cast<unsigned char>(c)));
    if (!gueltig)
        return "Der Name " + std::string(name) + std::string(NameUngueltig) + "\n" + std::string(ErstesZeichen);
    if (bytes.size() > MaxNamenlaenge) return std::string(NameZuLang);
    if (bytes.empty()) return std::string(NameLeer);
    if (beginntMit(name, "COMPUTER")) return std::string(name) + std::string(KeinGueltigerName);
    return std::nullopt;
}

std::string nameBereinigen(std::string_view bytes) {
    std::string sauber;
    for (const char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        if (b < 0x20 || b == 0x7F) continue;
        if (sauber.size() == MaxNamenlaenge) break;
        sauber += c;
    }
    return settings::cp1252NachUtf8(sauber);
}

}  // namespace net

#include "Protokoll.h"

#include "settings/Zeichensatz.h"

namespace net {

namespace {
// When the host sends, the text after its first 32000 characters stays; when
// either role receives, the text from its 32000th character on; when the guest
// sends, the text after its first 30000 characters.
constexpr std::size_t NachHostSenden = 32000;
constexpr std::size_t NachEmpfang = 31999;
constexpr std::size_t NachGastSenden = 30000;
}  // namespace

void Protokoll::zeile(std::string_view inhalt, std::size_t behalten) {
    letzte_ = text_.size() + 1;
    text_ += '\n';
    text_ += inhalt;
    if (text_.size() <= Grenze) return;
    text_.erase(0, behalten);
    letzte_ = letzte_ >= behalten ? letzte_ - behalten : 0;
}

void Protokoll::hostGesendet(std::string_view name, std::string_view nachricht) {
    zeile(settings::utf8NachCp1252(name) + ": " + std::string(nachricht), NachHostSenden);
}

void Protokoll::hostEmpfangen(std::string_view name, std::string_view nachricht) {
    zeile("  < " + settings::utf8NachCp1252(name) + ": " + std::string(nachricht), NachEmpfang);
}

void Protokoll::gastGesendet(std::string_view nachricht) { zeile(nachricht, NachGastSenden); }

void Protokoll::gastEmpfangen(std::string_view nachricht) { zeile("  < " + std::string(nachricht), NachEmpfang); }

void Protokoll::nochZuBearbeiten(std::string_view rest) {
    zeile("*** Noch zu bearbeiten: " + std::string(rest) + " ***", NachEmpfang);
}

void Protokoll::vermerk(std::string_view text) { zeile(settings::utf8NachCp1252(text), NachEmpfang); }

std::string Protokoll::letzteZeile() const {
    return settings::cp1252NachUtf8(std::string_view(text_).substr(std::min(letzte_, text_.size())));
}

}  // namespace net

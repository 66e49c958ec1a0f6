#include "Nachricht.h"

#include <climits>

#include "settings/Zeichensatz.h"

namespace net {

Nachricht zerlegen(std::string_view nachricht) {
    const std::size_t n = std::min(nachricht.size(), TagLaenge);
    return {std::string(nachricht.substr(0, n)), std::string(nachricht.substr(n))};
}

std::string rahmen(std::string_view tag, std::string_view nutzlast) {
    std::string bytes = settings::utf8NachCp1252(nutzlast);
    for (auto p = bytes.find(Trenner); p != std::string::npos; p = bytes.find(Trenner)) bytes.erase(p, Trenner.size());
    std::string r;
    r.reserve(tag.size() + bytes.size() + Trenner.size());
    r.append(tag).append(bytes).append(Trenner);
    return r;
}

int zahlWert(std::string_view text) {
    long long wert = 0;
    bool negativ = false;
    bool vorzeichenErlaubt = true;
    for (const char c : text) {
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n') continue;
        if (vorzeichenErlaubt && (c == '-' || c == '+')) {
            negativ = c == '-';
            vorzeichenErlaubt = false;
            continue;
        }
        if (c < '0' || c > '9') break;
        vorzeichenErlaubt = false;
        if (wert < INT_MAX) wert = wert * 10 + (c - '0');
    }
    if (wert > INT_MAX) wert = INT_MAX;
    return static_cast<int>(negativ ? -wert : wert);
}

std::size_t Empfangspuffer::trennerSuchen() const {
    const std::size_t von = std::max(anfang_, gesucht_);
    const std::size_t p = daten_.find(Trenner, von);
    if (p == std::string::npos)
        gesucht_ = daten_.size() >= Trenner.size() - 1 ? daten_.size() - (Trenner.size() - 1) : 0;
    return p;
}

bool Empfangspuffer::anhaengen(std::string_view bytes) {
    daten_.append(bytes);
    const std::size_t groesse = daten_.size() - anfang_;
    if (groesse > MaxPuffer) return false;
    return groesse <= MaxOhneTrenner || trennerSuchen() != std::string::npos;
}

std::string_view Empfangspuffer::kopf() const { return rest().substr(0, TagLaenge); }

bool Empfangspuffer::vollstaendig() const { return trennerSuchen() != std::string::npos; }

std::optional<std::string> Empfangspuffer::nehmen() {
    const std::size_t p = trennerSuchen();
    if (p == std::string::npos) return std::nullopt;
    std::string nachricht = daten_.substr(anfang_, p - anfang_);
    anfang_ = p + Trenner.size();
    while (anfang_ < daten_.size() && daten_[anfang_] == ' ') ++anfang_;
    if (anfang_ >= daten_.size()) {
        leeren();
    } else if (anfang_ > 4096 && anfang_ > daten_.size() / 2) {
        daten_.erase(0, anfang_);
        gesucht_ = gesucht_ > anfang_ ? gesucht_ - anfang_ : 0;
        anfang_ = 0;
    }
    return nachricht;
}

void Empfangspuffer::leeren() {
    daten_.clear();
    anfang_ = 0;
    gesucht_ = 0;
}

}  // namespace net

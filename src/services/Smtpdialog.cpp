#include "Smtpdialog.h"

#include <array>
#include <cstdio>

#include "Diensttexte.h"

namespace services {

namespace {

bool ziffer(char c) { return c >= '0' && c <= '9'; }

Antwort zeileDeuten(const std::string& zeile, bool& weitere) {
    weitere = false;
    if (zeile.size() < 3 || !ziffer(zeile[0]) || !ziffer(zeile[1]) || !ziffer(zeile[2])) return {0, zeile};
    if (zeile.size() > 3 && zeile[3] != ' ' && zeile[3] != '-') return {0, zeile};
    weitere = zeile.size() > 3 && zeile[3] == '-';
    const int code = (zeile[0] - '0') * 100 + (zeile[1] - '0') * 10 + (zeile[2] - '0');
    return {code, zeile.size() > 4 ? zeile.substr(4) : std::string()};
}

// No CR or LF may leave a field: it would start a line of its own.
std::string einzeilig(std::string_view text) {
    std::string s(text);
    for (char& c : s)
        if (c == '\r' || c == '\n') c = ' ';
    return s;
}

// Weekday of a date of the Gregorian calendar, 0 = Sunday (Sakamoto).
int wochentag(int jahr, int monat, int tag) {
    static constexpr std::array<int, 12> versatz{0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
    if (monat < 3) jahr -= 1;
    const int w = (jahr + jahr / 4 - jahr / 100 + jahr / 400 + versatz[static_cast<std::size_t>(monat - 1)] + tag) % 7;
    return w < 0 ? w + 7 : w;
}

}  // namespace

std::vector<Antwort> Antwortleser::lesen(std::string_view bytes) {
    std::vector<Antwort> fertig;
    for (const char c : bytes) {
        if (c == '\n') {
            zeileFertig(fertig);
            continue;
        }
        if (zeile_.size() >= MaxZeile) {
            ueberlang_ = true;  // the rest of the line is dropped
            continue;
        }
        zeile_.push_back(c);
    }
    return fertig;
}

void Antwortleser::zeileFertig(std::vector<Antwort>& fertig) {
    if (!zeile_.empty() && zeile_.back() == '\r') zeile_.pop_back();
    bool weitere = false;
    Antwort a = ueberlang_ ? Antwort{0, "zu lange Zeile"} : zeileDeuten(zeile_, weitere);
    zeile_.clear();
    ueberlang_ = false;
    if (a.code != 0 && weitere && ++zeilen_ < MaxZeilen) return;
    if (a.code != 0 && weitere) a = {0, "zu viele Zeilen"};
    zeilen_ = 0;
    fertig.push_back(std::move(a));
}

std::string datumText(const Zeitpunkt& z) {
    static constexpr std::array<const char*, 7> tage{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    static constexpr std::array<const char*, 12> monate{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const int monat = z.monat >= 1 && z.monat <= 12 ? z.monat : 1;
    std::array<char, 64> puffer{};
    std::snprintf(puffer.data(), puffer.size(), "%s, %02d %s %04d %02d:%02d:%02d +0100",
                  tage[static_cast<std::size_t>(wochentag(z.jahr, monat, z.tag))], z.tag,
                  monate[static_cast<std::size_t>(monat - 1)], z.jahr, z.stunde, z.minute, z.sekunde);
    return puffer.data();
}

std::string domainVon(std::string_view adresse) {
    const auto at = adresse.rfind('@');
    return at == std::string_view::npos ? std::string() : einzeilig(adresse.substr(at + 1));
}

std::optional<std::string> nachrichtBauen(const Mail& mail, const Zeitpunkt& zeit, std::string_view xMailer) {
    const std::string kopf = "From: " + einzeilig(mail.absendername) + " <" + einzeilig(mail.absender) + ">\r\n" +
                             "Date: " + datumText(zeit) + "\r\n" + "X-Mailer: " + einzeilig(xMailer) + "\r\n" +
                             "To: " + einzeilig(mail.empfaengername) + " <" + einzeilig(mail.empfaenger) + ">\r\n" +
                             "Subject: " + einzeilig(mail.betreff) + "\r\n\r\n";
    std::string text = kopf + mail.rumpf;
    if (text.size() < 2 || text.compare(text.size() - 2, 2, "\r\n") != 0) text += "\r\n";
    // Every line begins after a CR LF; a leading dot is doubled, and no line may outgrow a server.
    std::string aus;
    aus.reserve(text.size() + 8);
    std::size_t anfang = 0;
    while (anfang < text.size()) {
        std::size_t ende = text.find("\r\n", anfang);
        if (ende == std::string::npos) ende = text.size();
        const std::size_t laenge = ende - anfang;
        if (laenge > MaxMailzeile - (text[anfang] == '.' ? 1 : 0)) return std::nullopt;
        if (laenge > 0 && text[anfang] == '.') aus += '.';
        aus.append(text, anfang, laenge);
        aus += "\r\n";
        anfang = ende + 2;
    }
    aus += ".\r\n";
    return aus;
}

Smtpdialog::Smtpdialog(Mail mail, std::string heloDomain, Zeitpunkt zeit, std::string xMailer)
    : mail_(std::move(mail)),
      heloDomain_(einzeilig(heloDomain)),
      zeit_(zeit),
      xMailer_(std::move(xMailer)),
      nachricht_(nachrichtBauen(mail_, zeit_, xMailer_)) {}

Smtpdialog::Schritt Smtpdialog::beginnen() {
    if (!nachricht_) return scheitern({texte::ZeileZuLang});
    return {{}, {texte::Verbinde}, Ausgang::Laeuft};
}

Smtpdialog::Schritt Smtpdialog::scheitern(std::vector<std::string> status) {
    stufe_ = Stufe::Fertig;
    ausgang_ = Ausgang::Fehler;
    grund_ = status.front();
    status.emplace_back(texte::FehlerBeimVersenden);
    return {{}, std::move(status), Ausgang::Fehler};
}

Smtpdialog::Schritt Smtpdialog::antwort(const Antwort& a) {
    if (stufe_ == Stufe::Fertig) return {{}, {}, ausgang_};
    static constexpr std::array<int, 7> erwartet{220, 250, 250, 250, 354, 250, 221};
    if (a.code != erwartet[static_cast<std::size_t>(stufe_)]) {
        falsch_ = a;
        return scheitern({texte::FalscherRueckgabewert});
    }
    switch (stufe_) {
        case Stufe::Gruss:
            stufe_ = Stufe::Helo;
            return {"HELO " + heloDomain_ + "\r\n", {texte::Verbunden}, Ausgang::Laeuft};
        case Stufe::Helo:
            stufe_ = Stufe::Absender;
            return {"mail from: " + einzeilig(mail_.absender) + "\r\n", {texte::NachrichtSenden}, Ausgang::Laeuft};
        case Stufe::Absender:
            stufe_ = Stufe::Empfaenger;
            return {"rcpt to: " + einzeilig(mail_.empfaenger) + "\r\n", {}, Ausgang::Laeuft};
        case Stufe::Empfaenger:
            stufe_ = Stufe::Daten;
            return {"data\r\n", {}, Ausgang::Laeuft};
        case Stufe::Daten:
            stufe_ = Stufe::Inhalt;
            return {nachricht_.value_or(std::string()), {}, Ausgang::Laeuft};
        case Stufe::Inhalt:
            angenommen_ = true;
            stufe_ = Stufe::Ende;
            return {"quit\r\n", {texte::Trennen}, Ausgang::Laeuft};
        case Stufe::Ende:
            stufe_ = Stufe::Fertig;
            ausgang_ = Ausgang::Verschickt;
            return {{}, {texte::NachrichtVerschickt}, Ausgang::Verschickt};
        case Stufe::Fertig: break;
    }
    return {{}, {}, ausgang_};
}

Smtpdialog::Schritt Smtpdialog::zeitUeberschritten() {
    if (stufe_ == Stufe::Fertig) return {{}, {}, ausgang_};
    return scheitern({texte::TimeOut});
}

Smtpdialog::Schritt Smtpdialog::verbindungsfehler() {
    if (stufe_ == Stufe::Fertig) return {{}, {}, ausgang_};
    return scheitern({texte::Uebertragungsfehler});
}

}  // namespace services

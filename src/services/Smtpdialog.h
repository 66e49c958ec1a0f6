#pragma once
// The SMTP dialogue of one result mail, without sockets: the server's bytes go
// in, the lines to write and the status texts come out. The socket around it
// lives in Smtpclient; here everything can be tested and fuzzed on its own.
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace services {

// One reply of the server; `text` is its last line after the code.
struct Antwort {
    int code = 0;  // 0: the line was no reply at all
    std::string text;
    bool operator==(const Antwort&) const = default;
};

// Cuts the server's bytes into replies. "250-..." lines continue a reply, the
// line with a blank (or nothing) after the code ends it. Every buffer is bounded:
// a line longer than MaxZeile or a reply of more than MaxZeilen lines comes out
// as a reply with code 0, so the dialogue fails instead of growing.
class Antwortleser {
public:
    static constexpr std::size_t MaxZeile = 1024;
    static constexpr int MaxZeilen = 64;

    // Takes what arrived and returns the replies it completed.
    std::vector<Antwort> lesen(std::string_view bytes);

private:
    void zeileFertig(std::vector<Antwort>& fertig);

    std::string zeile_;
    bool ueberlang_ = false;
    int zeilen_ = 0;  // lines of the reply under way
};

// Local time of the mail's Date header; the zone is always written as +0100.
struct Zeitpunkt {
    int jahr = 2000, monat = 1, tag = 1, stunde = 0, minute = 0, sekunde = 0;
};

// "Tue, 14 Jan 2025 20:15:03 +0100"
std::string datumText(const Zeitpunkt& z);

struct Mail {
    std::string absender;
    std::string absendername;
    std::string empfaenger;
    std::string empfaengername;
    std::string betreff;
    std::string rumpf;  // sent as it is; lone CRs stay lone CRs
};

// RFC 5321: a line of the mail may hold 998 characters before its CR LF.
inline constexpr std::size_t MaxMailzeile = 998;

// The header lines, an empty line, the body and the closing "." line, with
// leading dots doubled. Line breaks inside names, addresses and the subject are
// blanked so nothing can add a header line. Empty when a line of the mail would
// be longer than a server takes.
std::optional<std::string> nachrichtBauen(const Mail& mail, const Zeitpunkt& zeit, std::string_view xMailer);

// The domain of an address ("a@b.de" -> "b.de"), empty without one.
std::string domainVon(std::string_view adresse);

enum class Ausgang { Laeuft, Verschickt, Fehler };

// The dialogue of one mail, step by step. The socket writes `senden`, shows
// `status`, and on Fehler ends the connection. `angenommen` turns true with the
// server's 250 to the closing "." and stays so whatever follows: only then may
// the mailed file be deleted.
class Smtpdialog {
public:
    struct Schritt {
        std::string senden;
        std::vector<std::string> status;
        Ausgang ausgang = Ausgang::Laeuft;
    };

    Smtpdialog(Mail mail, std::string heloDomain, Zeitpunkt zeit, std::string xMailer);

    // Before connecting: "Verbinde...", or at once Fehler for a mail no server would take.
    Schritt beginnen();
    Schritt antwort(const Antwort& a);
    Schritt zeitUeberschritten();
    Schritt verbindungsfehler();

    bool angenommen() const { return angenommen_; }
    Ausgang ausgang() const { return ausgang_; }
    // The reply that did not fit, for the report ("550 no such user").
    const std::optional<Antwort>& falscheAntwort() const { return falsch_; }
    // The status text that names the failure ("SMTP Error! Time out", ...).
    const std::string& grund() const { return grund_; }
    // Progress: replies awaited so far out of all (for a progress bar).
    int erledigt() const { return static_cast<int>(stufe_); }
    static constexpr int Stufen = 7;

private:
    enum class Stufe { Gruss, Helo, Absender, Empfaenger, Daten, Inhalt, Ende, Fertig };
    Schritt scheitern(std::vector<std::string> status);

    Mail mail_;
    std::string heloDomain_;
    Zeitpunkt zeit_;
    std::string xMailer_;
    std::optional<std::string> nachricht_;  // built once; none when it is too long to send
    Stufe stufe_ = Stufe::Gruss;
    Ausgang ausgang_ = Ausgang::Laeuft;
    bool angenommen_ = false;
    std::optional<Antwort> falsch_;
    std::string grund_;
};

}  // namespace services

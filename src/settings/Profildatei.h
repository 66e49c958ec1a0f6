#pragma once
// An ini file of the Windows private-profile kind, held as its lines so that a
// rewrite keeps comments, unknown keys, blank lines and the order of everything.
// Section and key names compare without case (umlauts included); the first
// matching key wins. Texts are UTF-8 in memory; bytes() gives Windows-1252 with CRLF.
// An index of sections and keys is built once, so looking up a key does not walk
// the lines: reading a file of n lines costs O(n), whatever is asked of it.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Zeichensatz.h"

namespace settings {

class Profildatei {
public:
    Profildatei() = default;
    // Any bytes are accepted; see dateiTextDekodieren for the encodings read.
    static Profildatei ausBytes(std::string_view bytes);
    std::string bytes() const;

    // The value as the private-profile reader sees it: blanks around it removed,
    // one pair of enclosing quotes removed. Nothing when the key is missing.
    std::optional<std::string> wert(std::string_view abschnitt, std::string_view schluessel) const;

    // Every key of a section once, by its folded name, with the value wert() gives
    // for it; in no particular order. The views live until the file changes.
    struct Eintrag {
        std::string_view gefaltet;
        std::string_view wert;
    };
    std::vector<Eintrag> eintraege(std::string_view abschnitt) const;

    // Replaces the value of an existing key in place (keeping the key's spelling),
    // or adds the key at the end of its section, or adds the section at the end.
    // Line breaks in the value become blanks and a NUL ends it, so one key stays one line.
    void setze(std::string_view abschnitt, std::string_view schluessel, std::string_view wert);

    const std::vector<std::string>& zeilen() const { return zeilen_; }

private:
    // A section by its folded name: its first header line, where a new key goes
    // (after the last non-blank line of the first occurrence; 0 until first asked)
    // and, by folded name, the first line of each key in any of its occurrences.
    struct Abschnittsort {
        std::size_t kopf = 0;
        std::size_t ende = 0;
        Namentabelle<std::size_t> schluessel;
    };
    // Enters line `zeile` into the index; `abschnitt` is the section it stands in,
    // the return value the section the next line stands in.
    Abschnittsort* verzeichnen(std::size_t zeile, Abschnittsort* abschnitt);
    std::optional<std::size_t> schluesselZeile(std::string_view abschnitt, std::string_view schluessel) const;
    // Inserts a line before `zeile`, keeping the index in step.
    void einfuegen(std::size_t zeile, std::string text, Abschnittsort& abschnitt);

    std::vector<std::string> zeilen_;
    Namentabelle<Abschnittsort> orte_;
};

// GetPrivateProfileString: the value or the default, cut at the first NUL and to
// the buffer size less one for the terminating NUL.
std::string profilText(const Profildatei& datei, std::string_view abschnitt, std::string_view schluessel,
                       std::string_view standard, std::size_t puffergroesse);
std::string profilText(std::string_view text, std::size_t puffergroesse);

// GetPrivateProfileInt: the default for a missing or empty key; otherwise the
// leading decimal (or 0x hexadecimal) number of the text, 0 when there is none.
int profilZahl(const Profildatei& datei, std::string_view abschnitt, std::string_view schluessel, int standard);
int profilZahl(std::string_view text, int standard);

// The leading number of a text the way the settings store turns colour strings
// into numbers: blanks, sign and digits; 0 when there is none.
long long fuehrendeZahl(std::string_view text);

}  // namespace settings

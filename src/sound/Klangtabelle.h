#pragma once
// The 63 numbered sounds of trumpona.wav: where each one lies in the file and
// what it holds. The table text is assets/klaenge.txt, built into the program;
// the wave file's generator reads the same text.
#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace sound {

inline constexpr int KlangAnzahl = 63;

// A time slice of the wave file in milliseconds; start == ende plays nothing.
struct Segment {
    int start = 0;
    int ende = 0;
    constexpr int dauer() const { return ende - start; }
    bool operator==(const Segment&) const = default;
};

enum class Klangart { Sprache, Effekt, Ausschnitt, Leer, Frei };

struct Klangeintrag {
    int nummer = 0;
    Segment segment;
    Klangart art = Klangart::Frei;
    std::string name;    // key the program refers to
    std::string inhalt;  // spoken text or a description of the effect
};

class Klangtabelle {
public:
    // Reads the table text. Every number 1..63 must appear once and in order;
    // on a fault the first offending line is described in `fehler`.
    static std::optional<Klangtabelle> lesen(std::string_view text, std::string* fehler = nullptr);

    // nullptr outside 1..63.
    const Klangeintrag* eintrag(int nummer) const;
    const std::array<Klangeintrag, KlangAnzahl>& eintraege() const { return eintraege_; }

private:
    std::array<Klangeintrag, KlangAnzahl> eintraege_{};
};

// The table the program was built with.
std::string_view eingebauterTabellentext();
const Klangtabelle& standardKlangtabelle();

}  // namespace sound

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>
#include <fstream>
#include <sstream>

#include "sound/Klangtabelle.h"
#include "sound/Wavdatei.h"

using namespace sound;

namespace {

const Wavdaten& klangdatei() {
    static const Wavdaten daten = [] {
        std::ifstream f(KLANGDATEI, std::ios::binary);
        std::stringstream s;
        s << f.rdbuf();
        const auto w = wavLesen(s.str());
        return w ? *w : Wavdaten{};
    }();
    return daten;
}

struct Pegel { double rms = 0; double spitze = 0; };

Pegel pegel(int vonMs, int bisMs) {
    const Wavdaten& w = klangdatei();
    const Bytebereich b = ausschnitt(w.format, w.pcm.size(), vonMs, bisMs);
    const std::size_t bpf = static_cast<std::size_t>(w.format.bytesProFrame());
    Pegel p;
    const std::size_t frames = b.laenge / bpf;
    for (std::size_t i = 0; i < frames; ++i) {
        const double x = abtastwert(w, b.anfang / bpf + i);
        p.rms += x * x;
        p.spitze = std::max(p.spitze, std::abs(x));
    }
    if (frames > 0) p.rms = std::sqrt(p.rms / static_cast<double>(frames));
    return p;
}

constexpr double Hoerbar = 0.02;  // RMS of a segment that holds sound (about -34 dBFS)
bool toent(Klangart art) { return art == Klangart::Sprache || art == Klangart::Effekt || art == Klangart::Ausschnitt; }

constexpr double Still = 0.001;   // peak of silence (about -60 dBFS)

}  // namespace

TEST(Klangdatei, FormatUndLaenge) {
    const Wavdaten& w = klangdatei();
    ASSERT_FALSE(w.pcm.empty()) << KLANGDATEI;
    EXPECT_EQ(w.format, (Wavformat{1, 22050, 16}));
    int ende = 0;
    for (const Klangeintrag& e : standardKlangtabelle().eintraege()) ende = std::max(ende, e.segment.ende);
    EXPECT_EQ(w.frames(), (static_cast<std::size_t>(ende) * 22050 + 999) / 1000);
}

TEST(Klangdatei, JederKlangHatTon) {
    ASSERT_FALSE(klangdatei().pcm.empty());
    for (const Klangeintrag& e : standardKlangtabelle().eintraege()) {
        if (!toent(e.art)) continue;
        const Pegel p = pegel(e.segment.start, e.segment.ende);
        EXPECT_GT(p.rms, Hoerbar) << "Klang " << e.nummer << " " << e.inhalt;
        EXPECT_LT(p.spitze, 0.99) << "Klang " << e.nummer << " übersteuert";
    }
}

TEST(Klangdatei, AusserhalbDerKlaengeIstStille) {
    ASSERT_FALSE(klangdatei().pcm.empty());
    // Everything between the sounding segments (the 10 ms gaps, the free and the
    // empty sounds) must be silent, so no sound runs into its neighbour.
    std::vector<Segment> klaenge;
    for (const Klangeintrag& e : standardKlangtabelle().eintraege())
        if (toent(e.art)) klaenge.push_back(e.segment);
    std::sort(klaenge.begin(), klaenge.end(), [](Segment a, Segment b) { return a.start < b.start; });
    int stillAb = 0;
    ASSERT_FALSE(klaenge.empty());
    for (const Segment s : klaenge) {
        if (s.start > stillAb) {
            EXPECT_LT(pegel(stillAb, s.start).spitze, Still) << stillAb << "-" << s.start << " ms";
        }
        stillAb = std::max(stillAb, s.ende);
    }
    EXPECT_LT(pegel(stillAb, stillAb + 1000).spitze, Still);
}

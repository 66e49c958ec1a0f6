#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "sound/Wavdatei.h"

using namespace sound;

namespace {

std::string le(std::uint32_t wert, int bytes) {
    std::string s;
    for (int i = 0; i < bytes; ++i) s += static_cast<char>((wert >> (8 * i)) & 0xff);
    return s;
}

std::string block(const std::string& id, const std::string& inhalt, std::uint32_t groesse) {
    return id + le(groesse, 4) + inhalt + (inhalt.size() % 2 ? std::string(1, '\0') : "");
}

std::string fmt(int formatCode, int kanaele, int rate, int bits) {
    const int bpf = kanaele * bits / 8;
    const std::string inhalt = le(static_cast<std::uint32_t>(formatCode), 2) + le(static_cast<std::uint32_t>(kanaele), 2) +
                               le(static_cast<std::uint32_t>(rate), 4) + le(static_cast<std::uint32_t>(rate * bpf), 4) +
                               le(static_cast<std::uint32_t>(bpf), 2) + le(static_cast<std::uint32_t>(bits), 2);
    return block("fmt ", inhalt, 16);
}

std::string riff(const std::string& bloecke) { return "RIFF" + le(static_cast<std::uint32_t>(4 + bloecke.size()), 4) + "WAVE" + bloecke; }

const std::string vierFrames = le(0x0100, 2) + le(0x7fff, 2) + le(0x8000, 2) + le(0, 2);

}  // namespace

TEST(WavLesen, GueltigeDateien) {
    // An odd-sized chunk before the data is padded to an even length.
    const auto w = wavLesen(riff(fmt(1, 1, 8000, 16) + block("LIST", "abc", 3) + block("data", vierFrames, 8)));
    ASSERT_TRUE(w);
    EXPECT_EQ(w->format, (Wavformat{1, 8000, 16}));
    EXPECT_EQ(w->frames(), 4u);
    EXPECT_DOUBLE_EQ(abtastwert(*w, 1), 32767.0 / 32768.0);
    EXPECT_DOUBLE_EQ(abtastwert(*w, 2), -1.0);

    // A data size beyond the end of the file keeps the whole frames that are there.
    const auto kurz = wavLesen(riff(fmt(1, 1, 8000, 16) + "data" + le(1000, 4) + vierFrames + "x"));
    ASSERT_TRUE(kurz);
    EXPECT_EQ(kurz->frames(), 4u);
}

TEST(WavLesen, UngueltigeDateienOhneAbsturz) {
    const std::string daten = block("data", vierFrames, 8);
    struct Fall { const char* was; std::string bytes; };
    for (const Fall& f : {Fall{"leer", ""}, Fall{"nur RIFF", "RIFF"}, Fall{"kein WAVE", "RIFF\4\0\0\0AVI "},
                          Fall{"Gleitkomma", riff(fmt(3, 1, 8000, 32) + daten)},
                          Fall{"24 Bit", riff(fmt(1, 1, 8000, 24) + daten)},
                          Fall{"keine Kanäle", riff(fmt(1, 0, 8000, 16) + daten)},
                          Fall{"data vor fmt", riff(daten + fmt(1, 1, 8000, 16))},
                          Fall{"ohne data", riff(fmt(1, 1, 8000, 16))},
                          Fall{"Block zu lang", riff(fmt(1, 1, 8000, 16).substr(0, 12))}}) {
        std::string fehler;
        EXPECT_FALSE(wavLesen(f.bytes, &fehler)) << f.was;
        EXPECT_FALSE(fehler.empty()) << f.was;
    }
}

TEST(WavAusschnitt, GanzeFramesInnerhalbDerDaten) {
    struct Fall { Wavformat format; std::size_t pcm; int von; int bis; Bytebereich erwartet; };
    const Wavformat mono{1, 22050, 16};
    const Wavformat stereo{2, 44100, 16};
    for (const Fall& f : {Fall{mono, 2'000'000, 0, 890, {0, 19624 * 2}},
                          Fall{mono, 2'000'000, 900, 1740, {19845 * 2, (38367 - 19845) * 2}},
                          Fall{mono, 2'000'000, 1, 1, {22 * 2, 0}},
                          Fall{mono, 2'000'000, 500, 400, {11025 * 2, 0}},
                          Fall{mono, 1000, 0, 890, {0, 1000}},          // cut at the end of the data
                          Fall{mono, 1000, 5000, 6000, {1000, 0}},
                          Fall{mono, 1000, -20, 10, {0, 220 * 2}},
                          Fall{stereo, 400'000, 10, 20, {441 * 4, 441 * 4}}}) {
        EXPECT_EQ(ausschnitt(f.format, f.pcm, f.von, f.bis), f.erwartet) << f.von << "-" << f.bis;
    }
}

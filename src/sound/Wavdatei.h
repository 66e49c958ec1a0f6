#pragma once
// Reading a RIFF/WAVE file with plain PCM samples and cutting time slices out
// of it. Kept free of Qt so the tests can check the shipped file with it.
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace sound {

struct Wavformat {
    int kanaele = 1;
    int abtastrate = 22050;  // frames per second
    int bits = 16;           // 8, 16 or 32 bits per sample
    int bytesProFrame() const { return kanaele * bits / 8; }
    bool operator==(const Wavformat&) const = default;
};

struct Wavdaten {
    Wavformat format;
    std::string pcm;  // the samples as stored (little-endian, interleaved)

    std::size_t frames() const;
    std::int64_t dauerMs() const;
};

// nullopt for anything but an uncompressed PCM wave file; `fehler` says why.
std::optional<Wavdaten> wavLesen(std::string_view bytes, std::string* fehler = nullptr);

// The bytes of pcm that hold [vonMs, bisMs), on whole frames and cut to the data.
struct Bytebereich {
    std::size_t anfang = 0;
    std::size_t laenge = 0;
    bool operator==(const Bytebereich&) const = default;
};
Bytebereich ausschnitt(const Wavformat& format, std::size_t pcmBytes, int vonMs, int bisMs);

// Sample at frame i, channel 0, scaled to -1..1.
double abtastwert(const Wavdaten& daten, std::size_t frame);

}  // namespace sound

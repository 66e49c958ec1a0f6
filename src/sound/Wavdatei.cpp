#include "Wavdatei.h"

#include <algorithm>

namespace sound {

namespace {

std::uint32_t le32(std::string_view b, std::size_t i) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(b[i])) |
           static_cast<std::uint32_t>(static_cast<unsigned char>(b[i + 1])) << 8 |
           static_cast<std::uint32_t>(static_cast<unsigned char>(b[i + 2])) << 16 |
           static_cast<std::uint32_t>(static_cast<unsigned char>(b[i + 3])) << 24;
}

std::uint16_t le16(std::string_view b, std::size_t i) {
    return static_cast<std::uint16_t>(static_cast<unsigned char>(b[i]) | static_cast<unsigned char>(b[i + 1]) << 8);
}

std::optional<Wavdaten> fehlschlag(std::string* fehler, const char* text) {
    if (fehler) *fehler = text;
    return std::nullopt;
}

}  // namespace

std::size_t Wavdaten::frames() const { return pcm.size() / static_cast<std::size_t>(format.bytesProFrame()); }

std::int64_t Wavdaten::dauerMs() const {
    return static_cast<std::int64_t>(frames()) * 1000 / format.abtastrate;
}

std::optional<Wavdaten> wavLesen(std::string_view bytes, std::string* fehler) {
    if (bytes.size() < 12 || bytes.substr(0, 4) != "RIFF" || bytes.substr(8, 4) != "WAVE")
        return fehlschlag(fehler, "keine RIFF/WAVE-Datei");
    std::optional<Wavformat> format;
    std::size_t pos = 12;
    // Chunks: 4-byte id, 4-byte size, data padded to an even length.
    while (pos + 8 <= bytes.size()) {
        const std::string_view id = bytes.substr(pos, 4);
        const std::size_t groesse = le32(bytes, pos + 4);
        const std::size_t daten = pos + 8;
        if (groesse > bytes.size() - daten) {
            if (id != "data") return fehlschlag(fehler, "Block reicht über das Dateiende");
        }
        const std::size_t verfuegbar = std::min(groesse, bytes.size() - daten);
        if (id == "fmt ") {
            if (verfuegbar < 16) return fehlschlag(fehler, "fmt-Block zu kurz");
            if (le16(bytes, daten) != 1) return fehlschlag(fehler, "keine unkomprimierten PCM-Daten");
            Wavformat f;
            f.kanaele = le16(bytes, daten + 2);
            f.abtastrate = static_cast<int>(le32(bytes, daten + 4));
            f.bits = le16(bytes, daten + 14);
            if (f.kanaele < 1 || f.kanaele > 8 || f.abtastrate < 1000 || f.abtastrate > 384000 ||
                (f.bits != 8 && f.bits != 16 && f.bits != 32))
                return fehlschlag(fehler, "nicht unterstütztes Format");
            format = f;
        } else if (id == "data") {
            if (!format) return fehlschlag(fehler, "data-Block vor dem fmt-Block");
            Wavdaten w;
            w.format = *format;
            // A size that overshoots the file (an unfinished recording) keeps what is there.
            const std::size_t ganz = verfuegbar - verfuegbar % static_cast<std::size_t>(format->bytesProFrame());
            w.pcm.assign(bytes.substr(daten, ganz));
            return w;
        }
        pos = daten + verfuegbar + (verfuegbar % 2);
    }
    return fehlschlag(fehler, "kein data-Block");
}

Bytebereich ausschnitt(const Wavformat& format, std::size_t pcmBytes, int vonMs, int bisMs) {
    const auto bpf = static_cast<std::size_t>(format.bytesProFrame());
    const std::size_t frames = pcmBytes / bpf;
    const auto frame = [&](int ms) {
        if (ms <= 0) return std::size_t{0};
        return std::min(frames, static_cast<std::size_t>(static_cast<std::int64_t>(ms) * format.abtastrate / 1000));
    };
    const std::size_t von = frame(vonMs);
    const std::size_t bis = std::max(von, frame(bisMs));
    return {von * bpf, (bis - von) * bpf};
}

double abtastwert(const Wavdaten& daten, std::size_t frame) {
    const std::size_t i = frame * static_cast<std::size_t>(daten.format.bytesProFrame());
    switch (daten.format.bits) {
        case 8: return (static_cast<unsigned char>(daten.pcm[i]) - 128) / 128.0;
        case 16: return static_cast<std::int16_t>(le16(daten.pcm, i)) / 32768.0;
        default: return static_cast<std::int32_t>(le32(daten.pcm, i)) / 2147483648.0;
    }
}

}  // namespace sound

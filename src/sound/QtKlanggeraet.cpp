#include "QtKlanggeraet.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QFile>
#include <QMediaDevices>
#include <QThread>
#include <algorithm>
#include <cstring>

namespace sound {

namespace {

// Silence after each sound, so the sink plays it out: the stream starts only
// once its (about 100 ms) buffer has filled, which a short click alone never does.
constexpr int NachlaufMs = 150;
constexpr int BlendeMs = 2;       // soft edges against clicks where a cut meets a wave
constexpr int FuellTaktMs = 10;
constexpr int WarteGrenzeMs = 500;  // beyond the sound's length before a wait gives up

QAudioFormat::SampleFormat qtFormat(int bits) {
    switch (bits) {
        case 8: return QAudioFormat::UInt8;
        case 16: return QAudioFormat::Int16;
        default: return QAudioFormat::Int32;
    }
}

// A short linear fade at both ends of 16-bit samples.
void kantenGlaetten(QByteArray& pcm, const Wavformat& f) {
    if (f.bits != 16) return;
    const qsizetype frames = pcm.size() / f.bytesProFrame();
    const qsizetype blende = std::min<qsizetype>(frames / 2, f.abtastrate * BlendeMs / 1000);
    auto* s = reinterpret_cast<qint16*>(pcm.data());
    for (qsizetype i = 0; i < blende; ++i) {
        const double g = static_cast<double>(i) / static_cast<double>(blende);
        for (int k = 0; k < f.kanaele; ++k) {
            s[i * f.kanaele + k] = static_cast<qint16>(s[i * f.kanaele + k] * g);
            s[(frames - 1 - i) * f.kanaele + k] = static_cast<qint16>(s[(frames - 1 - i) * f.kanaele + k] * g);
        }
    }
}

}  // namespace

bool klangausgabeVorhanden() { return !QMediaDevices::audioOutputs().isEmpty(); }

QtKlanggeraet::QtKlanggeraet(QObject* eltern) : QObject(eltern) {
    fuellTakt_.setInterval(FuellTaktMs);
    connect(&fuellTakt_, &QTimer::timeout, this, &QtKlanggeraet::nachfuellen);
}

QtKlanggeraet::~QtKlanggeraet() { schliessen(); }

bool QtKlanggeraet::ausgabeVorhanden() const { return klangausgabeVorhanden(); }

bool QtKlanggeraet::oeffnen(const std::string& datei) {
    schliessen();
    QFile f(QString::fromStdString(datei));
    if (!f.open(QIODevice::ReadOnly)) return false;
    const QByteArray bytes = f.readAll();
    daten_ = wavLesen(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    if (!daten_) return false;
    format_.setSampleRate(daten_->format.abtastrate);
    format_.setChannelCount(daten_->format.kanaele);
    format_.setSampleFormat(qtFormat(daten_->format.bits));
    return true;
}

void QtKlanggeraet::anhalten() {
    fuellTakt_.stop();
    ausstehend_.clear();
    ziel_ = nullptr;
    if (sink_) {
        sink_->reset();
        sink_->stop();
    }
}

bool QtKlanggeraet::spielen(Segment segment, bool warten) {
    anhalten();
    if (!daten_) return false;
    const Bytebereich b =
        ausschnitt(daten_->format, daten_->pcm.size(), segment.start, segment.ende);
    if (b.laenge == 0) return true;  // an empty slice plays nothing, like a stop
    if (!sink_) {
        const QAudioDevice geraet = QMediaDevices::defaultAudioOutput();
        if (geraet.isNull()) return false;
        sink_ = std::make_unique<QAudioSink>(geraet, format_);
    }
    ausstehend_ = QByteArray(daten_->pcm.data() + b.anfang, static_cast<qsizetype>(b.laenge));
    kantenGlaetten(ausstehend_, daten_->format);
    ausstehend_.append(QByteArray(format_.bytesForDuration(NachlaufMs * 1000), '\0'));
    ziel_ = sink_->start();
    if (!ziel_) {
        ausstehend_.clear();
        return false;
    }
    nachfuellen();
    if (!warten) {
        if (!ausstehend_.isEmpty()) fuellTakt_.start();
        return true;
    }
    // Waiting blocks the caller (that is what it asked for) while this loop
    // keeps the sink fed; no events are processed meanwhile.
    QElapsedTimer uhr;
    uhr.start();
    const qint64 dauerUs = static_cast<qint64>(segment.dauer()) * 1000;
    while (sink_->processedUSecs() < dauerUs && uhr.elapsed() <= segment.dauer() + WarteGrenzeMs) {
        nachfuellen();
        QThread::msleep(2);
    }
    // The rest of the silent tail goes in from the event loop.
    if (!ausstehend_.isEmpty()) fuellTakt_.start();
    return true;
}

void QtKlanggeraet::nachfuellen() {
    if (!ziel_ || !sink_) return;
    while (!ausstehend_.isEmpty()) {
        const qsizetype frei = std::min<qsizetype>(sink_->bytesFree(), ausstehend_.size());
        if (frei <= 0) break;
        const qint64 n = ziel_->write(ausstehend_.constData(), frei);
        if (n <= 0) break;
        ausstehend_.remove(0, static_cast<qsizetype>(n));
    }
    if (ausstehend_.isEmpty()) fuellTakt_.stop();
}

void QtKlanggeraet::schliessen() {
    anhalten();
    sink_.reset();
    daten_.reset();
}

}  // namespace sound

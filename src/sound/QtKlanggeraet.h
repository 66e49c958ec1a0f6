#pragma once
// The Qt Multimedia back end: plays the exact cut of the decoded samples
// through a QAudioSink, followed by a little silence so the end is not lost.
#include <QAudioFormat>
#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <memory>
#include <optional>

#include "Klangausgabe.h"
#include "Klanggeraet.h"
#include "Wavdatei.h"

class QAudioSink;
class QIODevice;

namespace sound {

class QtKlanggeraet final : public QObject, public Klanggeraet {
    Q_OBJECT
public:
    explicit QtKlanggeraet(QObject* eltern = nullptr);
    ~QtKlanggeraet() override;

    bool ausgabeVorhanden() const override;
    bool oeffnen(const std::string& datei) override;
    bool spielen(Segment segment, bool warten) override;
    void schliessen() override;

private:
    void nachfuellen();
    void anhalten();

    std::optional<Wavdaten> daten_;
    QAudioFormat format_;
    std::unique_ptr<QAudioSink> sink_;
    QIODevice* ziel_ = nullptr;  // the sink's push device while playing
    QByteArray ausstehend_;      // samples not yet taken by the sink
    QTimer fuellTakt_;
};

}  // namespace sound

#pragma once
// The audio back end the sound player drives: open one wave file, play a time
// slice of it (optionally until it has finished), close it. A new play
// replaces a slice that is still playing.
#include <string>

#include "Klangtabelle.h"

namespace sound {

class Klanggeraet {
public:
    virtual ~Klanggeraet() = default;
    // Whether the machine has an audio output at all.
    virtual bool ausgabeVorhanden() const = 0;
    virtual bool oeffnen(const std::string& datei) = 0;
    // With `warten` the call returns once the slice has been heard.
    virtual bool spielen(Segment segment, bool warten) = 0;
    virtual void schliessen() = 0;
};

// For machines and modes without sound (autoplay, tests, no output device).
class StillesGeraet final : public Klanggeraet {
public:
    bool ausgabeVorhanden() const override { return false; }
    bool oeffnen(const std::string&) override { return false; }
    bool spielen(Segment, bool) override { return false; }
    void schliessen() override {}
};

}  // namespace sound

#pragma once
// A back end that only writes down what it was told, for tests.
#include <string>
#include <vector>

#include "sound/Klanggeraet.h"

namespace testhilfe {

class AufzeichnendesGeraet final : public sound::Klanggeraet {
public:
    explicit AufzeichnendesGeraet(bool ausgabe = true) : ausgabe_(ausgabe) {}

    bool ausgabeVorhanden() const override { return ausgabe_; }
    bool oeffnen(const std::string& datei) override {
        befehle.push_back("open " + datei);
        return erfolg;
    }
    bool spielen(sound::Segment s, bool warten) override {
        befehle.push_back("play " + std::to_string(s.start) + " " + std::to_string(s.ende) + (warten ? " wait" : ""));
        return erfolg;
    }
    void schliessen() override { befehle.push_back("close"); }

    std::vector<std::string> befehle;
    bool erfolg = true;

private:
    bool ausgabe_;
};

}  // namespace testhilfe

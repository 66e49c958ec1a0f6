#pragma once
// Reports one seat's reasoning to the sink: rules always (the statistics count
// them), plain message boxes only while the reasoning display is on.
#include <string>
#include <string_view>

#include "Begruendung.h"

namespace players {

class Melder {
public:
    Melder(Begruendungssenke* senke, engine::Sitz sitz, bool anzeigen)
        : senke_(senke), sitz_(sitz), anzeigen_(anzeigen) {}

    // Whether plain messages are shown; callers skip building them otherwise.
    bool zeigt() const { return senke_ && anzeigen_; }

    void entscheidung() const { senden(Meldungsart::Entscheidung, {}, {}, {}); }
    void regel(std::string_view verfahren, std::string_view code, std::string_view text) const {
        senden(Meldungsart::Regel, verfahren, code, text);
    }
    void rueckfall(std::string_view verfahren) const { senden(Meldungsart::Rueckfall, verfahren, {}, {}); }
    void hinweis(std::string_view text) const {
        if (zeigt()) senden(Meldungsart::Hinweis, {}, {}, text);
    }

private:
    void senden(Meldungsart art, std::string_view verfahren, std::string_view code, std::string_view text) const {
        if (!senke_) return;
        Meldung m;
        m.art = art;
        m.sitz = sitz_;
        m.verfahren = verfahren;
        m.code = code;
        m.text = text;
        m.anzeigen = anzeigen_ && art != Meldungsart::Entscheidung;
        senke_->melden(m);
    }

    Begruendungssenke* senke_;
    engine::Sitz sitz_;
    bool anzeigen_;
};

}  // namespace players

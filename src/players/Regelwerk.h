#pragma once
// The rule book player: reservations, announcements, leads and follows by the
// ordered rule tables, with the knowledge shared by the computer seats of its table.
#include <optional>

#include "Begruendung.h"
#include "Lage.h"
#include "Tischwissen.h"
#include "engine/Entscheider.h"

namespace players {

class Lage;

// What the rule book decides beyond its cards; both off is the card player alone
// (for measuring what solos, the Hochzeit and announcements are worth).
struct Regelwerksart {
    bool vorbehalte = true;  // solos, silent solo, Hochzeit
    bool ansagen = true;     // Re, Kontra and limits
    // The follow dispatcher; none is the rule book's own (another one is measured against it).
    int (*bedienen)(const Lage&) = nullptr;
};

class Regelwerk final : public engine::Entscheider {
public:
    // `zufall` serves the rules that choose at random; the table's source is fine.
    Regelwerk(Tischwissen& wissen, engine::Zufallsquelle& zufall, Begruendungssenke* senke = nullptr,
              Regelwerksart art = {})
        : wissen_(wissen), zufall_(zufall), senke_(senke), art_(art) {}

    int karteWaehlen(const Spiel& spiel, Sitz sitz) override;
    engine::Vorbehalt vorbehaltWaehlen(const Spiel& spiel, Sitz sitz) override;
    std::optional<engine::Ansage> ansageWaehlen(const Spiel& spiel, Sitz sitz) override;

private:
    // The view of the last announcement check, kept for the card asked right after it
    // on the same state (building it is much of the rule book's time).
    struct Vorlage {
        const Spiel* spiel = nullptr;
        Sitz sitz{1};
        int karten = -1;
        std::size_t ansagen = 0;
        // In place rather than on the heap: one is made before most cards.
        std::optional<Melder> melder;
        std::optional<Lage> lage;
        void verwerfen() {
            lage.reset();
            melder.reset();
            spiel = nullptr;
        }
    };
    bool passt(const Vorlage& v, const Spiel& spiel, Sitz sitz) const;
    int karteNachLage(const Lage& lage, const Melder& melder);

    Vorlage vorlage_;
    Tischwissen& wissen_;
    engine::Zufallsquelle& zufall_;
    Begruendungssenke* senke_;
    Regelwerksart art_;
};

}  // namespace players

#include "Spielerarten.h"

#include "EinfacheSpieler.h"
#include "Regelwerk.h"
#include "Stark.h"
#include "Regelwerk1.h"

namespace players {

const std::vector<std::string_view>& spielerarten() {
    static const std::vector<std::string_view> arten{"regelwerk", "regelwerk-ohne-ansagen", "regelwerk-nur-karten",
                                                     "regelwerk1", "zufall", "kleinste", "suche", "suche-regelansagen",
                                                     "suche-ungewichtet", "suche-ohne-endspiel"};
    return arten;
}

std::unique_ptr<engine::Entscheider> spielerErzeugen(std::string_view art, Spielerumgebung& u) {
    if (art == "regelwerk") return std::make_unique<Regelwerk>(u.wissen, u.zufall, u.senke);
    if (art == "regelwerk-ohne-ansagen")
        return std::make_unique<Regelwerk>(u.wissen, u.zufall, u.senke, Regelwerksart{true, false});
    // The rule book as it played before it declared and announced anything.
    if (art == "regelwerk-nur-karten")
        return std::make_unique<Regelwerk>(u.wissen, u.zufall, u.senke, Regelwerksart{false, false});
    // The rule book before its whole following rule book, frozen for measuring.
    if (art == "regelwerk1")
        return std::make_unique<Regelwerk>(u.wissen, u.zufall, u.senke,
                                           Regelwerksart{true, true, regelwerk1::bedienenWaehlen});
    if (art.starts_with("suche")) {
        Starkart s;
        s.suche.simulationen = simulationenFuer(u.bedenkzeit);
        s.suche.threads = u.threads;
        if (art == "suche-regelansagen") s.ansagesuche = false;
        else if (art == "suche-ungewichtet") s.suche.abweichung = 1;
        else if (art == "suche-ohne-endspiel") s.suche.endspielStiche = 0;
        else if (art != "suche") return nullptr;
        return std::make_unique<Stark>(u.wissen, u.zufall, u.senke, s, u.seed);
    }
    if (art == "zufall") return std::make_unique<Zufallsspieler>(u.zufall);
    if (art == "kleinste") return std::make_unique<KleinsteKarte>();
    return nullptr;
}

}  // namespace players

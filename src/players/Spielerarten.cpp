#include "Spielerarten.h"

#include "EinfacheSpieler.h"
#include "Regelwerk.h"
#include "Regelwerk1.h"

namespace players {

const std::vector<std::string_view>& spielerarten() {
    static const std::vector<std::string_view> arten{"regelwerk", "regelwerk-ohne-ansagen", "regelwerk-nur-karten",
                                                     "regelwerk1", "zufall", "kleinste"};
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
    if (art == "zufall") return std::make_unique<Zufallsspieler>(u.zufall);
    if (art == "kleinste") return std::make_unique<KleinsteKarte>();
    return nullptr;
}

}  // namespace players

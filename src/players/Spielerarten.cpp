#include "Spielerarten.h"

#include "EinfacheSpieler.h"
#include "Regelwerk.h"

namespace players {

const std::vector<std::string_view>& spielerarten() {
    static const std::vector<std::string_view> arten{"regelwerk", "zufall", "kleinste"};
    return arten;
}

std::unique_ptr<engine::Entscheider> spielerErzeugen(std::string_view art, Spielerumgebung& u) {
    if (art == "regelwerk") return std::make_unique<Regelwerk>(u.wissen, u.zufall, u.senke);
    if (art == "zufall") return std::make_unique<Zufallsspieler>(u.zufall);
    if (art == "kleinste") return std::make_unique<KleinsteKarte>();
    return nullptr;
}

}  // namespace players

#include "Computertisch.h"

#include "players/Spielerarten.h"

namespace app {

Computertisch::Computertisch(engine::Spielablauf& ablauf, engine::Zufallsquelle& zufall,
                             const std::array<std::string, 4>& arten, players::Begruendungssenke* senke)
    : wissen_(zufall) {
    ablauf.beobachterHinzufuegen(&wissen_);
    players::Spielerumgebung umgebung{wissen_, zufall, senke};
    for (std::size_t i = 0; i < 4; ++i) spieler_[i] = players::spielerErzeugen(arten[i], umgebung);
}

engine::ProSitz<engine::Entscheider*> Computertisch::entscheider() const {
    engine::ProSitz<engine::Entscheider*> e;
    for (const engine::Sitz s : engine::alleSitze) e[s] = spieler_[static_cast<std::size_t>(s.nr() - 1)].get();
    return e;
}

}  // namespace app

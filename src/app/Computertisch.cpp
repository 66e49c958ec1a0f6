#include "Computertisch.h"

#include "players/Spielerarten.h"

namespace app {

Computertisch::Computertisch(engine::Spielablauf& ablauf, engine::Zufallsquelle& zufall,
                             const std::array<std::string, 4>& arten, players::Begruendungssenke* senke,
                             std::uint64_t seed, int bedenkzeit)
    : wissen_(zufall) {
    ablauf.beobachterHinzufuegen(&wissen_);
    players::Spielerumgebung umgebung{wissen_, zufall, senke};
    umgebung.bedenkzeit = bedenkzeit;
    for (std::size_t i = 0; i < 4; ++i) {
        // Each searching seat its own seed, so two of them do not think alike.
        umgebung.seed = seed * 4 + i;
        spieler_[i] = players::spielerErzeugen(arten[i], umgebung);
    }
}

std::vector<double> Computertisch::denkzeiten() const {
    std::vector<double> zeiten;
    for (const auto& s : spieler_)
        if (const auto* stark = dynamic_cast<const players::Stark*>(s.get()))
            zeiten.insert(zeiten.end(), stark->denkzeiten().begin(), stark->denkzeiten().end());
    return zeiten;
}

engine::ProSitz<engine::Entscheider*> Computertisch::entscheider() const {
    engine::ProSitz<engine::Entscheider*> e;
    for (const engine::Sitz s : engine::alleSitze) e[s] = spieler_[static_cast<std::size_t>(s.nr() - 1)].get();
    return e;
}

}  // namespace app

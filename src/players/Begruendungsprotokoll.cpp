#include "Begruendungsprotokoll.h"

#include <utility>

namespace players {

const std::vector<Grund>& Spielbegruendungen::karte(int pos) const {
    static const std::vector<Grund> keine;
    if (pos < 1 || pos > engine::MaxPositionen) return keine;
    return karten[static_cast<std::size_t>(pos - 1)];
}

void Begruendungsprotokoll::melden(const Meldung& m) {
    if (weiter_) weiter_->melden(m);
    if (!m.sitz) return;  // knowledge updates belong to no move
    switch (m.art) {
        case Meldungsart::Entscheidung:
            // A card decision starts afresh; what was weighed before it and led to nothing is gone.
            offen_[*m.sitz].clear();
            break;
        case Meldungsart::Regel:
        case Meldungsart::Hinweis:
            if (!m.text.empty() || !m.code.empty()) offen_[*m.sitz].push_back({m.verfahren, m.code, m.text});
            break;
        case Meldungsart::Rueckfall: break;
    }
}

void Begruendungsprotokoll::vergessen() {
    spiel_ = {};
    for (auto& o : offen_) o.clear();
}

void Begruendungsprotokoll::kartenGegeben(const engine::Spiel&) { vergessen(); }

void Begruendungsprotokoll::spielBegonnen(const engine::Spiel&) {
    for (const engine::Sitz s : engine::alleSitze) spiel_.vorbehalte[s] = std::exchange(offen_[s], {});
}

void Begruendungsprotokoll::karteGespielt(const engine::Spiel&, engine::Sitz sitz, int pos) {
    if (pos < 1 || pos > engine::MaxPositionen) return;
    spiel_.karten[static_cast<std::size_t>(pos - 1)] = std::exchange(offen_[sitz], {});
}

void Begruendungsprotokoll::ansageGemacht(const engine::Spiel& spiel, const engine::AnsageEintrag& eintrag) {
    const std::size_t index = spiel.ansagen.empty() ? 0 : spiel.ansagen.size() - 1;
    if (spiel_.ansagen.size() <= index) spiel_.ansagen.resize(index + 1);
    spiel_.ansagen[index] = std::exchange(offen_[eintrag.sitz], {});
}

}  // namespace players

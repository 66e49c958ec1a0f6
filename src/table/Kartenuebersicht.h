#pragma once
// "Gespielte Karten": the deck of the running game a row per suit (trumps first, in
// their order), the cards already played greyed, so trumps and Asse can be counted
// without memorising. It stays open beside the table and follows the game.
#include <QDialog>
#include <vector>

#include "engine/Spiel.h"

namespace table {

class Kartenbilder;

// Rows of deck positions: the trumps from the highest down, then Kreuz, Pik, Herz and
// Karo as plain suits, each from its highest card down. Empty before a deal.
struct Kartenzeile {
    int farbe = 0;  // the effective suit; the game type's value for the trumps
    std::vector<int> positionen;
    int gespielt = 0;
};
std::vector<Kartenzeile> kartenzeilen(const engine::Spiel& spiel);

class Kartenuebersicht : public QDialog {
    Q_OBJECT
public:
    Kartenuebersicht(Kartenbilder& bilder, const engine::Spiel& spiel, QWidget* parent = nullptr);
    QSize sizeHint() const override;

public slots:
    void aktualisieren() { update(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Kartenbilder& bilder_;
    const engine::Spiel& spiel_;
};

}  // namespace table

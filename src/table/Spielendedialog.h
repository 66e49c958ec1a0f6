#pragma once
// The box at the end of a game: the scoring text and the points of the game and
// of the Partie per seat.
#include <QDialog>
#include <functional>
#include <string>

#include "engine/Sitz.h"

class QDialogButtonBox;
class QLabel;
class QTableWidget;

namespace table {

struct Spielergebnis {
    std::string titel;
    std::string text;                    // the full scoring text
    engine::ProSitz<std::string> namen;
    engine::ProSitz<int> punkte;         // of this game
    engine::ProSitz<int> summen;         // of the Partie so far
};

class Spielendedialog : public QDialog {
    Q_OBJECT
public:
    explicit Spielendedialog(const Spielergebnis& ergebnis, QWidget* parent = nullptr);
    QString text() const;
    // A button that opens the review of the game over the box.
    void verlaufAnbieten(std::function<void()> zeigen);
    const QTableWidget& tabelle() const { return *tabelle_; }

private:
    QLabel* text_ = nullptr;
    QTableWidget* tabelle_ = nullptr;
    QDialogButtonBox* knoepfe_ = nullptr;
};

}  // namespace table

#pragma once
// The welcome screen of the first new Partie after the start: begin a new Partie,
// load a saved one, or read the rules first (the screen stays until one of the
// first two is chosen).
#include <QDialog>

#include "engine/Regeln.h"

class QPushButton;

namespace table {

class Willkommen : public QDialog {
    Q_OBJECT
public:
    enum class Wahl { NeuePartie, Laden };
    explicit Willkommen(const engine::RegelOptionen& regeln, QWidget* parent = nullptr);

    // Closing the screen without a choice begins a new Partie.
    Wahl wahl() const { return wahl_; }
    QPushButton* neuKnopf() const { return neu_; }
    QPushButton* ladenKnopf() const { return laden_; }
    QPushButton* regelnKnopf() const { return regeln_; }

public slots:
    void regelnZeigen();

private:
    engine::RegelOptionen regelOptionen_;
    Wahl wahl_ = Wahl::NeuePartie;
    QPushButton* neu_ = nullptr;
    QPushButton* laden_ = nullptr;
    QPushButton* regeln_ = nullptr;
};

}  // namespace table

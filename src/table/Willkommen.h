#pragma once
// The welcome screen of the first new Partie after the start: begin a new Partie,
// resume the last one, load a saved one, or read the rules first (the screen stays
// until one of the others is chosen).
#include <QDialog>

#include "engine/Regeln.h"

class QPushButton;

namespace table {

class Willkommen : public QDialog {
    Q_OBJECT
public:
    enum class Wahl { NeuePartie, Laden, Fortsetzen };
    explicit Willkommen(const engine::RegelOptionen& regeln, QWidget* parent = nullptr);

    // Closing the screen without a choice begins a new Partie.
    Wahl wahl() const { return wahl_; }
    QPushButton* neuKnopf() const { return neu_; }
    QPushButton* ladenKnopf() const { return laden_; }
    QPushButton* regelnKnopf() const { return regeln_; }
    QPushButton* fortsetzenKnopf() const { return fortsetzen_; }
    // "Letzte Partie fortsetzen" is offered only when a Partie was kept.
    void fortsetzenAnbieten(bool an);

public slots:
    void regelnZeigen();

private:
    engine::RegelOptionen regelOptionen_;
    Wahl wahl_ = Wahl::NeuePartie;
    QPushButton* neu_ = nullptr;
    QPushButton* laden_ = nullptr;
    QPushButton* regeln_ = nullptr;
    QPushButton* fortsetzen_ = nullptr;
};

}  // namespace table

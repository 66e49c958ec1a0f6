#pragma once
// The preset row of the Regeln tab: a list of the presets that shows the one the
// rules in the dialog match, and a button that keeps them as the own house rules.
#include <QWidget>
#include <functional>

#include "Regelvorlagen.h"

class QComboBox;

namespace settings {
class Benutzerspeicher;
}

namespace table {

class Vorlagenwahl : public QWidget {
    Q_OBJECT
public:
    using Lesen = std::function<engine::RegelOptionen()>;
    using Setzen = std::function<void(const engine::RegelOptionen&)>;
    Vorlagenwahl(settings::Benutzerspeicher& speicher, Lesen lesen, Setzen setzen, QWidget* parent = nullptr);

    // The presets in the order of the list: Turnierregeln, Einsteiger, Hausregeln (eigene).
    std::vector<Regelvorlage> vorlagen() const;
    QComboBox* liste() const { return liste_; }

    // Calls `erkennen` whenever the control changes its value.
    void beobachten(QWidget* feld);

public slots:
    // Shows the preset the dialog's rules match, or "(eigene Auswahl)".
    void erkennen();
    void waehlen(int index);
    void alsHausregelnMerken();

private:
    settings::Benutzerspeicher& speicher_;
    Lesen lesen_;
    Setzen setzen_;
    QComboBox* liste_ = nullptr;
};

}  // namespace table

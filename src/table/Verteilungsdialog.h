#pragma once
// The manual-dealing dialog: the pile on top, the four hands below; a click on a
// pile card gives it to the chosen seat, a click on a hand card puts it back. OK
// is refused until every card has its hand.
#include <QDialog>
#include <array>

#include "Handverteilung.h"

class QLabel;
class QRadioButton;

namespace engine {
class Zufallsquelle;
}

namespace table {

class Kartenbilder;
class Kartenfeld;

class Verteilungsdialog : public QDialog {
    Q_OBJECT
public:
    Verteilungsdialog(Kartenbilder& bilder, int kartenanzahl, bool joker, const engine::ProSitz<std::string>& namen,
                      engine::Zufallsquelle& zufall, QWidget* parent = nullptr);

    const Handverteilung& verteilung() const { return verteilung_; }
    engine::Sitz gewaehlterSitz() const;
    void sitzWaehlen(engine::Sitz sitz);
    Kartenfeld* stapelfeld() const { return stapel_; }
    Kartenfeld* handfeld(engine::Sitz sitz) const { return haende_[static_cast<std::size_t>(sitz.nr() - 1)]; }

    void accept() override;

public slots:
    void stapelGeklickt(int index);
    void restZufaellig();
    void allesZuruecklegen();

private:
    void anzeigen();

    Handverteilung verteilung_;
    engine::Zufallsquelle& zufall_;
    engine::ProSitz<std::string> namen_;
    Kartenfeld* stapel_ = nullptr;
    std::array<Kartenfeld*, 4> haende_{};
    std::array<QRadioButton*, 4> sitze_{};
    QLabel* stand_ = nullptr;
};

}  // namespace table

#pragma once
// The game review "Spielverlauf": a finished game step by step, the four hands open
// as they were before each trick, the trick with its winner, and below it what was
// reserved, announced and scored and why each computer card was played.
#include <QDialog>
#include <vector>

#include "Spielverlauf.h"

class QLabel;
class QPushButton;
class QTextBrowser;

namespace table {

class Kartenbilder;

// The table of one step: hands around, the trick in the middle.
class Verlaufsbild : public QWidget {
    Q_OBJECT
public:
    Verlaufsbild(Kartenbilder& bilder, const engine::Spiel& spiel, QWidget* parent = nullptr);
    void setzeSchritt(const Verlaufsschritt* schritt);
    QSize sizeHint() const override { return {960, 520}; }
    QSize minimumSizeHint() const override { return {560, 330}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Kartenbilder& bilder_;
    const engine::Spiel& spiel_;
    const Verlaufsschritt* schritt_ = nullptr;
};

class Spielverlaufdialog : public QDialog {
    Q_OBJECT
public:
    // `spiel` must outlive the dialog.
    Spielverlaufdialog(Kartenbilder& bilder, const engine::Spiel& spiel, const players::Spielbegruendungen& gruende,
                       QWidget* parent = nullptr);

    int schritt() const { return index_; }
    int anzahl() const { return static_cast<int>(schritte_.size()); }
    const Verlaufsschritt& aktuell() const { return schritte_[static_cast<std::size_t>(index_)]; }
    QString text() const;
    void gehe(int index);

private:
    void anzeigen();

    const engine::Spiel& spiel_;
    std::vector<Verlaufsschritt> schritte_;
    bool franzoesisch_ = true;
    Verlaufsbild* bild_ = nullptr;
    QTextBrowser* text_ = nullptr;
    QLabel* stand_ = nullptr;
    QPushButton* anfang_ = nullptr;
    QPushButton* zurueck_ = nullptr;
    QPushButton* weiter_ = nullptr;
    QPushButton* ende_ = nullptr;
    int index_ = 0;
};

}  // namespace table

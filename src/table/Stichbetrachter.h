#pragma once
// The trick viewer: one completed trick with its cards at the seats' places, the
// leader, the winner and what was announced during it; paging through all tricks
// of a game once it has ended.
#include <QDialog>
#include <vector>

#include "engine/Spiel.h"

class QLabel;
class QPushButton;

namespace table {

class Kartenbilder;

// The four cards of a trick in a cross, the winner's card framed.
class Stichbild : public QWidget {
    Q_OBJECT
public:
    explicit Stichbild(Kartenbilder& bilder, QWidget* parent = nullptr);
    void setzeStich(const engine::StichProtokoll* stich);
    QSize sizeHint() const override { return {420, 400}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Kartenbilder& bilder_;
    const engine::StichProtokoll* stich_ = nullptr;
};

class Stichbetrachter : public QDialog {
    Q_OBJECT
public:
    explicit Stichbetrachter(Kartenbilder& bilder, QWidget* parent = nullptr);

    // The tricks to page through (copied) and the one shown first (0-based).
    void setzeStiche(const engine::Spiel& spiel, std::vector<engine::StichProtokoll> stiche, int zeigen);
    int gezeigt() const { return index_; }
    int anzahl() const { return static_cast<int>(stiche_.size()); }
    QString beschreibung() const;
    void blaettern(int schritt);

private:
    void anzeigen();

    Stichbild* bild_ = nullptr;
    QLabel* text_ = nullptr;
    QPushButton* zurueck_ = nullptr;
    QPushButton* weiter_ = nullptr;
    std::vector<engine::StichProtokoll> stiche_;
    engine::ProSitz<std::string> namen_;
    std::array<engine::AnsagenImStich, 13> ansagen_{};
    int ersteNummer_ = 1;  // number of the first trick in stiche_
    int index_ = 0;
};

// Text under a trick: "3. Stich: Spieler2 spielt aus, Spieler4 gewinnt mit 25 Augen" and the announcements.
std::string stichBeschreibung(const engine::StichProtokoll& stich, int nummer, const engine::ProSitz<std::string>& namen,
                              const engine::AnsagenImStich& ansagen);

}  // namespace table

#pragma once
// The score sheet: one row per game with what was played, who won, the Augen,
// announcements and special points, then one column per seat; the totals and the
// condition that ends the Partie.
#include <QWidget>
#include <string>
#include <vector>

#include "Spielanzeige.h"
#include "engine/Regeln.h"
#include "engine/Sitz.h"

class QLabel;
class QTableWidget;

namespace table {

struct Spielzettelinhalt {
    engine::ProSitz<std::string> namen;
    std::vector<engine::ProSitz<int>> spiele;  // points each seat got per game
    std::vector<Spielangaben> angaben;         // per game as far as known (not for a loaded Partie's games)
    engine::ProSitz<int> summen;
    int abrOption = 2;
    int endeBei = 30;
    int endeNach = 24;
};

// "Partieende bei Überschreiten von 30 Punkten" or "Partieende nach 24 Spielen".
std::string partieendeZeile(int abrOption, int endeBei, int endeNach);

class Spielzettel : public QWidget {
    Q_OBJECT
public:
    explicit Spielzettel(QWidget* parent = nullptr);
    void setzeInhalt(const Spielzettelinhalt& inhalt);
    const QTableWidget& tabelle() const { return *tabelle_; }
    // The first column of a seat's points.
    static constexpr int ErsteSitzspalte = 5;
    QString endzeile() const;

private:
    QTableWidget* tabelle_ = nullptr;
    QLabel* endzeile_ = nullptr;
};

}  // namespace table

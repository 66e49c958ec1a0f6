#pragma once
// The score sheet: one row per game, one column per seat, the totals and the
// condition that ends the Partie.
#include <QWidget>
#include <string>
#include <vector>

#include "engine/Regeln.h"
#include "engine/Sitz.h"

class QLabel;
class QTableWidget;

namespace table {

struct Spielzettelinhalt {
    engine::ProSitz<std::string> namen;
    std::vector<engine::ProSitz<int>> spiele;  // points each seat got per game
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
    QString endzeile() const;

private:
    QTableWidget* tabelle_ = nullptr;
    QLabel* endzeile_ = nullptr;
};

}  // namespace table

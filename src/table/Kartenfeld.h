#pragma once
// Face-up cards in overlapping rows that can be clicked one by one: the pile and
// the hands of the manual-dealing dialog.
#include <QWidget>
#include <functional>
#include <vector>

namespace table {

class Kartenbilder;

class Kartenfeld : public QWidget {
    Q_OBJECT
public:
    // `proZeile` cards in a row before the next row begins.
    Kartenfeld(Kartenbilder& bilder, int kartenhoehe, int proZeile, QWidget* parent = nullptr);
    void setzeKarten(std::vector<int> codes);
    // Room for this many rows however few cards there are, so the dialog keeps its size.
    void setzeMindestzeilen(int zeilen) { mindestzeilen_ = zeilen; }
    // Puts each card into the row its code names (a suit to a row) instead of filling rows in turn.
    void setzeZeilenwahl(std::function<int(int code)> zeile);
    const std::vector<int>& karten() const { return codes_; }
    // Centre of the visible part of the card at `index` (for clicks in tests).
    QPoint kartenmitte(std::size_t index) const;
    QRect kartenrechteck(std::size_t index) const;
    QSize sizeHint() const override;

signals:
    void geklickt(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void anordnen();
    QSize kartengroesse() const;
    int versatz() const;

    Kartenbilder& bilder_;
    int hoehe_;
    int proZeile_;
    int mindestzeilen_ = 1;
    std::function<int(int)> zeilenwahl_;
    std::vector<int> codes_;
    std::vector<QPoint> platz_;  // row and column of each card
    int zeilen_ = 1;
};

}  // namespace table

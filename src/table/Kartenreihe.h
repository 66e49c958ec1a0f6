#pragma once
// A row of face-up cards, for the dialogs that show the cards behind a message.
#include <QWidget>
#include <vector>

namespace table {

class Kartenbilder;

class Kartenreihe : public QWidget {
    Q_OBJECT
public:
    Kartenreihe(Kartenbilder& bilder, std::vector<int> codes, int kartenhoehe = 120, QWidget* parent = nullptr);
    const std::vector<int>& codes() const { return codes_; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Kartenbilder& bilder_;
    std::vector<int> codes_;
    int hoehe_;
};

}  // namespace table

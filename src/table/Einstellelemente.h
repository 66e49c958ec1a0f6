#pragma once
// Small controls of the settings dialog: a group of radio buttons that stands
// for one number, a colour button, and the live preview of the card pictures.
#include <QPushButton>
#include <QWidget>
#include <memory>

class QButtonGroup;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QVBoxLayout;

namespace table {

class Kartenbilder;

// Layout pieces the settings pages share.
QVBoxLayout* eingerueckt();  // options that depend on the one above stand a little to the right
QGroupBox* gruppe(const char* titel, QWidget* eltern);
QLabel* hinweis(const char* text, QWidget* eltern);  // a note in italics
// Fields named after their setting: the options file and the tests find them by it.
QSpinBox* zahlenfeld(const char* name, int von, int bis, QWidget* eltern);
QLineEdit* textfeld(const char* name, QWidget* eltern);

// Radio buttons, one per value; rows of a grid, so other controls can sit beside them.
class Wahlgruppe : public QWidget {
    Q_OBJECT
public:
    explicit Wahlgruppe(QWidget* parent = nullptr);
    void knopf(int wert, const QString& text, int zeile);
    QGridLayout* gitter() const { return gitter_; }
    int wert() const;
    void setzeWert(int wert);

signals:
    void geaendert(int wert);

private:
    QButtonGroup* gruppe_;
    QGridLayout* gitter_;
};

// Shows a colour and lets the person choose another; the value is a Windows colour.
class Farbknopf : public QPushButton {
    Q_OBJECT
public:
    explicit Farbknopf(QWidget* parent = nullptr);
    int wert() const { return wert_; }
    void setzeWert(int wert);

signals:
    void geaendert(int wert);

private:
    void waehlen();
    int wert_ = 0;
};

// A few faces and a back in the chosen pictures, drawn by a picture source of its own
// so the table keeps its pictures until the dialog is confirmed.
class Kartenvorschau : public QWidget {
    Q_OBJECT
public:
    explicit Kartenvorschau(QWidget* parent = nullptr);
    ~Kartenvorschau() override;
    void setzeKartenbild(int kartenbild);
    void setzeRueckseite(int rueckseite);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<Kartenbilder> bilder_;
    int rueckseite_ = 5;
};

}  // namespace table

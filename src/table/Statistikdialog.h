#pragma once
// "Statistik": the figures per seat name as a table (a column per name) and the
// points over the Partie as a line chart, with a button that clears everything.
#include <QDialog>
#include <QString>

#include "Statistik.h"

class QLabel;
class QTableWidget;

namespace table {

// Where the statistics live: "statistik.ini" beside the options file, written atomically.
class Statistikspeicher {
public:
    explicit Statistikspeicher(QString pfad = standardPfad());
    static QString standardPfad();
    const QString& pfad() const { return pfad_; }
    Statistik laden() const;
    bool speichern(const Statistik& statistik) const;
    bool loeschen() const;

private:
    QString pfad_;
};

// Running totals per seat, one line each, games along the bottom.
class Punkteverlauf : public QWidget {
    Q_OBJECT
public:
    explicit Punkteverlauf(QWidget* parent = nullptr);
    void setzeVerlauf(const Partieverlauf& verlauf, const QString& titel);
    QSize sizeHint() const override { return {560, 240}; }
    QSize minimumSizeHint() const override { return {320, 180}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Partieverlauf verlauf_;
    QString titel_;
};

class Statistikdialog : public QDialog {
    Q_OBJECT
public:
    // `laufend`: the running Partie's course, shown in the chart instead of the last finished one.
    Statistikdialog(const Statistikspeicher& speicher, const Partieverlauf& laufend, bool franzoesisch,
                    QWidget* parent = nullptr);
    const QTableWidget& tabelle() const { return *tabelle_; }
    const Statistik& statistik() const { return statistik_; }

public slots:
    void zuruecksetzen();

private:
    void anzeigen();

    const Statistikspeicher& speicher_;
    Statistik statistik_;
    Partieverlauf laufend_;
    bool franzoesisch_;
    QTableWidget* tabelle_ = nullptr;
    QLabel* leer_ = nullptr;
    Punkteverlauf* verlauf_ = nullptr;
};

// One cell: "12 (7 gewonnen, 58 %)".
QString quotenText(const Quote& q);

}  // namespace table

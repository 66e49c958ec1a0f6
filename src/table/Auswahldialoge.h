#pragma once
// The solo dialog (only the kinds the rules allow) and the Hochzeit dialog (the
// three ways the partner is found).
#include <QDialog>
#include <vector>

class QButtonGroup;

namespace table {

// Radio buttons, one per choice, each carrying its number.
class Auswahldialog : public QDialog {
    Q_OBJECT
public:
    Auswahldialog(const QString& titel, const QString& frage, const std::vector<std::pair<int, QString>>& wahl,
                  QWidget* parent = nullptr);
    int gewaehlt() const;
    void waehlen(int nummer);
    std::vector<int> angeboten() const;
    QString beschriftung(int nummer) const;

private:
    QButtonGroup* gruppe_ = nullptr;
};

// Game types of the allowed solos; 0 when the dialog is cancelled.
Auswahldialog* soloDialog(const std::vector<int>& erlaubt, bool franzoesisch, QWidget* parent);
// Hochzeit kind 5, 6 or 7.
Auswahldialog* hochzeitDialog(QWidget* parent);

}  // namespace table

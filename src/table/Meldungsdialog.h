#pragma once
// A message or a yes/no question with the cards it is about (the redeal
// questions and announcements, Schweine, the announcements of other seats).
#include <QDialog>
#include <vector>

class QDialogButtonBox;
class QLabel;

namespace table {

class Kartenbilder;
class Kartenreihe;

class Meldungsdialog : public QDialog {
    Q_OBJECT
public:
    enum class Art { Hinweis, Frage };
    Meldungsdialog(Kartenbilder& bilder, const QString& titel, const QString& text, std::vector<int> karten, Art art,
                   QWidget* parent = nullptr);

    QString text() const;
    const std::vector<int>& karten() const;
    QDialogButtonBox* knoepfe() const { return knoepfe_; }

    // Shows the dialog modally; a question returns true on "Ja".
    static bool fragen(Kartenbilder& bilder, QWidget* eltern, const QString& titel, const QString& text,
                       std::vector<int> karten);
    static void melden(Kartenbilder& bilder, QWidget* eltern, const QString& titel, const QString& text,
                       std::vector<int> karten);

private:
    QLabel* text_ = nullptr;
    Kartenreihe* reihe_ = nullptr;
    QDialogButtonBox* knoepfe_ = nullptr;
};

}  // namespace table

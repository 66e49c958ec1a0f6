#pragma once
// The open and save dialogs of the table window. Their filters are written the
// classic way, "Text|*.ext|Text|*.*"; Qt gets the texts. Tests put their own
// Dateiwahl in place, so no file dialog needs a person.
#include <QString>
#include <string_view>

class QWidget;

namespace table {

struct Dateifrage {
    QString titel;
    QString ordner;            // where the dialog starts
    std::string_view filter;   // "Doppelkopf-Partie (*.dkp)|*.dkp|..."
    std::string_view endung;   // added to a name typed without one (saving)
};

class Dateiwahl {
public:
    virtual ~Dateiwahl() = default;
    // The chosen path, empty when the person cancelled.
    virtual QString speichern(QWidget* eltern, const Dateifrage& frage) = 0;
    virtual QString oeffnen(QWidget* eltern, const Dateifrage& frage) = 0;
};

// QFileDialog, modal over `eltern`.
class Dateidialoge final : public Dateiwahl {
public:
    QString speichern(QWidget* eltern, const Dateifrage& frage) override;
    QString oeffnen(QWidget* eltern, const Dateifrage& frage) override;
};

// "A (*.a)|*.a|B(*.*)|*.*" becomes "A (*.a);;B(*.*)": Qt reads the pattern from the text.
QString qtFilter(std::string_view filter);

}  // namespace table

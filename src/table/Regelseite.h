#pragma once
// The rules of this program's Doppelkopf as a readable page, headed by the options
// now chosen.
#include <QDialog>

#include "engine/Regeln.h"

class QTextBrowser;

namespace table {

QString regelnHtml(const engine::RegelOptionen& regeln);

class Regelseite : public QDialog {
    Q_OBJECT
public:
    explicit Regelseite(const engine::RegelOptionen& regeln, QWidget* parent = nullptr);
    QString text() const;

private:
    QTextBrowser* text_ = nullptr;
};

}  // namespace table

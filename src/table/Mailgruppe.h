#pragma once
// The group of the settings dialog's Netzwerk tab that says where tournament
// results are mailed: server, port, HELO domain, sender and organiser.
#include <QGroupBox>

#include "services/Mailkonto.h"

class QLineEdit;
class QSpinBox;

namespace table {

class Mailgruppe : public QGroupBox {
    Q_OBJECT
public:
    explicit Mailgruppe(QWidget* parent = nullptr);
    services::Mailkonto konto() const;
    void setzeKonto(const services::Mailkonto& konto);

private:
    QLineEdit* server_ = nullptr;
    QSpinBox* port_ = nullptr;
    QLineEdit* helo_ = nullptr;
    QLineEdit* absender_ = nullptr;
    QLineEdit* absendername_ = nullptr;
    QLineEdit* empfaenger_ = nullptr;
};

}  // namespace table

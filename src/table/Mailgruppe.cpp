#include "Mailgruppe.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSpinBox>

#include "Qtext.h"
#include "Turniertexte.h"

namespace table {

using namespace turniertext;

Mailgruppe::Mailgruppe(QWidget* parent) : QGroupBox(t(Gruppe), parent) {
    setObjectName(QStringLiteral("mailgruppe"));
    auto* form = new QFormLayout(this);
    auto feld = [this](const char* name) {
        auto* f = new QLineEdit(this);
        f->setObjectName(QString::fromLatin1(name));
        return f;
    };
    server_ = feld("MailServer");
    port_ = new QSpinBox(this);
    port_->setObjectName(QStringLiteral("MailPort"));
    port_->setRange(1, 65535);
    port_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* zeile = new QHBoxLayout;
    zeile->addWidget(server_, 1);
    zeile->addWidget(port_);
    form->addRow(t(Mailserver), zeile);
    helo_ = feld("MailHelo");
    helo_->setPlaceholderText(t(HeloLeer));
    form->addRow(t(HeloDomain), helo_);
    absendername_ = feld("MailAbsendername");
    form->addRow(t(Absendername), absendername_);
    absender_ = feld("MailAbsender");
    form->addRow(t(Absender), absender_);
    empfaenger_ = feld("MailEmpfaenger");
    form->addRow(t(Empfaenger), empfaenger_);
}

services::Mailkonto Mailgruppe::konto() const {
    return {server_->text().trimmed(), port_->value(),           helo_->text().trimmed(),
            absender_->text().trimmed(), absendername_->text(), empfaenger_->text().trimmed()};
}

void Mailgruppe::setzeKonto(const services::Mailkonto& k) {
    server_->setText(k.server);
    port_->setValue(k.port);
    helo_->setText(k.heloDomain);
    absender_->setText(k.absender);
    absendername_->setText(k.absendername);
    empfaenger_->setText(k.empfaenger);
}

}  // namespace table

#include "Foyeranmeldung.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QSpinBox>

#include "Foyertexte.h"
#include "table/Qtext.h"

namespace foyer {

using table::t;

Foyeranmeldung::Foyeranmeldung(Namenspruefung pruefung, QWidget* parent)
    : QDialog(parent), pruefung_(std::move(pruefung)), name_(new QLineEdit), server_(new QLineEdit), port_(new QSpinBox) {
    setObjectName(QStringLiteral("frmFoyeranmeldung"));
    setWindowTitle(t(texte::Anmeldetitel));
    name_->setObjectName(QStringLiteral("txtName"));
    name_->setMaxLength(40);
    server_->setObjectName(QStringLiteral("txtServer"));
    port_->setObjectName(QStringLiteral("txtPort"));
    port_->setRange(1, 65535);
    auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(knoepfe, &QDialogButtonBox::accepted, this, &Foyeranmeldung::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &Foyeranmeldung::reject);
    auto* form = new QFormLayout(this);
    form->addRow(t(texte::Name), name_);
    form->addRow(t(texte::Server), server_);
    form->addRow(t(texte::Port), port_);
    form->addRow(knoepfe);
}

void Foyeranmeldung::setzen(const QString& name, const QString& server, int port) {
    name_->setText(name);
    server_->setText(server);
    port_->setValue(port);
    name_->selectAll();
    name_->setFocus();
}

QString Foyeranmeldung::name() const { return name_->text().trimmed(); }
QString Foyeranmeldung::server() const { return server_->text().trimmed(); }
int Foyeranmeldung::port() const { return port_->value(); }

void Foyeranmeldung::accept() {
    const QString fehler = pruefung_ ? pruefung_(name()) : QString();
    if (!fehler.isEmpty()) {
        QMessageBox::warning(this, windowTitle(), fehler);
        return;
    }
    if (server().isEmpty()) {
        QMessageBox::warning(this, windowTitle(), t(texte::ServerFehlt));
        server_->setFocus();
        return;
    }
    QDialog::accept();
}

}  // namespace foyer

#include "Meldungsdialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "Kartenreihe.h"

namespace table {

Meldungsdialog::Meldungsdialog(Kartenbilder& bilder, const QString& titel, const QString& text, std::vector<int> karten,
                               Art art, QWidget* parent)
    : QDialog(parent) {
    setWindowTitle(titel);
    auto* spalte = new QVBoxLayout(this);
    text_ = new QLabel(text, this);
    text_->setWordWrap(true);
    QFont schrift = text_->font();
    schrift.setPointSizeF(schrift.pointSizeF() * 1.15);
    text_->setFont(schrift);
    spalte->addWidget(text_);
    reihe_ = new Kartenreihe(bilder, std::move(karten), 120, this);
    spalte->addWidget(reihe_, 0, Qt::AlignHCenter);
    reihe_->setVisible(!reihe_->codes().empty());
    knoepfe_ = new QDialogButtonBox(
        art == Art::Frage ? QDialogButtonBox::Yes | QDialogButtonBox::No : QDialogButtonBox::StandardButtons(QDialogButtonBox::Ok),
        this);
    connect(knoepfe_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(knoepfe_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    spalte->addWidget(knoepfe_);
    const QDialogButtonBox::StandardButton vorgabe = art == Art::Frage ? QDialogButtonBox::Yes : QDialogButtonBox::Ok;
    knoepfe_->button(vorgabe)->setDefault(true);
}

QString Meldungsdialog::text() const { return text_->text(); }

const std::vector<int>& Meldungsdialog::karten() const { return reihe_->codes(); }

bool Meldungsdialog::fragen(Kartenbilder& bilder, QWidget* eltern, const QString& titel, const QString& text,
                            std::vector<int> karten) {
    Meldungsdialog dialog(bilder, titel, text, std::move(karten), Art::Frage, eltern);
    return dialog.exec() == QDialog::Accepted;
}

void Meldungsdialog::melden(Kartenbilder& bilder, QWidget* eltern, const QString& titel, const QString& text,
                            std::vector<int> karten) {
    Meldungsdialog dialog(bilder, titel, text, std::move(karten), Art::Hinweis, eltern);
    dialog.exec();
}

}  // namespace table

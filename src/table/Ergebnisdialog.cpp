#include "Ergebnisdialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "Qtext.h"
#include "Turniertexte.h"
#include "services/Diensttexte.h"
#include "services/Ergebnisablage.h"

namespace table {

using namespace turniertext;

Ergebnisdialog::Ergebnisdialog(QString ordner, services::Mailkonto konto, QWidget* parent)
    : QDialog(parent), ordner_(std::move(ordner)), konto_(std::move(konto)), versand_(client_) {
    setObjectName(QStringLiteral("frmErgebnisse"));
    setWindowTitle(t(ErgebnisseTitel));
    frage_ = [this](const QString&, const QString&) {
        const QString text = t(services::texte::FehlerBeimUebertragen) + QLatin1Char('\n') + t(services::texte::Wiederholen);
        return QMessageBox::question(this, windowTitle(), text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
    };

    auto* spalte = new QVBoxLayout(this);
    ueberschrift_ = new QLabel(this);
    ueberschrift_->setWordWrap(true);
    spalte->addWidget(ueberschrift_);
    liste_ = new QTreeWidget(this);
    liste_->setObjectName(QStringLiteral("lstDateien"));
    liste_->setRootIsDecorated(false);
    liste_->setColumnCount(3);
    liste_->setHeaderLabels({t(SpalteDatei), t(SpalteStand), t(SpalteFortschritt)});
    liste_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    liste_->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    liste_->header()->setSectionResizeMode(2, QHeaderView::Fixed);
    liste_->header()->setStretchLastSection(false);
    liste_->header()->resizeSection(2, 140);
    spalte->addWidget(liste_, 1);
    ziel_ = new QLabel(this);
    ziel_->setText(konto_.vollstaendig()
                       ? t(An).arg(konto_.empfaenger, konto_.mailserver().host).arg(konto_.mailserver().port)
                       : t(OhneKonto));
    spalte->addWidget(ziel_);
    status_ = new QLabel(this);
    status_->setObjectName(QStringLiteral("lblStatus"));
    status_->setFrameShape(QFrame::StyledPanel);
    spalte->addWidget(status_);

    auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Close, this);
    senden_ = knoepfe->addButton(t(Senden), QDialogButtonBox::ActionRole);
    senden_->setObjectName(QStringLiteral("cmdSenden"));
    senden_->setDefault(true);
    spalte->addWidget(knoepfe);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(senden_, &QPushButton::clicked, this, &Ergebnisdialog::cmdSenden_Click);

    connect(&versand_, &services::Ergebnisversand::status, this, [this](const QString& datei, const QString& text) {
        standSetzen(datei, text);
        status_->setText(datei + QStringLiteral(": ") + text);
    });
    connect(&versand_, &services::Ergebnisversand::fortschritt, this, [this](const QString& datei, int erledigt, int stufen) {
        if (QProgressBar* b = balken(datei)) {
            b->setMaximum(stufen);
            b->setValue(erledigt);
        }
    });
    connect(&versand_, &services::Ergebnisversand::gesendet, this, [this](const QString& datei) {
        standSetzen(datei, t(services::texte::Gesendet));
        if (QProgressBar* b = balken(datei)) b->setValue(b->maximum());
    });
    connect(&versand_, &services::Ergebnisversand::behalten, this, [this](const QString& datei, const QString& grund) {
        standSetzen(datei, t(services::texte::Behalten) + QStringLiteral(": ") + grund);
        if (QProgressBar* b = balken(datei)) b->setValue(0);
    });
    connect(&versand_, &services::Ergebnisversand::wiederholenFragen, this,
            [this](const QString& datei, const QString& grund) {
                standSetzen(datei, grund);
                versand_.wiederholen(frage_(datei, grund));
            });
    connect(&versand_, &services::Ergebnisversand::meldung, this,
            [this](const QString& text) { QMessageBox::information(this, windowTitle(), text); });
    connect(&versand_, &services::Ergebnisversand::fertig, this, [this](int, int behalten) {
        if (liste_->topLevelItemCount() == 0) status_->setText(t(KeineWartenden));
        ueberschrift_->setText(behalten > 0 ? t(Wartende) : t(KeineWartenden));
        senden_->setEnabled(!services::wartendeErgebnisse(ordner_).isEmpty());
    });

    auffrischen();
    resize(640, 360);
}

void Ergebnisdialog::auffrischen() {
    if (versand_.laeuft()) return;
    liste_->clear();
    const QStringList dateien = services::wartendeErgebnisse(ordner_);
    for (const QString& datei : dateien) {
        auto* item = new QTreeWidgetItem(liste_, {datei, t(services::texte::Wartet), QString()});
        auto* b = new QProgressBar(liste_);
        b->setRange(0, services::Smtpdialog::Stufen);
        b->setValue(0);
        b->setTextVisible(false);
        liste_->setItemWidget(item, 2, b);
    }
    ueberschrift_->setText(dateien.isEmpty() ? t(KeineWartenden) : t(Wartende));
    senden_->setEnabled(!dateien.isEmpty());
}

void Ergebnisdialog::cmdSenden_Click() {
    // While an upload runs a new one is refused ("Läuft noch!"); otherwise the list is read again first.
    if (!versand_.laeuft()) auffrischen();
    versand_.alleSenden(ordner_, konto_);
}

QTreeWidgetItem* Ergebnisdialog::zeile(const QString& datei) const {
    const auto treffer = liste_->findItems(datei, Qt::MatchExactly, 0);
    return treffer.isEmpty() ? nullptr : treffer.front();
}

QProgressBar* Ergebnisdialog::balken(const QString& datei) const {
    QTreeWidgetItem* z = zeile(datei);
    return z ? qobject_cast<QProgressBar*>(liste_->itemWidget(z, 2)) : nullptr;
}

void Ergebnisdialog::standSetzen(const QString& datei, const QString& text) {
    if (QTreeWidgetItem* z = zeile(datei)) {
        z->setText(1, text);
        z->setToolTip(1, text);  // a long failure does not fit the column
    }
}

QString Ergebnisdialog::status() const { return status_->text(); }

QString Ergebnisdialog::stand(const QString& datei) const {
    QTreeWidgetItem* z = zeile(datei);
    return z ? z->text(1) : QString();
}

int Ergebnisdialog::fortschritt(const QString& datei) const {
    QProgressBar* b = balken(datei);
    return b ? b->value() : -1;
}

}  // namespace table

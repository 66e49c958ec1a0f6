#include "Spielendedialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "Lerntexte.h"
#include "Tischtexte.h"

namespace table {

Spielendedialog::Spielendedialog(const Spielergebnis& ergebnis, QWidget* parent) : QDialog(parent) {
    setWindowTitle(QString::fromStdString(ergebnis.titel));
    auto* spalte = new QVBoxLayout(this);
    text_ = new QLabel(QString::fromStdString(ergebnis.text), this);
    text_->setWordWrap(true);
    text_->setMinimumWidth(440);
    spalte->addWidget(text_);

    tabelle_ = new QTableWidget(2, 4, this);
    tabelle_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabelle_->setSelectionMode(QAbstractItemView::NoSelection);
    tabelle_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    tabelle_->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    QStringList kopf;
    for (const engine::Sitz s : engine::alleSitze) {
        kopf << QString::fromStdString(ergebnis.namen[s]);
        for (int zeile = 0; zeile < 2; ++zeile) {
            auto* zelle = new QTableWidgetItem(QString::number(zeile == 0 ? ergebnis.punkte[s] : ergebnis.summen[s]));
            zelle->setTextAlignment(Qt::AlignCenter);
            tabelle_->setItem(zeile, s.nr() - 1, zelle);
        }
    }
    tabelle_->setHorizontalHeaderLabels(kopf);
    tabelle_->setVerticalHeaderLabels({QString::fromUtf8(texte::DiesesSpiel), QString::fromUtf8(texte::Summe)});
    tabelle_->setFixedHeight(tabelle_->horizontalHeader()->sizeHint().height() + 2 * tabelle_->rowHeight(0) + 6);
    spalte->addWidget(tabelle_);

    knoepfe_ = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(knoepfe_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    spalte->addWidget(knoepfe_);
}

void Spielendedialog::verlaufAnbieten(std::function<void()> zeigen) {
    QPushButton* knopf = knoepfe_->addButton(QString::fromUtf8(lerntext::VerlaufKnopf), QDialogButtonBox::ActionRole);
    knopf->setObjectName(QStringLiteral("spielverlauf"));
    knopf->setAutoDefault(false);
    connect(knopf, &QPushButton::clicked, this, std::move(zeigen));
}

QString Spielendedialog::text() const { return text_->text(); }

}  // namespace table

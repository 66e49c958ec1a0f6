#include "Willkommen.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "Qtext.h"
#include "Regelseite.h"
#include "Tischtexte.h"

namespace table {

namespace {
}

Willkommen::Willkommen(const engine::RegelOptionen& regeln, QWidget* parent) : QDialog(parent), regelOptionen_(regeln) {
    setObjectName(QStringLiteral("willkommen"));
    setWindowTitle(t(texte::WillkommenTitel));
    auto* spalte = new QVBoxLayout(this);
    spalte->setSpacing(12);
    auto* kopf = new QLabel(t(texte::WillkommenKopf), this);
    QFont gross = kopf->font();
    gross.setPointSizeF(gross.pointSizeF() * 1.6);
    gross.setBold(true);
    kopf->setFont(gross);
    spalte->addWidget(kopf);
    auto* text = new QLabel(t(texte::WillkommenText), this);
    text->setWordWrap(true);
    spalte->addWidget(text);

    fortsetzen_ = new QPushButton(t(texte::WillkommenFortsetzen), this);
    neu_ = new QPushButton(t(texte::WillkommenNeu), this);
    laden_ = new QPushButton(t(texte::WillkommenLaden), this);
    regeln_ = new QPushButton(t(texte::WillkommenRegeln), this);
    for (QPushButton* k : {fortsetzen_, neu_, laden_, regeln_}) {
        k->setMinimumHeight(40);
        spalte->addWidget(k);
    }
    connect(neu_, &QPushButton::clicked, this, [this] {
        wahl_ = Wahl::NeuePartie;
        accept();
    });
    connect(laden_, &QPushButton::clicked, this, [this] {
        wahl_ = Wahl::Laden;
        accept();
    });
    connect(fortsetzen_, &QPushButton::clicked, this, [this] {
        wahl_ = Wahl::Fortsetzen;
        accept();
    });
    connect(regeln_, &QPushButton::clicked, this, &Willkommen::regelnZeigen);
    fortsetzenAnbieten(false);

    auto* abschalten = new QLabel(t(texte::WillkommenAbschalten), this);
    abschalten->setWordWrap(true);
    QFont klein = abschalten->font();
    klein.setItalic(true);
    abschalten->setFont(klein);
    spalte->addWidget(abschalten);
    setMinimumWidth(440);
}

void Willkommen::fortsetzenAnbieten(bool an) {
    fortsetzen_->setVisible(an);
    // The kept Partie is the likely wish; Enter takes it.
    (an ? fortsetzen_ : neu_)->setDefault(true);
    (an ? neu_ : fortsetzen_)->setDefault(false);
}

void Willkommen::regelnZeigen() {
    Regelseite seite(regelOptionen_, this);
    seite.exec();
}

}  // namespace table

#include "Vorlagenwahl.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolTip>

#include "Einstellelemente.h"
#include "Lerntexte.h"
#include "Qtext.h"
#include "settings/Benutzerspeicher.h"

namespace table {

namespace {
const QString HausregelnSchluessel = QStringLiteral("Hausregeln");
}

Vorlagenwahl::Vorlagenwahl(settings::Benutzerspeicher& speicher, Lesen lesen, Setzen setzen, QWidget* parent)
    : QWidget(parent), speicher_(speicher), lesen_(std::move(lesen)), setzen_(std::move(setzen)) {
    auto* gitter = new QGridLayout(this);
    gitter->setContentsMargins(0, 0, 0, 0);
    gitter->addWidget(new QLabel(t(lerntext::Regelvorlage), this), 0, 0);
    liste_ = new QComboBox(this);
    liste_->setObjectName(QStringLiteral("regelvorlage"));
    for (const Regelvorlage& v : vorlagen()) liste_->addItem(t(v.name));
    liste_->addItem(t(lerntext::KeineVorlage));
    gitter->addWidget(liste_, 0, 1);
    auto* merken = new QPushButton(t(lerntext::AlsHausregeln), this);
    merken->setObjectName(QStringLiteral("hausregeln_merken"));
    merken->setAutoDefault(false);
    gitter->addWidget(merken, 1, 1, Qt::AlignLeft);
    gitter->setColumnStretch(1, 1);
    connect(liste_, &QComboBox::activated, this, &Vorlagenwahl::waehlen);
    connect(merken, &QPushButton::clicked, this, &Vorlagenwahl::alsHausregelnMerken);
}

std::vector<Regelvorlage> Vorlagenwahl::vorlagen() const {
    std::vector<Regelvorlage> v = festeVorlagen();
    // Until the person keeps their own, the house rules are the program's defaults.
    const QString text = speicher_.text(HausregelnSchluessel);
    v.push_back(text.isEmpty() ? hausregeln(engine::RegelOptionen{}) : hausregelnAusText(text.toStdString()));
    v.back().name = "Hausregeln (eigene)";
    return v;
}

void Vorlagenwahl::beobachten(QWidget* feld) {
    if (auto* c = qobject_cast<QCheckBox*>(feld)) connect(c, &QCheckBox::toggled, this, &Vorlagenwahl::erkennen);
    else if (auto* l = qobject_cast<QComboBox*>(feld)) connect(l, &QComboBox::currentIndexChanged, this, &Vorlagenwahl::erkennen);
    else if (auto* s = qobject_cast<QSpinBox*>(feld)) connect(s, &QSpinBox::valueChanged, this, &Vorlagenwahl::erkennen);
    else if (auto* w = qobject_cast<Wahlgruppe*>(feld)) connect(w, &Wahlgruppe::geaendert, this, &Vorlagenwahl::erkennen);
}

void Vorlagenwahl::erkennen() {
    const engine::RegelOptionen regeln = lesen_();
    const std::vector<Regelvorlage> v = vorlagen();
    int index = static_cast<int>(v.size());
    for (std::size_t i = 0; i < v.size(); ++i)
        if (passt(regeln, v[i])) {
            index = static_cast<int>(i);
            break;
        }
    const QSignalBlocker still(liste_);
    liste_->setCurrentIndex(index);
}

void Vorlagenwahl::waehlen(int index) {
    const std::vector<Regelvorlage> v = vorlagen();
    if (index >= 0 && index < static_cast<int>(v.size())) setzen_(anwenden(lesen_(), v[static_cast<std::size_t>(index)]));
    erkennen();
}

void Vorlagenwahl::alsHausregelnMerken() {
    speicher_.setzeText(HausregelnSchluessel, QString::fromStdString(hausregelnText(hausregeln(lesen_()))));
    speicher_.synchronisieren();
    erkennen();
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), t(lerntext::HausregelnGemerkt), this);
}

}  // namespace table

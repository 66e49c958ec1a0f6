#include "Auswahldialoge.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "Dialogtexte.h"
#include "engine/Kartentext.h"
#include "engine/Vorbehalte.h"

namespace table {

Auswahldialog::Auswahldialog(const QString& titel, const QString& frage, const std::vector<std::pair<int, QString>>& wahl,
                             QWidget* parent)
    : QDialog(parent), gruppe_(new QButtonGroup(this)) {
    setWindowTitle(titel);
    auto* spalte = new QVBoxLayout(this);
    spalte->addWidget(new QLabel(frage, this));
    for (const auto& [nummer, text] : wahl) {
        auto* knopf = new QRadioButton(text, this);
        gruppe_->addButton(knopf, nummer);
        spalte->addWidget(knopf);
    }
    if (!wahl.empty()) gruppe_->button(wahl.front().first)->setChecked(true);
    auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    spalte->addWidget(knoepfe);
}

int Auswahldialog::gewaehlt() const { return result() == QDialog::Accepted ? gruppe_->checkedId() : 0; }

void Auswahldialog::waehlen(int nummer) {
    if (auto* knopf = gruppe_->button(nummer)) knopf->setChecked(true);
}

std::vector<int> Auswahldialog::angeboten() const {
    std::vector<int> nummern;
    for (auto* knopf : gruppe_->buttons()) nummern.push_back(gruppe_->id(knopf));
    return nummern;
}

QString Auswahldialog::beschriftung(int nummer) const {
    auto* knopf = gruppe_->button(nummer);
    return knopf ? knopf->text() : QString();
}

Auswahldialog* soloDialog(const std::vector<int>& erlaubt, bool franzoesisch, QWidget* parent) {
    std::vector<std::pair<int, QString>> wahl;
    for (int typ : erlaubt) wahl.emplace_back(typ, QString::fromStdString(engine::soloName(typ, franzoesisch)));
    return new Auswahldialog(QString::fromUtf8(texte::SoloTitel), QString::fromUtf8(texte::SoloWahl), wahl, parent);
}

Auswahldialog* hochzeitDialog(QWidget* parent) {
    std::vector<std::pair<int, QString>> wahl;
    for (int art : {engine::ErsterStich, engine::ErsterFehlstich, engine::ErsterTrumpfstich})
        wahl.emplace_back(art, QString::fromStdString(std::string(engine::hochzeitArtText(art))));
    return new Auswahldialog(QString::fromUtf8(texte::HochzeitTitel), QString::fromUtf8(texte::HochzeitFrage), wahl, parent);
}

}  // namespace table

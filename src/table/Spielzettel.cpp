#include "Spielzettel.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include "Tischtexte.h"
#include "engine/Wertung.h"

namespace table {

std::string partieendeZeile(int abrOption, int endeBei, int endeNach) {
    if (abrOption == 1) return engine::partieendeText(endeBei);
    return texte::PartieendeNach + std::to_string(endeNach) + texte::Spielen;
}

Spielzettel::Spielzettel(QWidget* parent) : QWidget(parent) {
    auto* spalte = new QVBoxLayout(this);
    tabelle_ = new QTableWidget(this);
    tabelle_->setColumnCount(ErsteSitzspalte + 4);
    tabelle_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabelle_->setWordWrap(false);
    tabelle_->setSelectionMode(QAbstractItemView::NoSelection);
    tabelle_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tabelle_->horizontalHeader()->setSectionResizeMode(4, QHeaderView::Stretch);
    spalte->addWidget(tabelle_);
    endzeile_ = new QLabel(this);
    setMinimumSize(900, 360);
    spalte->addWidget(endzeile_);
}

void Spielzettel::setzeInhalt(const Spielzettelinhalt& inhalt) {
    const int zeilen = static_cast<int>(inhalt.spiele.size()) + 1;
    tabelle_->clearContents();
    tabelle_->setRowCount(zeilen);
    QStringList kopf{QString::fromUtf8(texte::SpalteSpiel), QString::fromUtf8(texte::SpalteGewinner),
                     QString::fromUtf8(texte::SpalteAugen), QString::fromUtf8(texte::SpalteAnsagen),
                     QString::fromUtf8(texte::SpalteSonderpunkte)};
    for (const engine::Sitz s : engine::alleSitze) kopf << QString::fromStdString(inhalt.namen[s]);
    tabelle_->setHorizontalHeaderLabels(kopf);
    QStringList nummern;
    auto zelle = [](int wert, bool fett) {
        auto* item = new QTableWidgetItem(QString::number(wert));
        item->setTextAlignment(Qt::AlignCenter);
        QFont f = item->font();
        f.setBold(fett);
        item->setFont(f);
        return item;
    };
    auto text = [](const std::string& wert) { return new QTableWidgetItem(QString::fromStdString(wert)); };
    for (std::size_t i = 0; i < inhalt.spiele.size(); ++i) {
        const int zeile = static_cast<int>(i);
        nummern << QString::number(i + 1);
        const Spielangaben a = i < inhalt.angaben.size() ? inhalt.angaben[i] : Spielangaben{};
        const std::string spalten[] = {a.spielart, a.gewinner, a.augen, a.ansagen, a.sonderpunkte};
        for (int spalte = 0; spalte < ErsteSitzspalte; ++spalte) tabelle_->setItem(zeile, spalte, text(spalten[spalte]));
        tabelle_->item(zeile, 2)->setTextAlignment(Qt::AlignCenter);
        for (const engine::Sitz s : engine::alleSitze)
            tabelle_->setItem(zeile, ErsteSitzspalte + s.nr() - 1, zelle(inhalt.spiele[i][s], false));
    }
    nummern << QString::fromUtf8(texte::Summe);
    for (int spalte = 0; spalte < ErsteSitzspalte; ++spalte) tabelle_->setItem(zeilen - 1, spalte, text({}));
    for (const engine::Sitz s : engine::alleSitze)
        tabelle_->setItem(zeilen - 1, ErsteSitzspalte + s.nr() - 1, zelle(inhalt.summen[s], true));
    tabelle_->setVerticalHeaderLabels(nummern);
    endzeile_->setText(QString::fromStdString(partieendeZeile(inhalt.abrOption, inhalt.endeBei, inhalt.endeNach)));
}

QString Spielzettel::endzeile() const { return endzeile_->text(); }

}  // namespace table

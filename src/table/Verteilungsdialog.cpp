#include "Verteilungsdialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "Kartenfeld.h"
#include "Tischtexte.h"
#include "engine/Karte.h"

namespace table {

using engine::Sitz;

namespace {
// The pile large enough to read every corner; a row of it fills the width.
constexpr int KartenhoeheStapel = 84;
constexpr int KartenhoeheHand = 64;
}

Verteilungsdialog::Verteilungsdialog(Kartenbilder& bilder, int kartenanzahl, bool joker,
                                     const engine::ProSitz<std::string>& namen, engine::Zufallsquelle& zufall,
                                     QWidget* parent)
    : QDialog(parent), verteilung_(kartenanzahl, joker), zufall_(zufall), namen_(namen) {
    setObjectName(QStringLiteral("verteilung"));
    setWindowTitle(QString::fromUtf8(texte::VerteilungTitel));
    auto* spalte = new QVBoxLayout(this);
    auto* hinweis = new QLabel(QString::fromUtf8(texte::VerteilungHinweis), this);
    hinweis->setWordWrap(true);
    spalte->addWidget(hinweis);

    auto* stapelRahmen = new QGroupBox(QString::fromUtf8(texte::Stapel), this);
    stapel_ = new Kartenfeld(bilder, KartenhoeheStapel, verteilung_.handgroesse(), stapelRahmen);
    stapel_->setzeMindestzeilen(4);
    // A suit to a row, the Joker with the Karo it stands in for.
    stapel_->setzeZeilenwahl([](int code) { return code == engine::JokerCode ? 3 : 4 - engine::farbeVonCode(code); });
    (new QVBoxLayout(stapelRahmen))->addWidget(stapel_);
    spalte->addWidget(stapelRahmen);
    connect(stapel_, &Kartenfeld::geklickt, this, &Verteilungsdialog::stapelGeklickt);

    auto* haende = new QGridLayout;
    for (const Sitz s : engine::alleSitze) {
        const auto i = static_cast<std::size_t>(s.nr() - 1);
        sitze_[i] = new QRadioButton(this);
        connect(sitze_[i], &QRadioButton::clicked, this, [this] { anzeigen(); });
        haende_[i] = new Kartenfeld(bilder, KartenhoeheHand, verteilung_.handgroesse(), this);
        connect(haende_[i], &Kartenfeld::geklickt, this, [this, s](int index) {
            verteilung_.zuruecklegen(s, static_cast<std::size_t>(index));
            anzeigen();
        });
        const int zeile = static_cast<int>(i) % 2 * 2;
        const int spalteNr = static_cast<int>(i) / 2;
        haende->addWidget(sitze_[i], zeile, spalteNr);
        haende->addWidget(haende_[i], zeile + 1, spalteNr);
    }
    sitze_[0]->setChecked(true);
    spalte->addLayout(haende);

    auto* unten = new QHBoxLayout;
    stand_ = new QLabel(this);
    unten->addWidget(stand_, 1);
    auto* zufallKnopf = new QPushButton(QString::fromUtf8(texte::RestZufaellig), this);
    auto* zurueck = new QPushButton(QString::fromUtf8(texte::AllesZurueck), this);
    for (QPushButton* k : {zufallKnopf, zurueck}) {
        k->setAutoDefault(false);
        unten->addWidget(k);
    }
    connect(zufallKnopf, &QPushButton::clicked, this, &Verteilungsdialog::restZufaellig);
    connect(zurueck, &QPushButton::clicked, this, &Verteilungsdialog::allesZuruecklegen);
    auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(knoepfe, &QDialogButtonBox::accepted, this, &Verteilungsdialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &Verteilungsdialog::reject);
    unten->addWidget(knoepfe);
    spalte->addLayout(unten);
    anzeigen();
}

Sitz Verteilungsdialog::gewaehlterSitz() const {
    for (const Sitz s : engine::alleSitze)
        if (sitze_[static_cast<std::size_t>(s.nr() - 1)]->isChecked()) return s;
    return Sitz(1);
}

void Verteilungsdialog::sitzWaehlen(Sitz sitz) { sitze_[static_cast<std::size_t>(sitz.nr() - 1)]->setChecked(true); }

void Verteilungsdialog::stapelGeklickt(int index) {
    Sitz s = gewaehlterSitz();
    // A full hand passes the card on to the next seat that has room.
    for (int i = 0; i < 4 && verteilung_.voll(s); ++i) s = s.plus(1);
    verteilung_.geben(static_cast<std::size_t>(index), s);
    if (verteilung_.voll(s))
        for (int i = 0; i < 4 && verteilung_.voll(s); ++i) s = s.plus(1);
    sitzWaehlen(s);
    anzeigen();
}

void Verteilungsdialog::restZufaellig() {
    verteilung_.restZufaellig(zufall_);
    anzeigen();
}

void Verteilungsdialog::allesZuruecklegen() {
    verteilung_.allesZuruecklegen();
    sitzWaehlen(Sitz(1));
    anzeigen();
}

void Verteilungsdialog::anzeigen() {
    stapel_->setzeKarten(verteilung_.stapel());
    for (const Sitz s : engine::alleSitze) {
        const auto i = static_cast<std::size_t>(s.nr() - 1);
        haende_[i]->setzeKarten(verteilung_.hand(s));
        sitze_[i]->setText(QStringLiteral("%1 (%2/%3)")
                               .arg(QString::fromStdString(namen_[s]))
                               .arg(verteilung_.hand(s).size())
                               .arg(verteilung_.handgroesse()));
    }
    stand_->setText(QString::fromStdString(verteilung_.fehler()));
}

void Verteilungsdialog::accept() {
    const std::string fehler = verteilung_.fehler();
    if (!fehler.empty()) {
        QMessageBox::information(this, windowTitle(), QString::fromStdString(fehler));
        return;
    }
    QDialog::accept();
}

}  // namespace table

#include "Stichbetrachter.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "engine/Ansagen.h"
#include "Kartenbilder.h"
#include "Tischtexte.h"

namespace table {

std::string stichBeschreibung(const engine::StichProtokoll& stich, int nummer, const engine::ProSitz<std::string>& namen,
                              const engine::AnsagenImStich& ansagen) {
    std::string t = std::to_string(nummer) + texte::StichNummer + ": " + namen[stich.aufspieler] + texte::SpieltAus +
                    namen[stich.gewinner] + texte::Gewinnt + std::to_string(stich.augen) + texte::AugenKurz;
    if (ansagen.re) t += std::string("\n") + texte::ReAngesagt;
    if (ansagen.kontra) t += std::string("\n") + texte::KontraAngesagt;
    if (ansagen.limitSitz >= 1 && ansagen.limitSitz <= 4 && ansagen.limitCode >= 0)
        t += "\n" + namen[engine::Sitz(ansagen.limitSitz)] + ": " + engine::limitMenuetext(ansagen.limitCode);
    return t;
}

Stichbild::Stichbild(Kartenbilder& bilder, QWidget* parent) : QWidget(parent), bilder_(bilder) {}

void Stichbild::setzeStich(const engine::StichProtokoll* stich) {
    stich_ = stich;
    update();
}

void Stichbild::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setRenderHint(QPainter::SmoothPixmapTransform);
    maler.fillRect(rect(), QColor(70, 120, 70));
    if (!stich_) return;
    const qreal h = std::min(height() / 2.4, width() / 3.2 / bilder_.seitenverhaeltnis());
    const QSizeF karte(h * bilder_.seitenverhaeltnis(), h);
    const QPointF mitte = rect().center();
    for (int platz = 1; platz <= 4; ++platz) {
        const engine::Sitz sitz = stich_->aufspieler.plus(platz - 1);
        QPointF ort = mitte;
        switch (sitz.nr()) {
            case 1: ort += QPointF(0, h * 0.6); break;
            case 2: ort += QPointF(-karte.width() * 1.1, 0); break;
            case 3: ort += QPointF(0, -h * 0.6); break;
            default: ort += QPointF(karte.width() * 1.1, 0); break;
        }
        const QRectF rahmen(ort - QPointF(karte.width() / 2, karte.height() / 2), karte);
        maler.drawPixmap(rahmen, bilder_.vorderseite(stich_->codes[static_cast<std::size_t>(platz - 1)], karte,
                                                     devicePixelRatioF()),
                         QRectF());
        if (sitz == stich_->gewinner) {
            maler.setPen(QPen(QColor(255, 200, 0), 4));
            maler.setBrush(Qt::NoBrush);
            maler.drawRoundedRect(rahmen.adjusted(-2, -2, 2, 2), 8, 8);
        }
    }
}

Stichbetrachter::Stichbetrachter(Kartenbilder& bilder, QWidget* parent) : QDialog(parent) {
    setWindowTitle(QString::fromUtf8(texte::StichTitel));
    auto* spalte = new QVBoxLayout(this);
    bild_ = new Stichbild(bilder, this);
    spalte->addWidget(bild_, 1);
    text_ = new QLabel(this);
    spalte->addWidget(text_);
    auto* zeile = new QHBoxLayout;
    zurueck_ = new QPushButton(QString::fromUtf8(texte::Zurueck), this);
    weiter_ = new QPushButton(QString::fromUtf8(texte::Weiter), this);
    auto* schliessen = new QDialogButtonBox(QDialogButtonBox::Close, this);
    zeile->addWidget(zurueck_);
    zeile->addWidget(weiter_);
    zeile->addStretch();
    zeile->addWidget(schliessen);
    spalte->addLayout(zeile);
    connect(zurueck_, &QPushButton::clicked, this, [this] { blaettern(-1); });
    connect(weiter_, &QPushButton::clicked, this, [this] { blaettern(1); });
    connect(schliessen, &QDialogButtonBox::rejected, this, &QDialog::accept);
}

void Stichbetrachter::setzeStiche(const engine::Spiel& spiel, std::vector<engine::StichProtokoll> stiche, int zeigen) {
    namen_ = spiel.namen;
    ansagen_ = spiel.ansagenProStich;
    ersteNummer_ = static_cast<int>(spiel.stiche.size() - stiche.size()) + 1;
    stiche_ = std::move(stiche);
    index_ = std::clamp(zeigen, 0, std::max(0, anzahl() - 1));
    anzeigen();
}

void Stichbetrachter::blaettern(int schritt) {
    index_ = std::clamp(index_ + schritt, 0, std::max(0, anzahl() - 1));
    anzeigen();
}

QString Stichbetrachter::beschreibung() const { return text_->text(); }

void Stichbetrachter::anzeigen() {
    const bool leer = stiche_.empty();
    bild_->setzeStich(leer ? nullptr : &stiche_[static_cast<std::size_t>(index_)]);
    const int nummer = ersteNummer_ + index_;
    // The announcements of a trick are filed under the number of tricks completed before it.
    text_->setText(leer ? QString()
                        : QString::fromStdString(stichBeschreibung(stiche_[static_cast<std::size_t>(index_)], nummer, namen_,
                                                                   ansagen_[static_cast<std::size_t>(std::min(nummer - 1, 12))])));
    zurueck_->setEnabled(index_ > 0);
    weiter_->setEnabled(index_ + 1 < anzahl());
}

}  // namespace table

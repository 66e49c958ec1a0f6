#include "Einstellelemente.h"

#include <QButtonGroup>
#include <QColorDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QPainter>
#include <QRadioButton>
#include <array>

#include "Anzeigeoptionen.h"
#include "Einstelltexte.h"
#include "Kartenbilder.h"
#include "Qtext.h"
#include "engine/Karte.h"

namespace table {

QVBoxLayout* eingerueckt() {
    auto* spalte = new QVBoxLayout;
    spalte->setContentsMargins(16, 0, 0, 0);
    return spalte;
}

QGroupBox* gruppe(const char* titel, QWidget* eltern) { return new QGroupBox(t(titel), eltern); }

QSpinBox* zahlenfeld(const char* name, int von, int bis, QWidget* eltern) {
    auto* feld = new QSpinBox(eltern);
    feld->setObjectName(QString::fromUtf8(name));
    feld->setRange(von, bis);
    return feld;
}

QLineEdit* textfeld(const char* name, QWidget* eltern) {
    auto* feld = new QLineEdit(eltern);
    feld->setObjectName(QString::fromUtf8(name));
    return feld;
}

QLabel* hinweis(const char* text, QWidget* eltern) {
    auto* l = new QLabel(t(text), eltern);
    l->setWordWrap(true);
    QFont f = l->font();
    f.setItalic(true);
    l->setFont(f);
    return l;
}


Wahlgruppe::Wahlgruppe(QWidget* parent) : QWidget(parent), gruppe_(new QButtonGroup(this)), gitter_(new QGridLayout(this)) {
    gitter_->setContentsMargins(0, 0, 0, 0);
    connect(gruppe_, &QButtonGroup::idToggled, this, [this](int id, bool an) {
        if (an) emit geaendert(id);
    });
}

void Wahlgruppe::knopf(int wert, const QString& text, int zeile) {
    auto* k = new QRadioButton(text, this);
    gruppe_->addButton(k, wert);
    gitter_->addWidget(k, zeile, 0);
}

int Wahlgruppe::wert() const { return gruppe_->checkedId(); }

void Wahlgruppe::setzeWert(int wert) {
    // A value without a button of its own takes the last one (the file may say 1 for -1).
    QAbstractButton* k = gruppe_->button(wert);
    if (!k && !gruppe_->buttons().isEmpty()) k = gruppe_->buttons().constLast();
    if (k) k->setChecked(true);
}

Farbknopf::Farbknopf(QWidget* parent) : QPushButton(parent) {
    setMinimumWidth(90);
    connect(this, &QPushButton::clicked, this, &Farbknopf::waehlen);
    setzeWert(0);
}

void Farbknopf::setzeWert(int wert) {
    wert_ = wert;
    const QColor farbe = ausWindowsFarbe(wert);
    QPixmap muster(40, 16);
    muster.fill(farbe);
    setIcon(QIcon(muster));
    setIconSize(muster.size());
    setText(farbe.name().toUpper());
    emit geaendert(wert);
}

void Farbknopf::waehlen() {
    const QColor farbe =
        QColorDialog::getColor(ausWindowsFarbe(wert_), this, QString::fromUtf8(einstelltext::FarbeWaehlen));
    if (farbe.isValid()) setzeWert(zuWindowsFarbe(farbe));
}

namespace {
// Kreuz-Dame, Herz-Zehn, Karo-As, Pik-König, Herz-Bube: trumps and plain cards of both namings.
using namespace engine;
constexpr std::array<int, 5> Vorschaukarten{kartencode(Kreuz, Dame), kartencode(Herz, Zehn), kartencode(Karo, As),
                                            kartencode(Pik, Koenig), kartencode(Herz, Bube)};
constexpr int Kartenhoehe = 92;
}  // namespace

Kartenvorschau::Kartenvorschau(QWidget* parent) : QWidget(parent), bilder_(std::make_unique<Kartenbilder>()) {
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

Kartenvorschau::~Kartenvorschau() = default;

void Kartenvorschau::setzeKartenbild(int kartenbild) {
    bilder_->setzeKartenbild(kartenbild);
    update();
}

void Kartenvorschau::setzeRueckseite(int rueckseite) {
    rueckseite_ = rueckseite;
    update();
}

QSize Kartenvorschau::sizeHint() const {
    const int breite = static_cast<int>(Kartenhoehe * bilder_->seitenverhaeltnis());
    return {static_cast<int>(Vorschaukarten.size() + 1) * (breite / 2) + breite + 20, Kartenhoehe + 8};
}

void Kartenvorschau::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSizeF groesse(Kartenhoehe * bilder_->seitenverhaeltnis(), Kartenhoehe);
    const qreal dpr = devicePixelRatioF();
    qreal x = 4;
    for (int code : Vorschaukarten) {
        const QPixmap bild = bilder_->vorderseite(code, groesse, dpr);
        maler.drawPixmap(QRectF(QPointF(x, 4), groesse), bild, QRectF(bild.rect()));
        x += groesse.width() / 2;
    }
    x += groesse.width() / 2 + 16;
    const QPixmap ruecken = bilder_->rueckseite(rueckseite_, groesse, dpr);
    maler.drawPixmap(QRectF(QPointF(x, 4), groesse), ruecken, QRectF(ruecken.rect()));
}

}  // namespace table

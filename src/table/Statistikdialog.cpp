#include "Statistikdialog.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <cmath>

#include "Lerntexte.h"
#include "Qtext.h"
#include "engine/Kartentext.h"
#include "settings/Optionsdatei.h"

namespace table {

using engine::Sitz;

namespace {

const std::array<QColor, 4> Linienfarben{QColor(200, 40, 40), QColor(30, 90, 200), QColor(20, 140, 60), QColor(150, 80, 170)};

QString prozent(int teil, int ganzes) {
    return ganzes ? QString::number(std::lround(100.0 * teil / ganzes)) + QStringLiteral(" %") : QStringLiteral("–");
}

}  // namespace

QString quotenText(const Quote& q) {
    if (q.anzahl == 0) return QStringLiteral("0");
    return QStringLiteral("%1 (%2, %3)").arg(q.anzahl).arg(q.gewonnen).arg(prozent(q.gewonnen, q.anzahl));
}

Statistikspeicher::Statistikspeicher(QString pfad) : pfad_(std::move(pfad)) {}

QString Statistikspeicher::standardPfad() { return settings::konfigurationsordner() + QStringLiteral("/statistik.ini"); }

Statistik Statistikspeicher::laden() const {
    const auto bytes = settings::dateiBytes(pfad_);
    return bytes ? Statistik::ausText(*bytes) : Statistik{};
}

bool Statistikspeicher::speichern(const Statistik& statistik) const { return settings::atomarSchreiben(pfad_, statistik.text()); }

bool Statistikspeicher::loeschen() const { return !QFile::exists(pfad_) || QFile::remove(pfad_); }

Punkteverlauf::Punkteverlauf(QWidget* parent) : QWidget(parent) { setObjectName(QStringLiteral("punkteverlauf")); }

void Punkteverlauf::setzeVerlauf(const Partieverlauf& verlauf, const QString& titel) {
    verlauf_ = verlauf;
    titel_ = titel;
    update();
}

void Punkteverlauf::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.fillRect(rect(), palette().base());
    const QFontMetrics fm = maler.fontMetrics();
    maler.setPen(palette().text().color());
    maler.drawText(QRectF(0, 2, width(), fm.height()), Qt::AlignHCenter, titel_);
    const int n = static_cast<int>(verlauf_.staende.size());
    if (n == 0) return;

    int tief = 0, hoch = 1;
    for (const auto& stand : verlauf_.staende)
        for (int p : stand) {
            tief = std::min(tief, p);
            hoch = std::max(hoch, p);
        }
    const QRectF feld(fm.horizontalAdvance(QStringLiteral("-0000")) + 8, fm.height() * 2 + 4,
                      width() - fm.horizontalAdvance(QStringLiteral("-0000")) - 20, height() - fm.height() * 4 - 12);
    auto punkt = [&](int spiel, int wert) {
        return QPointF(feld.left() + feld.width() * spiel / std::max(1, n),
                       feld.bottom() - feld.height() * (wert - tief) / double(hoch - tief));
    };
    // Axes with a few round marks.
    maler.setPen(QPen(palette().mid().color(), 1));
    maler.drawRect(feld);
    const int stufe = std::max(1, static_cast<int>(std::pow(10.0, std::floor(std::log10(std::max(1, hoch - tief))))));
    for (int w = (tief / stufe) * stufe; w <= hoch; w += stufe) {
        const QPointF p = punkt(0, w);
        maler.setPen(QPen(palette().midlight().color(), 1, w == 0 ? Qt::SolidLine : Qt::DotLine));
        maler.drawLine(QPointF(feld.left(), p.y()), QPointF(feld.right(), p.y()));
        maler.setPen(palette().text().color());
        maler.drawText(QRectF(0, p.y() - fm.height() / 2.0, feld.left() - 4, fm.height()), Qt::AlignRight | Qt::AlignVCenter,
                       QString::number(w));
    }
    const int xstufe = std::max(1, n / 12);
    for (int s = 0; s <= n; s += xstufe)
        maler.drawText(QRectF(punkt(s, tief).x() - 20, feld.bottom() + 2, 40, fm.height()), Qt::AlignHCenter, QString::number(s));

    // One line per seat from 0 before the first game; the legend below.
    qreal legendeX = feld.left();
    for (const Sitz s : engine::alleSitze) {
        const QColor farbe = Linienfarben[static_cast<std::size_t>(s.nr() - 1)];
        QPainterPath linie(punkt(0, 0));
        for (int i = 0; i < n; ++i) linie.lineTo(punkt(i + 1, verlauf_.staende[static_cast<std::size_t>(i)][s]));
        maler.setPen(QPen(farbe, 2.5));
        maler.setBrush(Qt::NoBrush);
        maler.drawPath(linie);
        const QString name = t(verlauf_.namen[s]) + QStringLiteral(" (") +
                             QString::number(verlauf_.staende.back()[s]) + QLatin1Char(')');
        const qreal y = height() - fm.height() - 2;
        maler.fillRect(QRectF(legendeX, y + fm.height() / 2.0 - 2, 14, 4), farbe);
        maler.setPen(palette().text().color());
        maler.drawText(QPointF(legendeX + 18, y + fm.ascent()), name);
        legendeX += 18 + fm.horizontalAdvance(name) + 16;
    }
}

Statistikdialog::Statistikdialog(const Statistikspeicher& speicher, const Partieverlauf& laufend, bool franzoesisch,
                                 QWidget* parent)
    : QDialog(parent), speicher_(speicher), statistik_(speicher.laden()), laufend_(laufend), franzoesisch_(franzoesisch) {
    setObjectName(QStringLiteral("statistik"));
    setWindowTitle(t(lerntext::StatistikTitel));
    auto* spalte = new QVBoxLayout(this);
    leer_ = new QLabel(t(lerntext::KeineStatistik), this);
    spalte->addWidget(leer_);
    tabelle_ = new QTableWidget(this);
    tabelle_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabelle_->setSelectionMode(QAbstractItemView::NoSelection);
    tabelle_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    tabelle_->setFocusPolicy(Qt::NoFocus);
    spalte->addWidget(tabelle_, 3);
    verlauf_ = new Punkteverlauf(this);
    spalte->addWidget(verlauf_, 2);
    auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* reset = knoepfe->addButton(t(lerntext::Zuruecksetzen), QDialogButtonBox::ResetRole);
    reset->setObjectName(QStringLiteral("statistik_zuruecksetzen"));
    connect(reset, &QPushButton::clicked, this, &Statistikdialog::zuruecksetzen);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::accept);
    spalte->addWidget(knoepfe);
    resize(760, 620);
    anzeigen();
}

void Statistikdialog::anzeigen() {
    const auto& spieler = statistik_.spieler;
    leer_->setVisible(spieler.empty());
    // A row per figure, a column per name; solo kinds only where someone played one.
    std::vector<std::pair<QString, std::function<QString(const Spielerstatistik&)>>> zeilen{
        {t(lerntext::Partien), [](const Spielerstatistik& s) { return QString::number(s.partien); }},
        {t(lerntext::Spiele), [](const Spielerstatistik& s) { return quotenText(s.spiele); }},
        {t(lerntext::PunkteJeSpiel), [](const Spielerstatistik& s) { return QString::number(s.punkteJeSpiel(), 'f', 2); }},
        {t(lerntext::ReSpiele), [](const Spielerstatistik& s) { return quotenText(s.re); }},
        {t(lerntext::KontraSpiele), [](const Spielerstatistik& s) { return quotenText(s.kontra); }},
        {t(lerntext::Hochzeiten), [](const Spielerstatistik& s) { return quotenText(s.hochzeiten); }},
        {t(lerntext::Ansagen), [](const Spielerstatistik& s) { return quotenText(s.ansagen); }},
        {t(lerntext::BestePartie),
         [](const Spielerstatistik& s) { return s.bestePartie ? QString::number(*s.bestePartie) : QStringLiteral("–"); }},
        {t(lerntext::SchlechtestePartie),
         [](const Spielerstatistik& s) { return s.schlechtestePartie ? QString::number(*s.schlechtestePartie) : QStringLiteral("–"); }},
    };
    for (std::size_t art = 0; art < 9; ++art) {
        const bool gespielt = std::any_of(spieler.begin(), spieler.end(), [&](const auto& s) { return s.solos[art].anzahl > 0; });
        if (!gespielt) continue;
        const QString name = art == 0 ? t(lerntext::StillesSoloKurz) : t(engine::soloName(static_cast<int>(art), franzoesisch_));
        zeilen.emplace_back(name, [art](const Spielerstatistik& s) { return quotenText(s.solos[art]); });
    }
    tabelle_->clear();
    tabelle_->setRowCount(static_cast<int>(zeilen.size()));
    tabelle_->setColumnCount(static_cast<int>(spieler.size()));
    QStringList kopf, namen;
    for (const auto& [name, wert] : zeilen) kopf << name;
    for (std::size_t c = 0; c < spieler.size(); ++c) {
        namen << t(spieler[c].name);
        for (std::size_t r = 0; r < zeilen.size(); ++r) {
            auto* zelle = new QTableWidgetItem(zeilen[r].second(spieler[c]));
            zelle->setTextAlignment(Qt::AlignCenter);
            tabelle_->setItem(static_cast<int>(r), static_cast<int>(c), zelle);
        }
    }
    tabelle_->setVerticalHeaderLabels(kopf);
    tabelle_->setHorizontalHeaderLabels(namen);
    const bool laeuft = !laufend_.staende.empty();
    verlauf_->setzeVerlauf(laeuft ? laufend_ : statistik_.letztePartie,
                           t(lerntext::Verlauf) + t(laeuft ? lerntext::LaufendePartie : lerntext::LetztePartie));
}

void Statistikdialog::zuruecksetzen() {
    if (QMessageBox::question(this, windowTitle(), t(lerntext::ZuruecksetzenFrage), QMessageBox::Yes | QMessageBox::No,
                              QMessageBox::No) != QMessageBox::Yes)
        return;
    speicher_.loeschen();
    statistik_ = {};
    anzeigen();
}

}  // namespace table

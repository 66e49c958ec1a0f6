#include "Spielverlaufdialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "Kartenbilder.h"
#include "Lerntexte.h"
#include "Qtext.h"
#include "Tischtexte.h"
#include "engine/Kartentext.h"

namespace table {

using engine::Sitz;

namespace {

QString html(const std::string& text) { return t(text).toHtmlEscaped(); }

// A name plate: the name and the party the seat played for.
void schildMalen(QPainter& maler, const QRectF& r, const QString& name, const QString& partei) {
    maler.setPen(Qt::NoPen);
    maler.setBrush(QColor(255, 255, 255, 200));
    maler.drawRoundedRect(r, 6, 6);
    maler.setPen(Qt::black);
    QFont f = maler.font();
    f.setBold(true);
    f.setPixelSize(static_cast<int>(std::clamp(r.height() * 0.5, 10.0, 16.0)));
    maler.setFont(f);
    const QString text = partei.isEmpty() ? name : name + QStringLiteral(" · ") + partei;
    maler.drawText(r.adjusted(6, 0, -6, 0), Qt::AlignCenter, maler.fontMetrics().elidedText(text, Qt::ElideRight, static_cast<int>(r.width() - 12)));
}

void rahmenMalen(QPainter& maler, const QRectF& r, const QColor& farbe) {
    maler.setPen(QPen(farbe, 3));
    maler.setBrush(Qt::NoBrush);
    maler.drawRoundedRect(r.adjusted(-1.5, -1.5, 1.5, 1.5), 5, 5);
}

}  // namespace

Verlaufsbild::Verlaufsbild(Kartenbilder& bilder, const engine::Spiel& spiel, QWidget* parent)
    : QWidget(parent), bilder_(bilder), spiel_(spiel) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Verlaufsbild::setzeSchritt(const Verlaufsschritt* schritt) {
    schritt_ = schritt;
    update();
}

void Verlaufsbild::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setRenderHint(QPainter::SmoothPixmapTransform);
    maler.fillRect(rect(), QColor(70, 120, 70));
    if (!schritt_) return;
    const qreal rand = 8;
    const qreal W = width(), H = height();
    const qreal verhaeltnis = bilder_.seitenverhaeltnis();
    const qreal schildHoehe = std::clamp(H * 0.055, 20.0, 26.0);
    // Four rows: seat 3 at the top, seat 1 at the bottom, seats 2 and 4 left and right
    // of the trick. The trick needs 1.84 card heights between the top and bottom rows;
    // a side row of twelve needs 1 + 11 * 0.4 card widths beside the trick.
    const qreal kh = std::min((H - 4 * rand) / 3.9, (W / 2 - 3 * rand) / (verhaeltnis * (1 + 11 * 0.4 + 1.3)));
    const QSizeF karte(kh * verhaeltnis, kh);
    const qreal dpr = devicePixelRatioF();

    // The card each seat plays in this trick.
    engine::ProSitz<int> gespielt(0);
    for (const Verlaufskarte& k : schritt_->karten) gespielt[k.sitz] = k.pos;

    auto kartenrechteck = [&](QPointF mitte) { return QRectF(mitte - QPointF(karte.width() / 2, kh / 2), karte); };
    auto karteMalen = [&](const QRectF& r, int pos) {
        maler.drawPixmap(r, bilder_.vorderseite(spiel_.deck[pos].code, karte, dpr), QRectF());
    };

    const qreal schritt = karte.width() * 0.4;
    const qreal reihe = karte.width() + 11 * schritt;  // a full hand
    for (const Sitz s : engine::alleSitze) {
        const std::vector<int>& hand = schritt_->haende[s];
        const int n = static_cast<int>(hand.size());
        // Left end and vertical centre of the row, and where the name plate goes.
        qreal x0 = 0, y = 0;
        QRectF schild;
        const qreal sb = std::clamp(W / 2 - reihe / 2 - 3 * rand, 90.0, 220.0);
        switch (s.nr()) {
            case 1:
                x0 = W / 2 - reihe / 2;
                y = H - rand - kh / 2;
                schild = QRectF(rand, H - rand - schildHoehe, sb, schildHoehe);
                break;
            case 3:
                x0 = W / 2 - reihe / 2;
                y = rand + kh / 2;
                schild = QRectF(rand, rand, sb, schildHoehe);
                break;
            case 2:
                x0 = rand;
                y = H / 2;
                schild = QRectF(rand, y - kh / 2 - rand - schildHoehe, std::min(sb, reihe), schildHoehe);
                break;
            default:
                x0 = W - rand - reihe;
                y = H / 2;
                schild = QRectF(W - rand - std::min(sb, reihe), y - kh / 2 - rand - schildHoehe, std::min(sb, reihe), schildHoehe);
                break;
        }
        for (int i = 0; i < n; ++i) {
            const int pos = hand[static_cast<std::size_t>(i)];
            // The card played in this trick stands out towards the middle.
            const qreal heraus = pos == gespielt[s] ? kh * 0.14 : 0;
            const QPointF versatz(0, s.nr() == 1 ? -heraus : heraus);
            const QRectF r = kartenrechteck(QPointF(x0 + karte.width() / 2 + i * schritt, y) + versatz);
            karteMalen(r, pos);
            if (pos == gespielt[s]) rahmenMalen(maler, r, QColor(255, 200, 0));
        }
        const int partei = spiel_.partei[s];
        const QString parteiText = partei == engine::ParteiSolo || partei == engine::ParteiRe ? t(lerntext::Re)
                                   : partei == engine::ParteiKontra                          ? t(lerntext::Kontra)
                                                                                             : QString();
        schildMalen(maler, schild, QString::fromStdString(spiel_.namen[s]), parteiText);
    }

    // The trick in the middle, each card at its seat's side, the winner's framed.
    const QPointF mitte(W / 2, H / 2);
    for (const Verlaufskarte& k : schritt_->karten) {
        QPointF ort = mitte;
        switch (k.sitz.nr()) {
            case 1: ort += QPointF(0, kh * 0.42); break;
            case 2: ort += QPointF(-karte.width() * 0.75, 0); break;
            case 3: ort += QPointF(0, -kh * 0.42); break;
            default: ort += QPointF(karte.width() * 0.75, 0); break;
        }
        const QRectF r = kartenrechteck(ort);
        karteMalen(r, k.pos);
        if (schritt_->gewinner == k.sitz) rahmenMalen(maler, r, QColor(255, 170, 0));
    }
}

Spielverlaufdialog::Spielverlaufdialog(Kartenbilder& bilder, const engine::Spiel& spiel,
                                       const players::Spielbegruendungen& gruende, QWidget* parent)
    : QDialog(parent), spiel_(spiel), franzoesisch_(bilder.franzoesisch()) {
    setObjectName(QStringLiteral("spielverlauf"));
    setWindowTitle(t(lerntext::VerlaufTitel));
    schritte_ = spielverlauf(spiel, gruende, franzoesisch_);
    auto* spalte = new QVBoxLayout(this);
    bild_ = new Verlaufsbild(bilder, spiel_, this);
    spalte->addWidget(bild_, 5);
    text_ = new QTextBrowser(this);
    // The arrow keys page through the game, not through the text.
    text_->setFocusPolicy(Qt::NoFocus);
    text_->setMinimumHeight(110);
    spalte->addWidget(text_, 2);

    auto* zeile = new QHBoxLayout;
    anfang_ = new QPushButton(t(lerntext::Anfang), this);
    zurueck_ = new QPushButton(t(texte::Zurueck), this);
    stand_ = new QLabel(this);
    stand_->setAlignment(Qt::AlignCenter);
    stand_->setMinimumWidth(110);
    weiter_ = new QPushButton(t(texte::Weiter), this);
    ende_ = new QPushButton(t(lerntext::Ende), this);
    auto* schliessen = new QDialogButtonBox(QDialogButtonBox::Close, this);
    for (QPushButton* k : {anfang_, zurueck_}) zeile->addWidget(k);
    zeile->addWidget(stand_);
    for (QPushButton* k : {weiter_, ende_}) zeile->addWidget(k);
    zeile->addStretch();
    zeile->addWidget(schliessen);
    spalte->addLayout(zeile);
    for (QPushButton* k : {anfang_, zurueck_, weiter_, ende_}) k->setAutoDefault(false);

    connect(anfang_, &QPushButton::clicked, this, [this] { gehe(0); });
    connect(zurueck_, &QPushButton::clicked, this, [this] { gehe(index_ - 1); });
    connect(weiter_, &QPushButton::clicked, this, [this] { gehe(index_ + 1); });
    connect(ende_, &QPushButton::clicked, this, [this] { gehe(anzahl() - 1); });
    connect(schliessen, &QDialogButtonBox::rejected, this, &QDialog::accept);
    const std::pair<QKeySequence, int> tasten[] = {
        {QKeySequence(Qt::Key_Left), -1}, {QKeySequence(Qt::Key_Up), -1},  {QKeySequence(Qt::Key_PageUp), -1},
        {QKeySequence(Qt::Key_Right), 1}, {QKeySequence(Qt::Key_Down), 1}, {QKeySequence(Qt::Key_PageDown), 1},
        {QKeySequence(Qt::Key_Space), 1}};
    for (const auto& [taste, schritt] : tasten)
        connect(new QShortcut(taste, this), &QShortcut::activated, this, [this, s = schritt] { gehe(index_ + s); });
    connect(new QShortcut(QKeySequence(Qt::Key_Home), this), &QShortcut::activated, this, [this] { gehe(0); });
    connect(new QShortcut(QKeySequence(Qt::Key_End), this), &QShortcut::activated, this, [this] { gehe(anzahl() - 1); });
    resize(1000, 760);
    anzeigen();
}

void Spielverlaufdialog::gehe(int index) {
    index_ = std::clamp(index, 0, anzahl() - 1);
    anzeigen();
}

QString Spielverlaufdialog::text() const { return text_->toPlainText(); }

void Spielverlaufdialog::anzeigen() {
    const Verlaufsschritt& s = aktuell();
    bild_->setzeSchritt(&s);
    QString inhalt = QStringLiteral("<p><b>") + html(s.ueberschrift) + QStringLiteral("</b></p>");
    for (const std::string& z : s.zeilen) inhalt += QStringLiteral("<div>") + html(z) + QStringLiteral("</div>");
    if (!s.karten.empty()) inhalt += QStringLiteral("<p>");
    for (const Verlaufskarte& k : s.karten) {
        inhalt += QStringLiteral("<div><b>") + html(spiel_.namen[k.sitz]) + QStringLiteral(":</b> ") +
                  html(engine::kartenname(spiel_.deck[k.pos].code, franzoesisch_));
        const bool computer = spiel_.steuerung[k.sitz] == engine::Steuerung::Computer;
        if (!k.gruende.empty()) {
            for (const std::string& g : k.gruende) inhalt += QStringLiteral(" — ") + html(g);
        } else if (computer) {
            inhalt += QStringLiteral(" — <i>") + html(lerntext::KeinGrund) + QStringLiteral("</i>");
        }
        inhalt += QStringLiteral("</div>");
    }
    text_->setHtml(inhalt);
    stand_->setText(t(lerntext::Schritt) + QString::number(index_ + 1) + t(lerntext::Von) + QString::number(anzahl()));
    anfang_->setEnabled(index_ > 0);
    zurueck_->setEnabled(index_ > 0);
    weiter_->setEnabled(index_ + 1 < anzahl());
    ende_->setEnabled(index_ + 1 < anzahl());
}

}  // namespace table

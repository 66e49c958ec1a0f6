#include "Tischansicht.h"

#include <QKeyEvent>
#include <QTimer>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <algorithm>

#include "Handordnung.h"
#include "Kartenbilder.h"
#include "Parteizeiger.h"
#include "Spielanzeige.h"
#include "Tischtexte.h"
#include "engine/Stichspiel.h"

namespace table {

using engine::Sitz;

namespace {

// Number keys choose the n-th card from the left: 1..9, 0 for the tenth, then the
// two keys right of the 0 on German and English keyboards.
int kartennummerVonTaste(int taste) {
    if (taste >= Qt::Key_1 && taste <= Qt::Key_9) return taste - Qt::Key_1 + 1;
    switch (taste) {
        case Qt::Key_0: return 10;
        case Qt::Key_ssharp:
        case Qt::Key_Minus: return 11;
        case Qt::Key_acute:
        case Qt::Key_Dead_Acute:
        case Qt::Key_Equal:
        case Qt::Key_Apostrophe: return 12;
        default: return 0;
    }
}

}  // namespace

Tischansicht::Tischansicht(Kartenbilder& bilder, QWidget* parent) : QWidget(parent), bilder_(bilder) {
    animation_ = new QVariantAnimation(this);
    animation_->setStartValue(0.0);
    animation_->setEndValue(1.0);
    animation_->setEasingCurve(QEasingCurve::OutCubic);
    connect(animation_, &QVariantAnimation::valueChanged, this, [this](const QVariant& wert) {
        if (bewegung_) bewegung_->fortschritt = wert.toReal();
        update();
    });
    connect(animation_, &QVariantAnimation::finished, this, [this] {
        if (bewegung_ && bewegung_->ausblenden) stichSichtbar_ = false;
        bewegung_.reset();
        update();
        emit bewegungFertig();
    });
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    bilder_.setzeKartenbild(optionen_.kartenbild);
}

void Tischansicht::setzeOptionen(const Anzeigeoptionen& optionen) {
    optionen_ = optionen;
    bilder_.setzeKartenbild(optionen.kartenbild);
    update();
}

void Tischansicht::setzeSpiel(const engine::Spiel* spiel) {
    spiel_ = spiel;
    neuZeichnen();
}

void Tischansicht::setzeAmZug(std::optional<Sitz> sitz) {
    amZug_ = sitz;
    update();
}

void Tischansicht::setzeKartenwahl(bool an) {
    kartenwahl_ = an;
    update();
}

void Tischansicht::setzeParteibilder(const engine::ProSitz<int>& bilder) {
    parteibilder_ = bilder;
    update();
}

void Tischansicht::setzeStichSichtbar(bool sichtbar) {
    stichSichtbar_ = sichtbar;
    update();
}

void Tischansicht::setzeOffeneHaende(bool an) {
    offeneHaende_ = an;
    neuZeichnen();
}

bool Tischansicht::bewegtSich() const { return bewegung_.has_value(); }

void Tischansicht::bewegungAbbrechen() {
    ++bewegungNr_;
    animation_->stop();
    bewegung_.reset();
    update();
}

void Tischansicht::karteFliegen(int pos, Sitz sitz) {
    const Tischlayout l = layout();
    Kartenplatz von{l.handmitte(sitz), sitz.nr() == 2 ? 90.0 : sitz.nr() == 4 ? -90.0 : 0.0};
    // The own card starts where it lay in the fan; the fan is still the old one here.
    const auto plaetze = handplaetze(l);
    for (std::size_t i = 0; i < handfolge_.size(); ++i)
        if (handfolge_[i] == pos) von = plaetze[i];
    if (offeneHaende_ && sitz.nr() != 1) {
        const std::vector<int>& folge = offeneFolge_[sitz];
        const auto offen = l.offeneHand(sitz, static_cast<int>(folge.size()));
        for (std::size_t i = 0; i < folge.size(); ++i)
            if (folge[i] == pos) von = offen[i];
    }
    handAktualisieren();
    stichSichtbar_ = true;
    bewegen({pos}, {von}, {l.stichplatz(sitz)}, false);
}

void Tischansicht::setzeBewegungsdauer(int flugMs, int einsammelnMs) {
    flugMs_ = std::max(0, flugMs);
    einsammelnMs_ = std::max(0, einsammelnMs);
}

void Tischansicht::stichEinsammeln(Sitz gewinner) {
    std::vector<int> karten;
    std::vector<Kartenplatz> von, nach;
    if (spiel_) {
        const Tischlayout l = layout();
        const engine::Stich& stich = spiel_->stich;
        for (int platz = 1; platz <= stich.anzahl; ++platz) {
            karten.push_back(stich.karte(platz));
            von.push_back(l.stichplatz(stich.sitzAn(platz)));
            nach.push_back({l.handmitte(gewinner), von.back().winkel});
        }
    }
    bewegen(std::move(karten), std::move(von), std::move(nach), true);
}

void Tischansicht::bewegen(std::vector<int> karten, std::vector<Kartenplatz> von, std::vector<Kartenplatz> nach,
                           bool ausblenden) {
    animation_->stop();
    bewegung_ = Bewegung{std::move(karten), std::move(von), std::move(nach), ausblenden, 0};
    animation_->setDuration(optionen_.animation ? (ausblenden ? einsammelnMs_ : flugMs_) : 0);
    // A zero duration still finishes through the event loop, so callers see one order of events.
    const int nr = ++bewegungNr_;
    QTimer::singleShot(0, animation_, [this, nr] {
        if (nr == bewegungNr_) animation_->start();
    });
    update();
}

void Tischansicht::neuZeichnen() {
    handAktualisieren();
    update();
}

void Tischansicht::handAktualisieren() {
    handfolge_ = spiel_ ? sortierteHand(*spiel_, Sitz(1)) : std::vector<int>{};
    for (const Sitz s : engine::alleSitze)
        offeneFolge_[s] = spiel_ && offeneHaende_ && s.nr() != 1 ? sortierteHand(*spiel_, s) : std::vector<int>{};
    if (std::find(handfolge_.begin(), handfolge_.end(), ausgewaehlt_) == handfolge_.end()) ausgewaehlt_ = 0;
}

qreal Tischansicht::massstab() const {
    const QSize minimum = minimumSizeHint();
    return std::min({1.0, static_cast<qreal>(width()) / minimum.width(), static_cast<qreal>(height()) / minimum.height()});
}

Tischlayout Tischansicht::layout() const {
    return Tischlayout(QSizeF(size()) / std::max<qreal>(massstab(), 0.05), bilder_.seitenverhaeltnis());
}

int Tischansicht::stichgewinnerKarte() const {
    if (!spiel_ || spiel_->ablauf.phase != engine::Spielphase::StichVoll || spiel_->stiche.empty()) return 0;
    const engine::Stich& stich = spiel_->stich;
    for (int platz = 1; platz <= stich.anzahl; ++platz)
        if (stich.sitzAn(platz) == spiel_->stiche.back().gewinner) return stich.karte(platz);
    return 0;
}

bool Tischansicht::erlaubt(int pos) const { return spiel_ && engine::karteErlaubt(*spiel_, Sitz(1), pos); }

// The fan with the legal cards lifted while a card is to be chosen.
std::vector<Kartenplatz> Tischansicht::handplaetze(const Tischlayout& layout) const {
    std::vector<Kartenplatz> plaetze = layout.hand(static_cast<int>(handfolge_.size()));
    if (!kartenwahl_) return plaetze;
    for (std::size_t i = 0; i < plaetze.size(); ++i) {
        const int pos = handfolge_[i];
        if (!erlaubt(pos) && pos != ausgewaehlt_) continue;
        plaetze[i].mitte.ry() -= layout.anhebung(pos == ausgewaehlt_);
    }
    return plaetze;
}

QPointF Tischansicht::kartenmitte(int pos) const {
    const Tischlayout l = layout();
    const auto plaetze = handplaetze(l);
    for (std::size_t i = 0; i < handfolge_.size(); ++i) {
        if (handfolge_[i] != pos) continue;
        // A point in the card's visible strip: left of centre, where the next card does not cover it.
        const qreal frei = i + 1 < plaetze.size() ? (plaetze[i + 1].mitte.x() - plaetze[i].mitte.x()) / 2 : 0;
        return (plaetze[i].mitte + QPointF(-l.kartengroesse().width() / 2 + std::max<qreal>(frei, 4), 0)) * massstab();
    }
    return {};
}

QPointF Tischansicht::stichmitte() const { return layout().stichflaeche().center() * massstab(); }

int Tischansicht::karteBei(QPointF punkt) const {
    punkt /= massstab();
    const Tischlayout l = layout();
    const auto plaetze = handplaetze(l);
    // The later card lies on top.
    for (std::size_t i = plaetze.size(); i-- > 0;)
        if (umriss(plaetze[i], l.kartengroesse()).containsPoint(punkt, Qt::OddEvenFill)) return handfolge_[i];
    return 0;
}

void Tischansicht::waehlen(int pos) {
    if (!kartenwahl_ || pos == 0) return;
    emit karteGewaehlt(pos);
}

void Tischansicht::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
    const QPointF punkt = event->position();
    if (const int pos = karteBei(punkt)) {
        waehlen(pos);
        return;
    }
    if (layout().stichflaeche().contains(punkt / massstab())) emit stichGeklickt();
}

void Tischansicht::mouseMoveEvent(QMouseEvent* event) {
    if (!kartenwahl_) return;
    const int pos = karteBei(event->position());
    if (pos != ausgewaehlt_ && pos != 0) {
        ausgewaehlt_ = pos;
        update();
    }
}

void Tischansicht::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
}

void Tischansicht::keyPressEvent(QKeyEvent* event) {
    if (!kartenwahl_ || handfolge_.empty()) return QWidget::keyPressEvent(event);
    const int n = static_cast<int>(handfolge_.size());
    const auto it = std::find(handfolge_.begin(), handfolge_.end(), ausgewaehlt_);
    const int index = it == handfolge_.end() ? -1 : static_cast<int>(it - handfolge_.begin());
    auto setze = [&](int i) {
        ausgewaehlt_ = handfolge_[static_cast<std::size_t>((i % n + n) % n)];
        update();
    };
    switch (event->key()) {
        case Qt::Key_Left: setze(index < 0 ? n - 1 : index - 1); return;
        case Qt::Key_Right: setze(index < 0 ? 0 : index + 1); return;
        case Qt::Key_Home: setze(0); return;
        case Qt::Key_End: setze(n - 1); return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space: waehlen(ausgewaehlt_); return;
        default: break;
    }
    const int nummer = kartennummerVonTaste(event->key());
    if (nummer >= 1 && nummer <= n) {
        waehlen(handfolge_[static_cast<std::size_t>(nummer - 1)]);
        return;
    }
    QWidget::keyPressEvent(event);
}

// --- Painting.

void Tischansicht::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setRenderHint(QPainter::SmoothPixmapTransform);
    maler.setRenderHint(QPainter::TextAntialiasing);
    tischMalen(maler);
    if (!spiel_) return;
    maler.scale(massstab(), massstab());
    const Tischlayout l = layout();
    spieleckeMalen(maler, l);
    for (const Sitz s : engine::alleSitze) {
        sitzMalen(maler, l, s);
        ansagenMalen(maler, l, s);
    }
    if (stichSichtbar_) stichMalen(maler, l);
    handMalen(maler, l);
    if (bewegung_) bewegungMalen(maler, l);
}

void Tischansicht::bewegungMalen(QPainter& maler, const Tischlayout& l) const {
    const qreal t = bewegung_->fortschritt;
    for (std::size_t i = 0; i < bewegung_->karten.size(); ++i) {
        const Kartenplatz& a = bewegung_->von[i];
        const Kartenplatz& b = bewegung_->nach[i];
        const Kartenplatz jetzt{a.mitte + (b.mitte - a.mitte) * t, a.winkel + (b.winkel - a.winkel) * t};
        // A collected trick shrinks towards its winner.
        const QSizeF groesse = bewegung_->ausblenden ? l.kartengroesse() * (1 - 0.4 * t) : l.kartengroesse();
        maler.setOpacity(bewegung_->ausblenden ? 1 - 0.6 * t : 1);
        karteMalen(maler, jetzt, groesse,
                   bilder_.vorderseite(spiel_->deck[bewegung_->karten[i]].code, l.kartengroesse(), devicePixelRatioF()));
    }
    maler.setOpacity(1);
}

// Felt: the chosen colour, a little lighter in the middle.
void Tischansicht::tischMalen(QPainter& maler) const {
    const QColor grund = ausWindowsFarbe(optionen_.hintergrund);
    const QRectF r = rect();
    QRadialGradient verlauf(r.center(), std::max(r.width(), r.height()) * 0.7);
    verlauf.setColorAt(0, grund.lighter(118));
    verlauf.setColorAt(1, grund.darker(135));
    maler.fillRect(r, verlauf);
}

void Tischansicht::karteMalen(QPainter& maler, const Kartenplatz& platz, QSizeF groesse, const QPixmap& bild) const {
    maler.save();
    maler.translate(platz.mitte);
    maler.rotate(platz.winkel);
    const QRectF rahmen(QPointF(-groesse.width() / 2, -groesse.height() / 2), groesse);
    const qreal radius = groesse.width() * 0.07;
    maler.setPen(Qt::NoPen);
    maler.setBrush(QColor(0, 0, 0, 60));
    maler.drawRoundedRect(rahmen.translated(groesse.width() * 0.025, groesse.width() * 0.035), radius, radius);
    maler.drawPixmap(rahmen, bild, QRectF(bild.rect()));
    maler.restore();
}

void Tischansicht::sitzMalen(QPainter& maler, const Tischlayout& l, Sitz sitz) const {
    const qreal dpr = devicePixelRatioF();
    const int anzahl = kartenInHand(*spiel_, sitz);
    if (sitz.nr() != 1 && offeneHaende_) {
        offeneHandMalen(maler, l, sitz);
    } else if (sitz.nr() != 1) {
        const auto plaetze = l.verdeckteHand(sitz, anzahl);
        const QPixmap ruecken = bilder_.rueckseite(optionen_.rueckseite, l.kleineKarte(), dpr);
        for (const auto& p : plaetze) karteMalen(maler, p, l.kleineKarte(), ruecken);
        if (!plaetze.empty()) {
            // The count sits on the last card.
            const qreal d = l.kleineKarte().width() * 0.42;
            const QRectF marke(plaetze.back().mitte - QPointF(d / 2, d / 2), QSizeF(d, d));
            maler.setPen(QPen(Qt::white, 2));
            maler.setBrush(QColor(30, 30, 30, 200));
            maler.drawEllipse(marke);
            QFont f = font();
            f.setBold(true);
            f.setPixelSize(std::max(9, static_cast<int>(d * 0.5)));
            maler.setFont(f);
            maler.drawText(marke, Qt::AlignCenter, QString::number(anzahl));
        }
    }

    const QRectF schild = l.namensschild(sitz);
    const bool amZug = amZug_ == sitz;
    maler.setPen(QPen(amZug ? QColor(150, 90, 0) : QColor(0, 0, 0, 90), amZug ? 3 : 1));
    maler.setBrush(amZug ? QColor(255, 214, 90, 240) : QColor(255, 255, 255, 170));
    maler.drawRoundedRect(schild, 8, 8);
    const QColor schrift = ausWindowsFarbe(optionen_.vordergrund);
    maler.setPen(schrift);
    QFont f = font();
    f.setBold(true);
    f.setPixelSize(std::max(10, static_cast<int>(schild.height() * 0.3)));
    maler.setFont(f);
    const QRectF innen = schild.adjusted(10, 4, -10, -4);
    const QString name = QString::fromStdString(spiel_->namen[sitz]);
    if (optionen_.augenZeigen) {
        maler.drawText(QRectF(innen.left(), innen.top(), innen.width(), innen.height() / 2), Qt::AlignLeft | Qt::AlignVCenter,
                       maler.fontMetrics().elidedText(name, Qt::ElideRight, static_cast<int>(innen.width())));
        f.setBold(false);
        maler.setFont(f);
        maler.drawText(QRectF(innen.left(), innen.center().y(), innen.width(), innen.height() / 2),
                       Qt::AlignLeft | Qt::AlignVCenter, QString::fromUtf8(texte::Augen) + QString::number(spiel_->augen[sitz]));
    } else {
        maler.drawText(innen, Qt::AlignLeft | Qt::AlignVCenter,
                       maler.fontMetrics().elidedText(name, Qt::ElideRight, static_cast<int>(innen.width())));
    }
    if (optionen_.parteiZeigen) parteibildMalen(maler, l.parteibild(sitz), parteibilder_[sitz]);
}

void Tischansicht::offeneHandMalen(QPainter& maler, const Tischlayout& l, Sitz sitz) const {
    const std::vector<int> folge = sortierteHand(*spiel_, sitz);
    const auto plaetze = l.offeneHand(sitz, static_cast<int>(folge.size()));
    const QSizeF groesse = l.offeneKarte(sitz);
    for (std::size_t i = 0; i < folge.size(); ++i)
        karteMalen(maler, plaetze[i], groesse, bilder_.vorderseite(spiel_->deck[folge[i]].code, groesse, devicePixelRatioF()));
}

void Tischansicht::stichMalen(QPainter& maler, const Tischlayout& l) const {
    const engine::Stich& stich = spiel_->stich;
    const qreal dpr = devicePixelRatioF();
    const int gewinner = bewegung_ ? 0 : stichgewinnerKarte();
    int gewinnerPlatz = 0;
    for (int platz = 1; platz <= stich.anzahl; ++platz) {
        const int pos = stich.karte(platz);
        if (pos == gewinner) gewinnerPlatz = platz;
        if (bewegung_ && std::find(bewegung_->karten.begin(), bewegung_->karten.end(), pos) != bewegung_->karten.end())
            continue;
        karteMalen(maler, l.stichplatz(stich.sitzAn(platz)), l.kartengroesse(),
                   bilder_.vorderseite(spiel_->deck[pos].code, l.kartengroesse(), dpr));
    }
    if (gewinnerPlatz == 0) return;
    // The winning card comes to the top of the full trick, framed in gold.
    const Kartenplatz platz = l.stichplatz(stich.sitzAn(gewinnerPlatz));
    const QSizeF groesse = l.kartengroesse();
    karteMalen(maler, platz, groesse, bilder_.vorderseite(spiel_->deck[gewinner].code, groesse, dpr));
    maler.save();
    maler.translate(platz.mitte);
    maler.rotate(platz.winkel);
    const QRectF rahmen(QPointF(-groesse.width() / 2, -groesse.height() / 2), groesse);
    const qreal radius = groesse.width() * 0.07;
    maler.setBrush(Qt::NoBrush);
    const qreal staerke = std::max<qreal>(3, groesse.width() * 0.035);
    for (int ring = 3; ring >= 1; --ring) {
        // A soft glow outside the card, a solid line on its edge.
        maler.setPen(QPen(QColor(255, 196, 0, ring == 1 ? 255 : 70), staerke * (ring == 1 ? 1 : ring * 1.6)));
        maler.drawRoundedRect(rahmen.adjusted(1.5, 1.5, -1.5, -1.5), radius, radius);
    }
    maler.restore();
}

void Tischansicht::ansagenMalen(QPainter& maler, const Tischlayout& l, Sitz sitz) const {
    const std::vector<Ansageschild> schilder = ansagenVon(*spiel_, sitz);
    for (std::size_t i = 0; i < schilder.size() && i < 2; ++i) {
        const QRectF feld = l.ansageschild(sitz, static_cast<int>(i));
        const QColor farbe = schilder[i].seite == engine::ParteiRe ? QColor(190, 30, 40) : QColor(40, 80, 170);
        maler.setPen(QPen(farbe, 2));
        maler.setBrush(QColor(255, 255, 255, 235));
        maler.drawRoundedRect(feld, feld.height() / 4, feld.height() / 4);
        QFont f = font();
        f.setBold(true);
        f.setPixelSize(std::max(8, static_cast<int>(feld.height() * 0.6)));
        const QString text = QString::fromStdString(schilder[i].text);
        // A long limit text gets a smaller font rather than being cut.
        while (f.pixelSize() > 8 && QFontMetricsF(f).horizontalAdvance(text) > feld.width() - 6) f.setPixelSize(f.pixelSize() - 1);
        maler.setFont(f);
        maler.drawText(feld, Qt::AlignCenter, text);
    }
}

// Quiet print in the top right corner: what is played, which game, who dealt.
void Tischansicht::spieleckeMalen(QPainter& maler, const Tischlayout& l) const {
    const std::vector<std::string> zeilen = spielecke(*spiel_, bilder_.franzoesisch());
    if (zeilen.empty()) return;
    const QRectF ecke = l.spielecke();
    QFont f = font();
    f.setPixelSize(std::clamp(static_cast<int>(ecke.height() / 5 / 1.3), 9, 15));
    const QFontMetricsF mass(f);
    const qreal zeile = mass.lineSpacing();
    qreal breite = 0;
    for (const std::string& z : zeilen) breite = std::max(breite, mass.horizontalAdvance(QString::fromStdString(z)));
    const qreal innen = 6;
    const QRectF feld(QPointF(ecke.right() - std::min(ecke.width(), breite + 2 * innen), ecke.top()),
                      QSizeF(std::min(ecke.width(), breite + 2 * innen),
                             std::min(ecke.height(), zeile * static_cast<qreal>(zeilen.size()) + 2 * innen - 2)));
    maler.setPen(Qt::NoPen);
    maler.setBrush(QColor(0, 0, 0, 70));
    maler.drawRoundedRect(feld, 6, 6);
    maler.setFont(f);
    maler.setPen(QColor(255, 255, 255, 225));
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        const QRectF z(feld.left() + innen, feld.top() + innen - 1 + zeile * static_cast<qreal>(i), feld.width() - 2 * innen, zeile);
        if (z.bottom() > feld.bottom() + 1) break;
        maler.drawText(z, Qt::AlignLeft | Qt::AlignVCenter,
                       mass.elidedText(QString::fromStdString(zeilen[i]), Qt::ElideRight, z.width()));
    }
}

void Tischansicht::handMalen(QPainter& maler, const Tischlayout& l) const {
    const qreal dpr = devicePixelRatioF();
    const auto plaetze = handplaetze(l);
    const QSizeF groesse = l.kartengroesse();
    for (std::size_t i = 0; i < plaetze.size(); ++i) {
        const int pos = handfolge_[i];
        karteMalen(maler, plaetze[i], groesse, bilder_.vorderseite(spiel_->deck[pos].code, groesse, dpr));
        if (!kartenwahl_) continue;
        const bool gewaehlt = pos == ausgewaehlt_;
        const bool darf = erlaubt(pos);
        if (darf && !gewaehlt) continue;
        maler.save();
        maler.translate(plaetze[i].mitte);
        maler.rotate(plaetze[i].winkel);
        const QRectF rahmen(QPointF(-groesse.width() / 2, -groesse.height() / 2), groesse);
        const qreal radius = groesse.width() * 0.07;
        if (!darf && optionen_.spielbareHervorheben) {
            // Cards that may not be played now are shaded.
            maler.setPen(Qt::NoPen);
            maler.setBrush(QColor(0, 0, 0, 80));
            maler.drawRoundedRect(rahmen, radius, radius);
        }
        if (gewaehlt) {
            maler.setPen(QPen(darf ? QColor(255, 200, 0) : QColor(200, 60, 40), 3));
            maler.setBrush(Qt::NoBrush);
            maler.drawRoundedRect(rahmen.adjusted(1.5, 1.5, -1.5, -1.5), radius, radius);
        }
        maler.restore();
    }
}

}  // namespace table

#include "Kartenbilder.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QStandardPaths>
#include <QSvgRenderer>
#include <QTextStream>
#include <array>
#include <cmath>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "Kartenmaler.h"
#include "engine/Karte.h"
#include "engine/Kartentext.h"

namespace table {

namespace {

// The SVG file of a deck folder: the "SVG=" line of its index.desktop, else the
// first SVG file in it.
QString svgDateiIn(const QDir& ordner) {
    QFile index(ordner.filePath(QStringLiteral("index.desktop")));
    if (index.open(QIODevice::ReadOnly | QIODevice::Text)) {
        QTextStream ein(&index);
        while (!ein.atEnd()) {
            const QString zeile = ein.readLine().trimmed();
            if (zeile.startsWith(QLatin1String("SVG="))) {
                const QString datei = ordner.filePath(zeile.mid(4).trimmed());
                if (QFile::exists(datei)) return datei;
            }
        }
    }
    const QStringList svgs = ordner.entryList({QStringLiteral("*.svgz"), QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
    return svgs.isEmpty() ? QString() : ordner.filePath(svgs.first());
}

// The pictures of a dropped size lie scattered in the heap; without this the
// allocator keeps their pages and the program only ever grows.
void speicherZurueckgeben() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

}  // namespace

Kartenbilder::Kartenbilder(QStringList suchpfade)
    : suchpfade_(std::move(suchpfade)), seitenverhaeltnis_(GemaltesSeitenverhaeltnis) {}

Kartenbilder::~Kartenbilder() = default;

QStringList Kartenbilder::standardSuchpfade() {
    const QString eigene = qEnvironmentVariable("TRUMPONA_KARTENDECKS");
    if (!eigene.isNull()) return eigene.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    QStringList pfade = QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("carddecks"),
                                                  QStandardPaths::LocateDirectory);
    if (!pfade.contains(QStringLiteral("/usr/share/carddecks"))) pfade << QStringLiteral("/usr/share/carddecks");
    return pfade;
}

QStringList Kartenbilder::deckKandidaten(int kartenbild) {
    if (kartenbild == 3) return {QStringLiteral("svg-standard"), QStringLiteral("svg-xskat-french")};
    if (engine::franzoesischeBilder(kartenbild)) return {QStringLiteral("svg-xskat-french"), QStringLiteral("svg-standard")};
    return {QStringLiteral("svg-xskat-german")};
}

QString Kartenbilder::elementId(int code) {
    if (code < 1 || code > 24) return {};
    static const std::array<const char*, 5> farben{"", "diamond", "heart", "spade", "club"};
    static const std::array<const char*, 7> raenge{"", "9", "jack", "queen", "king", "10", "1"};
    return QStringLiteral("%1_%2").arg(QLatin1String(raenge[static_cast<std::size_t>(engine::rangVonCode(code))]),
                                       QLatin1String(farben[static_cast<std::size_t>(engine::farbeVonCode(code))]));
}

void Kartenbilder::setzeKartenbild(int kartenbild) {
    if (kartenbild == kartenbild_ && geladen_) return;
    kartenbild_ = kartenbild;
    geladen_ = false;
    renderer_.reset();
    deckName_.clear();
    cache_.clear();
    speicherZurueckgeben();
}

bool Kartenbilder::franzoesisch() const { return engine::franzoesischeBilder(kartenbild_); }

QString Kartenbilder::deckName() {
    deckLaden();
    return deckName_;
}

qreal Kartenbilder::seitenverhaeltnis() {
    deckLaden();
    return seitenverhaeltnis_;
}

// Loaded on first use, so the program start does not wait for a deck it may not show.
void Kartenbilder::deckLaden() {
    if (geladen_) return;
    geladen_ = true;
    seitenverhaeltnis_ = GemaltesSeitenverhaeltnis;
    const QString probe = elementId(engine::kartencode(engine::Kreuz, engine::As));
    for (const QString& kandidat : deckKandidaten(kartenbild_)) {
        for (const QString& pfad : suchpfade_) {
            const QDir ordner(QDir(pfad).filePath(kandidat));
            if (!ordner.exists()) continue;
            const QString datei = svgDateiIn(ordner);
            if (datei.isEmpty()) continue;
            auto renderer = std::make_unique<QSvgRenderer>(datei);
            if (!renderer->isValid() || !renderer->elementExists(probe)) continue;
            const QRectF rahmen = renderer->transformForElement(probe).mapRect(renderer->boundsOnElement(probe));
            if (rahmen.height() <= 0 || rahmen.width() <= 0) continue;
            seitenverhaeltnis_ = rahmen.width() / rahmen.height();
            jokerId_.clear();
            for (const QString& id : {QStringLiteral("joker"), QStringLiteral("red_joker"), QStringLiteral("black_joker")})
                if (renderer->elementExists(id)) {
                    jokerId_ = id;
                    break;
                }
            renderer_ = std::move(renderer);
            deckName_ = kandidat;
            return;
        }
    }
}

QPixmap Kartenbilder::gecacht(const QString& schluessel, QSizeF groesse, qreal dpr,
                              const std::function<void(QPainter&, const QRectF&)>& malen) {
    const QSize pixel(std::max(1, static_cast<int>(std::lround(groesse.width() * dpr))),
                      std::max(1, static_cast<int>(std::lround(groesse.height() * dpr))));
    const quint64 pixelSchluessel = (static_cast<quint64>(pixel.width()) << 32) | static_cast<quint32>(pixel.height());
    auto gruppe = cache_.find(pixelSchluessel);
    if (gruppe == cache_.end()) {
        // A new size pushes out the one drawn longest ago.
        if (cache_.size() >= MaxGroessen) {
            auto aeltester = cache_.begin();
            for (auto it = cache_.begin(); it != cache_.end(); ++it)
                if (it->zuletzt < aeltester->zuletzt) aeltester = it;
            cache_.erase(aeltester);
            speicherZurueckgeben();
        }
        gruppe = cache_.insert(pixelSchluessel, {});
    }
    gruppe->zuletzt = ++zugriffe_;
    if (auto it = gruppe->bilder.constFind(schluessel); it != gruppe->bilder.constEnd()) return *it;

    QImage bild(pixel, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::transparent);
    {
        QPainter maler(&bild);
        maler.setRenderHint(QPainter::Antialiasing);
        maler.setRenderHint(QPainter::SmoothPixmapTransform);
        malen(maler, QRectF(QPointF(0, 0), QSizeF(pixel)));
    }
    QPixmap karte = QPixmap::fromImage(std::move(bild));
    karte.setDevicePixelRatio(dpr);
    gruppe->bilder.insert(schluessel, karte);
    return karte;
}

int Kartenbilder::gecachteBilder() const {
    int n = 0;
    for (const Groesse& g : cache_) n += static_cast<int>(g.bilder.size());
    return n;
}

QPixmap Kartenbilder::vorderseite(int code, QSizeF groesse, qreal dpr) {
    deckLaden();
    const bool franz = franzoesisch();
    QString id = engine::istJoker(code) ? jokerId_ : elementId(code);
    const bool ausDeck = renderer_ && !id.isEmpty();
    const QString schluessel = QStringLiteral("v%1/%2/%3").arg(code).arg(kartenbild_).arg(ausDeck ? 1 : 0);
    return gecacht(schluessel, groesse, dpr, [&](QPainter& maler, const QRectF& rahmen) {
        if (ausDeck) renderer_->render(&maler, id, rahmen);
        else vorderseiteMalen(maler, rahmen, code, franz);
    });
}

QPixmap Kartenbilder::rueckseite(int nummer, QSizeF groesse, qreal dpr) {
    const int n = rueckseiteNummer(nummer);
    return gecacht(QStringLiteral("r%1").arg(n), groesse, dpr,
                   [&](QPainter& maler, const QRectF& rahmen) { rueckseiteMalen(maler, rahmen, n); });
}

}  // namespace table

#pragma once
// Card pictures: the faces from an installed SVG deck, found at run time, or from
// our own painter when none is there; the backs always from our painter. Pictures
// are cached per card, size and device pixel ratio; only the few sizes drawn last
// are kept, so resizing the window again and again does not pile up pictures.
#include <QHash>
#include <QPixmap>
#include <QSizeF>
#include <QStringList>
#include <functional>
#include <memory>

class QSvgRenderer;

namespace table {

class Kartenbilder {
public:
    // Folders holding the deck folders ("svg-xskat-german", ...).
    explicit Kartenbilder(QStringList suchpfade = standardSuchpfade());
    ~Kartenbilder();
    Kartenbilder(const Kartenbilder&) = delete;
    Kartenbilder& operator=(const Kartenbilder&) = delete;

    // $TRUMPONA_KARTENDECKS (folders separated by ':') when set, otherwise every
    // "carddecks" folder of the system's data folders.
    static QStringList standardSuchpfade();
    // Deck folders for a "Kartenbild" value, the preferred first.
    static QStringList deckKandidaten(int kartenbild);
    // Element id of a card code in the decks ("queen_club"); empty for the Joker.
    static QString elementId(int code);

    void setzeKartenbild(int kartenbild);
    int kartenbild() const { return kartenbild_; }
    bool franzoesisch() const;
    // Folder name of the deck in use, empty when our painter draws the faces.
    QString deckName();
    // Width to height of a card.
    qreal seitenverhaeltnis();

    // Pictures of `groesse` logical pixels, sharp at the device pixel ratio.
    QPixmap vorderseite(int code, QSizeF groesse, qreal dpr);
    QPixmap rueckseite(int nummer, QSizeF groesse, qreal dpr);

    // How many pixel sizes the cache holds at most, and how many it holds now.
    static constexpr int MaxGroessen = 6;
    int gecachteGroessen() const { return static_cast<int>(cache_.size()); }
    int gecachteBilder() const;

private:
    void deckLaden();
    QPixmap gecacht(const QString& schluessel, QSizeF groesse, qreal dpr, const std::function<void(QPainter&, const QRectF&)>& malen);

    QStringList suchpfade_;
    int kartenbild_ = 1;
    bool geladen_ = false;
    QString deckName_;
    std::unique_ptr<QSvgRenderer> renderer_;
    QString jokerId_;
    qreal seitenverhaeltnis_;
    // Per pixel size: when it was drawn last, and its pictures by card.
    struct Groesse {
        qint64 zuletzt = 0;
        QHash<QString, QPixmap> bilder;
    };
    QHash<quint64, Groesse> cache_;
    qint64 zugriffe_ = 0;
};

}  // namespace table

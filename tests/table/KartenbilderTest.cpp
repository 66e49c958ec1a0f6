#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "QtAusgabe.h"

#include "engine/Karte.h"
#include "table/Kartenbilder.h"
#include "table/Kartenmaler.h"

namespace {

using namespace engine;

QImage alsBild(const QPixmap& p) { return p.toImage().convertToFormat(QImage::Format_ARGB32); }

// Share of pixels that differ between two pictures of the same size.
double unterschied(const QImage& a, const QImage& b) {
    int anders = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) anders += a.pixel(x, y) != b.pixel(x, y);
    return static_cast<double>(anders) / (a.width() * a.height());
}

TEST(Kartenbilder, ElementIdsDerDecks) {
    const struct { int code; const char* id; } faelle[] = {
        {kartencode(Karo, Neun), "9_diamond"},   {kartencode(Herz, Zehn), "10_heart"},
        {kartencode(Pik, Bube), "jack_spade"},   {kartencode(Kreuz, Dame), "queen_club"},
        {kartencode(Herz, Koenig), "king_heart"}, {kartencode(Kreuz, As), "1_club"},
        {kartencode(Karo, As), "1_diamond"},     {JokerCode, ""},
        {0, ""},
    };
    for (const auto& f : faelle) EXPECT_EQ(table::Kartenbilder::elementId(f.code), QString::fromLatin1(f.id)) << f.code;
}

// A fake deck whose every card is a plain rectangle in a colour of its own, so a
// picture shows which element was drawn.
QColor farbeFuer(int code) { return QColor(code * 10, 255 - code * 10, 100); }

void deckAnlegen(const QString& ordner, const QString& svgName) {
    QDir().mkpath(ordner);
    QString svg = QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' width='2000' height='100'>");
    for (int code = 1; code <= 24; ++code)
        svg += QStringLiteral("<rect id='%1' x='%2' y='0' width='50' height='80' fill='%3'/>")
                   .arg(table::Kartenbilder::elementId(code))
                   .arg(code * 60)
                   .arg(farbeFuer(code).name());
    svg += QStringLiteral("</svg>");
    QFile datei(ordner + QLatin1Char('/') + svgName);
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(svg.toUtf8());
    QFile index(ordner + QStringLiteral("/index.desktop"));
    ASSERT_TRUE(index.open(QIODevice::WriteOnly));
    index.write(QStringLiteral("[KDE Backdeck]\nName=Test\nSVG=%1\n").arg(svgName).toUtf8());
}

TEST(Kartenbilder, DeckWirdImSuchpfadGefundenUndNachCodeGezeichnet) {
    QTemporaryDir leer, mitDeck;
    deckAnlegen(mitDeck.filePath(QStringLiteral("svg-xskat-german")), QStringLiteral("karten.svg"));
    table::Kartenbilder bilder({leer.path(), mitDeck.path()});

    bilder.setzeKartenbild(2);
    EXPECT_EQ(bilder.deckName(), QStringLiteral("svg-xskat-german"));
    EXPECT_NEAR(bilder.seitenverhaeltnis(), 50.0 / 80.0, 1e-6);
    for (const int code : {kartencode(Kreuz, Dame), kartencode(Karo, Neun), kartencode(Herz, As)}) {
        const QImage bild = alsBild(bilder.vorderseite(code, QSizeF(50, 80), 1.0));
        EXPECT_EQ(QColor(bild.pixel(25, 40)), farbeFuer(code)) << code;
    }

    // Only a German deck is there: French pictures fall back to our painter.
    bilder.setzeKartenbild(1);
    EXPECT_TRUE(bilder.deckName().isEmpty());
    EXPECT_DOUBLE_EQ(bilder.seitenverhaeltnis(), table::GemaltesSeitenverhaeltnis);
    const QImage gemalt = alsBild(bilder.vorderseite(kartencode(Kreuz, Dame), QSizeF(50, 80), 1.0));
    EXPECT_NE(QColor(gemalt.pixel(25, 40)), farbeFuer(kartencode(Kreuz, Dame)));
}

TEST(Kartenbilder, KaputtesDeckWirdUebergangen) {
    QTemporaryDir ordner;
    QDir().mkpath(ordner.filePath(QStringLiteral("svg-xskat-german")));
    QFile kaputt(ordner.filePath(QStringLiteral("svg-xskat-german/german.svgz")));
    ASSERT_TRUE(kaputt.open(QIODevice::WriteOnly));
    kaputt.write("kein svg");
    kaputt.close();
    table::Kartenbilder bilder({ordner.path()});
    bilder.setzeKartenbild(2);
    EXPECT_TRUE(bilder.deckName().isEmpty());
    EXPECT_FALSE(bilder.vorderseite(kartencode(Pik, As), QSizeF(69, 100), 1.0).isNull());
}

// The installed Debian decks: French pictures 1 and 3, German otherwise; every
// card including the Joker (which the decks lack) gets a picture of the right size.
TEST(Kartenbilder, InstallierteDecksLiefernJedeKarte) {
    const struct {
        int kartenbild;
        const char* deck;
    } faelle[] = {{1, "svg-xskat-french"}, {2, "svg-xskat-german"}, {3, "svg-standard"}, {4, "svg-xskat-german"}};
    table::Kartenbilder bilder;
    for (const auto& f : faelle) {
        bilder.setzeKartenbild(f.kartenbild);
        ASSERT_EQ(bilder.deckName(), QString::fromLatin1(f.deck)) << "kdegames-card-data-kf5 fehlt?";
        const QSizeF groesse(100 * bilder.seitenverhaeltnis(), 100);
        for (int code = 1; code <= JokerCode; ++code) {
            const QPixmap karte = bilder.vorderseite(code, groesse, 2.0);
            EXPECT_DOUBLE_EQ(karte.devicePixelRatio(), 2.0);
            EXPECT_NEAR(karte.width(), groesse.width() * 2, 1.0);
            EXPECT_EQ(karte.height(), 200);
            // The middle of a card is drawn, not left transparent.
            EXPECT_GT(qAlpha(alsBild(karte).pixel(karte.width() / 2, karte.height() / 2)), 200) << code;
        }
    }
}

TEST(Kartenbilder, BilderWerdenProGroesseUndPixeldichteGemerkt) {
    table::Kartenbilder bilder(QStringList{});
    const QSizeF g(69, 100);
    const int code = kartencode(Herz, Zehn);
    EXPECT_EQ(bilder.vorderseite(code, g, 1.0).cacheKey(), bilder.vorderseite(code, g, 1.0).cacheKey());
    EXPECT_NE(bilder.vorderseite(code, g, 1.0).cacheKey(), bilder.vorderseite(code, g, 2.0).cacheKey());
    EXPECT_NE(bilder.vorderseite(code, g, 1.0).cacheKey(), bilder.vorderseite(code, g * 1.5, 1.0).cacheKey());
    EXPECT_NE(bilder.rueckseite(1, g, 1.0).cacheKey(), bilder.rueckseite(2, g, 1.0).cacheKey());
}

// A window resized again and again: only the sizes drawn last stay, the ones in
// use among them, and a deck change starts afresh.
TEST(Kartenbilder, NurDieZuletztGezeichnetenGroessenBleiben) {
    table::Kartenbilder bilder(QStringList{});
    const int code = kartencode(Kreuz, Dame);
    const QSizeF tisch(69, 100);
    const qint64 tischbild = bilder.vorderseite(code, tisch, 1.0).cacheKey();
    for (int i = 0; i < 40; ++i) {
        bilder.vorderseite(code, QSizeF(40 + i, 60 + i), 1.0);
        bilder.rueckseite(5, QSizeF(40 + i, 60 + i) * 0.6, 1.0);
        // The table's own size is drawn on every repaint, so it is never the oldest.
        EXPECT_EQ(bilder.vorderseite(code, tisch, 1.0).cacheKey(), tischbild) << i;
        EXPECT_LE(bilder.gecachteGroessen(), table::Kartenbilder::MaxGroessen) << i;
    }
    EXPECT_LE(bilder.gecachteBilder(), table::Kartenbilder::MaxGroessen);
    bilder.setzeKartenbild(2);
    EXPECT_EQ(bilder.gecachteGroessen(), 0);
}

TEST(Kartenmaler, RueckseitenNummern) {
    const std::pair<int, int> faelle[] = {{1, 1}, {5, 5}, {8, 8}, {9, 1}, {0, 8}, {-1, 7}, {17, 1}};
    for (const auto& [gespeichert, gezeichnet] : faelle) EXPECT_EQ(table::rueckseiteNummer(gespeichert), gezeichnet) << gespeichert;
}

QImage gemalt(const std::function<void(QPainter&, const QRectF&)>& malen) {
    QImage bild(69, 100, QImage::Format_ARGB32);
    bild.fill(Qt::transparent);
    QPainter maler(&bild);
    malen(maler, QRectF(0, 0, 69, 100));
    return bild;
}

TEST(Kartenmaler, JedeRueckseiteSiehtAndersAus) {
    std::vector<QImage> ruecken;
    for (int n = 1; n <= table::AnzahlRueckseiten; ++n)
        ruecken.push_back(gemalt([n](QPainter& m, const QRectF& r) { table::rueckseiteMalen(m, r, n); }));
    for (std::size_t a = 0; a < ruecken.size(); ++a)
        for (std::size_t b = a + 1; b < ruecken.size(); ++b)
            EXPECT_GT(unterschied(ruecken[a], ruecken[b]), 0.2) << a + 1 << " und " << b + 1;
}

// Without a deck every card must still be told apart, in both picture kinds.
TEST(Kartenmaler, GemalteVorderseitenUnterscheidbar) {
    for (const bool franz : {true, false}) {
        std::vector<QImage> karten;
        for (int code = 1; code <= JokerCode; ++code)
            karten.push_back(gemalt([&](QPainter& m, const QRectF& r) { table::vorderseiteMalen(m, r, code, franz); }));
        for (std::size_t a = 0; a < karten.size(); ++a)
            for (std::size_t b = a + 1; b < karten.size(); ++b)
                EXPECT_GT(unterschied(karten[a], karten[b]), 0.01) << franz << ": " << a + 1 << " und " << b + 1;
    }
    const int schelle = kartencode(Karo, As);
    EXPECT_GT(unterschied(gemalt([&](QPainter& m, const QRectF& r) { table::vorderseiteMalen(m, r, schelle, true); }),
                          gemalt([&](QPainter& m, const QRectF& r) { table::vorderseiteMalen(m, r, schelle, false); })),
              0.01);
}

}  // namespace

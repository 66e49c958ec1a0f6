#pragma once
// The table: the own hand fanned at the bottom, the other seats' backs, the trick
// in the middle, names, Augen and party pictures. It only shows a game state it
// does not own and reports the card the person chooses.
#include <QVariantAnimation>
#include <QWidget>
#include <optional>
#include <vector>

#include "Anzeigeoptionen.h"
#include "Tischlayout.h"
#include "engine/Spiel.h"

namespace table {

class Kartenbilder;

class Tischansicht : public QWidget {
    Q_OBJECT
public:
    explicit Tischansicht(Kartenbilder& bilder, QWidget* parent = nullptr);

    void setzeOptionen(const Anzeigeoptionen& optionen);
    // The game to show; not owned. Call neuZeichnen() after it changed.
    void setzeSpiel(const engine::Spiel* spiel);
    void setzeAmZug(std::optional<engine::Sitz> sitz);
    // While on, seat 1's cards can be chosen and the legal ones are lifted.
    void setzeKartenwahl(bool an);
    bool kartenwahl() const { return kartenwahl_; }
    // ParteiBild per seat, 0 for none.
    void setzeParteibilder(const engine::ProSitz<int>& bilder);
    const engine::ProSitz<int>& parteibilder() const { return parteibilder_; }
    void setzeStichSichtbar(bool sichtbar);
    // "Alle Karten zeigen": the other seats' cards face up, for learning.
    void setzeOffeneHaende(bool an);
    bool offeneHaende() const { return offeneHaende_; }

    // Card movement: a card just played flies from its hand to the trick; a complete
    // trick slides to its winner and is gone. Without "Animation" both end at once.
    // Either way `bewegungFertig` follows from the event loop, never from inside the call.
    void karteFliegen(int pos, engine::Sitz sitz);
    // How long a flight and a collection take while "Animation" is on.
    void setzeBewegungsdauer(int flugMs, int einsammelnMs);
    void stichEinsammeln(engine::Sitz gewinner);
    bool bewegtSich() const;
    // Drops a movement under way without reporting it (the state it showed is gone).
    void bewegungAbbrechen();
    void neuZeichnen();

    // Seat 1's cards left to right, as laid out.
    const std::vector<int>& handfolge() const { return handfolge_; }
    // Centre of a card of seat 1 on the screen (for clicks in tests), or of the trick.
    QPointF kartenmitte(int pos) const;
    QPointF stichmitte() const;
    int ausgewaehlt() const { return ausgewaehlt_; }
    // The layout in the table's own coordinates; painted scaled by massstab().
    Tischlayout layout() const;
    // Below its minimum size the table is drawn smaller as a whole, so nothing is cut off.
    qreal massstab() const;
    // The deck position of the card that wins the full trick on the table, 0 for none.
    int stichgewinnerKarte() const;

    QSize sizeHint() const override { return {1024, 720}; }
    QSize minimumSizeHint() const override { return {640, 460}; }

signals:
    // A card of seat 1 was clicked or chosen by keyboard (deck position).
    void karteGewaehlt(int pos);
    void stichGeklickt();
    void bewegungFertig();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void handAktualisieren();
    std::vector<Kartenplatz> handplaetze(const Tischlayout& layout) const;
    int karteBei(QPointF punkt) const;
    bool erlaubt(int pos) const;
    void waehlen(int pos);

    void bewegen(std::vector<int> karten, std::vector<Kartenplatz> von, std::vector<Kartenplatz> nach, bool ausblenden);
    void tischMalen(QPainter& maler) const;
    void karteMalen(QPainter& maler, const Kartenplatz& platz, QSizeF groesse, const QPixmap& bild) const;
    void sitzMalen(QPainter& maler, const Tischlayout& layout, engine::Sitz sitz) const;
    void ansagenMalen(QPainter& maler, const Tischlayout& layout, engine::Sitz sitz) const;
    void spieleckeMalen(QPainter& maler, const Tischlayout& layout) const;
    void offeneHandMalen(QPainter& maler, const Tischlayout& layout, engine::Sitz sitz) const;
    void stichMalen(QPainter& maler, const Tischlayout& layout) const;
    void bewegungMalen(QPainter& maler, const Tischlayout& layout) const;
    void handMalen(QPainter& maler, const Tischlayout& layout) const;

    Kartenbilder& bilder_;
    Anzeigeoptionen optionen_;
    const engine::Spiel* spiel_ = nullptr;
    std::optional<engine::Sitz> amZug_;
    bool kartenwahl_ = false;
    bool stichSichtbar_ = true;
    bool offeneHaende_ = false;
    engine::ProSitz<std::vector<int>> offeneFolge_;  // the other seats' cards as laid out face up
    engine::ProSitz<int> parteibilder_{0};
    std::vector<int> handfolge_;
    int ausgewaehlt_ = 0;  // deck position under the mouse or the keyboard cursor

    // Cards on the move, drawn between their places instead of at them.
    struct Bewegung {
        std::vector<int> karten;
        std::vector<Kartenplatz> von, nach;
        bool ausblenden = false;  // the trick being collected: hidden afterwards
        qreal fortschritt = 0;
    };
    std::optional<Bewegung> bewegung_;
    QVariantAnimation* animation_ = nullptr;
    int bewegungNr_ = 0;
    int flugMs_ = 260;
    int einsammelnMs_ = 320;  // a start still waiting in the event loop belongs to this movement
};

}  // namespace table

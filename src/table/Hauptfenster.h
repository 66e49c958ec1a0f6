#pragma once
// The main window `hfo`: menus, the table, the status line. It holds no game
// logic; the controller feeds it and listens to its signals.
#include <QMainWindow>
#include <array>
#include <functional>
#include <memory>

#include "engine/Ansagen.h"

class QAction;
class QLabel;
class QMenu;

namespace table {

class Kartenbilder;
class Tischansicht;

class Hauptfenster : public QMainWindow {
    Q_OBJECT
public:
    explicit Hauptfenster(QWidget* parent = nullptr);
    ~Hauptfenster() override;

    Tischansicht& tisch() { return *tisch_; }
    Kartenbilder& bilder() { return *bilder_; }

    QAction* neuePartieAktion() const { return neuePartie_; }
    QAction* automatikAktion() const { return automatik_; }
    QAction* reKontraAktion() const { return reKontra_; }
    // Index: the limit code (0 Schwarz .. 3 keine 90).
    QAction* limitAktion(int limitCode) const { return limits_[static_cast<std::size_t>(limitCode)]; }
    QMenu* limitMenue() const { return limitMenue_; }
    QAction* msgboxenAktion() const { return msgboxen_; }
    QAction* endeAktion() const { return ende_; }
    QAction* letzterStichAktion() const { return letzterStich_; }
    QAction* alleSticheAktion() const { return alleStiche_; }
    QAction* spielzettelAktion() const { return spielzettel_; }
    QAction* ladenAktion() const { return laden_; }
    QAction* speichernAktion() const { return speichern_; }
    QAction* einstellungenAktion() const { return einstellungen_; }
    // "Internet-Foyer...": whoever runs the foyer connects to it.
    QAction* foyerAktion() const { return foyer_; }
    QAction* vollbildAktion() const { return vollbild_; }
    QAction* regelnAktion() const { return regeln_; }
    QAction* turnierpartieAktion() const { return turnierpartie_; }
    QAction* ergebnisseAktion() const { return ergebnisse_; }
    QMenu* spielMenue() const { return spielMenue_; }
    // The learning aids: review, statistics, open hands, cards played.
    QAction* spielverlaufAktion() const { return spielverlauf_; }
    QAction* statistikAktion() const { return statistik_; }
    QAction* alleKartenAktion() const { return alleKarten_; }
    QAction* gespielteKartenAktion() const { return gespielteKarten_; }
    // `mnuSendebuffer`: the protocol log of a network table.
    QAction* netzprotokollAktion() const { return netzprotokoll_; }

    void statusSetzen(const QString& text);
    QString status() const;
    void ansagemenueSetzen(const engine::Ansagemenue& menue);
    void automatikAnzeigen(bool laeuft);
    void partieendeAnzeigen(bool ende);
    // "Iconen": symbols beside the menu entries; "Automatic": the automatic-play entry.
    void symboleZeigen(bool an);
    void automatikEintragZeigen(bool an);
    // `MsgBoxModus`: 1 while the reasoning switch is checked, 3 otherwise.
    int msgBoxModus() const;
    // Whether "&Neue Partie" has to ask before it throws the running Partie away.
    void setzePartieUnterwegs(bool unterwegs) { partieUnterwegs_ = unterwegs; }
    // Asked before the program ends ("&Ende" or closing the window); false keeps it open.
    void setzeBeendenPruefung(std::function<bool()> pruefung) { beendenPruefung_ = std::move(pruefung); }
    // Runs once when the program is about to end, before anything is written back
    // (the question about unsent tournament results).
    void setzeVorDemBeenden(std::function<void()> pruefung) { vorDemBeenden_ = std::move(pruefung); }

signals:
    // "&Neue Partie" was confirmed; sent just before neuePartieGewuenscht, so a
    // tournament Partie can give its rules back before the first deal.
    void neuePartieBestaetigt();
    void neuePartieGewuenscht();
    void automatikGewuenscht();
    void reKontraGewuenscht();
    void limitGewuenscht(int limitCode);
    void letzterStichGewuenscht();
    void alleSticheGewuenscht();
    void spielzettelGewuenscht();
    void beendenGewuenscht();
    // A question of the window is open (true) or closed again: the game waits meanwhile.
    void frageOffen(bool offen);

public slots:
    // "&Neue Partie": asks before a running Partie is abandoned.
    void m_neue_partie_click();
    // "&Ende".
    void SubPrgBeenden();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void menuesAnlegen();
    void beendenPruefen();

    std::unique_ptr<Kartenbilder> bilder_;
    Tischansicht* tisch_ = nullptr;
    QLabel* statuszeile_ = nullptr;
    QAction* neuePartie_ = nullptr;
    QAction* automatik_ = nullptr;
    QAction* reKontra_ = nullptr;
    QMenu* limitMenue_ = nullptr;
    std::array<QAction*, 4> limits_{};
    QAction* msgboxen_ = nullptr;
    QAction* ende_ = nullptr;
    QAction* letzterStich_ = nullptr;
    QAction* alleStiche_ = nullptr;
    QAction* spielzettel_ = nullptr;
    QAction* laden_ = nullptr;
    QAction* speichern_ = nullptr;
    QAction* einstellungen_ = nullptr;
    QAction* foyer_ = nullptr;
    QAction* netzprotokoll_ = nullptr;
    QAction* vollbild_ = nullptr;
    QAction* regeln_ = nullptr;
    QAction* turnierpartie_ = nullptr;
    QAction* ergebnisse_ = nullptr;
    std::function<void()> vorDemBeenden_;
    QMenu* spielMenue_ = nullptr;
    QAction* spielverlauf_ = nullptr;
    QAction* statistik_ = nullptr;
    QAction* alleKarten_ = nullptr;
    QAction* gespielteKarten_ = nullptr;
    bool partieUnterwegs_ = false;
    std::function<bool()> beendenPruefung_;
};

}  // namespace table

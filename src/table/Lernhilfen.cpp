#include "Lernhilfen.h"

#include <QAction>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>

#include "Hauptfenster.h"
#include "Kartenbilder.h"
#include "Kartenuebersicht.h"
#include "Lerntexte.h"
#include "Qtext.h"
#include "Spielpause.h"
#include "Spielverlaufdialog.h"
#include "Tischansicht.h"
#include "Tischsteuerung.h"
#include "engine/Spielablauf.h"
#include "settings/Benutzerspeicher.h"

namespace table {

namespace {
const QString OffeneKartenSchluessel = QStringLiteral("AlleKartenZeigen");
}  // namespace

Lernhilfen::Lernhilfen(Hauptfenster& hfo, Tischsteuerung& steuerung, settings::Benutzerspeicher& speicher,
                       Statistikspeicher statistik, QObject* parent)
    : QObject(parent), hfo_(hfo), steuerung_(steuerung), speicher_(speicher), statistik_(std::move(statistik)) {
    connect(hfo_.spielverlaufAktion(), &QAction::triggered, this, [this] {
        Pause pause(steuerung_);
        spielverlaufZeigen(&hfo_);
    });
    connect(hfo_.statistikAktion(), &QAction::triggered, this, &Lernhilfen::statistikZeigen);
    connect(hfo_.alleKartenAktion(), &QAction::toggled, this, &Lernhilfen::alleKartenZeigen);
    connect(hfo_.gespielteKartenAktion(), &QAction::triggered, this, &Lernhilfen::gespielteKartenZeigen);
    connect(hfo_.spielMenue(), &QMenu::aboutToShow, this, &Lernhilfen::menueAnpassen);
    connect(&steuerung_, &Tischsteuerung::spielGewertet, this, &Lernhilfen::spielGewertet);
    connect(&steuerung_, &Tischsteuerung::partieBeendet, this, &Lernhilfen::partieBeendet);
    steuerung_.setzeVerlaufAnzeige([this](QWidget* eltern) { spielverlaufZeigen(eltern); });
    steuerung_.ablauf().beobachterHinzufuegen(this);
    // Off unless the person switched it on: the cards of the others are a learning aid.
    const bool offen = speicher_.vorhanden(OffeneKartenSchluessel) && speicher_.wahr(OffeneKartenSchluessel);
    hfo_.alleKartenAktion()->setChecked(offen);
    hfo_.tisch().setzeOffeneHaende(offen);
    menueAnpassen();
}

Lernhilfen::~Lernhilfen() {
    steuerung_.ablauf().beobachterEntfernen(this);
    steuerung_.setzeVerlaufAnzeige({});
    delete uebersicht_.data();
}

Kartenuebersicht* Lernhilfen::kartenuebersicht() const { return uebersicht_.data(); }

void Lernhilfen::menueAnpassen() { hfo_.spielverlaufAktion()->setEnabled(!steuerung_.letztesSpiel().stiche.empty()); }

void Lernhilfen::spielverlaufZeigen(QWidget* eltern) {
    const engine::Spiel& spiel = steuerung_.letztesSpiel();
    if (spiel.stiche.empty()) return;
    Spielverlaufdialog dialog(hfo_.bilder(), spiel, steuerung_.letzteBegruendungen(), eltern);
    dialog.exec();
}

void Lernhilfen::statistikZeigen() {
    Pause pause(steuerung_);
    Partieverlauf laufend;
    laufend.namen = steuerung_.spiel().namen;
    laufend.staende = aufsummiert(steuerung_.spielzettelZeilen());
    Statistikdialog dialog(statistik_, laufend, hfo_.bilder().franzoesisch(), &hfo_);
    dialog.exec();
}

void Lernhilfen::statistikSchreiben(const Statistik& statistik) {
    if (statistik_.speichern(statistik)) return;
    // Reported from the event loop, not from inside the game step that recorded it.
    QTimer::singleShot(0, this, [this] {
        Pause pause(steuerung_);
        QMessageBox::critical(&hfo_, t(lerntext::StatistikTitel), t(lerntext::NichtGeschrieben) + statistik_.pfad());
    });
}

void Lernhilfen::spielGewertet() {
    Statistik st = statistik_.laden();
    st.spielEintragen(steuerung_.letztesSpiel());
    statistikSchreiben(st);
}

void Lernhilfen::partieBeendet() {
    Statistik st = statistik_.laden();
    st.partieEintragen(steuerung_.spiel().namen, steuerung_.spielzettelZeilen());
    statistikSchreiben(st);
}

void Lernhilfen::alleKartenZeigen(bool an) {
    hfo_.tisch().setzeOffeneHaende(an);
    speicher_.setzeWahr(OffeneKartenSchluessel, an);
}

void Lernhilfen::gespielteKartenZeigen() {
    if (!uebersicht_) {
        auto* neu = new Kartenuebersicht(hfo_.bilder(), steuerung_.spiel(), &hfo_);
        neu->resize(neu->sizeHint());
        uebersicht_ = neu;
    }
    uebersicht_->show();
    uebersicht_->raise();
    uebersicht_->aktualisieren();
}

void Lernhilfen::kartenGegeben(const engine::Spiel&) {
    if (uebersicht_) uebersicht_->aktualisieren();
}
void Lernhilfen::spielBegonnen(const engine::Spiel&) {
    if (uebersicht_) uebersicht_->aktualisieren();
}
void Lernhilfen::karteGespielt(const engine::Spiel&, engine::Sitz, int) {
    if (uebersicht_) uebersicht_->aktualisieren();
}

}  // namespace table

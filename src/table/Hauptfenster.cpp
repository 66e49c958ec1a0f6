#include "Hauptfenster.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QStyle>

#include "Kartenbilder.h"
#include "Lerntexte.h"
#include "Qtext.h"
#include "Tischansicht.h"
#include "Tischtexte.h"
#include "Turniertexte.h"
#include "engine/Spielablauf.h"
#include "savegame/Partietexte.h"

namespace table {

namespace {
}  // namespace

Hauptfenster::Hauptfenster(QWidget* parent)
    : QMainWindow(parent), bilder_(std::make_unique<Kartenbilder>()) {
    setObjectName(QStringLiteral("hfo"));
    setWindowTitle(t(texte::Fenstertitel));
    tisch_ = new Tischansicht(*bilder_, this);
    setCentralWidget(tisch_);
    statuszeile_ = new QLabel(this);
    statusBar()->addWidget(statuszeile_, 1);
    menuesAnlegen();
    ansagemenueSetzen(engine::ansagemenue(engine::Spiel{}, engine::Sitz(1)));
    tisch_->setFocus();
}

Hauptfenster::~Hauptfenster() = default;

void Hauptfenster::menuesAnlegen() {
    auto aktion = [](QMenu* menue, const QString& text, const char* name) {
        QAction* a = menue->addAction(text);
        a->setObjectName(QString::fromLatin1(name));
        return a;
    };
    QMenu* spiel = menuBar()->addMenu(t(texte::MenuSpiel));
    spielMenue_ = spiel;
    neuePartie_ = aktion(spiel, t(texte::NeuePartie), "m_neue_partie");
    neuePartie_->setShortcut(QKeySequence(Qt::Key_F2));
    turnierpartie_ = aktion(spiel, t(turniertext::TurnierpartieMenue), "m_turnierpartie");
    ergebnisse_ = aktion(spiel, t(turniertext::ErgebnisseMenue), "m_turnierergebnisse");
    spiel->addSeparator();
    laden_ = aktion(spiel, t(savegame::texte::MenueLaden), "m_partie_laden");
    laden_->setShortcut(QKeySequence::Open);
    speichern_ = aktion(spiel, t(savegame::texte::MenueSpeichern), "m_partie_speichern");
    speichern_->setShortcut(QKeySequence::Save);
    spiel->addSeparator();
    spielverlauf_ = aktion(spiel, t(lerntext::SpielverlaufMenue), "m_spielverlauf");
    statistik_ = aktion(spiel, t(lerntext::StatistikMenue), "m_statistik");
    spiel->addSeparator();
    einstellungen_ = aktion(spiel, t(texte::EinstellungenMenue), "m_einstellungen");
    foyer_ = aktion(spiel, t(texte::FoyerMenue), "m_foyer");
    netzprotokoll_ = aktion(spiel, t(texte::NetzprotokollZeigen), "mnuSendebuffer");
    netzprotokoll_->setEnabled(false);  // at a network table only
    spiel->addSeparator();
    ende_ = aktion(spiel, t(texte::Ende), "m_ende");
    ende_->setShortcut(QKeySequence(Qt::ALT | Qt::Key_F4));

    QMenu* ansagen = menuBar()->addMenu(t(texte::MenuAnsagen));
    reKontra_ = aktion(ansagen, t(engine::ansagetext::ReAusrufen), "m_ansage");
    limitMenue_ = ansagen->addMenu(QString());
    limitMenue_->setObjectName(QStringLiteral("m_limitgebot"));
    // From keine 90 down to kein Stich.
    for (int code = engine::Keine90; code >= engine::LimitSchwarz; --code) {
        QAction* a = limitMenue_->addAction(QString::fromStdString(engine::limitMenuetext(code)));
        a->setObjectName(QStringLiteral("m_limit%1").arg(code));
        connect(a, &QAction::triggered, this, [this, code] { emit limitGewuenscht(code); });
        limits_[static_cast<std::size_t>(code)] = a;
    }

    QMenu* ansicht = menuBar()->addMenu(t(texte::MenuAnsicht));
    letzterStich_ = aktion(ansicht, t(texte::LetzterStich), "m_letzter_stich");
    alleStiche_ = aktion(ansicht, t(texte::AlleStiche), "m_alle_stiche");
    spielzettel_ = aktion(ansicht, t(texte::Spielzettel), "m_spielzettel");
    gespielteKarten_ = aktion(ansicht, t(lerntext::GespielteKartenMenue), "m_gespielte_karten");
    ansicht->addSeparator();
    msgboxen_ = aktion(ansicht, t(texte::MsgboxenZeigen), "m_msgboxen_zeigen");
    msgboxen_->setCheckable(true);
    alleKarten_ = aktion(ansicht, t(lerntext::AlleKartenZeigen), "m_alle_karten");
    alleKarten_->setCheckable(true);
    ansicht->addSeparator();
    vollbild_ = aktion(ansicht, t(texte::VollbildMenue), "m_vollbild");
    vollbild_->setCheckable(true);
    vollbild_->setShortcut(QKeySequence(Qt::Key_F11));

    QMenu* hilfe = menuBar()->addMenu(t(texte::MenuHilfe));
    regeln_ = aktion(hilfe, t(texte::SpielregelnMenue), "m_spielregeln");
    regeln_->setShortcut(QKeySequence(Qt::Key_F1));

    // Straight in the menu bar, as a button.
    automatik_ = menuBar()->addAction(t(engine::ablauftext::AutomatischSpielen));
    automatik_->setObjectName(QStringLiteral("m_automatisch"));

    connect(neuePartie_, &QAction::triggered, this, &Hauptfenster::m_neue_partie_click);
    connect(ende_, &QAction::triggered, this, &Hauptfenster::SubPrgBeenden);
    connect(automatik_, &QAction::triggered, this, &Hauptfenster::automatikGewuenscht);
    connect(reKontra_, &QAction::triggered, this, &Hauptfenster::reKontraGewuenscht);
    connect(letzterStich_, &QAction::triggered, this, &Hauptfenster::letzterStichGewuenscht);
    connect(alleStiche_, &QAction::triggered, this, &Hauptfenster::alleSticheGewuenscht);
    connect(spielzettel_, &QAction::triggered, this, &Hauptfenster::spielzettelGewuenscht);
}

void Hauptfenster::statusSetzen(const QString& text) { statuszeile_->setText(text); }

QString Hauptfenster::status() const { return statuszeile_->text(); }

void Hauptfenster::ansagemenueSetzen(const engine::Ansagemenue& menue) {
    reKontra_->setText(QString::fromStdString(menue.reKontra.text));
    reKontra_->setEnabled(menue.reKontra.aktiv);
    limitMenue_->setTitle(QString::fromStdString(menue.limit.text));
    limitMenue_->setEnabled(menue.limit.aktiv);
    for (std::size_t i = 0; i < limits_.size(); ++i) {
        limits_[i]->setText(QString::fromStdString(menue.limits[i].text));
        limits_[i]->setEnabled(menue.limits[i].aktiv);
        limits_[i]->setCheckable(menue.limits[i].markiert);
        limits_[i]->setChecked(menue.limits[i].markiert);
    }
}

void Hauptfenster::automatikAnzeigen(bool laeuft) {
    automatik_->setText(t(laeuft ? engine::ablauftext::AutomatikAbbrechen : engine::ablauftext::AutomatischSpielen));
}

void Hauptfenster::partieendeAnzeigen(bool ende) {
    setWindowTitle(t(texte::Fenstertitel) + (ende ? t(texte::Partieende) : QString()));
}

void Hauptfenster::symboleZeigen(bool an) {
    const std::pair<QAction*, QStyle::StandardPixmap> symbole[] = {
        {neuePartie_, QStyle::SP_FileIcon},        {laden_, QStyle::SP_DialogOpenButton},
        {speichern_, QStyle::SP_DialogSaveButton}, {einstellungen_, QStyle::SP_FileDialogDetailedView},
        {ende_, QStyle::SP_DialogCloseButton},     {regeln_, QStyle::SP_DialogHelpButton}};
    for (const auto& [a, bild] : symbole) a->setIcon(an ? style()->standardIcon(bild) : QIcon());
}

void Hauptfenster::automatikEintragZeigen(bool an) { automatik_->setVisible(an); }

int Hauptfenster::msgBoxModus() const { return msgboxen_->isChecked() ? 1 : 3; }

void Hauptfenster::m_neue_partie_click() {
    if (partieUnterwegs_) {
        emit frageOffen(true);
        QMessageBox frage(QMessageBox::Question, windowTitle(), t(engine::ablauftext::PartieAbbrechen),
                          QMessageBox::Yes | QMessageBox::No, this);
        // Only a deliberate Yes throws the Partie away: Enter (a key held from the last
        // box, or pressed once too often) and Escape keep it.
        frage.setDefaultButton(QMessageBox::No);
        frage.setEscapeButton(QMessageBox::No);
        const bool abbrechen = frage.exec() == QMessageBox::Yes;
        emit frageOffen(false);
        if (!abbrechen) return;
    }
    emit neuePartieBestaetigt();
    emit neuePartieGewuenscht();
}

void Hauptfenster::beendenPruefen() {
    if (!vorDemBeenden_) return;
    const auto pruefung = std::move(vorDemBeenden_);
    vorDemBeenden_ = nullptr;
    pruefung();
}

void Hauptfenster::SubPrgBeenden() { close(); }

// "&Ende" and the window's close button both end here.
void Hauptfenster::closeEvent(QCloseEvent* event) {
    if (beendenPruefung_ && !beendenPruefung_()) {
        event->ignore();
        return;
    }
    beendenPruefen();
    emit beendenGewuenscht();
    event->accept();
}

}  // namespace table

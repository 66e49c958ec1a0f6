#include "Tischprogramm.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QStatusBar>
#include <utility>

#include "Dateiwahl.h"
#include "Einstellform.h"
#include "Hauptfenster.h"
#include "Kartenbilder.h"
#include "Lernhilfen.h"
#include "Qtext.h"
#include "Regelseite.h"
#include "Spielpause.h"
#include "Stichbetrachter.h"
#include "Tempostufen.h"
#include "Tischsteuerung.h"
#include "Tischtexte.h"
#include "Verteilungsdialog.h"
#include "Willkommen.h"
#include "engine/Spielablauf.h"
#include "engine/Zufall.h"
#include "savegame/Ladeablauf.h"
#include "savegame/Partiespeicher.h"
#include "savegame/Partietexte.h"
#include "savegame/Sicherungsplatz.h"
#include "settings/Benutzerspeicher.h"

namespace table {

namespace {

void melden(QWidget* eltern, const savegame::Meldung& m) {
    const QString titel = QString::fromUtf8(texte::Fenstertitel);
    const QString text = QString::fromStdString(m.text);
    switch (m.symbol) {
        case savegame::Symbol::Kritisch: QMessageBox::critical(eltern, titel, text); break;
        case savegame::Symbol::Information: QMessageBox::information(eltern, titel, text); break;
        case savegame::Symbol::Ohne: {
            QMessageBox box(QMessageBox::NoIcon, titel, text, QMessageBox::Ok, eltern);
            box.exec();
            break;
        }
    }
}

// File dialogs start in the folder used last, else in the home folder.
QString dialogordner(const settings::Benutzerspeicher& speicher) {
    const QString ordner = savegame::letzterOrdner(speicher);
    return !ordner.isEmpty() && QDir(ordner).exists() ? ordner : QDir::homePath();
}

}  // namespace

Tischprogramm::Tischprogramm(Hauptfenster& hfo, Tischsteuerung& steuerung, settings::Benutzerspeicher& speicher,
                             Dateiwahl& dateiwahl, QString optionsdatei, QObject* parent)
    : QObject(parent),
      hfo_(hfo),
      steuerung_(steuerung),
      speicher_(speicher),
      dateiwahl_(dateiwahl),
      optionsdatei_(std::move(optionsdatei)),
      benutzer_(benutzereinstellungenLesen(speicher)) {
    connect(hfo_.einstellungenAktion(), &QAction::triggered, this, &Tischprogramm::einstellungenZeigen);
    connect(hfo_.speichernAktion(), &QAction::triggered, this, &Tischprogramm::m_partie_speichern_Click);
    connect(hfo_.ladenAktion(), &QAction::triggered, this, &Tischprogramm::m_partie_laden_Click);
    connect(hfo_.regelnAktion(), &QAction::triggered, this, &Tischprogramm::regelnZeigen);
    connect(hfo_.spielMenue(), &QMenu::aboutToShow, this, &Tischprogramm::menueAnpassen);
    connect(hfo_.vollbildAktion(), &QAction::triggered, this, [this](bool an) {
        einstellungen_.vollbild = an ? -1 : 0;
        fensterZeigen();
    });
    steuerung_.setzeKartengeber([this](const engine::Spiel& spiel) { return kartenGeben(spiel); });
    lernhilfen_ = std::make_unique<Lernhilfen>(hfo_, steuerung_, speicher_);
    connect(&steuerung_, &Tischsteuerung::standGeaendert, this, &Tischprogramm::sichern);
    // A Partie thrown away for a new one is not offered again.
    connect(&hfo_, &Hauptfenster::neuePartieGewuenscht, this, [this] {
        letzterStand_.reset();
        if (!sicherung_.isEmpty()) QFile::remove(sicherung_);
    });
    hfo_.setzeBeendenPruefung([this] { return beendenPruefen(); });
}

void Tischprogramm::setzeSicherungsdatei(const QString& pfad) {
    platz_.reset();
    if (!pfad.isEmpty()) platz_ = std::make_unique<savegame::Sicherungsplatz>(pfad);
    sicherung_ = platz_ ? platz_->datei() : QString();
    if (!sicherungshinweis_) {
        sicherungshinweis_ = new QLabel(&hfo_);
        sicherungshinweis_->setObjectName(QStringLiteral("labSicherung"));
        hfo_.statusBar()->addPermanentWidget(sicherungshinweis_);
    }
    // Only a program that does not keep the one automatic save says so.
    QString hinweis;
    if (platz_ && platz_->nummer() > 1) hinweis = t(texte::SicherungGetrennt);
    else if (platz_ && platz_->nummer() == 0)
        hinweis = t(platz_->alleBelegt() ? texte::SicherungBelegt : texte::SicherungUnmoeglich);
    sicherungshinweis_->setText(hinweis);
    sicherungshinweis_->setToolTip(sicherung_.isEmpty() ? QString() : QDir::toNativeSeparators(sicherung_));
    sicherungshinweis_->setVisible(!hinweis.isEmpty());
}

QString Tischprogramm::standardSicherungsdatei() {
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).filePath(QStringLiteral("letzte-partie.dkp"));
}

Tischprogramm::~Tischprogramm() = default;

void Tischprogramm::EinstUebernehmen(const settings::Einstellungen& e, const Benutzereinstellungen& b) {
    const bool vollbildVorher = einstellungen_.vollbild != 0;
    einstellungen_ = e;
    benutzer_ = b;
    steuerung_.setzeOptionen(anzeigeoptionen(e));
    // The pace is taken over when its setting changed, so a pace set from outside (tests) stays.
    const int tempo = e.animation == 0 ? TempoAus : b.tempo;
    if (std::exchange(tempostufe_, tempo) != tempo) steuerung_.setzeTempo(tempoFuer(tempo));
    steuerung_.setzeRegelOptionen(e.regeln);
    engine::ProSitz<std::string> namen;
    engine::ProSitz<int> charaktere;
    for (const engine::Sitz s : engine::alleSitze) {
        namen[s] = e.namen[static_cast<std::size_t>(s.nr() - 1)];
        charaktere[s] = e.charakter[static_cast<std::size_t>(s.nr() - 1)];
    }
    steuerung_.setzeNamen(namen);
    steuerung_.setzeBedenkzeit(e.bedenkzeit);
    steuerung_.setzeCharaktere(charaktere);
    hfo_.symboleZeigen(e.iconen != 0);
    hfo_.automatikEintragZeigen(e.automatic != 0);
    hfo_.vollbildAktion()->setChecked(e.vollbild != 0);
    if (hfo_.isVisible() && vollbildVorher != (e.vollbild != 0)) fensterZeigen();
    emit einstellungenUebernommen(e);
}

void Tischprogramm::fensterZeigen() {
    if (einstellungen_.vollbild != 0) hfo_.showFullScreen();
    else if (hfo_.isFullScreen()) hfo_.showNormal();
    else hfo_.show();
    hfo_.vollbildAktion()->setChecked(einstellungen_.vollbild != 0);
}

void Tischprogramm::starten(const QString& ladeDatei) {
    if (!ladeDatei.isEmpty()) {
        partieLaden(ladeDatei);
        // A file that is no saved game leaves nothing to play on: a new Partie begins.
        if (!steuerung_.ablauf().partieLaeuft() && steuerung_.spiel().ablauf.phase == engine::Spielphase::Geben)
            steuerung_.neuePartie();
        return;
    }
    if (einstellungen_.willkommen != 0) return willkommen_zeigen();
    // Without the welcome screen a Partie left unfinished is still offered, Yes first.
    if (fortsetzbar()) {
        QMessageBox frage(QMessageBox::Question, QString::fromUtf8(texte::Fenstertitel),
                          t(texte::LetztePartieFortsetzen), QMessageBox::Yes | QMessageBox::No, &hfo_);
        frage.setDefaultButton(QMessageBox::Yes);
        if (frage.exec() == QMessageBox::Yes && sicherungLaden()) return;
    }
    steuerung_.neuePartie();
}

bool Tischprogramm::fortsetzbar() const { return !sicherung_.isEmpty() && QFile::exists(sicherung_); }

// A loaded file was a Partie to play on (not one that had ended).
bool Tischprogramm::partieZumWeiterspielen() const {
    return steuerung_.spiel().ablauf.phase != engine::Spielphase::Geben || steuerung_.ablauf().partieLaeuft();
}

bool Tischprogramm::sicherungLaden() {
    partieLaden(sicherung_);
    return partieZumWeiterspielen();
}

void Tischprogramm::willkommen_zeigen() {
    Willkommen willkommen(einstellungen_.regeln, &hfo_);
    willkommen.fortsetzenAnbieten(fortsetzbar());
    willkommen.exec();
    if (willkommen.wahl() == Willkommen::Wahl::Laden) {
        m_partie_laden_Click();
        if (partieZumWeiterspielen()) return;
    }
    if (willkommen.wahl() == Willkommen::Wahl::Fortsetzen && sicherungLaden()) return;
    steuerung_.neuePartie();
}

void Tischprogramm::einstellungenZeigen() {
    Pause pause(steuerung_);
    Einstellform form(einstellungen_, benutzer_, {speicher_, optionsdatei_, dateiwahl_, kontext_}, &hfo_);
    connect(&form, &Einstellform::zurueckgesetzt, this, [this] {
        // Nothing is asked or written back after a reset.
        ohneFrageBeenden_ = true;
        emit programmEndeVerlangt();
    });
    if (form.exec() == QDialog::Accepted) EinstUebernehmen(form.einstellungen(), form.benutzer());
}

void Tischprogramm::regelnZeigen() {
    Pause pause(steuerung_);
    Regelseite seite(einstellungen_.regeln, &hfo_);
    seite.exec();
}

void Tischprogramm::menueAnpassen() { hfo_.speichernAktion()->setEnabled(steuerung_.speicherbar()); }

savegame::Spielstand Tischprogramm::spielstand() const {
    savegame::Spielstand stand;
    stand.spiel = steuerung_.spiel();
    stand.optionen = einstellungen_.regeln;
    savegame::Tischanzeige& anzeige = stand.tisch;
    anzeige.kontraGebenAktiv = hfo_.reKontraAktion()->isEnabled();
    anzeige.kontraGebenText = hfo_.reKontraAktion()->text().toStdString();
    for (std::size_t code = 0; code < anzeige.unterHaken.size(); ++code)
        anzeige.unterHaken[code] = hfo_.limitAktion(static_cast<int>(code))->isChecked();
    anzeige.limitAktiv = hfo_.limitMenue()->isEnabled();
    anzeige.limitText = hfo_.limitMenue()->title().toStdString();
    for (const engine::Sitz s : engine::alleSitze)
        anzeige.sitzAnzeige[static_cast<std::size_t>(s.nr() - 1)] = stand.spiel.augen[s];
    return stand;
}

void Tischprogramm::m_partie_speichern_Click() {
    if (!steuerung_.speicherbar()) return;
    Pause pause(steuerung_);
    // Taken before the dialog: what the person saw when choosing to save.
    speichernUnter(spielstand());
}

bool Tischprogramm::speichernUnter(const savegame::Spielstand& stand) {
    const QString pfad = dateiwahl_.speichern(&hfo_, {t(savegame::texte::SpeichernTitel), dialogordner(speicher_),
                                                       savegame::texte::SpeichernFilter, savegame::texte::DateiEndung});
    if (pfad.isEmpty()) return false;
    savegame::ordnerMerken(speicher_, pfad);
    if (savegame::PartieSpeichern(pfad, stand)) return true;
    QMessageBox::critical(&hfo_, QString::fromUtf8(texte::Fenstertitel),
                          QString::fromUtf8(texte::NichtGespeichert) + QDir::toNativeSeparators(pfad));
    return false;
}

void Tischprogramm::sichern() {
    if (steuerung_.spiel().ablauf.phase == engine::Spielphase::Partieende) {
        letzterStand_.reset();
        if (!sicherung_.isEmpty()) QFile::remove(sicherung_);
        return;
    }
    letzterStand_ = spielstand();
    if (sicherung_.isEmpty()) return;
    QDir().mkpath(QFileInfo(sicherung_).absolutePath());
    savegame::PartieSpeichern(sicherung_, *letzterStand_);
}

bool Tischprogramm::beendenPruefen() {
    if (ohneFrageBeenden_ || !steuerung_.partieOffen()) return true;
    Pause pause(steuerung_);
    QMessageBox frage(QMessageBox::Question, QString::fromUtf8(texte::Fenstertitel), t(texte::BeendenFrage),
                      QMessageBox::NoButton, &hfo_);
    if (!sicherung_.isEmpty()) frage.setInformativeText(t(texte::BeendenSicherung));
    QPushButton* speichern = frage.addButton(t(texte::BeendenSpeichern), QMessageBox::AcceptRole);
    QPushButton* beenden = frage.addButton(t(texte::BeendenOhneSpeichern), QMessageBox::DestructiveRole);
    QPushButton* bleiben = frage.addButton(t(texte::BeendenAbbrechen), QMessageBox::RejectRole);
    frage.setDefaultButton(speichern);
    frage.setEscapeButton(bleiben);
    frage.exec();
    if (frage.clickedButton() == beenden) return true;
    if (frage.clickedButton() != speichern) return false;
    // Between two games (dealing, reservations) the last state a file can hold is saved:
    // the end of the game before.
    const bool jetzt = steuerung_.speicherbar() || !letzterStand_;
    return speichernUnter(jetzt ? spielstand() : *letzterStand_);
}

void Tischprogramm::m_partie_laden_Click() {
    QString pfad;
    {
        Pause pause(steuerung_);
        pfad = dateiwahl_.oeffnen(&hfo_, {t(savegame::texte::LadenTitel), dialogordner(speicher_),
                                          savegame::texte::LadenFilter, savegame::texte::DateiEndung});
    }
    if (pfad.isEmpty()) return;
    savegame::ordnerMerken(speicher_, pfad);
    partieLaden(pfad);
}

void Tischprogramm::partieLaden(const QString& pfad) {
    savegame::Spielstand stand;
    savegame::Weiter weiter = savegame::Weiter::LaufendesSpiel;
    {
        Pause pause(steuerung_);
        // Groups an older file lacks keep the values the table has now.
        stand.spiel = steuerung_.spiel();
        stand.optionen = einstellungen_.regeln;
        const savegame::Leseergebnis ergebnis = savegame::PartieLaden(pfad, stand);
        const savegame::Ladeablauf ablauf = savegame::ladeablauf(ergebnis, stand);
        weiter = ablauf.weiter;
        for (const savegame::Meldung& m : ablauf.meldungen) melden(&hfo_, m);
        if (ablauf.sticheFragen) {
            const bool ansehen =
                QMessageBox::question(&hfo_, QString::fromUtf8(texte::Fenstertitel), t(savegame::texte::SticheAnsehen),
                                      QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
            for (const savegame::Meldung& m : ablauf.nachDerFrage) melden(&hfo_, m);
            if (ansehen && !stand.spiel.stiche.empty()) {
                Stichbetrachter betrachter(hfo_.bilder(), &hfo_);
                const int letzter = static_cast<int>(stand.spiel.stiche.size()) - 1;
                betrachter.setzeStiche(stand.spiel, stand.spiel.stiche, std::clamp(ablauf.stichansichtBeiJa - 1, 0, letzter));
                betrachter.exec();
            }
        }
    }
    if (weiter != savegame::Weiter::LaufendesSpiel) emit partieGeladen();
    switch (weiter) {
        case savegame::Weiter::LaufendesSpiel: return;
        case savegame::Weiter::NeuePartie: steuerung_.neuePartie(); return;
        case savegame::Weiter::NaechstesSpiel:
        case savegame::Weiter::Fortsetzen: break;
    }
    // The rule options of the file hold for the running program from now on.
    einstellungen_.regeln = stand.optionen;
    steuerung_.setzeRegelOptionen(stand.optionen);
    steuerung_.geladenFortsetzen(stand.spiel);
}

std::optional<engine::Kartenverteilung> Tischprogramm::kartenGeben(const engine::Spiel& spiel) {
    if (!benutzer_.manuelleVerteilung || !manuellErlaubt_) return std::nullopt;
    QMessageBox frage(QMessageBox::Question, QString::fromUtf8(texte::Fenstertitel),
                      t(engine::ablauftext::ManuelleVerteilung), QMessageBox::Yes | QMessageBox::No, &hfo_);
    frage.setDefaultButton(QMessageBox::No);
    if (frage.exec() != QMessageBox::Yes) return std::nullopt;
    engine::SeedZufall zufall(QRandomGenerator::global()->generate64());
    Verteilungsdialog dialog(hfo_.bilder(), spiel.regeln.kartenanzahl, spiel.regeln.joker, spiel.namen, zufall, &hfo_);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.verteilung().verteilung();
}

}  // namespace table

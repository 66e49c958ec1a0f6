#include "Turnierpartie.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTextBrowser>
#include <QTimer>
#include <QVBoxLayout>

#include "Ergebnisdialog.h"
#include "Hauptfenster.h"
#include "Qtext.h"
#include "Regelseite.h"
#include "Tischprogramm.h"
#include "Tischsteuerung.h"
#include "Tischtexte.h"
#include "Turniertexte.h"
#include "engine/Spielablauf.h"
#include "services/Diensttexte.h"
#include "services/Ergebnisablage.h"
#include "services/Smtpclient.h"

namespace table {

using namespace turniertext;

QString turnierregelnHtml(int spiele) {
    QString html = regelnHtml(services::turnierregeln(spiele));
    html.replace(QStringLiteral("<h2>%1</h2>").arg(t(texte::IhreRegeln)), QStringLiteral("<h2>%1</h2>").arg(t(RegelnDerTurnierpartie)));
    return html;
}

Turnierpartie::Turnierpartie(Hauptfenster& hfo, Tischsteuerung& steuerung, Tischprogramm& programm, QString ordner,
                             QObject* parent)
    : QObject(parent),
      hfo_(hfo),
      steuerung_(steuerung),
      programm_(programm),
      ordner_(std::move(ordner)),
      uhr_([] { return QDateTime::currentDateTime(); }) {
    steuerung_.ablauf().beobachterHinzufuegen(this);
    anzeige_ = new QLabel(&hfo_);
    anzeige_->setObjectName(QStringLiteral("turnieranzeige"));
    hfo_.statusBar()->addPermanentWidget(anzeige_);
    anzeige_->hide();
    connect(hfo_.turnierpartieAktion(), &QAction::triggered, this, &Turnierpartie::turnierpartieZeigen);
    connect(hfo_.ergebnisseAktion(), &QAction::triggered, this, [this] { ergebnisseZeigen(false); });
    connect(&hfo_, &Hauptfenster::neuePartieBestaetigt, this, [this] {
        if (!laeuft()) return;
        aufgeben();
        QMessageBox::information(&hfo_, t(TurnierTitel), t(Abgebrochen));
    });
    connect(&programm_, &Tischprogramm::partieGeladen, this, [this] {
        if (laeuft()) aufgeben();
    });
    // Settings confirmed during the Partie change the display, not its rules or players.
    connect(&programm_, &Tischprogramm::einstellungenUebernommen, this, [this] {
        if (laeuft()) regelnDurchsetzen();
    });
    connect(&steuerung_, &Tischsteuerung::spielGewertet, this, &Turnierpartie::anzeigen);
    // Out of the game cycle's step first: the end brings boxes of its own.
    connect(&steuerung_, &Tischsteuerung::partieBeendet, this, [this] { QTimer::singleShot(0, this, &Turnierpartie::partieEnde); });
    hfo_.setzeVorDemBeenden([this] { beimBeendenAnbieten(); });
}

void Turnierpartie::turnierpartieZeigen() {
    QDialog dialog(&hfo_);
    dialog.setObjectName(QStringLiteral("turnierdialog"));
    dialog.setWindowTitle(t(TurnierTitel));
    auto* spalte = new QVBoxLayout(&dialog);
    auto* erklaerung = new QLabel(t(TurnierErklaerung), &dialog);
    erklaerung->setWordWrap(true);
    spalte->addWidget(erklaerung);
    auto* form = new QFormLayout;
    auto* laenge = new QComboBox(&dialog);
    laenge->setObjectName(QStringLiteral("Ende_nach"));
    laenge->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    for (const int n : services::Turnierlaengen) laenge->addItem(QString::number(n), n);
    laenge->setCurrentIndex(laenge->count() - 1);
    form->addRow(t(AnzahlSpiele), laenge);
    spalte->addLayout(form);
    auto* regeln = new QTextBrowser(&dialog);
    spalte->addWidget(regeln, 1);
    auto zeigen = [laenge, regeln] { regeln->setHtml(turnierregelnHtml(laenge->currentData().toInt())); };
    connect(laenge, &QComboBox::currentIndexChanged, &dialog, zeigen);
    zeigen();
    auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    knoepfe->button(QDialogButtonBox::Ok)->setText(t(Beginnen));
    connect(knoepfe, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    spalte->addWidget(knoepfe);
    dialog.resize(640, 560);
    steuerung_.dialogOffen(true);
    const bool ok = dialog.exec() == QDialog::Accepted;
    const int spiele = laenge->currentData().toInt();
    steuerung_.dialogOffen(false);
    if (!ok) return;
    if (steuerung_.ablauf().partieLaeuft() &&
        QMessageBox::question(&hfo_, t(TurnierTitel), t(engine::ablauftext::PartieAbbrechen),
                              QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
        return;
    beginnen(spiele);
}

void Turnierpartie::regelnDurchsetzen() {
    steuerung_.setzeRegelOptionen(services::turnierregeln(spiele_));
    steuerung_.setzeCharaktere(engine::ProSitz<int>{2});
    programm_.setzeManuellesGebenErlaubt(false);
}

void Turnierpartie::beginnen(int spiele) {
    spiele_ = spiele;
    partieNr_.reset();
    gewertet_ = 0;
    gestoert_ = false;
    regelnDurchsetzen();
    anzeigen();
    steuerung_.neuePartie();
}

void Turnierpartie::aufgeben() {
    spiele_ = 0;
    const settings::Einstellungen& e = programm_.einstellungen();
    steuerung_.setzeRegelOptionen(e.regeln);
    engine::ProSitz<int> charaktere;
    for (const engine::Sitz s : engine::alleSitze) charaktere[s] = e.charakter[static_cast<std::size_t>(s.nr() - 1)];
    steuerung_.setzeCharaktere(charaktere);
    programm_.setzeManuellesGebenErlaubt(true);
    anzeigen();
}

void Turnierpartie::anzeigen() {
    anzeige_->setVisible(laeuft());
    if (laeuft()) anzeige_->setText(t(Laeuft).arg(std::min(gewertet_ + 1, spiele_)).arg(spiele_));
}

void Turnierpartie::kartenGegeben(const engine::Spiel& spiel) {
    if (!laeuft()) return;
    if (!partieNr_) partieNr_ = spiel.partie.partieNr;
    const bool eigeneRegeln = spiel.regeln == engine::regelnUebernehmen(services::turnierregeln(spiele_));
    if (spiel.partie.partieNr != *partieNr_ || !eigeneRegeln) gestoert_ = true;
}

void Turnierpartie::spielBeendet(const engine::Spiel& spiel) {
    if (!laeuft()) return;
    if (partieNr_ && spiel.partie.partieNr == *partieNr_) ++gewertet_;
    else gestoert_ = true;
}

void Turnierpartie::partieEnde() {
    if (!laeuft()) return;
    const Spielzettelinhalt zettel = steuerung_.spielzettelInhalt();
    const bool vollstaendig = !gestoert_ && gewertet_ == spiele_ && static_cast<int>(zettel.spiele.size()) == spiele_;
    const int spiele = spiele_;
    aufgeben();
    if (!vollstaendig) {
        QMessageBox::information(&hfo_, t(TurnierTitel), t(Abgebrochen));
        return;
    }
    services::Turnierergebnis e;
    e.programm = services::programmkennung().toStdString();
    e.spieler = zettel.namen[engine::Sitz(1)];
    e.ende = services::zeitpunktVon(uhr_());
    e.regeln = engine::regelnUebernehmen(services::turnierregeln(spiele));
    e.spiele = zettel.spiele;
    e.summen = zettel.summen;
    const QString pfad = services::ergebnisSchreiben(ordner_, e);
    if (pfad.isEmpty()) {
        QMessageBox::critical(&hfo_, t(TurnierTitel), t(NichtGespeichert) + ordner_);
        return;
    }
    emit ergebnisGeschrieben(pfad);
    if (QMessageBox::question(&hfo_, t(TurnierTitel), t(Gespeichert).arg(QDir::toNativeSeparators(pfad)),
                              QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes)
        ergebnisseZeigen(true);
}

void Turnierpartie::ergebnisseZeigen(bool sofort) {
    Ergebnisdialog dialog(ordner_, programm_.benutzer().mail, &hfo_);
    steuerung_.dialogOffen(true);
    if (sofort) QTimer::singleShot(0, &dialog, &Ergebnisdialog::cmdSenden_Click);
    dialog.exec();
    steuerung_.dialogOffen(false);
}

bool Turnierpartie::beimBeendenAnbieten() {
    if (services::wartendeErgebnisse(ordner_).isEmpty()) return false;
    const QString frage = t(services::texte::NichtVollstaendig) + QLatin1Char('\n') + t(services::texte::JetztUebertragen);
    if (QMessageBox::question(&hfo_, t(texte::Fenstertitel), frage, QMessageBox::Yes | QMessageBox::No) ==
        QMessageBox::Yes)
        ergebnisseZeigen(true);
    return true;
}

}  // namespace table

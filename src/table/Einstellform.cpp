#include "Einstellform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHostAddress>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QNetworkInterface>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include "Dateiwahl.h"
#include "Einstellelemente.h"
#include "Einstelltexte.h"
#include "Kartenmaler.h"
#include "Mailgruppe.h"
#include "Qtext.h"
#include "Lerntexte.h"
#include "Spielercharakter.h"
#include "Tempostufen.h"
#include "Regelvorlagen.h"
#include "Vorlagenwahl.h"
#include "engine/Regeln.h"
#include "settings/Benutzerspeicher.h"
#include "settings/Einstellungstexte.h"
#include "settings/Optionsdatei.h"
#include "settings/Zeichensatz.h"

namespace table {

namespace {

using namespace einstelltext;


const QString OrdnerSchluessel = QStringLiteral("Einstellungsordner");

bool istRegelschalter(const QString& schluessel) {
    for (const auto& r : engine::regelSchluessel())
        if (r.schalter && settings::gleichOhneGrossschreibung(schluessel.toStdString(), r.schluessel)) return true;
    return false;
}

std::vector<std::pair<int, QString>> stichfristen() {
    std::vector<std::pair<int, QString>> werte{{0, t(Unzulaessig)}};
    for (int n = 1; n <= 5; ++n) werte.emplace_back(n, t(BisEinschliesslich) + QString::number(n) + t(StichEnde));
    return werte;
}

}  // namespace

void wertWaehlen(QComboBox* liste, int wert) {
    int i = liste->findData(wert);
    if (i < 0) {
        liste->addItem(t(UnbekannterWert) + QString::number(wert), wert);
        i = liste->count() - 1;
    }
    liste->setCurrentIndex(i);
}

Einstellform::Einstellform(const settings::Einstellungen& e, const Benutzereinstellungen& b, Einstellumgebung umgebung,
                           QWidget* parent)
    : QDialog(parent), umgebung_(umgebung), basis_(e) {
    setObjectName(QStringLiteral("einstellform"));
    setWindowTitle(t(Titel));
    auto* spalte = new QVBoxLayout(this);
    reiter_ = new QTabWidget(this);
    reiter_->addTab(regelnSeite(), t(TabRegeln));
    reiter_->addTab(sonderpunkteSeite(), t(TabSonderpunkte));
    reiter_->addTab(spielerSeite(), t(TabSpieler));
    reiter_->addTab(anzeigeSeite(), t(TabAnzeige));
    reiter_->addTab(soundSeite(), t(TabSound));
    reiter_->addTab(netzwerkSeite(), t(TabNetzwerk));
    spalte->addWidget(reiter_);

    auto* unten = new QHBoxLayout;
    speichernJn_ = new QCheckBox(t(SpeichernJn), this);
    speichernJn_->setObjectName(QStringLiteral("speichern_jn"));
    speichernJn_->setChecked(true);
    unten->addWidget(speichernJn_);
    unten->addStretch();
    auto* exportKnopf = new QPushButton(t(Exportieren), this);
    exportKnopf->setObjectName(QStringLiteral("cmdexport"));
    auto* importKnopf = new QPushButton(t(Importieren), this);
    importKnopf->setObjectName(QStringLiteral("cmdimport"));
    auto* reset = new QPushButton(t(Zuruecksetzen), this);
    reset->setObjectName(QStringLiteral("cmdreset"));
    for (QPushButton* k : {exportKnopf, importKnopf, reset}) {
        k->setAutoDefault(false);
        unten->addWidget(k);
    }
    spalte->addLayout(unten);
    auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    spalte->addWidget(knoepfe);
    connect(knoepfe, &QDialogButtonBox::accepted, this, &Einstellform::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &Einstellform::reject);
    connect(exportKnopf, &QPushButton::clicked, this, &Einstellform::exportieren);
    connect(importKnopf, &QPushButton::clicked, this, &Einstellform::importieren);
    connect(reset, &QPushButton::clicked, this, &Einstellform::cmdreset_Click);

    setzeEinstellungen(e);
    setzeBenutzer(b);
    // The preset list follows every rule control.
    for (const Bindung& bindung : bindungen_)
        if (istRegel(bindung.schluessel.toStdString())) vorlagen_->beobachten(bindung.feld);
    vorlagen_->erkennen();
}

Einstellform::~Einstellform() = default;

void Einstellform::binden(const char* schluessel, QWidget* feld, std::function<int(int)> angleichen) {
    feld->setObjectName(QString::fromUtf8(schluessel));
    const QString name = QString::fromUtf8(schluessel);
    bindungen_.push_back({name, feld, istRegelschalter(name), std::move(angleichen)});
}

QWidget* Einstellform::feld(const char* schluessel) const {
    for (const Bindung& b : bindungen_)
        if (b.schluessel == QString::fromUtf8(schluessel)) return b.feld;
    return nullptr;
}

QCheckBox* Einstellform::schalter(const char* schluessel, const char* text, QWidget* eltern) {
    auto* c = new QCheckBox(t(text), eltern);
    binden(schluessel, c);
    return c;
}

QGroupBox* Einstellform::schaltergruppe(const char* titel, std::initializer_list<Schaltereintrag> eintraege,
                                        QWidget* eltern) {
    auto* g = gruppe(titel, eltern);
    auto* liste = new QVBoxLayout(g);
    for (const Schaltereintrag& e : eintraege) liste->addWidget(schalter(e.schluessel, e.text, g));
    return g;
}

QComboBox* Einstellform::auswahl(const char* schluessel, const std::vector<std::pair<int, QString>>& werte,
                                 QWidget* eltern, std::function<int(int)> angleichen) {
    auto* c = new QComboBox(eltern);
    for (const auto& [wert, text] : werte) c->addItem(text, wert);
    binden(schluessel, c, std::move(angleichen));
    return c;
}

bool Einstellform::an(const char* schluessel) const { return qobject_cast<QCheckBox*>(feld(schluessel))->isChecked(); }

// Options that only mean something while another is on can only be changed then.
void Einstellform::freigaben() {
    const bool solis = an("Solis");
    for (const char* k : {"Solo", "Vh_Solo", "DaBu_Solo"}) feld(k)->setEnabled(solis);
    feld("Hh_n_Solo")->setEnabled(solis && an("Vh_Solo"));
    const bool schweine = an("Zwei_Schweine");
    for (const char* k : {"Schweine_ansagen", "Schweine_b_TrSolo", "Supersau"}) feld(k)->setEnabled(schweine);
    feld("Stille_befoerderung")->setEnabled(schweine && an("Supersau"));
    const int abr = qobject_cast<Wahlgruppe*>(feld("Abr_Option"))->wert();
    feld("Ende_bei")->setEnabled(abr == 1);
    feld("Ende_nach")->setEnabled(abr == 2);
}

QWidget* Einstellform::regelnSeite() {
    auto* seite = new QWidget(this);
    auto* spalten = new QHBoxLayout(seite);
    auto* links = new QVBoxLayout;
    auto* rechts = new QVBoxLayout;
    spalten->addLayout(links, 1);
    spalten->addLayout(rechts, 1);
    vorlagen_ = new Vorlagenwahl(
        umgebung_.speicher, [this] { return einstellungen().regeln; },
        [this](const engine::RegelOptionen& r) {
            settings::Einstellungen e = einstellungen();
            e.regeln = r;
            setzeEinstellungen(e);
        },
        seite);
    rechts->addWidget(vorlagen_);

    // End of the Partie: by points or after a number of games.
    auto* ende = gruppe(Partieende, seite);
    auto* abr = new Wahlgruppe(ende);
    binden("Abr_Option", abr, [](int w) { return w == 1 ? 1 : 2; });
    abr->knopf(1, t(BeiUeberschreiten), 0);
    abr->knopf(2, t(Nach), 1);
    auto* endeBei = new QSpinBox(ende);
    endeBei->setRange(1, 99999);
    binden("Ende_bei", endeBei);
    auto* endeNach = new QSpinBox(ende);
    endeNach->setRange(1, 999);
    binden("Ende_nach", endeNach);
    abr->gitter()->addWidget(endeBei, 0, 1);
    abr->gitter()->addWidget(new QLabel(t(Punkten), ende), 0, 2);
    abr->gitter()->addWidget(endeNach, 1, 1);
    abr->gitter()->addWidget(new QLabel(t(Spielen), ende), 1, 2);
    abr->gitter()->setColumnStretch(3, 1);
    connect(abr, &Wahlgruppe::geaendert, this, &Einstellform::freigaben);
    (new QVBoxLayout(ende))->addWidget(abr);
    links->addWidget(ende);

    auto* spiel = new QGroupBox(seite);
    auto* form = new QFormLayout(spiel);
    vorhand_ = auswahl("Vorhand", {{0, t(VorhandZufall)}, {1, t(VorhandAnwender)}, {2, {}}, {3, {}}, {4, {}}}, spiel);
    form->addRow(t(VorhandErstesSpiel), vorhand_);
    form->addRow(t(KontraRe), auswahl("Kontra", stichfristen(), spiel));
    form->addRow(t(Limitgebot), auswahl("Limit", stichfristen(), spiel));
    links->addWidget(spiel);

    auto* karten = gruppe(Karten, seite);
    auto* kspalte = new QVBoxLayout(karten);
    kspalte->addWidget(new QLabel(t(Dollen), karten));
    dollen_ = new Wahlgruppe(karten);
    binden("HerzZehn", dollen_, [](int w) { return w == -1 ? -1 : 0; });
    dollen_->knopf(0, t(ZweiteSchlaegtErste), 0);
    dollen_->knopf(-1, t(ErsteSchlaegtZweite), 1);
    dollen_->gitter()->setContentsMargins(16, 0, 0, 0);
    kspalte->addWidget(dollen_);
    joker_ = schalter("Joker", Joker, karten);
    kspalte->addWidget(joker_);
    jokerHinweis_ = hinweis(JokerHinweis, karten);
    jokerHinweis_->setObjectName(QStringLiteral("jokerhinweis"));
    kspalte->addWidget(jokerHinweis_);
    connect(dollen_, &Wahlgruppe::geaendert, this, &Einstellform::dollenGeaendert);
    connect(joker_, &QCheckBox::toggled, jokerHinweis_, &QLabel::setEnabled);
    kspalte->addWidget(schalter("Scharfer_Rupa", ScharferRupa, karten));
    kspalte->addWidget(schalter("Bockrunden", Bockrunden, karten));
    links->addWidget(karten);
    links->addStretch();

    auto* solo = gruppe(Solospiele, seite);
    auto* sspalte = new QVBoxLayout(solo);
    sspalte->addWidget(schalter("Solis", Solis, solo));
    auto* einzug = eingerueckt();
    einzug->addWidget(schalter("Solo", Pflichtsolo, solo));
    einzug->addWidget(schalter("Vh_Solo", VhSolo, solo));
    auto* nachSolo = eingerueckt();
    nachSolo->addWidget(schalter("Hh_n_Solo", HhNSolo, solo));
    einzug->addLayout(nachSolo);
    einzug->addWidget(schalter("DaBu_Solo", DabuSolo, solo));
    sspalte->addLayout(einzug);
    rechts->addWidget(solo);

    auto* neu = gruppe(NeuGeben, seite);
    auto* nspalte = new QVBoxLayout(neu);
    nspalte->addWidget(schalter("Neunerwerfen", Neunerwerfen, neu));
    nspalte->addWidget(schalter("Koenigewerfen", Koenigewerfen, neu));
    nspalte->addWidget(schalter("Armut", Armut, neu));
    rechts->addWidget(neu);

    rechts->addStretch();
    rechts->addWidget(hinweis(AbNaechstemSpiel, seite));

    for (const char* k : {"Solis", "Vh_Solo"})
        connect(qobject_cast<QCheckBox*>(feld(k)), &QCheckBox::toggled, this, &Einstellform::freigaben);
    return seite;
}

void Einstellform::dollenGeaendert(int herzZehn) {
    // With the Joker the first Dolle is always high: "Zweite schlägt Erste" takes
    // the Joker away, and choosing "Erste schlägt Zweite" again gives it back.
    const bool zweiteSchlaegtErste = herzZehn != -1;
    if (zweiteSchlaegtErste && joker_->isEnabled()) {
        jokerMitErsterDolle_ = joker_->isChecked();
        joker_->setChecked(false);
    } else if (!zweiteSchlaegtErste && !joker_->isEnabled()) {
        joker_->setChecked(jokerMitErsterDolle_);
    }
    joker_->setEnabled(!zweiteSchlaegtErste);
    jokerHinweis_->setEnabled(joker_->isChecked());
}

QWidget* Einstellform::sonderpunkteSeite() {
    auto* seite = new QWidget(this);
    auto* spalte = new QVBoxLayout(seite);
    spalte->addWidget(schaltergruppe(Sonderpunkte,
                                     {{"Sopu_Fuchs", SopuFuchs},
                                      {"Sopu_doppelfuchs", SopuDoppelfuchs},
                                      {"Sopu_karlchen", SopuKarlchen},
                                      {"Sopu_doppelkarlchen", SopuDoppelkarlchen},
                                      {"Sopu_rupa_b_Solo", SopuRupaBSolo},
                                      {"Sopu_Dollenschlag", SopuDollenschlag},
                                      {"Sopu_Herzstich", SopuHerzstich}},
                                     seite));
    spalte->addWidget(hinweis(ImmerSonderpunkte, seite));

    auto* schweine = gruppe(Schweine, seite);
    auto* wspalte = new QVBoxLayout(schweine);
    wspalte->addWidget(schalter("Zwei_Schweine", ZweiSchweine, schweine));
    auto* wein = eingerueckt();
    wein->addWidget(schalter("Schweine_ansagen", SchweineAnsagen, schweine));
    wein->addWidget(schalter("Schweine_b_TrSolo", SchweineKaroSolo, schweine));
    wein->addWidget(schalter("Supersau", Supersau, schweine));
    wein->addWidget(schalter("Stille_befoerderung", StilleBefoerderung, schweine));
    wspalte->addLayout(wein);
    spalte->addWidget(schweine);
    spalte->addStretch();
    for (const char* k : {"Zwei_Schweine", "Supersau"})
        connect(qobject_cast<QCheckBox*>(feld(k)), &QCheckBox::toggled, this, &Einstellform::freigaben);
    return seite;
}

settings::Einstellungen Einstellform::einstellungen() const {
    settings::Einstellungen e = basis_;
    for (std::size_t i = 0; i < 4; ++i) {
        e.namen[i] = namen_[i]->text().toStdString();
        e.charakter[i] = charaktere_[i]->currentData().toInt();
    }
    e.animation = tempo_->currentIndex() == TempoAus ? 0 : -1;
    for (const Bindung& b : bindungen_) {
        int* ziel = settings::feld(e, b.schluessel.toStdString());
        if (!ziel) continue;
        if (auto* c = qobject_cast<QCheckBox*>(b.feld)) *ziel = c->isChecked() ? -1 : 0;
        else if (auto* l = qobject_cast<QComboBox*>(b.feld)) *ziel = l->currentData().toInt();
        else if (auto* s = qobject_cast<QSpinBox*>(b.feld)) *ziel = s->value();
        else if (auto* w = qobject_cast<Wahlgruppe*>(b.feld)) *ziel = w->wert();
        else if (auto* f = qobject_cast<Farbknopf*>(b.feld)) *ziel = f->wert();
    }
    engine::jokerAbgleichen(e.regeln);
    return e;
}

void Einstellform::setzeEinstellungen(const settings::Einstellungen& e) {
    basis_ = e;
    for (std::size_t i = 0; i < 4; ++i) {
        namen_[i]->setText(QString::fromStdString(e.namen[i]));
        wertWaehlen(charaktere_[i], e.charakter[i]);
    }
    settings::Einstellungen kopie = e;
    for (const Bindung& b : bindungen_) {
        const int* quelle = settings::feld(kopie, b.schluessel.toStdString());
        if (!quelle) continue;
        const int wert = b.angleichen ? b.angleichen(*quelle) : *quelle;
        if (auto* c = qobject_cast<QCheckBox*>(b.feld)) c->setChecked(b.regel ? wert == -1 : wert != 0);
        else if (auto* l = qobject_cast<QComboBox*>(b.feld)) wertWaehlen(l, wert);
        else if (auto* s = qobject_cast<QSpinBox*>(b.feld)) s->setValue(wert);
        else if (auto* w = qobject_cast<Wahlgruppe*>(b.feld)) w->setzeWert(wert);
        else if (auto* f = qobject_cast<Farbknopf*>(b.feld)) f->setzeWert(wert);
    }
    tempo_->setCurrentIndex(e.animation == 0 ? TempoAus : tempoMitBewegung_);
    // The Joker as given, then the Dollen decide whether it may stay.
    joker_->setEnabled(true);
    dollenGeaendert(dollen_->wert());
    freigaben();
    vorschau_->setzeKartenbild(e.kartenbild);
    vorschau_->setzeRueckseite(e.rueckseite);
}

Benutzereinstellungen Einstellform::benutzer() const {
    Benutzereinstellungen b;
    b.netzadapter = netzadapter_->currentData().toString();
    b.ipErfragen = ipErfragen_->isChecked();
    b.serverport = serverport_->value();
    b.netztempo = netztempo_->value();
    b.verbindungsart = verbindungsart_->currentData().toInt();
    b.proxyServer = proxyServer_->text();
    b.ircServer = ircServer_->text();
    b.ircPort = ircPort_->value();
    b.ircRaum = ircRaum_->text();
    b.manuelleVerteilung = manuelleVerteilung_->isChecked();
    b.tempo = tempo_->currentIndex() == TempoAus ? tempoMitBewegung_ : tempo_->currentIndex();
    b.mail = mail_->konto();
    return b;
}

void Einstellform::setzeBenutzer(const Benutzereinstellungen& b) {
    int i = netzadapter_->findData(b.netzadapter);
    if (i < 0) {
        // An adapter chosen on another day keeps its place in the list.
        netzadapter_->addItem(b.netzadapter, b.netzadapter);
        i = netzadapter_->count() - 1;
    }
    netzadapter_->setCurrentIndex(i);
    ipErfragen_->setChecked(b.ipErfragen);
    serverport_->setValue(b.serverport);
    netztempo_->setValue(b.netztempo);
    wertWaehlen(verbindungsart_, b.verbindungsart);
    proxyServer_->setText(b.proxyServer);
    ircServer_->setText(b.ircServer);
    ircPort_->setValue(b.ircPort);
    ircRaum_->setText(b.ircRaum);
    manuelleVerteilung_->setChecked(b.manuelleVerteilung);
    tempoMitBewegung_ = std::clamp(b.tempo, static_cast<int>(TempoSchnell), static_cast<int>(TempoLangsam));
    if (tempo_->currentIndex() != TempoAus) tempo_->setCurrentIndex(tempoMitBewegung_);
    mail_->setzeKonto(b.mail);
}

bool Einstellform::speichern() const { return speichernJn_->isChecked(); }

void Einstellform::accept() {
    if (speichern() && !settings::EinstellungenSchreiben(umgebung_.optionsdatei, einstellungen()))
        QMessageBox::critical(this, windowTitle(), t(NichtGeschrieben) + umgebung_.optionsdatei);
    benutzereinstellungenSchreiben(umgebung_.speicher, benutzer(), speichern());
    QDialog::accept();
}

QString Einstellform::ordner() const {
    const QString o = umgebung_.speicher.text(OrdnerSchluessel);
    return o.isEmpty() ? QDir::homePath() : o;
}

void Einstellform::ordnerMerken(const QString& pfad) {
    umgebung_.speicher.setzeText(OrdnerSchluessel, QFileInfo(pfad).absolutePath());
}

void Einstellform::exportieren() {
    const QString pfad = umgebung_.dateiwahl.speichern(
        this, {t(settings::texte::ExportTitel), ordner(), settings::texte::DateiFilter, settings::texte::DateiEndung});
    if (pfad.isEmpty()) return;
    ordnerMerken(pfad);
    // A fresh file: whatever lay under the chosen name is replaced, not merged.
    settings::Profildatei datei;
    settings::inProfil(datei, einstellungen());
    if (!settings::atomarSchreiben(pfad, datei.bytes()))
        QMessageBox::critical(this, t(settings::texte::ExportTitel), t(NichtGeschrieben) + pfad);
}

void Einstellform::importieren() {
    const QString pfad = umgebung_.dateiwahl.oeffnen(
        this, {t(settings::texte::ImportTitel), ordner(), settings::texte::DateiFilter, settings::texte::DateiEndung});
    if (pfad.isEmpty()) return;
    ordnerMerken(pfad);
    const settings::Import ergebnis = settings::EinstellungenImportieren(pfad, einstellungen(), umgebung_.kontext);
    if (!ergebnis.einstellungen) {
        QMessageBox::critical(this, t(settings::texte::ImportTitel), QString::fromStdString(ergebnis.fehler));
        return;
    }
    setzeEinstellungen(*ergebnis.einstellungen);
}

void Einstellform::cmdreset_Click() {
    if (QMessageBox::question(this, windowTitle(), t(settings::texte::ResetFrage), QMessageBox::Yes | QMessageBox::No,
                              QMessageBox::No) != QMessageBox::Yes)
        return;
    umgebung_.speicher.zuruecksetzen(umgebung_.optionsdatei);
    emit zurueckgesetzt();
    reject();
}

}  // namespace table

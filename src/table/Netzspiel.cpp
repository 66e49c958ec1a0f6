#include "Netzspiel.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QStatusBar>
#include <QTimer>
#include <algorithm>

#include "Hauptfenster.h"
#include "Netzanmeldung.h"
#include "Netzbereiche.h"
#include "Netzfenstertexte.h"
#include "Netzgasttisch.h"
#include "Netzhosttisch.h"
#include "Qtext.h"
#include "Tischansicht.h"
#include "Tischprogramm.h"
#include "Tischsteuerung.h"
#include "Tischtexte.h"
#include "engine/Spielablauf.h"
#include "net/Netztexte.h"
#include "settings/Benutzerspeicher.h"

namespace table {

namespace {
QString q(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }
QString q(const std::string& text) { return QString::fromStdString(text); }
constexpr int ChatHoehe = 130;  // pixels: six lines and the line to type
constexpr qsizetype MaxFoyertext = 4000;  // characters of one received chunk in the log
}  // namespace

int pumpintervall(int netztempo) { return std::max(0, 50 - 10 * std::clamp(netztempo, 0, 5)); }

// The table while its player is in the foyer: nothing is dealt, so no box of a
// local game stands in the foyer's way; a Partie of its own takes its place.
class Foyerruhe final : public Netzanbindung {
public:
    bool darfGeben() const override { return false; }
    bool nurWartend() const override { return true; }
    QString status(const engine::Anfrage&, const QString&) const override { return t(netztext::ImFoyer); }
};

Netzspiel::Netzspiel(Hauptfenster& hfo, Tischsteuerung& steuerung, Tischprogramm& programm,
                     settings::Benutzerspeicher& speicher, QObject* parent)
    : QObject(parent), hfo_(hfo), steuerung_(steuerung), programm_(programm), speicher_(speicher) {
    // In the game menu after the tournament entries.
    QMenu* menue = hfo_.spielMenue();
    const QList<QAction*> aktionen = menue->actions();
    QAction* davor = aktionen.value(aktionen.indexOf(hfo_.ergebnisseAktion()) + 1);
    netzwerkspiel_ = new QAction(t(netztext::NetzwerkspielMenue), &hfo_);
    netzwerkspiel_->setObjectName(QStringLiteral("m_netzwerkspiel"));
    start_ = new QAction(t(netztext::SpielStarten), &hfo_);
    start_->setObjectName(QStringLiteral("menu_netzstart"));
    start_->setVisible(false);
    menue->insertAction(davor, netzwerkspiel_);
    menue->insertAction(davor, start_);

    lauschen_ = new QLabel(&hfo_);
    lauschen_->setObjectName(QStringLiteral("labLauschen"));
    lauschen_->setVisible(false);
    hfo_.statusBar()->addPermanentWidget(lauschen_);

    // Below the table, so the table keeps its width for the names and the hand.
    chat_ = new Chatbereich(&hfo_);
    hfo_.addDockWidget(Qt::BottomDockWidgetArea, chat_);
    chat_->hide();
    protokoll_ = new Protokollbereich(&hfo_);
    hfo_.addDockWidget(Qt::BottomDockWidgetArea, protokoll_);
    hfo_.splitDockWidget(chat_, protokoll_, Qt::Horizontal);
    protokoll_->hide();

    connect(netzwerkspiel_, &QAction::triggered, this, &Netzspiel::anmeldungZeigen);
    connect(start_, &QAction::triggered, this, [this] {
        if (!host_) return;
        host_->starten();
        start_->setText(q(net::texte::SpielGestartet));
        menueAnpassen();
    });
    connect(hfo_.netzprotokollAktion(), &QAction::triggered, this,
            [this] { protokollUmschalten(!protokoll_->isVisible()); });
    connect(protokoll_, &QDockWidget::visibilityChanged, this, [this] {
        hfo_.netzprotokollAktion()->setText(
            t(protokoll_->isVisible() ? netztext::NetzprotokollAusblenden : texte::NetzprotokollZeigen));
    });
    connect(chat_, &Chatbereich::gesendet, this, [this](const QString& text) {
        if (host_) host_->chatSenden(text);
        else if (gast_) gast_->chatSenden(text);
    });
    // After a word in the chat the cards are played by keyboard again without a click.
    connect(chat_, &Chatbereich::fertig, this, [this] { hfo_.tisch().setFocus(); });
    // The guests hear of a new Partie before its first deal.
    connect(&hfo_, &Hauptfenster::neuePartieBestaetigt, this, [this] {
        if (host_) host_->neuePartieMelden();
    });
    connect(&programm_, &Tischprogramm::einstellungenUebernommen, this, [this](const settings::Einstellungen& e) {
        if (host_) host_->regelnGeaendert(e.regeln);
    });
}

// The table goes right after (it was made first), without a step in between.
Netzspiel::~Netzspiel() = default;

net::Netzzeiten Netzspiel::zeiten() const {
    if (zeiten_) return *zeiten_;
    net::Netzzeiten z;
    z.takt = pumpintervall(programm_.benutzer().netztempo);
    return z;
}

std::unique_ptr<Netzanmeldung> Netzspiel::dialog(std::optional<bool> beitreten, const QString& name) {
    auto d = std::make_unique<Netzanmeldung>(speicher_, programm_.benutzer().netzadapter, &hfo_);
    if (beitreten) d->setzeBeitreten(*beitreten);
    if (!name.isEmpty()) d->setzeName(name);
    connect(d.get(), &Netzanmeldung::regelnGewuenscht, &programm_, &Tischprogramm::einstellungenZeigen);
    return d;
}

bool Netzspiel::dialogAusfuehren(Netzanmeldung& d) {
    steuerung_.dialogOffen(true);
    const bool ok = d.exec() == QDialog::Accepted;
    steuerung_.dialogOffen(false);
    return ok;
}

bool Netzspiel::partieAufgeben() {
    if (wartetImFoyer() || !steuerung_.partieOffen()) return true;
    steuerung_.dialogOffen(true);
    const bool ja = QMessageBox::question(&hfo_, hfo_.windowTitle(), t(engine::ablauftext::PartieAbbrechen),
                                          QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
    steuerung_.dialogOffen(false);
    return ja;
}

void Netzspiel::anmeldungZeigen() {
    if (host_ || gast_ || !partieAufgeben()) return;
    auto d = dialog(std::nullopt, {});
    if (!dialogAusfuehren(*d)) return;
    const int port = programm_.benutzer().serverport;
    if (!d->beitreten()) {
        hosten(d->name(), port);
        return;
    }
    const auto adresse = serveradresseLesen(d->server(), port);
    if (!adresse) {
        QMessageBox::information(&hfo_, t(texte::Fenstertitel), q(net::texte::ServerFehlt));
        return;
    }
    ausDialog_ = true;
    beitreten(adresse->host, adresse->port, d->name());
}

bool Netzspiel::hostenMitName(const QString& name, std::optional<int> port) {
    const int p = port.value_or(programm_.benutzer().serverport);
    if (!anmeldungPruefen(name.toStdString(), false, {})) return hosten(name, p);
    auto d = dialog(false, name);
    return dialogAusfuehren(*d) && !d->beitreten() && hosten(d->name(), p);
}

bool Netzspiel::beitretenMitAdresse(const QString& adresse, const QString& name) {
    const auto a = serveradresseLesen(adresse, programm_.benutzer().serverport);
    if (a && !anmeldungPruefen(name.toStdString(), true, a->host.toStdString())) {
        ausDialog_ = false;
        beitreten(a->host, a->port, name);
        return true;
    }
    auto d = dialog(true, name);
    d->setzeServer(adresse);
    if (!dialogAusfuehren(*d) || !d->beitreten()) return false;
    const auto b = serveradresseLesen(d->server(), programm_.benutzer().serverport);
    if (!b) return false;
    ausDialog_ = true;
    beitreten(b->host, b->port, d->name());
    return true;
}

bool Netzspiel::hosten(const QString& name, int port) {
    const engine::ProSitz<std::string> namen = steuerung_.spiel().namen;
    auto* h = new Netzhosttisch(hfo_, steuerung_, name, programm_.benutzer().netztempo, zeiten(), this);
    if (!h->lauschen(static_cast<quint16>(port), programm_.benutzer().netzadapter)) {
        QMessageBox::critical(&hfo_, t(texte::Fenstertitel), h->fehler());
        delete h;
        steuerung_.setzeNamen(namen);
        return false;
    }
    host_ = h;
    connect(h, &Netzhosttisch::spielerKommt, this, &Netzspiel::spielerKommt);
    connect(h, &Netzhosttisch::spielerGeht, this, &Netzspiel::spielerGeht);
    connect(h, &Netzhosttisch::startbereitGeaendert, this, &Netzspiel::menueAnpassen);
    connect(h, &Netzhosttisch::lauschenGeaendert, this, [this](bool lauscht) {
        lauschen_->setText(lauscht ? t(netztext::LauschtAnPort) + QString::number(host_->port()) : t(netztext::TischVoll));
    });
    lauschen_->setText(t(netztext::LauschtAnPort) + QString::number(h->port()));
    start_->setText(t(netztext::SpielStarten));
    anbinden(h);
    chat_->zeileAnhaengen(q(net::texte::Willkommen));
    return true;
}

void Netzspiel::beitreten(const QString& host, int port, const QString& name) {
    auto* g = new Netzgasttisch(hfo_, steuerung_, zeiten(), this);
    gast_ = g;
    serverHost_ = host;
    connect(g, &Netzgasttisch::nameVergeben, this, &Netzspiel::nameVergeben);
    connect(g, &Netzgasttisch::verloren, this, &Netzspiel::verloren);
    connect(g, &Netzgasttisch::aufgegeben, this, &Netzspiel::programmBeenden);
    // The host's "Netzt" sets the pace of the table.
    if (!zeiten_)
        connect(&g->gast(), &net::Gast::netztempoErhalten, g,
                [g](int netztempo) { g->gast().setzeTakt(pumpintervall(netztempo)); });
    anbinden(g);
    g->verbinden(host, static_cast<quint16>(port), name);
}

void Netzspiel::anbinden(Netztisch* tisch) {
    steuerung_.netzAnbinden(tisch);
    connect(tisch, &Netztisch::chatzeile, chat_, &Chatbereich::zeileAnhaengen);
    connect(tisch, &Netztisch::protokollzeile, this, [this, tisch] { protokoll_->setzeProtokoll(tisch->protokoll()); });
    protokoll_->setzeProtokoll(tisch->protokoll());
    chat_->show();
    hfo_.resizeDocks({chat_}, {ChatHoehe}, Qt::Vertical);
    menueAnpassen();
    // From the foyer the table comes to the front.
    hfo_.raise();
    hfo_.activateWindow();
    hfo_.tisch().setFocus();
}

void Netzspiel::menueAnpassen() {
    const bool netz = host_ || gast_;
    netzwerkspiel_->setEnabled(!netz);
    hfo_.ladenAktion()->setEnabled(!netz);
    hfo_.turnierpartieAktion()->setEnabled(!netz);
    // The host starts each Partie; a guest's Partie is the host's.
    hfo_.neuePartieAktion()->setEnabled(!netz || (host_ && host_->gestartet()));
    start_->setVisible(host_ != nullptr);
    start_->setEnabled(host_ && host_->startbereit());
    lauschen_->setVisible(host_ != nullptr);
    hfo_.netzprotokollAktion()->setEnabled(netz || foyerVerbunden_);
    if (!netz && !foyerVerbunden_) protokollUmschalten(false);
}

void Netzspiel::protokollUmschalten(bool zeigen) {
    protokoll_->setVisible(zeigen);
    if (zeigen) hfo_.resizeDocks({chat_, protokoll_}, {hfo_.width() / 2, hfo_.width() / 2}, Qt::Horizontal);
}

void Netzspiel::tischAbbauen() {
    Netztisch* alt = host_ ? static_cast<Netztisch*>(host_) : gast_;
    if (!alt) return;
    if (gast_) gast_->verlassen();
    host_ = nullptr;
    gast_ = nullptr;
    alt->disconnect(this);
    alt->disconnect(chat_);
    protokoll_->setzeProtokoll(&foyerprotokoll_);
    alt->deleteLater();
    chat_->hide();
    menueAnpassen();
    emit tischAbgebaut();
}

void Netzspiel::alleinSpielen() {
    if (!host_ && !gast_) return;
    tischAbbauen();
    // The seats get their own names and players back; a local Partie begins.
    steuerung_.netzAnbinden(nullptr);
    programm_.EinstUebernehmen(programm_.einstellungen(), programm_.benutzer());
}

void Netzspiel::imFoyerWarten() {
    tischAbbauen();
    if (!ruhe_) ruhe_ = std::make_unique<Foyerruhe>();
    steuerung_.netzAnbinden(ruhe_.get());
    programm_.EinstUebernehmen(programm_.einstellungen(), programm_.benutzer());
}

bool Netzspiel::wartetImFoyer() const { return ruhe_ && steuerung_.netz() == ruhe_.get(); }

void Netzspiel::foyerVerbunden(bool verbunden) {
    foyerVerbunden_ = verbunden;
    if (!host_ && !gast_) protokoll_->setzeProtokoll(&foyerprotokoll_);
    menueAnpassen();
}

void Netzspiel::foyertextProtokollieren(const QString& text) {
    if (!protokoll_->isVisible()) return;
    // One line per received line; a flood is cut, the log keeps its own bound.
    QString zeilen = text.left(MaxFoyertext);
    zeilen.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    zeilen.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    while (zeilen.endsWith(QLatin1Char('\n'))) zeilen.chop(1);
    Netztisch* tisch = host_ ? static_cast<Netztisch*>(host_) : gast_;
    if (tisch && tisch->vermerken(zeilen)) return;
    foyerprotokoll_.vermerk(zeilen.toStdString());
    protokoll_->geaendert();
}

void Netzspiel::nameVergeben(const QString& text) {
    if (!gast_) return;
    QMessageBox::information(&hfo_, t(texte::Fenstertitel), text);
    auto d = dialog(true, {});
    d->setzeServer(serverHost_);
    d->nurNameAendern();
    if (dialogAusfuehren(*d)) {
        if (gast_) gast_->nameSenden(d->name());
        return;
    }
    alleinSpielen();
}

void Netzspiel::verloren(bool erreicht, int nummer, const QString& beschreibung) {
    if (!gast_) return;
    const QString titel = t(texte::Fenstertitel);
    steuerung_.dialogOffen(true);
    if (!erreicht && ausDialog_) {
        // From the dialog the person can correct the address and try again.
        QMessageBox::information(&hfo_, titel, q(net::texte::nichtErreicht(serverHost_.toStdString())));
        steuerung_.dialogOffen(false);
        alleinSpielen();
        QTimer::singleShot(0, this, &Netzspiel::anmeldungZeigen);
        return;
    }
    QMessageBox::critical(&hfo_, titel,
                          q(net::texte::gastFehler(nummer, beschreibung.toStdString())) + QLatin1Char('\n') +
                              q(erreicht ? net::texte::TischinhaberWeg : net::texte::TischNichtErreicht));
    const bool insFoyer = QMessageBox::question(&hfo_, titel, q(net::texte::InsFoyer),
                                                QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
    steuerung_.dialogOffen(false);
    if (!insFoyer) {
        QMessageBox::information(&hfo_, titel, q(net::texte::ProgrammEndet));
        programmBeenden();
        return;
    }
    // A player logged in to this program's foyer goes back to it; else the program starts anew into it.
    if (foyerZurueck_ && foyerZurueck_()) return imFoyerWarten();
    if (foyerRueckkehr_) {
        if (foyerRueckkehr_()) return programmBeenden();
    } else {
        speicher_.restartVormerken();
        speicher_.synchronisieren();
    }
    QMessageBox::information(&hfo_, titel, t(netztext::KeinNeustart));
    alleinSpielen();
}

void Netzspiel::programmBeenden() {
    if (gast_) gast_->verlassen();
    hfo_.SubPrgBeenden();
}

}  // namespace table

#include "Foyerprogramm.h"

#include <QDockWidget>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMetaMethod>
#include <QProcess>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include "Foyerfenster.h"
#include "Foyertexte.h"
#include "table/Qtext.h"
#include "Foyerverbindung.h"
#include "settings/Benutzerspeicher.h"
#include "table/Fensterplatz.h"

namespace foyer {

using table::t;

namespace {

const QString StartNick = QStringLiteral("StartNick");
const QString IrcServer = QStringLiteral("IRCServer");
const QString IrcPort = QStringLiteral("IRCPort");
const QString IrcRaum = QStringLiteral("IRCRaum");

settings::Fenstergeometrie geometrie(const settings::Benutzerspeicher& s, const QString& kopf) {
    return {s.zahl(kopf + QStringLiteral("_x")), s.zahl(kopf + QStringLiteral("_y")), s.zahl(kopf + QStringLiteral("_w")),
            s.zahl(kopf + QStringLiteral("_h"))};
}

void geometrieSetzen(settings::Benutzerspeicher& s, const QString& kopf, const settings::Fenstergeometrie& g) {
    s.setzeZahl(kopf + QStringLiteral("_x"), g.x);
    s.setzeZahl(kopf + QStringLiteral("_y"), g.y);
    s.setzeZahl(kopf + QStringLiteral("_w"), g.breite);
    s.setzeZahl(kopf + QStringLiteral("_h"), g.hoehe);
}

}  // namespace

Foyerprogramm::Foyerprogramm(settings::Benutzerspeicher& speicher, Namenspruefung pruefung, QObject* parent)
    : QObject(parent),
      speicher_(speicher),
      pruefung_(std::move(pruefung)),
      verbindung_(new Foyerverbindung(speicher.text(IrcRaum), this)),
      fenster_(new Foyerfenster) {
    Foyerverbindung& v = *verbindung_;
    Foyerfenster& f = *fenster_;
    connect(&v, &Foyerverbindung::angemeldet, this, [this] {
        wartenBeenden();
        fenster_->angemeldetSetzen(true);
        fenster_->statusSetzen(verbindung_->nick());
        listenZeigen();
    });
    connect(&v, &Foyerverbindung::nameAbgelehnt, this, [this](const QString& text) {
        wartenBeenden();
        melden(QMessageBox::Information, text, [this] { anmeldedialogZeigen(); });
    });
    connect(&v, &Foyerverbindung::anmeldungFehlgeschlagen, this, [this](const QString& text) {
        wartenBeenden();
        melden(QMessageBox::Critical, text, [this] { anmeldedialogZeigen(); });
    });
    connect(&v, &Foyerverbindung::verbindungVerloren, this, [this](const QString& text) {
        fenster_->angemeldetSetzen(false);
        fenster_->statusSetzen(QString());
        melden(QMessageBox::Critical, text);
    });
    connect(&v, &Foyerverbindung::listenGeaendert, this, &Foyerprogramm::listenZeigen);
    connect(&v, &Foyerverbindung::foyerChat, &f, &Foyerfenster::foyerZeile);
    connect(&v, &Foyerverbindung::privatChat, &f, &Foyerfenster::privatZeile);
    connect(&v, &Foyerverbindung::systemzeile, &f, &Foyerfenster::systemzeile);
    connect(&v, &Foyerverbindung::tischEroeffnet, this, &Foyerprogramm::listenZeigen);

    connect(&f, &Foyerfenster::foyerChatGesendet, &v, &Foyerverbindung::foyerChatSenden);
    connect(&f, &Foyerfenster::privatGesendet, &v, &Foyerverbindung::privatSenden);
    connect(&f, &Foyerfenster::sichtbarkeitGeaendert, &v, [&v](bool sichtbar) { v.setzeNichtErreichbar(!sichtbar); });
    connect(&f, &Foyerfenster::tischEroeffnenGewuenscht, this, &Foyerprogramm::tischEroeffnenGewuenscht);
    connect(&f, &Foyerfenster::platzNehmenGewuenscht, this, [this](int nummer) {
        for (const auto& tisch : verbindung_->sitzung().tische())
            if (tisch.angebot.nummer == nummer && tisch.angebot.frei > 0) emit platzNehmenGewuenscht(tisch.angebot);
    });
    connect(&f, &Foyerfenster::zurueckGewuenscht, this, &Foyerprogramm::tischVerlassenGewuenscht);
    connect(&f, &Foyerfenster::geschlossen, this, &Foyerprogramm::platzGeometrieSichern);
}

Foyerprogramm::~Foyerprogramm() {
    if (fenster_->isVisible()) platzGeometrieSichern();
    verbindung_->abmelden();
    delete fenster_;
}

void Foyerprogramm::oeffnen() {
    if (!geometrieGeladen_) platzGeometrieLaden();
    fenster_->tischseiteSetzen(isSignalConnected(QMetaMethod::fromSignal(&Foyerprogramm::platzNehmenGewuenscht)) &&
                               isSignalConnected(QMetaMethod::fromSignal(&Foyerprogramm::tischEroeffnenGewuenscht)));
    fenster_->show();
    fenster_->raise();
    fenster_->activateWindow();
    if (!verbindung_->istAngemeldet() && !warten_) anmeldedialogZeigen();
}

void Foyerprogramm::anmeldedialogZeigen() {
    auto* dialog = new Foyeranmeldung(pruefung_, fenster_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setzen(speicher_.text(StartNick), speicher_.text(IrcServer), speicher_.zahl(IrcPort));
    connect(dialog, &QDialog::accepted, this, [this, dialog] { anmelden(dialog->name(), dialog->server(), dialog->port()); });
    dialog->open();
}

void Foyerprogramm::anmelden(const QString& name, const QString& server, int port) {
    speicher_.setzeText(StartNick, name);
    speicher_.setzeText(IrcServer, server);
    speicher_.setzeZahl(IrcPort, port);
    speicher_.synchronisieren();
    // The wait can be cancelled; then the login dialog comes back.
    auto* box = new QMessageBox(QMessageBox::NoIcon, t(texte::Anmeldetitel), t(texte::AnmeldungLaeuft),
                                QMessageBox::NoButton, fenster_);
    box->setObjectName(QStringLiteral("frmAnmeldungWartet"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* abbruch = box->addButton(t(texte::Abbruch), QMessageBox::RejectRole);
    connect(abbruch, &QPushButton::clicked, this, [this] {
        verbindung_->abmelden();
        anmeldedialogZeigen();
    });
    warten_ = box;
    box->open();
    verbindung_->anmelden(server, static_cast<quint16>(port), name);
}

void Foyerprogramm::wartenBeenden() {
    QMessageBox* box = warten_.data();
    warten_.clear();
    if (!box) return;
    for (QAbstractButton* knopf : box->buttons()) knopf->disconnect(this);
    box->close();
}

void Foyerprogramm::melden(int symbol, const QString& text, std::function<void()> danach) {
    auto* box = new QMessageBox(static_cast<QMessageBox::Icon>(symbol), fenster_->windowTitle(), text, QMessageBox::Ok,
                                fenster_);
    box->setAttribute(Qt::WA_DeleteOnClose);
    if (danach) connect(box, &QMessageBox::finished, this, [danach = std::move(danach)] { danach(); });
    box->open();
}

void Foyerprogramm::listenZeigen() {
    const Foyersitzung& s = verbindung_->sitzung();
    fenster_->spielerZeigen(s.spieler(), verbindung_->nick());
    fenster_->tischeZeigen(s.tische());
    const auto eigen = s.eigenerTisch();
    fenster_->amTischSetzen(eigen ? eigen->nummer : s.sitzAn());
}

void Foyerprogramm::tischAnsagen(const QString& adresse, int port, int frei, const QString& regeln) {
    verbindung_->tischEroeffnen(adresse, port, frei, regeln);
}

void Foyerprogramm::freiePlaetzeSetzen(int frei) { verbindung_->freiePlaetzeSetzen(frei); }

void Foyerprogramm::platzGenommen(int nummer) {
    verbindung_->platzNehmen(nummer);
    listenZeigen();
}

void Foyerprogramm::tischWeg() {
    verbindung_->tischSchliessen();
    verbindung_->platzVerlassen();
    listenZeigen();
}

void Foyerprogramm::zurueckImFoyer() {
    tischWeg();
    oeffnen();
}

bool insFoyerNeustarten(settings::Benutzerspeicher& speicher) {
    speicher.restartVormerken();
    speicher.synchronisieren();
    if (QProcess::startDetached(QCoreApplication::applicationFilePath(), {})) return true;
    speicher.restartUebernehmen();  // no new program: nobody would read the marker
    return false;
}

void Foyerprogramm::platzGeometrieLaden() {
    geometrieGeladen_ = true;
    QScreen* schirm = QGuiApplication::primaryScreen();
    const QRect bildschirm = schirm ? schirm->availableGeometry() : QRect(0, 0, 1024, 768);
    fenster_->setGeometry(table::fensterrahmen(geometrie(speicher_, QStringLiteral("chat")), bildschirm));
    const int breite = speicher_.zahl(QStringLiteral("spListe_w")) / table::TwipsProPixel;
    fenster_->resizeDocks({fenster_->spielerDock()}, {std::max(breite, 80)}, Qt::Horizontal);
}

void Foyerprogramm::platzGeometrieSichern() {
    geometrieSetzen(speicher_, QStringLiteral("chat"), table::fenstergeometrie(fenster_->normalGeometry()));
    const QDockWidget* dock = fenster_->spielerDock();
    geometrieSetzen(speicher_, QStringLiteral("spListe"),
                    table::fenstergeometrie(QRect(dock->mapToGlobal(QPoint(0, 0)), dock->size())));
    speicher_.synchronisieren();
}

}  // namespace foyer

#include "Netzanmeldung.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHostInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QNetworkInterface>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "Netzfenstertexte.h"
#include "Qtext.h"
#include "Tischtexte.h"
#include "net/Namen.h"
#include "net/Netztexte.h"
#include "settings/Benutzerspeicher.h"

namespace table {

namespace {
// "StartenMit": which choice the dialog opens with.
constexpr int MitHosten = 1;
constexpr int MitBeitreten = 2;
const QString StartenMit = QStringLiteral("StartenMit");
const QString Verbindung1 = QStringLiteral("Verbindung1");
const QString StartNick = QStringLiteral("StartNick");
constexpr int MaxEingabe = 255;
}  // namespace

std::optional<std::string> anmeldungPruefen(const std::string& name, bool beitreten, const std::string& server) {
    if (auto fehler = net::namePruefen(name)) return fehler;
    if (beitreten && QString::fromStdString(server).trimmed().isEmpty()) return std::string(net::texte::ServerFehlt);
    return std::nullopt;
}

std::optional<Serveradresse> serveradresseLesen(const QString& eintrag, int standardPort) {
    QString text = eintrag.trimmed();
    // An entry with an explicit address marker, e.g. "Kneipe [IP=192.168.0.7]".
    if (const qsizetype marke = text.indexOf(QLatin1String("[IP="), 0, Qt::CaseInsensitive); marke >= 0) {
        const qsizetype zu = text.indexOf(QLatin1Char(']'), marke);
        text = text.mid(marke + 4, zu < 0 ? -1 : zu - marke - 4).trimmed();
    }
    Serveradresse a{text, standardPort};
    QString port;
    if (text.startsWith(QLatin1Char('['))) {
        const qsizetype zu = text.indexOf(QLatin1Char(']'));
        if (zu < 0) return std::nullopt;
        a.host = text.mid(1, zu - 1);
        const QString rest = text.mid(zu + 1);
        if (!rest.isEmpty() && !rest.startsWith(QLatin1Char(':'))) return std::nullopt;
        port = rest.mid(1);
        if (rest.isEmpty()) port.clear();
        else if (port.isEmpty()) return std::nullopt;
    } else if (text.count(QLatin1Char(':')) == 1) {
        a.host = text.section(QLatin1Char(':'), 0, 0);
        port = text.section(QLatin1Char(':'), 1);
        if (port.isEmpty()) return std::nullopt;
    }
    a.host = a.host.trimmed();
    if (a.host.isEmpty()) return std::nullopt;
    if (!port.isEmpty()) {
        bool zahl = false;
        a.port = port.toInt(&zahl);
        if (!zahl || a.port < 1 || a.port > 65535) return std::nullopt;
    }
    return a;
}

QString lokaleAdresse(const QString& netzadapter) {
    if (!netzadapter.isEmpty()) return netzadapter;
    for (const QHostAddress& a : QNetworkInterface::allAddresses())
        if (a.protocol() == QAbstractSocket::IPv4Protocol && !a.isLoopback()) return a.toString();
    return QStringLiteral("127.0.0.1");
}

Netzanmeldung::Netzanmeldung(settings::Benutzerspeicher& speicher, const QString& netzadapter, QWidget* parent)
    : QDialog(parent), speicher_(speicher) {
    setObjectName(QStringLiteral("frmNetzanmeldung"));
    setWindowTitle(t(netztext::AnmeldungTitel));

    auto* wahl = new QGroupBox(this);
    wahl->setObjectName(QStringLiteral("optClientOrServer"));
    hosten_ = new QRadioButton(t(netztext::TischEroeffnen), wahl);
    hosten_->setObjectName(QStringLiteral("optServer"));
    beitreten_ = new QRadioButton(t(netztext::PlatzNehmen), wahl);
    beitreten_->setObjectName(QStringLiteral("optClient"));
    auto* wahlSpalte = new QVBoxLayout(wahl);
    wahlSpalte->addWidget(hosten_);
    wahlSpalte->addWidget(beitreten_);

    name_ = new QLineEdit(speicher_.text(StartNick), this);
    name_->setObjectName(QStringLiteral("txtName"));
    name_->setMaxLength(MaxEingabe);
    server_ = new QLineEdit(speicher_.text(Verbindung1), this);
    server_->setObjectName(QStringLiteral("txtServer"));
    server_->setMaxLength(MaxEingabe);
    auto* felder = new QFormLayout;
    felder->addRow(t(netztext::IhrName), name_);
    felder->addRow(t(netztext::Rechner), server_);

    auto* rechner = new QLabel(t(net::texte::Computername) + QHostInfo::localHostName(), this);
    rechner->setObjectName(QStringLiteral("labComputername"));
    adresse_ = new QLabel(this);
    adresse_->setObjectName(QStringLiteral("labIPAdresse"));
    setzeLokaleAdresse(lokaleAdresse(netzadapter));

    auto* knoepfe = new QDialogButtonBox(this);
    auto* ok = knoepfe->addButton(t(netztext::Ok), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    auto* abbrechen = knoepfe->addButton(t(netztext::Abbrechen), QDialogButtonBox::RejectRole);
    abbrechen->setObjectName(QStringLiteral("cmdAbbrechen"));
    auto* regeln = knoepfe->addButton(t(netztext::Regeln), QDialogButtonBox::ResetRole);
    regeln->setObjectName(QStringLiteral("cmdRegeln"));
    // The button box's own accept would close the dialog before the checks.
    connect(ok, &QPushButton::clicked, this, &Netzanmeldung::cmdOK_Click);
    connect(abbrechen, &QPushButton::clicked, this, &QDialog::reject);
    connect(regeln, &QPushButton::clicked, this, &Netzanmeldung::regelnGewuenscht);

    auto* spalte = new QVBoxLayout(this);
    spalte->addWidget(wahl);
    spalte->addLayout(felder);
    spalte->addWidget(rechner);
    spalte->addWidget(adresse_);
    spalte->addWidget(knoepfe);

    setzeBeitreten(speicher_.zahl(StartenMit) != MitHosten);
    // The choice is kept as soon as it changes, whatever becomes of the dialog.
    connect(beitreten_, &QRadioButton::toggled, this, &Netzanmeldung::artGewechselt);
    name_->setFocus();
}

bool Netzanmeldung::beitreten() const { return beitreten_->isChecked(); }

void Netzanmeldung::setzeBeitreten(bool beitreten) {
    (beitreten ? beitreten_ : hosten_)->setChecked(true);
    server_->setEnabled(beitreten);
}

QString Netzanmeldung::name() const { return name_->text(); }
void Netzanmeldung::setzeName(const QString& name) { name_->setText(name); }
QString Netzanmeldung::server() const { return server_->text().trimmed(); }
void Netzanmeldung::setzeServer(const QString& server) { server_->setText(server); }

void Netzanmeldung::nurNameAendern() {
    hosten_->setEnabled(false);
    beitreten_->setEnabled(false);
    server_->setEnabled(false);
    name_->selectAll();
}

void Netzanmeldung::setzeLokaleAdresse(const QString& adresse) {
    lokaleAdresse_ = adresse;
    adresse_->setText(t(net::texte::IpAdresse) + adresse);
}

void Netzanmeldung::artGewechselt() {
    server_->setEnabled(beitreten() && beitreten_->isEnabled());
    speicher_.setzeZahl(StartenMit, beitreten() ? MitBeitreten : MitHosten);
}

void Netzanmeldung::cmdOK_Click() {
    const QString titel = t(texte::Fenstertitel);
    if (const auto fehler = anmeldungPruefen(name_->text().toStdString(), beitreten(), server().toStdString())) {
        QMessageBox::information(this, titel, QString::fromStdString(*fehler));
        name_->setFocus();
        return;
    }
    if (lokaleAdresse_ == QLatin1String("127.0.0.1"))
        QMessageBox::warning(this, titel, t(net::texte::KeineVerbindung));
    speicher_.setzeText(StartNick, name_->text());
    if (beitreten()) speicher_.setzeText(Verbindung1, server());
    speicher_.synchronisieren();
    accept();
}

}  // namespace table

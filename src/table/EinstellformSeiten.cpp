// The settings pages that are not rules: players, display, sound and network.
#include "Einstellform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHostAddress>
#include <QLabel>
#include <QLineEdit>
#include <QNetworkInterface>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "Einstellelemente.h"
#include "Einstelltexte.h"
#include "Kartenmaler.h"
#include "Lerntexte.h"
#include "Mailgruppe.h"
#include "Qtext.h"
#include "Spielercharakter.h"
#include "Tempostufen.h"
#include "settings/Einstellungen.h"

namespace table {

namespace {

using namespace einstelltext;

// Names are read into a buffer of 254 characters, so 253 remain.
constexpr int NamenLaenge = static_cast<int>(settings::Textpuffer) - 1;

}  // namespace

QWidget* Einstellform::spielerSeite() {
    auto* seite = new QWidget(this);
    auto* spalte = new QVBoxLayout(seite);
    auto* sitze = new QGroupBox(seite);
    auto* gitter = new QGridLayout(sitze);
    gitter->addWidget(new QLabel(t(Sitz), sitze), 0, 0);
    gitter->addWidget(new QLabel(t(Name), sitze), 0, 1);
    gitter->addWidget(new QLabel(t(Spielweise), sitze), 0, 2);
    std::vector<std::pair<int, QString>> arten;
    for (const Charakter& c : charaktere()) arten.emplace_back(c.wert, t(c.name));
    for (int i = 0; i < 4; ++i) {
        const auto n = static_cast<std::size_t>(i);
        gitter->addWidget(new QLabel(i == 0 ? t(SitzSie) : QString::number(i + 1), sitze), i + 1, 0);
        namen_[n] = new QLineEdit(sitze);
        namen_[n]->setMaxLength(NamenLaenge);
        namen_[n]->setObjectName(QStringLiteral("Name%1").arg(i + 1));
        connect(namen_[n], &QLineEdit::textChanged, this, &Einstellform::vorhandNamenSetzen);
        gitter->addWidget(namen_[n], i + 1, 1);
        charaktere_[n] = new QComboBox(sitze);
        for (const auto& [wert, text] : arten) charaktere_[n]->addItem(text, wert);
        charaktere_[n]->setObjectName(QStringLiteral("charakter%1").arg(i + 1));
        gitter->addWidget(charaktere_[n], i + 1, 2);
    }
    gitter->setColumnStretch(1, 1);
    spalte->addWidget(sitze);
    spalte->addWidget(hinweis(SpielweiseSitz1, seite));

    // How long the strong player (character 3) thinks; it counts games, so a busy
    // machine plays the same cards, only later.
    auto* stark = gruppe(StarkerSpieler, seite);
    auto* bedenkzeit = zahlenfeld("Bedenkzeit", 10, 10000, stark);
    bedenkzeit->setSingleStep(100);
    bedenkzeit->setSuffix(t(Millisekunden));
    bedenkzeit->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    binden("Bedenkzeit", bedenkzeit);
    (new QFormLayout(stark))->addRow(t(Bedenkzeit), bedenkzeit);
    spalte->addWidget(stark);

    auto* verteilung = gruppe(Kartenverteilung, seite);
    manuelleVerteilung_ = new QCheckBox(t(ManuelleVerteilung), verteilung);
    manuelleVerteilung_->setObjectName(QStringLiteral("ManuelleVerteilung"));
    (new QVBoxLayout(verteilung))->addWidget(manuelleVerteilung_);
    spalte->addWidget(verteilung);
    spalte->addStretch();
    return seite;
}

void Einstellform::vorhandNamenSetzen() {
    for (int sitz = 2; sitz <= 4; ++sitz) {
        const int i = vorhand_->findData(sitz);
        if (i >= 0) vorhand_->setItemText(i, namen_[static_cast<std::size_t>(sitz - 1)]->text());
    }
}

QWidget* Einstellform::anzeigeSeite() {
    auto* seite = new QWidget(this);
    auto* spalte = new QVBoxLayout(seite);

    auto* bild = gruppe(Kartenbild, seite);
    auto* form = new QFormLayout(bild);
    QComboBox* kartenbild = auswahl("Kartenbild", {{1, t(Kartenbild1)}, {2, t(Kartenbild2)}, {3, t(Kartenbild3)}}, bild);
    std::vector<std::pair<int, QString>> ruecken;
    for (int n = 1; n <= AnzahlRueckseiten; ++n) ruecken.emplace_back(n, QString::number(n));
    QComboBox* rueckseite = auswahl("Rückseite", ruecken, bild);
    form->addRow(t(Kartenbild), kartenbild);
    form->addRow(t(Rueckseite), rueckseite);
    vorschau_ = new Kartenvorschau(bild);
    vorschau_->setObjectName(QStringLiteral("vorschau"));
    form->addRow(vorschau_);
    connect(kartenbild, &QComboBox::currentIndexChanged, this,
            [this, kartenbild] { vorschau_->setzeKartenbild(kartenbild->currentData().toInt()); });
    connect(rueckseite, &QComboBox::currentIndexChanged, this,
            [this, rueckseite] { vorschau_->setzeRueckseite(rueckseite->currentData().toInt()); });
    spalte->addWidget(bild);

    auto* unten = new QHBoxLayout;
    auto* tisch = gruppe(Tisch, seite);
    auto* tform = new QFormLayout(tisch);
    auto* hintergrund = new Farbknopf(tisch);
    binden("Hintergrund", hintergrund);
    auto* vordergrund = new Farbknopf(tisch);
    binden("Vordergrund", vordergrund);
    tform->addRow(t(Hintergrund), hintergrund);
    tform->addRow(t(Vordergrund), vordergrund);
    tform->addRow(t(Einsammeln), auswahl("Einsammeln", {{0, t(EinsammelnSofort)}, {-1, t(EinsammelnKlick)}}, tisch,
                                         [](int w) { return w == 0 ? 0 : -1; }));
    tform->addRow(schalter("Augen_zeigen", AugenZeigen, tisch));
    tform->addRow(schalter("Partei_zeigen", ParteiZeigen, tisch));
    unten->addWidget(tisch, 1);

    auto* fenster = gruppe(Fenster, seite);
    auto* fspalte = new QVBoxLayout(fenster);
    // "Animation" and the pace in one list: off, fast, normal, slow.
    auto* tempoZeile = new QHBoxLayout;
    tempoZeile->addWidget(new QLabel(t(lerntext::Tempo), fenster));
    tempo_ = new QComboBox(fenster);
    tempo_->setObjectName(QStringLiteral("Tempo"));
    for (const char* stufe : {lerntext::TempoAus, lerntext::TempoSchnell, lerntext::TempoNormal, lerntext::TempoLangsam})
        tempo_->addItem(t(stufe));
    tempoZeile->addWidget(tempo_, 1);
    connect(tempo_, &QComboBox::currentIndexChanged, this, [this](int i) {
        if (i != TempoAus) tempoMitBewegung_ = i;
    });
    fspalte->addLayout(tempoZeile);
    fspalte->addWidget(schalter("Karten", Karten_, fenster));
    fspalte->addWidget(schalter("Willkommen", Willkommen, fenster));
    fspalte->addWidget(schalter("Vollbild", Vollbild, fenster));
    fspalte->addWidget(schalter("Boxen", Boxen, fenster));
    fspalte->addWidget(schalter("Iconen", Iconen, fenster));
    fspalte->addWidget(schalter("Automatic", Automatic, fenster));
    fspalte->addStretch();
    unten->addWidget(fenster, 1);
    spalte->addLayout(unten);
    spalte->addStretch();
    return seite;
}

QWidget* Einstellform::soundSeite() {
    auto* seite = new QWidget(this);
    auto* spalte = new QVBoxLayout(seite);
    auto* klang = schaltergruppe(Klang, {{"Sprachausgabe", Sprachausgabe}, {"Geräusch", Geraeusch}, {"Signal", Signal}}, seite);
    spalte->addWidget(klang);
    if (!umgebung_.kontext.tonVerfuegbar) {
        klang->setEnabled(false);
        spalte->addWidget(hinweis(KeinTon, seite));
    }
    spalte->addStretch();
    return seite;
}

QWidget* Einstellform::netzwerkSeite() {
    auto* seite = new QWidget(this);
    auto* spalte = new QVBoxLayout(seite);
    auto* lan = gruppe(LokalesNetz, seite);
    auto* form = new QFormLayout(lan);
    netzadapter_ = new QComboBox(lan);
    netzadapter_->setObjectName(QStringLiteral("Netzadapter"));
    netzadapter_->addItem(t(AlleAdressen), QString());
    for (const QHostAddress& a : QNetworkInterface::allAddresses())
        if (a.protocol() == QAbstractSocket::IPv4Protocol && !a.isLoopback())
            netzadapter_->addItem(a.toString(), a.toString());
    form->addRow(t(Netzadapter), netzadapter_);
    serverport_ = zahlenfeld("Serverport", 1, 65535, lan);
    form->addRow(t(Serverport), serverport_);
    netztempo_ = zahlenfeld("Netztempo", 0, 99, lan);
    form->addRow(t(Netztempo), netztempo_);
    verbindungsart_ = new QComboBox(lan);
    verbindungsart_->setObjectName(QStringLiteral("Verbindungsart"));
    verbindungsart_->addItem(t(VerbindungLan), 1);
    verbindungsart_->addItem(t(VerbindungInternet), 2);
    form->addRow(t(Verbindungsart), verbindungsart_);
    ipErfragen_ = new QCheckBox(t(IpErfragen), lan);
    ipErfragen_->setObjectName(QStringLiteral("IPErfragen"));
    form->addRow(ipErfragen_);
    proxyServer_ = textfeld("ProxyServer", lan);
    form->addRow(t(ProxyServer), proxyServer_);
    spalte->addWidget(lan);

    auto* foyer = gruppe(Foyer, seite);
    auto* fform = new QFormLayout(foyer);
    ircServer_ = textfeld("IRCServer", foyer);
    fform->addRow(t(IrcServer), ircServer_);
    ircPort_ = zahlenfeld("IRCPort", 1, 65535, foyer);
    fform->addRow(t(IrcPort), ircPort_);
    ircRaum_ = textfeld("IRCRaum", foyer);
    fform->addRow(t(IrcRaum), ircRaum_);
    // The foyer and the result mail side by side, so the tab fits a small screen.
    auto* internet = new QHBoxLayout;
    internet->addWidget(foyer, 1);
    mail_ = new Mailgruppe(seite);
    internet->addWidget(mail_, 1);
    spalte->addLayout(internet);
    // Numbers need no full line.
    for (QSpinBox* zahl : {serverport_, netztempo_, ircPort_}) zahl->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    spalte->addStretch();
    return seite;
}

}  // namespace table

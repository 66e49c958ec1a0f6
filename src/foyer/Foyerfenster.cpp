#include "Foyerfenster.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "Foyertexte.h"
#include "table/Qtext.h"

namespace foyer {

using table::t;

namespace {

QString q(const std::string& text) { return QString::fromStdString(text); }

enum TischSpalte { SpNummer, SpGastgeber, SpFrei, SpRegeln, SpAmTisch };

const QColor Ungelesen(0xc0, 0x30, 0x10);  // the tab of a chat with new lines

}  // namespace

Foyerfenster::Foyerfenster(QWidget* parent) : QMainWindow(parent) {
    setObjectName(QStringLiteral("frmFoyer"));
    setWindowTitle(t(texte::Fenstertitel));

    spieler_ = new QTreeWidget;
    spieler_->setObjectName(QStringLiteral("lstSpieler"));
    spieler_->setHeaderLabels({t(texte::SpalteName), t(texte::SpalteTisch)});
    spieler_->setRootIsDecorated(false);
    spieler_->setSortingEnabled(true);
    spieler_->sortByColumn(0, Qt::AscendingOrder);
    spieler_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    spieler_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    spieler_->header()->setStretchLastSection(false);
    connect(spieler_, &QTreeWidget::itemActivated, this,
            [this](QTreeWidgetItem* eintrag) { privatchatOeffnen(eintrag->data(0, Qt::UserRole).toString()); });
    spielerDock_ = new QDockWidget(t(texte::Spieler), this);
    spielerDock_->setObjectName(QStringLiteral("spListe"));
    spielerDock_->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    spielerDock_->setWidget(spieler_);
    addDockWidget(Qt::LeftDockWidgetArea, spielerDock_);

    tische_ = new QTreeWidget;
    tische_->setObjectName(QStringLiteral("lstTische"));
    tische_->setHeaderLabels({t(texte::SpalteTisch), t(texte::SpalteGastgeber), t(texte::SpalteFrei),
                              t(texte::SpalteRegeln), t(texte::SpalteAmTisch)});
    tische_->setRootIsDecorated(false);
    tische_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(tische_, &QTreeWidget::itemActivated, this, &Foyerfenster::platzNehmen);
    connect(tische_, &QTreeWidget::itemSelectionChanged, this, &Foyerfenster::knoepfeAnpassen);

    eroeffnen_ = new QPushButton(t(texte::TischEroeffnen));
    eroeffnen_->setObjectName(QStringLiteral("cmdTischEroeffnen"));
    platzNehmen_ = new QPushButton(t(texte::PlatzNehmen));
    platzNehmen_->setObjectName(QStringLiteral("cmdPlatzNehmen"));
    zurueck_ = new QPushButton(t(texte::ZurueckZumFoyer));
    zurueck_->setObjectName(QStringLiteral("cmdZurueck"));
    connect(eroeffnen_, &QPushButton::clicked, this, &Foyerfenster::tischEroeffnenGewuenscht);
    connect(platzNehmen_, &QPushButton::clicked, this, &Foyerfenster::platzNehmen);
    connect(zurueck_, &QPushButton::clicked, this, &Foyerfenster::zurueckGewuenscht);
    auto* knoepfe = new QHBoxLayout;
    knoepfe->addWidget(eroeffnen_);
    knoepfe->addWidget(platzNehmen_);
    knoepfe->addStretch();
    knoepfe->addWidget(zurueck_);

    auto* oben = new QWidget;
    auto* obenLayout = new QVBoxLayout(oben);
    obenLayout->setContentsMargins(0, 0, 0, 0);
    auto* tischTitel = new QLabel(t(texte::Tische));
    tischTitel->setBuddy(tische_);
    obenLayout->addWidget(tischTitel);
    obenLayout->addWidget(tische_, 1);
    obenLayout->addLayout(knoepfe);

    chats_ = new QTabWidget;
    chats_->setObjectName(QStringLiteral("tabChats"));
    chats_->setTabsClosable(true);
    foyerchat_ = chatAnlegen(QStringLiteral("txtFoyer"));
    chats_->addTab(foyerchat_.seite, t(texte::FoyerChat));
    chats_->tabBar()->setTabButton(0, QTabBar::RightSide, nullptr);  // the foyer chat stays
    connect(foyerchat_.eingabe, &QLineEdit::returnPressed, this, [this] {
        const QString text = foyerchat_.eingabe->text().trimmed();
        foyerchat_.eingabe->clear();
        if (!text.isEmpty()) emit foyerChatGesendet(text);
    });
    // A chat seen is read: its tab loses the mark.
    connect(chats_, &QTabWidget::currentChanged, this,
            [this](int index) { chats_->tabBar()->setTabTextColor(index, QColor()); });
    connect(chats_, &QTabWidget::tabCloseRequested, this, [this](int index) {
        QWidget* seite = chats_->widget(index);
        std::erase_if(privat_, [seite](const auto& p) { return p.second.seite == seite; });
        chats_->removeTab(index);
        seite->deleteLater();
    });

    auto* teiler = new QSplitter(Qt::Vertical);
    teiler->addWidget(oben);
    teiler->addWidget(chats_);
    teiler->setStretchFactor(0, 2);
    teiler->setStretchFactor(1, 3);
    setCentralWidget(teiler);

    status_ = new QLabel;
    statusBar()->addWidget(status_, 1);
    knoepfeAnpassen();
}

Foyerfenster::Chat Foyerfenster::chatAnlegen(const QString& name) {
    Chat c{};
    c.seite = new QWidget;
    c.text = new QPlainTextEdit;
    c.text->setObjectName(name);
    c.text->setReadOnly(true);
    c.text->setMaximumBlockCount(MaxChatzeilen);
    c.eingabe = new QLineEdit;
    c.eingabe->setObjectName(name + QStringLiteral("Eingabe"));
    c.eingabe->setMaxLength(400);
    auto* senden = new QPushButton(t(texte::Senden));
    connect(senden, &QPushButton::clicked, c.eingabe, &QLineEdit::returnPressed);
    auto* zeile = new QHBoxLayout;
    zeile->addWidget(c.eingabe, 1);
    zeile->addWidget(senden);
    auto* layout = new QVBoxLayout(c.seite);
    layout->addWidget(c.text, 1);
    layout->addLayout(zeile);
    return c;
}

void Foyerfenster::anhaengen(const Chat& chat, const QString& zeile) {
    chat.text->appendPlainText(zeile);
    const int index = chats_->indexOf(chat.seite);
    if (index >= 0 && index != chats_->currentIndex()) chats_->tabBar()->setTabTextColor(index, Ungelesen);
}

bool Foyerfenster::ungelesen(const QString& nick) const {
    const QWidget* seite = nick.isEmpty() ? foyerchat_.seite : nullptr;
    for (const auto& [partner, chat] : privat_)
        if (partner.compare(nick, Qt::CaseInsensitive) == 0) seite = chat.seite;
    const int index = seite ? chats_->indexOf(seite) : -1;
    return index >= 0 && chats_->tabBar()->tabTextColor(index) == Ungelesen;
}

void Foyerfenster::spielerZeigen(const std::vector<Foyerspieler>& spieler, const QString& eigenerNick) {
    const QString gewaehlt = spieler_->currentItem() ? spieler_->currentItem()->data(0, Qt::UserRole).toString() : QString();
    spieler_->setSortingEnabled(false);
    spieler_->clear();
    for (const auto& s : spieler) {
        const QString nick = q(s.nick);
        auto* eintrag = new QTreeWidgetItem(spieler_, {nick, s.tisch ? q(texte::tischname(s.tisch)) : t(texte::ImFoyer)});
        eintrag->setData(0, Qt::UserRole, nick);
        if (nick.compare(eigenerNick, Qt::CaseInsensitive) == 0) {
            QFont fett = eintrag->font(0);
            fett.setBold(true);
            eintrag->setFont(0, fett);
        }
        if (nick == gewaehlt) spieler_->setCurrentItem(eintrag);
    }
    spieler_->setSortingEnabled(true);
}

void Foyerfenster::tischeZeigen(const std::vector<Foyertisch>& tische) {
    const int gewaehlt = gewaehlterTisch();
    tische_->clear();
    for (const auto& tisch : tische) {
        QStringList sitzend;
        for (const auto& n : tisch.sitzend) sitzend << q(n);
        auto* eintrag = new QTreeWidgetItem(tische_, {q(texte::tischname(tisch.angebot.nummer)), q(tisch.besitzer),
                                                      QString::number(tisch.angebot.frei), q(tisch.angebot.regeln),
                                                      sitzend.join(QStringLiteral(", "))});
        eintrag->setData(SpNummer, Qt::UserRole, tisch.angebot.nummer);
        eintrag->setData(SpFrei, Qt::UserRole, tisch.angebot.frei);
        eintrag->setTextAlignment(SpFrei, Qt::AlignCenter);
        if (tisch.angebot.nummer == gewaehlt) tische_->setCurrentItem(eintrag);
    }
    knoepfeAnpassen();
}

int Foyerfenster::gewaehlterTisch() const {
    const QTreeWidgetItem* eintrag = tische_->currentItem();
    return eintrag ? eintrag->data(SpNummer, Qt::UserRole).toInt() : 0;
}

void Foyerfenster::foyerZeile(const QString& von, const QString& text) {
    anhaengen(foyerchat_, von + QStringLiteral(": ") + text);
}

void Foyerfenster::privatZeile(const QString& partner, const QString& von, const QString& text) {
    if (Chat* c = privatchat(partner, true)) anhaengen(*c, von + QStringLiteral(": ") + text);
}

void Foyerfenster::systemzeile(const QString& partner, const QString& text) {
    Chat* c = partner.isEmpty() ? nullptr : privatchat(partner, false);
    anhaengen(c ? *c : foyerchat_, text);
}

Foyerfenster::Chat* Foyerfenster::privatchat(const QString& nick, bool anlegen) {
    for (auto& [partner, chat] : privat_)
        if (partner.compare(nick, Qt::CaseInsensitive) == 0) return &chat;
    if (!anlegen || nick.isEmpty()) return nullptr;
    if (static_cast<int>(privat_.size()) >= MaxPrivatchats) {  // the oldest chat makes room
        chats_->removeTab(chats_->indexOf(privat_.front().second.seite));
        privat_.front().second.seite->deleteLater();
        privat_.erase(privat_.begin());
    }
    Chat c = chatAnlegen(QStringLiteral("txtPrivat"));
    c.seite->setObjectName(nick);
    chats_->addTab(c.seite, nick);
    connect(c.eingabe, &QLineEdit::returnPressed, this, [this, nick, eingabe = c.eingabe] {
        const QString text = eingabe->text().trimmed();
        eingabe->clear();
        if (!text.isEmpty()) emit privatGesendet(nick, text);
    });
    privat_.emplace_back(nick, c);
    return &privat_.back().second;
}

void Foyerfenster::privatchatOeffnen(const QString& nick) {
    if (Chat* c = privatchat(nick, true)) {
        chats_->setCurrentWidget(c->seite);
        c->eingabe->setFocus();
    }
}

void Foyerfenster::amTischSetzen(int nummer) {
    amTisch_ = nummer;
    knoepfeAnpassen();
}

void Foyerfenster::angemeldetSetzen(bool angemeldet) {
    angemeldet_ = angemeldet;
    foyerchat_.eingabe->setEnabled(angemeldet);
    knoepfeAnpassen();
}

void Foyerfenster::tischseiteSetzen(bool vorhanden) {
    tischseite_ = vorhanden;
    knoepfeAnpassen();
}

void Foyerfenster::statusSetzen(const QString& text) { status_->setText(text); }

void Foyerfenster::knoepfeAnpassen() {
    const QTreeWidgetItem* gewaehlt = tische_->currentItem();
    const bool frei = gewaehlt && gewaehlt->data(SpFrei, Qt::UserRole).toInt() > 0;
    eroeffnen_->setEnabled(tischseite_ && angemeldet_ && amTisch_ == 0);
    platzNehmen_->setEnabled(tischseite_ && angemeldet_ && amTisch_ == 0 && frei);
    zurueck_->setEnabled(amTisch_ != 0);
}

void Foyerfenster::platzNehmen() {
    if (platzNehmen_->isEnabled()) emit platzNehmenGewuenscht(gewaehlterTisch());
}

void Foyerfenster::showEvent(QShowEvent* e) {
    QMainWindow::showEvent(e);
    emit sichtbarkeitGeaendert(!isMinimized());
}

void Foyerfenster::hideEvent(QHideEvent* e) {
    QMainWindow::hideEvent(e);
    emit sichtbarkeitGeaendert(false);
}

void Foyerfenster::changeEvent(QEvent* e) {
    QMainWindow::changeEvent(e);
    if (e->type() == QEvent::WindowStateChange) emit sichtbarkeitGeaendert(isVisible() && !isMinimized());
}

void Foyerfenster::closeEvent(QCloseEvent* e) {
    emit geschlossen();
    e->accept();
}

}  // namespace foyer

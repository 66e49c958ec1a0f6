#include "Netzbereiche.h"

#include <QFontDatabase>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include "Netzfenstertexte.h"
#include "Qtext.h"
#include "net/Protokoll.h"
#include "settings/Zeichensatz.h"

namespace table {

namespace {
constexpr int MaxChatzeichen = 400;  // what the table passes on of a line
constexpr int ChatZeilen = 2000;
constexpr int AuffrischenMs = 100;
}  // namespace

Chatbereich::Chatbereich(QWidget* parent) : QDockWidget(t(netztext::ChatTitel), parent) {
    setObjectName(QStringLiteral("frmChat"));
    setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    auto* innen = new QWidget(this);
    zeilen_ = new QPlainTextEdit(innen);
    zeilen_->setObjectName(QStringLiteral("txtChat"));
    zeilen_->setReadOnly(true);
    zeilen_->setMaximumBlockCount(ChatZeilen);
    zeilen_->setFocusPolicy(Qt::NoFocus);
    eingabe_ = new QLineEdit(innen);
    eingabe_->setObjectName(QStringLiteral("txtChatEingabe"));
    eingabe_->setPlaceholderText(t(netztext::ChatHinweis));
    eingabe_->setMaxLength(MaxChatzeichen);
    auto* spalte = new QVBoxLayout(innen);
    spalte->setContentsMargins(4, 4, 4, 4);
    spalte->addWidget(zeilen_, 1);
    spalte->addWidget(eingabe_);
    setWidget(innen);
    connect(eingabe_, &QLineEdit::returnPressed, this, [this] {
        const QString text = eingabe_->text().trimmed();
        eingabe_->clear();
        if (!text.isEmpty()) emit gesendet(text);
        emit fertig();
    });
    auto* zurueck = new QShortcut(QKeySequence(Qt::Key_Escape), eingabe_, nullptr, nullptr, Qt::WidgetShortcut);
    connect(zurueck, &QShortcut::activated, this, &Chatbereich::fertig);
}

void Chatbereich::zeileAnhaengen(const QString& zeile) {
    zeilen_->appendPlainText(zeile);
    zeilen_->verticalScrollBar()->setValue(zeilen_->verticalScrollBar()->maximum());
}

QString Chatbereich::text() const { return zeilen_->toPlainText(); }

Protokollbereich::Protokollbereich(QWidget* parent) : QDockWidget(t(netztext::ProtokollTitel), parent) {
    setObjectName(QStringLiteral("frmSendebuffer"));
    text_ = new QPlainTextEdit(this);
    text_->setObjectName(QStringLiteral("txtSendebuffer"));
    text_->setReadOnly(true);
    text_->setLineWrapMode(QPlainTextEdit::NoWrap);
    text_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setWidget(text_);
    auffrischen_.setSingleShot(true);
    auffrischen_.setInterval(AuffrischenMs);
    connect(&auffrischen_, &QTimer::timeout, this, &Protokollbereich::auffrischen);
}

void Protokollbereich::setzeProtokoll(const net::Protokoll* protokoll) {
    protokoll_ = protokoll;
    geaendert();
}

void Protokollbereich::geaendert() {
    if (isVisible() && !auffrischen_.isActive()) auffrischen_.start();
}

void Protokollbereich::showEvent(QShowEvent* event) {
    QDockWidget::showEvent(event);
    auffrischen();
}

void Protokollbereich::auffrischen() {
    auffrischen_.stop();
    // The log is kept in Windows-1252, as it went over the wire.
    text_->setPlainText(protokoll_ ? QString::fromStdString(settings::cp1252NachUtf8(protokoll_->text())) : QString());
    text_->verticalScrollBar()->setValue(text_->verticalScrollBar()->maximum());
}

QString Protokollbereich::text() const { return text_->toPlainText(); }

}  // namespace table

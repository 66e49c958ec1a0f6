#include "Smtpclient.h"

#include "Diensttexte.h"
#include "Ergebnisablage.h"

namespace services {

namespace {
QString t(const std::string& text) { return QString::fromStdString(text); }
}  // namespace

Zeitpunkt zeitpunktVon(const QDateTime& zeit) {
    const QDateTime lokal = zeit.toLocalTime();
    const QDate d = lokal.date();
    const QTime u = lokal.time();
    return {d.year(), d.month(), d.day(), u.hour(), u.minute(), u.second()};
}

Smtpclient::Smtpclient(QObject* parent)
    : QObject(parent), uhr_([] { return QDateTime::currentDateTime(); }), xMailer_(programmkennung()) {
    wecker_.setSingleShot(true);
    connect(&wecker_, &QTimer::timeout, this, [this] {
        if (dialog_) ausfuehren(dialog_->zeitUeberschritten());
    });
    connect(&socket_, &QTcpSocket::readyRead, this, &Smtpclient::eingang);
    connect(&socket_, &QTcpSocket::errorOccurred, this, [this] {
        if (dialog_) ausfuehren(dialog_->verbindungsfehler());
    });
}

Smtpclient::~Smtpclient() {
    dialog_.reset();
    socket_.abort();
}

bool Smtpclient::senden(const Mailserver& server, const Mail& mail) {
    if (dialog_) {
        emit status(QString::fromUtf8(texte::LaeuftNoch));
        return false;
    }
    leser_ = Antwortleser{};
    dialog_ = std::make_unique<Smtpdialog>(mail, server.heloDomain.toStdString(), zeitpunktVon(uhr_()),
                                           xMailer_.toStdString());
    emit fortschritt(0, Smtpdialog::Stufen);
    ausfuehren(dialog_->beginnen());
    if (dialog_ && dialog_->ausgang() == Ausgang::Laeuft) {
        wecker_.start(grenze_);
        socket_.connectToHost(server.host, server.port);
    }
    return true;
}

void Smtpclient::abbrechen() {
    if (dialog_) ausfuehren(dialog_->verbindungsfehler());
}

void Smtpclient::eingang() {
    // Only what the dialogue awaits is read; whatever a finished one gets is dropped.
    const QByteArray bytes = socket_.readAll();
    if (!dialog_) return;
    for (const Antwort& a : leser_.lesen(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())))) {
        ausfuehren(dialog_->antwort(a));
        if (!dialog_) return;
    }
}

void Smtpclient::ausfuehren(const Smtpdialog::Schritt& schritt) {
    for (const std::string& s : schritt.status) emit status(t(s));
    if (!dialog_) return;
    emit fortschritt(dialog_->erledigt(), Smtpdialog::Stufen);
    if (!schritt.senden.empty()) {
        socket_.write(schritt.senden.data(), static_cast<qint64>(schritt.senden.size()));
        wecker_.start(grenze_);
    }
    if (schritt.ausgang != Ausgang::Laeuft) beenden();
}

void Smtpclient::beenden() {
    wecker_.stop();
    Versandergebnis e;
    e.verschickt = dialog_->ausgang() == Ausgang::Verschickt;
    e.angenommen = dialog_->angenommen();
    if (const auto& falsch = dialog_->falscheAntwort()) {
        e.serverantwort = falsch->code ? QString::number(falsch->code) + QLatin1Char(' ') + t(falsch->text) : t(falsch->text);
    }
    e.grund = t(dialog_->grund());
    dialog_.reset();
    if (socket_.state() == QAbstractSocket::ConnectedState && e.verschickt) socket_.disconnectFromHost();
    else socket_.abort();
    QMetaObject::invokeMethod(this, [this, e] { emit fertig(e); }, Qt::QueuedConnection);
}

}  // namespace services

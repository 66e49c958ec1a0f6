#include "Foyerverbindung.h"

#include <QDateTime>
#include <QRandomGenerator>
#include <QTcpSocket>

#include "Anmeldung.h"
#include "Foyertexte.h"

namespace foyer {

namespace {

QString q(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }
QString q(const std::string& text) { return QString::fromStdString(text); }

constexpr int Anmeldefrist = 30'000;

}  // namespace

QString anmeldefehlerText(QAbstractSocket::SocketError art) {
    switch (art) {
        case QAbstractSocket::HostNotFoundError:
            return q(texte::anmeldeFehler(texte::NichtImInternet)) + QLatin1Char('\n') + q(texte::InternetHerstellen);
        case QAbstractSocket::RemoteHostClosedError: return q(texte::GegenstelleGetrennt);
        case QAbstractSocket::ConnectionRefusedError: return q(texte::anmeldeFehler(texte::VerbindungAbgelehnt));
        case QAbstractSocket::SocketTimeoutError: return q(texte::anmeldeFehler(texte::Zeitueberschreitung));
        default: return q(texte::anmeldeFehler(texte::Netzfehler));
    }
}

Foyerverbindung::Foyerverbindung(const QString& raum, QObject* parent)
    : QObject(parent), socket_(new QTcpSocket(this)), sitzung_(raum.toStdString()) {
    takt_.setSingleShot(true);
    anmeldefrist_.setSingleShot(true);
    anmeldefrist_.setInterval(Anmeldefrist);
    connect(socket_, &QTcpSocket::connected, this, [this] {
        // A fresh token each time: 65 + int(rnd * 25), seeded from the system's generator.
        engine::SeedZufall zufall(QRandomGenerator::global()->generate64());
        sitzung_.anmelden(name_.toStdString(), benutzerkennung(zufall));
        weitergeben();
    });
    connect(socket_, &QTcpSocket::readyRead, this, &Foyerverbindung::lesen);
    connect(socket_, &QTcpSocket::errorOccurred, this, &Foyerverbindung::fehler);
    connect(socket_, &QTcpSocket::disconnected, this, &Foyerverbindung::getrennt);
    connect(&takt_, &QTimer::timeout, this, &Foyerverbindung::ticken);
    connect(&anmeldefrist_, &QTimer::timeout, this,
            [this] { scheitern(q(texte::anmeldeFehler(texte::Zeitueberschreitung))); });
}

Foyerverbindung::~Foyerverbindung() { socket_->abort(); }

void Foyerverbindung::anmelden(const QString& server, quint16 port, const QString& name) {
    abmelden();
    name_ = name;
    gemeldet_ = false;
    anmeldefrist_.start();
    socket_->connectToHost(server, port);
}

void Foyerverbindung::abmelden() {
    anmeldefrist_.stop();
    takt_.stop();
    gemeldet_ = true;  // what the socket reports now is our own doing
    if (socket_->state() == QAbstractSocket::ConnectedState && istAngemeldet()) {
        socket_->write("QUIT\r");
        socket_->flush();
    }
    socket_->abort();
    sitzung_ = Foyersitzung(sitzung_.foyerkanal().substr(1));
}

QHostAddress Foyerverbindung::lokaleAdresse() const { return socket_->localAddress(); }

void Foyerverbindung::lesen() {
    while (socket_->bytesAvailable() > 0) {
        const QByteArray bytes = socket_->read(64 * 1024);
        emit protokoll(q(texte::Protokollkopf) + QLatin1Char('\n') + QString::fromUtf8(bytes));
        sitzung_.empfangen(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())),
                           QDateTime::currentMSecsSinceEpoch());
        weitergeben();
    }
}

void Foyerverbindung::ticken() {
    sitzung_.tick();
    weitergeben();
}

void Foyerverbindung::weitergeben() {
    for (const std::string& zeile : sitzung_.ausgangNehmen())
        socket_->write(zeile.data(), static_cast<qint64>(zeile.size()));
    if (istAngemeldet() && !takt_.isActive()) takt_.start(sitzung_.intervallMs());
    else if (takt_.isActive() && takt_.interval() != sitzung_.intervallMs()) takt_.setInterval(sitzung_.intervallMs());
    for (const Ereignis& e : sitzung_.ereignisseNehmen()) {
        switch (e.art) {
            case Ereignis::Art::Angemeldet:
                anmeldefrist_.stop();
                emit angemeldet();
                break;
            case Ereignis::Art::NameAbgelehnt:
                anmeldefrist_.stop();
                gemeldet_ = true;
                socket_->abort();
                emit nameAbgelehnt(q(e.text));
                break;
            case Ereignis::Art::ListenGeaendert: emit listenGeaendert(); break;
            case Ereignis::Art::FoyerChat: emit foyerChat(q(e.von), q(e.text)); break;
            case Ereignis::Art::PrivatChat: emit privatChat(q(e.partner), q(e.von), q(e.text)); break;
            case Ereignis::Art::Systemzeile: emit systemzeile(q(e.partner), q(e.text)); break;
            case Ereignis::Art::TischEroeffnet: emit tischEroeffnet(e.nummer); break;
        }
    }
}

void Foyerverbindung::scheitern(const QString& text) {
    if (gemeldet_) return;
    gemeldet_ = true;
    const bool warAngemeldet = istAngemeldet();
    anmeldefrist_.stop();
    takt_.stop();
    socket_->abort();
    if (warAngemeldet)
        emit verbindungVerloren(text);
    else
        emit anmeldungFehlgeschlagen(text);
}

void Foyerverbindung::fehler(QAbstractSocket::SocketError art) {
    scheitern(istAngemeldet() ? q(texte::Unterbrochen) : anmeldefehlerText(art));
}

void Foyerverbindung::getrennt() {
    scheitern(istAngemeldet() ? q(texte::Unterbrochen) : q(texte::GegenstelleGetrennt));
}

void Foyerverbindung::foyerChatSenden(const QString& text) {
    sitzung_.foyerChatSenden(text.toStdString());
    weitergeben();
}

void Foyerverbindung::privatSenden(const QString& nick, const QString& text) {
    sitzung_.privatSenden(nick.toStdString(), text.toStdString());
    weitergeben();
}

void Foyerverbindung::tischEroeffnen(const QString& adresse, int port, int frei, const QString& regeln) {
    sitzung_.tischEroeffnen(adresse.toStdString(), port, frei, regeln.toStdString());
    weitergeben();
}

void Foyerverbindung::freiePlaetzeSetzen(int frei) {
    sitzung_.freiePlaetzeSetzen(frei);
    weitergeben();
}

void Foyerverbindung::tischSchliessen() {
    sitzung_.tischSchliessen();
    weitergeben();
}

void Foyerverbindung::platzNehmen(int nummer) {
    sitzung_.platzNehmen(nummer);
    weitergeben();
}

void Foyerverbindung::platzVerlassen() {
    sitzung_.platzVerlassen();
    weitergeben();
}

}  // namespace foyer

#include "Gastgeber.h"

#include <QTcpSocket>

#include "Netztexte.h"

namespace net {

using engine::Sitz;

namespace {
QString q(const std::string& text) { return QString::fromStdString(text); }
}  // namespace

class Gastgeber::Ausgang final : public Gastgeberausgang {
public:
    explicit Ausgang(Gastgeber& g) : g_(g) {}
    void schreiben(Sitz sitz, std::string_view bytes) override { g_.schreiben(sitz.nr(), bytes); }
    void trennen(Sitz sitz) override { g_.trennen(sitz.nr()); }
    void sitzBesetzt(Sitz sitz) override { emit g_.sitzBesetzt(sitz.nr()); }
    void sitzFrei(Sitz sitz) override { g_.freigegeben(sitz.nr()); }
    void namenGeaendert() override { emit g_.namenGeaendert(); }
    void bereitGeaendert() override { emit g_.bereitGeaendert(); }
    void chatzeile(const std::string& z) override { emit g_.chatzeile(q(z)); }
    void status(const std::string& t) override { emit g_.status(q(t)); }
    void protokollzeile(const std::string& z) override { emit g_.protokollzeile(q(z)); }
    void warteAuf(Sitz sitz, bool offen) override { g_.warteAuf(sitz.nr(), offen); }
    void weiter() override { g_.weiterPlanen(); }

private:
    Gastgeber& g_;
};

Gastgeber::Gastgeber(engine::Spiel& spiel, engine::Spielablauf& ablauf, Netzzeiten zeiten, QObject* parent)
    : QObject(parent), zeiten_(zeiten), ausgang_(std::make_unique<Ausgang>(*this)), kern_(spiel, ablauf, *ausgang_) {
    connect(&server_, &QTcpServer::newConnection, this, &Gastgeber::verbindungAnnehmen);
    connect(&server_, &QTcpServer::acceptError, this, [this] {
        emit mitteilung(true, q(texte::netzwerkfehler(server_.serverError(), server_.errorString().toStdString())) +
                                  "\n" + q(std::string(texte::RolleDerMitspieler)));
        kern_.alleAbmelden();
    });
    takt_.setInterval(zeiten_.takt);
    // The pump runs while messages wait, so an idle table costs nothing.
    connect(&takt_, &QTimer::timeout, this, [this] {
        kern_.takt();
        if (!kern_.hatUnverarbeitetes()) takt_.stop();
    });
    for (int s = 2; s <= 4; ++s) {
        erinnerung_[static_cast<std::size_t>(s)].setInterval(zeiten_.erinnerung);
        connect(&erinnerung_[static_cast<std::size_t>(s)], &QTimer::timeout, this, [this, s] { kern_.erinnern(Sitz(s)); });
        QTimer& frage = frage_[static_cast<std::size_t>(s)];
        frage.setSingleShot(true);
        frage.setInterval(zeiten_.abmeldefrage);
        connect(&frage, &QTimer::timeout, this, [this, s] { emit abmeldefrage(s, q(texte::reagiertNicht(kern_.gastname(Sitz(s))))); });
    }
}

Gastgeber::~Gastgeber() {
    for (QTcpSocket* socket : sockets_) {
        if (!socket) continue;
        socket->disconnect(this);
        socket->abort();
        delete socket;
    }
}

void Gastgeber::setzeHost(const QString& name, int netztempo) { kern_.setzeHost(name.toStdString(), netztempo); }

QString Gastgeber::name(int sitz) const { return q(kern_.gastname(Sitz(sitz))); }

bool Gastgeber::lauschen(quint16 port, const QString& adresse) {
    adresse_ = adresse.isEmpty() ? QHostAddress(QHostAddress::Any) : QHostAddress(adresse);
    if (!server_.listen(adresse_, port)) {
        fehler_ = q(texte::netzwerkfehler(server_.serverError(), server_.errorString().toStdString()));
        return false;
    }
    port_ = server_.serverPort();
    offen_ = true;
    emit lauschenGeaendert(true);
    return true;
}

// The table listens while fewer than four sit at it; a full table lets nobody in.
void Gastgeber::lauschenAnpassen() {
    const bool soll = offen_ && !beendet_ && kern_.spielerzahl() < 4;
    if (soll == server_.isListening()) return;
    if (soll) server_.listen(adresse_, port_);
    else server_.close();
    emit lauschenGeaendert(server_.isListening());
}

void Gastgeber::verbindungAnnehmen() {
    while (QTcpSocket* socket = server_.nextPendingConnection()) {
        const auto sitz = kern_.freierPlatz();
        if (!sitz || beendet_) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        const auto i = static_cast<std::size_t>(sitz->nr());
        if (sockets_[i]) trennen(sitz->nr());
        sockets_[i] = socket;
        // Short messages in question and answer: Nagle's delay would cost every card 40 ms.
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
            const int s = sitzVon(socket);
            if (!s) return;
            kern_.empfangen(Sitz(s), socket->readAll().toStdString());
            if (!takt_.isActive()) takt_.start();
        });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] { getrennt(socket); });
        connect(socket, &QTcpSocket::errorOccurred, this, [this, socket] { verbindungsfehler(socket); });
        kern_.platzBesetzen(*sitz);
    }
    lauschenAnpassen();
}

int Gastgeber::sitzVon(const QTcpSocket* socket) const {
    for (int s = 2; s <= 4; ++s)
        if (socket && sockets_[static_cast<std::size_t>(s)] == socket) return s;
    return 0;
}

void Gastgeber::schreiben(int sitz, std::string_view bytes) {
    QTcpSocket* socket = sockets_[static_cast<std::size_t>(sitz)];
    // A seat whose connection is gone fails silently; its error event removes the guest.
    if (socket && socket->state() == QAbstractSocket::ConnectedState)
        socket->write(bytes.data(), static_cast<qint64>(bytes.size()));
}

void Gastgeber::trennen(int sitz) {
    QTcpSocket*& socket = sockets_[static_cast<std::size_t>(sitz)];
    if (!socket) return;
    QTcpSocket* alt = std::exchange(socket, nullptr);
    alt->disconnect(this);
    if (alt->state() == QAbstractSocket::UnconnectedState) {
        alt->deleteLater();
        geschlossenPruefen();
        return;
    }
    // Whatever is still to be written goes out before the connection closes.
    ++offeneSchliessungen_;
    connect(alt, &QTcpSocket::disconnected, this, [this, alt] {
        alt->deleteLater();
        --offeneSchliessungen_;
        geschlossenPruefen();
    });
    alt->disconnectFromHost();
}

void Gastgeber::freigegeben(int sitz) {
    warteAuf(sitz, false);
    emit sitzFrei(sitz);
    lauschenAnpassen();
}

void Gastgeber::getrennt(QTcpSocket* socket) {
    const int s = sitzVon(socket);
    if (!s) return;
    emit mitteilung(false, q(texte::getrenntVon(kern_.gastname(Sitz(s)))));
    kern_.abmelden(Sitz(s));
}

void Gastgeber::verbindungsfehler(QTcpSocket* socket) {
    const int s = sitzVon(socket);
    // A guest that closes its side is handled as it disconnects.
    if (!s || socket->error() == QAbstractSocket::RemoteHostClosedError) return;
    const std::string name = kern_.gastname(Sitz(s));
    emit mitteilung(true, q(texte::netzwerkfehler(socket->error(), socket->errorString().toStdString())) + "\n" +
                              q(texte::rolleVon(name)));
    kern_.abmelden(Sitz(s));
}

void Gastgeber::abmelden(int sitz, bool hinweis) {
    if (sitz < 2 || sitz > 4) return;
    QTcpSocket* socket = sockets_[static_cast<std::size_t>(sitz)];
    if (hinweis && socket) {
        const std::string name = kern_.gastname(Sitz(sitz));
        const bool vonDort = socket->state() == QAbstractSocket::ClosingState;
        emit mitteilung(false, q(vonDort ? texte::getrenntVon(name) : texte::getrenntZu(name)));
    }
    kern_.abmelden(Sitz(sitz));
}

void Gastgeber::warteAuf(int sitz, bool offen) {
    QTimer& erinnerung = erinnerung_[static_cast<std::size_t>(sitz)];
    QTimer& frage = frage_[static_cast<std::size_t>(sitz)];
    if (offen) {
        erinnerung.start();
        frage.start();
    } else {
        erinnerung.stop();
        frage.stop();
    }
}

void Gastgeber::abmeldefrageBeantworten(int sitz, bool ja) {
    if (sitz < 2 || sitz > 4 || kern_.gefragterSitz() != Sitz(sitz)) return;  // answered meanwhile
    if (ja) abmelden(sitz, false);
    else frage_[static_cast<std::size_t>(sitz)].start();
}

void Gastgeber::weiterPlanen() {
    if (weiterGeplant_) return;
    weiterGeplant_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            weiterGeplant_ = false;
            emit weiter();
        },
        Qt::QueuedConnection);
}

void Gastgeber::beenden() {
    beendet_ = true;
    server_.close();
    for (int s = 2; s <= 4; ++s) trennen(s);
    geschlossenPruefen();
}

void Gastgeber::geschlossenPruefen() {
    if (!beendet_ || offeneSchliessungen_ > 0 || geschlossenGemeldet_) return;
    geschlossenGemeldet_ = true;
    QMetaObject::invokeMethod(this, [this] { emit verbindungenGeschlossen(); }, Qt::QueuedConnection);
}

}  // namespace net

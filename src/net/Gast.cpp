#include "Gast.h"

#include "Netztexte.h"

namespace net {

namespace {
QString q(const std::string& text) { return QString::fromStdString(text); }
}  // namespace

class Gast::Ausgang final : public Gastausgang {
public:
    explicit Ausgang(Gast& g) : g_(g) {}
    void schreiben(std::string_view bytes) override {
        if (g_.socket_.state() == QAbstractSocket::ConnectedState)
            g_.socket_.write(bytes.data(), static_cast<qint64>(bytes.size()));
    }
    void status(const std::string& t) override { emit g_.status(q(t)); }
    void chatzeile(const std::string& z) override { emit g_.chatzeile(q(z)); }
    void hinweis(const std::string& t) override { emit g_.hinweis(q(t)); }
    void protokollzeile(const std::string& z) override { emit g_.protokollzeile(q(z)); }
    void namenGeaendert() override { emit g_.namenGeaendert(); }
    void netztempo(int n) override { emit g_.netztempoErhalten(n); }
    void nameGefragt() override {
        g_.anmeldung_ = false;
        g_.warten_.stop();
    }
    void nameVergeben(const std::string& t) override { emit g_.nameVergeben(q(t)); }
    void gefragt() override { emit g_.gefragt(); }
    void weiter() override { emit g_.weiter(); }
    void sitzVorbehalt(engine::Sitz s, const std::string& t) override { emit g_.sitzVorbehalt(s.nr(), q(t)); }
    void spielBeendet() override { emit g_.spielBeendet(); }
    void punkteErhalten() override { emit g_.punkteErhalten(); }
    void abweichung(const std::string& t) override { emit g_.abweichung(q(t)); }

private:
    Gast& g_;
};

Gast::Gast(engine::Spiel& spiel, engine::Spielablauf& ablauf, Netzzeiten zeiten, QObject* parent)
    : QObject(parent), spiel_(spiel), ablauf_(ablauf), zeiten_(zeiten), ausgang_(std::make_unique<Ausgang>(*this)) {
    takt_.setInterval(zeiten_.takt);
    // The pump runs while messages wait (and once more to notice a closed connection).
    connect(&takt_, &QTimer::timeout, this, &Gast::pumpen);
    warten_.setSingleShot(true);
    warten_.setInterval(zeiten_.hostWarten);
    connect(&warten_, &QTimer::timeout, this,
            [this] { emit serverAntwortetNicht(q(std::string(texte::ServerAntwortetNicht))); });

    connect(&socket_, &QTcpSocket::connected, this, [this] {
        erreicht_ = true;
        anmeldung_ = true;
        socket_.setSocketOption(QAbstractSocket::LowDelayOption, 1);
        emit status(q(std::string(texte::AnmeldungLaeuft)));
        warten_.start();
        emit verbunden();
    });
    connect(&socket_, &QTcpSocket::readyRead, this, [this] {
        const QByteArray daten = socket_.readAll();
        if (!kern_ || getrennt_) return;
        gehoert_ = true;
        if (anmeldung_) warten_.start();
        if (!kern_->empfangen(std::string_view(daten.constData(), static_cast<std::size_t>(daten.size())))) {
            // A host that floods us is as good as gone.
            socket_.abort();
            verloren(0, QStringLiteral("Empfangspuffer übergelaufen"));
            return;
        }
        if (!takt_.isActive()) takt_.start();
    });
    connect(&socket_, &QTcpSocket::errorOccurred, this, [this](QAbstractSocket::SocketError fehler) {
        if (fehlerNummer_ == 0) {
            fehlerNummer_ = fehler;
            fehlerText_ = socket_.errorString();
        }
        if (!erreicht_) verloren(fehlerNummer_, fehlerText_);
    });
    // What the host sent before it closed is still worked off; then the loss is reported.
    connect(&socket_, &QTcpSocket::disconnected, this, [this] {
        getrennt_ = true;
        if (verlassen_) emit verlassenFertig();
        else if (!takt_.isActive()) takt_.start();
    });
}

Gast::~Gast() {
    socket_.disconnect(this);
    socket_.abort();
}

void Gast::verbinden(const QString& host, quint16 port, const QString& name) {
    kern_ = std::make_unique<Gastkern>(spiel_, ablauf_, *ausgang_, name.toStdString());
    emit status(q(texte::verbindeMit(host.toStdString(), port)));
    socket_.connectToHost(host, port);
}

void Gast::pumpen() {
    if (!kern_ || verlassen_) return takt_.stop();
    kern_->takt();
    if (kern_->hatUnverarbeitetes()) return;
    takt_.stop();
    if (getrennt_)
        verloren(fehlerNummer_ ? fehlerNummer_ : QAbstractSocket::RemoteHostClosedError,
                 fehlerText_.isEmpty() ? socket_.errorString() : fehlerText_);
}

void Gast::verloren(int nummer, const QString& beschreibung) {
    if (verlassen_) return;
    verlassen_ = true;
    takt_.stop();
    warten_.stop();
    emit verbindungVerloren(erreicht_ && gehoert_, nummer, beschreibung);
}

void Gast::verlassen() {
    verlassen_ = true;
    takt_.stop();
    warten_.stop();
    if (socket_.state() != QAbstractSocket::UnconnectedState) socket_.disconnectFromHost();
    else QMetaObject::invokeMethod(this, [this] { emit verlassenFertig(); }, Qt::QueuedConnection);
}

void Gast::setzeAnzeigeBeschaeftigt(bool beschaeftigt) {
    if (kern_) kern_->setzeAnzeigeBeschaeftigt(beschaeftigt);
}

engine::Bescheid Gast::antworten(const engine::Antwort& antwort) {
    if (!kern_) return engine::Bescheid::abgelehnt(std::string(engine::ablauftext::FalscheAntwort));
    return kern_->antworten(antwort);
}

engine::Bescheid Gast::ansagen(const engine::Ansage& ansage) {
    if (!kern_) return engine::Bescheid::abgelehnt(std::string(engine::ansagetext::NichtJetzt));
    return kern_->ansagen(ansage);
}

void Gast::nameSenden(const QString& name) {
    if (kern_) kern_->nameSenden(name.toStdString());
}

void Gast::chatSenden(const QString& text) {
    if (kern_) kern_->chatSenden(text.toStdString());
}

void Gast::wartenBeantworten(bool nochmal) {
    if (nochmal) warten_.start();
    else verlassen();
}

}  // namespace net

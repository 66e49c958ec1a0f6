#pragma once
// The connection to the foyer's chat server: one QTcpSocket, the refresh timer,
// and the session that reads and writes the lines. Windows and the headless
// table talk to it by calls and signals only.
#include <QAbstractSocket>
#include <QHostAddress>
#include <QObject>
#include <QString>
#include <QTimer>

#include "Foyersitzung.h"

class QTcpSocket;

namespace foyer {

class Foyerverbindung : public QObject {
    Q_OBJECT
public:
    explicit Foyerverbindung(const QString& raum = QStringLiteral("Foyer"), QObject* parent = nullptr);
    ~Foyerverbindung() override;

    // Connects and logs in with the name; the outcome is angemeldet(),
    // nameAbgelehnt() or anmeldungFehlgeschlagen().
    void anmelden(const QString& server, quint16 port, const QString& name);
    // Leaves the server (also cancels a login that still waits).
    void abmelden();
    bool istAngemeldet() const { return sitzung_.stand() == Anmeldestand::Angemeldet; }
    // How long the login waits for the server's answer.
    void setzeAnmeldefrist(int ms) { anmeldefrist_.setInterval(ms); }

    const Foyersitzung& sitzung() const { return sitzung_; }
    QString nick() const { return QString::fromStdString(sitzung_.nick()); }
    // The name as given at the login (the nick is cut to 12 characters).
    QString name() const { return name_; }
    // The address this machine has towards the chat server.
    QHostAddress lokaleAdresse() const;

    void foyerChatSenden(const QString& text);
    void privatSenden(const QString& nick, const QString& text);
    void setzeNichtErreichbar(bool nicht) { sitzung_.setzeNichtErreichbar(nicht); }
    void tischEroeffnen(const QString& adresse, int port, int frei, const QString& regeln);
    void freiePlaetzeSetzen(int frei);
    void tischSchliessen();
    void platzNehmen(int nummer);
    void platzVerlassen();

signals:
    void angemeldet();
    void nameAbgelehnt(const QString& text);
    void anmeldungFehlgeschlagen(const QString& text);
    // The connection broke after the login; a running table plays on over its own.
    void verbindungVerloren(const QString& text);
    void listenGeaendert();
    void foyerChat(const QString& von, const QString& text);
    void privatChat(const QString& partner, const QString& von, const QString& text);
    // partner is empty for a line of the foyer chat.
    void systemzeile(const QString& partner, const QString& text);
    void tischEroeffnet(int nummer);
    // Received text for the network protocol view, under its heading line.
    void protokoll(const QString& text);

private:
    void lesen();
    void fehler(QAbstractSocket::SocketError art);
    void getrennt();
    void ticken();
    void weitergeben();
    void scheitern(const QString& text);

    QTcpSocket* socket_;
    QTimer takt_;
    QTimer anmeldefrist_;
    Foyersitzung sitzung_;
    QString name_;
    bool gemeldet_ = false;  // a failure is reported once per connection
};

// A socket error during the login as the player reads it.
QString anmeldefehlerText(QAbstractSocket::SocketError art);

}  // namespace foyer

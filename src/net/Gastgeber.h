#pragma once
// The host of a network table: listens for guests, gives them seats 3, 2, 4,
// pumps their messages, asks them for their decisions and relays the game. The
// owner keeps the game and its cycle, answers every request that is not for a
// network seat, calls anfrageStellen() for those and carries on at weiter().
// Everything reaches the owner as signals; nothing here opens a box or waits.
#include <QObject>
#include <QTcpServer>
#include <QTimer>
#include <array>
#include <memory>

#include "Gastgeberkern.h"
#include "Netzzeiten.h"

class QTcpSocket;

namespace net {

class Gastgeber final : public QObject {
    Q_OBJECT
public:
    Gastgeber(engine::Spiel& spiel, engine::Spielablauf& ablauf, Netzzeiten zeiten = {}, QObject* parent = nullptr);
    ~Gastgeber() override;

    void setzeHost(const QString& name, int netztempo);
    // Opens the table ("Serverport", "Netzadapter": empty for every address).
    // False when it cannot; fehler() then holds the message.
    bool lauschen(quint16 port, const QString& adresse = {});
    quint16 port() const { return port_; }
    bool lauscht() const { return server_.isListening(); }
    QString fehler() const { return fehler_; }

    // The open request is for a network seat: ask it.
    void anfrageStellen() { kern_.anfrageStellen(); }
    // Removes a guest; with `hinweis` the notice of the broken connection comes first.
    void abmelden(int sitz, bool hinweis);
    // The answer to abmeldefrage(): yes removes the guest, no asks again later.
    void abmeldefrageBeantworten(int sitz, bool ja);
    void neuePartieMelden() { kern_.neuePartieMelden(); }
    void endbedingungenMelden(const engine::RegelOptionen& alt, const engine::RegelOptionen& neu) {
        kern_.endbedingungenMelden(alt, neu);
    }
    void chatSenden(const QString& text) { kern_.chatSenden(text.toStdString()); }
    // Stops listening and closes every connection once its data is written;
    // verbindungenGeschlossen() follows.
    void beenden();

    const Gastgeberkern& kern() const { return kern_; }
    // A line from beside the table (the foyer) into the protocol log.
    void vermerken(const QString& text) { kern_.vermerk(text.toStdString()); }
    QString name(int sitz) const;

signals:
    void sitzBesetzt(int sitz);
    void sitzFrei(int sitz);
    void namenGeaendert();
    // A guest gave its name or became ready; see kern().alleBereit().
    void bereitGeaendert();
    void chatzeile(const QString& zeile);
    void status(const QString& text);
    void protokollzeile(const QString& zeile);
    // A message box: critical for network errors, information otherwise.
    void mitteilung(bool kritisch, const QString& text);
    // A guest has not answered for a long time: Yes/No, answered by abmeldefrageBeantworten().
    void abmeldefrage(int sitz, const QString& frage);
    void lauschenGeaendert(bool lauscht);
    // An answer went into the game cycle: the owner carries on (always queued).
    void weiter();
    void verbindungenGeschlossen();

private:
    // What the core asks for, turned into socket writes, timers and signals.
    class Ausgang;
    friend class Ausgang;
    void schreiben(int sitz, std::string_view bytes);
    void trennen(int sitz);
    void freigegeben(int sitz);
    void warteAuf(int sitz, bool offen);
    void weiterPlanen();

    void verbindungAnnehmen();
    void lauschenAnpassen();
    void verbindungsfehler(QTcpSocket* socket);
    void getrennt(QTcpSocket* socket);
    int sitzVon(const QTcpSocket* socket) const;
    void geschlossenPruefen();

    Netzzeiten zeiten_;
    std::unique_ptr<Ausgang> ausgang_;
    Gastgeberkern kern_;
    QTcpServer server_;
    QHostAddress adresse_;
    quint16 port_ = 0;
    QString fehler_;
    bool offen_ = false;      // the table is open (listens while seats are free)
    bool beendet_ = false;
    bool geschlossenGemeldet_ = false;
    bool weiterGeplant_ = false;
    QTimer takt_;
    std::array<QTcpSocket*, 5> sockets_{};       // by seat; 0 and 1 unused
    std::array<QTimer, 5> erinnerung_;
    std::array<QTimer, 5> frage_;
    int offeneSchliessungen_ = 0;
};

}  // namespace net

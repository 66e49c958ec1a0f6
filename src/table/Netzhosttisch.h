#pragma once
// The host's table at the window: guests take seats 3, 2, 4, the others stay
// with the computer ("Computer1".. by the seat), the person starts the Partie
// with `menu_netzstart`. A guest's decision is asked through the connection and
// comes back into the cycle there; the table shows it as any other card. The
// reminder, the remove-question and the network errors come as boxes.
#include <QString>
#include <array>

#include "Netztisch.h"
#include "net/Gastgeber.h"

namespace table {

class Netzhosttisch final : public Netztisch {
    Q_OBJECT
public:
    Netzhosttisch(Hauptfenster& hfo, Tischsteuerung& steuerung, const QString& name, int netztempo,
                  net::Netzzeiten zeiten, QObject* parent = nullptr);
    ~Netzhosttisch() override;

    // Opens the table; false when it cannot (fehler() then holds the message).
    bool lauschen(quint16 port, const QString& adresse);
    QString fehler() const { return gastgeber_.fehler(); }
    quint16 port() const { return gastgeber_.port(); }

    // `menu_netzstart`: the Partie begins.
    void starten();
    bool gestartet() const { return gestartet_; }
    // Whether the Partie may start: every guest has given its name and is ready.
    bool startbereit() const;
    // "Neue Partie" at a started table: the guests hear of it first.
    void neuePartieMelden();
    // The end-of-Partie options changed in the settings go out alone.
    void regelnGeaendert(const engine::RegelOptionen& neu);

    net::Gastgeber& gastgeber() { return gastgeber_; }

    void chatSenden(const QString& text) override;
    const net::Protokoll* protokoll() const override { return &gastgeber_.kern().protokoll(); }
    bool vermerken(const QString& text) override {
        gastgeber_.vermerken(text);
        return true;
    }

    bool darfGeben() const override { return gestartet_; }
    void anfrageAnNetz(const engine::Anfrage&) override { gastgeber_.anfrageStellen(); }

signals:
    void spielerKommt();
    void spielerGeht();
    void startbereitGeaendert(bool bereit);
    void lauschenGeaendert(bool lauscht);

private:
    void sitzFrei(int sitz);

    net::Gastgeber gastgeber_;
    bool gestartet_ = false;
    engine::RegelOptionen regeln_;
    std::array<QString, 5> gaeste_;  // the logged-in guests' names by seat, for the line when one leaves
};

}  // namespace table

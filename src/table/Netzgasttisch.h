#pragma once
// A guest's table at the window. The guest's own cycle replays the host's deal,
// reservations, cards and announcements (net::Gast), so boxes, menus and the
// table come out exactly as at a local table; seat 1's decisions open the usual
// dialogs once the host asks for them and go to the host.
#include <QString>
#include <array>
#include <utility>

#include "Netztisch.h"
#include "net/Gast.h"

namespace table {

class Netzgasttisch final : public Netztisch {
    Q_OBJECT
public:
    Netzgasttisch(Hauptfenster& hfo, Tischsteuerung& steuerung, net::Netzzeiten zeiten, QObject* parent = nullptr);
    ~Netzgasttisch() override;

    void verbinden(const QString& host, quint16 port, const QString& name);
    // A new name after the host refused the first.
    void nameSenden(const QString& name) { gast_.nameSenden(name); }
    void verlassen() { gast_.verlassen(); }
    net::Gast& gast() { return gast_; }

    void chatSenden(const QString& text) override;
    const net::Protokoll* protokoll() const override;
    bool vermerken(const QString& text) override;

    bool darfGeben() const override { return false; }
    bool eigenePartie() const override { return false; }
    bool darfAntworten() const override;
    std::optional<engine::Bescheid> antworten(const engine::Antwort& antwort) override;
    std::optional<engine::Bescheid> ansagen(const engine::Ansage& ansage) override;
    QString status(const engine::Anfrage& a, const QString& status) const override;
    bool spielendeDa() const override;
    void anzeigeBeschaeftigt(bool beschaeftigt) override { gast_.setzeAnzeigeBeschaeftigt(beschaeftigt); }

signals:
    // The host refused the name: the text to show before asking for another.
    void nameVergeben(const QString& text);
    // The connection failed (`erreicht` false: it never came up) or broke.
    void verloren(bool erreicht, int nummer, const QString& beschreibung);
    // "Der Server antwortet nicht mehr!" was answered with Cancel.
    void aufgegeben();

private:
    void vorbehaltVermerken(int sitz, const QString& text);

    net::Gast gast_;
    // "Gesund" or " Vorbehalt " by local seat, in the game they were given.
    std::array<QString, 5> vorbehalte_;
    int vorbehalteSpiel_ = 0;
    // The game (Partie, number) whose end and totals the host has sent.
    std::pair<int, int> endeVon_{-1, -1};
};

}  // namespace table

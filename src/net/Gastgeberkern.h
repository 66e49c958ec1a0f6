#pragma once
// The host's side of a network table, without sockets: seats 2..4 and their
// guests, the login, the pump that takes one message per seat and tick, the
// questions to a network seat and its answers into the game cycle, and every
// deal, card, reservation, announcement and score relayed to the guests.
// The owner keeps the game and its cycle and answers every request that is not
// for a network seat; for those it calls anfrageStellen() and waits for weiter().
#include <optional>
#include <string>
#include <string_view>

#include "Nachricht.h"
#include "Protokoll.h"
#include "engine/Entscheider.h"
#include "engine/Spielablauf.h"

namespace net {

enum class Platzzustand {
    Computer,  // no guest: the host's computer player holds the seat
    Person,    // a guest plays it (Steuerung::Netz)
    Wartend,   // a guest came during a game and joins with the next deal
};

// What the core asks of its surroundings: the Qt host turns it into socket
// writes and signals; tests and the fuzzer record it.
class Gastgeberausgang {
public:
    virtual ~Gastgeberausgang() = default;
    virtual void schreiben(engine::Sitz sitz, std::string_view bytes) = 0;
    // Close the seat's connection (the core has already given the seat back).
    virtual void trennen(engine::Sitz sitz) = 0;
    virtual void sitzBesetzt(engine::Sitz) {}
    virtual void sitzFrei(engine::Sitz) {}
    virtual void namenGeaendert() {}
    virtual void bereitGeaendert() {}
    virtual void chatzeile(const std::string&) {}
    virtual void status(const std::string&) {}
    virtual void protokollzeile(const std::string&) {}
    // A question to the seat is open (true) or settled (false): the reminder and
    // the remove-question run while it is open.
    virtual void warteAuf(engine::Sitz, bool) {}
    // An answer or announcement went into the game cycle: the owner carries on.
    virtual void weiter() {}
};

struct Platz {
    Platzzustand zustand = Platzzustand::Computer;
    bool angemeldet = false;  // its name has been taken
    bool bereit = false;      // "CBere" came
    std::string gastname;     // the guest's name, the seat's name once it plays
    Empfangspuffer puffer;
};

class Gastgeberkern final : public engine::Spielbeobachter {
public:
    // Attaches itself to the cycle as an observer; seats 2..4 start computer-held.
    Gastgeberkern(engine::Spiel& spiel, engine::Spielablauf& ablauf, Gastgeberausgang& ausgang);
    // Leaves the cycle, which may outlive the table (a window that plays on alone).
    ~Gastgeberkern() override { ablauf_.beobachterEntfernen(this); }

    // The host's own name (seat 1, sent as "Serve") and its "Netztempo".
    void setzeHost(const std::string& name, int netztempo);

    // The seat a connection request gets (3, 2, 4 in this order); none when
    // three guests sit at the table.
    std::optional<engine::Sitz> freierPlatz() const;
    // Gives the seat to the new connection and sends it the login messages.
    void platzBesetzen(engine::Sitz sitz);
    // Data arrival. A buffer that overflows closes the connection and the
    // computer takes the seat.
    void empfangen(engine::Sitz sitz, std::string_view bytes);
    // One pump tick: one message from the buffer of seats 2, 3, 4 in this order.
    // True when any message was taken.
    bool takt();
    // Some seat's buffer holds a whole message.
    bool hatUnverarbeitetes() const;
    // The open request is for a network seat: sends it the question, once.
    void anfrageStellen();
    // Removes a guest; the computer plays the seat from the current state on.
    void abmelden(engine::Sitz sitz);
    void alleAbmelden();
    // The reminder chat line to a seat that is being waited for.
    void erinnern(engine::Sitz sitz);
    void neuePartieMelden();
    // The end-of-Partie options that changed go out alone ("Abrec", "EndeB", "EndeN").
    void endbedingungenMelden(const engine::RegelOptionen& alt, const engine::RegelOptionen& neu);
    // A line of the host's own chat, to every guest.
    void chatSenden(std::string_view text);

    const Platz& platz(engine::Sitz sitz) const { return plaetze_[index(sitz)]; }
    // The guest's name, or the seat's while the guest has given none.
    const std::string& gastname(engine::Sitz sitz) const;
    int spielerzahl() const;
    // Every guest at the table has given its name and is ready.
    bool alleBereit() const;
    int angemeldeteGaeste() const;
    bool spielLaeuft() const { return spielLaeuft_; }
    std::optional<engine::Sitz> gefragterSitz() const;
    const Protokoll& protokoll() const { return protokoll_; }
    // A remark of ours or a line from beside the table (the foyer), logged as a received line is.
    void vermerk(const std::string& text);

    void kartenGegeben(const engine::Spiel&) override;
    void neugebenVerlangt(const engine::Spiel&, engine::Sitz, int grund) override;
    void vorbehaltGemacht(const engine::Spiel&, engine::Sitz, const engine::Vorbehalt&) override;
    void spielBegonnen(const engine::Spiel&) override;
    void karteGespielt(const engine::Spiel&, engine::Sitz, int pos) override;
    void stichKomplett(const engine::Spiel&, engine::Sitz) override;
    void ansageGemacht(const engine::Spiel&, const engine::AnsageEintrag&) override;
    void spielBeendet(const engine::Spiel&) override;

private:
    enum class Frageart { Neugeben, Solo, Hochzeit, Karte };
    struct Frage {
        engine::Sitz sitz{2};
        Frageart art = Frageart::Karte;
        long kennung = 0;  // which request of the cycle it belongs to
    };

    static std::size_t index(engine::Sitz s) { return static_cast<std::size_t>(s.nr() - 1); }
    Platz& platzVon(engine::Sitz s) { return plaetze_[index(s)]; }
    bool verbunden(engine::Sitz s) const { return platz(s).zustand != Platzzustand::Computer; }

    // Writes to one seat unless the computer holds it and no guest waits on it.
    void senden(engine::Sitz sitz, std::string_view tag, std::string_view nutzlast = {});
    // To every person-held seat but `ausser`.
    void anSpieler(std::string_view tag, std::string_view nutzlast, std::optional<engine::Sitz> ausser = {});
    // To every guest, waiting ones included, but `ausser`.
    void anGaeste(std::string_view tag, std::string_view nutzlast, std::optional<engine::Sitz> ausser = {});
    void anmeldungSenden(engine::Sitz sitz);
    void spielblockSenden(engine::Sitz sitz);
    void wartendeAufnehmen();

    void verarbeiten(engine::Sitz sitz, const std::string& nachricht);
    void nameAnnehmen(engine::Sitz sitz, std::string_view bytes);
    void chatAnnehmen(engine::Sitz sitz, std::string_view bytes);
    void neugebenAnnehmen(engine::Sitz sitz, int grund, std::string_view nutzlast);
    void soloAnnehmen(engine::Sitz sitz, std::string_view nutzlast);
    void hochzeitAnnehmen(engine::Sitz sitz, std::string_view nutzlast);
    void karteAnnehmen(engine::Sitz sitz, std::string_view nutzlast);
    void ansageAnnehmen(engine::Sitz sitz, const engine::Ansage& ansage);
    void vorbehaltGeben(const engine::Vorbehalt& v);

    long anfrageKennung() const;
    bool gefragt(engine::Sitz sitz, Frageart art) const;
    void frageStellen(engine::Sitz sitz, Frageart art, std::string_view tag, std::string_view nutzlast = {});
    void beantwortet();
    void frageVergessen();

    engine::Spiel& spiel_;
    engine::Spielablauf& ablauf_;
    Gastgeberausgang& ausgang_;
    std::array<Platz, 4> plaetze_{};  // index 0 is the host's own seat and stays unused
    std::string hostname_;
    int netztempo_ = 1;
    bool spielLaeuft_ = false;
    long gebenZaehler_ = 0;
    std::optional<Frage> frage_;
    Protokoll protokoll_;
};

}  // namespace net

#pragma once
// The foyer client without a socket: received bytes go in, lines to send and
// events for the window come out. It keeps who is in the foyer, who sits at
// which table and which tables are offered, answers the server's PING, and
// speaks the table handshake of the control words.
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "Irczeile.h"
#include "Steuerwort.h"

namespace foyer {

inline constexpr std::size_t MaxMitglieder = 1000;  // per channel
inline constexpr std::size_t MaxTische = 200;       // offered tables and table channels known

enum class Anmeldestand { Aus, Wartet, Angemeldet, Abgelehnt };

struct Ereignis {
    enum class Art {
        Angemeldet,       // the server took the name
        NameAbgelehnt,    // text: the message for the player
        ListenGeaendert,  // players or tables changed
        FoyerChat,        // von, text
        PrivatChat,       // partner (the conversation), von, text
        Systemzeile,      // partner ("" for the foyer), text with "<SYSTEM> "
        TischEroeffnet,   // nummer: our table is announced
    };
    Art art;
    std::string von;
    std::string partner;
    std::string text;
    int nummer = 0;
    bool operator==(const Ereignis&) const = default;
};

struct Foyerspieler {
    std::string nick;
    int tisch = 0;  // the table he sits at, 0 in the foyer only
    bool operator==(const Foyerspieler&) const = default;
};

struct Foyertisch {
    Tischangebot angebot;
    std::string besitzer;
    std::vector<std::string> sitzend;  // who is in its channel, the owner included
};

// The refresh timer: 500 ms for the ticks after a request, then 800 ms.
class Auffrischtakt {
public:
    int intervallMs() const { return zaehler_ <= 10 ? 500 : 800; }
    void tick() {
        if (zaehler_ <= 10) ++zaehler_;
    }
    void anfordern() { zaehler_ = 0; }

private:
    int zaehler_ = 0;
};

class Foyersitzung {
public:
    explicit Foyersitzung(std::string raum = "Foyer");

    // The login lines for a name (cut to 12 for the server).
    void anmelden(std::string_view name, std::string_view kennung);
    // Received bytes; `jetztMs` is a clock for the automatic answer's pacing.
    void empfangen(std::string_view bytes, std::int64_t jetztMs);
    // A tick of the refresh timer: member lists of the foyer and the tables.
    void tick();

    void foyerChatSenden(std::string_view text);
    void privatSenden(std::string_view nick, std::string_view text);
    // While set, a private chat message is answered with " *CHATE*" (once a
    // minute per sender, so two absent players cannot talk to each other forever).
    void setzeNichtErreichbar(bool nicht) { nichtErreichbar_ = nicht; }

    // Host: picks a free table number, joins its channel and announces the table
    // once the channel turns out to be its own (TischEroeffnet).
    void tischEroeffnen(std::string adresse, int port, int frei, std::string regeln);
    void freiePlaetzeSetzen(int frei);
    void tischSchliessen();
    std::optional<Tischangebot> eigenerTisch() const;
    // Guest: sits down at a table (after the table protocol has connected) or leaves it.
    void platzNehmen(int nummer);
    void platzVerlassen();
    int sitzAn() const { return platz_; }

    std::vector<std::string> ausgangNehmen();  // lines with their CR, in order
    std::vector<Ereignis> ereignisseNehmen();

    Anmeldestand stand() const { return stand_; }
    const std::string& nick() const { return nick_; }
    const std::string& foyerkanal() const { return foyerkanal_; }
    int intervallMs() const { return takt_.intervallMs(); }
    std::vector<Foyerspieler> spieler() const;
    // Tables whose owner is in its channel, by number.
    std::vector<Foyertisch> tische() const;
    std::size_t verworfeneZeilen() const { return puffer_.verworfen(); }

private:
    void zeileAuswerten(const Irczeile& z, std::int64_t jetztMs);
    void privmsg(const Irczeile& z, std::int64_t jetztMs);
    void automatischAntworten(const std::string& von, std::int64_t jetztMs);
    void namenAnfragen();
    void steuerwort(const std::string& von, std::string_view text);
    void namensliste(const Irczeile& z);
    void namenslisteFertig(const std::string& kanal);
    void beitreten(const std::string& kanal, const std::string& nick);
    void verlassen(const std::string& kanal, const std::string& nick);
    void gegangen(const std::string& nick);
    void umbenennen(const std::string& alt, const std::string& neu);
    std::vector<std::string>* liste(std::string_view kanal);
    void tischkanalMerken(int nummer);
    void eigenenTischVersuchen();
    void senden(std::string text);
    void ereignis(Ereignis e) { ereignisse_.push_back(std::move(e)); }
    bool istIch(std::string_view nick) const { return gleicherNick(nick, nick_); }
    bool mitglied(int tisch, std::string_view nick) const;

    std::string foyerkanal_;
    std::string name_;
    std::string nick_;
    Anmeldestand stand_ = Anmeldestand::Aus;
    Zeilenpuffer puffer_;
    Auffrischtakt takt_;
    bool nichtErreichbar_ = false;
    bool auffrischen_ = false;
    bool listenGeaendert_ = false;

    std::vector<std::string> foyer_;
    std::map<int, std::vector<std::string>> tischkanaele_;  // members per table channel
    std::map<std::string, std::vector<std::string>> namensAufbau_;  // lists being received
    std::map<int, std::pair<std::string, Tischangebot>> angebote_;  // owner and offer per table
    std::map<std::string, std::int64_t> chateGesendet_;  // sender (lower case) -> time answered
    std::size_t namensRunde_ = 0;

    struct EigenerTisch {
        Tischangebot angebot;
        bool angesagt = false;
        std::set<int> versucht;
    };
    std::optional<EigenerTisch> eigen_;
    int platz_ = 0;

    std::vector<std::string> ausgang_;
    std::vector<Ereignis> ereignisse_;
};

}  // namespace foyer

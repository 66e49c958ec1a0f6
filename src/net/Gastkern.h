#pragma once
// The guest's side of a network table, without sockets. The guest runs its own
// game cycle on the deal the host sends, its own seat local seat 1 (a person
// here: Steuerung::Mensch) and the other seats Steuerung::Netz, whose requests
// are answered from the host's messages. So the table shows a network game
// exactly as a local one. The guest never decides an outcome itself: a card the
// host reports that its engine refuses, or totals that differ from its own, are
// logged as a disagreement and the host's totals are taken.
//
// The owner keeps the game and its cycle and shows them; it answers seat 1's
// requests only after gefragt() and only through antworten() and ansagen()
// here, which send the decision to the host. Deals, trick collection and the
// next game are done here as the host's messages arrive.
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "Nachricht.h"
#include "Nutzlast.h"
#include "Protokoll.h"
#include "engine/Spielablauf.h"

namespace net {

class Gastausgang {
public:
    virtual ~Gastausgang() = default;
    virtual void schreiben(std::string_view bytes) = 0;
    virtual void status(const std::string&) {}
    virtual void chatzeile(const std::string&) {}
    // A notice for a message box (a player left, a new Partie, changed end conditions).
    virtual void hinweis(const std::string&) {}
    virtual void protokollzeile(const std::string&) {}
    virtual void namenGeaendert() {}
    // The host's "Netztempo" ("Netzt"): the pace of the table.
    virtual void netztempo(int) {}
    // The host asked for the name ("Name?"): the login has been answered.
    virtual void nameGefragt() {}
    // The host refused the name as taken; the text to show. Answer with nameSenden().
    virtual void nameVergeben(const std::string&) {}
    // The host asks seat 1 for a decision (see offeneFrage()).
    virtual void gefragt() {}
    // The game moved on (a deal, a card, an announcement, the end of a game).
    virtual void weiter() {}
    // "Gesund" or " Vorbehalt " beside a seat (local seat number).
    virtual void sitzVorbehalt(engine::Sitz, const std::string&) {}
    virtual void spielBeendet() {}
    // The host's totals after a game are all there ("Gpkt1".."Gpkt4" after "Endeb").
    virtual void punkteErhalten() {}
    virtual void abweichung(const std::string&) {}
};

enum class Gastfrage { Keine, Neugeben, Vorbehalt, Karte };

class Gastkern {
public:
    // Prepares the cycle: seat 1 is the person here (named `name`), the others play at other machines.
    Gastkern(engine::Spiel& spiel, engine::Spielablauf& ablauf, Gastausgang& ausgang, std::string name);

    // Data arrival; false when the buffer overflowed and the connection must go.
    bool empfangen(std::string_view bytes);
    // One pump tick: takes one message, unless a card is still being shown and
    // the next message is "Karte" or "Kart?". True when a message was taken.
    bool takt();
    // While the table shows a card flying, cards and card questions wait.
    void setzeAnzeigeBeschaeftigt(bool beschaeftigt) { beschaeftigt_ = beschaeftigt; }
    bool hatUnverarbeitetes() const { return puffer_.vollstaendig(); }

    // Seat 1's decision on the host's open question: checked by the own cycle,
    // then sent; a refusal keeps the question open and gives the text to show.
    Gastfrage offeneFrage() const { return frage_; }
    engine::Bescheid antworten(const engine::Antwort& antwort);
    engine::Bescheid ansagen(const engine::Ansage& ansage);
    // A new name after the host refused one.
    void nameSenden(const std::string& name);
    void chatSenden(std::string_view text);

    int eigenerSitz() const { return abbildung_ ? abbildung_->eigener() : 0; }
    const std::optional<Sitzabbildung>& abbildung() const { return abbildung_; }
    // Totals as the host last sent them, by host seat 1..4.
    int hostpunkte(int hostSitz) const { return hostPunkte_[static_cast<std::size_t>(hostSitz - 1)]; }
    // Games whose end and totals have arrived.
    int spieleBeendet() const { return spieleBeendet_; }
    int netztempo() const { return netztempo_; }
    const Protokoll& protokoll() const { return protokoll_; }
    // A remark of ours or a line from beside the table (the foyer), logged as a received line is.
    void vermerk(const std::string& text);

private:
    enum class Ziel { Neugeben, Vorbehalt, Spielbeginn, Karte, Spielende };

    void senden(std::string_view tag, std::string_view nutzlast = {});
    bool abweichen(const std::string& text);
    void verarbeiten(const std::string& nachricht);
    void anmeldung(const Nachricht& n);
    void namenAnwenden();
    std::optional<engine::Sitz> lokal(int hostSitz) const;
    std::string hostSitzText() const { return std::to_string(eigenerSitz()); }

    // Gastspiegel.cpp: the own cycle, driven by the host's messages.
    void spielnachricht(const Nachricht& n);
    void blattAufnehmen(std::string_view text);
    void zumGeben();
    bool geben();
    void vorhandSetzen(engine::Sitz vorhand);
    bool vorruecken(Ziel ziel, engine::Sitz sitz = engine::Sitz(1), int grund = 0);
    void neugebenVon(engine::Sitz sitz, int grund);
    void vorbehaltVon(engine::Sitz sitz, std::string_view code);
    void vorbehaltGeben(engine::Sitz sitz, const engine::Vorbehalt& v);
    void karteVon(engine::Sitz sitz, std::string_view nutzlast);
    void ansageVon(engine::Sitz sitz, const engine::Ansage& ansage);
    void hostpunkteSetzen(int hostSitz, int punkte);
    void fragen(Gastfrage art, int grund = 0);
    void hochzeitMelden(const engine::Vorbehalt& v);

    engine::Spiel& spiel_;
    engine::Spielablauf& ablauf_;
    Gastausgang& ausgang_;
    std::string name_;
    Empfangspuffer puffer_;
    Protokoll protokoll_;
    bool beschaeftigt_ = false;
    bool nameGesendet_ = false;
    bool einstErhalten_ = false;
    std::optional<Sitzabbildung> abbildung_;
    std::array<std::string, 4> hostNamen_{};
    int netztempo_ = 1;

    engine::RegelOptionen regeln_;            // as the last "Einst" gave them
    int lfdsp_ = 0;
    std::array<int, 4> hostPunkte_{};
    std::optional<engine::Kartenverteilung> blatt_;  // dealt by the host, not yet given to the cycle
    std::optional<engine::Sitz> vorhand_;
    Gastfrage frage_ = Gastfrage::Keine;
    int frageGrund_ = 0;
    bool soloGefragt_ = false;                // the reservation question came as "Solo?"
    std::optional<engine::Vorbehalt> hochzeitOffen_;  // answered "Solo?"; "Hoch?" follows
    bool nachEndeb_ = false;
    int spieleBeendet_ = 0;
};

}  // namespace net

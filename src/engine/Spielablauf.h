#pragma once
// The game cycle as a state machine. It advances until a decision is needed and
// then names it as a request; the controller (table, network, autoplay) answers
// through antworten(). Announcements are separate actions, accepted while allowed.
// All state lives in the Spiel, so a loaded or received game resumes from it.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Ansagen.h"
#include "Entscheider.h"
#include "Geben.h"
#include "Meldung.h"
#include "Spiel.h"
#include "Vorbehalte.h"

namespace engine {

class Zufallsquelle;

namespace ablauftext {
inline constexpr std::string_view IhreKarte = "Ihre Karte bitte!";
inline constexpr std::string_view Ueberlegt = " überlegt...";
inline constexpr std::string_view BitteWarten = "Bitte warten!";
inline constexpr std::string_view StichKomplett = "Stich komplett... bitte warten";
inline constexpr std::string_view SpielBeendet = "Spiel beendet";
inline constexpr std::string_view PartieAbbrechen = "Möchten Sie die laufende Partie abbrechen?";
inline constexpr std::string_view ManuelleVerteilung = "Manuelle Kartenverteilung?";
inline constexpr std::string_view AutomatischSpielen = " &Automatisch spielen ";
inline constexpr std::string_view AutomatikAbbrechen = "&Automatik abbrechen";
inline constexpr std::string_view FalscheAntwort = "Diese Antwort passt nicht zur offenen Frage.";
inline constexpr std::string_view NichtInDerHand = "Diese Karte ist nicht in Ihrer Hand.";
}  // namespace ablauftext

enum class Anfrageart {
    Geben,            // deal: from the generator or given (manual dealing, loaded game, network host)
    Neugeben,         // a seat not played by the computer may ask for a redeal
    Vorbehalt,        // a seat's reservation, in playing order from Vorhand
    Karte,            // the seat on turn plays a card
    StichEinsammeln,  // the full trick lies on the table until collected
    NaechstesSpiel,   // the game is scored (spiel.ergebnis); the next one starts on answer
    NeuePartie,       // the Partie is over; a new one starts on answer
};

struct Neugebeanfrage {
    int grund = 0;  // Neugebegrund
    int anzahl = 0;
    std::string frage;            // the question box text
    bool computerWuerde = false;  // what the computer rule would answer (automatic play)
};

struct Vorbehaltanfrage {
    std::string soloFrage;          // the question before the solo dialog (for a person; empty when no solo is allowed)
    std::vector<int> soloarten;     // game types the solo dialog offers
    bool hochzeitMoeglich = false;  // the seat holds both Kreuz-Damen
    bool pflichtsolo = false;       // the seat must declare a solo now
};

struct Anfrage {
    Anfrageart art = Anfrageart::Geben;
    std::optional<Sitz> sitz;
    Steuerung steuerung = Steuerung::Computer;  // who answers (with automatic play, the computer for seat 1's cards)
    std::string status;                         // the status line
    Neugebeanfrage neugeben;
    Vorbehaltanfrage vorbehalt;
};

struct Antwort {
    Anfrageart art = Anfrageart::Geben;
    bool ja = false;
    int position = 0;
    Vorbehalt vorbehalt;
    std::optional<Kartenverteilung> karten;

    static Antwort zufallsGeben() { return {}; }
    static Antwort geben(const Kartenverteilung& k) {
        Antwort a;
        a.karten = k;
        return a;
    }
    static Antwort neugeben(bool ja) {
        Antwort a;
        a.art = Anfrageart::Neugeben;
        a.ja = ja;
        return a;
    }
    static Antwort mitVorbehalt(const Vorbehalt& v) {
        Antwort a;
        a.art = Anfrageart::Vorbehalt;
        a.vorbehalt = v;
        return a;
    }
    static Antwort karte(int pos) {
        Antwort a;
        a.art = Anfrageart::Karte;
        a.position = pos;
        return a;
    }
    // Collects the trick, starts the next game or the next Partie.
    static Antwort weiter(Anfrageart art) {
        Antwort a;
        a.art = art;
        return a;
    }
};

// Whether an answer or announcement was taken; if not, the text to show.
struct Bescheid {
    bool angenommen = true;
    std::string grund;
    explicit operator bool() const { return angenommen; }
    static Bescheid abgelehnt(std::string text) { return {false, std::move(text)}; }
};

class Spielablauf {
public:
    Spielablauf(Spiel& spiel, Zufallsquelle& zufall);

    void beobachterHinzufuegen(Spielbeobachter* b) { beobachter_.push_back(b); }
    void beobachterEntfernen(Spielbeobachter* b) { std::erase(beobachter_, b); }
    void meldungenAn(Meldungssenke* senke) { senke_ = senke; }
    // Stored rule options; they come into force at the start of the next game.
    void regelOptionenSetzen(const RegelOptionen& optionen) { optionen_ = optionen; }
    const RegelOptionen& regelOptionen() const { return optionen_; }
    void kartenbildFranzoesisch(bool franzoesisch) { franzoesisch_ = franzoesisch; }

    // Clears the score sheet and prepares the first game (the deal is the first request).
    void neuePartie();
    // Some seat has points or a trick has been played: ask before breaking it off.
    bool partieLaeuft() const;
    // After the Spiel was set from outside (received state): carries on from its phase.
    void fortsetzen();
    // A saved game keeps no phase: it is taken from the cards played (trick under
    // way, full trick on the table, or the game finished), then play carries on.
    void geladenesSpielFortsetzen();

    Anfrage anfrage() const;
    Bescheid antworten(const Antwort& antwort);
    // The kind and seat of the open request alone, without building its texts.
    Anfrageart offeneArt() const;
    Sitz sitzDerAnfrage() const;

    // Announcements of any seat while allowed.
    Bescheid ansagen(Sitz sitz, const Ansage& ansage);
    bool ansageMoeglich(Sitz sitz) const;
    Ansagemenue menue(Sitz sitz) const { return ansagemenue(spiel_, sitz); }

    // Lets the computer play seat 1's cards, or stops it; returns the menu caption.
    std::string_view automatikUmschalten();

    const Spiel& spiel() const { return spiel_; }

private:
    void spielVorbereiten();
    Bescheid geben(const Antwort& a);
    void neugebenPruefen();
    void neugeben(Sitz sitz);
    void vorbehalteFragen();
    bool mussGefragtWerden(Sitz sitz) const;
    Bescheid vorbehaltAnnehmen(const Vorbehalt& v);
    void spielBeginnen(const Spielwahl& wahl);
    Bescheid karteAnnehmen(int pos);
    void stichAuswerten();
    void stichEinsammeln();
    void parteienBekannt();
    void melden(const Meldung& m);
    void melden(const std::vector<Meldung>& m);

    Spiel& spiel_;
    Zufallsquelle& zufall_;
    RegelOptionen optionen_;
    bool franzoesisch_ = true;
    std::vector<Spielbeobachter*> beobachter_;
    Meldungssenke* senke_ = nullptr;
};

}  // namespace engine

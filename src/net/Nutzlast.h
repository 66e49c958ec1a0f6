#pragma once
// The payloads of the table protocol: the deal, the rule settings, a card, a
// reservation, and the seat mapping of a guest. Pure text in and out; a field
// that does not read as a number reads as 0.
#include <optional>
#include <string>
#include <string_view>

#include "engine/Entscheider.h"
#include "engine/Geben.h"
#include "engine/Regeln.h"
#include "engine/Spiel.h"

namespace net {

// A guest sees itself at local seat 1: for own host seat k, local seat =
// ((host seat - k) mod 4) + 1. The host itself is k = 1 (no rotation).
class Sitzabbildung {
public:
    Sitzabbildung() = default;
    explicit Sitzabbildung(int eigenerSitz) : eigener_(eigenerSitz) {}
    int eigener() const { return eigener_; }
    engine::Sitz lokal(int hostSitz) const { return engine::Sitz((hostSitz - eigener_ + 4) % 4 + 1); }
    int host(engine::Sitz lokal) const { return (lokal.nr() - 1 + eigener_ - 1) % 4 + 1; }

private:
    int eigener_ = 1;
};

// The first character of a payload as a seat 1..4; 0 when it is none.
int sitzZiffer(std::string_view nutzlast);
// The last character of a payload as a digit; -1 when it is none.
int letzteZiffer(std::string_view nutzlast);

// "Verte": the codes of deck positions 1..48, each left-aligned in two characters.
std::string verteilungSchreiben(const engine::Kartenverteilung& karten);
// The deal as the guest holds it: host seat h's block becomes local seat
// abbildung.lokal(h)'s block; n = kartenanzahl / 4 positions per seat.
// Empty when the text is shorter than the blocks or holds a code outside 0..25.
std::optional<engine::Kartenverteilung> verteilungLesen(std::string_view text, int kartenanzahl,
                                                         const Sitzabbildung& abbildung);

// "Einst": 30 three-character fields of the rules in force (see Nutzlast.cpp for
// the order). A value that does not fit three characters is written as 999 or -99.
inline constexpr int EinstFelder = 30;
std::string einstellungenSchreiben(const engine::Regeln& regeln);
// Overwrites the options the fields carry; the others keep their values in `basis`.
engine::RegelOptionen einstellungenLesen(std::string_view text, engine::RegelOptionen basis);
// Whether a value travels in "Einst" unchanged.
bool passtInFeld(int wert);

// "Karte": seat digit, value flag, "#", suit. The suit is the printed one (the
// Joker: Karo), so value and suit name exactly one card code.
std::string karteSchreiben(int sitz, int code);
// The card code a payload names, 0 for none.
int karteLesen(std::string_view nutzlast);
// The first deck position of the seat's block with this code that is still in
// the hand; 0 when there is none.
int positionSuchen(const engine::Spiel& spiel, engine::Sitz sitz, int code);

// Reservation code of "Gesun" after the seat digit: "0" healthy (a silent solo
// too), "1" + game type for a solo, "2" + kind for a Hochzeit.
std::string vorbehaltSchreiben(const engine::Vorbehalt& v);
engine::Vorbehalt vorbehaltLesen(std::string_view code);

// "Antwo" to "Solo?": "Solo1" then "0" (no solo) or "1" and the game type.
std::string soloantwortSchreiben(const engine::Vorbehalt& v);
// The game type wanted, 0 for no solo (also for anything unreadable).
int soloantwortLesen(std::string_view nutzlast);

}  // namespace net

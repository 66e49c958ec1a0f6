#pragma once
// Re, Kontra and limits: who may announce when, what it changes, and the texts
// and menu entries the table shows for it.
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Entscheider.h"
#include "Meldung.h"
#include "Spiel.h"

namespace engine {

namespace ansagetext {
inline constexpr std::string_view ReAusrufen = "&Re ausrufen";
inline constexpr std::string_view ReAusgerufen = "Re ausgerufen";
inline constexpr std::string_view KontraGeben = "&Kontra geben";
inline constexpr std::string_view KontraGegeben = "Kontra gegeben";
inline constexpr std::string_view Limitgebot = "&Limitgebot";
inline constexpr std::string_view RuftReAus = " ruft Re aus!";
inline constexpr std::string_view GibtKontra = " gibt Kontra!";
inline constexpr std::string_view TitelRe = "RE-Ausruf!";
inline constexpr std::string_view TitelKontra = "Kontra-Ansage!";
inline constexpr std::string_view TitelLimit = "Limit-Ansage!";
inline constexpr std::string_view TitelUmwandlung = "Kontra/Re-Umwandlung!";
inline constexpr std::string_view Unzulaessig = "unzulässig";
inline constexpr std::string_view LimitVorErsterKarte = "Stufenlimits können erst nach der 1. Karte angesagt werden!";
inline constexpr std::string_view KeineAnsagen = "Re und Kontra sind nach den Regeln nicht zulässig.";
inline constexpr std::string_view KeineLimits = "Limitgebote sind nach den Regeln nicht zulässig.";
inline constexpr std::string_view FristVorbei = "Die Frist für diese Ansage ist abgelaufen.";
inline constexpr std::string_view LimitSchonAngesagt = "In diesem Spiel wurde bereits ein Limit angesagt.";
inline constexpr std::string_view NichtJetzt = "Jetzt kann nichts angesagt werden.";
}  // namespace ansagetext

// The list entry of the rules "Kontra" and "Limit": "unzulässig" or "bis einschließlich n. Stich".
std::string periodeText(int n);
// 90, 60, 30, or 0 for Schwarz.
int limitAugen(int limitCode);
// "Limitgebot (keine 90)" ... "Limitgebot (kein Stich)".
std::string limitMenuetext(int limitCode);

// Some seat of that side (1 Kontra, 2 Re) has announced Re or Kontra.
bool parteiHatAngesagt(const Spiel& spiel, int seite);
// 2 for each side that has announced.
int faktorAusAnsagen(const Spiel& spiel);

// Why an announcement cannot be made now.
enum class Ansagesperre {
    Keine,         // allowed
    NichtJetzt,    // no game running, or no such limit
    KeineAnsagen,  // rule "Kontra" is 0
    KeineLimits,   // rule "Limit" is 0
    FristVorbei,
    SchonAngesagt,   // the seat's side has announced: the menu entry simply does nothing
    VorErsterKarte,  // a limit before the first card
    LimitSchon,      // a limit has been announced in this game
};
Ansagesperre ansageSperre(const Spiel& spiel, Sitz sitz, const Ansage& ansage);
// The refusal text; empty for Keine and SchonAngesagt.
std::string_view sperrText(Ansagesperre sperre);

// Empty when the seat may make the announcement now, else the refusal text.
std::optional<std::string> ansageVerweigert(const Spiel& spiel, Sitz sitz, const Ansage& ansage);

// Records an allowed announcement: flags, factor, the per-trick record, the list.
AnsageEintrag ansageEintragen(Spiel& spiel, Sitz sitz, const Ansage& ansage);
Meldung ansageMeldung(const Spiel& spiel, const AnsageEintrag& eintrag);

// Moves announcements whose seat turned out to play on the other side.
std::vector<Meldung> ansagenUmwandeln(Spiel& spiel);

struct Menuepunkt {
    std::string text;
    bool aktiv = false;
    bool markiert = false;
    bool operator==(const Menuepunkt&) const = default;
};

// The game menu of one seat: Re/Kontra, the limit entry and its four limits (index = limit code).
struct Ansagemenue {
    Menuepunkt reKontra;
    Menuepunkt limit;
    std::array<Menuepunkt, 4> limits;
    bool operator==(const Ansagemenue&) const = default;
};
Ansagemenue ansagemenue(const Spiel& spiel, Sitz sitz);

}  // namespace engine

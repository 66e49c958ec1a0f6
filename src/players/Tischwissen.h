#pragma once
// What the computer players of one table believe about the seats: parties, voids,
// trumps left. One object per table, shared by its computer seats and kept up to
// date as an observer of the game. Every belief is held per observing seat, so one
// seat can be fooled while another is not.
#include <array>
#include <optional>

#include "Begruendung.h"
#include "Solotabellen.h"
#include "engine/Entscheider.h"
#include "engine/Zufall.h"

namespace players {

using engine::ProSitz;
using engine::Sitz;
using engine::Spiel;

// Effective suits 1..8 (plain suits and the trump values of all game types).
inline constexpr int AnzahlFarben = 9;

// Reasoning display switch: only 1 shows the texts.
inline constexpr int MsgBoxZeigen = 1;
inline constexpr int MsgBoxVerbergen = 3;

class Tischwissen final : public engine::Spielbeobachter {
public:
    explicit Tischwissen(engine::Zufallsquelle& zufall, Begruendungssenke* senke = nullptr)
        : zufall_(&zufall), senke_(senke) {}
    Tischwissen(const Tischwissen&) = default;
    // A copy that draws from another source and reports nothing (for another thread).
    Tischwissen(const Tischwissen& andere, engine::Zufallsquelle& zufall) : Tischwissen(andere) {
        zufall_ = &zufall;
        senke_ = nullptr;
    }
    Tischwissen& operator=(const Tischwissen&) = delete;

    void senkeSetzen(Begruendungssenke* senke) { senke_ = senke; }

    // --- The knowledge (indices: [seat][observer], [seat][suit][observer]).
    ProSitz<int> partei;                                 // true party: 1 Kontra, 2 Re, 3 Re alone
    std::optional<Sitz> stillerSolist;                   // holder of both Kreuz-Damen
    ProSitz<int> kreuzDamenSumme;                        // running total of Kreuz-Damen held
    ProSitz<ProSitz<int>> parteiWissen;                  // belief: 0 unknown, 1, 2, 3
    ProSitz<std::array<ProSitz<bool>, AnzahlFarben>> farbeFrei;
    ProSitz<ProSitz<bool>> keinTrumpf;
    ProSitz<std::array<int, AnzahlFarben>> abwurfZaehler;
    ProSitz<ProSitz<bool>> trumpfPartnerMarke;
    ProSitz<int> parteiBekannt;                          // publicly known party, for the indicator
    ProSitz<int> parteiBild;                             // indicator picture 1..6
    ProSitz<int> zeigerBild;                             // picture on the indicator, 0 none yet
    int zufallszahl = 1;                                 // 1..100
    int msgBoxModus = MsgBoxVerbergen;
    // The reservations' solo evaluation (cleared at the deal only: play reads it).
    Solotabellen solo;

    // Tricks led per effective suit so far (the trick in progress included).
    std::array<int, AnzahlFarben> angespielt{};
    // Seat that leads the next trick, as remembered by the trick evaluation.
    std::optional<Sitz> naechsterAufspieler;

    int glaube(Sitz ueber, Sitz beobachter) const { return parteiWissen[ueber][beobachter]; }

    // --- The rules.
    // Clears everything for a new deal.
    void zuruecksetzen();
    // True parties from the Kreuz-Damen (declared games take the engine's parties),
    // each seat's own knowledge and the publicly known parties.
    void parteienFestlegen(const Spiel& spiel);
    // After the fourth card: per-trick rules, then the party indicator.
    void stichAuswerten(const Spiel& spiel, const engine::Stich& stich);
    void parteizeigerSetzen(const Spiel& spiel);
    // Before every computer card: the random number of the first trick, own trumps.
    void zugVorbereiten(const Spiel& spiel, Sitz sitz);
    // ... when the caller has counted the seat's trumps already.
    void zugVorbereiten(const Spiel& spiel, Sitz sitz, int eigeneTruempfe);
    // Rebuilds the knowledge from the game so far (a loaded game, a seat taken over).
    void nachvollziehen(const Spiel& spiel);
    // Whether the knowledge has seen every card of the game so far.
    bool aktuell(const Spiel& spiel) const;

    // --- Observer.
    void kartenGegeben(const Spiel& spiel) override;
    void spielBegonnen(const Spiel& spiel) override;
    void karteGespielt(const Spiel& spiel, Sitz sitz, int pos) override;
    void stichKomplett(const Spiel& spiel, Sitz gewinner) override;
    void parteienGeaendert(const Spiel& spiel) override;
    void ansageGemacht(const Spiel& spiel, const engine::AnsageEintrag& ansage) override;

private:
    // The card at place `anzahl` of the trick: a Kreuz-Dame shown, voids, the bluff.
    void karteGesehen(const Spiel& spiel, const engine::Stich& stich, int anzahl);
    void karteVerarbeiten(const Spiel& spiel, const engine::Stich& stich, int anzahl);
    void bluffRegel(const Spiel& spiel, const engine::Stich& stich, int anzahl);
    void kreuzDameGesehen(Sitz sitz);
    void allenBekannt(Sitz sitz, int wert);
    void folgern(const Spiel& spiel);
    void hinweis(const std::string& text);

    engine::Zufallsquelle* zufall_;
    Begruendungssenke* senke_;
    int beobachteteKarten_ = 0;
    bool begonnen_ = false;
    bool stumm_ = false;  // no messages while replaying
    ProSitz<int> kreuzDamenGespielt_;
};

// The party picture beside a seat for what is known of its party (0 unknown, 1 Kontra,
// 2 or 3 Re): 1 and 2 unknown, 3 and 4 Kontra, 5 and 6 Re; odd pictures lie across
// (seats 1 and 3), even ones stand upright (seats 2 and 4).
int parteibild(Sitz sitz, int parteiBekannt);

// A seat's trumps still in hand (true count, for the honest rules).
int truempfeInHand(const Spiel& spiel, Sitz sitz);

}  // namespace players

#pragma once
// A constructed moment of a game: hands (shorter than a full hand when tricks have
// gone), the trick so far, the table's knowledge; then ask the rule book.
#include <array>
#include <initializer_list>
#include <string>
#include <vector>

#include "engine/Stichspiel.h"
#include <optional>

#include "players/Begruendung.h"
#include "players/Lage.h"
#include "players/Regelwerk.h"
#include "players/Tischwissen.h"

namespace testhilfe {

class Situation {
public:
    engine::Spiel spiel;
    engine::SeedZufall zufall{7};
    players::Meldungsliste meldungen;
    players::Tischwissen wissen{zufall, &meldungen};

    // Seats 1..4 hold the listed codes; the rest of each block is out of play.
    Situation(int spieltyp, const std::vector<std::vector<int>>& haende) {
        spiel.spieltyp = spieltyp;
        spiel.solo = spieltyp != engine::Normalspiel;
        for (const engine::Sitz s : engine::alleSitze) {
            int pos = spiel.deck.erstePosition(s);
            for (int code : haende[static_cast<std::size_t>(s.nr() - 1)]) {
                spiel.deck[pos].code = code;
                spiel.deck[pos++].status = engine::InHand;
            }
            spiel.namen[s] = "Spieler" + std::to_string(s.nr());
        }
        spiel.deck.attributeBerechnen();
        spiel.deck.staerkenBerechnen(spieltyp);
        spiel.stich.beginnen(engine::Sitz(1));
        wissen.msgBoxModus = players::MsgBoxZeigen;
    }

    // True parties (what the game flow fixes) for seats 1..4.
    void parteien(std::array<int, 4> p) {
        for (const engine::Sitz s : engine::alleSitze) spiel.partei[s] = p[static_cast<std::size_t>(s.nr() - 1)];
    }
    void aufspieler(int sitz) { spiel.stich.beginnen(engine::Sitz(sitz)); }
    // The seat on turn plays the first such card of its hand.
    void spielt(int code) {
        const engine::Sitz s = spiel.stich.amZug();
        engine::karteSpielen(spiel, position(s.nr(), code));
    }
    int position(int sitz, int code) const {
        const engine::Sitz s(sitz);
        for (int p = spiel.deck.erstePosition(s); p <= spiel.deck.letztePosition(s); ++p)
            if (spiel.deck[p].code == code && spiel.deck[p].status == engine::InHand) return p;
        return 0;
    }
    // Plays like spielt() and tells the knowledge, as the game cycle does.
    void beobachtet(int code) {
        const engine::Sitz s = spiel.stich.amZug();
        const int pos = position(s.nr(), code);
        engine::karteSpielen(spiel, pos);
        wissen.karteGespielt(spiel, s, pos);
    }
    // Completes the trick for the knowledge and starts the next one with the winner.
    void stichFertig() {
        const engine::Sitz gewinner = engine::stichGewinner(spiel);
        ++spiel.sticheGespielt;
        wissen.stichKomplett(spiel, gewinner);
        spiel.stich.beginnen(gewinner);
    }
    // Builds the knowledge from the game as set up; adjust beliefs afterwards.
    void wissenAufbauen() { wissen.nachvollziehen(spiel); }
    // The trick so far from its leader on, then the knowledge.
    void nachStich(std::initializer_list<int> codes) {
        for (int code : codes) spielt(code);
        wissenAufbauen();
    }
    int code(int pos) const { return spiel.deck[pos].code; }
    // After wissenAufbauen: seat x truly is of party p and knows it.
    void partei(int x, int p) {
        const engine::Sitz s(x);
        spiel.partei[s] = p;
        wissen.partei[s] = p;
        wissen.parteiWissen[s][s] = p;
    }
    // A declared solo of seat x: everybody knows the parties.
    void solo(int x) {
        spiel.solo = true;
        spiel.solist = engine::Sitz(x);
        for (const engine::Sitz s : engine::alleSitze) {
            partei(s.nr(), s.nr() == x ? engine::ParteiSolo : engine::ParteiKontra);
            alleGlauben(s.nr(), s.nr() == x ? engine::ParteiSolo : engine::ParteiKontra);
        }
    }
    // Observer k believes seat x to be of party p.
    void glaubt(int k, int x, int p) { wissen.parteiWissen[engine::Sitz(x)][engine::Sitz(k)] = p; }
    void alleGlauben(int x, int p) {
        for (const engine::Sitz k : engine::alleSitze) wissen.parteiWissen[engine::Sitz(x)][k] = p;
    }
    void frei(int x, int farbe) { wissen.farbeFrei[engine::Sitz(x)][static_cast<std::size_t>(farbe)].fill(true); }
    void ohneTrumpf(int x) { wissen.keinTrumpf[engine::Sitz(x)].fill(true); }

    // The card code the rule book chooses for the seat on turn.
    int waehlt() {
        meldungen.meldungen.clear();
        players::Regelwerk regelwerk(wissen, zufall, &meldungen);
        const int pos = regelwerk.karteWaehlen(spiel, spiel.stich.amZug());
        return pos ? spiel.deck[pos].code : 0;
    }
    // The view of the seat on turn, for asking a filter directly.
    players::Lage lage() {
        meldungen.meldungen.clear();
        const engine::Sitz sitz = spiel.stich.amZug();
        wissen.zugVorbereiten(spiel, sitz);
        melder_.emplace(&meldungen, sitz, true);
        return players::Lage(spiel, wissen, sitz, *melder_, zufall);
    }
    // "Verfahren:Code" of every rule that fired in the last choice, in order.
    std::vector<std::string> regeln() const {
        std::vector<std::string> v;
        for (const auto& m : meldungen.meldungen)
            if (m.art == players::Meldungsart::Regel) v.push_back(m.verfahren + ":" + m.code);
        return v;
    }
    std::string ersteRegel() const {
        const auto v = regeln();
        return v.empty() ? std::string("-") : v.front();
    }
    bool rueckfall() const {
        for (const auto& m : meldungen.meldungen)
            if (m.art == players::Meldungsart::Rueckfall) return true;
        return false;
    }
    bool zeigte(std::string_view text) const {
        for (const auto& m : meldungen.meldungen)
            if (m.text == text && m.anzeigen) return true;
        return false;
    }

private:
    std::optional<players::Melder> melder_;
};

}  // namespace testhilfe

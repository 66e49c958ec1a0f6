#pragma once
// A table for tests of the game cycle: given deals, seats chosen as person or
// computer, messages kept.
#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <type_traits>
#include <vector>

#include "engine/Entscheider.h"
#include "engine/Geben.h"
#include "engine/Spielablauf.h"
#include "engine/Zufall.h"

namespace testhilfe {

// A full deal: the listed codes open each seat's block, the rest of the deck is
// dealt round the table in code order (so pairs split between neighbours).
inline engine::Kartenverteilung verteilung(std::initializer_list<std::vector<int>> haende, int kartenanzahl = 48,
                                           bool joker = false) {
    std::vector<int> rest;
    for (int code = 1; code <= 24; ++code) {
        if (kartenanzahl == 40 && engine::rangVonCode(code) == engine::Neun) continue;
        rest.push_back(code);
        rest.push_back(joker && code == 1 ? engine::JokerCode : code);
    }
    const int hand = kartenanzahl / 4;
    engine::Kartenverteilung k{};
    std::array<int, 4> belegt{};
    int s = 0;
    for (const auto& h : haende) {
        for (int code : h) {
            const auto it = std::find(rest.begin(), rest.end(), code);
            EXPECT_NE(it, rest.end()) << "Karte " << code << " ist schon vergeben";
            if (it == rest.end()) continue;
            rest.erase(it);
            k[static_cast<std::size_t>(s * hand + belegt[static_cast<std::size_t>(s)]++)] = code;
        }
        ++s;
    }
    std::sort(rest.begin(), rest.end());
    int sitz = 0;
    for (int code : rest) {
        while (belegt[static_cast<std::size_t>(sitz)] == hand) sitz = (sitz + 1) % 4;
        k[static_cast<std::size_t>(sitz * hand + belegt[static_cast<std::size_t>(sitz)]++)] = code;
        sitz = (sitz + 1) % 4;
    }
    return k;
}

template <class T = int>
engine::ProSitz<T> proSitz(std::type_identity_t<T> a, std::type_identity_t<T> b, std::type_identity_t<T> c,
                           std::type_identity_t<T> d) {
    engine::ProSitz<T> x;
    x[engine::Sitz(1)] = a;
    x[engine::Sitz(2)] = b;
    x[engine::Sitz(3)] = c;
    x[engine::Sitz(4)] = d;
    return x;
}

// Answers the open request as the headless autoplay does (a random deal, redeal
// by the computer rule, the seat's player for reservations and cards); returns
// what was asked.
inline engine::Anfrageart beantworten(engine::Spielablauf& ablauf, const engine::Spiel& spiel,
                                      const engine::ProSitz<engine::Entscheider*>& spieler) {
    using engine::Antwort;
    const engine::Anfrage a = ablauf.anfrage();
    switch (a.art) {
        case engine::Anfrageart::Geben: EXPECT_TRUE(ablauf.antworten(Antwort::zufallsGeben())); break;
        case engine::Anfrageart::Neugeben:
            EXPECT_TRUE(ablauf.antworten(Antwort::neugeben(a.neugeben.computerWuerde)));
            break;
        case engine::Anfrageart::Vorbehalt:
            EXPECT_TRUE(ablauf.antworten(Antwort::mitVorbehalt(spieler[*a.sitz]->vorbehaltWaehlen(spiel, *a.sitz))));
            break;
        case engine::Anfrageart::Karte:
            EXPECT_TRUE(ablauf.antworten(Antwort::karte(spieler[*a.sitz]->karteWaehlen(spiel, *a.sitz))));
            break;
        default: EXPECT_TRUE(ablauf.antworten(Antwort::weiter(a.art))); break;
    }
    return a.art;
}

// Seat 1 is the person at the table unless told otherwise; Vorhand is seat 1.
struct Tisch {
    engine::Spiel spiel;
    engine::SeedZufall zufall{7};
    engine::Spielablauf ablauf{spiel, zufall};
    engine::Meldungsliste meldungen;

    explicit Tisch(engine::RegelOptionen o = vorhandEins(), bool menschAufEins = true) {
        for (const engine::Sitz s : engine::alleSitze) {
            spiel.namen[s] = "Spieler" + std::to_string(s.nr());
            spiel.steuerung[s] = engine::Steuerung::Computer;
        }
        if (menschAufEins) spiel.steuerung[engine::Sitz(1)] = engine::Steuerung::Mensch;
        ablauf.meldungenAn(&meldungen);
        ablauf.regelOptionenSetzen(o);
        ablauf.neuePartie();
    }
    static engine::RegelOptionen vorhandEins() {
        engine::RegelOptionen o;
        o.vorhand = 1;
        return o;
    }

    void geben(const engine::Kartenverteilung& k) { ASSERT_TRUE(ablauf.antworten(engine::Antwort::geben(k))); }
    engine::Anfrage anfrage() const { return ablauf.anfrage(); }
    // Answers every reservation request with "gesund".
    void alleGesund() {
        while (anfrage().art == engine::Anfrageart::Vorbehalt)
            ASSERT_TRUE(ablauf.antworten(engine::Antwort::mitVorbehalt({})));
    }
    // Plays the lowest-numbered legal card of the seat on turn until the phase changes.
    void karteSpielen() {
        const engine::Sitz s = *anfrage().sitz;
        for (int p = spiel.deck.erstePosition(s); p <= spiel.deck.letztePosition(s); ++p)
            if (spiel.deck[p].status == engine::InHand && ablauf.antworten(engine::Antwort::karte(p))) return;
        FAIL() << "keine Karte spielbar";
    }
    void stichSpielen() {
        for (int i = 0; i < 4; ++i) karteSpielen();
        ASSERT_EQ(anfrage().art, engine::Anfrageart::StichEinsammeln);
        ASSERT_TRUE(ablauf.antworten(engine::Antwort::weiter(engine::Anfrageart::StichEinsammeln)));
    }
    std::vector<engine::Meldung> meldungenDerArt(engine::Meldungsart art) const {
        std::vector<engine::Meldung> m;
        for (const auto& x : meldungen.meldungen)
            if (x.art == art) m.push_back(x);
        return m;
    }
};

}  // namespace testhilfe

#include "Geben.h"

#include "Zufall.h"

namespace engine {

namespace {
constexpr bool istNeunNummer(int r) { return (r - 1) % 6 == 0; }  // 1, 7, 13, ... 43
}  // namespace

Kartenverteilung kartenZiehen(int kartenanzahl, bool joker, Zufallsquelle& zufall) {
    Kartenverteilung karten{};
    std::array<bool, MaxPositionen + 1> gezogen{};
    const bool ohneNeunen = kartenanzahl == 40;
    for (int p = 1; p <= kartenanzahl; ++p) {
        int r = 0;
        do {
            r = zufall.ganzzahl(MaxPositionen) + 1;
        } while ((ohneNeunen && istNeunNummer(r)) || gezogen[static_cast<std::size_t>(r)]);
        gezogen[static_cast<std::size_t>(r)] = true;
        int code = r;
        if (r > 24 && !(r == JokerCode && joker)) code = r - 24;
        karten[static_cast<std::size_t>(p - 1)] = code;
    }
    return karten;
}

std::string verteilungPruefen(const Kartenverteilung& karten, int kartenanzahl, bool joker) {
    std::array<int, JokerCode + 1> anzahl{};
    for (int p = 1; p <= MaxPositionen; ++p) {
        const int code = karten[static_cast<std::size_t>(p - 1)];
        if (p > kartenanzahl) {
            if (code != 0) return "Karten auf Positionen außerhalb des Spiels";
            continue;
        }
        if (code < 1 || code > JokerCode) return "Ungültiger Kartencode " + std::to_string(code);
        ++anzahl[static_cast<std::size_t>(code)];
    }
    for (int code = 1; code <= JokerCode; ++code) {
        int soll = 2;
        if (code == JokerCode)
            soll = joker && kartenanzahl == 48 ? 1 : 0;
        else if (rangVonCode(code) == Neun)
            soll = kartenanzahl == 40 ? 0 : (code == kartencode(Karo, Neun) && joker ? 1 : 2);
        if (anzahl[static_cast<std::size_t>(code)] != soll) return "Falsche Anzahl der Karte " + std::to_string(code);
    }
    return {};
}

void kartenAuflegen(Spiel& spiel, const Kartenverteilung& karten) {
    spiel.deck.setzeKartenanzahl(spiel.regeln.kartenanzahl);
    for (int p = 1; p <= MaxPositionen; ++p) {
        Kartenposition& k = spiel.deck[p];
        k = Kartenposition{};
        k.code = karten[static_cast<std::size_t>(p - 1)];
        k.status = k.code ? InHand : ImSpielNicht;
    }
    spiel.deck.attributeBerechnen();
    spiel.deck.staerkenBerechnen(Normalspiel);
}

void geberWeiter(Partiestand& partie) { partie.geber = partie.geber % 4 + 1; }
void geberZurueck(Partiestand& partie) { partie.geber = partie.geber <= 1 ? 4 : partie.geber - 1; }

Sitz vorhandBestimmen(Partiestand& partie, const Regeln& regeln, Zufallsquelle& zufall) {
    Sitz v(1);
    if (!partie.letzteVorhand) {
        v = regeln.vorhand >= 1 && regeln.vorhand <= 4 ? Sitz(regeln.vorhand) : Sitz(zufall.ganzzahl(4) + 1);
    } else if (!partie.soloVorhandMarke) {
        v = partie.letzteVorhand->naechster();
    } else {
        v = regeln.hhNSolo || !partie.gemerkteVorhand ? partie.letzteVorhand->naechster() : *partie.gemerkteVorhand;
        partie.soloVorhandMarke = false;
    }
    partie.letzteVorhand = v;
    return v;
}

}  // namespace engine

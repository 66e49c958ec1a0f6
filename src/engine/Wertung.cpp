#include "Wertung.h"

#include <array>
#include <cstdlib>

#include "Ansagen.h"

namespace engine {

using namespace wertungstext;

namespace {
constexpr int andere(int seiteNr) { return seiteNr == ParteiRe ? ParteiKontra : ParteiRe; }

// The seat whose view the end box takes: the person at seat 1.
constexpr Sitz Mensch{1};

// "Spiel einfach gewonnen, keine 90, ..." for the levels reached and, with a
// limit, the announced level.
std::string wertText(int erreicht, int angesagt, bool eingehalten) {
    constexpr std::array<std::string_view, 4> stufen{StufeKeine90, StufeKeine60, StufeKeine30, StufeKeinStich};
    std::string t(EinfachGewonnen);
    for (int i = 0; i < erreicht; ++i) {
        t += stufen[static_cast<std::size_t>(i)];
        if (eingehalten && i + 1 == angesagt)
            t += std::string(stufen[static_cast<std::size_t>(i)]) + std::string(Angesagt);
    }
    if (angesagt > 0 && !eingehalten)
        t += std::string(stufen[static_cast<std::size_t>(angesagt - 1)]) + std::string(Angesagt);
    return t;
}

std::string punkteWort(int n) { return std::to_string(n) + (n == 1 ? " Punkt" : " Punkten"); }

bool hatSolospieler(const Spiel& spiel, int seiteNr) {
    for (const Sitz s : alleSitze)
        if (spiel.partei[s] == ParteiSolo && seite(spiel, s) == seiteNr) return true;
    return false;
}
}  // namespace

int augenImSpiel(const Deck& deck) {
    int summe = 0;
    for (int p = 1; p <= deck.kartenanzahl(); ++p) summe += deck[p].augen;
    return summe;
}

std::string partieendeText(int endeBei) {
    return "Partieende bei Überschreiten von " + std::to_string(endeBei) + " Punkt" + (endeBei > 1 ? "en" : "");
}

Wertzahlen wertungRechnen(const Spiel& spiel) {
    Wertzahlen w;
    std::array<int, 3> augen{}, stiche{};
    for (const Sitz s : alleSitze) {
        augen[static_cast<std::size_t>(seite(spiel, s))] += spiel.augen[s];
        stiche[static_cast<std::size_t>(seite(spiel, s))] += spiel.stichzahl[s];
    }
    w.augenRe = augen[ParteiRe];
    w.augenKontra = augen[ParteiKontra];
    w.sticheRe = stiche[ParteiRe];
    w.sticheKontra = stiche[ParteiKontra];

    const int gesamt = augenImSpiel(spiel.deck);
    const int alleStiche = spiel.deck.handgroesse();
    auto stufen = [&](int seiteNr) {
        const int a = augen[static_cast<std::size_t>(seiteNr)];
        const int st = stiche[static_cast<std::size_t>(seiteNr)];
        return (a > 150) + (a > 180) + (a > 210) + (a == gesamt && st == alleStiche);
    };

    // Winner: Kontra holds with 120; an announced limit must be reached by its side,
    // else the other side wins and gets the announced levels as well.
    if (spiel.limitSitz) {
        w.limitSeite = seite(spiel, *spiel.limitSitz);
        w.angesagt = 4 - spiel.limitCode;
        w.eingehalten = stufen(w.limitSeite) >= w.angesagt;
        w.gewinner = w.eingehalten ? w.limitSeite : andere(w.limitSeite);
    } else {
        w.gewinner = w.augenKontra >= 120 ? ParteiKontra : ParteiRe;
    }
    w.erreicht = stufen(w.gewinner);
    w.spielwert = 1 + w.erreicht + w.angesagt;

    int wert = w.spielwert * spiel.faktor;
    for (const Sonderpunkt& sp : spiel.sonderpunkte) {
        if (sp.partei == w.gewinner)
            ++w.sonderpunkteGewinner;
        else
            ++w.sonderpunkteVerlierer;
    }
    wert += w.sonderpunkteGewinner - w.sonderpunkteVerlierer;
    w.ergebnis = wert;
    w.buchungsPartei = wert < 0 ? andere(w.gewinner) : w.gewinner;
    w.betrag = std::abs(wert);
    if (spiel.partie.bock && spiel.regeln.bockrunden) w.betrag *= 2;
    return w;
}

int punkteFuerSeite(const Wertzahlen& w, int seiteNr) {
    return w.buchungsPartei == seite(seiteNr) ? w.betrag : -w.betrag;
}

void spielWerten(Spiel& spiel) {
    Spielergebnis e;
    e.gewertet = true;
    std::vector<std::string> zeilen;
    for (const Sitz s : alleSitze) {
        if (spiel.partei[s] != ParteiUnbekannt) continue;
        spiel.partei[s] = ParteiKontra;
        zeilen.push_back("Konnte Spieler" + spiel.namen[s] +
                         " bisher keiner Partei zuordnen. Stecke ihn daher in die Partei der Jungen!");
    }

    const Wertzahlen w = wertungRechnen(spiel);
    e.augenRe = w.augenRe;
    e.augenKontra = w.augenKontra;
    e.sticheRe = w.sticheRe;
    e.sticheKontra = w.sticheKontra;
    e.gewinner = w.gewinner;
    const int limitSeite = w.limitSeite;
    const int angesagt = w.angesagt;
    const bool eingehalten = w.eingehalten;
    if (limitSeite) e.limitEingehalten = eingehalten ? 1 : 0;
    const int verlierer = andere(e.gewinner);
    const int erreicht = w.erreicht;
    e.spielwert = w.spielwert;
    const int alleStiche = spiel.deck.handgroesse();
    const std::array<int, 3> augen{0, w.augenKontra, w.augenRe};
    const std::array<int, 3> stiche{0, w.sticheKontra, w.sticheRe};

    const int menschSeite = seite(spiel, Mensch);
    const bool menschGewinnt = e.gewinner == menschSeite;
    std::string kopf(spiel.partei[Mensch] == ParteiSolo ? SieHaben : IhreParteiHat);
    const int menschStiche = stiche[static_cast<std::size_t>(menschSeite)];
    if (menschGewinnt && menschStiche == alleStiche)
        kopf += AlleStiche;
    else if (!menschGewinnt && menschStiche == 0)
        kopf += SchwarzVerloren;
    else
        kopf += " mit " + std::to_string(augen[static_cast<std::size_t>(menschSeite)]) +
                std::string(menschGewinnt ? AugenGewonnen : AugenVerloren);
    zeilen.insert(zeilen.begin(), kopf);
    if (limitSeite) {
        if (limitSeite == menschSeite)
            zeilen.emplace_back(eingehalten ? LimitEingehalten : LimitNichtEingehalten);
        else
            zeilen.emplace_back(eingehalten ? GegnerLimitEingehalten : GegnerLimitNichtEingehalten);
    }

    // 1. Bock game.
    e.bock = spiel.partie.bock && spiel.regeln.bockrunden;
    spiel.partie.bock = false;

    // 2. Announcements.
    e.faktor = spiel.faktor;
    int wert = e.spielwert * e.faktor;
    std::string wertZeile = std::string(Spielwert) + wertText(erreicht, angesagt, eingehalten);
    if (e.faktor >= 4)
        wertZeile += std::string(VerdoppelungBeide) + std::to_string(wert);
    else if (e.faktor == 2)
        wertZeile += std::string(parteiHatAngesagt(spiel, ParteiKontra) ? VerdoppelungKontra : VerdoppelungRe) +
                     std::to_string(wert);
    else
        wertZeile += " = " + std::to_string(wert);

    // 3. and 4. Special points of winner and loser.
    e.sonderpunkteGewinner = w.sonderpunkteGewinner;
    e.sonderpunkteVerlierer = w.sonderpunkteVerlierer;
    wert += e.sonderpunkteGewinner;
    if (e.sonderpunkteGewinner == 1)
        wertZeile += std::string(EinSonderpunkt) + std::to_string(wert);
    else if (e.sonderpunkteGewinner > 1)
        wertZeile +=
            " + " + std::to_string(e.sonderpunkteGewinner) + std::string(ErzielteSonderpunkte) + std::to_string(wert);
    const std::size_t wertZeileNr = zeilen.size();
    zeilen.push_back(wertZeile + ")");
    wert -= e.sonderpunkteVerlierer;
    e.ergebnis = wert;

    // 5. and 6. Kalter Schlag and reversal.
    e.kalterSchlag = wert == 0;
    if (e.kalterSchlag && spiel.regeln.bockrunden) spiel.partie.bock = true;
    e.umkehr = wert < 0;
    e.buchungsPartei = e.umkehr ? verlierer : e.gewinner;
    int betrag = std::abs(wert);

    std::string absatz;
    if (e.sonderpunkteVerlierer > 0) {
        absatz = std::string(Abzueglich);
        const int n = e.sonderpunkteVerlierer;
        if (verlierer == menschSeite)
            absatz += n == 1 ? std::string(EigenerSonderpunkt)
                             : std::string(EigeneSonderpunkte) + std::to_string(n) + " Sonderpunkte ";
        else
            absatz +=
                n == 1 ? std::string(GegnerSonderpunkt) : " der " + std::to_string(n) + " Sonderpunkte Ihrer Gegner ";
        absatz += std::string(HatIhrePartei) + punkteWort(betrag) + " ";
        if (e.kalterSchlag)
            absatz += KalterSchlag;
        else
            absatz += e.buchungsPartei == menschSeite ? Gewonnen : Verloren;
    }
    if (!e.kalterSchlag && e.buchungsPartei != menschSeite)
        zeilen.emplace(zeilen.begin() + static_cast<std::ptrdiff_t>(wertZeileNr),
                       hatSolospieler(spiel, e.buchungsPartei) ? GegnerErhaelt : GegnerErhalten);

    // 7. Bock doubling.
    if (e.bock && betrag != 0) {
        absatz += std::string(betrag == 1 ? BockEinPunkt : BockPunkte) + std::string(BockGrund);
        betrag *= 2;
    }
    e.punkteJeSitz = betrag;

    // Booking: every seat of the booked side gets the points, the others nothing.
    Partiestand& partie = spiel.partie;
    for (const Sitz s : alleSitze) {
        e.punkte[s] = seite(spiel, s) == e.buchungsPartei ? betrag : 0;
        partie.punkte[s] += e.punkte[s];
    }
    // The table of games holds 96; from game 97 on the points rule decides the end.
    const int abrechnung = partie.spielNr > 96 ? 1 : spiel.regeln.abrOption;
    if (abrechnung == 2 && partie.spielNr >= 1)
        partie.spieltabelle[static_cast<std::size_t>(partie.spielNr - 1)] = e.punkte;
    if (abrechnung == 1) {
        for (const Sitz s : alleSitze) e.partieEnde = e.partieEnde || partie.punkte[s] >= spiel.regeln.endeBei;
    } else {
        e.partieEnde = partie.spielNr == spiel.regeln.endeNach;
    }
    if (!e.partieEnde && partie.bock) absatz += NaechstesVerdoppelt;
    if (!absatz.empty()) zeilen.push_back(absatz);

    for (const std::string& z : zeilen) {
        if (!e.text.empty()) e.text += "\n";
        e.text += z;
    }
    spiel.ergebnis = std::move(e);
}

}  // namespace engine

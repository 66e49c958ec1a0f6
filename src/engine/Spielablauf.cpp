#include "Spielablauf.h"

#include <algorithm>

#include "Neugeben.h"
#include "Sonderpunkte.h"
#include "Stichspiel.h"
#include "Wertung.h"
#include "Zufall.h"

namespace engine {

Spielablauf::Spielablauf(Spiel& spiel, Zufallsquelle& zufall) : spiel_(spiel), zufall_(zufall) {}

void Spielablauf::melden(const Meldung& m) {
    if (senke_) senke_->meldung(m);
}

void Spielablauf::melden(const std::vector<Meldung>& meldungen) {
    for (const Meldung& m : meldungen) melden(m);
}

void Spielablauf::neuePartie() {
    Partiestand& p = spiel_.partie;
    const int nr = p.spielNr > 0 ? p.partieNr + 1 : p.partieNr;
    p = Partiestand{};
    p.partieNr = nr;
    spielVorbereiten();
}

bool Spielablauf::partieLaeuft() const {
    const auto& punkte = spiel_.partie.punkte;
    return std::any_of(punkte.begin(), punkte.end(), [](int p) { return p != 0; }) || spiel_.sticheGespielt > 0 ||
           spiel_.stich.anzahl > 0;
}

void Spielablauf::spielVorbereiten() {
    // A fresh game keeps who sits at the table and the series.
    Spiel neu;
    neu.namen = spiel_.namen;
    neu.charakter = spiel_.charakter;
    neu.steuerung = spiel_.steuerung;
    neu.automatik = spiel_.automatik;
    neu.partie = spiel_.partie;
    spiel_ = std::move(neu);
    ++spiel_.partie.spielNr;
    spiel_.regeln = regelnUebernehmen(optionen_);
    spiel_.deck.setzeKartenanzahl(spiel_.regeln.kartenanzahl);
    spiel_.vorhand = vorhandBestimmen(spiel_.partie, spiel_.regeln, zufall_);
    spiel_.stich.beginnen(spiel_.vorhand);
    spiel_.ablauf = Ablaufstand{};
}

void Spielablauf::fortsetzen() {
    switch (spiel_.ablauf.phase) {
        case Spielphase::Neugeben: neugebenPruefen(); break;
        case Spielphase::Vorbehalte: vorbehalteFragen(); break;
        default: break;
    }
}

void Spielablauf::geladenesSpielFortsetzen() {
    Ablaufstand& a = spiel_.ablauf;
    a = Ablaufstand{};
    if (spiel_.sticheGespielt >= spiel_.deck.handgroesse()) {
        if (!spiel_.ergebnis.gewertet) {
            a.phase = Spielphase::StichVoll;
            stichEinsammeln();
        } else {
            a.phase = Spielphase::Spielende;
        }
    } else {
        a.phase = spiel_.stich.komplett() ? Spielphase::StichVoll : Spielphase::Kartenspiel;
    }
}

Sitz Spielablauf::sitzDerAnfrage() const {
    const Ablaufstand& a = spiel_.ablauf;
    switch (a.phase) {
        case Spielphase::Neugeben: return Sitz(std::clamp(a.pruefSitz, 1, 4));
        case Spielphase::Vorbehalte: return spiel_.vorhand.plus(a.vorbehaltGefragt);
        default: return spiel_.stich.amZug();
    }
}

Anfrage Spielablauf::anfrage() const {
    using namespace ablauftext;
    Anfrage a;
    a.art = offeneArt();
    const Spielphase phase = spiel_.ablauf.phase;
    if (phase == Spielphase::Geben) return a;
    if (phase == Spielphase::StichVoll || phase == Spielphase::Spielende || phase == Spielphase::Partieende) {
        a.status = std::string(phase == Spielphase::StichVoll ? StichKomplett : SpielBeendet);
        return a;
    }
    const Sitz s = sitzDerAnfrage();
    a.sitz = s;
    a.steuerung = spiel_.steuerung[s];
    const bool mensch = a.steuerung == Steuerung::Mensch;
    const bool netz = a.steuerung == Steuerung::Netz;
    if (phase == Spielphase::Neugeben) {
        const int grund = spiel_.ablauf.pruefung;
        a.neugeben.grund = grund;
        a.neugeben.anzahl = neugebeAnzahl(spiel_, s, grund);
        a.neugeben.frage = neugebenFrage(grund, a.neugeben.anzahl);
        a.neugeben.computerWuerde = computerWillNeugeben(spiel_, s, grund);
        if (netz) a.status = std::string(BitteWarten);
    } else if (phase == Spielphase::Vorbehalte) {
        a.vorbehalt.soloarten = erlaubteSoloarten(spiel_.regeln);
        // The question is for a person; computer seats decide without it.
        if (!a.vorbehalt.soloarten.empty() && a.steuerung != Steuerung::Computer)
            a.vorbehalt.soloFrage = soloFrage(spiel_, s);
        a.vorbehalt.hochzeitMoeglich = hatBeideKreuzDamen(spiel_, s);
        a.vorbehalt.pflichtsolo = mussPflichtsolo(spiel_, s);
        if (!mensch) a.status = std::string(vorbehalttext::WarteAufVorbehalte);
    } else {
        if (mensch && spiel_.automatik) a.steuerung = Steuerung::Computer;
        a.status = a.steuerung == Steuerung::Mensch     ? std::string(IhreKarte)
                   : a.steuerung == Steuerung::Computer ? spiel_.namen[s] + std::string(Ueberlegt)
                                                        : std::string(BitteWarten);
    }
    return a;
}

Anfrageart Spielablauf::offeneArt() const {
    switch (spiel_.ablauf.phase) {
        case Spielphase::Geben: return Anfrageart::Geben;
        case Spielphase::Neugeben: return Anfrageart::Neugeben;
        case Spielphase::Vorbehalte: return Anfrageart::Vorbehalt;
        case Spielphase::Kartenspiel: return Anfrageart::Karte;
        case Spielphase::StichVoll: return Anfrageart::StichEinsammeln;
        case Spielphase::Spielende: return Anfrageart::NaechstesSpiel;
        case Spielphase::Partieende: break;
    }
    return Anfrageart::NeuePartie;
}

Bescheid Spielablauf::antworten(const Antwort& antwort) {
    if (antwort.art != offeneArt()) return Bescheid::abgelehnt(std::string(ablauftext::FalscheAntwort));
    switch (antwort.art) {
        case Anfrageart::Geben: return geben(antwort);
        case Anfrageart::Neugeben:
            if (antwort.ja) {
                neugeben(sitzDerAnfrage());
            } else {
                ++spiel_.ablauf.pruefSitz;
                neugebenPruefen();
            }
            return {};
        case Anfrageart::Vorbehalt: return vorbehaltAnnehmen(antwort.vorbehalt);
        case Anfrageart::Karte: return karteAnnehmen(antwort.position);
        case Anfrageart::StichEinsammeln: stichEinsammeln(); return {};
        case Anfrageart::NaechstesSpiel:
            if (spiel_.ergebnis.partieEnde)
                spiel_.ablauf.phase = Spielphase::Partieende;
            else
                spielVorbereiten();
            return {};
        case Anfrageart::NeuePartie: neuePartie(); return {};
    }
    return {};
}

Bescheid Spielablauf::geben(const Antwort& a) {
    const Regeln& r = spiel_.regeln;
    Kartenverteilung karten{};
    if (a.karten) {
        std::string fehler = verteilungPruefen(*a.karten, r.kartenanzahl, r.joker);
        if (!fehler.empty()) return Bescheid::abgelehnt(std::move(fehler));
        karten = *a.karten;
    } else {
        karten = kartenZiehen(r.kartenanzahl, r.joker, zufall_);
    }
    geberWeiter(spiel_.partie);
    kartenAuflegen(spiel_, karten);
    spiel_.spieltyp = Normalspiel;
    for (Spielbeobachter* b : beobachter_) b->kartenGegeben(spiel_);
    spiel_.ablauf.phase = Spielphase::Neugeben;
    spiel_.ablauf.pruefung = NeunenWerfen;
    spiel_.ablauf.pruefSitz = 1;
    neugebenPruefen();
    return {};
}

void Spielablauf::neugebenPruefen() {
    Ablaufstand& a = spiel_.ablauf;
    // Check by check, seat 1 first; a seat not played by the computer is asked.
    for (; a.pruefung <= ArmutWerfen; ++a.pruefung, a.pruefSitz = 1) {
        if (!neugebenRegelInKraft(spiel_.regeln, a.pruefung)) continue;
        for (; a.pruefSitz <= 4; ++a.pruefSitz) {
            const Sitz s(a.pruefSitz);
            if (!darfNeugeben(spiel_, s, a.pruefung)) continue;
            if (spiel_.steuerung[s] != Steuerung::Computer) return;
            if (computerWillNeugeben(spiel_, s, a.pruefung)) {
                neugeben(s);
                return;
            }
        }
    }
    if (auto m = schweineMarkieren(spiel_)) melden(*m);
    a.phase = Spielphase::Vorbehalte;
    a.vorbehaltGefragt = 0;
    a.hochzeitWunsch.reset();
    a.hochzeitWunschArt = KeineHochzeit;
    vorbehalteFragen();
}

void Spielablauf::neugeben(Sitz s) {
    const int grund = spiel_.ablauf.pruefung;
    const int anzahl = neugebeAnzahl(spiel_, s, grund);
    melden(Meldung{Meldungsart::Neugeben, neugebenTitel(grund), neugebenAnsage(spiel_.namen[s], grund, anzahl), s,
                   gezeigteKarten(spiel_, s, grund)});
    geberZurueck(spiel_.partie);
    spiel_.ablauf.phase = Spielphase::Geben;
    for (Spielbeobachter* b : beobachter_) b->neugebenVerlangt(spiel_, s, grund);
}

bool Spielablauf::mussGefragtWerden(Sitz s) const {
    return spiel_.regeln.solis || hatBeideKreuzDamen(spiel_, s) || mussPflichtsolo(spiel_, s);
}

void Spielablauf::vorbehalteFragen() {
    Ablaufstand& a = spiel_.ablauf;
    for (; a.vorbehaltGefragt < 4; ++a.vorbehaltGefragt)
        if (mussGefragtWerden(spiel_.vorhand.plus(a.vorbehaltGefragt))) return;
    // Nobody declared a solo: a Hochzeit, else the silent solo of a holder of both
    // Kreuz-Damen, else the normal game.
    Spielwahl wahl;
    if (a.hochzeitWunsch) {
        wahl = {Spielwahl::Hochzeit, *a.hochzeitWunsch, Normalspiel, a.hochzeitWunschArt};
    } else {
        for (const Sitz s : alleSitze)
            if (hatBeideKreuzDamen(spiel_, s)) wahl = {Spielwahl::StillesSolo, s, Normalspiel, KeineHochzeit};
    }
    spielBeginnen(wahl);
}

Bescheid Spielablauf::vorbehaltAnnehmen(const Vorbehalt& v) {
    using namespace vorbehalttext;
    Ablaufstand& a = spiel_.ablauf;
    const Sitz s = sitzDerAnfrage();
    Vorbehalt wahl = v;
    if (v.art == Vorbehalt::Solo && !soloErlaubt(spiel_.regeln, v.spieltyp))
        return Bescheid::abgelehnt(std::string(SoloNichtErlaubt));
    if (v.art == Vorbehalt::Hochzeit &&
        (!hatBeideKreuzDamen(spiel_, s) || v.hochzeitArt < ErsterStich || v.hochzeitArt > ErsterTrumpfstich))
        return Bescheid::abgelehnt(std::string(KeineHochzeitMoeglich));
    if (mussPflichtsolo(spiel_, s) && v.art != Vorbehalt::Solo) {
        // A person must choose; a computer seat that names none plays a Karo-Solo.
        if (spiel_.steuerung[s] != Steuerung::Computer) return Bescheid::abgelehnt(std::string(PflichtsoloFaellig));
        wahl = Vorbehalt{Vorbehalt::Solo, Normalspiel, KeineHochzeit};
    }
    for (Spielbeobachter* b : beobachter_) b->vorbehaltGemacht(spiel_, s, wahl);
    if (wahl.art == Vorbehalt::Solo) {
        spielBeginnen({Spielwahl::Solo, s, wahl.spieltyp, KeineHochzeit});
        return {};
    }
    if (wahl.art == Vorbehalt::Hochzeit) {
        a.hochzeitWunsch = s;
        a.hochzeitWunschArt = wahl.hochzeitArt;
    }
    ++a.vorbehaltGefragt;
    vorbehalteFragen();
    return {};
}

void Spielablauf::spielBeginnen(const Spielwahl& wahl) {
    melden(spielFestlegen(spiel_, wahl, franzoesisch_));
    spiel_.ablauf = Ablaufstand{};
    spiel_.ablauf.phase = Spielphase::Kartenspiel;
    for (Spielbeobachter* b : beobachter_) b->spielBegonnen(spiel_);
}

Bescheid Spielablauf::karteAnnehmen(int pos) {
    const Sitz s = spiel_.stich.amZug();
    const Deck& deck = spiel_.deck;
    if (pos < deck.erstePosition(s) || pos > deck.letztePosition(s) || deck[pos].status != InHand)
        return Bescheid::abgelehnt(std::string(ablauftext::NichtInDerHand));
    if (!karteErlaubt(spiel_, s, pos))
        return Bescheid::abgelehnt(falscheKarteMeldung(spiel_, pos, franzoesisch_, zufall_));
    const Kartenfolge folge = karteSpielen(spiel_, pos);
    if (folge.supersau) {
        spiel_.spielbericht.push_back("für Schweinehirt (Spieler " + std::to_string(s.nr()) + ")");
        if (!spiel_.regeln.stilleBefoerderung)
            melden(Meldung{Meldungsart::Supersau, std::string(vorbehalttext::TitelSupersau), "Supersau!", s, {pos}});
    }
    for (Spielbeobachter* b : beobachter_) b->karteGespielt(spiel_, s, pos);
    if (spiel_.stich.komplett()) stichAuswerten();
    return {};
}

void Spielablauf::stichAuswerten() {
    const Stich& stich = spiel_.stich;
    StichProtokoll p;
    p.aufspieler = stich.aufspieler;
    p.karten = stich.karten;
    for (std::size_t i = 0; i < 4; ++i) {
        p.codes[i] = spiel_.deck[stich.karten[i]].code;
        p.augen += spiel_.deck[stich.karten[i]].augen;
    }
    p.gewinner = stichGewinner(spiel_);
    spiel_.stiche.push_back(p);
    const int nr = ++spiel_.sticheGespielt;
    spiel_.augen[p.gewinner] += p.augen;
    ++spiel_.stichzahl[p.gewinner];

    if (auto m = hochzeitKlaeren(spiel_)) {
        melden(*m);
        parteienBekannt();
    }
    std::vector<Meldung> meldungen;
    const auto punkte = sonderpunkteDesStichs(spiel_, nr, &meldungen);
    spiel_.sonderpunkte.insert(spiel_.sonderpunkte.end(), punkte.begin(), punkte.end());
    melden(meldungen);
    spiel_.ablauf.phase = Spielphase::StichVoll;
    for (Spielbeobachter* b : beobachter_) b->stichKomplett(spiel_, p.gewinner);
}

void Spielablauf::parteienBekannt() {
    melden(ansagenUmwandeln(spiel_));
    // Earlier tricks are judged again under the parties now known.
    sonderpunkteNeuBewerten(spiel_, spiel_.sticheGespielt - 1);
    for (Spielbeobachter* b : beobachter_) b->parteienGeaendert(spiel_);
}

void Spielablauf::stichEinsammeln() {
    if (spiel_.sticheGespielt < spiel_.deck.handgroesse()) {
        spiel_.stich.beginnen(spiel_.stiche.back().gewinner);
        spiel_.ablauf.phase = Spielphase::Kartenspiel;
        return;
    }
    spielWerten(spiel_);
    spiel_.ablauf.phase = Spielphase::Spielende;
    melden(
        Meldung{Meldungsart::Spielende, std::string(ablauftext::SpielBeendet), spiel_.ergebnis.text, std::nullopt, {}});
    for (Spielbeobachter* b : beobachter_) b->spielBeendet(spiel_);
}

Bescheid Spielablauf::ansagen(Sitz sitz, const Ansage& ansage) {
    if (auto grund = ansageVerweigert(spiel_, sitz, ansage)) return Bescheid::abgelehnt(std::move(*grund));
    const AnsageEintrag e = ansageEintragen(spiel_, sitz, ansage);
    melden(ansageMeldung(spiel_, e));
    for (Spielbeobachter* b : beobachter_) b->ansageGemacht(spiel_, e);
    return {};
}

bool Spielablauf::ansageMoeglich(Sitz sitz) const {
    if (ansageSperre(spiel_, sitz, Ansage{}) == Ansagesperre::Keine) return true;
    for (int code = LimitSchwarz; code <= Keine90; ++code)
        if (ansageSperre(spiel_, sitz, Ansage{true, code}) == Ansagesperre::Keine) return true;
    return false;
}

std::string_view Spielablauf::automatikUmschalten() {
    spiel_.automatik = !spiel_.automatik;
    return spiel_.automatik ? ablauftext::AutomatikAbbrechen : ablauftext::AutomatischSpielen;
}

}  // namespace engine

#include "Tischsteuerung.h"

#include <algorithm>

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QTimer>
#include <QVBoxLayout>

#include "Auswahldialoge.h"
#include "Dialogtexte.h"
#include "Hauptfenster.h"
#include "Meldungsdialog.h"
#include "Netzanbindung.h"
#include "Qtext.h"
#include "Spielendedialog.h"
#include "Stichbetrachter.h"
#include "Tischansicht.h"
#include "Tischtexte.h"
#include "engine/Kartentext.h"
#include "engine/Neugeben.h"
#include "engine/Stichspiel.h"
#include "engine/Vorbehalte.h"
#include "Spielercharakter.h"
#include "engine/Ansagen.h"
#include "players/Spielerarten.h"
#include "players/Stark.h"

namespace table {

using engine::Anfrage;
using engine::Anfrageart;
using engine::Antwort;
using engine::Sitz;
using engine::Steuerung;

namespace {

std::vector<int> codesVon(const engine::Spiel& spiel, const std::vector<int>& positionen) {
    std::vector<int> codes;
    for (int pos : positionen)
        if (pos >= 1 && pos <= engine::MaxPositionen) codes.push_back(spiel.deck[pos].code);
    return codes;
}

}  // namespace

template <class F>
auto Tischsteuerung::modal(F&& zeigen) {
    ++dialoge_;
    netzBeschaeftigtMelden();
    struct Ende {
        Tischsteuerung& s;
        ~Ende() {
            --s.dialoge_;
            s.netzBeschaeftigtMelden();
        }
    } ende{*this};
    return zeigen();
}

void Tischsteuerung::hinweisen(const QString& titel, const std::string& text) {
    modal([&] { QMessageBox::information(&hfo_, titel, t(text)); });
}

bool Tischsteuerung::menschGefragt(const Anfrage& a) const {
    return a.sitz == Sitz(1) && a.steuerung == Steuerung::Mensch && !spiel_.automatik;
}

Tischsteuerung::Tischsteuerung(Hauptfenster& hfo, std::unique_ptr<engine::Zufallsquelle> zufall, QObject* parent)
    : QObject(parent), hfo_(hfo), zufall_(std::move(zufall)), ablauf_(spiel_, *zufall_), wissen_(*zufall_, &protokoll_) {
    for (const Sitz s : engine::alleSitze) spiel_.namen[s] = "Spieler" + std::to_string(s.nr());
    ablauf_.meldungenAn(this);
    ablauf_.beobachterHinzufuegen(&wissen_);
    ablauf_.beobachterHinzufuegen(this);
    ablauf_.beobachterHinzufuegen(&protokoll_);
    wissen_.msgBoxModus = hfo_.msgBoxModus();
    connect(hfo_.msgboxenAktion(), &QAction::toggled, this, [this] {
        wissen_.msgBoxModus = hfo_.msgBoxModus();
        if (wissen_.msgBoxModus != players::MsgBoxZeigen) begruendungen_.verwerfen();
    });

    Tischansicht& tisch = hfo_.tisch();
    tisch.setzeSpiel(&spiel_);
    connect(&tisch, &Tischansicht::karteGewaehlt, this, &Tischsteuerung::karteGewaehlt);
    connect(&tisch, &Tischansicht::stichGeklickt, this, &Tischsteuerung::stichGeklickt);
    connect(&tisch, &Tischansicht::bewegungFertig, this, [this] {
        beschaeftigt_ = false;
        if (spiel_.ablauf.phase == engine::Spielphase::StichVoll && einsammelnLaeuft_) {
            einsammelnLaeuft_ = false;
            ablauf_.antworten(Antwort::weiter(Anfrageart::StichEinsammeln));
        }
        weiter();
    });
    connect(&hfo_, &Hauptfenster::neuePartieGewuenscht, this, &Tischsteuerung::neuePartie);
    connect(&hfo_, &Hauptfenster::frageOffen, this, &Tischsteuerung::dialogOffen);
    connect(&hfo_, &Hauptfenster::automatikGewuenscht, this, &Tischsteuerung::automatikUmschalten);
    connect(&hfo_, &Hauptfenster::reKontraGewuenscht, this, &Tischsteuerung::reKontra);
    connect(&hfo_, &Hauptfenster::limitGewuenscht, this, &Tischsteuerung::limit);
    connect(&hfo_, &Hauptfenster::letzterStichGewuenscht, this, &Tischsteuerung::letzterStich);
    connect(&hfo_, &Hauptfenster::alleSticheGewuenscht, this, &Tischsteuerung::alleStiche);
    connect(&hfo_, &Hauptfenster::spielzettelGewuenscht, this, &Tischsteuerung::spielzettelZeigen);
    connect(&hfo_, &Hauptfenster::tippGewuenscht, this, &Tischsteuerung::tipp);
}

Tischsteuerung::~Tischsteuerung() {
    // A search still running finishes on its copy; its result finds nobody to play it.
    if (denker_.joinable()) denker_.join();
    if (tippDenker_.joinable()) tippDenker_.join();
}

void Tischsteuerung::setzeOptionen(const Anzeigeoptionen& optionen) {
    optionen_ = optionen;
    hfo_.tisch().setzeOptionen(optionen);
    ablauf_.kartenbildFranzoesisch(engine::franzoesischeBilder(optionen.kartenbild));
}

void Tischsteuerung::setzeTempo(Tempo tempo) {
    tempo_ = tempo;
    hfo_.tisch().setzeBewegungsdauer(tempo.flug, tempo.einsammeln);
}

void Tischsteuerung::setzeRegelOptionen(const engine::RegelOptionen& regeln) { ablauf_.regelOptionenSetzen(regeln); }

void Tischsteuerung::setzeNamen(const engine::ProSitz<std::string>& namen) {
    if (netz_ && !netz_->nurWartend()) return;  // at a network table the names are the players' own
    spiel_.namen = namen;
    hfo_.tisch().update();
}

void Tischsteuerung::setzeCharaktere(const engine::ProSitz<int>& charaktere) {
    charaktere_ = charaktere;
    // Before the first deal there is no game yet to keep its players.
    if (!ablauf_.partieLaeuft() && spiel_.ablauf.phase == engine::Spielphase::Geben) spiel_.charakter = charaktere;
}

void Tischsteuerung::setzeEntscheider(Sitz sitz, std::shared_ptr<engine::Entscheider> entscheider) {
    entscheider_[sitz] = std::move(entscheider);
    vorgegeben_[sitz] = true;
}

void Tischsteuerung::spielerPassend() {
    players::Spielerumgebung umgebung{wissen_, *zufall_, &protokoll_};
    umgebung.bedenkzeit = bedenkzeit_;
    umgebung.seed = static_cast<std::uint64_t>(spiel_.partie.partieNr) * 104729;
    for (const Sitz s : engine::alleSitze) {
        if (vorgegeben_[s] || (entscheider_[s] && gebaut_[s] == spiel_.charakter[s])) continue;
        entscheider_[s] = players::spielerErzeugen(spielerartFuer(spiel_.charakter[s]), umgebung);
        gebaut_[s] = spiel_.charakter[s];
    }
}

engine::Entscheider& Tischsteuerung::entscheider(Sitz sitz) {
    spielerPassend();
    return *entscheider_[sitz];
}

void Tischsteuerung::ablaufZuruecksetzen() {
    ++schritt_;
    geplant_ = false;
    beschaeftigt_ = false;
    einsammelnLaeuft_ = false;
    partieendeGemeldet_ = false;
    zugGemeldet_ = -1;
    gemeldeterStand_ = {-1, -1, -1};
    meldungen_.clear();
    fremdeKarten_.clear();
}

void Tischsteuerung::neuePartie() {
    if (netz_ && netz_->nurWartend()) netz_ = nullptr;
    begonnen_ = true;
    ablaufZuruecksetzen();
    zeilen_.clear();
    angaben_.clear();
    letztesSpiel_ = engine::Spiel{};
    letzteBegruendungen_ = {};
    hfo_.partieendeAnzeigen(false);
    ablauf_.neuePartie();
    hfo_.tisch().setzeStichSichtbar(true);
    weiter();
}

void Tischsteuerung::zustandUebernehmen(const engine::Spiel& stand) {
    if (netz_ && netz_->nurWartend()) netz_ = nullptr;
    begonnen_ = true;
    ablaufZuruecksetzen();
    begruendungen_.verwerfen();
    protokoll_.vergessen();
    spiel_ = stand;
    hfo_.tisch().bewegungAbbrechen();
    hfo_.tisch().setzeStichSichtbar(true);
}

void Tischsteuerung::fortsetzen(const engine::Spiel& stand) {
    zustandUebernehmen(stand);
    ablauf_.fortsetzen();
    wissen_.nachvollziehen(spiel_);
    weiter();
}

void Tischsteuerung::geladenFortsetzen(const engine::Spiel& stand) {
    zustandUebernehmen(stand);
    // A game saved after its end box was seen is not scored or shown again.
    const bool schonGewertet = spiel_.ergebnis.gewertet;
    // The score sheet of the Partie so far, as far as the table of games holds it.
    zeilen_.clear();
    angaben_.clear();
    const int gespielt = std::min(spiel_.partie.spielNr - (schonGewertet ? 0 : 1),
                                  static_cast<int>(spiel_.partie.spieltabelle.size()));
    if (spiel_.regeln.abrOption == 2)
        for (int i = 0; i < gespielt; ++i) zeilen_.push_back(spiel_.partie.spieltabelle[static_cast<std::size_t>(i)]);
    letztesSpiel_ = engine::Spiel{};
    letzteBegruendungen_ = {};
    ablauf_.geladenesSpielFortsetzen();
    wissen_.nachvollziehen(spiel_);
    hfo_.partieendeAnzeigen(spiel_.ablauf.phase == engine::Spielphase::Partieende);
    if (schonGewertet && spiel_.ablauf.phase == engine::Spielphase::Spielende) {
        letztesSpiel_ = spiel_;  // its tricks stay viewable
        ablauf_.antworten(Antwort::weiter(Anfrageart::NaechstesSpiel));
    }
    weiter();
}

void Tischsteuerung::dialogOffen(bool offen) {
    dialoge_ = std::max(0, dialoge_ + (offen ? 1 : -1));
    netzBeschaeftigtMelden();
    if (!offen) weiter();
}

bool Tischsteuerung::speicherbar() const {
    using engine::Spielphase;
    const Spielphase p = spiel_.ablauf.phase;
    return p == Spielphase::Kartenspiel || p == Spielphase::StichVoll || p == Spielphase::Partieende;
}

bool Tischsteuerung::partieOffen() const {
    if (netz_ && !netz_->eigenePartie()) return false;
    return ablauf_.partieLaeuft() && spiel_.ablauf.phase != engine::Spielphase::Partieende;
}

// Once per card, trick, scored game and end of Partie, for the automatic save.
void Tischsteuerung::standMelden() {
    using engine::Spielphase;
    const Spielphase p = spiel_.ablauf.phase;
    if (!speicherbar() && p != Spielphase::Spielende) return;
    if (netz_ && !netz_->eigenePartie()) return;
    const std::tuple<int, int, int> stand{spiel_.partie.spielNr, spiel_.sticheGespielt * 4 + spiel_.stich.anzahl,
                                          static_cast<int>(p)};
    if (stand == gemeldeterStand_) return;
    gemeldeterStand_ = stand;
    emit standGeaendert();
}

void Tischsteuerung::planen(int ms, void (Tischsteuerung::*schritt)()) {
    if (geplant_) return;
    geplant_ = true;
    const int nr = schritt_;
    QTimer::singleShot(ms, this, [this, nr, schritt] {
        if (nr != schritt_) return;  // a new Partie began meanwhile
        geplant_ = false;
        if (imDialog()) return;      // planned again when the dialog closes
        (this->*schritt)();
    });
}

void Tischsteuerung::meldung(const engine::Meldung& m) {
    if (m.art == engine::Meldungsart::Supersau) emit supersauGemeldet();
    // The end box is built from the scoring itself.
    if (m.art != engine::Meldungsart::Spielende) meldungen_.push_back(m);
}

void Tischsteuerung::meldungenZeigen() {
    while (!meldungen_.empty()) {
        const engine::Meldung m = meldungen_.front();
        meldungen_.erase(meldungen_.begin());
        // Automatic play does not stop for the game's messages: they pass in the status line.
        if (!optionen_.boxen || spiel_.automatik || (m.titel.empty() && m.text.empty())) {
            hfo_.statusSetzen(t(m.text));
            continue;
        }
        modal([&] { Meldungsdialog::melden(hfo_.bilder(), &hfo_, t(m.titel), t(m.text), codesVon(spiel_, m.karten)); });
    }
}

// One step of the game: show the state, then answer the open request or wait for
// the person, a timer or an animation.
void Tischsteuerung::weiter() {
    netzBeschaeftigtMelden();
    if (!begonnen_ || beschaeftigt_ || imDialog() || geplant_) return;
    if (!fremdeKarten_.empty()) {
        const auto [pos, sitz] = fremdeKarten_.front();
        fremdeKarten_.erase(fremdeKarten_.begin());
        karteGelegt(pos, sitz);
        return;
    }
    // The table and status line as they stand behind the boxes that come now.
    if (!meldungen_.empty() || !begruendungen_.leer()) anzeigen(ablauf_.anfrage());
    meldungenZeigen();
    begruendungenZeigen();
    const Anfrage a = ablauf_.anfrage();
    anzeigen(a);
    standMelden();
    const bool mensch = menschGefragt(a);
    const bool entscheidung = a.art == Anfrageart::Neugeben || a.art == Anfrageart::Vorbehalt || a.art == Anfrageart::Karte;
    if (entscheidung && a.steuerung == Steuerung::Netz) {
        if (netz_) netz_->anfrageAnNetz(a);
        return;
    }
    // A guest's seat 1 decides once the host has asked.
    if (entscheidung && a.sitz == Sitz(1) && netz_ && !netz_->darfAntworten()) return;
    switch (a.art) {
        case Anfrageart::Geben:
            if (netz_ && !netz_->darfGeben()) return;
            geben();
            planen(0, &Tischsteuerung::weiter);
            return;
        case Anfrageart::Neugeben:
            if (mensch) neugebenBeantworten(a);
            else beantworten(Antwort::neugeben(a.neugeben.computerWuerde));
            planen(0, &Tischsteuerung::weiter);
            return;
        case Anfrageart::Vorbehalt:
            vorbehaltBeantworten(a);
            planen(0, &Tischsteuerung::weiter);
            return;
        case Anfrageart::Karte: {
            if (a.steuerung == Steuerung::Computer) {
                planen(tempo_.karte, &Tischsteuerung::computerKarte);
                return;
            }
            // Seat 1 clicks; the turn is signalled once per card, not per repaint.
            const int karten = spiel_.sticheGespielt * 4 + spiel_.stich.anzahl;
            if (mensch && zugGemeldet_ != karten) {
                zugGemeldet_ = karten;
                emit menschAmZug();
            }
            return;
        }
        case Anfrageart::StichEinsammeln:
            if (optionen_.einsammeln == 0) planen(tempo_.stich, &Tischsteuerung::einsammeln);
            return;  // otherwise a click on the trick collects it
        case Anfrageart::NaechstesSpiel:
            if (netz_ && !netz_->spielendeDa()) return;
            spielendeZeigen();
            ablauf_.antworten(Antwort::weiter(Anfrageart::NaechstesSpiel));
            emit spielGewertet();
            planen(0, &Tischsteuerung::weiter);
            return;
        case Anfrageart::NeuePartie:
            hfo_.partieendeAnzeigen(true);
            if (!partieendeGemeldet_) {
                partieendeGemeldet_ = true;
                emit partieBeendet();
            }
            return;  // "&Neue Partie" starts the next one
    }
}

void Tischsteuerung::geben() {
    // The seat kinds chosen in the settings come in with the deal.
    spiel_.charakter = charaktere_;
    if (kartengeber_) {
        const auto karten = modal([&] { return kartengeber_(spiel_); });
        if (karten) {
            const engine::Bescheid b = ablauf_.antworten(Antwort::geben(*karten));
            if (b) return;
            hinweisen(hfo_.windowTitle(), b.grund);
        }
    }
    ablauf_.antworten(Antwort::zufallsGeben());
}

// While the reasoning switch is on, every box is seen before play goes on.
void Tischsteuerung::begruendungenZeigen() {
    if (begruendungen_.leer()) return;
    if (hfo_.msgBoxModus() != players::MsgBoxZeigen) return begruendungen_.verwerfen();
    modal([&] { begruendungen_.zeigen(&hfo_, spiel_.namen); });
}

engine::ProSitz<int> Tischsteuerung::parteibilder() const {
    const engine::ProSitz<int> parteien = sichtbareParteien(spiel_, wissen_.zeigerBild);
    engine::ProSitz<int> bilder;
    for (const Sitz s : engine::alleSitze) bilder[s] = players::parteibild(s, parteien[s]);
    return bilder;
}

void Tischsteuerung::anzeigen(const Anfrage& a) {
    Tischansicht& tisch = hfo_.tisch();
    QString status = t(a.status);
    if (a.art == Anfrageart::StichEinsammeln && optionen_.einsammeln != 0) status = QString::fromUtf8(texte::Einsammeln);
    if (netz_) status = netz_->status(a, status);
    hfo_.statusSetzen(status);
    const bool karte = a.art == Anfrageart::Karte;
    tisch.setzeAmZug(karte ? a.sitz : std::nullopt);
    tisch.setzeKartenwahl(karte && menschGefragt(a) && (!netz_ || netz_->darfAntworten()));
    tisch.setzeParteibilder(parteibilder());
    tisch.neuZeichnen();
    hfo_.ansagemenueSetzen(ablauf_.menue(Sitz(1)));
    hfo_.automatikAnzeigen(spiel_.automatik);
    hfo_.setzePartieUnterwegs(ablauf_.partieLaeuft());
    const bool spielVorbei = a.art == Anfrageart::NaechstesSpiel || a.art == Anfrageart::NeuePartie;
    hfo_.letzterStichAktion()->setEnabled(!spiel_.stiche.empty() && !spielVorbei);
    hfo_.alleSticheAktion()->setEnabled(spielVorbei || !letztesSpiel_.stiche.empty());
}

void Tischsteuerung::neugebenBeantworten(const Anfrage& a) {
    const int grund = a.neugeben.grund;
    const bool ja = modal([&] {
        return Meldungsdialog::fragen(hfo_.bilder(), &hfo_, t(engine::neugebenTitel(grund)), t(a.neugeben.frage),
                                      codesVon(spiel_, engine::gezeigteKarten(spiel_, *a.sitz, grund)));
    });
    beantworten(Antwort::neugeben(ja));
}

void Tischsteuerung::vorbehaltBeantworten(const Anfrage& a) {
    const Sitz s = *a.sitz;
    const bool mensch = menschGefragt(a);
    const engine::Vorbehalt v =
        mensch ? modal([&] { return vorbehaltFragen(a); }) : entscheider(s).vorbehaltWaehlen(spiel_, s);
    const engine::Bescheid b = beantworten(Antwort::mitVorbehalt(v));
    if (b) return;
    if (mensch && !b.grund.empty()) hinweisen(t(texte::SoloTitel), b.grund);
    beantworten(Antwort::mitVorbehalt(engine::Vorbehalt{}));
}

engine::Vorbehalt Tischsteuerung::vorbehaltFragen(const Anfrage& a) {
    engine::Vorbehalt v;
    const bool franz = engine::franzoesischeBilder(optionen_.kartenbild);
    bool soloWahl = a.vorbehalt.pflichtsolo;
    if (!soloWahl && !a.vorbehalt.soloFrage.empty())
        soloWahl = QMessageBox::question(&hfo_, QString::fromUtf8(texte::SoloTitel), t(a.vorbehalt.soloFrage),
                                         QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
    if (soloWahl) {
        std::unique_ptr<Auswahldialog> dialog(soloDialog(a.vorbehalt.soloarten, franz, &hfo_));
        dialog->exec();
        int typ = dialog->gewaehlt();
        // A duty solo cannot be declined: a cancelled dialog plays the first kind.
        if (typ == 0 && a.vorbehalt.pflichtsolo && !a.vorbehalt.soloarten.empty()) typ = a.vorbehalt.soloarten.front();
        if (typ != 0) {
            v.art = engine::Vorbehalt::Solo;
            v.spieltyp = typ;
        }
    }
    if (v.art == engine::Vorbehalt::Gesund && a.vorbehalt.hochzeitMoeglich) {
        std::unique_ptr<Auswahldialog> dialog(hochzeitDialog(&hfo_));
        dialog->exec();
        if (const int art = dialog->gewaehlt()) {
            v.art = engine::Vorbehalt::Hochzeit;
            v.hochzeitArt = art;
        }
    }
    return v;
}

void Tischsteuerung::computerKarte() {
    const Anfrage a = ablauf_.anfrage();
    if (a.art != Anfrageart::Karte || a.steuerung != Steuerung::Computer || beschaeftigt_) return weiter();
    const Sitz s = *a.sitz;
    engine::Entscheider& e = entscheider(s);
    if (s == Sitz(1) && netz_ && !netz_->darfAntworten()) return weiter();
    if (const auto* stark = dynamic_cast<const players::Stark*>(&e)) return denkenLassen(s, *stark);
    if (ablauf_.ansageMoeglich(s))
        if (const auto ansage = e.ansageWaehlen(spiel_, s)) ansagen(s, *ansage);
    int pos = e.karteWaehlen(spiel_, s);
    // The reasons come before the card, and the card waits until every box is closed.
    begruendungenZeigen();
    if (ablauf_.offeneArt() != Anfrageart::Karte || ablauf_.sitzDerAnfrage() != s) return weiter();
    if (!beantworten(Antwort::karte(pos))) {
        pos = engine::ersteErlaubteKarte(spiel_, s);
        beantworten(Antwort::karte(pos));
    }
    karteGelegt(gelegteKarte(s, pos), s);
}

void Tischsteuerung::karteGelegt(int pos, Sitz sitz) {
    beschaeftigt_ = true;
    netzBeschaeftigtMelden();
    hfo_.tisch().setzeKartenwahl(false);
    hfo_.tisch().karteFliegen(pos, sitz);
}

void Tischsteuerung::karteGewaehlt(int pos) {
    const Anfrage a = ablauf_.anfrage();
    if (a.art != Anfrageart::Karte || !menschGefragt(a) || beschaeftigt_ || imDialog()) return;
    if (netz_ && !netz_->darfAntworten()) return;
    const engine::Bescheid b = beantworten(Antwort::karte(pos));
    if (!b) {
        // The card stays in the hand; the person chooses again.
        hinweisen(t(texte::FalscheKarteTitel), b.grund);
        return;
    }
    karteGelegt(gelegteKarte(Sitz(1), pos), Sitz(1));
}

void Tischsteuerung::einsammeln() {
    if (spiel_.ablauf.phase != engine::Spielphase::StichVoll || beschaeftigt_) return weiter();
    beschaeftigt_ = true;
    einsammelnLaeuft_ = true;
    netzBeschaeftigtMelden();
    hfo_.tisch().stichEinsammeln(spiel_.stiche.back().gewinner);
}

void Tischsteuerung::stichGeklickt() {
    if (ablauf_.anfrage().art != Anfrageart::StichEinsammeln || beschaeftigt_ || imDialog() || geplant_) return;
    einsammeln();
}

void Tischsteuerung::spielendeZeigen() {
    const engine::Spielergebnis& e = spiel_.ergebnis;
    zeilen_.push_back(e.punkte);
    angaben_.resize(zeilen_.size() - 1);
    angaben_.push_back(spielangaben(spiel_, engine::franzoesischeBilder(optionen_.kartenbild)));
    letztesSpiel_ = spiel_;
    letzteBegruendungen_ = protokoll_.spiel();
    Spielergebnis r;
    r.titel = texte::SpielendeTitel;
    r.text = e.text;
    r.namen = spiel_.namen;
    r.punkte = e.punkte;
    r.summen = spiel_.partie.punkte;
    modal([&] {
        Spielendedialog box(r, &hfo_);
        // Automatic play lets the result be read, then goes on by itself, unless the
        // person opened something from the box meanwhile.
        QTimer schliessen;
        connect(&schliessen, &QTimer::timeout, &box, [&box] {
            if (QApplication::activeModalWidget() == &box) box.accept();
        });
        if (spiel_.automatik) schliessen.start(tempo_.spielende);
        if (verlaufZeigen_) box.verlaufAnbieten([this, &box] { verlaufZeigen_(&box); });
        box.exec();
    });
}

void Tischsteuerung::ansageBescheid(const engine::Bescheid& b) {
    if (!b && !b.grund.empty()) hinweisen(hfo_.windowTitle(), b.grund);
    meldungenZeigen();
    anzeigen(ablauf_.anfrage());
}

void Tischsteuerung::reKontra() { ansageBescheid(ansagen(Sitz(1), engine::Ansage{})); }

void Tischsteuerung::limit(int limitCode) { ansageBescheid(ansagen(Sitz(1), engine::Ansage{true, limitCode})); }

void Tischsteuerung::automatikUmschalten() {
    ablauf_.automatikUmschalten();
    anzeigen(ablauf_.anfrage());
    weiter();
}

void Tischsteuerung::sticheZeigen(const engine::Spiel& spiel, const std::vector<engine::StichProtokoll>& stiche) {
    Stichbetrachter betrachter(hfo_.bilder(), &hfo_);
    betrachter.setzeStiche(spiel, stiche, 0);
    modal([&] { betrachter.exec(); });
    weiter();
}

void Tischsteuerung::letzterStich() {
    if (!spiel_.stiche.empty()) sticheZeigen(spiel_, {spiel_.stiche.back()});
}

void Tischsteuerung::alleStiche() {
    const bool vorbei = spiel_.ablauf.phase == engine::Spielphase::Spielende ||
                        spiel_.ablauf.phase == engine::Spielphase::Partieende;
    const engine::Spiel& gezeigt = vorbei ? spiel_ : letztesSpiel_;
    if (!gezeigt.stiche.empty()) sticheZeigen(gezeigt, gezeigt.stiche);
}

Spielzettelinhalt Tischsteuerung::spielzettelInhalt() const {
    Spielzettelinhalt inhalt;
    inhalt.namen = spiel_.namen;
    inhalt.spiele = zeilen_;
    inhalt.angaben = angaben_;
    inhalt.summen = spiel_.partie.punkte;
    inhalt.abrOption = spiel_.regeln.abrOption;
    inhalt.endeBei = spiel_.regeln.endeBei;
    inhalt.endeNach = spiel_.regeln.endeNach;
    return inhalt;
}

void Tischsteuerung::spielzettelZeigen() {
    QDialog dialog(&hfo_);
    dialog.setWindowTitle(QString::fromUtf8(texte::SpielzettelTitel));
    auto* zettel = new Spielzettel(&dialog);
    zettel->setzeInhalt(spielzettelInhalt());
    auto* spalte = new QVBoxLayout(&dialog);
    spalte->addWidget(zettel);
    auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    connect(knoepfe, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    spalte->addWidget(knoepfe);
    modal([&] { dialog.exec(); });
    weiter();
}

}  // namespace table

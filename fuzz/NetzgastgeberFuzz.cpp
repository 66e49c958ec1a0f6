// Any bytes from a guest, interleaved with that guest's honest answers: the host
// never crashes, every card, reservation and announcement it takes is legal (the
// referee objects to nothing), and once the guest is gone the computer plays the
// game to its end.
//
// The input is a series of steps: a byte 0..2 (mod 3) says what happens:
// 0 the next byte gives a length and so many bytes go to the host as the guest's;
// 1 the honest guest reads what the host sent and answers; 2 the guest leaves and
// another one takes the seat. The very first byte chooses the rules and the deal.
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "engine/Schiedsrichter.h"
#include "engine/Zufall.h"
#include "net/Gastgeberkern.h"
#include "net/Gastkern.h"
#include "net/Tischautomat.h"
#include "players/Spielerarten.h"

namespace {

using engine::Sitz;

struct Spieler {
    Spieler(engine::Spielablauf& ablauf, engine::Zufallsquelle& zufall) : wissen(zufall) {
        ablauf.beobachterHinzufuegen(&wissen);
        players::Spielerumgebung umgebung{wissen, zufall, nullptr};
        for (auto& s : sitze) s = players::spielerErzeugen("zufall", umgebung);
    }
    engine::ProSitz<engine::Entscheider*> entscheider() const {
        engine::ProSitz<engine::Entscheider*> e;
        for (const Sitz s : engine::alleSitze) e[s] = sitze[static_cast<std::size_t>(s.nr() - 1)].get();
        return e;
    }
    players::Tischwissen wissen;
    std::array<std::unique_ptr<engine::Entscheider>, 4> sitze;
};

struct Hostleitung final : net::Gastgeberausgang {
    void schreiben(Sitz s, std::string_view b) override { an[static_cast<std::size_t>(s.nr())] += b; }
    void trennen(Sitz s) override { an[static_cast<std::size_t>(s.nr())].clear(); }
    std::array<std::string, 5> an;
};

struct Gastleitung final : net::Gastausgang {
    void schreiben(std::string_view b) override { an += b; }
    std::string an;
};

// The honest program at seat 3: its own cycle and rule book.
struct Ehrlich {
    Ehrlich() : zufall(3), ablauf(spiel, zufall), spieler(ablauf, zufall), kern(spiel, ablauf, leitung, "Ehrlich") {}
    engine::Spiel spiel;
    engine::SeedZufall zufall;
    engine::Spielablauf ablauf;
    Spieler spieler;
    Gastleitung leitung;
    net::Gastkern kern;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    if (groesse == 0) return 0;
    const std::uint8_t wahl = daten[0];
    engine::RegelOptionen regeln;
    if (wahl & 1) regeln.scharferRupa = -1;
    if (wahl & 2) regeln.neunerwerfen = regeln.koenigewerfen = regeln.armut = -1;
    if (wahl & 4) regeln.solo = regeln.vhSolo = -1;
    if (wahl & 8) regeln.zweiSchweine = regeln.joker = -1;
    regeln.endeNach = 2;

    engine::Spiel spiel;
    engine::SeedZufall zufall(wahl);
    engine::Spielablauf ablauf(spiel, zufall);
    engine::Schiedsrichter richter;
    ablauf.beobachterHinzufuegen(&richter);
    ablauf.regelOptionenSetzen(regeln);
    Spieler spieler(ablauf, zufall);
    spiel.steuerung.fill(engine::Steuerung::Computer);
    Hostleitung leitung;
    net::Gastgeberkern host(spiel, ablauf, leitung);
    host.setzeHost("Host", 1);
    net::Tischautomat automat(ablauf, spieler.entscheider());
    int spiele = 0;
    automat.nachSpiel = [&](const engine::Spiel&) { return ++spiele < 3; };
    automat.vorNeuerPartie = [&] { host.neuePartieMelden(); };

    const Sitz sitz(3);
    auto ehrlich = std::make_unique<Ehrlich>();
    host.platzBesetzen(sitz);
    ablauf.neuePartie();
    auto weiter = [&] {
        host.takt();
        if (automat.laufen() == net::Tischautomat::Halt::Person) host.anfrageStellen();
    };
    std::string& an = leitung.an[3];
    for (std::size_t i = 1; i < groesse && spiele < 3;) {
        switch (daten[i++] % 3) {
            case 0: {
                std::size_t n = 0;
                if (i < groesse) n = daten[i++];
                n = std::min(n, groesse - i);
                host.empfangen(sitz, std::string_view(reinterpret_cast<const char*>(daten + i), n));
                i += n;
                break;
            }
            case 1:
                ehrlich->kern.empfangen(an);
                an.clear();
                while (ehrlich->kern.takt())
                    net::gastfrageBeantworten(ehrlich->kern, ehrlich->ablauf, *ehrlich->spieler.sitze[0]);
                host.empfangen(sitz, ehrlich->leitung.an);
                ehrlich->leitung.an.clear();
                break;
            case 2:
                host.abmelden(sitz);
                ehrlich = std::make_unique<Ehrlich>();
                if (host.freierPlatz() == sitz) host.platzBesetzen(sitz);
                break;
        }
        weiter();
    }
    // Whatever the guest did, the computer plays on once it is gone.
    host.alleAbmelden();
    for (int i = 0; i < 10 && spiele < 3; ++i) weiter();
    if (richter.fehlerAnzahl() > 0 || automat.abgelehnt() > 0) std::abort();
    if (spiele < 3 && automat.laufen() != net::Tischautomat::Halt::Spielende) std::abort();
    return 0;
}

#pragma once
// A network table in memory: the host's core with its computer players and the
// guests' cores, their bytes carried by the test, the pumps turned by the test.
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "engine/Schiedsrichter.h"
#include "engine/Zufall.h"
#include "net/Gastgeberkern.h"
#include "net/Gastkern.h"
#include "net/Nachricht.h"
#include "net/Tischautomat.h"
#include "players/Spielerarten.h"

namespace nettest {

using engine::Sitz;

// The computer players of one table, one per seat.
struct Spielerbank {
    Spielerbank(engine::Spielablauf& ablauf, engine::Zufallsquelle& zufall) : wissen(zufall) {
        ablauf.beobachterHinzufuegen(&wissen);
        players::Spielerumgebung umgebung{wissen, zufall, nullptr};
        for (auto& s : spieler) s = players::spielerErzeugen("regelwerk", umgebung);
    }
    engine::ProSitz<engine::Entscheider*> entscheider() const {
        engine::ProSitz<engine::Entscheider*> e;
        for (const Sitz s : engine::alleSitze) e[s] = spieler[static_cast<std::size_t>(s.nr() - 1)].get();
        return e;
    }
    players::Tischwissen wissen;
    std::array<std::unique_ptr<engine::Entscheider>, 4> spieler;
};

// The tags of a stretch of bytes, in order.
inline std::vector<std::string> tags(std::string bytes) {
    net::Empfangspuffer p;
    p.anhaengen(bytes);
    std::vector<std::string> t;
    while (auto n = p.nehmen()) t.push_back(net::zerlegen(*n).tag);
    return t;
}

inline std::vector<net::Nachricht> nachrichten(std::string bytes) {
    net::Empfangspuffer p;
    p.anhaengen(bytes);
    std::vector<net::Nachricht> n;
    while (auto m = p.nehmen()) n.push_back(net::zerlegen(*m));
    return n;
}

struct Hostseite final : net::Gastgeberausgang {
    void schreiben(Sitz s, std::string_view b) override {
        an[static_cast<std::size_t>(s.nr())] += b;
        alles[static_cast<std::size_t>(s.nr())] += b;
    }
    void trennen(Sitz s) override { getrennt.push_back(s.nr()); }
    void chatzeile(const std::string& z) override { chat.push_back(z); }
    void status(const std::string& t) override { stati.push_back(t); }
    void warteAuf(Sitz s, bool offen) override { warten.emplace_back(s.nr(), offen); }
    std::array<std::string, 5> an;     // written and not yet carried to the guest
    std::array<std::string, 5> alles;  // everything written, per seat
    std::vector<int> getrennt;
    std::vector<std::string> chat;
    std::vector<std::string> stati;
    std::vector<std::pair<int, bool>> warten;
};

struct Gastseite final : net::Gastausgang {
    void schreiben(std::string_view b) override {
        an += b;
        alles += b;
    }
    void status(const std::string& t) override { stati.push_back(t); }
    void chatzeile(const std::string& z) override { chat.push_back(z); }
    void hinweis(const std::string& t) override { hinweise.push_back(t); }
    void nameVergeben(const std::string& t) override { vergeben.push_back(t); }
    void abweichung(const std::string& t) override { abweichungen.push_back(t); }
    std::string an;
    std::string alles;
    std::vector<std::string> stati, chat, hinweise, vergeben, abweichungen;
};

struct Testgast {
    Testgast(const std::string& name, std::uint64_t seed)
        : zufall(seed), ablauf(spiel, zufall), spieler(ablauf, zufall), kern(spiel, ablauf, seite, name) {}
    engine::Spiel spiel;
    engine::SeedZufall zufall;
    engine::Spielablauf ablauf;
    Spielerbank spieler;
    Gastseite seite;
    net::Gastkern kern;
    int sitz = 0;
    bool automatisch = true;  // the rule book answers the host's questions
    bool verbunden = true;
    bool uebergelaufen = false;
};

class Testtisch {
public:
    explicit Testtisch(const engine::RegelOptionen& regeln = {}, std::uint64_t seed = 1)
        : zufall(seed), ablauf(spiel, zufall), spieler(ablauf, zufall), kern(spiel, ablauf, seite),
          automat(ablauf, spieler.entscheider()) {
        ablauf.beobachterHinzufuegen(&richter);
        ablauf.regelOptionenSetzen(regeln);
        spiel.steuerung.fill(engine::Steuerung::Computer);
        kern.setzeHost("Gastgeber", 1);
        automat.nachSpiel = [this](const engine::Spiel& s) {
            punkteNachSpiel.push_back(s.partie.punkte);
            sticheNachSpiel.push_back(s.stiche);
            return ++gespielt < ziel;
        };
        automat.vorNeuerPartie = [this] { kern.neuePartieMelden(); };
    }

    // A new connection; nullptr when the table refuses it.
    Testgast* verbinden(const std::string& name) {
        const auto sitz = kern.freierPlatz();
        if (!sitz) return nullptr;
        auto g = std::make_unique<Testgast>(name, 100 + gaeste.size());
        g->sitz = sitz->nr();
        kern.platzBesetzen(*sitz);
        gaeste.push_back(std::move(g));
        return gaeste.back().get();
    }

    void trennen(Testgast& g) {
        g.verbunden = false;
        kern.abmelden(Sitz(g.sitz));
    }

    void bytesTragen() {
        for (auto& g : gaeste) {
            std::string& an = seite.an[static_cast<std::size_t>(g->sitz)];
            if (g->verbunden && !g->uebergelaufen && !g->kern.empfangen(an)) g->uebergelaufen = true;
            an.clear();
            if (g->verbunden) kern.empfangen(Sitz(g->sitz), g->seite.an);
            g->seite.an.clear();
        }
    }

    // One round of the table: bytes carried, every pump turned once, questions answered.
    void runde() {
        bytesTragen();
        for (auto& g : gaeste) {
            if (!g->verbunden) continue;
            g->kern.takt();
            if (g->automatisch) net::gastfrageBeantworten(g->kern, g->ablauf, *g->spieler.spieler[0]);
        }
        bytesTragen();
        kern.takt();
        if (!gestartet) return;
        if (automat.laufen() == net::Tischautomat::Halt::Person) kern.anfrageStellen();
    }

    void starten() {
        gestartet = true;
        ablauf.neuePartie();
    }

    // Plays until the host has scored `spiele` games in all and every guest has its totals.
    bool spielen(int spiele, int maxRunden = 100000) {
        ziel = spiele;
        if (!gestartet) starten();
        for (int i = 0; i < maxRunden; ++i) {
            runde();
            if (gespielt >= ziel && fertig()) return true;
        }
        return false;
    }

    // Every connected guest has worked off what the host sent.
    bool fertig() const {
        for (const auto& g : gaeste)
            if (g->verbunden && (g->kern.hatUnverarbeitetes() || !seite.an[static_cast<std::size_t>(g->sitz)].empty()))
                return false;
        return true;
    }

    engine::Spiel spiel;
    engine::SeedZufall zufall;
    engine::Spielablauf ablauf;
    engine::Schiedsrichter richter;
    Spielerbank spieler;
    Hostseite seite;
    net::Gastgeberkern kern;
    net::Tischautomat automat;
    std::vector<std::unique_ptr<Testgast>> gaeste;
    std::vector<engine::ProSitz<int>> punkteNachSpiel;
    std::vector<std::vector<engine::StichProtokoll>> sticheNachSpiel;
    int gespielt = 0;
    int ziel = 0;
    bool gestartet = false;
};

}  // namespace nettest

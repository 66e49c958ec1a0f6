#include "Statistik.h"

#include <algorithm>

#include "settings/Profildatei.h"

namespace table {

using engine::Sitz;

namespace {

constexpr int HoechstzahlSpieler = 500;  // a damaged file cannot make us read without end
constexpr int HoechstzahlSpiele = 1000;
constexpr std::size_t Namenspuffer = 254;
constexpr std::string_view Kopf = "Statistik";
constexpr std::string_view Verlauf = "LetztePartie";

struct Feld {
    std::string_view schluessel;
    int Quote::*wert;
};
constexpr std::array<Feld, 2> quotenfelder{{{"", &Quote::anzahl}, {"Gewonnen", &Quote::gewonnen}}};

// Every count of an entry with its key, so reading and writing share one list.
template <class F>
void quotenDurchgehen(Spielerstatistik& s, F&& f) {
    f("Spiele", s.spiele);
    f("Re", s.re);
    f("Kontra", s.kontra);
    for (std::size_t art = 0; art < s.solos.size(); ++art) f("Solo" + std::to_string(art), s.solos[art]);
    f("Hochzeiten", s.hochzeiten);
    f("Ansagen", s.ansagen);
}

std::string abschnitt(std::size_t i) { return "Spieler" + std::to_string(i + 1); }

std::optional<int> optionaleZahl(const settings::Profildatei& d, std::string_view ab, std::string_view schluessel) {
    const auto w = d.wert(ab, schluessel);
    if (!w || w->empty()) return std::nullopt;
    return static_cast<int>(std::clamp<long long>(settings::fuehrendeZahl(*w), -1000000000, 1000000000));
}

int zahl(const settings::Profildatei& d, std::string_view ab, std::string_view schluessel) {
    return std::max(0, settings::profilZahl(d, ab, schluessel, 0));
}

}  // namespace

std::vector<engine::ProSitz<int>> aufsummiert(const std::vector<engine::ProSitz<int>>& spiele) {
    std::vector<engine::ProSitz<int>> staende;
    engine::ProSitz<int> summe(0);
    for (const auto& zeile : spiele) {
        for (const Sitz s : engine::alleSitze) summe[s] += zeile[s];
        staende.push_back(summe);
    }
    return staende;
}

Spielerstatistik& Statistik::von(const std::string& name) {
    for (auto& s : spieler)
        if (s.name == name) return s;
    spieler.push_back({});
    spieler.back().name = name;
    return spieler.back();
}

const Spielerstatistik* Statistik::finde(const std::string& name) const {
    for (const auto& s : spieler)
        if (s.name == name) return &s;
    return nullptr;
}

void Statistik::spielEintragen(const engine::Spiel& spiel) {
    const engine::Spielergebnis& e = spiel.ergebnis;
    if (!e.gewertet) return;
    for (const Sitz s : engine::alleSitze) {
        Spielerstatistik& st = von(spiel.namen[s]);
        const bool gewonnen = e.punkte[s] > 0;
        auto zaehlen = [gewonnen](Quote& q) {
            ++q.anzahl;
            q.gewonnen += gewonnen;
        };
        zaehlen(st.spiele);
        st.punkte += e.punkte[s];
        zaehlen(engine::seite(spiel, s) == engine::ParteiRe ? st.re : st.kontra);
        if (spiel.solo && spiel.solist == s && spiel.spieltyp >= 1 && spiel.spieltyp <= 8)
            zaehlen(st.solos[static_cast<std::size_t>(spiel.spieltyp)]);
        if (spiel.stillerSolist == s) zaehlen(st.solos[0]);
        if (spiel.hochzeiter == s) zaehlen(st.hochzeiten);
        for (const engine::AnsageEintrag& a : spiel.ansagen) {
            if (a.sitz != s) continue;
            ++st.ansagen.anzahl;
            // A limit is kept when its side reached it; Re or Kontra when the side got the points.
            st.ansagen.gewonnen += a.limit ? e.limitEingehalten == 1 : gewonnen;
        }
    }
}

void Statistik::partieEintragen(const engine::ProSitz<std::string>& namen, const std::vector<engine::ProSitz<int>>& spiele) {
    letztePartie.namen = namen;
    letztePartie.staende = aufsummiert(spiele);
    const engine::ProSitz<int> ende = letztePartie.staende.empty() ? engine::ProSitz<int>(0) : letztePartie.staende.back();
    for (const Sitz s : engine::alleSitze) {
        Spielerstatistik& st = von(namen[s]);
        ++st.partien;
        st.bestePartie = std::max(st.bestePartie.value_or(ende[s]), ende[s]);
        st.schlechtestePartie = std::min(st.schlechtestePartie.value_or(ende[s]), ende[s]);
    }
}

std::string Statistik::text() const {
    settings::Profildatei d;
    d.setze(Kopf, "Anzahl", std::to_string(spieler.size()));
    for (std::size_t i = 0; i < spieler.size(); ++i) {
        Spielerstatistik s = spieler[i];
        const std::string ab = abschnitt(i);
        d.setze(ab, "Name", s.name);
        d.setze(ab, "Partien", std::to_string(s.partien));
        d.setze(ab, "Punkte", std::to_string(s.punkte));
        quotenDurchgehen(s, [&](const std::string& name, Quote& q) {
            for (const Feld& f : quotenfelder) d.setze(ab, name + std::string(f.schluessel), std::to_string(q.*(f.wert)));
        });
        if (s.bestePartie) d.setze(ab, "BestePartie", std::to_string(*s.bestePartie));
        if (s.schlechtestePartie) d.setze(ab, "SchlechtestePartie", std::to_string(*s.schlechtestePartie));
    }
    for (const Sitz s : engine::alleSitze) d.setze(Verlauf, "Name" + std::to_string(s.nr()), letztePartie.namen[s]);
    d.setze(Verlauf, "Spiele", std::to_string(letztePartie.staende.size()));
    for (std::size_t i = 0; i < letztePartie.staende.size(); ++i) {
        std::string zeile;
        for (const Sitz s : engine::alleSitze) zeile += (s.nr() > 1 ? ";" : "") + std::to_string(letztePartie.staende[i][s]);
        d.setze(Verlauf, "Spiel" + std::to_string(i + 1), zeile);
    }
    return d.bytes();
}

Statistik Statistik::ausText(std::string_view text) {
    const settings::Profildatei d = settings::Profildatei::ausBytes(text);
    Statistik st;
    const int anzahl = std::min(zahl(d, Kopf, "Anzahl"), HoechstzahlSpieler);
    for (int i = 0; i < anzahl; ++i) {
        const std::string ab = abschnitt(static_cast<std::size_t>(i));
        const std::string name = settings::profilText(d, ab, "Name", "", Namenspuffer);
        if (name.empty() || st.finde(name)) continue;
        Spielerstatistik s;
        s.name = name;
        s.partien = zahl(d, ab, "Partien");
        s.punkte = settings::fuehrendeZahl(d.wert(ab, "Punkte").value_or("0"));
        quotenDurchgehen(s, [&](const std::string& n, Quote& q) {
            for (const Feld& f : quotenfelder) q.*(f.wert) = zahl(d, ab, n + std::string(f.schluessel));
            q.gewonnen = std::min(q.gewonnen, q.anzahl);
        });
        s.bestePartie = optionaleZahl(d, ab, "BestePartie");
        s.schlechtestePartie = optionaleZahl(d, ab, "SchlechtestePartie");
        st.spieler.push_back(std::move(s));
    }
    for (const Sitz s : engine::alleSitze)
        st.letztePartie.namen[s] = settings::profilText(d, Verlauf, "Name" + std::to_string(s.nr()), "", Namenspuffer);
    const int spiele = std::min(zahl(d, Verlauf, "Spiele"), HoechstzahlSpiele);
    for (int i = 0; i < spiele; ++i) {
        const std::string zeile = d.wert(Verlauf, "Spiel" + std::to_string(i + 1)).value_or("");
        engine::ProSitz<int> stand(0);
        std::size_t anfang = 0;
        for (const Sitz s : engine::alleSitze) {
            if (anfang > zeile.size()) break;
            const std::size_t ende = std::min(zeile.find(';', anfang), zeile.size());
            stand[s] = static_cast<int>(
                std::clamp<long long>(settings::fuehrendeZahl(zeile.substr(anfang, ende - anfang)), -1000000, 1000000));
            anfang = ende + 1;
        }
        st.letztePartie.staende.push_back(stand);
    }
    return st;
}

}  // namespace table

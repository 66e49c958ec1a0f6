#include "Einstellungen.h"

#include <algorithm>
#include <climits>

#include "Einstellungstexte.h"
#include "Zeichensatz.h"

namespace settings {

namespace {

struct Anzeigeschluessel {
    std::string_view schluessel;
    int Einstellungen::*feld;
};

// The options of the section that are not rules.
constexpr std::array<Anzeigeschluessel, 18> anzeigeschluessel{{
    {"Sprachausgabe", &Einstellungen::sprachausgabe},
    {"Geräusch", &Einstellungen::geraeusch},
    {"Signal", &Einstellungen::signal},
    {"Animation", &Einstellungen::animation},
    {"Kartenbild", &Einstellungen::kartenbild},
    {"Rückseite", &Einstellungen::rueckseite},
    {"Boxen", &Einstellungen::boxen},
    {"Automatic", &Einstellungen::automatic},
    {"Iconen", &Einstellungen::iconen},
    {"Karten", &Einstellungen::karten},
    {"Einsammeln", &Einstellungen::einsammeln},
    {"Vollbild", &Einstellungen::vollbild},
    {"Augen_zeigen", &Einstellungen::augenZeigen},
    {"Partei_zeigen", &Einstellungen::parteiZeigen},
    {"Willkommen", &Einstellungen::willkommen},
    {"Hintergrund", &Einstellungen::hintergrund},
    {"Vordergrund", &Einstellungen::vordergrund},
    {"Bedenkzeit", &Einstellungen::bedenkzeit},
}};

// The compulsory solo is written under this key but read as "Solo"; the pair
// does not meet, so the option starts at its default after a restart.
constexpr std::string_view PflichtsoloSchreibschluessel = "Pflichtsolo";

std::string nameSchluessel(int sitz) { return "Name" + std::to_string(sitz); }
std::string charakterSchluessel(int sitz) { return "charakter" + std::to_string(sitz); }

int alsInt(long long wert) { return static_cast<int>(std::clamp<long long>(wert, INT_MIN, INT_MAX)); }

// Where an options key lives: a rule option or a display option.
struct Feldort {
    int engine::RegelOptionen::*regel = nullptr;
    int Einstellungen::*anzeige = nullptr;
    int* in(Einstellungen& e) const { return regel ? &(e.regeln.*regel) : &(e.*anzeige); }
};

// Every key by its folded name, folded once.
const Namentabelle<Feldort>& feldorte() {
    static const auto orte = [] {
        Namentabelle<Feldort> m;
        m.try_emplace(faltung(PflichtsoloSchreibschluessel), Feldort{&engine::RegelOptionen::solo, nullptr});
        for (const auto& r : engine::regelSchluessel()) m.try_emplace(faltung(r.schluessel), Feldort{r.gespeichert, nullptr});
        for (const auto& a : anzeigeschluessel) m.try_emplace(faltung(a.schluessel), Feldort{nullptr, a.feld});
        return m;
    }();
    return orte;
}

// What the reader does with a key it finds.
struct Leseort {
    enum class Art { Zahl, Farbe, Name, Charakter } art;
    Feldort feld;           // Zahl, Farbe
    std::size_t sitz = 0;   // Name, Charakter
};

const Namentabelle<Leseort>& leseorte() {
    static const auto orte = [] {
        Namentabelle<Leseort> m;
        for (std::size_t i = 0; i < 4; ++i) {
            const int sitz = static_cast<int>(i) + 1;
            m.try_emplace(faltung(nameSchluessel(sitz)), Leseort{Leseort::Art::Name, {}, i});
            m.try_emplace(faltung(charakterSchluessel(sitz)), Leseort{Leseort::Art::Charakter, {}, i});
        }
        for (const auto schluessel : leseschluessel()) {
            const Feldort& f = feldorte().at(faltung(schluessel));
            // Colours are stored as text and read as strings, then taken by their numeric value.
            const bool farbe = f.anzeige == &Einstellungen::hintergrund || f.anzeige == &Einstellungen::vordergrund;
            m.try_emplace(faltung(schluessel), Leseort{farbe ? Leseort::Art::Farbe : Leseort::Art::Zahl, f, 0});
        }
        return m;
    }();
    return orte;
}

}  // namespace

Abgeleitet abgeleitet(const Einstellungen& e) {
    return Abgeleitet{e.regeln.scharferRupa != 0 ? 40 : 48, e.regeln.kontra >= 1, e.regeln.limit >= 1};
}

const std::vector<std::string_view>& leseschluessel() {
    static const std::vector<std::string_view> liste{
        "Abr_Option", "Sprachausgabe", "Geräusch", "Signal", "Ende_bei", "Ende_nach", "Vorhand",
        "Kontra", "Limit", "HerzZehn", "Joker", "Solo", "Vh_Solo", "Hh_n_Solo", "Bockrunden",
        "Animation", "Kartenbild", "Rückseite", "Boxen", "Automatic", "Iconen", "Karten", "Einsammeln",
        "Sopu_Fuchs", "Sopu_doppelfuchs", "Sopu_karlchen", "Sopu_doppelkarlchen", "Sopu_rupa_b_Solo",
        "Sopu_Dollenschlag", "Sopu_Herzstich", "DaBu_Solo", "Neunerwerfen", "Koenigewerfen", "Armut",
        "Scharfer_Rupa", "Zwei_Schweine", "Schweine_ansagen", "Schweine_b_TrSolo", "Supersau",
        "Stille_befoerderung", "Vollbild", "Augen_zeigen", "Partei_zeigen", "Solis", "Willkommen",
        "Hintergrund", "Vordergrund", "Bedenkzeit"};
    return liste;
}

const std::vector<std::string_view>& schreibschluessel() {
    static const std::vector<std::string_view> liste{
        "Abr_Option", "Ende_bei", "Ende_nach", "Vorhand", "Kontra", "Limit", "HerzZehn", "Joker",
        PflichtsoloSchreibschluessel, "Vh_Solo", "Bockrunden", "Kartenbild", "Hintergrund",
        "Vordergrund", "Animation", "Boxen", "Automatic", "Iconen", "Karten", "Einsammeln",
        "Willkommen", "Hh_n_solo", "Rückseite", "Sprachausgabe", "Signal", "Sopu_Fuchs",
        "Sopu_doppelfuchs", "Sopu_karlchen", "Sopu_doppelkarlchen", "Sopu_rupa_b_Solo",
        "Sopu_Dollenschlag", "Sopu_Herzstich", "DaBu_Solo", "Neunerwerfen", "Koenigewerfen", "Armut",
        "Scharfer_Rupa", "Zwei_Schweine", "Schweine_ansagen", "Schweine_b_TrSolo", "Supersau",
        "Stille_befoerderung", "Vollbild", "Augen_zeigen", "Partei_zeigen", "Geräusch", "Solis", "Bedenkzeit"};
    return liste;
}

int* feld(Einstellungen& e, std::string_view schluessel) {
    const auto& orte = feldorte();
    const auto ort = orte.find(Gefaltet(schluessel).sicht());
    return ort == orte.end() ? nullptr : ort->second.in(e);
}

Einstellungen ausProfil(const Profildatei& datei, const Einstellungen& vorgaben, const Lesekontext& kontext) {
    Einstellungen e = vorgaben;
    // A name is read into the buffer even when it comes from the defaults.
    if (!kontext.namenBehalten)
        for (auto& name : e.namen) name = profilText(name, Textpuffer);
    // One pass over the keys the file has; the others keep the value of `vorgaben`.
    const auto& orte = leseorte();
    for (const auto& [name, wert] : datei.eintraege(Abschnitt)) {
        const auto ort = orte.find(name);
        if (ort == orte.end()) continue;
        const Leseort& l = ort->second;
        switch (l.art) {
            case Leseort::Art::Name:
                if (!kontext.namenBehalten) e.namen[l.sitz] = profilText(wert, Textpuffer);
                break;
            case Leseort::Art::Charakter: e.charakter[l.sitz] = profilZahl(wert, e.charakter[l.sitz]); break;
            case Leseort::Art::Farbe: *l.feld.in(e) = alsInt(fuehrendeZahl(profilText(wert, Textpuffer))); break;
            case Leseort::Art::Zahl: {
                int* ziel = l.feld.in(e);
                *ziel = profilZahl(wert, *ziel);
                break;
            }
        }
    }
    // A file with "Zweite schlägt Erste" and the Joker gets the Dollen rule alone.
    engine::jokerAbgleichen(e.regeln);
    if (!kontext.tonVerfuegbar) {
        e.sprachausgabe = 0;
        e.geraeusch = 0;
        e.signal = 0;
    }
    return e;
}

void inProfil(Profildatei& datei, const Einstellungen& e, std::string_view programm) {
    datei.setze(Abschnitt, "Programm", programm);
    for (int sitz = 1; sitz <= 4; ++sitz) {
        const auto i = static_cast<std::size_t>(sitz - 1);
        datei.setze(Abschnitt, nameSchluessel(sitz), e.namen[i]);
        datei.setze(Abschnitt, charakterSchluessel(sitz), std::to_string(e.charakter[i]));
    }
    datei.setze(Abschnitt, "Versionsnr", std::to_string(Formatversion));
    // Each key's field, found once.
    static const auto felder = [] {
        std::vector<std::pair<std::string_view, Feldort>> liste;
        for (const auto schluessel : schreibschluessel()) liste.emplace_back(schluessel, feldorte().at(faltung(schluessel)));
        return liste;
    }();
    Einstellungen kopie = e;
    for (const auto& [schluessel, ort] : felder) datei.setze(Abschnitt, schluessel, std::to_string(*ort.in(kopie)));
}

Import importieren(const Profildatei& datei, const Einstellungen& aktuell, const Lesekontext& kontext,
                   std::string_view programm) {
    if (profilText(datei, Abschnitt, "Programm", "Fehler", Textpuffer) != programm) {
        return Import{std::nullopt, std::string(texte::KeineIniDatei)};
    }
    if (profilZahl(datei, Abschnitt, "Versionsnr", 0) != Formatversion) {
        return Import{std::nullopt, std::string(texte::IniVeraltet)};
    }
    return Import{ausProfil(datei, aktuell, kontext), {}};
}

}  // namespace settings

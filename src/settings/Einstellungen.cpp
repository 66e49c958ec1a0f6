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

// Colours are stored as text and read as strings, then taken by their numeric value.
bool istFarbe(std::string_view schluessel) {
    return gleichOhneGrossschreibung(schluessel, "Hintergrund") ||
           gleichOhneGrossschreibung(schluessel, "Vordergrund");
}

// The compulsory solo is written under this key but read as "Solo"; the pair
// does not meet, so the option starts at its default after a restart.
constexpr std::string_view PflichtsoloSchreibschluessel = "Pflichtsolo";

std::string nameSchluessel(int sitz) { return "Name" + std::to_string(sitz); }
std::string charakterSchluessel(int sitz) { return "charakter" + std::to_string(sitz); }

int alsInt(long long wert) { return static_cast<int>(std::clamp<long long>(wert, INT_MIN, INT_MAX)); }

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
    if (gleichOhneGrossschreibung(schluessel, PflichtsoloSchreibschluessel)) return &e.regeln.solo;
    for (const auto& r : engine::regelSchluessel()) {
        if (gleichOhneGrossschreibung(schluessel, r.schluessel)) return &(e.regeln.*(r.gespeichert));
    }
    for (const auto& a : anzeigeschluessel) {
        if (gleichOhneGrossschreibung(schluessel, a.schluessel)) return &(e.*(a.feld));
    }
    return nullptr;
}

Einstellungen ausProfil(const Profildatei& datei, const Einstellungen& vorgaben, const Lesekontext& kontext) {
    Einstellungen e = vorgaben;
    for (int sitz = 1; sitz <= 4; ++sitz) {
        const auto i = static_cast<std::size_t>(sitz - 1);
        if (!kontext.namenBehalten) {
            e.namen[i] = profilText(datei, Abschnitt, nameSchluessel(sitz), vorgaben.namen[i], Textpuffer);
        }
        e.charakter[i] = profilZahl(datei, Abschnitt, charakterSchluessel(sitz), vorgaben.charakter[i]);
    }
    for (const auto schluessel : leseschluessel()) {
        int* ziel = feld(e, schluessel);
        if (istFarbe(schluessel)) {
            const auto text = profilText(datei, Abschnitt, schluessel, std::to_string(*ziel), Textpuffer);
            *ziel = alsInt(fuehrendeZahl(text));
        } else {
            *ziel = profilZahl(datei, Abschnitt, schluessel, *ziel);
        }
    }
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
    Einstellungen kopie = e;
    for (const auto schluessel : schreibschluessel()) {
        datei.setze(Abschnitt, schluessel, std::to_string(*feld(kopie, schluessel)));
    }
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

#include "Kommandozeile.h"

#include <charconv>

namespace app {

namespace {

template <class T>
bool zahlLesen(const std::string& text, T& ziel) {
    T wert{};
    const auto* ende = text.data() + text.size();
    const auto [ptr, ec] = std::from_chars(text.data(), ende, wert);
    if (ec != std::errc() || ptr != ende) return false;
    ziel = wert;
    return true;
}

std::vector<std::string> teilen(const std::string& text, char trenner) {
    std::vector<std::string> teile;
    std::string::size_type anfang = 0;
    while (true) {
        const auto pos = text.find(trenner, anfang);
        teile.push_back(text.substr(anfang, pos - anfang));
        if (pos == std::string::npos) break;
        anfang = pos + 1;
    }
    return teile;
}

}  // namespace

Auswertung kommandozeileAuswerten(const std::vector<std::string>& argumente) {
    Aufruf a;
    auto fehler = [](std::string text) { return Auswertung{std::nullopt, std::move(text)}; };
    for (std::size_t i = 0; i < argumente.size(); ++i) {
        const std::string& arg = argumente[i];
        // Fetches the value of an option that needs one.
        auto wert = [&](std::string& ziel) {
            if (i + 1 >= argumente.size()) return false;
            ziel = argumente[++i];
            return true;
        };
        std::string text;
        if (arg == "--help" || arg == "-h") {
            a.modus = Modus::Hilfe;
        } else if (arg == "--version") {
            a.modus = Modus::Version;
        } else if (arg == "--autoplay" || arg == "--tournament") {
            a.modus = arg == "--autoplay" ? Modus::Autoplay : Modus::Turnier;
            if (!wert(text) || !zahlLesen(text, a.anzahl) || a.anzahl < 0)
                return fehler(arg + " braucht eine Anzahl von Spielen");
        } else if (arg == "--seed") {
            std::uint64_t s = 0;
            if (!wert(text) || !zahlLesen(text, s)) return fehler("--seed braucht eine Zahl");
            a.seed = s;
        } else if (arg == "--rules") {
            if (!wert(a.regelDatei)) return fehler("--rules braucht eine Datei");
        } else if (arg == "--json") {
            if (!wert(a.jsonDatei)) return fehler("--json braucht eine Datei oder -");
        } else if (arg == "--load") {
            if (!wert(a.ladeDatei)) return fehler("--load braucht eine Datei");
        } else if (arg == "--screenshot") {
            a.modus = Modus::Screenshot;
            if (!wert(a.screenshotDatei)) return fehler("--screenshot braucht eine Datei");
        } else if (arg == "--stats") {
            a.statistik = true;
        } else if (arg == "--players") {
            if (!wert(text)) return fehler("--players braucht zwei Spielerarten, etwa regelwerk,zufall");
            a.spieler = teilen(text, ',');
            if (a.spieler.size() != 2) return fehler("--players braucht genau zwei Spielerarten");
        } else if (arg == "--host") {
            a.modus = Modus::Host;
        } else if (arg == "--join") {
            a.modus = Modus::Join;
            if (!wert(a.joinAdresse)) return fehler("--join braucht eine Adresse");
        } else if (arg == "--foyer") {
            a.modus = Modus::Foyer;
            if (!wert(a.foyerAdresse)) return fehler("--foyer braucht die Adresse des Chat-Servers");
        } else if (arg == "--open-table" || arg == "--take-seat") {
            a.foyerrolle = arg == "--open-table" ? Foyerrolle::TischEroeffnen : Foyerrolle::PlatzNehmen;
        } else if (arg == "--port") {
            int port = 0;
            if (!wert(text) || !zahlLesen(text, port) || port < 0 || port > 65535)
                return fehler("--port braucht eine Portnummer von 0 bis 65535");
            a.port = port;
        } else if (arg == "--guests") {
            if (!wert(text) || !zahlLesen(text, a.gaeste) || a.gaeste < 0 || a.gaeste > 3)
                return fehler("--guests braucht eine Anzahl von 0 bis 3");
        } else if (arg == "--tick") {
            int ms = 0;
            if (!wert(text) || !zahlLesen(text, ms) || ms < 0 || ms > 1000)
                return fehler("--tick braucht Millisekunden von 0 bis 1000");
            a.takt = ms;
        } else if (arg == "--name") {
            if (!wert(a.name)) return fehler("--name braucht einen Namen");
        } else if (arg == "--auto") {
            a.automatisch = true;
        } else if (arg == "--games") {
            if (!wert(text) || !zahlLesen(text, a.spiele) || a.spiele < 1)
                return fehler("--games braucht eine Anzahl");
        } else if (arg == "--upload-results") {
            a.modus = Modus::Ergebnisse;
        } else if (arg == "--dir") {
            if (!wert(a.ergebnisOrdner)) return fehler("--dir braucht einen Ordner");
        } else if (arg == "--smtp") {
            if (!wert(text) || text.empty()) return fehler("--smtp braucht HOST[:PORT]");
            const auto doppelpunkt = text.rfind(':');
            a.smtpHost = text.substr(0, doppelpunkt);
            if (doppelpunkt != std::string::npos &&
                (!zahlLesen(text.substr(doppelpunkt + 1), a.smtpPort) || a.smtpPort < 1 || a.smtpPort > 65535))
                return fehler("--smtp braucht HOST[:PORT] mit einem Port von 1 bis 65535");
            if (a.smtpHost.empty()) return fehler("--smtp braucht HOST[:PORT]");
        } else if (arg == "--from") {
            if (!wert(a.absender)) return fehler("--from braucht eine Adresse");
        } else if (arg == "--to") {
            if (!wert(a.empfaenger)) return fehler("--to braucht eine Adresse");
        } else {
            return fehler("Unbekannte Option: " + arg);
        }
    }
    return Auswertung{a, {}};
}

std::string hilfetext() {
    return "Trumpona - Doppelkopf\n"
           "\n"
           "Aufruf:\n"
           "  trumpona                              das Spiel am Tisch\n"
           "  trumpona --load DATEI.dkp             mit einer gespeicherten Partie beginnen\n"
           "  trumpona --autoplay N [--seed S] [--rules DATEI] [--json DATEI|-] [--stats]\n"
           "                                        ohne Fenster: vier Computerspieler spielen N Spiele\n"
           "  trumpona --tournament N --players A,B [--seed S] [--rules DATEI]\n"
           "                                        Turnier zweier Spielerarten\n"
           "  trumpona --screenshot DATEI [--seed S]  den Tisch als PNG speichern\n"
           "  trumpona --host [--port P] [--name NAME]  am Tischfenster einen Netzwerktisch eröffnen\n"
           "  trumpona --join HOST[:PORT] --name NAME   am Tischfenster an einem Netzwerktisch Platz nehmen\n"
           "  trumpona --host [--port P] --auto --guests K --games N [--seed S] [--rules DATEI]\n"
           "                 [--json DATEI|-] [--name NAME] [--tick MS]\n"
           "                                        ohne Fenster einen Netzwerktisch eröffnen: K Gäste,\n"
           "                                        N Spiele, der Computer spielt die übrigen Plätze\n"
           "  trumpona --join HOST[:PORT] --name NAME --auto [--games N] [--tick MS]\n"
           "                                        ohne Fenster an einem Netzwerktisch Platz nehmen\n"
           "  trumpona --foyer HOST[:PORT] --name NAME --auto (--open-table | --take-seat) [--games N]\n"
           "                                        ohne Fenster im Internet-Foyer einen Tisch eröffnen\n"
           "                                        oder am ersten freien Platz nehmen\n"
           "  trumpona --upload-results [--dir DIR] [--smtp HOST:PORT] [--from ADR] [--to ADR]\n"
           "                                        wartende Turnierergebnisse an die Turnierleitung mailen\n"
           "  trumpona --help | --version\n";
}

}  // namespace app

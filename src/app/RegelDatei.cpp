#include "RegelDatei.h"

#include <fstream>
#include <sstream>

namespace app {

std::optional<settings::Einstellungen> optionenLesen(const std::string& pfad, std::string& fehler) {
    std::ifstream datei(pfad, std::ios::binary);
    if (!datei) {
        fehler = "Die Regeldatei " + pfad + " kann nicht gelesen werden.";
        return std::nullopt;
    }
    std::ostringstream inhalt;
    inhalt << datei.rdbuf();
    return settings::ausProfil(settings::Profildatei::ausBytes(inhalt.str()), settings::Einstellungen{}, {});
}

}  // namespace app

#include "Anmeldung.h"

#include "Irczeile.h"

namespace foyer {

std::string benutzerkennung(engine::Zufallsquelle& zufall) {
    std::string kennung;
    for (int i = 0; i < 5; ++i) kennung += static_cast<char>(65 + static_cast<int>(zufall.rnd() * 25));
    return kennung;
}

std::string nickAusName(std::string_view name) { return utf8Anfang(name, MaxNick); }

std::vector<std::string> anmeldezeilen(std::string_view kennung, std::string_view nick) {
    std::string user = "USER ";
    for (int i = 0; i < 4; ++i) user += " " + std::string(kennung);
    return {user, "PASS " + std::string(Serverpasswort), "NICK " + std::string(nick)};
}

std::vector<std::string> foyerBetreten(std::string_view foyerkanal) {
    return {"list", "JOIN " + std::string(foyerkanal), "Time"};
}

}  // namespace foyer

#include "Spielercharakter.h"

namespace table {

const std::vector<Charakter>& charaktere() {
    static const std::vector<Charakter> liste{
        {StandardCharakter, "regelwerk", "Regelwerk (überlegt jede Karte)"},
        {1, "zufall", "Glücksspieler (irgendeine erlaubte Karte)"},
        {0, "kleinste", "Anfänger (immer die kleinste Karte)"},
        {3, "suche", "Stark (denkt jede Karte voraus)"},
    };
    return liste;
}

std::string_view spielerartFuer(int charakter) {
    for (const Charakter& c : charaktere())
        if (c.wert == charakter) return c.art;
    return charaktere().front().art;
}

}  // namespace table

#include "Dialogtexte.h"

#include "engine/Kartentext.h"

namespace table {

std::string soloName(int spieltyp, bool franzoesisch) {
    if (spieltyp == engine::Normalspiel) return std::string(engine::farbwort(engine::Karo, franzoesisch)) + "-Solo";
    return engine::spieltypName(spieltyp, franzoesisch);
}

}  // namespace table

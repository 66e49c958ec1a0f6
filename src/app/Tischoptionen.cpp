#include "Tischoptionen.h"

#include "table/Tischsteuerung.h"

namespace app {

table::Anzeigeoptionen anzeigeoptionen(const settings::Einstellungen& e) {
    table::Anzeigeoptionen o;
    o.kartenbild = e.kartenbild;
    o.rueckseite = e.rueckseite;
    o.animation = e.animation != 0;
    o.boxen = e.boxen != 0;
    o.einsammeln = e.einsammeln;
    o.augenZeigen = e.augenZeigen != 0;
    o.parteiZeigen = e.parteiZeigen != 0;
    o.hintergrund = e.hintergrund;
    o.vordergrund = e.vordergrund;
    return o;
}

void einstellungenUebernehmen(table::Tischsteuerung& steuerung, const settings::Einstellungen& e) {
    steuerung.setzeOptionen(anzeigeoptionen(e));
    steuerung.setzeRegelOptionen(e.regeln);
    engine::ProSitz<std::string> namen;
    for (const engine::Sitz s : engine::alleSitze) namen[s] = e.namen[static_cast<std::size_t>(s.nr() - 1)];
    steuerung.setzeNamen(namen);
}

}  // namespace app

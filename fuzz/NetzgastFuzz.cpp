// Any bytes from the host: the guest takes them message by message as its pump
// does, its rule book answers every question, and nothing crashes or hangs.
#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

#include "engine/Zufall.h"
#include "net/Gastkern.h"
#include "net/Tischautomat.h"
#include "players/Spielerarten.h"

namespace {

struct Leitung final : net::Gastausgang {
    void schreiben(std::string_view bytes) override { gesendet += bytes.size(); }
    std::size_t gesendet = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string_view bytes(reinterpret_cast<const char*>(daten), groesse);
    engine::Spiel spiel;
    engine::SeedZufall zufall(groesse);
    engine::Spielablauf ablauf(spiel, zufall);
    players::Tischwissen wissen(zufall);
    ablauf.beobachterHinzufuegen(&wissen);
    players::Spielerumgebung umgebung{wissen, zufall, nullptr};
    const auto spieler = players::spielerErzeugen("zufall", umgebung);
    Leitung leitung;
    net::Gastkern gast(spiel, ablauf, leitung, "Fuzz");
    // Pieces of varying length, as reads arrive; while a card "flies" every third piece.
    std::size_t stueck = 1;
    for (std::size_t i = 0; i < bytes.size(); i += stueck, stueck = stueck % 97 + 13) {
        if (!gast.empfangen(bytes.substr(i, stueck))) return 0;  // the connection would go
        gast.setzeAnzeigeBeschaeftigt(i % 3 == 0);
        gast.takt();
        net::gastfrageBeantworten(gast, ablauf, *spieler);
    }
    gast.setzeAnzeigeBeschaeftigt(false);
    while (gast.takt()) net::gastfrageBeantworten(gast, ablauf, *spieler);
    return 0;
}

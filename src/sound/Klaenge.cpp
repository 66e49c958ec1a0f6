#include "Klaenge.h"

#include <algorithm>

namespace sound {

const std::array<Klangzuordnung, KlangSorten>& klangzuordnungen() {
    using K = Klang;
    constexpr auto S = Klangschalter::Sprachausgabe;
    constexpr auto G = Klangschalter::Geraeusch;
    static const std::array<Klangzuordnung, KlangSorten> tabelle{{
        {K::Re, 1, "re", S},
        {K::Kontra, 2, "kontra", S},
        {K::Schwarz, 3, "schwarz", S},
        {K::Keine90, 4, "keine90", S},
        {K::Keine60, 5, "keine60", S},
        {K::Keine30, 6, "keine30", S},
        {K::Hochzeit, 7, "hochzeit", S},
        {K::Armut, 8, "armut", S},
        {K::KaroSolo, 9, "karo-solo", S},
        {K::HerzSolo, 10, "herz-solo", S},
        {K::PikSolo, 11, "pik-solo", S},
        {K::KreuzSolo, 12, "kreuz-solo", S},
        {K::BubenSolo, 13, "buben-solo", S},
        {K::DamenSolo, 14, "damen-solo", S},
        {K::DamenBubenSolo, 15, "damen-buben-solo", S},
        {K::SoloOhneTrumpf, 16, "solo-ohne-trumpf", S},
        {K::SchellenSolo, 17, "schellen-solo", S},
        {K::RotSolo, 18, "rot-solo", S},
        {K::GruenSolo, 19, "gruen-solo", S},
        {K::EichelSolo, 20, "eichel-solo", S},
        {K::UnterSolo, 21, "unter-solo", S},
        {K::OberSolo, 22, "ober-solo", S},
        {K::OberUnterSolo, 23, "ober-unter-solo", S},
        {K::Schweine, 24, "schweine", S},
        {K::Supersau, 25, "supersau", S},
        {K::StichEingesammelt, 53, "stich", G},
        {K::SpielerKommt, 56, "spieler-kommt", G},
        {K::SpielerGeht, 57, "spieler-geht", G},
        {K::SpielVerloren, 59, "verloren", G},
        {K::KarteGespielt, 60, "karte", G},
        {K::SpielGewonnen, 61, "gewonnen", G},
        {K::DuBistDran, 62, "signal", Klangschalter::Signal},
    }};
    return tabelle;
}

const Klangzuordnung& zuordnung(Klang klang) {
    const auto& t = klangzuordnungen();
    return *std::find_if(t.begin(), t.end(), [klang](const Klangzuordnung& z) { return z.klang == klang; });
}

std::optional<Klang> soloKlang(int spieltyp, bool franzoesisch) {
    using K = Klang;
    static constexpr std::array<K, 8> franzoesische{K::KaroSolo, K::HerzSolo, K::PikSolo, K::KreuzSolo,
                                                    K::BubenSolo, K::DamenSolo, K::DamenBubenSolo,
                                                    K::SoloOhneTrumpf};
    static constexpr std::array<K, 8> deutsche{K::SchellenSolo, K::RotSolo, K::GruenSolo, K::EichelSolo,
                                               K::UnterSolo, K::OberSolo, K::OberUnterSolo, K::SoloOhneTrumpf};
    if (spieltyp < 1 || spieltyp > 8) return std::nullopt;
    const auto i = static_cast<std::size_t>(spieltyp - 1);
    return franzoesisch ? franzoesische[i] : deutsche[i];
}

std::optional<Klang> limitKlang(int limitCode) {
    switch (limitCode) {
        case 3: return Klang::Keine90;
        case 2: return Klang::Keine60;
        case 1: return Klang::Keine30;
        case 0: return Klang::Schwarz;
        default: return std::nullopt;
    }
}

}  // namespace sound

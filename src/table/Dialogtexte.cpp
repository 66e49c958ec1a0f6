#include "Dialogtexte.h"

#include "engine/Kartentext.h"

namespace table {

std::string werfenFrage(Werfen art, int anzahl) {
    const std::string zahl = std::to_string(anzahl);
    std::string satz;
    switch (art) {
        case Werfen::Neunen: satz = texte::SieHaben + zahl + texte::Neunen; break;
        case Werfen::Koenige: satz = texte::SieHaben + zahl + texte::Koenige; break;
        case Werfen::Armut: satz = texte::SieHabenNur + zahl + texte::Truempfe; break;
    }
    return satz + "\n" + texte::NeuGeben;
}

std::string werfenTitel(Werfen art) {
    switch (art) {
        case Werfen::Neunen: return texte::Neunerwerfen;
        case Werfen::Koenige: return texte::Koenigewerfen;
        case Werfen::Armut: break;
    }
    return texte::Armut;
}

std::string positionVonSitz1(engine::Sitz vorhand) {
    switch (vorhand.nr()) {
        case 1: return "Vorhand";
        case 2: return "Hinterhand";
        case 3: return "Dritthand";
        default: return "Zweithand";
    }
}

std::vector<std::string> soloFrage(const engine::Spiel& spiel) {
    std::vector<std::string> zeilen;
    const std::string position = positionVonSitz1(spiel.vorhand);
    const bool vorhand = spiel.vorhand == engine::Sitz(1);
    if (vorhand) zeilen.push_back(std::string(texte::SoloSieHaben) + " " + texte::SoloVorhand + ".");
    else zeilen.push_back(std::string(texte::SoloSitzenIn) + " " + position + ".");
    if (!vorhand && spiel.regeln.vhSolo) zeilen.emplace_back(texte::SoloVorhandErhalten);
    if (position == "Zweithand") zeilen.push_back(spiel.namen[engine::Sitz(4)] + texte::SoloKeinSolo);
    if (position == "Dritthand" || position == "Hinterhand") zeilen.emplace_back(texte::SoloVorIhnen);
    zeilen.emplace_back(texte::SoloErwaegen);
    return zeilen;
}

std::vector<int> erlaubteSoli(const engine::Regeln& regeln) {
    std::vector<int> soli;
    for (int typ = engine::Normalspiel; typ <= engine::SoloOhneTrumpf; ++typ)
        if (typ != engine::DamenBubenSolo || regeln.dabuSolo) soli.push_back(typ);
    return soli;
}

std::string soloName(int spieltyp, bool franzoesisch) {
    if (spieltyp == engine::Normalspiel) return std::string(engine::farbwort(engine::Karo, franzoesisch)) + "-Solo";
    return engine::spieltypName(spieltyp, franzoesisch);
}

std::string hochzeitArtText(int art) {
    switch (art) {
        case engine::ErsterFehlstich: return texte::ErsterFehlstich;
        case engine::ErsterTrumpfstich: return texte::ErsterTrumpfstich;
        default: return texte::ErsterStich;
    }
}

std::string eigeneHochzeitText(int art) {
    return std::string(texte::SieHeiraten) + texte::Des + hochzeitArtText(art) + "! ";
}

}  // namespace table

#include "Neugeben.h"

namespace engine {

namespace {
constexpr int StaerkeNeun = 1;
constexpr int StaerkeKoenig = 4;
constexpr long long StarkeHand = 23085089;
constexpr int MindestTruempfeStarkeHand = 7;
}  // namespace

bool neugebenRegelInKraft(const Regeln& regeln, int grund) {
    switch (grund) {
        case NeunenWerfen: return regeln.neunerwerfen;
        case KoenigeWerfen: return regeln.koenigewerfen;
        case ArmutWerfen: return regeln.armut;
        default: return false;
    }
}

int zaehleStaerke(const Spiel& spiel, Sitz sitz, int staerke) {
    int n = 0;
    for (int p = spiel.deck.erstePosition(sitz); p <= spiel.deck.letztePosition(sitz); ++p)
        if (spiel.deck[p].staerke == staerke) ++n;
    return n;
}

int zaehleTruempfe(const Spiel& spiel, Sitz sitz) {
    int n = 0;
    for (int p = spiel.deck.erstePosition(sitz); p <= spiel.deck.letztePosition(sitz); ++p)
        if (spiel.deck.istTrumpf(p, spiel.spieltyp)) ++n;
    return n;
}

long long staerkeSumme(const Spiel& spiel, Sitz sitz) {
    long long summe = 0;
    for (int p = spiel.deck.erstePosition(sitz); p <= spiel.deck.letztePosition(sitz); ++p)
        summe += spiel.deck[p].staerke;
    return summe;
}

int neugebeAnzahl(const Spiel& spiel, Sitz sitz, int grund) {
    switch (grund) {
        case NeunenWerfen: return zaehleStaerke(spiel, sitz, StaerkeNeun);
        case KoenigeWerfen: return zaehleStaerke(spiel, sitz, StaerkeKoenig);
        case ArmutWerfen: return zaehleTruempfe(spiel, sitz);
        default: return 0;
    }
}

bool darfNeugeben(const Spiel& spiel, Sitz sitz, int grund) {
    const int n = neugebeAnzahl(spiel, sitz, grund);
    return grund == ArmutWerfen ? n < 4 : grund != KeinNeugeben && n >= 5;
}

bool computerWillNeugeben(const Spiel& spiel, Sitz sitz, int grund) {
    if (!darfNeugeben(spiel, sitz, grund)) return false;
    if (grund == ArmutWerfen) return true;
    const bool starkeHand =
        zaehleTruempfe(spiel, sitz) >= MindestTruempfeStarkeHand && staerkeSumme(spiel, sitz) > StarkeHand;
    return !starkeHand;
}

std::vector<int> gezeigteKarten(const Spiel& spiel, Sitz sitz, int grund) {
    std::vector<int> karten;
    for (int p = spiel.deck.erstePosition(sitz); p <= spiel.deck.letztePosition(sitz); ++p) {
        const Kartenposition& k = spiel.deck[p];
        const bool zeigen = (grund == NeunenWerfen && k.staerke == StaerkeNeun) ||
                            (grund == KoenigeWerfen && k.staerke == StaerkeKoenig) ||
                            (grund == ArmutWerfen && spiel.deck.istTrumpf(p, spiel.spieltyp));
        if (zeigen) karten.push_back(p);
    }
    return karten;
}

std::string neugebenFrage(int grund, int anzahl) {
    std::string t = grund == ArmutWerfen ? "Sie haben nur " : "Sie haben ";
    t += std::to_string(anzahl);
    t += grund == NeunenWerfen ? " Neunen!" : grund == KoenigeWerfen ? " Könige!" : " Trümpfe!";
    return t + "\n" + std::string(neugebetext::FrageNeugeben);
}

std::string neugebenTitel(int grund) {
    switch (grund) {
        case NeunenWerfen: return std::string(neugebetext::TitelNeunen);
        case KoenigeWerfen: return std::string(neugebetext::TitelKoenige);
        default: return std::string(neugebetext::TitelArmut);
    }
}

std::string neugebenAnsage(const std::string& name, int grund, int anzahl) {
    const std::string n = std::to_string(anzahl);
    switch (grund) {
        case NeunenWerfen: return name + " hat " + n + " Neunen! Es wird neu gegeben!";
        case KoenigeWerfen: return name + " hat " + n + " Könige! Es wird neu gegeben!";
        default: return name + " hat nur " + n + " Trümpfe! Es wird neu gegeben!";
    }
}

}  // namespace engine

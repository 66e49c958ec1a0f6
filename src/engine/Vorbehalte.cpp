#include "Vorbehalte.h"

#include <array>

#include "Kartentext.h"

namespace engine {

namespace {
constexpr int KreuzDame = kartencode(Kreuz, Dame);
constexpr int KaroAs = kartencode(Karo, As);

bool istMensch(const Spiel& spiel, Sitz sitz) { return spiel.steuerung[sitz] == Steuerung::Mensch; }

// "Sie ..." for the person at this machine, the name + "..." for everyone else.
std::string wer(const Spiel& spiel, Sitz sitz, std::string_view sie, std::string_view andere) {
    return istMensch(spiel, sitz) ? std::string(sie) : spiel.namen[sitz] + std::string(andere);
}

// Raises the holder's Karo-Asse above the Dollen; returns their positions.
std::vector<int> schweineErhoehen(Spiel& spiel, Sitz halter) {
    std::vector<int> karten;
    for (int p = spiel.deck.erstePosition(halter); p <= spiel.deck.letztePosition(halter); ++p) {
        if (spiel.deck[p].code != KaroAs) continue;
        spiel.deck[p].staerke = StaerkeJoker;
        karten.push_back(p);
    }
    return karten;
}
}  // namespace

std::string_view positionsname(Sitz vorhand, Sitz sitz) {
    constexpr std::array<std::string_view, 4> namen{"Vorhand", "Zweithand", "Dritthand", "Hinterhand"};
    return namen[static_cast<std::size_t>((sitz.nr() - vorhand.nr() + 4) % 4)];
}

std::string soloFrage(const Spiel& spiel, Sitz sitz) {
    using namespace vorbehalttext;
    const std::string_view pos = positionsname(spiel.vorhand, sitz);
    std::string t;
    if (sitz == spiel.vorhand) {
        t = std::string(SieHaben) + " " + std::string(pos) + ".";
    } else {
        t = std::string(SieSitzenIn) + " " + std::string(pos) + ".";
        if (spiel.regeln.vhSolo) t += "\n" + std::string(VorhandErhalten);
    }
    if (pos == "Zweithand") t += "\n" + spiel.namen[spiel.vorhand] + std::string(KeinSoloAngesagt);
    if (pos == "Dritthand" || pos == "Hinterhand") t += "\n" + std::string(VorIhnenKeinSolo);
    return t + "\n" + std::string(SoloErwaegen);
}

std::vector<int> erlaubteSoloarten(const Regeln& regeln) {
    std::vector<int> arten;
    for (int t = Normalspiel; t <= SoloOhneTrumpf; ++t)
        if (soloErlaubt(regeln, t)) arten.push_back(t);
    return arten;
}

bool soloErlaubt(const Regeln& regeln, int spieltyp) {
    if (!regeln.solis || spieltyp < Normalspiel || spieltyp > SoloOhneTrumpf) return false;
    return spieltyp != DamenBubenSolo || regeln.dabuSolo;
}

bool hatBeideKreuzDamen(const Spiel& spiel, Sitz sitz) { return spiel.deck.anzahl(sitz, KreuzDame) == 2; }

std::string_view hochzeitArtText(int art) {
    switch (art) {
        case ErsterStich: return "ersten Stichs";
        case ErsterFehlstich: return "ersten Fehlstichs";
        case ErsterTrumpfstich: return "ersten Trumpfstichs";
        default: return "";
    }
}

bool mussPflichtsolo(const Spiel& spiel, Sitz sitz) {
    const Regeln& r = spiel.regeln;
    const Partiestand& p = spiel.partie;
    // From game 97 on the Partie ends by points, so its end is not foreseeable.
    if (!r.solo || !r.solis || r.abrOption != 2 || p.spielNr > 96) return false;
    if (p.pflichtsoloGespielt[sitz]) return false;
    int offen = 0;
    std::optional<Sitz> erster;
    for (int i = 0; i < 4; ++i) {
        const Sitz s = spiel.vorhand.plus(i);
        if (p.pflichtsoloGespielt[s]) continue;
        ++offen;
        if (!erster) erster = s;
    }
    const int spieleUebrig = r.endeNach - p.spielNr + 1;
    return offen >= spieleUebrig && erster == sitz;
}

std::optional<Sitz> schweineHalterSuchen(const Spiel& spiel) {
    for (const Sitz s : alleSitze)
        if (spiel.deck.anzahl(s, KaroAs) == 2) return s;
    return std::nullopt;
}

bool schweineGelten(const Regeln& regeln, int spieltyp, bool solo) {
    if (!regeln.zweiSchweine || spieltyp != Normalspiel) return false;
    return !solo || regeln.schweineBTrSolo;
}

std::optional<Meldung> schweineMarkieren(Spiel& spiel) {
    spiel.schweineHalter.reset();
    if (!schweineGelten(spiel.regeln, Normalspiel, false)) return std::nullopt;
    spiel.schweineHalter = schweineHalterSuchen(spiel);
    if (!spiel.schweineHalter) return std::nullopt;
    const Sitz h = *spiel.schweineHalter;
    const std::vector<int> karten = schweineErhoehen(spiel, h);
    if (!istMensch(spiel, h) && !spiel.regeln.schweineAnsagen) return std::nullopt;
    return Meldung{Meldungsart::Schweine, std::string(vorbehalttext::TitelSchweine),
                   wer(spiel, h, "Sie haben Schweine!", " hat Schweine!"), h, karten};
}

std::vector<Meldung> spielFestlegen(Spiel& spiel, const Spielwahl& wahl, bool franzoesisch) {
    using namespace vorbehalttext;
    std::vector<Meldung> meldungen;
    const Sitz w = wahl.sitz;
    spiel.solo = wahl.art == Spielwahl::Solo;
    spiel.spieltyp = spiel.solo ? wahl.spieltyp : Normalspiel;
    spiel.solist.reset();
    spiel.stillerSolist.reset();
    spiel.hochzeiter.reset();
    spiel.hochzeitPartner.reset();
    spiel.hochzeitArt = KeineHochzeit;
    spiel.hochzeitGeklaert = false;
    spiel.pflichtsolo = false;
    spiel.partei.fill(ParteiKontra);

    switch (wahl.art) {
        case Spielwahl::Normal:
            for (const Sitz s : alleSitze)
                if (spiel.deck.anzahl(s, KreuzDame) > 0) spiel.partei[s] = ParteiRe;
            break;
        case Spielwahl::Solo:
            spiel.solist = w;
            spiel.partei[w] = ParteiSolo;
            if (spiel.regeln.solo && !spiel.partie.pflichtsoloGespielt[w]) {
                spiel.pflichtsolo = true;
                spiel.partie.pflichtsoloGespielt[w] = true;
            }
            meldungen.push_back(
                {Meldungsart::Solo,
                 std::string(TitelSolo),
                 wer(spiel, w, "Sie spielen", " spielt") + " ein " + soloName(spiel.spieltyp, franzoesisch) + "!",
                 w,
                 {}});
            break;
        case Spielwahl::Hochzeit:
            spiel.hochzeiter = w;
            spiel.hochzeitArt = wahl.hochzeitArt;
            spiel.partei[w] = ParteiRe;
            meldungen.push_back({Meldungsart::Hochzeit,
                                 std::string(TitelHochzeit),
                                 wer(spiel, w, SieHeiraten, HeiratetDenGewinner) + " des " +
                                     std::string(hochzeitArtText(wahl.hochzeitArt)) + "! ",
                                 w,
                                 {}});
            break;
        case Spielwahl::StillesSolo:
            spiel.stillerSolist = w;
            spiel.partei[w] = ParteiSolo;
            break;
    }

    spiel.deck.staerkenBerechnen(spiel.spieltyp);
    if (spiel.schweineHalter && schweineGelten(spiel.regeln, spiel.spieltyp, spiel.solo))
        schweineErhoehen(spiel, *spiel.schweineHalter);
    else
        spiel.schweineHalter.reset();
    spiel.supersauHalter.reset();
    if (spiel.regeln.supersau && spiel.regeln.zweiSchweine && spiel.solo && istFarbspiel(spiel.spieltyp) &&
        !spiel.schweineHalter) {
        for (const Sitz s : alleSitze)
            if (spiel.deck.anzahl(s, kartencode(spiel.spieltyp, As)) == 2) {
                spiel.supersauHalter = s;
                break;
            }
    }

    Sitz aufspieler = spiel.vorhand;
    if (spiel.solo && spiel.regeln.vhSolo) {
        // A soloist taking the lead: the person at this machine also moves the game's
        // Vorhand on, a computer soloist leaves it; the next game's Vorhand differs on purpose.
        aufspieler = w;
        spiel.partie.gemerkteVorhand = spiel.vorhand.naechster();
        spiel.partie.soloVorhandMarke = true;
        if (istMensch(spiel, w)) {
            spiel.vorhand = *spiel.partie.gemerkteVorhand;
            spiel.partie.letzteVorhand = spiel.vorhand;
        }
    }
    spiel.stich.beginnen(aufspieler);
    return meldungen;
}

std::optional<Meldung> hochzeitKlaeren(Spiel& spiel) {
    if (!spiel.hochzeiter || spiel.hochzeitGeklaert || spiel.stiche.empty()) return std::nullopt;
    const Sitz h = *spiel.hochzeiter;
    const StichProtokoll& st = spiel.stiche.back();
    const bool trumpfGefuehrt = spiel.deck[st.karten[0]].farbe == spiel.spieltyp;
    const bool passt = spiel.hochzeitArt == ErsterStich || (spiel.hochzeitArt == ErsterFehlstich && !trumpfGefuehrt) ||
                       (spiel.hochzeitArt == ErsterTrumpfstich && trumpfGefuehrt);
    const std::string titel(vorbehalttext::TitelHochzeit);
    if (passt && st.gewinner != h) {
        spiel.hochzeitPartner = st.gewinner;
        spiel.partei[st.gewinner] = ParteiRe;
        spiel.hochzeitGeklaert = true;
        return Meldung{Meldungsart::Hochzeit,
                       titel,
                       wer(spiel, st.gewinner, "Sie sind der Partner der Hochzeit!", " ist der Partner der Hochzeit!"),
                       st.gewinner,
                       {}};
    }
    if (spiel.sticheGespielt >= 3) {
        spiel.partei[h] = ParteiSolo;
        spiel.hochzeitGeklaert = true;
        return Meldung{Meldungsart::Hochzeit, titel, wer(spiel, h, "Sie spielen allein!", " spielt allein!"), h, {}};
    }
    return std::nullopt;
}

}  // namespace engine

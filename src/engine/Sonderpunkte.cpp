#include "Sonderpunkte.h"

#include <algorithm>

namespace engine {

namespace {
constexpr int KaroAs = kartencode(Karo, As);
constexpr int KreuzBube = kartencode(Kreuz, Bube);
constexpr int Dolle = kartencode(Herz, Zehn);
constexpr int AugenDoppelkopf = 40;

// "Sie als Solospieler", "den Solospieler", "Sie", "die Re-Partei", "die Kontra-Partei".
std::string empfaenger(const Spiel& spiel, Sitz gewinner) {
    const bool mensch = spiel.steuerung[gewinner] == Steuerung::Mensch;
    if (spiel.partei[gewinner] == ParteiSolo) return mensch ? "Sie als Solospieler" : "den Solospieler";
    if (mensch) return "Sie";
    return seite(spiel, gewinner) == ParteiRe ? "die Re-Partei" : "die Kontra-Partei";
}

bool soloartig(const Spiel& spiel) {
    return std::any_of(spiel.partei.begin(), spiel.partei.end(), [](int p) { return p == ParteiSolo; });
}
}  // namespace

std::vector<Sonderpunkt> sonderpunkteDesStichs(const Spiel& spiel, int nr, std::vector<Meldung>* meldungen) {
    using namespace sonderpunkttext;
    std::vector<Sonderpunkt> punkte;
    const StichProtokoll& st = spiel.stiche[static_cast<std::size_t>(nr - 1)];
    const Sitz w = st.gewinner;
    const int wSeite = seite(spiel, w);
    const int gewinnPlatz = [&] {
        for (int i = 0; i < 4; ++i)
            if (st.aufspieler.plus(i) == w) return i;
        return 0;
    }();
    const Kartenposition& gewinnKarte = spiel.deck[st.karten[static_cast<std::size_t>(gewinnPlatz)]];

    auto finde = [&](std::string_view art, std::string_view text, int anzahl = 1) {
        for (int i = 0; i < anzahl; ++i) punkte.push_back({std::string(art), wSeite, nr});
        if (meldungen) {
            const std::string_view fuer = anzahl == 2 ? ZweiSonderpunkteFuer : SonderpunktFuer;
            meldungen->push_back({Meldungsart::Sonderpunkt,
                                  std::string(TitelSonderpunkt),
                                  std::string(text) + "\n" + std::string(fuer) + empfaenger(spiel, w),
                                  w,
                                  {}});
        }
    };

    const bool solo = soloartig(spiel);
    if (solo && !spiel.regeln.sopuRupaBSolo) return punkte;

    // Counts over the cards of the trick: Füchse and Dollen of the other side, Kreuz-Buben.
    int fremdeFuechse = 0, fuechse = 0, fremdeDollen = 0, dollen = 0, kreuzBuben = 0, herzFehl = 0;
    for (int i = 0; i < 4; ++i) {
        const Sitz s = st.aufspieler.plus(i);
        const Kartenposition& k = spiel.deck[st.karten[static_cast<std::size_t>(i)]];
        const bool fremd = seite(spiel, s) != wSeite;
        if (k.code == KaroAs && k.staerke != StaerkeJoker) {
            ++fuechse;
            if (fremd) ++fremdeFuechse;
        }
        if (k.code == Dolle && k.staerke == StaerkeDolle) {
            ++dollen;
            if (fremd) ++fremdeDollen;
        }
        if (k.code == KreuzBube) ++kreuzBuben;
        if (k.farbe == Herz && spiel.spieltyp != Herz) ++herzFehl;
    }

    const bool schweinGewinnt = gewinnKarte.code == KaroAs && gewinnKarte.staerke == StaerkeJoker;
    if (schweinGewinnt && dollen > 0) {
        if (meldungen)
            meldungen->push_back(
                {Meldungsart::Sonderpunkt, std::string(TitelSonderpunkt), std::string(SchweinSchlugDolle), w, {}});
        return punkte;
    }

    if (st.augen >= AugenDoppelkopf) finde(sonderpunktart::Doppelkopf, Doppelkopf);
    if (solo) return punkte;

    if (fremdeFuechse == 1) finde(sonderpunktart::FuchsGefangen, GefangenerFuchs);
    if (fremdeFuechse == 2) finde(sonderpunktart::FuchsGefangen, GefangeneFuechse, 2);

    const Regeln& r = spiel.regeln;
    if (r.sopuDollenschlag && fremdeDollen > 0) {
        if (gewinnKarte.code == Dolle)
            finde(sonderpunktart::Dullenschlag, GeschlageneDolle);
        else
            finde(sonderpunktart::DolleGefangen, GefangeneDolle, fremdeDollen);
    }
    if (r.sopuHerzstich && herzFehl == 4) finde(sonderpunktart::Herzstich, Herzstich);

    if (nr == spiel.deck.handgroesse()) {
        const bool fuchsGewinnt = gewinnKarte.code == KaroAs && gewinnKarte.staerke != StaerkeJoker;
        if (r.sopuKarlchen && gewinnKarte.code == KreuzBube) finde(sonderpunktart::Karlchen, Karlchen);
        if (r.sopuDoppelkarlchen && gewinnKarte.code == KreuzBube && kreuzBuben == 2)
            finde(sonderpunktart::Doppelkarlchen, Doppelkarlchen);
        if (r.sopuFuchs && fuchsGewinnt) finde(sonderpunktart::FuchsLetzterStich, FuchsImStich);
        if (r.sopuDoppelfuchs && fuchsGewinnt && fuechse == 2) finde(sonderpunktart::Doppelfuchs, ZweiFuechseImStich);
    }
    return punkte;
}

void sonderpunkteNeuBewerten(Spiel& spiel, int bisStich) {
    spiel.sonderpunkte.clear();
    for (int nr = 1; nr <= bisStich && nr <= static_cast<int>(spiel.stiche.size()); ++nr) {
        const auto punkte = sonderpunkteDesStichs(spiel, nr, nullptr);
        spiel.sonderpunkte.insert(spiel.sonderpunkte.end(), punkte.begin(), punkte.end());
    }
}

}  // namespace engine

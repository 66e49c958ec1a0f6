#include "Partiedatei.h"

#include <algorithm>
#include <optional>

#include "Partietexte.h"
#include "Zeilen.h"

namespace savegame {

using engine::Sitz;

// Where each group of the file lives in our state. One function (gruppen) walks
// the groups for writing and for reading, so the two cannot drift apart.
//
// No. Lines  Since  Our state
//  1     1     -    identification "RUPA-PARTIE26"
//  2     3     -    faktor, vorhand, spieltyp
//  3     4     -    partei per seat
//  4     4     -    regeln.joker, regeln.solo (Pflichtsolo), regeln.hhNSolo, partie.bock
//  5     4     -    solist, hochzeiter, hochzeitArt, hochzeitPartner (seats, 0 none)
//  6     8     -    per seat: parteiMarker, schweineGespielt
//  7     3     -    solo, pflichtsolo, hochzeitGeklaert
//  8     4     -    stichzahl per seat
//  9     2     -    stich.anzahl, stich.farbeZuBedienen
// 10   336     -    deck 1..48: code, status, marke, farbe, wert, staerke, augen
// 11    40     -    per seat: augen, reAngesagt, kontraAngesagt, partie.punkte, (0),
//                   deck position played to the current trick, its place 1..4 in
//                   the trick, (0), name, (0)
// 12     6     -    ablauf: phase, pruefung, pruefSitz, vorbehaltGefragt, hochzeitWunsch,
//                   hochzeitWunschArt
// 13     7     -    stich.aufspieler, stillerSolist, schweineHalter, limitSitz,
//                   sticheGespielt, limitCode, partie.geber
// 14     5     -    steuerung per seat (0 person, 1 computer, 2 network), automatik
// 15,16  176   -    (zeros)
// 17    49     -    ergebnis: gewertet, gewinner, augenRe, augenKontra, sticheRe,
//                   sticheKontra, spielwert, faktor, sonderpunkteGewinner,
//                   sonderpunkteVerlierer, ergebnis, kalterSchlag, umkehr, bock,
//                   buchungsPartei, punkteJeSitz, punkte per seat, limitEingehalten,
//                   partieEnde, then zeros
// 18     8     -    (zeros)
// 19     1     -    partie.spielNr
// 20-22  8     -    Tischanzeige: m_kontra_geben, m_unter, m_limit
// 23     7     -    regeln: herzZehn, joker, limit, kontra, bockrunden, sopuKarlchen, vhSolo
//                   (limit and kontra as their numbers: 0 off, else up to that trick)
// 24    96     -    ansagen in order, 32 rows: seat (0 ends the list),
//                   partei + 4 * limit + 8 * (limitCode + 1), trick
// 25     4     -    Tischanzeige: sitzAnzeige
// 26     1     -    spielbericht, the notes joined by tabs
// 27     1     -    Tischanzeige: partnerinfo2
// 28     1     -    ergebnis.text, the end box of a finished game (line breaks as tabs)
// 29     1     -    partie.partieNr
// 30   156     -    stiche 1..12: aufspieler (0 no trick), gewinner, codes by seat,
//                   deck positions by seat, augen, (0), (0)
// 31     2     -    regeln.endeBei, regeln.endeNach
// 32     1     1    regeln.vorhand
// 33    96     3    partie.spieltabelle, games 1..24, seat by seat
// 34     1     4    regeln.abrOption
// 35     1     5    sonderpunkte as "art|partei|stich" joined by ";"
// 36     2     6    partie.letzteVorhand, partie.gemerkteVorhand
// 37    64     7    (zeros)
// 38     1     8    partie.soloVorhandMarke
// 39     4    10    charakter per seat
// 40     4    20    partie.pflichtsoloGespielt per seat
// 41     2    20    supersauHalter, (0)
// 42    17    20    stored options (settings dialog), Sopu_Fuchs .. Stille_befoerderung
// 43    16    21    the same rules in force, 1 on / 0 off, without Sopu_karlchen
// 44   288    22    partie.spieltabelle, games 25..96
// 45    12    25    ansagenProStich 0..11: re + 2 * kontra + 4 * limitSitz + 32 * (limitCode + 1)
// 46     1    26    regeln.solis
// After reading, the deck size follows the Scharfer_Rupa rule in force.

namespace {

constexpr int Stichzeilen = 12;
constexpr int Ansagezeilen = 32;

// Values that the file keeps in another shape than our state.
struct Abbild {
    engine::ProSitz<int> positionImStich;
    engine::ProSitz<int> platzImStich;
    std::array<std::array<int, 13>, Stichzeilen> stiche{};
    std::array<std::array<int, 3>, Ansagezeilen> ansagen{};
    std::array<int, 12> ansagenProStich{};
    std::string sonderpunkte;
    std::string spielbericht;
    std::string endtext;
};

// The 17 options of groups 42 and 43, a stretch of the engine's rule table.
std::vector<const engine::RegelSchluessel*> sonderregeln() {
    std::vector<const engine::RegelSchluessel*> liste;
    bool drin = false;
    for (const auto& r : engine::regelSchluessel()) {
        drin = drin || r.schluessel == "Sopu_Fuchs";
        if (drin) liste.push_back(&r);
        if (r.schluessel == "Stille_befoerderung") break;
    }
    return liste;
}

class Schreiber {
public:
    int version() const { return Schreibversion; }
    void zahl(int& w) { z_.zahl(w); }
    void bereich(int& w, int, int) { z_.zahl(w); }
    template <class E>
    void aufzaehlung(E& w, int, int) {
        z_.zahl(static_cast<int>(w));
    }
    void wahr(bool& w) { z_.wahr(w); }
    void haken(bool& w) { z_.zahl(w ? 1 : 0); }
    void text(std::string& w) { z_.text(w); }
    void sitz(Sitz& s) { z_.zahl(s.nr()); }
    void sitz(std::optional<Sitz>& s) { z_.zahl(engine::nrOderNull(s)); }
    void leer(int zeilen = 1) {
        for (int i = 0; i < zeilen; ++i) z_.zahl(0);
    }
    std::string bytes() const { return z_.bytes(); }

private:
    Zeilenschreiber z_;
};

class Leser {
public:
    Leser(Zeilenleser& z, int version) : z_(z), version_(version) {}
    int version() const { return version_; }
    bool fehler() const { return ungueltig_ || z_.fehler(); }
    void zahl(int& w) { z_.zahl(w); }
    // Values our state cannot hold make the file damaged; everything else is taken as it stands.
    void bereich(int& w, int von, int bis) {
        int n = 0;
        if (!z_.zahl(n)) return;
        if (n < von || n > bis) ungueltig_ = true;
        else w = n;
    }
    template <class E>
    void aufzaehlung(E& w, int von, int bis) {
        int n = von - 1;
        bereich(n, von, bis);
        if (n >= von) w = static_cast<E>(n);
    }
    void wahr(bool& w) { z_.wahr(w); }
    void haken(bool& w) {
        int n = 0;
        if (z_.zahl(n)) w = n > 0;
    }
    void text(std::string& w) { z_.text(w); }
    void sitz(Sitz& s) {
        int n = 0;
        bereich(n, 1, 4);
        if (n != 0) s = Sitz(n);
    }
    void sitz(std::optional<Sitz>& s) {
        int n = -1;
        bereich(n, 0, 4);
        if (n >= 0) s = engine::sitzOderNichts(n);
    }
    void leer(int zeilen = 1) {
        std::string ignoriert;
        for (int i = 0; i < zeilen; ++i) z_.text(ignoriert);
    }
    void ungueltig() { ungueltig_ = true; }

private:
    Zeilenleser& z_;
    int version_;
    bool ungueltig_ = false;
};

int& tabellenwert(engine::Partiestand& p, int k) {
    return p.spieltabelle[static_cast<std::size_t>(k / 4)][Sitz(k % 4 + 1)];
}

template <class A>
void gruppen(A& a, Spielstand& stand, Abbild& b) {
    engine::Spiel& s = stand.spiel;
    engine::Regeln& r = s.regeln;
    engine::Partiestand& p = s.partie;
    Tischanzeige& t = stand.tisch;
    const int v = a.version();

    a.zahl(s.faktor);  // 2
    a.sitz(s.vorhand);
    a.bereich(s.spieltyp, 1, 8);
    for (const Sitz x : engine::alleSitze) a.bereich(s.partei[x], 0, 3);  // 3
    a.wahr(r.joker);  // 4
    a.wahr(r.solo);
    a.wahr(r.hhNSolo);
    a.wahr(p.bock);
    a.sitz(s.solist);  // 5
    a.sitz(s.hochzeiter);
    a.zahl(s.hochzeitArt);
    a.sitz(s.hochzeitPartner);
    for (const Sitz x : engine::alleSitze) {  // 6
        a.zahl(s.parteiMarker[x]);
        a.zahl(s.schweineGespielt[x]);
    }
    a.wahr(s.solo);  // 7
    a.wahr(s.pflichtsolo);
    a.wahr(s.hochzeitGeklaert);
    for (const Sitz x : engine::alleSitze) a.zahl(s.stichzahl[x]);  // 8
    a.bereich(s.stich.anzahl, 0, 4);  // 9
    a.bereich(s.stich.farbeZuBedienen, 0, 8);
    for (int pos = 1; pos <= engine::MaxPositionen; ++pos) {  // 10
        engine::Kartenposition& k = s.deck[pos];
        a.bereich(k.code, 0, 25);
        a.zahl(k.status);
        a.zahl(k.marke);
        a.bereich(k.farbe, 0, 8);
        a.zahl(k.wert);
        a.zahl(k.staerke);
        a.zahl(k.augen);
    }
    for (const Sitz x : engine::alleSitze) {  // 11
        a.zahl(s.augen[x]);
        a.wahr(s.reAngesagt[x]);
        a.wahr(s.kontraAngesagt[x]);
        a.zahl(p.punkte[x]);
        a.leer();
        a.bereich(b.positionImStich[x], 0, engine::MaxPositionen);
        a.bereich(b.platzImStich[x], 0, 4);
        a.leer();
        a.text(s.namen[x]);
        a.leer();
    }
    a.aufzaehlung(s.ablauf.phase, 0, 6);  // 12
    a.zahl(s.ablauf.pruefung);
    a.bereich(s.ablauf.pruefSitz, 0, 4);
    a.bereich(s.ablauf.vorbehaltGefragt, 0, 4);
    a.sitz(s.ablauf.hochzeitWunsch);
    a.zahl(s.ablauf.hochzeitWunschArt);
    a.sitz(s.stich.aufspieler);  // 13
    a.sitz(s.stillerSolist);
    a.sitz(s.schweineHalter);
    a.sitz(s.limitSitz);
    a.bereich(s.sticheGespielt, 0, 12);
    a.bereich(s.limitCode, -1, 3);
    a.zahl(p.geber);
    for (const Sitz x : engine::alleSitze) a.aufzaehlung(s.steuerung[x], 0, 2);  // 14
    a.wahr(s.automatik);
    a.leer(112 + 64);  // 15, 16
    engine::Spielergebnis& erg = s.ergebnis;  // 17
    a.wahr(erg.gewertet);
    for (int* w : {&erg.gewinner, &erg.augenRe, &erg.augenKontra, &erg.sticheRe, &erg.sticheKontra, &erg.spielwert, &erg.faktor,
                   &erg.sonderpunkteGewinner, &erg.sonderpunkteVerlierer, &erg.ergebnis}) {
        a.zahl(*w);
    }
    a.wahr(erg.kalterSchlag);
    a.wahr(erg.umkehr);
    a.wahr(erg.bock);
    a.zahl(erg.buchungsPartei);
    a.zahl(erg.punkteJeSitz);
    for (const Sitz x : engine::alleSitze) a.zahl(erg.punkte[x]);
    a.zahl(erg.limitEingehalten);
    a.wahr(erg.partieEnde);
    a.leer(49 - 22);
    a.leer(8);  // 18
    a.zahl(p.spielNr);  // 19
    a.wahr(t.kontraGebenAktiv);  // 20
    a.text(t.kontraGebenText);
    for (bool& haken : t.unterHaken) a.wahr(haken);  // 21
    a.wahr(t.limitAktiv);  // 22
    a.text(t.limitText);
    a.wahr(r.herzZehn);  // 23
    a.wahr(r.joker);
    a.zahl(r.limit);
    a.zahl(r.kontra);
    a.wahr(r.bockrunden);
    a.wahr(r.sopuKarlchen);
    a.wahr(r.vhSolo);
    for (auto& zeile : b.ansagen) {  // 24
        for (int& wert : zeile) a.zahl(wert);
    }
    for (int& wert : t.sitzAnzeige) a.zahl(wert);  // 25
    a.text(b.spielbericht);  // 26
    a.wahr(t.partnerinfo2Sichtbar);  // 27
    a.text(b.endtext);  // 28
    a.zahl(p.partieNr);  // 29
    for (auto& zeile : b.stiche) {  // 30
        for (int& wert : zeile) a.zahl(wert);
    }
    a.zahl(r.endeBei);  // 31
    a.zahl(r.endeNach);
    if (v >= 1) a.zahl(r.vorhand);  // 32
    if (v >= 3) {  // 33
        for (int k = 0; k < 96; ++k) a.zahl(tabellenwert(p, k));
    }
    if (v >= 4) a.zahl(r.abrOption);  // 34
    if (v >= 5) a.text(b.sonderpunkte);  // 35
    else b.sonderpunkte.clear();
    // 36, held twice by versions 6 to 8; the second pair wins
    for (int mal = 0; mal < (v >= 6 && v <= 8 ? 2 : v >= 6 ? 1 : 0); ++mal) {
        a.sitz(p.letzteVorhand);
        a.sitz(p.gemerkteVorhand);
    }
    if (v >= 7) a.leer(64);  // 37
    if (v >= 8) a.wahr(p.soloVorhandMarke);  // 38
    if (v >= 10) {  // 39
        for (const Sitz x : engine::alleSitze) a.bereich(s.charakter[x], 0, 9);
    }
    if (v >= 20) {  // 40, 41
        for (const Sitz x : engine::alleSitze) a.wahr(p.pflichtsoloGespielt[x]);
        a.sitz(s.supersauHalter);
        a.leer();
    }
    static const auto regeln17 = sonderregeln();
    if (v >= 20) {  // 42
        for (const auto* e : regeln17) a.zahl(stand.optionen.*(e->gespeichert));
    }
    if (v >= 21) {  // 43
        for (const auto* e : regeln17) {
            if (e->schluessel != "Sopu_karlchen") a.haken(r.*(e->schalter));
        }
    }
    if (v >= 22) {  // 44
        for (int k = 96; k < 384; ++k) a.zahl(tabellenwert(p, k));
    }
    if (v >= 25) {  // 45
        for (int& wert : b.ansagenProStich) a.zahl(wert);
    }
    if (v >= 26) a.wahr(r.solis);  // 46
}

// --- From our state into the file's shapes and back.

int ansageSchluessel(const engine::AnsageEintrag& e) {
    return e.partei + 4 * (e.limit ? 1 : 0) + 8 * (e.limitCode + 1);
}

int stichAnsagenSchluessel(const engine::AnsagenImStich& a) {
    return (a.re ? 1 : 0) + (a.kontra ? 2 : 0) + 4 * a.limitSitz + 32 * (a.limitCode + 1);
}

std::string sonderpunkteText(const std::vector<engine::Sonderpunkt>& liste) {
    std::string text;
    for (const auto& sp : liste) {
        if (!text.empty()) text += ';';
        text += sp.art + '|' + std::to_string(sp.partei) + '|' + std::to_string(sp.stich);
    }
    return text;
}

std::optional<std::vector<engine::Sonderpunkt>> sonderpunkteAus(const std::string& text) {
    std::vector<engine::Sonderpunkt> liste;
    std::size_t anfang = 0;
    while (anfang < text.size()) {
        auto ende = text.find(';', anfang);
        if (ende == std::string::npos) ende = text.size();
        const std::string eintrag = text.substr(anfang, ende - anfang);
        anfang = ende + 1;
        const auto s1 = eintrag.find('|');
        const auto s2 = eintrag.find('|', s1 == std::string::npos ? s1 : s1 + 1);
        if (s2 == std::string::npos) return std::nullopt;
        engine::Sonderpunkt sp;
        sp.art = eintrag.substr(0, s1);
        try {
            sp.partei = std::stoi(eintrag.substr(s1 + 1, s2 - s1 - 1));
            sp.stich = std::stoi(eintrag.substr(s2 + 1));
        } catch (...) {
            return std::nullopt;
        }
        liste.push_back(sp);
    }
    return liste;
}

Abbild abbildVon(const Spielstand& stand) {
    const engine::Spiel& s = stand.spiel;
    Abbild b;
    for (const Sitz x : engine::alleSitze) {
        const int platz = s.stich.platz[x];
        b.platzImStich[x] = platz;
        b.positionImStich[x] = platz >= 1 && platz <= 4 ? s.stich.karte(platz) : 0;
    }
    for (std::size_t i = 0; i < s.stiche.size() && i < b.stiche.size(); ++i) {
        const engine::StichProtokoll& st = s.stiche[i];
        auto& zeile = b.stiche[i];
        zeile[0] = st.aufspieler.nr();
        zeile[1] = st.gewinner.nr();
        for (int k = 0; k < 4; ++k) {
            const auto seatIndex = static_cast<std::size_t>(st.aufspieler.plus(k).nr() - 1);
            zeile[2 + seatIndex] = st.codes[static_cast<std::size_t>(k)];
            zeile[6 + seatIndex] = st.karten[static_cast<std::size_t>(k)];
        }
        zeile[10] = st.augen;
    }
    for (std::size_t i = 0; i < s.ansagen.size() && i < b.ansagen.size(); ++i) {
        const auto& e = s.ansagen[i];
        b.ansagen[i] = {e.sitz.nr(), ansageSchluessel(e), e.stich};
    }
    for (std::size_t i = 0; i < b.ansagenProStich.size(); ++i) {
        b.ansagenProStich[i] = stichAnsagenSchluessel(s.ansagenProStich[i]);
    }
    b.sonderpunkte = sonderpunkteText(s.sonderpunkte);
    for (const auto& notiz : s.spielbericht) b.spielbericht += (b.spielbericht.empty() ? "" : "\t") + notiz;
    b.endtext = s.ergebnis.text;
    std::replace(b.endtext.begin(), b.endtext.end(), '\n', '\t');
    return b;
}

bool abbildAnwenden(const Abbild& b, int version, Spielstand& stand) {
    engine::Spiel& s = stand.spiel;
    s.stich.karten.fill(0);
    for (const Sitz x : engine::alleSitze) {
        const int platz = b.platzImStich[x];
        s.stich.platz[x] = platz;
        if (platz >= 1) s.stich.karten[static_cast<std::size_t>(platz - 1)] = b.positionImStich[x];
    }

    s.stiche.clear();
    for (auto zeile : b.stiche) {
        if (zeile[0] == 0) break;
        if (version <= 23) {
            // The card columns held deck positions then.
            for (int k = 0; k < 4; ++k) {
                const int pos = zeile[static_cast<std::size_t>(2 + k)];
                if (pos < 0 || pos > engine::MaxPositionen) return false;
                zeile[static_cast<std::size_t>(6 + k)] = pos;
                if (pos > 0) zeile[static_cast<std::size_t>(2 + k)] = s.deck[pos].code;
            }
        }
        if (zeile[0] < 1 || zeile[0] > 4 || zeile[1] < 1 || zeile[1] > 4) return false;
        engine::StichProtokoll st;
        st.aufspieler = Sitz(zeile[0]);
        st.gewinner = Sitz(zeile[1]);
        for (int k = 0; k < 4; ++k) {
            const auto seatIndex = static_cast<std::size_t>(st.aufspieler.plus(k).nr() - 1);
            const int code = zeile[2 + seatIndex];
            const int pos = zeile[6 + seatIndex];
            if (code < 0 || code > 25 || pos < 0 || pos > engine::MaxPositionen) return false;
            st.codes[static_cast<std::size_t>(k)] = code;
            st.karten[static_cast<std::size_t>(k)] = pos;
        }
        st.augen = zeile[10];
        s.stiche.push_back(st);
    }

    s.ansagen.clear();
    for (const auto& zeile : b.ansagen) {
        if (zeile[0] == 0) break;
        if (zeile[0] < 1 || zeile[0] > 4 || zeile[1] < 0) return false;
        engine::AnsageEintrag e;
        e.sitz = Sitz(zeile[0]);
        e.partei = zeile[1] % 4;
        e.limit = (zeile[1] / 4) % 2 == 1;
        e.limitCode = zeile[1] / 8 - 1;
        e.stich = zeile[2];
        if (e.limitCode > 3) return false;
        s.ansagen.push_back(e);
    }

    for (std::size_t i = 0; i < b.ansagenProStich.size(); ++i) {
        const int w = b.ansagenProStich[i];
        engine::AnsagenImStich a;
        a.re = (w & 1) != 0;
        a.kontra = (w & 2) != 0;
        a.limitSitz = (w / 4) % 8;
        a.limitCode = w / 32 - 1;
        if (w < 0 || a.limitSitz > 4 || a.limitCode > 3) return false;
        s.ansagenProStich[i] = a;
    }

    auto sonderpunkte = sonderpunkteAus(b.sonderpunkte);
    if (!sonderpunkte) return false;
    s.sonderpunkte = std::move(*sonderpunkte);
    s.spielbericht.clear();
    for (std::size_t a = 0; a < b.spielbericht.size();) {
        const auto e = std::min(b.spielbericht.find('\t', a), b.spielbericht.size());
        s.spielbericht.push_back(b.spielbericht.substr(a, e - a));
        a = e + 1;
    }
    s.ergebnis.text = b.endtext;
    std::replace(s.ergebnis.text.begin(), s.ergebnis.text.end(), '\t', '\n');
    return true;
}

// The version from the last two characters of the first line, taken by their
// leading digits (a text without digits counts as 0).
int versionAus(std::string_view kopf) {
    const std::string_view ende = kopf.size() >= 2 ? kopf.substr(kopf.size() - 2) : kopf;
    int version = 0;
    for (const char c : ende) {
        if (c < '0' || c > '9') break;
        version = version * 10 + (c - '0');
    }
    return version;
}

}  // namespace

std::string partieSchreiben(const Spielstand& stand) {
    Spielstand kopie = stand;
    Abbild b = abbildVon(kopie);
    Schreiber schreiber;
    std::string kennung = std::string(texte::Kennung) + std::to_string(Schreibversion);
    Zeilenschreiber kopf;
    kopf.text(kennung);
    gruppen(schreiber, kopie, b);
    return kopf.bytes() + schreiber.bytes();
}

Leseergebnis partieLesen(std::string_view bytes, Spielstand& ziel) {
    Zeilenleser zeilen(bytes);
    std::string kopf;
    if (!zeilen.text(kopf) || !kopf.starts_with(texte::Kennung)) return {Ergebnis::KeineSpieldatei, 0, false};
    const auto anfang = kopf.find_first_not_of(" \t");
    kopf = kopf.substr(anfang, kopf.find_last_not_of(" \t") - anfang + 1);
    const int version = versionAus(kopf);
    if (version < AeltesteLesbareVersion) return {Ergebnis::Fehlgeschlagen, version, true};

    Spielstand stand = ziel;
    Abbild b = abbildVon(stand);
    Leser leser(zeilen, version);
    gruppen(leser, stand, b);
    if (leser.fehler() || !abbildAnwenden(b, version, stand)) return {Ergebnis::Fehlgeschlagen, version, false};
    if (version <= 24) {
        for (auto& a : stand.spiel.ansagenProStich) a = engine::AnsagenImStich{};
    }

    const int karten = stand.spiel.regeln.scharferRupa ? 40 : 48;
    stand.spiel.regeln.kartenanzahl = karten;
    stand.spiel.deck.setzeKartenanzahl(karten);
    if (stand.spiel.sticheGespielt > karten / 4 || static_cast<int>(stand.spiel.stiche.size()) > karten / 4) {
        return {Ergebnis::Fehlgeschlagen, version, false};
    }
    ziel = std::move(stand);
    return {Ergebnis::Erfolg, version, false};
}

}  // namespace savegame

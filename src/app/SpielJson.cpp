#include "SpielJson.h"

#include <cstdio>

namespace app {

using engine::Sitz;

namespace {

// Appends comma-separated items.
class Liste {
public:
    explicit Liste(std::string& aus, char auf, char zu) : aus_(aus), zu_(zu) { aus_ += auf; }
    ~Liste() { aus_ += zu_; }
    Liste(const Liste&) = delete;
    Liste& operator=(const Liste&) = delete;
    std::string& naechstes() {
        if (!erstes_) aus_ += ',';
        erstes_ = false;
        return aus_;
    }
    std::string& feld(const char* name) { return naechstes() += jsonText(name) += ':'; }

private:
    std::string& aus_;
    char zu_;
    bool erstes_ = true;
};

std::string zahl(int n) { return std::to_string(n); }
std::string wahr(bool b) { return b ? "true" : "false"; }

}  // namespace

std::string jsonText(const std::string& text) {
    std::string t = "\"";
    for (const char c : text) {
        switch (c) {
            case '"': t += "\\\""; break;
            case '\\': t += "\\\\"; break;
            case '\n': t += "\\n"; break;
            case '\r': t += "\\r"; break;
            case '\t': t += "\\t"; break;
            default:
                if (static_cast<unsigned char>(c) < 0x20) {
                    char puffer[8];
                    std::snprintf(puffer, sizeof puffer, "\\u%04x",
                                  static_cast<unsigned>(static_cast<unsigned char>(c)));
                    t += puffer;
                } else {
                    t += c;
                }
        }
    }
    return t + "\"";
}

std::string spielAlsJson(const engine::Spiel& spiel) {
    using namespace engine;
    const Spielergebnis& e = spiel.ergebnis;
    std::string j;
    {
        Liste o(j, '{', '}');
        o.feld("partie") += zahl(spiel.partie.partieNr);
        o.feld("spiel") += zahl(spiel.partie.spielNr);
        o.feld("vorhand") += zahl(spiel.vorhand.nr());
        o.feld("spieltyp") += zahl(spiel.spieltyp);
        o.feld("solist") += zahl(nrOderNull(spiel.solist));
        o.feld("stilles_solo") += zahl(nrOderNull(spiel.stillerSolist));
        o.feld("hochzeit") += zahl(nrOderNull(spiel.hochzeiter));
        o.feld("hochzeit_partner") += zahl(nrOderNull(spiel.hochzeitPartner));
        o.feld("schweine") += zahl(nrOderNull(spiel.schweineHalter));
        {
            Liste r(o.feld("regeln"), '{', '}');
            for (const auto& eintrag : regelSchluessel())
                r.feld(std::string(eintrag.schluessel).c_str()) += zahl(regelWert(spiel.regeln, eintrag));
        }
        {
            Liste k(o.feld("karten"), '[', ']');
            for (int p = 1; p <= MaxPositionen; ++p) k.naechstes() += zahl(spiel.deck[p].code);
        }
        {
            Liste stiche(o.feld("stiche"), '[', ']');
            int nr = 0;
            for (const StichProtokoll& st : spiel.stiche) {
                Liste s(stiche.naechstes(), '{', '}');
                s.feld("nr") += zahl(++nr);
                s.feld("aufspieler") += zahl(st.aufspieler.nr());
                {
                    Liste karten(s.feld("karten"), '[', ']');
                    for (int i = 0; i < 4; ++i) {
                        Liste k(karten.naechstes(), '{', '}');
                        k.feld("sitz") += zahl(st.aufspieler.plus(i).nr());
                        k.feld("pos") += zahl(st.karten[static_cast<std::size_t>(i)]);
                        k.feld("code") += zahl(st.codes[static_cast<std::size_t>(i)]);
                    }
                }
                s.feld("gewinner") += zahl(st.gewinner.nr());
                s.feld("augen") += zahl(st.augen);
            }
        }
        {
            Liste ansagen(o.feld("ansagen"), '[', ']');
            for (const AnsageEintrag& a : spiel.ansagen) {
                Liste x(ansagen.naechstes(), '{', '}');
                x.feld("sitz") += zahl(a.sitz.nr());
                x.feld("art") += jsonText(a.limit ? "Limit" : a.partei == ParteiRe ? "Re" : "Kontra");
                x.feld("limit") += a.limit ? zahl(a.limitCode) : "null";
                x.feld("stich") += zahl(a.stich);
            }
        }
        {
            Liste p(o.feld("partei"), '[', ']');
            for (const Sitz s : alleSitze) p.naechstes() += zahl(spiel.partei[s]);
        }
        o.feld("augen_re") += zahl(e.augenRe);
        o.feld("augen_kontra") += zahl(e.augenKontra);
        o.feld("gewinner") += jsonText(e.gewinner == ParteiRe ? "Re" : "Kontra");
        o.feld("spielwert") += zahl(e.spielwert);
        o.feld("faktor") += zahl(e.faktor);
        {
            Liste sp(o.feld("sonderpunkte"), '[', ']');
            for (const Sonderpunkt& p : spiel.sonderpunkte) {
                Liste x(sp.naechstes(), '{', '}');
                x.feld("art") += jsonText(p.art);
                x.feld("partei") += zahl(p.partei);
                x.feld("stich") += zahl(p.stich);
            }
        }
        {
            Liste p(o.feld("punkte"), '[', ']');
            for (const Sitz s : alleSitze) p.naechstes() += zahl(e.punkte[s]);
        }
        {
            Liste p(o.feld("stand"), '[', ']');
            for (const Sitz s : alleSitze) p.naechstes() += zahl(spiel.partie.punkte[s]);
        }
        o.feld("bock") += wahr(e.bock);
        o.feld("kalter_schlag") += wahr(e.kalterSchlag);
        o.feld("umkehr") += wahr(e.umkehr);
        o.feld("partieende") += wahr(e.partieEnde);
        o.feld("text") += jsonText(e.text);
    }
    return j;
}

}  // namespace app

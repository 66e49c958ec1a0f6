#include "Foyersitzung.h"

#include <algorithm>
#include <utility>

#include "Anmeldung.h"
#include "Foyertexte.h"
#include "Kanal.h"

namespace foyer {

namespace {

constexpr std::int64_t ChatePause = 60'000;  // ms between two automatic answers to one sender
constexpr std::size_t MaxChateEmpfaenger = 256;
constexpr std::size_t MaxListenImAufbau = 50;
constexpr std::size_t MaxNamesZeile = 400;

std::string klein(std::string_view text) {
    std::string k(text);
    for (char& c : k)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return k;
}

bool enthaelt(const std::vector<std::string>& liste, std::string_view nick) {
    return std::any_of(liste.begin(), liste.end(), [&](const std::string& n) { return gleicherNick(n, nick); });
}

bool entfernen(std::vector<std::string>& liste, std::string_view nick) {
    const auto alt = liste.size();
    std::erase_if(liste, [&](const std::string& n) { return gleicherNick(n, nick); });
    return liste.size() != alt;
}

}  // namespace

Foyersitzung::Foyersitzung(std::string raum) : foyerkanal_(kanalname(raum)) {}

void Foyersitzung::anmelden(std::string_view name, std::string_view kennung) {
    name_ = std::string(name);
    nick_ = nickAusName(name);
    stand_ = Anmeldestand::Wartet;
    puffer_.leeren();
    foyer_.clear();
    tischkanaele_.clear();
    namensAufbau_.clear();
    angebote_.clear();
    for (const auto& zeile : anmeldezeilen(kennung, nick_)) senden(zeile);
}

void Foyersitzung::senden(std::string text) { ausgang_.push_back(sendezeile(text)); }

std::vector<std::string> Foyersitzung::ausgangNehmen() { return std::exchange(ausgang_, {}); }

std::vector<Ereignis> Foyersitzung::ereignisseNehmen() { return std::exchange(ereignisse_, {}); }

void Foyersitzung::empfangen(std::string_view bytes, std::int64_t jetztMs) {
    listenGeaendert_ = false;
    for (const std::string& zeile : puffer_.anhaengen(bytes)) {
        // A line that mentions a join or a table makes the lists worth asking for again.
        if (zeile.find("JOIN") != std::string::npos || zeile.find(TinfoWort) != std::string::npos ||
            zeile.find(TretWort) != std::string::npos)
            auffrischen_ = true;
        if (const auto z = zeileLesen(zeile)) zeileAuswerten(*z, jetztMs);
    }
    if (listenGeaendert_) ereignis({Ereignis::Art::ListenGeaendert, {}, {}, {}, 0});
    if (auffrischen_ && stand_ == Anmeldestand::Angemeldet) {
        auffrischen_ = false;
        takt_.anfordern();
        namenAnfragen();
    }
}

void Foyersitzung::tick() {
    if (stand_ != Anmeldestand::Angemeldet) return;
    takt_.tick();
    namenAnfragen();
}

void Foyersitzung::namenAnfragen() {
    std::set<int> nummern;
    for (const auto& [n, liste] : tischkanaele_) nummern.insert(n);
    for (const auto& [n, angebot] : angebote_) nummern.insert(n);
    std::vector<int> reihe(nummern.begin(), nummern.end());
    std::string zeile = "NAMES " + foyerkanal_;
    // Many tables do not fit one line; each tick goes on where the last stopped.
    for (std::size_t i = 0; i < reihe.size() && zeile.size() < MaxNamesZeile; ++i)
        zeile += "," + tischkanal(reihe[(namensRunde_ + i) % reihe.size()]);
    namensRunde_ = reihe.empty() ? 0 : namensRunde_ + 1;
    senden(zeile);
}

void Foyersitzung::zeileAuswerten(const Irczeile& z, std::int64_t jetztMs) {
    const std::string& b = z.befehl;
    if (b == "PING") {
        senden("PONG :" + z.param(0));
        return;
    }
    if (stand_ == Anmeldestand::Wartet) {
        const bool mitNick = std::any_of(z.parameter.begin(), z.parameter.end(), [&](const std::string& p) { return istIch(p); });
        if (b == "001" && mitNick) {
            stand_ = Anmeldestand::Angemeldet;
            for (const auto& zeile : foyerBetreten(foyerkanal_)) senden(zeile);
            ereignis({Ereignis::Art::Angemeldet, {}, {}, {}, 0});
        } else if ((b == "432" || b == "433" || b == "436" || b == "437") && mitNick) {
            stand_ = Anmeldestand::Abgelehnt;
            ereignis({Ereignis::Art::NameAbgelehnt, {}, {}, texte::nameVergeben(name_), 0});
        }
        return;
    }
    if (stand_ != Anmeldestand::Angemeldet) return;
    if (b == "PRIVMSG") {
        privmsg(z, jetztMs);
    } else if (b == "353") {
        namensliste(z);
    } else if (b == "366") {
        namenslisteFertig(z.param(1));
    } else if (b == "322") {
        if (const auto n = tischnummer(z.param(1)); n && z.param(2) != "0") tischkanalMerken(*n);
    } else if (b == "401") {
        const std::string& wer = z.param(1);
        ereignis({Ereignis::Art::Systemzeile, {}, wer, texte::systemzeile(texte::nichtMehrAngemeldet(wer)), 0});
    } else if (b == "JOIN") {
        beitreten(z.param(0), z.absender);
    } else if (b == "PART") {
        verlassen(z.param(0), z.absender);
    } else if (b == "KICK") {
        verlassen(z.param(0), z.param(1));
    } else if (b == "QUIT") {
        gegangen(z.absender);
    } else if (b == "NICK") {
        umbenennen(z.absender, z.param(0));
    }
}

void Foyersitzung::privmsg(const Irczeile& z, std::int64_t jetztMs) {
    const std::string& ziel = z.param(0);
    const std::string& text = z.param(1);
    const std::string& von = z.absender;
    if (von.empty() || text.empty() || text.front() == '\x01') return;  // CTCP gets no answer
    if (istSteuerwort(text)) {
        if (istChate(text) && istIch(ziel))
            ereignis({Ereignis::Art::Systemzeile, {}, von, texte::systemzeile(chateAnzeige(text)), 0});
        else
            steuerwort(von, text);
        return;
    }
    if (gleicherNick(ziel, foyerkanal_)) {
        ereignis({Ereignis::Art::FoyerChat, von, {}, anzeigetext(text), 0});
    } else if (istIch(ziel)) {
        ereignis({Ereignis::Art::PrivatChat, von, von, anzeigetext(text), 0});
        if (nichtErreichbar_) automatischAntworten(von, jetztMs);
    }
}

void Foyersitzung::automatischAntworten(const std::string& von, std::int64_t jetztMs) {
    const std::string schluessel = klein(von);
    const auto alt = chateGesendet_.find(schluessel);
    if (alt != chateGesendet_.end() && jetztMs - alt->second < ChatePause) return;
    if (alt == chateGesendet_.end() && chateGesendet_.size() >= MaxChateEmpfaenger) {
        std::erase_if(chateGesendet_, [&](const auto& e) { return jetztMs - e.second >= ChatePause; });
        if (chateGesendet_.size() >= MaxChateEmpfaenger) return;  // a flood of strangers gets silence
    }
    chateGesendet_[schluessel] = jetztMs;
    senden("PRIVMSG " + von + " :" + chateText(nick_));
}

void Foyersitzung::steuerwort(const std::string& von, std::string_view text) {
    if (istIch(von)) return;
    if (const auto angebot = tinfoLesen(text)) {
        const int n = angebot->nummer;
        const auto alt = angebote_.find(n);
        // A table stays with the owner who announced it while he sits in its channel.
        if (alt != angebote_.end() && !gleicherNick(alt->second.first, von) && mitglied(n, alt->second.first)) return;
        if (eigen_ && eigen_->angesagt && eigen_->angebot.nummer == n) return;
        if (alt == angebote_.end() && angebote_.size() >= MaxTische) return;
        angebote_[n] = {von, *angebot};
        tischkanalMerken(n);
        listenGeaendert_ = true;
    } else if (const auto n = tretLesen(text)) {
        const auto alt = angebote_.find(*n);
        if (alt != angebote_.end() && gleicherNick(alt->second.first, von)) {
            angebote_.erase(alt);
            listenGeaendert_ = true;
        }
    }
}

std::vector<std::string>* Foyersitzung::liste(std::string_view kanal) {
    if (gleicherNick(kanal, foyerkanal_)) return &foyer_;
    const auto n = tischnummer(kanal);
    if (!n) return nullptr;
    tischkanalMerken(*n);
    const auto it = tischkanaele_.find(*n);
    return it == tischkanaele_.end() ? nullptr : &it->second;
}

void Foyersitzung::tischkanalMerken(int nummer) {
    if (tischkanaele_.size() < MaxTische) tischkanaele_.try_emplace(nummer);
}

bool Foyersitzung::mitglied(int tisch, std::string_view nick) const {
    const auto it = tischkanaele_.find(tisch);
    return it != tischkanaele_.end() && enthaelt(it->second, nick);
}

void Foyersitzung::namensliste(const Irczeile& z) {
    if (z.parameter.size() < 2) return;
    const std::string& kanal = z.parameter[z.parameter.size() - 2];
    if (!gleicherNick(kanal, foyerkanal_) && !tischnummer(kanal)) return;
    const std::string schluessel = klein(kanal);
    if (!namensAufbau_.contains(schluessel) && namensAufbau_.size() >= MaxListenImAufbau) return;
    auto& aufbau = namensAufbau_[schluessel];
    std::string_view namen = z.parameter.back();
    while (!namen.empty()) {
        const auto ende = namen.find(' ');
        std::string_view nick = namen.substr(0, ende);
        namen = ende == std::string_view::npos ? std::string_view() : namen.substr(ende + 1);
        while (!nick.empty() && std::string_view("@+%~&!").find(nick.front()) != std::string_view::npos)
            nick.remove_prefix(1);
        if (!nick.empty() && aufbau.size() < MaxMitglieder && !enthaelt(aufbau, nick)) aufbau.emplace_back(nick);
    }
}

void Foyersitzung::namenslisteFertig(const std::string& kanal) {
    std::vector<std::string> neu;
    if (const auto it = namensAufbau_.find(klein(kanal)); it != namensAufbau_.end()) {
        neu = std::move(it->second);
        namensAufbau_.erase(it);
    }
    const auto n = tischnummer(kanal);
    if (!n && !gleicherNick(kanal, foyerkanal_)) return;
    if (!n) {
        if (neu != foyer_) listenGeaendert_ = true;
        foyer_ = std::move(neu);
        return;
    }
    if (neu.empty()) {
        const bool weg = tischkanaele_.erase(*n) + angebote_.erase(*n) > 0;
        listenGeaendert_ = listenGeaendert_ || weg;
    } else {
        std::vector<std::string>* alt = liste(kanal);
        if (alt && *alt != neu) {
            *alt = neu;
            listenGeaendert_ = true;
        }
        if (const auto a = angebote_.find(*n); a != angebote_.end() && !enthaelt(neu, a->second.first)) {
            angebote_.erase(a);
            listenGeaendert_ = true;
        }
    }
    if (!eigen_ || eigen_->angesagt || eigen_->angebot.nummer != *n || !enthaelt(neu, nick_)) return;
    if (neu.size() == 1) {
        eigen_->angesagt = true;
        senden("PRIVMSG " + foyerkanal_ + " :" + tinfoText(eigen_->angebot));
        ereignis({Ereignis::Art::TischEroeffnet, {}, {}, {}, *n});
        listenGeaendert_ = true;
    } else {  // someone else sits in this channel already: the next number
        senden("PART " + tischkanal(*n));
        eigen_->versucht.insert(*n);
        eigenenTischVersuchen();
    }
}

void Foyersitzung::beitreten(const std::string& kanal, const std::string& nick) {
    std::vector<std::string>* l = liste(kanal);
    if (!l || nick.empty()) return;
    if (!enthaelt(*l, nick) && l->size() < MaxMitglieder) {
        l->push_back(nick);
        listenGeaendert_ = true;
    }
    // A newcomer in the foyer learns about our table at once.
    if (l == &foyer_ && !istIch(nick) && eigen_ && eigen_->angesagt)
        senden("PRIVMSG " + nick + " :" + tinfoText(eigen_->angebot));
}

void Foyersitzung::verlassen(const std::string& kanal, const std::string& nick) {
    std::vector<std::string>* l = liste(kanal);
    if (!l) return;
    if (istIch(nick)) {
        l->clear();
        listenGeaendert_ = true;
    } else if (entfernen(*l, nick)) {
        listenGeaendert_ = true;
    }
    const auto n = tischnummer(kanal);
    if (const auto a = n ? angebote_.find(*n) : angebote_.end(); a != angebote_.end() && gleicherNick(a->second.first, nick))
        angebote_.erase(a);
}

void Foyersitzung::gegangen(const std::string& nick) {
    if (nick.empty() || istIch(nick)) return;
    const bool imFoyer = entfernen(foyer_, nick);
    for (auto& [n, l] : tischkanaele_) entfernen(l, nick);
    std::erase_if(angebote_, [&](const auto& a) { return gleicherNick(a.second.first, nick); });
    listenGeaendert_ = true;
    if (imFoyer) ereignis({Ereignis::Art::Systemzeile, {}, {}, texte::systemzeile(texte::nichtMehrAngemeldet(nick)), 0});
}

void Foyersitzung::umbenennen(const std::string& alt, const std::string& neu) {
    if (alt.empty() || neu.empty()) return;
    if (istIch(alt)) nick_ = neu;
    auto ersetzen = [&](std::vector<std::string>& l) {
        for (auto& n : l)
            if (gleicherNick(n, alt)) n = neu;
    };
    ersetzen(foyer_);
    for (auto& [n, l] : tischkanaele_) ersetzen(l);
    for (auto& [n, a] : angebote_)
        if (gleicherNick(a.first, alt)) a.first = neu;
    listenGeaendert_ = true;
}

void Foyersitzung::foyerChatSenden(std::string_view text) {
    const std::string sauber = anzeigetext(text);
    if (stand_ != Anmeldestand::Angemeldet || sauber.empty()) return;
    senden("PRIVMSG " + foyerkanal_ + " :" + sauber);
    ereignis({Ereignis::Art::FoyerChat, nick_, {}, sauber, 0});
}

void Foyersitzung::privatSenden(std::string_view nick, std::string_view text) {
    const std::string sauber = anzeigetext(text);
    if (stand_ != Anmeldestand::Angemeldet || sauber.empty() || nick.empty() || nick.find(' ') != std::string_view::npos)
        return;
    senden("PRIVMSG " + std::string(nick) + " :" + sauber);
    ereignis({Ereignis::Art::PrivatChat, nick_, std::string(nick), sauber, 0});
}

void Foyersitzung::tischEroeffnen(std::string adresse, int port, int frei, std::string regeln) {
    if (eigen_ || stand_ != Anmeldestand::Angemeldet) return;
    eigen_ = EigenerTisch{{0, std::move(adresse), port, frei, std::move(regeln)}, false, {}};
    eigenenTischVersuchen();
}

void Foyersitzung::eigenenTischVersuchen() {
    for (int n = 1; n <= MaxTischnummer; ++n) {
        const auto kanal = tischkanaele_.find(n);
        if (angebote_.contains(n) || eigen_->versucht.contains(n) || n == platz_ ||
            (kanal != tischkanaele_.end() && !kanal->second.empty()))
            continue;
        eigen_->angebot.nummer = n;
        senden("JOIN " + tischkanal(n));
        senden("NAMES " + tischkanal(n));
        return;
    }
    eigen_.reset();  // every number is taken
}

void Foyersitzung::freiePlaetzeSetzen(int frei) {
    if (!eigen_ || eigen_->angebot.frei == frei) return;
    eigen_->angebot.frei = std::clamp(frei, 0, 3);
    if (eigen_->angesagt) senden("PRIVMSG " + foyerkanal_ + " :" + tinfoText(eigen_->angebot));
    ereignis({Ereignis::Art::ListenGeaendert, {}, {}, {}, 0});
}

void Foyersitzung::tischSchliessen() {
    if (!eigen_) return;
    if (eigen_->angesagt) senden("PRIVMSG " + foyerkanal_ + " :" + tretText(eigen_->angebot.nummer));
    if (eigen_->angebot.nummer > 0) senden("PART " + tischkanal(eigen_->angebot.nummer));
    eigen_.reset();
}

std::optional<Tischangebot> Foyersitzung::eigenerTisch() const {
    if (!eigen_ || !eigen_->angesagt) return std::nullopt;
    return eigen_->angebot;
}

void Foyersitzung::platzNehmen(int nummer) {
    if (platz_ == nummer || nummer < 1 || nummer > MaxTischnummer) return;
    platzVerlassen();
    platz_ = nummer;
    senden("JOIN " + tischkanal(nummer));
}

void Foyersitzung::platzVerlassen() {
    if (platz_ == 0) return;
    senden("PRIVMSG " + foyerkanal_ + " :" + tretText(platz_));
    senden("PART " + tischkanal(platz_));
    platz_ = 0;
}

std::vector<Foyerspieler> Foyersitzung::spieler() const {
    std::vector<Foyerspieler> alle;
    for (const auto& nick : foyer_) {
        Foyerspieler s{nick, 0};
        for (const auto& [n, l] : tischkanaele_)
            if (enthaelt(l, nick)) {
                s.tisch = n;
                break;
            }
        alle.push_back(std::move(s));
    }
    return alle;
}

std::vector<Foyertisch> Foyersitzung::tische() const {
    std::vector<Foyertisch> alle;
    auto sitzende = [&](int n) {
        const auto it = tischkanaele_.find(n);
        return it == tischkanaele_.end() ? std::vector<std::string>{} : it->second;
    };
    for (const auto& [n, eintrag] : angebote_)
        if (mitglied(n, eintrag.first)) alle.push_back({eintrag.second, eintrag.first, sitzende(n)});
    if (eigen_ && eigen_->angesagt) {
        alle.push_back({eigen_->angebot, nick_, sitzende(eigen_->angebot.nummer)});
        std::sort(alle.begin(), alle.end(), [](const auto& a, const auto& b) { return a.angebot.nummer < b.angebot.nummer; });
    }
    return alle;
}

}  // namespace foyer

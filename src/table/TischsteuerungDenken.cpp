// The computer seats that think ahead do so on a thread of their own, on copies,
// and the person's hint is thought the same way; the window never waits for them.
#include "Tischsteuerung.h"

#include <QMetaObject>

#include "Hauptfenster.h"
#include "Qtext.h"
#include "Tischansicht.h"
#include "Tischtexte.h"
#include "engine/Ansagen.h"
#include "engine/Kartentext.h"
#include "engine/Stichspiel.h"
#include "players/Stark.h"

namespace table {

using engine::Anfrage;
using engine::Anfrageart;
using engine::Antwort;
using engine::Sitz;

// What a thinking thread works on: copies of the game and the table's knowledge and a
// strong player of its own, so nothing of the window's state is touched off its thread.
struct Tischsteuerung::Denkjob {
    Denkjob(const engine::Spiel& s, const players::Tischwissen& w, Sitz wer, const players::Starkart& art,
            std::uint64_t seed, int nr, int gespielt)
        : spiel(s), zufall(seed), wissen(w, zufall), stark(wissen, zufall, nullptr, art, seed), sitz(wer),
          schritt(nr), karten(gespielt) {}
    engine::Spiel spiel;
    engine::SeedZufall zufall;
    players::Tischwissen wissen;
    players::Stark stark;
    Sitz sitz;
    int schritt;
    int karten;  // cards played when it began
    std::optional<engine::Ansage> ansage;
    int karte = 0;
    players::Kartenerklaerung erklaerung;
};

void Tischsteuerung::setzeBedenkzeit(int ms) {
    ms = std::clamp(ms, 10, 60000);
    if (ms == bedenkzeit_) return;
    bedenkzeit_ = ms;
    gebaut_.fill(-1);  // the strong players are made again with the new time
}

std::shared_ptr<Tischsteuerung::Denkjob> Tischsteuerung::denkjob(Sitz sitz, const players::Starkart& art,
                                                                  std::uint64_t seed) {
    const int karten = spiel_.sticheGespielt * 4 + spiel_.stich.anzahl;
    return std::make_shared<Denkjob>(spiel_, wissen_, sitz, art, seed, schritt_, karten);
}

bool Tischsteuerung::stimmtNoch(const Denkjob& job) const {
    return job.schritt == schritt_ && job.karten == spiel_.sticheGespielt * 4 + spiel_.stich.anzahl &&
           ablauf_.offeneArt() == Anfrageart::Karte && ablauf_.sitzDerAnfrage() == job.sitz;
}

void Tischsteuerung::denkenLassen(Sitz sitz, const players::Stark& stark) {
    beschaeftigt_ = true;  // the status line says " überlegt..." meanwhile
    // The table's own move preparation, as for every computer seat.
    wissen_.zugVorbereiten(spiel_, sitz);
    auto job = denkjob(sitz, stark.art(), stark.seed());
    if (denker_.joinable()) denker_.join();
    denkjob_ = job;
    const bool ansageMoeglich = ablauf_.ansageMoeglich(sitz);
    denker_ = std::thread([this, job, ansageMoeglich] {
        if (ansageMoeglich) {
            job->ansage = job->stark.ansageWaehlen(job->spiel, job->sitz);
            if (job->ansage && !engine::ansageVerweigert(job->spiel, job->sitz, *job->ansage)) {
                const engine::AnsageEintrag e = engine::ansageEintragen(job->spiel, job->sitz, *job->ansage);
                job->wissen.ansageGemacht(job->spiel, e);
            }
        }
        job->karte = job->stark.karteWaehlen(job->spiel, job->sitz);
        QMetaObject::invokeMethod(this, [this, job] { gedacht(job); }, Qt::QueuedConnection);
    });
}

void Tischsteuerung::gedacht(const std::shared_ptr<Denkjob>& job) {
    // An old job's answer never waits for a newer thread.
    if (job != denkjob_) return;
    if (denker_.joinable()) denker_.join();
    denkjob_.reset();
    if (job->schritt != schritt_) return;
    beschaeftigt_ = false;
    if (!stimmtNoch(*job)) return weiter();
    const Sitz s = job->sitz;
    if (job->ansage && ablauf_.ansageMoeglich(s)) ablauf_.ansagen(s, *job->ansage);
    int pos = job->karte;
    if (!ablauf_.antworten(Antwort::karte(pos))) {
        pos = engine::ersteErlaubteKarte(spiel_, s);
        ablauf_.antworten(Antwort::karte(pos));
    }
    meldungenZeigen();
    karteGelegt(pos, s);
}

void Tischsteuerung::tipp() {
    const Anfrage a = ablauf_.anfrage();
    if (a.art != Anfrageart::Karte || !menschGefragt(a) || beschaeftigt_) {
        hfo_.statusSetzen(QString::fromUtf8(texte::TippNichtAmZug));
        return;
    }
    if (tippLaeuft_) return;
    players::Starkart art;
    art.suche.simulationen = players::simulationenFuer(bedenkzeit_);
    auto job = denkjob(Sitz(1), art, static_cast<std::uint64_t>(spiel_.partie.spielNr) * 7919 + 1);
    hfo_.statusSetzen(QString::fromUtf8(texte::TippUeberlegt));
    if (tippDenker_.joinable()) tippDenker_.join();
    tippLaeuft_ = true;
    tippDenker_ = std::thread([this, job] {
        job->erklaerung = job->stark.karteErklaeren(job->spiel, job->sitz);
        QMetaObject::invokeMethod(this, [this, job] { tippGedacht(job); }, Qt::QueuedConnection);
    });
}

void Tischsteuerung::tippGedacht(const std::shared_ptr<Denkjob>& job) {
    if (tippDenker_.joinable()) tippDenker_.join();
    tippLaeuft_ = false;
    // The person played meanwhile: the hint is for a position that is gone.
    if (!stimmtNoch(*job) || !menschGefragt(ablauf_.anfrage())) return;
    const bool franz = engine::franzoesischeBilder(optionen_.kartenbild);
    hfo_.tisch().setzeAusgewaehlt(job->erklaerung.karte);
    hfo_.statusSetzen(QString::fromUtf8(texte::TippVorsatz) +
                      t(players::erklaerungText(job->erklaerung, spiel_, franz)));
}

}  // namespace table

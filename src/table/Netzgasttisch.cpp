#include "Netzgasttisch.h"

#include <QMessageBox>

#include "Hauptfenster.h"
#include "Qtext.h"
#include "Tischansicht.h"
#include "Tischsteuerung.h"
#include "Tischtexte.h"
#include "net/Netztexte.h"

namespace table {

using engine::Anfrageart;

namespace {
bool entscheidung(Anfrageart art) {
    return art == Anfrageart::Neugeben || art == Anfrageart::Vorbehalt || art == Anfrageart::Karte;
}
}  // namespace

Netzgasttisch::Netzgasttisch(Hauptfenster& hfo, Tischsteuerung& steuerung, net::Netzzeiten zeiten, QObject* parent)
    : Netztisch(hfo, steuerung, parent), gast_(steuerung.spielFuerNetz(), steuerung.ablauf(), zeiten) {
    connect(&gast_, &net::Gast::status, this, &Netzgasttisch::statusZeigen);
    connect(&gast_, &net::Gast::chatzeile, this, &Netztisch::chatzeile);
    connect(&gast_, &net::Gast::protokollzeile, this, &Netztisch::protokollzeile);
    connect(&gast_, &net::Gast::namenGeaendert, this, [this] { hfo_.tisch().update(); });
    connect(&gast_, &net::Gast::sitzVorbehalt, this, &Netzgasttisch::vorbehaltVermerken);
    connect(&gast_, &net::Gast::punkteErhalten, this, [this] {
        const engine::Spiel& s = steuerung_.spiel();
        endeVon_ = {s.partie.partieNr, s.partie.spielNr};
    });
    // The table carries on after the message is done with, never inside it.
    connect(&gast_, &net::Gast::gefragt, &steuerung_, &Tischsteuerung::weiter, Qt::QueuedConnection);
    connect(&gast_, &net::Gast::weiter, &steuerung_, &Tischsteuerung::weiter, Qt::QueuedConnection);
    connect(&gast_, &net::Gast::hinweis, this, [this](const QString& text) { hinweisen(false, text); },
            Qt::QueuedConnection);
    connect(&gast_, &net::Gast::nameVergeben, this, &Netzgasttisch::nameVergeben, Qt::QueuedConnection);
    connect(&gast_, &net::Gast::verbindungVerloren, this, &Netzgasttisch::verloren, Qt::QueuedConnection);
    connect(
        &gast_, &net::Gast::serverAntwortetNicht, this,
        [this](const QString& frage) {
            steuerung_.dialogOffen(true);
            const auto knopf = QMessageBox::question(&hfo_, t(texte::Fenstertitel), frage,
                                                     QMessageBox::Retry | QMessageBox::Cancel, QMessageBox::Retry);
            steuerung_.dialogOffen(false);
            gast_.wartenBeantworten(knopf == QMessageBox::Retry);
            if (knopf != QMessageBox::Retry) emit aufgegeben();
        },
        Qt::QueuedConnection);
}

Netzgasttisch::~Netzgasttisch() = default;

void Netzgasttisch::verbinden(const QString& host, quint16 port, const QString& name) {
    gast_.verbinden(host, port, name);
    hfo_.tisch().update();
}

void Netzgasttisch::chatSenden(const QString& text) {
    gast_.chatSenden(text);
    // The host sends a line back to everybody but its writer.
    emit chatzeile(QString::fromStdString(steuerung_.spiel().namen[engine::Sitz(1)]) + QStringLiteral(": ") + text);
}

const net::Protokoll* Netzgasttisch::protokoll() const { return gast_.kern() ? &gast_.kern()->protokoll() : nullptr; }

bool Netzgasttisch::vermerken(const QString& text) {
    if (!gast_.kern()) return false;
    gast_.kern()->vermerk(text.toStdString());
    return true;
}

bool Netzgasttisch::darfAntworten() const {
    return gast_.kern() && gast_.kern()->offeneFrage() != net::Gastfrage::Keine;
}

std::optional<engine::Bescheid> Netzgasttisch::antworten(const engine::Antwort& antwort) {
    if (!entscheidung(antwort.art)) return std::nullopt;
    return gast_.antworten(antwort);
}

std::optional<engine::Bescheid> Netzgasttisch::ansagen(const engine::Ansage& ansage) { return gast_.ansagen(ansage); }

bool Netzgasttisch::spielendeDa() const {
    const engine::Spiel& s = steuerung_.spiel();
    return endeVon_ == std::pair{s.partie.partieNr, s.partie.spielNr};
}

void Netzgasttisch::vorbehaltVermerken(int sitz, const QString& text) {
    const int spiel = steuerung_.spiel().partie.spielNr;
    if (spiel != vorbehalteSpiel_) vorbehalte_ = {};
    vorbehalteSpiel_ = spiel;
    if (sitz >= 1 && sitz <= 4) vorbehalte_[static_cast<std::size_t>(sitz)] = text.trimmed();
}

QString Netzgasttisch::status(const engine::Anfrage& a, const QString& status) const {
    if (entscheidung(a.art) && a.sitz == engine::Sitz(1) && !darfAntworten())
        return a.art == Anfrageart::Karte ? t(engine::ablauftext::BitteWarten) : netzstatus_;
    QString text = Netztisch::status(a, status);
    // While the reservations come in, who has answered what.
    if (a.art == Anfrageart::Vorbehalt && vorbehalteSpiel_ == steuerung_.spiel().partie.spielNr) {
        for (int s = 2; s <= 4; ++s) {
            const QString& v = vorbehalte_[static_cast<std::size_t>(s)];
            if (!v.isEmpty())
                text += QStringLiteral("   ") + QString::fromStdString(steuerung_.spiel().namen[engine::Sitz(s)]) +
                        QStringLiteral(": ") + v;
        }
    }
    return text;
}

}  // namespace table

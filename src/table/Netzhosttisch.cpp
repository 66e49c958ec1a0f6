#include "Netzhosttisch.h"

#include "Hauptfenster.h"
#include "Tischansicht.h"
#include "Tischsteuerung.h"
#include "net/Netztexte.h"

namespace table {

namespace {
QString q(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }
}  // namespace

Netzhosttisch::Netzhosttisch(Hauptfenster& hfo, Tischsteuerung& steuerung, const QString& name, int netztempo,
                             net::Netzzeiten zeiten, QObject* parent)
    : Netztisch(hfo, steuerung, parent),
      gastgeber_(steuerung.spielFuerNetz(), steuerung.ablauf(), zeiten),
      regeln_(steuerung.ablauf().regelOptionen()) {
    gastgeber_.setzeHost(name, netztempo);
    connect(&gastgeber_, &net::Gastgeber::status, this, &Netzhosttisch::statusZeigen);
    connect(&gastgeber_, &net::Gastgeber::chatzeile, this, &Netztisch::chatzeile);
    connect(&gastgeber_, &net::Gastgeber::protokollzeile, this, &Netztisch::protokollzeile);
    connect(&gastgeber_, &net::Gastgeber::lauschenGeaendert, this, &Netzhosttisch::lauschenGeaendert);
    connect(&gastgeber_, &net::Gastgeber::weiter, &steuerung_, &Tischsteuerung::weiter);
    // Boxes open after the connection object has done its part, never inside it.
    connect(&gastgeber_, &net::Gastgeber::mitteilung, this, &Netzhosttisch::hinweisen, Qt::QueuedConnection);
    connect(
        &gastgeber_, &net::Gastgeber::abmeldefrage, this,
        [this](int sitz, const QString& frage) { gastgeber_.abmeldefrageBeantworten(sitz, fragen(frage)); },
        Qt::QueuedConnection);
    connect(&gastgeber_, &net::Gastgeber::namenGeaendert, this, [this] { hfo_.tisch().update(); });
    connect(&gastgeber_, &net::Gastgeber::sitzBesetzt, this, [this] {
        emit spielerKommt();
        emit startbereitGeaendert(startbereit());
    });
    connect(&gastgeber_, &net::Gastgeber::sitzFrei, this, &Netzhosttisch::sitzFrei);
    connect(&gastgeber_, &net::Gastgeber::bereitGeaendert, this, [this] {
        for (int s = 2; s <= 4; ++s)
            if (!gastgeber_.name(s).isEmpty()) gaeste_[static_cast<std::size_t>(s)] = gastgeber_.name(s);
        emit startbereitGeaendert(startbereit());
    });
}

Netzhosttisch::~Netzhosttisch() = default;

bool Netzhosttisch::lauschen(quint16 port, const QString& adresse) {
    if (!gastgeber_.lauschen(port, adresse)) return false;
    statusZeigen(q(net::texte::BereitUndWarte));
    return true;
}

bool Netzhosttisch::startbereit() const { return !gestartet_ && gastgeber_.kern().alleBereit(); }

void Netzhosttisch::starten() {
    if (gestartet_) return;
    gestartet_ = true;
    statusZeigen(q(net::texte::SpielGestartet));
    emit startbereitGeaendert(false);
    steuerung_.neuePartie();
}

void Netzhosttisch::neuePartieMelden() {
    if (gestartet_) gastgeber_.neuePartieMelden();
}

void Netzhosttisch::regelnGeaendert(const engine::RegelOptionen& neu) {
    if (gestartet_) gastgeber_.endbedingungenMelden(regeln_, neu);
    regeln_ = neu;
}

void Netzhosttisch::chatSenden(const QString& text) { gastgeber_.chatSenden(text); }

void Netzhosttisch::sitzFrei(int sitz) {
    // The host's own chat keeps the line the other guests get.
    const QString name = std::exchange(gaeste_[static_cast<std::size_t>(sitz)], QString());
    if (!name.isEmpty()) emit chatzeile(QString::fromStdString(net::texte::abgemeldetChat(name.toStdString())));
    hfo_.tisch().update();
    emit spielerGeht();
    emit startbereitGeaendert(startbereit());
}

}  // namespace table

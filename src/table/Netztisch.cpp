#include "Netztisch.h"

#include <QMessageBox>

#include "Hauptfenster.h"
#include "Qtext.h"
#include "Tischsteuerung.h"
#include "Tischtexte.h"
#include "net/Netztexte.h"

namespace table {

Netztisch::Netztisch(Hauptfenster& hfo, Tischsteuerung& steuerung, QObject* parent)
    : QObject(parent), hfo_(hfo), steuerung_(steuerung) {}

Netztisch::~Netztisch() = default;

QString Netztisch::status(const engine::Anfrage& a, const QString& status) const {
    // A seat at another machine thinks as a computer seat does.
    if (a.art == engine::Anfrageart::Karte && a.steuerung == engine::Steuerung::Netz && a.sitz)
        return QString::fromStdString(net::texte::ueberlegt(steuerung_.spiel().namen[*a.sitz]));
    return status.isEmpty() ? netzstatus_ : status;
}

void Netztisch::statusZeigen(const QString& text) {
    netzstatus_ = text;
    hfo_.statusSetzen(text);
}

void Netztisch::hinweisen(bool kritisch, const QString& text) {
    steuerung_.dialogOffen(true);
    if (kritisch) QMessageBox::critical(&hfo_, t(texte::Fenstertitel), text);
    else QMessageBox::information(&hfo_, t(texte::Fenstertitel), text);
    steuerung_.dialogOffen(false);
}

bool Netztisch::fragen(const QString& text) {
    steuerung_.dialogOffen(true);
    const bool ja = QMessageBox::question(&hfo_, t(texte::Fenstertitel), text, QMessageBox::Yes | QMessageBox::No) ==
                    QMessageBox::Yes;
    steuerung_.dialogOffen(false);
    return ja;
}

}  // namespace table

#include "Ergebnisversand.h"

#include <QDir>
#include <QFile>
#include <QTimer>

#include "Diensttexte.h"
#include "Ergebnisablage.h"

namespace services {

Ergebnisversand::Ergebnisversand(Smtpclient& client, QObject* parent) : QObject(parent), client_(client) {
    connect(&client_, &Smtpclient::fertig, this, &Ergebnisversand::mailFertig);
    connect(&client_, &Smtpclient::status, this, [this](const QString& text) {
        if (laeuft_ && index_ >= 0 && index_ < dateien_.size()) emit status(dateien_[index_], text);
    });
    connect(&client_, &Smtpclient::fortschritt, this, [this](int erledigt, int stufen) {
        if (laeuft_ && index_ >= 0 && index_ < dateien_.size()) emit fortschritt(dateien_[index_], erledigt, stufen);
    });
}

bool Ergebnisversand::alleSenden(const QString& ordner, const Mailkonto& konto) {
    if (laeuft_) {
        emit meldung(QString::fromUtf8(texte::LaeuftNoch));
        return false;
    }
    const QStringList dateien = wartendeErgebnisse(ordner);
    if (dateien.isEmpty()) {
        emit fertig(0, 0);
        return true;
    }
    if (!konto.vollstaendig()) {
        emit meldung(QString::fromUtf8(texte::KontoUnvollstaendig));
        return false;
    }
    ordner_ = ordner;
    konto_ = konto;
    dateien_ = dateien;
    index_ = -1;
    gesendet_ = behalten_ = 0;
    laeuft_ = true;
    emit begonnen(dateien_);
    naechsteDatei();
    return true;
}

void Ergebnisversand::naechsteDatei() {
    ++index_;
    if (index_ >= dateien_.size()) {
        laeuft_ = false;
        emit fertig(gesendet_, behalten_);
        return;
    }
    dateiSenden();
}

void Ergebnisversand::dateiSenden() {
    const QString name = dateien_[index_];
    QFile datei(QDir(ordner_).filePath(name));
    if (datei.size() > MaxDateigroesse || !datei.open(QIODevice::ReadOnly)) {
        dateiAbschliessen(false, QString::fromUtf8(texte::DateiUnlesbar));
        return;
    }
    const QByteArray bytes = datei.readAll();
    const std::vector<std::string> zeilen =
        zeilenVon(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    std::string spieler = spielerVon(zeilen);
    if (spieler.empty()) spieler = konto_.absendername.toStdString();
    Mail mail;
    mail.absender = konto_.absender.trimmed().toStdString();
    mail.absendername = konto_.absendername.toStdString();
    mail.empfaenger = konto_.empfaenger.trimmed().toStdString();
    mail.empfaengername = texte::Empfaengername;
    mail.betreff = texte::BetreffAnfang + spieler;
    mail.rumpf = mailrumpf(zeilen);
    client_.senden(konto_.mailserver(), mail);
}

void Ergebnisversand::mailFertig(const Versandergebnis& e) {
    if (!laeuft_ || frageOffen_) return;
    // Taken by the server: the file goes, whatever came after the "250".
    if (e.angenommen) {
        const bool geloescht = QFile::remove(QDir(ordner_).filePath(dateien_[index_]));
        dateiAbschliessen(geloescht, geloescht ? QString() : QString::fromUtf8(texte::NichtGeloescht));
        return;
    }
    grund_ = e.serverantwort.isEmpty() ? e.grund : e.grund + QStringLiteral(": ") + e.serverantwort;
    frageOffen_ = true;
    emit wiederholenFragen(dateien_[index_], grund_);
}

void Ergebnisversand::wiederholen(bool nochmal) {
    if (!frageOffen_) return;
    frageOffen_ = false;
    // From the event loop: the answer may come from inside the question's signal.
    QTimer::singleShot(0, this, [this, nochmal] {
        if (nochmal) dateiSenden();
        else dateiAbschliessen(false, grund_);
    });
}

void Ergebnisversand::dateiAbschliessen(bool geschickt, const QString& grund) {
    const QString name = dateien_[index_];
    if (geschickt) {
        ++gesendet_;
        emit gesendet(name);
    } else {
        ++behalten_;
        emit behalten(name, grund);
    }
    naechsteDatei();
}

}  // namespace services

#include "Benutzerspeicher.h"

#include <QFile>
#include <QSettings>

#include <array>

namespace settings {

namespace {

const QString Anwendung = QStringLiteral("Trumpona");
const QString Gruppe = QStringLiteral("Settings");

struct Vorgabe {
    const char* schluessel;
    const char* klein;   // screens up to 800 pixels wide
    const char* mittel;  // 801..1924 pixels
    const char* gross;   // 1925 pixels and wider
};

// Defaults by screen width; a key with one value has it in all three columns.
constexpr std::array<Vorgabe, 30> vorgaben{{
    {"hfo_w", "9600", "12375", "16500"},
    {"hfo_h", "7740", "9675", "12900"},
    {"hfo_x", "495", "555", "2250"},
    {"hfo_y", "795", "1410", "1500"},
    {"ErsterStart", WahrText, WahrText, WahrText},
    {"Warnung", "", "", ""},
    {"Restart", "", "", ""},
    {"Schrift", WahrText, WahrText, WahrText},
    {"Hilfe1Zeigen", WahrText, WahrText, WahrText},
    {"Netzadapter", "", "", ""},
    {"IPErfragen", FalschText, FalschText, FalschText},
    {"Serverport", "7001", "7001", "7001"},
    {"Netztempo", "1", "1", "1"},
    {"Verbindungsart", "1", "1", "1"},
    {"IRCServer", "localhost", "localhost", "localhost"},
    {"IRCPort", "6668", "6668", "6668"},
    {"IRCRaum", "Foyer", "Foyer", "Foyer"},
    {"StartenMit", "2", "2", "2"},
    {"Verbindung1", "", "", ""},
    {"Zwangsupdate", "0", "0", "0"},
    {"MSG", "", "", ""},
    {"chat_x", "5500", "5500", "5500"},
    {"chat_y", "1230", "1230", "1230"},
    {"chat_w", "4320", "6315", "6315"},
    {"chat_h", "2460", "2475", "2475"},
    {"spListe_x", "120", "120", "120"},
    {"spListe_y", "1230", "1230", "1230"},
    {"spListe_w", "1845", "1845", "1845"},
    {"spListe_h", "4500", "4500", "4500"},
    {"Pfad", "", "", ""},
}};

QString schluesselImAbschnitt(const QString& schluessel) { return Gruppe + QLatin1Char('/') + schluessel; }

}  // namespace

bool textIstWahr(const QString& text) {
    const QString t = text.trimmed();
    if (t.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0) return true;
    if (t.compare(QLatin1String("wahr"), Qt::CaseInsensitive) == 0) return true;
    bool zahl = false;
    const int wert = t.toInt(&zahl);
    return zahl && wert != 0;
}

Benutzerspeicher::Benutzerspeicher(int bildschirmbreite)
    : speicher_(std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, Anwendung, Anwendung)),
      bildschirmbreite_(bildschirmbreite) {}

Benutzerspeicher::~Benutzerspeicher() = default;

QString Benutzerspeicher::standard(const QString& schluessel) const {
    for (const auto& v : vorgaben) {
        if (schluessel == QLatin1String(v.schluessel)) {
            const char* wert = bildschirmbreite_ <= 800 ? v.klein : bildschirmbreite_ <= 1924 ? v.mittel : v.gross;
            return QString::fromLatin1(wert);
        }
    }
    return {};
}

bool Benutzerspeicher::vorhanden(const QString& schluessel) const {
    return speicher_->contains(schluesselImAbschnitt(schluessel));
}

QString Benutzerspeicher::text(const QString& schluessel) const {
    return speicher_->value(schluesselImAbschnitt(schluessel), standard(schluessel)).toString();
}

int Benutzerspeicher::zahl(const QString& schluessel) const {
    bool ok = false;
    const int wert = text(schluessel).trimmed().toInt(&ok);
    return ok ? wert : standard(schluessel).toInt();
}

bool Benutzerspeicher::wahr(const QString& schluessel) const { return textIstWahr(text(schluessel)); }

void Benutzerspeicher::setzeText(const QString& schluessel, const QString& wert) {
    speicher_->setValue(schluesselImAbschnitt(schluessel), wert);
}

void Benutzerspeicher::setzeZahl(const QString& schluessel, int wert) { setzeText(schluessel, QString::number(wert)); }

void Benutzerspeicher::setzeWahr(const QString& schluessel, bool wert) {
    setzeText(schluessel, QLatin1String(wert ? WahrText : FalschText));
}

Fenstergeometrie Benutzerspeicher::hauptfenster() const {
    return {zahl(QStringLiteral("hfo_x")), zahl(QStringLiteral("hfo_y")), zahl(QStringLiteral("hfo_w")),
            zahl(QStringLiteral("hfo_h"))};
}

void Benutzerspeicher::setzeHauptfenster(const Fenstergeometrie& g) {
    setzeZahl(QStringLiteral("hfo_x"), g.x);
    setzeZahl(QStringLiteral("hfo_y"), g.y);
    setzeZahl(QStringLiteral("hfo_w"), g.breite);
    setzeZahl(QStringLiteral("hfo_h"), g.hoehe);
}

void Benutzerspeicher::programmordnerVermerken(const QString& ordner) { setzeText(QStringLiteral("Pfad"), ordner); }

bool Benutzerspeicher::ersterStartUebernehmen() {
    const bool erster = wahr(QStringLiteral("ErsterStart"));
    setzeWahr(QStringLiteral("ErsterStart"), false);
    return erster;
}

bool Benutzerspeicher::aufloesungswarnungFaellig(int breite, int hoehe) const {
    return (breite < 800 || hoehe < 600) && text(QStringLiteral("Warnung")).isEmpty();
}

void Benutzerspeicher::aufloesungswarnungVermerken() { setzeWahr(QStringLiteral("Warnung"), true); }

bool Benutzerspeicher::restartUebernehmen() {
    const bool gesetzt = !text(QStringLiteral("Restart")).isEmpty();
    setzeText(QStringLiteral("Restart"), QString());
    return gesetzt;
}

void Benutzerspeicher::restartVormerken() { setzeWahr(QStringLiteral("Restart"), true); }

void Benutzerspeicher::zuruecksetzen(const QString& optionsdatei) {
    speicher_->remove(Gruppe);
    speicher_->sync();
    QFile::remove(optionsdatei);
}

void Benutzerspeicher::synchronisieren() { speicher_->sync(); }

}  // namespace settings

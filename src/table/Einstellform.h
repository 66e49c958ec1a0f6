#pragma once
// The settings dialog `einstellform`: every option of the options file under its
// caption, in tabs, plus the per-user network keys. OK writes the options file
// when `speichern_jn` is ticked; either way the caller takes the values over
// (EinstUebernehmen). Export and import copy the options to and from ".dki" files;
// `cmdreset` clears everything and asks the program to end.
#include <QDialog>
#include <array>
#include <functional>
#include <initializer_list>
#include <vector>

#include "Benutzereinstellungen.h"
#include "settings/Einstellungen.h"

class QCheckBox;
class QGroupBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QTabWidget;

namespace settings {
class Benutzerspeicher;
}

namespace table {

class Dateiwahl;
class Kartenvorschau;
class Vorlagenwahl;
class Mailgruppe;
class Wahlgruppe;

struct Einstellumgebung {
    settings::Benutzerspeicher& speicher;
    QString optionsdatei;           // "rupalive.ini" in the configuration folder
    Dateiwahl& dateiwahl;
    settings::Lesekontext kontext;  // whether sound is there, whether names are kept
};

class Einstellform : public QDialog {
    Q_OBJECT
public:
    Einstellform(const settings::Einstellungen& e, const Benutzereinstellungen& b, Einstellumgebung umgebung,
                 QWidget* parent = nullptr);
    ~Einstellform() override;

    settings::Einstellungen einstellungen() const;
    void setzeEinstellungen(const settings::Einstellungen& e);
    Benutzereinstellungen benutzer() const;
    void setzeBenutzer(const Benutzereinstellungen& b);
    // The check box `speichern_jn`.
    bool speichern() const;
    QTabWidget* reiter() const { return reiter_; }

    void accept() override;

public slots:
    void exportieren();
    void importieren();
    void cmdreset_Click();

signals:
    // The per-user store and the options file are deleted; the program must end.
    void zurueckgesetzt();

private:
    // One option of the file and the control that holds it.
    struct Bindung {
        QString schluessel;
        QWidget* feld;
        bool regel;                        // a rule switch is on only for -1; display switches for any non-zero
        std::function<int(int)> angleichen; // maps a stored value onto one the control offers
    };

    QWidget* regelnSeite();
    QWidget* sonderpunkteSeite();
    QWidget* spielerSeite();
    QWidget* anzeigeSeite();
    QWidget* soundSeite();
    QWidget* netzwerkSeite();
    QCheckBox* schalter(const char* schluessel, const char* text, QWidget* eltern);
    struct Schaltereintrag {
        const char* schluessel;
        const char* text;
    };
    // A titled group of switches, one under the other.
    QGroupBox* schaltergruppe(const char* titel, std::initializer_list<Schaltereintrag> eintraege, QWidget* eltern);
    QComboBox* auswahl(const char* schluessel, const std::vector<std::pair<int, QString>>& werte, QWidget* eltern,
                       std::function<int(int)> angleichen = {});
    void binden(const char* schluessel, QWidget* feld, std::function<int(int)> angleichen = {});
    QWidget* feld(const char* schluessel) const;
    bool an(const char* schluessel) const;
    void freigaben();
    void dollenGeaendert(int herzZehn);
    void vorhandNamenSetzen();
    QString ordner() const;
    void ordnerMerken(const QString& pfad);

    Einstellumgebung umgebung_;
    settings::Einstellungen basis_;  // what the dialog was opened with
    std::vector<Bindung> bindungen_;
    QTabWidget* reiter_ = nullptr;
    std::array<QLineEdit*, 4> namen_{};
    std::array<QComboBox*, 4> charaktere_{};
    Wahlgruppe* dollen_ = nullptr;
    QCheckBox* joker_ = nullptr;
    bool jokerMitErsterDolle_ = false;  // the Joker as it was before "Zweite schlägt Erste" took it away
    QLabel* jokerHinweis_ = nullptr;
    QComboBox* vorhand_ = nullptr;
    Kartenvorschau* vorschau_ = nullptr;
    Vorlagenwahl* vorlagen_ = nullptr;
    QComboBox* tempo_ = nullptr;   // off, or the pace of the "Animation"
    int tempoMitBewegung_ = 2;     // the pace kept while the movement is off
    QCheckBox* speichernJn_ = nullptr;
    // Network and foyer.
    QComboBox* netzadapter_ = nullptr;
    QCheckBox* ipErfragen_ = nullptr;
    QLineEdit* proxyServer_ = nullptr;
    QLineEdit* ircServer_ = nullptr;
    QLineEdit* ircRaum_ = nullptr;
    QCheckBox* manuelleVerteilung_ = nullptr;
    QSpinBox* serverport_ = nullptr;
    QSpinBox* ircPort_ = nullptr;
    QSpinBox* netztempo_ = nullptr;
    QComboBox* verbindungsart_ = nullptr;
    Mailgruppe* mail_ = nullptr;  // where tournament results go
};

// Selects the entry holding `wert`; a value the list lacks gets an entry of its own,
// so an option the dialog does not offer survives opening and confirming it.
void wertWaehlen(QComboBox* liste, int wert);

}  // namespace table

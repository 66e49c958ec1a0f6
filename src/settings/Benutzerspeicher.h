#pragma once
// The per-user store of window geometry, start-up markers and the network and
// foyer settings: application "Trumpona", group "Settings", every value a string.
// On Windows QSettings keeps it in the registry, elsewhere in the config folder.
#include <QString>
#include <memory>

class QSettings;

namespace settings {

struct Fenstergeometrie {
    int x = 0, y = 0, breite = 0, hoehe = 0;  // twips
    bool operator==(const Fenstergeometrie&) const = default;
};

class Benutzerspeicher {
public:
    // `bildschirmbreite` in pixels picks the geometry defaults.
    explicit Benutzerspeicher(int bildschirmbreite = 1024);
    ~Benutzerspeicher();
    Benutzerspeicher(const Benutzerspeicher&) = delete;
    Benutzerspeicher& operator=(const Benutzerspeicher&) = delete;

    // The stored text, or the key's default when the key is missing.
    QString text(const QString& schluessel) const;
    int zahl(const QString& schluessel) const;
    bool wahr(const QString& schluessel) const;
    void setzeText(const QString& schluessel, const QString& wert);
    void setzeZahl(const QString& schluessel, int wert);
    void setzeWahr(const QString& schluessel, bool wert);
    bool vorhanden(const QString& schluessel) const;

    // Default of a key for this screen width ("" for keys without one).
    QString standard(const QString& schluessel) const;

    Fenstergeometrie hauptfenster() const;
    void setzeHauptfenster(const Fenstergeometrie& g);

    // Records the program folder; done at every start.
    void programmordnerVermerken(const QString& ordner);
    // True the first time it is asked; afterwards false.
    bool ersterStartUebernehmen();
    // The low-resolution warning is due for a screen smaller than 800 x 600 until it was shown once.
    bool aufloesungswarnungFaellig(int breite, int hoehe) const;
    void aufloesungswarnungVermerken();
    // Reads the restart marker and clears it at once; true when it was set.
    bool restartUebernehmen();
    void restartVormerken();

    // Deletes the whole group and the options file; the next start runs on defaults.
    void zuruecksetzen(const QString& optionsdatei);

    void synchronisieren();

private:
    std::unique_ptr<QSettings> speicher_;
    int bildschirmbreite_;
};

// The truth texts as stored; reading also takes the German words and numbers.
inline constexpr const char* WahrText = "True";
inline constexpr const char* FalschText = "False";
bool textIstWahr(const QString& text);

}  // namespace settings

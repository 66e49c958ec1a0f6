#pragma once
// The automatic save of the running Partie is shared by every program one user runs
// on this machine. Each program owns one place, a file with a lock beside it, for as
// long as it runs: the first the file itself ("letzte-partie.dkp"), one started while
// it runs "letzte-partie-2.dkp", and so on. So no program overwrites or removes the
// Partie of another; a lock left behind by a program that crashed counts as free.
#include <QString>
#include <memory>

class QLockFile;

namespace savegame {

class Sicherungsplatz {
public:
    // Four windows on one machine make a whole LAN table.
    static constexpr int Plaetze = 4;

    // Takes the first free place for `datei`. A place without a Partie of its own takes
    // over one left on a later place by a program that has ended, so it is offered again.
    explicit Sicherungsplatz(const QString& datei);
    ~Sicherungsplatz();
    Sicherungsplatz(const Sicherungsplatz&) = delete;
    Sicherungsplatz& operator=(const Sicherungsplatz&) = delete;

    // 1 for the file itself, 2.. for the further names; 0: no place could be had.
    int nummer() const { return nummer_; }
    // The file this program keeps its Partie in; empty without a place.
    const QString& datei() const { return datei_; }
    // Without a place: true when other programs hold every place, false when the
    // folder cannot be written.
    bool alleBelegt() const { return alleBelegt_; }

    // The file of place `nummer` (1: `datei` itself).
    static QString platzdatei(const QString& datei, int nummer);

private:
    std::unique_ptr<QLockFile> sperre_;
    QString datei_;
    int nummer_ = 0;
    bool alleBelegt_ = false;
};

}  // namespace savegame

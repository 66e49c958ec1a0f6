#pragma once
// A file chooser that answers with prepared paths and notes what it was asked.
#include <deque>
#include <vector>

#include "table/Dateiwahl.h"

namespace testhilfe {

struct Testdateiwahl final : table::Dateiwahl {
    std::deque<QString> antworten;  // empty: the person cancels
    std::vector<table::Dateifrage> fragen;
    std::vector<bool> gespeichert;  // per question: a save dialog (else an open dialog)

    QString speichern(QWidget*, const table::Dateifrage& f) override { return naechste(f, true); }
    QString oeffnen(QWidget*, const table::Dateifrage& f) override { return naechste(f, false); }

private:
    QString naechste(const table::Dateifrage& f, bool speichern) {
        fragen.push_back(f);
        gespeichert.push_back(speichern);
        if (antworten.empty()) return {};
        QString a = antworten.front();
        antworten.pop_front();
        return a;
    }
};

}  // namespace testhilfe

#include "Begruendungsanzeige.h"

#include <QMessageBox>

#include "Tischtexte.h"

namespace table {

Begruendungsbox begruendungsbox(const players::Meldung& m, const engine::ProSitz<std::string>& namen) {
    Begruendungsbox box;
    box.text = QString::fromStdString(m.text);
    if (m.sitz && m.art == players::Meldungsart::Regel) {
        box.titel = QString::fromUtf8(texte::UeberlegungVon) + QString::fromStdString(namen[*m.sitz]);
        // Most sentences name their rule ("Mld.(abwerfen):DH030 ..."); the others get it below.
        const QString code = QString::fromStdString(m.code);
        if (!code.isEmpty() && !box.text.contains(code))
            box.text += QStringLiteral("\n\n") + QString::fromUtf8(texte::RegelKennung) + QString::fromStdString(m.verfahren) +
                        QLatin1Char(' ') + code;
    } else {
        box.titel = QString::fromUtf8(texte::Fenstertitel);
    }
    return box;
}

void Begruendungsanzeige::melden(const players::Meldung& m) {
    const bool fuerMenschen = m.art == players::Meldungsart::Regel || m.art == players::Meldungsart::Hinweis;
    if (m.anzeigen && fuerMenschen && !m.text.empty()) offen_.push_back(m);
}

void Begruendungsanzeige::zeigen(QWidget* eltern, const engine::ProSitz<std::string>& namen) {
    // Taken out first: a box may run the event loop, and nothing may change the list under it.
    const std::vector<players::Meldung> meldungen = std::exchange(offen_, {});
    for (const players::Meldung& m : meldungen) {
        const Begruendungsbox box = begruendungsbox(m, namen);
        QMessageBox::information(eltern, box.titel, box.text);
    }
}

}  // namespace table

#include "Dateiwahl.h"

#include <QFileDialog>
#include <QStringList>

#include "Qtext.h"

namespace table {

QString qtFilter(std::string_view filter) {
    const QStringList teile = t(filter).split(QLatin1Char('|'));
    QStringList texte;
    for (qsizetype i = 0; i < teile.size(); i += 2) texte << teile[i];
    return texte.join(QStringLiteral(";;"));
}

namespace {

QString waehlen(QWidget* eltern, const Dateifrage& frage, QFileDialog::AcceptMode modus) {
    QFileDialog dialog(eltern, frage.titel, frage.ordner, qtFilter(frage.filter));
    dialog.setAcceptMode(modus);
    dialog.setFileMode(modus == QFileDialog::AcceptSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setDefaultSuffix(t(frage.endung));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().constFirst();
}

}  // namespace

QString Dateidialoge::speichern(QWidget* eltern, const Dateifrage& frage) {
    return waehlen(eltern, frage, QFileDialog::AcceptSave);
}

QString Dateidialoge::oeffnen(QWidget* eltern, const Dateifrage& frage) {
    return waehlen(eltern, frage, QFileDialog::AcceptOpen);
}

}  // namespace table

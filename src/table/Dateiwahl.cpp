#include "Dateiwahl.h"

#include <QFileDialog>
#include <QStringList>

namespace table {

QString qtFilter(std::string_view filter) {
    const QStringList teile = QString::fromUtf8(filter.data(), static_cast<qsizetype>(filter.size())).split(QLatin1Char('|'));
    QStringList texte;
    for (qsizetype i = 0; i < teile.size(); i += 2) texte << teile[i];
    return texte.join(QStringLiteral(";;"));
}

namespace {

QString waehlen(QWidget* eltern, const Dateifrage& frage, QFileDialog::AcceptMode modus) {
    QFileDialog dialog(eltern, frage.titel, frage.ordner, qtFilter(frage.filter));
    dialog.setAcceptMode(modus);
    dialog.setFileMode(modus == QFileDialog::AcceptSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setDefaultSuffix(QString::fromUtf8(frage.endung.data(), static_cast<qsizetype>(frage.endung.size())));
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

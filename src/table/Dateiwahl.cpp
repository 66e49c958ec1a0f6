#include "Dateiwahl.h"

#include <QFileDialog>
#include <QStringList>

#include "Qtext.h"

namespace table {

namespace {

// "Partie (*.DKP)" becomes "Partie (*.DKP *.dkp)": the classic dialogs ignore the
// case of a pattern, native ones on Linux do not.
QString beideSchreibweisen(const QString& text) {
    const qsizetype auf = text.lastIndexOf(QLatin1Char('('));
    if (auf < 0 || !text.endsWith(QLatin1Char(')'))) return text;
    QStringList muster = text.mid(auf + 1, text.size() - auf - 2).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& m : QStringList(muster))
        for (const QString& anders : {m.toLower(), m.toUpper()})
            if (!muster.contains(anders)) muster << anders;
    return text.left(auf + 1) + muster.join(QLatin1Char(' ')) + QLatin1Char(')');
}

}  // namespace

QString qtFilter(std::string_view filter) {
    const QStringList teile = t(filter).split(QLatin1Char('|'));
    QStringList texte;
    for (qsizetype i = 0; i < teile.size(); i += 2) texte << beideSchreibweisen(teile[i]);
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

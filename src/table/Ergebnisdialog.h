#pragma once
// The results dialog `frmErgebnisse`: the result files that wait, "Senden" mails
// them all to the organiser with the status texts of the dialogue and a progress
// bar per file, and asks whether to try again when a file failed. The dialog
// talks to the upload by signals and calls; it never touches the socket.
#include <QDialog>
#include <functional>

#include "services/Ergebnisversand.h"
#include "services/Mailkonto.h"
#include "services/Smtpclient.h"

class QLabel;
class QProgressBar;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace table {

class Ergebnisdialog : public QDialog {
    Q_OBJECT
public:
    Ergebnisdialog(QString ordner, services::Mailkonto konto, QWidget* parent = nullptr);

    // The retry question; by default a Yes/No box. Tests answer it themselves.
    using Frage = std::function<bool(const QString& datei, const QString& grund)>;
    void setzeFrage(Frage frage) { frage_ = std::move(frage); }

    services::Smtpclient& client() { return client_; }
    services::Ergebnisversand& versand() { return versand_; }
    const QTreeWidget& liste() const { return *liste_; }
    QString status() const;
    // The stand column and the progress of a listed file (for tests).
    QString stand(const QString& datei) const;
    int fortschritt(const QString& datei) const;

public slots:
    void cmdSenden_Click();
    // Lists the files that wait now.
    void auffrischen();

private:
    QTreeWidgetItem* zeile(const QString& datei) const;
    QProgressBar* balken(const QString& datei) const;
    void standSetzen(const QString& datei, const QString& text);

    QString ordner_;
    services::Mailkonto konto_;
    services::Smtpclient client_;
    services::Ergebnisversand versand_;
    Frage frage_;
    QLabel* ueberschrift_ = nullptr;
    QLabel* ziel_ = nullptr;
    QTreeWidget* liste_ = nullptr;
    QLabel* status_ = nullptr;
    QPushButton* senden_ = nullptr;
};

}  // namespace table

#pragma once
// The foyer's login dialog: the player's name, the chat server and its port. OK
// checks the name as the network table does and stays open on a bad one.
#include <QDialog>
#include <functional>

class QLineEdit;
class QSpinBox;

namespace foyer {

// The message for a name that may not be used, or an empty text for a good one.
using Namenspruefung = std::function<QString(const QString& name)>;

class Foyeranmeldung : public QDialog {
    Q_OBJECT
public:
    Foyeranmeldung(Namenspruefung pruefung, QWidget* parent = nullptr);

    void setzen(const QString& name, const QString& server, int port);
    QString name() const;
    QString server() const;
    int port() const;

    void accept() override;

private:
    Namenspruefung pruefung_;
    QLineEdit* name_;
    QLineEdit* server_;
    QSpinBox* port_;
};

}  // namespace foyer

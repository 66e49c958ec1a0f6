#pragma once
// The login dialog of network play (`frmNetzanmeldung`): host a table or join
// one, the player's name and the host's address. OK checks the name in a fixed
// order and stays open on a failure; the choice, the name and the address are
// kept in the per-user store.
#include <QDialog>
#include <optional>
#include <string>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace settings {
class Benutzerspeicher;
}

namespace table {

// The checks of the OK button in their order (the name checks, then a host to
// join); the message to show, or nothing.
std::optional<std::string> anmeldungPruefen(const std::string& name, bool beitreten, const std::string& server);

struct Serveradresse {
    QString host;
    int port = 0;
};
// The host field: "HOST", "HOST:PORT", "[IPv6]:PORT", or any entry holding
// "[IP=address]" (the address is taken from there). Nothing when no host is left
// or the port is not a number 1..65535.
std::optional<Serveradresse> serveradresseLesen(const QString& eintrag, int standardPort);

// This machine's address as the table uses it: the chosen adapter, else the
// first address that is not the loopback one, else "127.0.0.1".
QString lokaleAdresse(const QString& netzadapter);

class Netzanmeldung : public QDialog {
    Q_OBJECT
public:
    Netzanmeldung(settings::Benutzerspeicher& speicher, const QString& netzadapter, QWidget* parent = nullptr);

    bool beitreten() const;
    void setzeBeitreten(bool beitreten);
    QString name() const;
    void setzeName(const QString& name);
    QString server() const;
    void setzeServer(const QString& server);
    // After the host refused the name: only the name may change.
    void nurNameAendern();
    // The address shown and checked (tests replace the machine's).
    void setzeLokaleAdresse(const QString& adresse);

signals:
    // cmdRegeln: the rule settings.
    void regelnGewuenscht();

private:
    void cmdOK_Click();
    void artGewechselt();

    settings::Benutzerspeicher& speicher_;
    QRadioButton* hosten_ = nullptr;
    QRadioButton* beitreten_ = nullptr;
    QLineEdit* name_ = nullptr;
    QLineEdit* server_ = nullptr;
    QLabel* adresse_ = nullptr;
    QString lokaleAdresse_;
};

}  // namespace table

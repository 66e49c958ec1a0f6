#pragma once
// The foyer window: who is there and at which table, the offered tables, the
// foyer chat and one tab per private chat. It shows what it is given and reports
// what the player wants; it never touches the connection.
#include <QMainWindow>
#include <QString>
#include <vector>

#include "Foyersitzung.h"

class QDockWidget;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class QTreeWidget;

namespace foyer {

inline constexpr int MaxChatzeilen = 2000;  // per chat; older lines go
inline constexpr int MaxPrivatchats = 20;

class Foyerfenster : public QMainWindow {
    Q_OBJECT
public:
    explicit Foyerfenster(QWidget* parent = nullptr);

    void spielerZeigen(const std::vector<Foyerspieler>& spieler, const QString& eigenerNick);
    void tischeZeigen(const std::vector<Foyertisch>& tische);
    void foyerZeile(const QString& von, const QString& text);
    void privatZeile(const QString& partner, const QString& von, const QString& text);
    // A line of the system: into the private chat with `partner`, or the foyer chat.
    void systemzeile(const QString& partner, const QString& text);
    // The table we sit at (own or as a guest), 0 in the foyer: the buttons follow.
    void amTischSetzen(int nummer);
    void angemeldetSetzen(bool angemeldet);
    // Whether anything can seat us at a table; without, the table buttons stay off.
    void tischseiteSetzen(bool vorhanden);
    void statusSetzen(const QString& text);
    // Opens (or shows) the private chat with a player.
    void privatchatOeffnen(const QString& nick);
    // Whether a chat (the foyer's: empty nick) has lines not seen yet.
    bool ungelesen(const QString& nick) const;

    QDockWidget* spielerDock() const { return spielerDock_; }
    // The table selected in the list, 0 for none.
    int gewaehlterTisch() const;

signals:
    void foyerChatGesendet(const QString& text);
    void privatGesendet(const QString& nick, const QString& text);
    void tischEroeffnenGewuenscht();
    void platzNehmenGewuenscht(int nummer);
    void zurueckGewuenscht();
    // Shown and not minimised, or not: whether the player can read chat now.
    void sichtbarkeitGeaendert(bool sichtbar);
    void geschlossen();

protected:
    void showEvent(QShowEvent* e) override;
    void hideEvent(QHideEvent* e) override;
    void changeEvent(QEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

private:
    struct Chat {
        QWidget* seite;
        QPlainTextEdit* text;
        QLineEdit* eingabe;
    };
    Chat chatAnlegen(const QString& name);
    Chat* privatchat(const QString& nick, bool anlegen);
    void knoepfeAnpassen();
    void platzNehmen();
    // A line into a chat; a chat not in view gets its tab marked until it is.
    void anhaengen(const Chat& chat, const QString& zeile);

    QTreeWidget* spieler_ = nullptr;
    QDockWidget* spielerDock_ = nullptr;
    QTreeWidget* tische_ = nullptr;
    QTabWidget* chats_ = nullptr;
    Chat foyerchat_{};
    std::vector<std::pair<QString, Chat>> privat_;
    QPushButton* eroeffnen_ = nullptr;
    QPushButton* platzNehmen_ = nullptr;
    QPushButton* zurueck_ = nullptr;
    QLabel* status_ = nullptr;
    int amTisch_ = 0;
    bool angemeldet_ = false;
    bool tischseite_ = false;
};

}  // namespace foyer

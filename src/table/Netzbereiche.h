#pragma once
// The two panes of network play beside the table: the chat (lines of the table
// and of the players, a line to type) and the protocol log of all traffic.
#include <QDockWidget>
#include <QTimer>

class QLineEdit;
class QPlainTextEdit;

namespace net {
class Protokoll;
}

namespace table {

class Chatbereich : public QDockWidget {
    Q_OBJECT
public:
    explicit Chatbereich(QWidget* parent = nullptr);

    void zeileAnhaengen(const QString& zeile);
    QString text() const;
    QLineEdit& eingabe() { return *eingabe_; }

signals:
    // A line was typed and sent with Enter.
    void gesendet(const QString& text);
    // Enter or Escape in the line: the keys belong to the table again.
    void fertig();

private:
    QPlainTextEdit* zeilen_ = nullptr;
    QLineEdit* eingabe_ = nullptr;
};

// `txtSendebuffer`: the log as the protocol keeps it, shown while the pane is open.
class Protokollbereich : public QDockWidget {
    Q_OBJECT
public:
    explicit Protokollbereich(QWidget* parent = nullptr);

    void setzeProtokoll(const net::Protokoll* protokoll);
    // A line was added: the view follows soon (many lines come at once).
    void geaendert();
    QString text() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void auffrischen();

    QPlainTextEdit* text_ = nullptr;
    const net::Protokoll* protokoll_ = nullptr;
    QTimer auffrischen_;
};

}  // namespace table

#pragma once
// The protocol log of all traffic, as the protocol view shows it. It is kept in
// Windows-1252, one byte per character, so its cut points count characters.
#include <string>
#include <string_view>

namespace net {

class Protokoll {
public:
    // Beyond this length the beginning is dropped, at a point that depends on
    // who wrote the line (the old table did it so, and the view shows it so).
    static constexpr std::size_t Grenze = 32000;

    // Host, sent: the seat's name, ": ", tag and payload.
    void hostGesendet(std::string_view name, std::string_view nachricht);
    // Host, received: "  < ", the seat's name, ": ", the whole message.
    void hostEmpfangen(std::string_view name, std::string_view nachricht);
    // Guest, sent: tag and payload.
    void gastGesendet(std::string_view nachricht);
    // Guest, received: "  < " and the whole message.
    void gastEmpfangen(std::string_view nachricht);
    // Either role, after taking a message from a buffer that still holds more.
    void nochZuBearbeiten(std::string_view rest);
    // A remark of ours, logged as a received line is.
    void vermerk(std::string_view text);

    const std::string& text() const { return text_; }  // Windows-1252
    // The last line added, in UTF-8 for a view.
    std::string letzteZeile() const;
    void leeren() { text_.clear(); }

private:
    // Each line is preceded by a line break; `behalten` is the offset the text
    // keeps from when it has grown beyond the limit.
    void zeile(std::string_view inhalt, std::size_t behalten);

    std::string text_;
    std::size_t letzte_ = 0;
};

}  // namespace net

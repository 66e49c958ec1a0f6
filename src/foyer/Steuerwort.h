#pragma once
// The control words players exchange by chat message, and the table handshake
// built on them. A host announces its table in the foyer channel (and to each
// newcomer privately):
//   *TINFO* <table> <address> <port> <free seats> <rules summary ...>
// A host that closes its table, and a guest who leaves one, say in the foyer:
//   *TRET* <table>
// A player who cannot take chat messages answers one with
//   " *CHATE* <nick>_kann_im_Moment_keine_Nachrichten_von_Dir_empfangen!"
// Everything is read as untrusted text: a malformed message is no message.
#include <optional>
#include <string>
#include <string_view>

namespace foyer {

inline constexpr std::string_view TinfoWort = "*TINFO*";
inline constexpr std::string_view TretWort = "*TRET*";
inline constexpr std::string_view ChateWort = " *CHATE*";
inline constexpr std::size_t MaxAdresse = 253;
inline constexpr std::size_t MaxRegeltext = 100;

struct Tischangebot {
    int nummer = 0;
    std::string adresse;  // host name, IPv4 or IPv6 address of the table
    int port = 0;
    int frei = 0;  // free seats, 0..3
    std::string regeln;
    bool operator==(const Tischangebot&) const = default;
};

std::string tinfoText(const Tischangebot& angebot);
// Nothing for rubbish, missing fields, a port outside 1..65535, more than 3 free
// seats or an address with characters no address has.
std::optional<Tischangebot> tinfoLesen(std::string_view text);

std::string tretText(int nummer);
std::optional<int> tretLesen(std::string_view text);

std::string chateText(std::string_view nick);
bool istChate(std::string_view text);
// The automatic answer as the window shows it: the words without underscores.
std::string chateAnzeige(std::string_view text);

// Any text that begins with a control word; such texts are never shown as chat.
bool istSteuerwort(std::string_view text);

// Text for the window: control characters (colours, CTCP marks) dropped.
std::string anzeigetext(std::string_view text);

}  // namespace foyer

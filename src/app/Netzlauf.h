#pragma once
// The network table without a window: --host --auto and --join --auto.
#include <functional>
#include <string>

#include "Kommandozeile.h"
#include "engine/Sitz.h"

namespace net {
class Gast;
class Gastgeber;
}  // namespace net

namespace app {

// Opens the table, waits for the guests, plays the games with the computer at
// every seat no guest holds, writes the JSON lines and the score sheet.
int netzHostStarten(const Aufruf& aufruf, int& argc, char** argv);

// Joins a table and lets the rule book play the own seat.
int netzGastStarten(const Aufruf& aufruf, int& argc, char** argv);

// The same inside a running application, for a caller that brings the players
// together first (the foyer): `offen` sees the host once its table listens,
// `dabei` the guest before it connects.
int netzHostSpielen(const Aufruf& aufruf, const std::function<void(net::Gastgeber&)>& offen);
int netzGastSpielen(const Aufruf& aufruf, const std::string& host, int port,
                    const std::function<void(net::Gast&)>& dabei);

// "stand 1=<p> 2=<p> 3=<p> 4=<p>" in host seat numbers.
std::string standZeile(const engine::ProSitz<int>& punkte);

// "HOST", "HOST:PORT" or "[IPv6]:PORT"; false when the port is not a number 1..65535.
bool adresseTeilen(const std::string& adresse, std::string& host, int& port, int standardport = 7001);

}  // namespace app

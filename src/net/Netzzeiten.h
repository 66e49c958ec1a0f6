#pragma once
// The times of a network table in milliseconds; tests make them short.
namespace net {

struct Netzzeiten {
    int takt = 10;               // pump: one message per connection and tick (0: whenever idle)
    int erinnerung = 45000;      // host: reminder chat line to a guest being waited for
    int abmeldefrage = 240000;   // host: asks whether to remove a guest that does not answer
    int hostWarten = 30000;      // guest: wait for the host during the login
};

}  // namespace net

#pragma once
// The program's own dialogs hold the game until they are closed.
#include "Tischsteuerung.h"

namespace table {

class Pause {
public:
    explicit Pause(Tischsteuerung& s) : s_(s) { s_.dialogOffen(true); }
    ~Pause() { s_.dialogOffen(false); }
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;

private:
    Tischsteuerung& s_;
};

}  // namespace table

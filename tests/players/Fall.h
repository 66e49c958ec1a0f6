#pragma once
// One constructed case as a table row: hands, the cards already in the trick, what
// the seat on turn believes, then the rules expected to fire and the card it plays.
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "Situation.h"

namespace testhilfe {

struct Fall {
    const char* name;
    std::vector<std::vector<int>> haende;
    std::vector<int> stich;                        // codes played from the leader on
    std::function<void(Situation&)> wissen;        // beliefs, after the knowledge is built
    std::vector<std::string> regeln;               // "Verfahren:Code" in the order they fire
    int karte;
    std::function<void(Situation&)> vorher = {};   // game set-up before the cards
    int aufspieler = 1;
};

inline void pruefen(const Fall& f, int spieltyp = engine::Normalspiel) {
    Situation s(spieltyp, f.haende);
    if (f.vorher) f.vorher(s);
    s.aufspieler(f.aufspieler);
    for (int code : f.stich) s.spielt(code);
    s.wissenAufbauen();
    if (f.wissen) f.wissen(s);
    EXPECT_EQ(s.waehlt(), f.karte) << f.name;
    EXPECT_EQ(s.regeln(), f.regeln) << f.name;
}

}  // namespace testhilfe

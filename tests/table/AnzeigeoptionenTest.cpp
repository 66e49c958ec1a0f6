#include <gtest/gtest.h>

#include "table/Anzeigeoptionen.h"

namespace {

struct Farbfall { int windows; int rot, gruen, blau; };

// Windows colour values keep red in the lowest byte; reading them as RGB would
// turn the green table blue-ish or the red text blue.
TEST(Anzeigeoptionen, WindowsFarbwerteHinUndZurueck) {
    const Farbfall faelle[] = {
        {6196318, 94, 140, 94},  // the default table green
        {0, 0, 0, 0},
        {255, 255, 0, 0},
        {65280, 0, 255, 0},
        {16711680, 0, 0, 255},
        {16777215, 255, 255, 255},
        {0x123456, 0x56, 0x34, 0x12},
    };
    for (const auto& f : faelle) {
        const QColor c = table::ausWindowsFarbe(f.windows);
        EXPECT_EQ(c, QColor(f.rot, f.gruen, f.blau)) << f.windows;
        EXPECT_EQ(table::zuWindowsFarbe(c), f.windows) << f.windows;
    }
}

}  // namespace

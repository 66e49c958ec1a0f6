#include <gtest/gtest.h>

#include "table/Fensterplatz.h"

namespace {

TEST(Fensterplatz, GespeicherterPlatzBleibtAufDemBildschirm) {
    const QRect schirm(0, 0, 1280, 1000);
    const struct {
        settings::Fenstergeometrie gespeichert;  // twips
        QRect erwartet;
    } faelle[] = {
        // The defaults of a middle-sized screen fit as they are.
        {{555, 1410, 12375, 9675}, QRect(37, 94, 825, 645)},
        // A window left on a second monitor to the right comes back whole.
        {{30000, 1500, 15000, 9000}, QRect(280, 100, 1000, 600)},
        // Larger than the screen now is: as large as the screen.
        {{0, 0, 30000, 30000}, QRect(0, 0, 1280, 1000)},
        // Above and left of the screen, and tiny: at least 640 x 480, inside.
        {{-3000, -3000, 1500, 1500}, QRect(0, 0, 640, 480)},
    };
    for (const auto& f : faelle) EXPECT_EQ(table::fensterrahmen(f.gespeichert, schirm), f.erwartet);
    // Stored back it is the same place in twips.
    EXPECT_EQ(table::fenstergeometrie(QRect(37, 94, 825, 645)), (settings::Fenstergeometrie{555, 1410, 12375, 9675}));
}

}  // namespace

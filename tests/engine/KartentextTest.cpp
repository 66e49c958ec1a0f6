#include <gtest/gtest.h>

#include "engine/Karte.h"
#include "engine/Kartentext.h"

namespace {

using namespace engine;

TEST(Kartentext, SoloNamenNachBildern) {
    const struct { int spieltyp; bool franz; const char* name; } faelle[] = {
        {Normalspiel, true, "Karo-Solo"},       {Normalspiel, false, "Schellen-Solo"},
        {KreuzSolo, false, "Eichel-Solo"},      {HerzSolo, true, "Herz-Solo"},
        {DamenBubenSolo, false, "Ober-Unter-Solo"}, {SoloOhneTrumpf, true, "Solo ohne Trumpf"},
    };
    for (const auto& f : faelle) EXPECT_EQ(soloName(f.spieltyp, f.franz), f.name) << f.spieltyp;
}

}  // namespace

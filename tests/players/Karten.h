#pragma once
// Card codes by name, for readable test tables.
#include "engine/Karte.h"

namespace karten {
using engine::kartencode;
inline constexpr int KaroNeun = kartencode(engine::Karo, engine::Neun), KaroBube = kartencode(engine::Karo, engine::Bube),
                     KaroDame = kartencode(engine::Karo, engine::Dame), KaroKoenig = kartencode(engine::Karo, engine::Koenig),
                     KaroZehn = kartencode(engine::Karo, engine::Zehn), KaroAs = kartencode(engine::Karo, engine::As);
inline constexpr int HerzNeun = kartencode(engine::Herz, engine::Neun), HerzBube = kartencode(engine::Herz, engine::Bube),
                     HerzDame = kartencode(engine::Herz, engine::Dame), HerzKoenig = kartencode(engine::Herz, engine::Koenig),
                     HerzZehn = kartencode(engine::Herz, engine::Zehn), HerzAs = kartencode(engine::Herz, engine::As);
inline constexpr int PikNeun = kartencode(engine::Pik, engine::Neun), PikBube = kartencode(engine::Pik, engine::Bube),
                     PikDame = kartencode(engine::Pik, engine::Dame), PikKoenig = kartencode(engine::Pik, engine::Koenig),
                     PikZehn = kartencode(engine::Pik, engine::Zehn), PikAs = kartencode(engine::Pik, engine::As);
inline constexpr int KreuzNeun = kartencode(engine::Kreuz, engine::Neun), KreuzBube = kartencode(engine::Kreuz, engine::Bube),
                     KreuzDame = kartencode(engine::Kreuz, engine::Dame), KreuzKoenig = kartencode(engine::Kreuz, engine::Koenig),
                     KreuzZehn = kartencode(engine::Kreuz, engine::Zehn), KreuzAs = kartencode(engine::Kreuz, engine::As);
inline constexpr int Dolle = HerzZehn;
}  // namespace karten

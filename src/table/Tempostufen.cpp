#include "Tempostufen.h"

namespace table {

Tempo tempoFuer(int stufe) {
    switch (stufe) {
        // Without movement the cards still stay long enough to be seen.
        case TempoAus: return {550, 1100, 0, 0};
        case TempoSchnell: return {300, 650, 150, 190};
        case TempoLangsam: return {900, 1800, 430, 520};
        default: return {550, 1500, 260, 320};  // the trick's winner stays marked long enough to see
    }
}

}  // namespace table

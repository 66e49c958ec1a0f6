#pragma once
// Whether the machine has an audio output device. Without one sound counts as
// unavailable: the options reader switches speech, effects and the signal off.
namespace sound {

bool klangausgabeVorhanden();

}  // namespace sound

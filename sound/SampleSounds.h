#pragma once
#include <string>

namespace velmora {

// The sounds a new sample project comes with, made on the spot so the
// program ships no sound files: a short chime as a wave, a little tune as a
// format 1 MIDI file of two tracks with a tempo change, and a loop of it as
// ogg vorbis. Each takes a stored path and gives false when it can't write.
bool WriteSampleWave(const std::string& path);  // for "wave\\free.wav"
bool WriteSampleMidi(const std::string& path);  // for "bgm\\Free.mid"
bool WriteSampleOgg(const std::string& path);   // for "bgm\\Free.ogg"

}  // namespace velmora

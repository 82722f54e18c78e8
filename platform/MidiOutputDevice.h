#pragma once
#include <memory>

#include "platform/MidiClock.h"
#include "platform/MidiSink.h"

namespace velmora {

// The device that MIDI streams play to, standing for the Windows MIDI
// mapper: a synthesiser on the audio output when the machine has one, else
// the null sink, both on the real clock. Tests put in a recorder and a
// manual clock. A stream keeps the output it was opened on.
struct cMidiOutput {
  std::shared_ptr<cMidiSink> sink;
  std::shared_ptr<cMidiClock> clock;
};

// The first call picks the device; later calls give the same.
cMidiOutput PresentMidiOutput();
// Replaces the device for streams opened from now on; an output with no
// sink brings back the automatic choice.
void SetMidiOutput(cMidiOutput output);

}  // namespace velmora

#include "platform/MidiOutputDevice.h"

#include <mutex>

#include "platform/FluidSynthSink.h"

namespace velmora {
namespace {

std::mutex g_outputMutex;
cMidiOutput g_output;

cMidiOutput ChooseOutput() {
  cMidiOutput output;
  output.clock = std::make_shared<cSteadyMidiClock>();
  output.sink = cFluidSynthSink::Create(eSynthAudio::Device);
  if (!output.sink) output.sink = std::make_shared<cNullMidiSink>();
  return output;
}

}  // namespace

cMidiOutput PresentMidiOutput() {
  std::lock_guard<std::mutex> lock(g_outputMutex);
  if (!g_output.sink) g_output = ChooseOutput();
  return g_output;
}

void SetMidiOutput(cMidiOutput output) {
  std::lock_guard<std::mutex> lock(g_outputMutex);
  if (output.sink && !output.clock) output.clock = std::make_shared<cSteadyMidiClock>();
  g_output = std::move(output);
}

}  // namespace velmora

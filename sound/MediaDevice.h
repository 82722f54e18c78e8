#pragma once
#include <cstdint>
#include <memory>
#include <string>

namespace velmora {

// The media control devices the wave preview opens files on, standing
// where the Windows MCI devices stood: "waveaudio" plays a wave file,
// "sequencer" a MIDI file, each once from a position in milliseconds.
class cMediaDevice {
 public:
  virtual ~cMediaDevice() = default;
  // From `fromMs`, or resuming where a pause left off.
  virtual void Play(bool resume, uint32_t fromMs) = 0;
  virtual void Stop() = 0;
  virtual void SeekToStart() = 0;
  virtual void Pause() = 0;
};

// Null when the file can't be opened on that kind of device.
std::unique_ptr<cMediaDevice> OpenMediaDevice(const std::string& deviceType, const std::string& path);

}  // namespace velmora

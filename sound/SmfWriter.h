#pragma once
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace velmora {

// Builds a Standard MIDI File in memory: the sample songs of a new project
// are written with it. Event bytes go in as given, so running status is
// the caller's to use or not.
class cSmfTrack {
 public:
  cSmfTrack& Event(uint32_t delta, std::initializer_list<uint8_t> bytes);
  cSmfTrack& Tempo(uint32_t delta, uint32_t microsecondsPerQuarter);
  cSmfTrack& Meta(uint32_t delta, uint8_t type, const std::string& text);
  cSmfTrack& SysEx(uint32_t delta, const std::vector<uint8_t>& data);  // data behind F0, with its F7
  cSmfTrack& End(uint32_t delta);
  const std::vector<uint8_t>& Bytes() const { return m_bytes; }

 private:
  std::vector<uint8_t> m_bytes;
};

class cSmfWriter {
 public:
  cSmfWriter(uint16_t format, uint16_t division) : m_uFormat(format), m_uDivision(division) {}
  cSmfTrack& AddTrack();
  std::vector<uint8_t> Bytes() const;

 private:
  uint16_t m_uFormat;
  uint16_t m_uDivision;
  std::vector<cSmfTrack> m_tracks;
};

}  // namespace velmora

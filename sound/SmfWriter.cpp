#include "sound/SmfWriter.h"

#include "platform/ByteOrder.h"
#include "sound/MidiVarLen.h"

namespace velmora {

cSmfTrack& cSmfTrack::Event(uint32_t delta, std::initializer_list<uint8_t> bytes) {
  WriteVarLen(m_bytes, delta);
  m_bytes.insert(m_bytes.end(), bytes);
  return *this;
}

cSmfTrack& cSmfTrack::Tempo(uint32_t delta, uint32_t microsecondsPerQuarter) {
  WriteVarLen(m_bytes, delta);
  m_bytes.insert(m_bytes.end(), {0xFF, 0x51, 0x03});
  AppendBig(m_bytes, microsecondsPerQuarter, 3);
  return *this;
}

cSmfTrack& cSmfTrack::Meta(uint32_t delta, uint8_t type, const std::string& text) {
  WriteVarLen(m_bytes, delta);
  m_bytes.push_back(0xFF);
  m_bytes.push_back(type);
  WriteVarLen(m_bytes, static_cast<uint32_t>(text.size()));
  m_bytes.insert(m_bytes.end(), text.begin(), text.end());
  return *this;
}

cSmfTrack& cSmfTrack::SysEx(uint32_t delta, const std::vector<uint8_t>& data) {
  WriteVarLen(m_bytes, delta);
  m_bytes.push_back(0xF0);
  WriteVarLen(m_bytes, static_cast<uint32_t>(data.size()));
  m_bytes.insert(m_bytes.end(), data.begin(), data.end());
  return *this;
}

cSmfTrack& cSmfTrack::End(uint32_t delta) { return Event(delta, {0xFF, 0x2F, 0x00}); }

cSmfTrack& cSmfWriter::AddTrack() { return m_tracks.emplace_back(); }

std::vector<uint8_t> cSmfWriter::Bytes() const {
  std::vector<uint8_t> out = {'M', 'T', 'h', 'd', 0, 0, 0, 6};
  AppendBig(out, m_uFormat, 2);
  AppendBig(out, static_cast<uint32_t>(m_tracks.size()), 2);
  AppendBig(out, m_uDivision, 2);
  for (const cSmfTrack& track : m_tracks) {
    out.insert(out.end(), {'M', 'T', 'r', 'k'});
    AppendBig(out, static_cast<uint32_t>(track.Bytes().size()), 4);
    out.insert(out.end(), track.Bytes().begin(), track.Bytes().end());
  }
  return out;
}

}  // namespace velmora

#include "sound/SmfFlattener.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <queue>
#include <utility>

#include "core/Log.h"
#include "core/SystemText.h"
#include "platform/ByteOrder.h"
#include "sound/MidiVarLen.h"

namespace velmora {
namespace {

constexpr size_t kFirstTrack = 14;
constexpr size_t kTrackHeader = 8;
const uint8_t kEndOfTrack[] = {0x2F, 0x00};

// One event while flattening: its bytes behind the status, which is kept
// apart so an event read under running status gets its status back.
struct cEventNode {
  uint32_t time = 0;
  uint8_t status = 0;
  const uint8_t* body = nullptr;
  uint32_t size = 0;
};

struct cTrack {
  std::vector<cEventNode> nodes;
  uint32_t endTime = 0;
};

class cSmfSource {
 public:
  cSmfSource(const uint8_t* data, size_t size) : m_pData(data), m_pEnd(data + size), m_nSize(size) {}

  // Header bytes behind the end read as 0, so a short file fails the tests.
  uint32_t BigEndian(size_t at, size_t count) const {
    uint32_t value = 0;
    for (size_t i = at; i < at + count; ++i) value = value << 8 | (i < m_nSize ? m_pData[i] : 0);
    return value;
  }
  bool Tag(size_t at, const char* tag) const { return at + 4 <= m_nSize && std::memcmp(m_pData + at, tag, 4) == 0; }

  // Reads the track whose "MTrk" stands at `at`; gives the offset behind its
  // FF 2F 00. False when the data ends first: the track keeps what was read.
  bool ReadTrack(size_t at, cTrack& track, size_t& next) const {
    if (at + kTrackHeader > m_nSize) return false;
    const uint8_t* p = m_pData + at + kTrackHeader;
    uint8_t running = 0;
    for (;;) {
      cVarLen delta = ReadVarLen(p, m_pEnd);
      if (delta.bytes == 0 && p + 4 > m_pEnd) return false;
      p += delta.bytes;
      track.endTime += delta.value;
      if (p >= m_pEnd) return false;
      uint8_t status = running;
      if (*p & 0x80) {
        status = *p++;
        if (status < 0xF0) running = status;
      }
      if (status == 0xFF && m_pEnd - p >= 2 && std::equal(p, p + 2, kEndOfTrack)) {
        next = static_cast<size_t>(p + 2 - m_pData);
        return true;
      }
      uint32_t size = 0;
      if (!BodySize(status, p, size)) return false;
      track.nodes.push_back({track.endTime, status, p, size});
      p += size;
    }
  }

 private:
  // The bytes of an event behind its status byte, by its status. False
  // when they run past the end of the data, or a length can't be read.
  bool BodySize(uint8_t status, const uint8_t* body, uint32_t& size) const {
    uint64_t left = static_cast<uint64_t>(m_pEnd - body);
    uint64_t total = ((status & 0xF0) == 0xC0 || (status & 0xF0) == 0xD0) ? 1 : 2;
    if (status == 0xFF || status == 0xF0 || status == 0xF7) {
      uint32_t lead = status == 0xFF ? 1 : 0;  // the type byte of a meta event
      if (lead > left) return false;
      cVarLen length = ReadVarLen(body + lead, m_pEnd);
      if (length.bytes == 0) return false;
      total = uint64_t{lead} + length.bytes + length.value;
    }
    size = static_cast<uint32_t>(total);
    return total <= left;
  }

  const uint8_t* m_pData;
  const uint8_t* m_pEnd;
  size_t m_nSize;
};

const char* HeaderFault(const cSmfSource& source) {
  if (!source.Tag(0, "MThd")) return SysText("Midi %s Init 標準MIDIでない(4)");
  if (source.BigEndian(4, 4) != 6) return SysText("Midi %s Init 標準MIDIでない(6)");
  uint32_t format = source.BigEndian(8, 2);
  if (format == 2) return SysText("Midi %s Init 対応フォーマットが2でない");
  if (format > 2) return SysText("Midi %s Init 対応フォーマットが0または1でない");
  if (!source.Tag(kFirstTrack, "MTrk")) return SysText("Midi %s Init 標準MIDIでない(4)");
  return nullptr;
}

// Reads the tracks one behind the other; false when the data ran out.
bool ReadTracks(const cSmfSource& source, std::vector<cTrack>& tracks) {
  size_t at = kFirstTrack;
  for (cTrack& track : tracks) {
    if (!source.ReadTrack(at, track, at)) return false;
  }
  return true;
}

void AppendEvent(std::vector<uint8_t>& image, uint32_t delta, const cEventNode& node) {
  // Only a song whose track times wrapped round has a step this long.
  WriteVarLen(image, std::min(delta, kVarLenLimit - 1));
  image.push_back(node.status);
  image.insert(image.end(), node.body, node.body + node.size);
}

// Merges the tracks by time, the lower track first on a tie.
void WriteEvents(const std::vector<cTrack>& tracks, std::vector<uint8_t>& image) {
  using cHead = std::pair<uint32_t, size_t>;  // time, track
  std::priority_queue<cHead, std::vector<cHead>, std::greater<cHead>> heads;
  std::vector<size_t> next(tracks.size(), 0);
  for (size_t t = 0; t < tracks.size(); ++t) {
    if (!tracks[t].nodes.empty()) heads.push({tracks[t].nodes[0].time, t});
  }
  uint32_t previous = 0;
  while (!heads.empty()) {
    size_t t = heads.top().second;
    heads.pop();
    const cEventNode& node = tracks[t].nodes[next[t]++];
    AppendEvent(image, node.time - previous, node);
    previous = node.time;
    if (next[t] < tracks[t].nodes.size()) heads.push({tracks[t].nodes[next[t]].time, t});
  }
}

}  // namespace

std::vector<uint8_t> FlattenSmf(const uint8_t* data, size_t size, const std::string& name) {
  cSmfSource source(data, size);
  if (const char* fault = HeaderFault(source)) {
    ReportFormat(fault, name.c_str());
    return {};
  }
  std::vector<cTrack> tracks(std::max<uint32_t>(source.BigEndian(10, 2), 1));
  if (!ReadTracks(source, tracks)) {
    ReportFormat(SysText("Midi %s Init データが途中で終わっている"), name.c_str());
  }
  uint32_t endTime = 0;
  for (const cTrack& track : tracks) endTime = std::max(endTime, track.endTime);
  tracks.back().nodes.push_back({endTime, 0xFF, kEndOfTrack, sizeof kEndOfTrack});

  std::vector<uint8_t> image = {'M', 'T', 'h', 'd', 0, 0, 0, 6, 0, 0, 0, 1, data[12], data[13],
                                'M', 'T', 'r', 'k', 0, 0, 0, 0};
  WriteEvents(tracks, image);
  StoreBig(image.data() + 18, static_cast<uint32_t>(image.size() - kSmfImageEvents), 4);
  return image;
}

uint32_t SmfImageEnd(const std::vector<uint8_t>& image) {
  if (image.size() < kSmfImageEvents) return 0;
  const uint32_t length = ReadBig(image.data() + 18, 4);
  return static_cast<uint32_t>(std::min<size_t>(kSmfImageEvents + static_cast<size_t>(length), image.size()));
}

}  // namespace velmora

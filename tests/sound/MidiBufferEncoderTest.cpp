#include <gtest/gtest.h>

#include "MidiTestSupport.h"
#include "sound/MidiBufferEncoder.h"
#include "sound/SmfWriter.h"

namespace velmora::testing {
namespace {

constexpr uint32_t kEndWord = 0x40002FFF;

std::vector<uint8_t> ImageOf(const cSmfWriter& file) {
  std::vector<uint8_t> bytes = file.Bytes();
  return FlattenSmf(bytes.data(), bytes.size(), "x.mid");
}

uint32_t Encode(const std::vector<uint8_t>& image, uint32_t pos, cTestBuffer& buffer) {
  return EncodeMidiBuffer(image, SmfImageEnd(image), pos, buffer.header);
}

TEST(MidiBufferEncoder, TempoGoesInPlaceTextWritesNothingAndASmallSongEndsInItsOneBuffer) {
  cSmfWriter file(0, 96);
  file.AddTrack()
      .Event(0, {0x90, 60, 100})
      .Meta(10, 0x01, "verse")
      .Event(5, {0xC1, 7})
      .Tempo(5, 0x0A1B2C)
      .Meta(1, 0x06, "marker")
      .Event(2, {0x80, 60, 0})
      .End(4);
  std::vector<uint8_t> image = ImageOf(file);
  cTestBuffer buffer;
  buffer.header.dwFlags = MHDR_DONE | MHDR_PREPARED;
  EXPECT_EQ(Encode(image, kSmfImageEvents, buffer), SmfImageEnd(image) - kSmfImageEvents);

  std::vector<cBufferEvent> events = BufferEvents(buffer.header);
  ASSERT_EQ(events.size(), 5u);
  EXPECT_EQ(events[0].delta, 0u);
  EXPECT_EQ(events[0].word, 0x00643C90u);
  EXPECT_EQ(events[1].delta, 15u);  // the text event's delta comes along
  EXPECT_EQ(events[1].word, 0x000007C1u);
  EXPECT_EQ(events[2].delta, 5u);
  EXPECT_EQ(events[2].word, 0x010A1B2Cu);
  EXPECT_EQ(events[3].delta, 3u);
  EXPECT_EQ(events[3].word, 0x00003C80u);
  EXPECT_EQ(events[4].delta, 4u);
  EXPECT_EQ(events[4].word, kEndWord);  // the only event that calls back
  EXPECT_EQ(buffer.header.dwBytesRecorded, 5 * kMidiEventWords);
  EXPECT_EQ(buffer.header.dwFlags, 0u);
  EXPECT_EQ(WordAt(buffer.header.lpData + 5 * kMidiEventWords), 0u) << "the rest of the buffer is cleared";
}

TEST(MidiBufferEncoder, TwoThousandShortEventsFillOneBufferAndTheEndGoesAloneInTheNext) {
  cSmfWriter file(0, 96);
  cSmfTrack& track = file.AddTrack();
  for (int i = 0; i < 2000; ++i) track.Event(1, {0x90, static_cast<uint8_t>(i % 128), 1});
  track.End(9);
  std::vector<uint8_t> image = ImageOf(file);

  cTestBuffer first;
  uint32_t pos = kSmfImageEvents + Encode(image, kSmfImageEvents, first);
  EXPECT_EQ(first.header.dwBytesRecorded, 24000u);
  std::vector<cBufferEvent> events = BufferEvents(first.header);
  ASSERT_EQ(events.size(), 2000u);
  for (size_t i = 0; i + 1 < events.size(); ++i) ASSERT_FALSE(events[i].word & MEVT_F_CALLBACK) << i;
  EXPECT_EQ(events.back().word, MEVT_F_CALLBACK | 0x00014F90u);
  EXPECT_EQ(pos, SmfImageEnd(image) - 4);

  cTestBuffer second;
  EXPECT_EQ(Encode(image, pos, second), 4u);
  events = BufferEvents(second.header);
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].delta, 9u);
  EXPECT_EQ(events[0].word, kEndWord);
}

TEST(MidiBufferEncoder, SysExIsALongEventPaddedToWholeWords) {
  cSmfWriter file(0, 96);
  file.AddTrack().SysEx(3, {0x41, 0x10, 0x42, 0x12, 0xF7}).End(0);
  std::vector<uint8_t> image = ImageOf(file);
  cTestBuffer buffer;
  Encode(image, kSmfImageEvents, buffer);
  EXPECT_EQ(buffer.header.dwBytesRecorded, 20u + 12u);
  std::vector<cBufferEvent> events = BufferEvents(buffer.header);
  ASSERT_EQ(events.size(), 2u);
  EXPECT_EQ(events[0].delta, 3u);
  EXPECT_EQ(events[0].word, MEVT_F_LONG | 6u);
  EXPECT_EQ(events[0].data, (std::vector<uint8_t>{0xF0, 0x41, 0x10, 0x42, 0x12, 0xF7}));
  EXPECT_EQ(std::vector<uint8_t>(buffer.bytes.begin() + 18, buffer.bytes.begin() + 20),
            (std::vector<uint8_t>{0, 0}));
  EXPECT_EQ(events[1].word, kEndWord);
}

TEST(MidiBufferEncoder, AnEventThatDoesNotFitWaitsWithTheSilentEventsBeforeIt) {
  cSmfWriter file(0, 96);
  file.AddTrack()
      .Event(1, {0x90, 60, 1})
      .Event(1, {0x90, 61, 1})
      .Meta(7, 0x01, "x")
      .Event(3, {0x90, 62, 1})
      .SysEx(4, std::vector<uint8_t>(40, 0x01))  // bigger than any buffer here: passed over
      .Event(6, {0x80, 62, 0})
      .End(0);
  std::vector<uint8_t> image = ImageOf(file);
  cTestBuffer first(24);
  uint32_t pos = kSmfImageEvents + Encode(image, kSmfImageEvents, first);
  std::vector<cBufferEvent> events = BufferEvents(first.header);
  ASSERT_EQ(events.size(), 2u);
  EXPECT_EQ(events[1].word, MEVT_F_CALLBACK | 0x00013D90u);

  cTestBuffer second(24);
  pos += Encode(image, pos, second);
  events = BufferEvents(second.header);
  ASSERT_EQ(events.size(), 2u);
  EXPECT_EQ(events[0].delta, 10u);
  EXPECT_EQ(events[1].delta, 10u);
  EXPECT_EQ(events[1].word, MEVT_F_CALLBACK | 0x00003E80u);

  cTestBuffer third(24);
  pos += Encode(image, pos, third);
  EXPECT_EQ(pos, SmfImageEnd(image));
  ASSERT_EQ(BufferEvents(third.header).size(), 1u);
}

}  // namespace
}  // namespace velmora::testing

#include <gtest/gtest.h>

#include "MidiTestSupport.h"
#include "sound/SmfWriter.h"

namespace velmora::testing {
namespace {

std::vector<uint8_t> Flatten(const std::vector<uint8_t>& file) { return FlattenSmf(file.data(), file.size(), "x.mid"); }

const cTimedEvent kEnd = {0, {0xFF, 0x2F, 0x00}};

cTimedEvent At(uint32_t time, std::vector<uint8_t> bytes) { return {time, std::move(bytes)}; }
cTimedEvent EndAt(uint32_t time) { return {time, kEnd.bytes}; }

TEST(SmfFlattener, MergesTracksByTimeWithTiesInTrackOrderAndTheEndLast) {
  cSmfWriter file(1, 480);
  file.AddTrack().Tempo(0, 400000).Event(10, {0x90, 60, 100}).End(500);  // ends at 510
  file.AddTrack().Event(10, {0x91, 64, 90}).Event(0, {0x81, 64, 0}).End(100);
  file.AddTrack().Event(5, {0xC2, 3}).Event(505, {0x92, 70, 1}).End(0);  // its last event ties the end
  std::vector<uint8_t> image = Flatten(file.Bytes());

  ASSERT_GE(image.size(), kSmfImageEvents);
  EXPECT_EQ(std::vector<uint8_t>(image.begin(), image.begin() + 14),
            (std::vector<uint8_t>{'M', 'T', 'h', 'd', 0, 0, 0, 6, 0, 0, 0, 1, 0x01, 0xE0}));
  EXPECT_EQ(SmfImageEnd(image), image.size());
  EXPECT_EQ(ImageEvents(image), (std::vector<cTimedEvent>{
                                    At(0, {0xFF, 0x51, 0x03, 0x06, 0x1A, 0x80}),
                                    At(5, {0xC2, 3}),
                                    At(10, {0x90, 60, 100}),
                                    At(10, {0x91, 64, 90}),
                                    At(10, {0x81, 64, 0}),
                                    At(510, {0x92, 70, 1}),
                                    EndAt(510),  // the latest track end, not the last track's
                                }));
}

TEST(SmfFlattener, WritesTheStatusOfEveryEventAndKeepsRunningStatusAcrossMetaAndSysEx) {
  cSmfWriter file(0, 96);
  file.AddTrack()
      .Event(0, {0x90, 60, 100})
      .Event(1, {62, 100})  // running status
      .Meta(1, 0x01, "text")
      .Event(1, {64, 100})  // still note-on after the meta event
      .SysEx(1, {0x41, 0x10, 0xF7})
      .Event(1, {60, 0})  // and after the system exclusive one
      .Event(1, {0xC0, 5})
      .Event(1, {6})  // one data byte under a program change
      .End(0);
  EXPECT_EQ(ImageEvents(Flatten(file.Bytes())), (std::vector<cTimedEvent>{
                                                    At(0, {0x90, 60, 100}),
                                                    At(1, {0x90, 62, 100}),
                                                    At(2, {0xFF, 0x01, 4, 't', 'e', 'x', 't'}),
                                                    At(3, {0x90, 64, 100}),
                                                    At(4, {0xF0, 3, 0x41, 0x10, 0xF7}),
                                                    At(5, {0x90, 60, 0}),
                                                    At(6, {0xC0, 5}),
                                                    At(7, {0xC0, 6}),
                                                    EndAt(7),
                                                }));
}

TEST(SmfFlattener, RefusesBadHeadersWithTheirMessages) {
  struct cCase {
    size_t at;
    std::vector<uint8_t> bytes;
    const char* message;
  } cases[] = {
      {0, {'R', 'I', 'F', 'F'}, "Midi x.mid Init 標準MIDIでない(4)"},
      {7, {7}, "Midi x.mid Init 標準MIDIでない(6)"},
      {8, {0, 2}, "Midi x.mid Init 対応フォーマットが2でない"},
      {8, {0, 3}, "Midi x.mid Init 対応フォーマットが0または1でない"},
      {14, {'M', 'T', 'r', 'x'}, "Midi x.mid Init 標準MIDIでない(4)"},
  };
  for (const cCase& c : cases) {
    cReportedProject project;
    cSmfWriter file(1, 96);
    file.AddTrack().Event(0, {0x90, 60, 1}).End(1);
    std::vector<uint8_t> bytes = file.Bytes();
    std::copy(c.bytes.begin(), c.bytes.end(), bytes.begin() + c.at);
    EXPECT_TRUE(Flatten(bytes).empty()) << c.message;
    EXPECT_EQ(project.Report(), std::string(c.message) + "\n");
  }
}

TEST(SmfFlattener, StopsAtTheEndOfTheDataWhateverTheLengthsSay) {
  cSmfWriter file(1, 96);
  file.AddTrack().Event(0, {0x90, 60, 1}).End(10);
  file.AddTrack().Event(3, {0x91, 61, 1}).SysEx(1, {1, 2, 3, 4, 5, 6, 0xF7}).End(0);
  std::vector<uint8_t> whole = file.Bytes();
  for (size_t size = 0; size < whole.size(); ++size) {
    std::vector<uint8_t> cut(whole.begin(), whole.begin() + size);
    cut.shrink_to_fit();  // so a read past the end is caught by the sanitiser
    std::vector<uint8_t> image = Flatten(cut);
    if (image.empty()) continue;
    std::vector<cTimedEvent> events = ImageEvents(image);
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.back().bytes, kEnd.bytes) << size;
  }
  // The first track whole, the second cut inside its system exclusive event.
  cReportedProject project;
  std::vector<uint8_t> cut(whole.begin(), whole.end() - 8);
  EXPECT_EQ(ImageEvents(Flatten(cut)), (std::vector<cTimedEvent>{At(0, {0x90, 60, 1}), At(3, {0x91, 61, 1}),
                                                                 EndAt(10)}));
  EXPECT_EQ(project.Report(), "Midi x.mid Init データが途中で終わっている\n");
}

TEST(SmfFlattener, AFlattenedImageFlattensToItself) {
  cSmfWriter file(1, 120);
  file.AddTrack().Tempo(0, 600000).Tempo(240, 300000).End(0);
  file.AddTrack().Event(0, {0x90, 60, 100}).Event(120, {60, 0}).Event(240, {0xE0, 0, 0x40}).End(0);
  std::vector<uint8_t> image = Flatten(file.Bytes());
  EXPECT_EQ(Flatten(image), image);
}

TEST(MidiVarLen, ReadsAndWritesTheShortestForms) {
  struct cCase {
    uint32_t value;
    std::vector<uint8_t> bytes;
  } cases[] = {{0, {0x00}}, {0x7F, {0x7F}}, {0x80, {0x81, 0x00}}, {0x3FFF, {0xFF, 0x7F}},
               {0x200000, {0x81, 0x80, 0x80, 0x00}}, {0x0FFFFFFF, {0xFF, 0xFF, 0xFF, 0x7F}}};
  for (const cCase& c : cases) {
    std::vector<uint8_t> out;
    WriteVarLen(out, c.value);
    EXPECT_EQ(out, c.bytes);
    cVarLen read = ReadVarLen(c.bytes.data(), c.bytes.data() + c.bytes.size());
    EXPECT_EQ(read.value, c.value);
    EXPECT_EQ(read.bytes, c.bytes.size());
  }
  std::vector<uint8_t> none;
  WriteVarLen(none, kVarLenLimit);
  EXPECT_TRUE(none.empty());
  const uint8_t endless[] = {0x80, 0x80, 0x80, 0x80, 0x00};
  EXPECT_EQ(ReadVarLen(endless, endless + 5).bytes, 0u);
  EXPECT_EQ(ReadVarLen(endless, endless + 2).bytes, 0u);  // the data ends inside the number
}

}  // namespace
}  // namespace velmora::testing

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <thread>

#include "platform/ByteOrder.h"
#include "platform/FluidSynthSink.h"
#include "platform/MidiRecordingSink.h"
#include "platform/MidiStream.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

// A buffer of stream events written by hand.
class cEventBuffer {
 public:
  cEventBuffer() : m_bytes(240) {
    header.lpData = m_bytes.data();
    header.dwBufferLength = static_cast<uint32_t>(m_bytes.size());
  }
  cEventBuffer& Add(uint32_t delta, uint32_t word, const std::vector<uint8_t>& data = {}) {
    for (uint32_t value : {delta, 0u, word}) Put(value);
    for (uint8_t byte : data) m_bytes[header.dwBytesRecorded++] = byte;
    header.dwBytesRecorded = (header.dwBytesRecorded + 3) & ~3u;
    return *this;
  }
  cMidiHeader header;

 private:
  void Put(uint32_t value) {
    StoreLittle(m_bytes.data() + header.dwBytesRecorded, value, 4);
    header.dwBytesRecorded += 4;
  }
  std::vector<uint8_t> m_bytes;
};

struct cStreamRig {
  explicit cStreamRig(cManualMidiClock::eMode mode)
      : sink(std::make_shared<cRecordingMidiSink>()),
        clock(std::make_shared<cManualMidiClock>(mode)),
        stream(sink, clock, &queue) {
    queue.Open();
  }
  void Queue(cEventBuffer& buffer) {
    ASSERT_EQ(stream.Prepare(buffer.header), MMSYSERR_NOERROR);
    ASSERT_EQ(stream.Out(buffer.header), MMSYSERR_NOERROR);
  }
  std::vector<int64_t> ShortTimes() const {
    std::vector<int64_t> times;
    for (const cRecordedMidi& message : sink->ShortMessages()) times.push_back(message.timeUs);
    return times;
  }
  std::shared_ptr<cRecordingMidiSink> sink;
  std::shared_ptr<cManualMidiClock> clock;
  cMidiThreadQueue queue;
  cMidiStream stream;
};

TEST(MidiStream, TimesEventsByDivisionAndTempoAndCallsBackAfterTheFlaggedOne) {
  cStreamRig rig(cManualMidiClock::eMode::Jumping);
  ASSERT_EQ(rig.stream.SetTimeDivision(100), MMSYSERR_NOERROR);
  cEventBuffer buffer;
  buffer.Add(0, 0x7F3C90)
      .Add(100, 0x7F3E90)                    // 100 ticks of 5 ms
      .Add(0, uint32_t{MEVT_TEMPO} << 24 | 250000)
      .Add(100, 0x003C80)                    // now 100 ticks of 2.5 ms
      .Add(20, MEVT_F_LONG | 3, {0xF0, 0x7E, 0xF7})
      .Add(30, MEVT_F_CALLBACK | 0x002FFF);  // the end: calls back, sends nothing
  rig.Queue(buffer);
  ASSERT_EQ(rig.stream.Restart(), MMSYSERR_NOERROR);

  cMidiThreadMessage message;
  ASSERT_EQ(rig.queue.Get(message), 1);
  EXPECT_EQ(message.message, MM_MOM_POSITIONCB);
  EXPECT_EQ(message.header, &buffer.header);
  EXPECT_EQ(buffer.header.dwOffset, 5 * kMidiEventWords + 4);
  EXPECT_EQ(buffer.header.dwFlags & (MHDR_INQUEUE | MHDR_DONE), MHDR_DONE) << "given back before the callback";
  EXPECT_EQ(rig.ShortTimes(), (std::vector<int64_t>{0, 500000, 750000}));
  std::vector<cRecordedMidi> all = rig.sink->Messages();
  ASSERT_EQ(all.size(), 4u);
  EXPECT_EQ(all[3].data, (std::vector<uint8_t>{0xF0, 0x7E, 0xF7}));
  EXPECT_EQ(all[3].timeUs, 800000);
  EXPECT_EQ(rig.clock->NowUs(), 875000);
}

TEST(MidiStream, SmpteDivisionCountsFramesAndTicks) {
  cStreamRig rig(cManualMidiClock::eMode::Jumping);
  ASSERT_EQ(rig.stream.SetTimeDivision(0xE728), MMSYSERR_NOERROR);  // 25 frames of 40 ticks: 1 ms a tick
  cEventBuffer buffer;
  buffer.Add(0, uint32_t{MEVT_TEMPO} << 24 | 1000).Add(7, 0x7F3C90).Add(3, MEVT_F_CALLBACK | 0x003C80);
  rig.Queue(buffer);
  rig.stream.Restart();
  cMidiThreadMessage message;
  ASSERT_EQ(rig.queue.Get(message), 1);
  EXPECT_EQ(rig.ShortTimes(), (std::vector<int64_t>{7000, 10000}));
}

TEST(MidiStream, PauseHoldsThePlaceAndStopGivesBuffersBackAndRewinds) {
  cStreamRig rig(cManualMidiClock::eMode::Stepped);
  rig.stream.SetTimeDivision(100);  // 5 ms a tick
  cEventBuffer buffer;
  buffer.Add(0, 0x013C90).Add(10, 0x013D90).Add(10, 0x013E90).Add(10, 0x013F90);
  rig.Queue(buffer);
  rig.stream.Restart();
  ASSERT_TRUE(rig.sink->WaitForShortMessages(1, 2s));
  rig.clock->Advance(60000);
  ASSERT_TRUE(rig.sink->WaitForShortMessages(2, 2s));
  rig.stream.Pause();
  rig.clock->Advance(1000000);
  std::this_thread::sleep_for(20ms);
  EXPECT_EQ(rig.ShortTimes().size(), 2u) << "nothing plays while paused";
  rig.stream.Restart();
  rig.clock->Advance(39000);  // tick 20 falls 40 ms behind the pause
  std::this_thread::sleep_for(20ms);
  EXPECT_EQ(rig.ShortTimes().size(), 2u);
  rig.clock->Advance(1000);
  ASSERT_TRUE(rig.sink->WaitForShortMessages(3, 2s));
  EXPECT_EQ(rig.ShortTimes().back(), 1100000);

  rig.stream.Stop();
  EXPECT_EQ(buffer.header.dwFlags & (MHDR_INQUEUE | MHDR_DONE), MHDR_DONE);
  int notesOff = 0;
  for (const cRecordedMidi& message : rig.sink->Messages()) notesOff += message.kind == cRecordedMidi::eKind::AllNotesOff;
  EXPECT_EQ(notesOff, 2) << "one for the pause, one for the stop";

  cEventBuffer again;
  again.Add(10, 0x013C90);
  rig.Queue(again);
  rig.stream.Restart();
  rig.clock->Advance(50000);
  ASSERT_TRUE(rig.sink->WaitForShortMessages(4, 2s));
  EXPECT_EQ(rig.ShortTimes().back(), 1150000) << "from tick 0 again, at the default tempo";
  rig.stream.Reset();
}

TEST(MidiStream, RefusesWhatTheWindowsStreamRefuses) {
  cStreamRig rig(cManualMidiClock::eMode::Stepped);
  cEventBuffer buffer;
  buffer.Add(100, 0x013C90);
  EXPECT_EQ(rig.stream.Out(buffer.header), MIDIERR_UNPREPARED);
  rig.Queue(buffer);
  EXPECT_EQ(rig.stream.Out(buffer.header), MIDIERR_STILLPLAYING);
  EXPECT_EQ(rig.stream.Unprepare(buffer.header), MIDIERR_STILLPLAYING);
  EXPECT_EQ(rig.stream.Close(), MIDIERR_STILLPLAYING);
  EXPECT_EQ(rig.stream.SetTimeDivision(0), MMSYSERR_INVALPARAM);
  EXPECT_EQ(rig.stream.SetTimeDivision(0x10000), MMSYSERR_INVALPARAM);
  EXPECT_FALSE(MidiErrorText(MIDIERR_STILLPLAYING).empty());
  EXPECT_TRUE(MidiErrorText(MMSYSERR_NOERROR).empty());
  EXPECT_EQ(rig.stream.Reset(), MMSYSERR_NOERROR);
  EXPECT_EQ(rig.stream.Unprepare(buffer.header), MMSYSERR_NOERROR);
  EXPECT_EQ(rig.stream.Close(), MMSYSERR_NOERROR);
}

TEST(MidiThreadQueue, TakesPostsOnlyWhileOpen) {
  cMidiThreadQueue queue;
  EXPECT_FALSE(queue.Post(1, nullptr)) << "the thread hasn't made its queue yet";
  queue.Open();
  EXPECT_TRUE(queue.Post(2, nullptr));
  cMidiThreadMessage message;
  EXPECT_EQ(queue.Get(message), 1);
  EXPECT_EQ(message.message, 2u);
  queue.PostQuit();
  EXPECT_FALSE(queue.Post(3, nullptr));
  EXPECT_EQ(queue.Get(message), 0);
}

float Loudness(cFluidSynthSink& synth, int frames) {
  std::vector<float> left(frames), right(frames);
  synth.Render(left.data(), right.data(), frames);
  float peak = 0;
  for (int i = 0; i < frames; ++i) peak = std::max({peak, std::fabs(left[i]), std::fabs(right[i])});
  return peak;
}

TEST(FluidSynthSink, SoundsANoteAndFallsSilentAfterAllNotesOff) {
  std::shared_ptr<cFluidSynthSink> synth = cFluidSynthSink::Create(eSynthAudio::Offline);
  if (!synth) GTEST_SKIP() << "no General MIDI soundfont (timgm6mb-soundfont)";
  EXPECT_LT(Loudness(*synth, 4410), 0.001f);
  synth->ShortMessage(0x0000C0, 0);   // piano
  synth->ShortMessage(0x00E0, 0);     // pitch bend, low and high data 0
  const uint8_t reset[] = {0xF0, 0x7E, 0x7F, 0x09, 0x01, 0xF7};  // General MIDI on
  synth->LongMessage(reset, sizeof reset, 0);
  synth->ShortMessage(0x7F3C90, 0);
  EXPECT_GT(Loudness(*synth, 4410), 0.01f);
  synth->AllNotesOff(0);
  Loudness(*synth, 44100);
  EXPECT_LT(Loudness(*synth, 4410), 0.001f);
}

}  // namespace
}  // namespace velmora

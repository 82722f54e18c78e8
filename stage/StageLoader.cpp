#include "stage/StageLoader.h"

#include <chrono>

#include "core/Log.h"
#include "stage/Stage.h"

namespace velmora {
namespace {

constexpr int kStopRounds = 200;
// How long the user-interface thread sleeps between two rounds of taking
// its messages: short enough that its windows paint smoothly, long enough
// that the worker has the processor to itself.
constexpr auto kDropInterval = std::chrono::milliseconds(10);

bool DropNothing() { return true; }

MessageDropper& Dropper() {
  static MessageDropper dropper = DropNothing;
  return dropper;
}

}  // namespace

void SetMessageDropper(MessageDropper dropper) { Dropper() = dropper ? std::move(dropper) : MessageDropper(DropNothing); }

eStageLoad cStageLoader::Run(const std::string& path, cStage& target) {
  Stop();
  m_strPath = path;
  m_pTarget = &target;
  m_bSucceeded = false;
  m_bDone = false;
  m_thread = std::thread([this] {
    m_bSucceeded = m_pTarget->LoadWholeFile(m_strPath) != 0;
    {
      const std::lock_guard<std::mutex> lock(m_doneLock);
      m_bDone = true;
    }
    m_doneSignal.notify_all();
  });
  // The messages are taken first, so that a quit already waiting ends the
  // load however short it is.
  for (;;) {
    if (!Dropper()()) {
      DebugText("msg.message == WM_QUIT");
      Stop();
      return eStageLoad::Quit;
    }
    std::unique_lock<std::mutex> lock(m_doneLock);
    if (m_doneSignal.wait_for(lock, kDropInterval, [this] { return m_bDone.load(); })) break;
  }
  Stop();
  return m_bSucceeded ? eStageLoad::Loaded : eStageLoad::Failed;
}

void cStageLoader::Stop() {
  if (!m_thread.joinable()) return;
  for (int round = 0; round < kStopRounds && !m_bDone.load(); ++round) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  m_thread.join();
}

cStageLoader& StageLoader() {
  static cStageLoader loader;
  return loader;
}

}  // namespace velmora

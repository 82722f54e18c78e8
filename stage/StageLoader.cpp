#include "stage/StageLoader.h"

#include <chrono>

#include "core/Log.h"
#include "stage/Stage.h"

namespace velmora {
namespace {

constexpr int kStopRounds = 200;

bool DropNothing() {
  std::this_thread::yield();
  return true;
}

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
    m_bDone = true;
  });
  do {
    if (!Dropper()()) {
      DebugText("msg.message == WM_QUIT");
      Stop();
      return eStageLoad::Quit;
    }
  } while (!m_bDone.load());
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

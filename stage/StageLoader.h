#pragma once
#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace velmora {

class cStage;

// Takes the messages waiting for the user-interface thread and drops them,
// painting what needs it; false when a quit request was among them. The GUI
// installs the real one; it is called between short waits for the worker,
// never in a busy loop.
using MessageDropper = std::function<bool()>;
void SetMessageDropper(MessageDropper dropper);  // empty brings back the default

enum class eStageLoad { Loaded, Failed, Quit };

// The one worker that parses a stage file while the user-interface thread
// only drops its messages. It reads into a stage record of the caller's,
// never the edit stage, so a file that fails halfway leaves the stage being
// edited as it was; no lock guards the record, as nobody else touches it
// until the worker has ended.
class cStageLoader {
 public:
  ~cStageLoader() { Stop(); }
  // Reads `target` from `path`; Failed also for a file whose contents
  // turned out damaged, Quit when a quit request ended the wait.
  eStageLoad Run(const std::string& path, cStage& target);
  // Waits for a running worker. A load reads a bounded file and can't hang,
  // so after the rounds of asking it is awaited rather than killed halfway
  // through writing the edit stage.
  void Stop();
  bool Running() const { return m_thread.joinable() && !m_bDone.load(); }

 private:
  std::string m_strPath;
  cStage* m_pTarget = nullptr;
  std::thread m_thread;
  std::atomic<bool> m_bDone{false};
  std::atomic<bool> m_bSucceeded{false};
  std::mutex m_doneLock;
  std::condition_variable m_doneSignal;
};

cStageLoader& StageLoader();

}  // namespace velmora

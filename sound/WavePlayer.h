#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/Prompt.h"
#include "sound/MediaDevice.h"

namespace velmora {

// The sound-effect preview: plays a ".wav" or ".mid" file once on one of
// its open rows. Nothing reacts to a sound's end; the next start ends it.
class cWavePlayer {
 public:
  // Opens one row per name; 1, or 0 without rows.
  int Open(const char* deviceType, const std::vector<std::string>& names);
  // Rewrites an upper-case ".MID" in `path` to ".mid". 1 if started.
  int PlayFile(OwnerWindow window, int row, std::string& path, uint32_t from);
  bool ChangeSound(int row, const char* deviceType, const std::string& path);
  void Start(OwnerWindow window, int row, bool notify, bool resume, uint32_t from);
  void Halt(bool pause);
  void Close();
  // The row started last and not halted since, -1 for none; a sound that
  // ended by itself still counts.
  int PlayingRow() const { return m_iPlaying; }

 private:
  struct cOpenRow {
    std::string deviceType;
    std::string element;
    std::unique_ptr<cMediaDevice> device;
  };
  void OpenRow(cOpenRow& row);

  std::vector<cOpenRow> m_vecRows;
  int m_iPlaying = -1;
};

}  // namespace velmora

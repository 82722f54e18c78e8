#pragma once
#include "support/TempProject.h"

namespace velmora::testing {

// A project folder whose Sound and Bgm lists name sample files, with the
// two players started as the editor starts them; all undone afterwards.
//   Sound: 0 reserved, 1 "wave\free.wav", 2 a missing file, 3 no file.
//   Bgm:   0 reserved, 1 "bgm\Free.ogg" at volume 40, 2 a missing file.
class cPreviewProject {
 public:
  cPreviewProject();
  ~cPreviewProject();
  cPreviewProject(const cPreviewProject&) = delete;
  cPreviewProject& operator=(const cPreviewProject&) = delete;
  static constexpr int kMusicVolume = 40;

 private:
  cTempProject m_folder;
};

}  // namespace velmora::testing

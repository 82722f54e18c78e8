#include <fnmatch.h>
#include <gtest/gtest.h>

#include <string>

#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

// Keeps the filter of every file prompt, as "label" and "pattern".
class cFilterPrompt : public testing::cScriptedPrompt {
 public:
  bool OpenFile(OwnerWindow owner, const cFilePrompt& request, std::string& path) override {
    Keep(request.filter);
    return cScriptedPrompt::OpenFile(owner, request, path);
  }
  bool SaveFile(OwnerWindow owner, const cFilePrompt& request, std::string& path) override {
    Keep(request.filter);
    return cScriptedPrompt::SaveFile(owner, request, path);
  }
  std::string label;
  std::string pattern;

 private:
  void Keep(const std::string& filter) {
    const size_t cut = filter.find('\0');
    label = filter.substr(0, cut);
    pattern = filter.substr(cut + 1, filter.find('\0', cut + 1) - cut - 1);
  }
};

bool Finds(const std::string& pattern, const char* name) { return fnmatch(pattern.c_str(), name, 0) == 0; }

// The open prompt must list the stage files of every version under the
// system's label; the save prompt only those of the version it writes.
TEST(StageFilePrompts, OpenListsEveryVersionAndSaveItsOwn) {
  testing::cTempProject project;
  StageEdit() = cStageEdit();
  EditStage().InitDefault();
  cFilterPrompt prompt;

  EXPECT_EQ(OpenStage(), 0);
  EXPECT_EQ(prompt.label, "StageFile ( *.stg4_ )");
  EXPECT_TRUE(Finds(prompt.pattern, "Stage1.stg4_950"));
  EXPECT_TRUE(Finds(prompt.pattern, "Old.stg4_700"));
  EXPECT_FALSE(Finds(prompt.pattern, "Common.plt4"));

  EXPECT_EQ(SaveStage(0), 0);
  EXPECT_EQ(prompt.label, "StageFile ( *.stg4_950 )");
  EXPECT_TRUE(Finds(prompt.pattern, "Stage1.stg4_950"));
  EXPECT_FALSE(Finds(prompt.pattern, "Old.stg4_700"));
}

}  // namespace
}  // namespace velmora

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include "core/GameProgram.h"
#include "core/PrjOption.h"
#include "core/SaveData.h"
#include "platform/FileSystem.h"
#include "platform/Process.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/TestPlay.h"
#include "support/ExecutableImages.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

const char* kStored = ".\\data\\stg4\\a.stg4_950";

// A project whose game program is a Windows program found by its mark,
// with an open stage that has a player and was saved once.
class cWineTestPlayTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::MakeDirs("data/stg4");
    testing::MakeDirs("data/work");
    ProjectOption().m_bAutoGame = 1;
    StageEdit() = cStageEdit();
    EditStage().InitDefault();
    cEdChara& player = EditStage().m_vecCharaCell[static_cast<size_t>(EditStage().CellIndex(2, 3))];
    player.m_nGraphicNo = 1;
    player.m_nControl = 0;
    ASSERT_TRUE(EditStage().SaveFile(kStored));
    StageEdit().m_bHasStage = 1;
    StageEdit().m_strPath = kStored;
    m_savedStage = testing::ReadBytes("data/stg4/a.stg4_950");
    const char* path = std::getenv("PATH");
    m_path = path ? path : "";
  }
  void TearDown() override {
    ::setenv("PATH", m_path.c_str(), 1);
    ProjectOption().SetUp();
    StageEdit() = cStageEdit();
    g_bNoSave = 0;
  }
  // Waits for the game's process to end the test play.
  bool PlayEndsWithin(int seconds) {
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    while (StageEdit().m_bTestPlay && std::chrono::steady_clock::now() < until) {
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
      TakeEndedGames();
    }
    return !StageEdit().m_bTestPlay;
  }
  bool HistoryBuilt() const { return StageEdit().m_vecUndoMask.size() == static_cast<size_t>(EditStage().m_iUndoCount); }

  testing::cTempProject m_project;
  std::vector<uint8_t> m_savedStage;
  std::string m_path;
};

TEST_F(cWineTestPlayTest, WithoutWineThePackageIsNamedAndNothingIsSaved) {
  testing::WriteBytes("game.exe", testing::MakePe(false, {{1024, u"GAME"}}));
  testing::MakeDirs("empty");
  ::setenv("PATH", (m_project.Path() + "/empty").c_str(), 1);
  EditStage().m_vecBlockCell[5].m_nGraphicNo = 1;
  StageEdit().m_bStageChanged = 1;
  testing::cScriptedPrompt prompt;

  EXPECT_EQ(0, TestPlay(0));
  ASSERT_EQ(1u, prompt.Shown().size());
  EXPECT_NE(std::string::npos, prompt.LastText().find("sudo apt-get install wine"));
  EXPECT_EQ(0, StageEdit().m_bTestPlay);
  EXPECT_EQ(m_savedStage, testing::ReadBytes("data/stg4/a.stg4_950"));
}

// A stand-in for wine that notes where and with what it ran, and ends
// without a word to the editor, as a game under wine does.
TEST_F(cWineTestPlayTest, TheEndOfTheProcessUnderWineEndsTheTestPlay) {
  testing::WriteBytes("game.exe", testing::MakePe(false, {{1024, u"GAME"}}));
  testing::MakeDirs("bin");
  testing::WriteText("bin/wine", "#!/bin/sh\nprintf '%s\\n' \"$PWD\" \"$@\" > wine_args.txt\n");
  ::chmod("bin/wine", 0755);
  ::setenv("PATH", (m_project.Path() + "/bin:" + m_path).c_str(), 1);

  ASSERT_EQ(1, TestPlay(0));
  ASSERT_TRUE(PlayEndsWithin(20));
  EXPECT_TRUE(HistoryBuilt());
  EXPECT_EQ(m_project.Path() + "\n" + FullHostPath("game.exe") + "\n" + kStored + "\n", testing::ReadText("wine_args.txt"));
}

const char kGameSource[] =
    "#include <stdio.h>\n"
    "int main(int argc, char** argv) {\n"
    "  FILE* out = fopen(\"WineGameArg.txt\", \"w\");\n"
    "  if (!out) return 1;\n"
    "  fputs(argc > 1 ? argv[1] : \"(none)\", out);\n"
    "  return fclose(out) != 0;\n"
    "}\n";

// Language neutral, default sublanguage: the one the search asks for first.
const char kGameResources[] = "LANGUAGE 0, 1\nSTRINGTABLE\nBEGIN\n  1, L\"GAME\"\nEND\n";

TEST_F(cWineTestPlayTest, AWindowsProgramBuiltWithMinGWPlaysUnderWine) {
  for (const char* tool : {"x86_64-w64-mingw32-gcc", "x86_64-w64-mingw32-windres", "wine"}) {
    if (!FoundOnPath(tool)) {
      GTEST_SKIP() << tool << " is not installed: this test needs Debian's MinGW cross compiler "
                   << "(gcc-mingw-w64-x86-64) and wine, which the set-up does not install";
    }
  }
  testing::WriteText("game.c", kGameSource);
  testing::WriteText("game.rc", kGameResources);
  ASSERT_EQ(0, std::system("x86_64-w64-mingw32-windres game.rc -O coff -o game_res.o && "
                           "x86_64-w64-mingw32-gcc -O2 -o game.exe game.c game_res.o"));
  ASSERT_TRUE(IsGameProgram("game.exe"));
  // A prefix of its own, kept between runs since making one takes long;
  // no window of wine's own set-up may wait for an answer.
  ::setenv("WINEPREFIX", ("/tmp/velmora-wine-" + std::to_string(::getuid())).c_str(), 1);
  ::setenv("WINEDEBUG", "-all", 1);
  ::setenv("WINEDLLOVERRIDES", "mscoree,mshtml=", 1);

  ASSERT_EQ(1, TestPlay(0));
  ASSERT_TRUE(PlayEndsWithin(300));
  EXPECT_TRUE(HistoryBuilt());
  EXPECT_EQ(kStored, testing::ReadText("WineGameArg.txt"));
}

}  // namespace
}  // namespace velmora

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <string_view>

#include "core/GameProgram.h"
#include "core/PrjOption.h"
#include "support/ExecutableImages.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cNote;
using testing::cTempProject;
using testing::MakeElf;
using testing::MakePe;
using testing::WriteBytes;

const cNote kBuildId{"GNU", 3, std::string(20, 'x')};
const cNote kGameNote{"Velmora", 1, "GAME"};

bool MarkedFile(const std::vector<uint8_t>& bytes) {
  WriteBytes("candidate", bytes);
  return IsGameProgram("candidate");
}

class cGameProgramTest : public ::testing::Test {
 protected:
  void TearDown() override { ProjectOption().SetUp(); }
  cTempProject m_project;
};

TEST_F(cGameProgramTest, ElfNoteMarksAGameInEitherClassOrderAndTable) {
  for (bool wide : {false, true}) {
    for (bool big : {false, true}) {
      for (bool inSections : {false, true}) {
        SCOPED_TRACE(::testing::Message() << wide << big << inSections);
        EXPECT_TRUE(MarkedFile(MakeElf(wide, big, inSections, {kBuildId, kGameNote})));
        EXPECT_FALSE(MarkedFile(MakeElf(wide, big, inSections, {kBuildId})));
      }
    }
  }
  EXPECT_FALSE(MarkedFile(MakeElf(true, false, true, {{"Velmora", 2, "GAME"}})));
  EXPECT_FALSE(MarkedFile(MakeElf(true, false, true, {{"Velmora", 1, "GAMES"}})));
  EXPECT_FALSE(MarkedFile(MakeElf(true, false, true, {{"Velmor", 1, "GAME"}})));
}

TEST_F(cGameProgramTest, WindowsProgramIsMarkedByItsFirstStringInTheDefaultLanguageFirst) {
  EXPECT_TRUE(MarkedFile(MakePe(false, {{1024, u"GAME"}})));
  EXPECT_TRUE(MarkedFile(MakePe(true, {{1024, u"GAME"}})));
  EXPECT_TRUE(MarkedFile(MakePe(false, {{1041, u"GAME"}})));
  EXPECT_TRUE(MarkedFile(MakePe(false, {{1033, u"EDIT"}, {1024, u"GAME"}})));
  EXPECT_FALSE(MarkedFile(MakePe(false, {{1033, u"GAME"}, {1024, u"EDIT"}})));
  EXPECT_FALSE(MarkedFile(MakePe(false, {{1024, u"GAMES"}})));
  EXPECT_FALSE(MarkedFile(MakePe(false, {})));
}

TEST_F(cGameProgramTest, DamagedExecutablesAreNoGamesAndReadNothingOutside) {
  for (const std::vector<uint8_t>& good : {MakeElf(true, false, true, {kGameNote}), MakeElf(false, true, false, {kGameNote}),
                                           MakePe(false, {{1024, u"GAME"}})}) {
    for (size_t size = 0; size < good.size(); ++size) {
      const std::vector<uint8_t> cut(good.begin(), good.begin() + static_cast<long>(size));
      // Each file ends in a few bytes the mark doesn't need: the empty
      // strings of a block, the unused end of a table entry.
      const bool marked = MarkedFile(cut);
      if (size + 28 < good.size()) {
        EXPECT_FALSE(marked) << "cut at " << size;
      }
    }
  }
  std::vector<uint8_t> elf = MakeElf(true, false, true, {kGameNote});
  elf[0x100] = elf[0x101] = elf[0x102] = elf[0x103] = 0xff;  // name size near 4 GB
  EXPECT_FALSE(MarkedFile(elf));
  elf = MakeElf(true, false, true, {kGameNote});
  elf[40 + 7] = 0xff;  // section table far beyond the end
  EXPECT_FALSE(MarkedFile(elf));
  std::vector<uint8_t> pe = MakePe(false, {{1024, u"GAME"}});
  pe[0x3c + 3] = 0x7f;  // header beyond the end
  EXPECT_FALSE(MarkedFile(pe));
  // Resource root at 0x200: language entry at 0x40, its data entry at 0x48, the block at 0x58.
  pe = MakePe(false, {{1024, u"GAME"}});
  pe[0x200 + 0x58 + 2] = pe[0x200 + 0x58 + 3] = 0xff;  // string longer than its block
  EXPECT_FALSE(MarkedFile(pe));
  pe = MakePe(false, {{1024, u"GAME"}});
  pe[0x200 + 0x48 + 3] = 0x7f;  // data in no section
  EXPECT_FALSE(MarkedFile(pe));
  pe = MakePe(false, {{1024, u"GAME"}});
  pe[0x200 + 0x40 + 7] = 0x80;  // a directory where the data should be
  EXPECT_FALSE(MarkedFile(pe));
}

TEST_F(cGameProgramTest, SearchTakesTheFirstMarkedFileByNameAndPassesOverTheEditor) {
  std::filesystem::copy_file("/proc/self/exe", "Editor");
  testing::WriteText("readme.txt", "GAME");
  testing::MakeDirs("a_folder.exe");
  WriteBytes("b_game", MakeElf(true, false, true, {kGameNote}));
  WriteBytes("c_game.exe", MakePe(false, {{1024, u"GAME"}}));
  std::string found = "stale";
  ASSERT_TRUE(FindGameProgram(found));
  EXPECT_EQ("b_game", found);
  std::filesystem::remove("b_game");
  ASSERT_TRUE(FindGameProgram(found));
  EXPECT_EQ("c_game.exe", found);
  std::filesystem::remove("c_game.exe");
  EXPECT_FALSE(FindGameProgram(found));
  EXPECT_EQ("", found);
}

TEST_F(cGameProgramTest, OptionPathIsTakenWhenItExistsWithoutLookingForAMark) {
  ProjectOption().m_bAutoGame = 0;
  ProjectOption().m_strGamePath = "bin\\Game.exe";
  std::string found = "stale";
  EXPECT_FALSE(FindGameProgram(found));
  EXPECT_EQ("", found);
  testing::MakeDirs("bin");
  testing::WriteText("bin/Game.exe", "anything");
  ASSERT_TRUE(FindGameProgram(found));
  EXPECT_EQ("bin\\Game.exe", found);
}

TEST_F(cGameProgramTest, TheStandinGameCarriesTheMark) {
  std::filesystem::copy_file(VELMORA_STANDIN_GAME, "standin");
  EXPECT_TRUE(IsGameProgram("standin"));
  EXPECT_FALSE(IsGameProgram("missing"));
}

}  // namespace
}  // namespace velmora

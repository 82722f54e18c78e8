#include <gtest/gtest.h>

#include <cstdio>

#include "graphics/PaletteBitmaps.h"
#include "graphics/ProjectPalette.h"
#include "graphics/SamplePictures.h"
#include "project/bitmap/BitmapConvert.h"
#include "project/bitmap/BitmapList.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora::testing {
namespace {

TEST(BitmapList, OnlyTheWholeExtensionBmpCountsInAnyCase) {
  for (const char* name : {"a.bmp", "a.BMP", "dir\\b.Bmp", "x.y.bmp"}) EXPECT_TRUE(HasBitmapExtension(name)) << name;
  for (const char* name : {"a.bmp2", "abmp", "a.bm", "a.bmp.txt", "dir.bmp\\file", ""}) {
    EXPECT_FALSE(HasBitmapExtension(name)) << name;
  }
}

TEST(BitmapList, ADroppedFolderGivesItsOwnBitmapsInNameOrder) {
  cTempProject project;
  MakeDirs("drop/inner.bmp");
  for (const char* name : {"drop/b.bmp", "drop/A.BMP", "drop/notes.txt", "drop/inner.bmp/deep.bmp", "one.bmp",
                           "one.png"}) {
    WriteBytes(name, {1});
  }
  EXPECT_EQ(BitmapsOfDropped("drop"), (std::vector<std::string>{"drop\\A.BMP", "drop\\b.bmp"}));
  EXPECT_EQ(BitmapsOfDropped("DROP\\"), (std::vector<std::string>{"DROP\\A.BMP", "DROP\\b.bmp"}));
  EXPECT_EQ(BitmapsOfDropped("one.bmp"), std::vector<std::string>{"one.bmp"});
  EXPECT_TRUE(BitmapsOfDropped("one.png").empty());
  EXPECT_TRUE(BitmapsOfDropped("gone.bmp").empty());
}

TEST(BitmapList, ARunTellsItsProgressBeforeTheLastBox) {
  cTempProject project;
  cScriptedPrompt prompt;
  std::vector<std::pair<size_t, size_t>> told;
  size_t boxesAtEnd = 0;
  RunConversion({"gone.bmp", "lost.bmp"}, cConvertOptions(), [&](size_t done, size_t total) {
    told.emplace_back(done, total);
    boxesAtEnd = prompt.Shown().size();
  });
  EXPECT_EQ(told, (std::vector<std::pair<size_t, size_t>>{{1, 2}, {2, 2}}));
  EXPECT_EQ(boxesAtEnd, 2u);  // the two failures; the completion box follows
  EXPECT_EQ(prompt.LastText(), "変換完了！");
}

// A project copied from Windows may name its folders in any case.
TEST(BitmapList, ThePalettesAreFoundWhateverTheCaseOnDisk) {
  cTempProject project;
  cScriptedPrompt prompt;
  ASSERT_TRUE(WriteSamplePictures());
  ASSERT_EQ(std::rename("bmp/plt", "bmp/PLT"), 0);
  ASSERT_EQ(std::rename("bmp/PLT/Palette2.bmp", "bmp/PLT/PALETTE2.bmp"), 0);
  SourcePalette() = cColourTable{};
  EXPECT_TRUE(LoadPaletteBitmaps());
  EXPECT_TRUE(prompt.Shown().empty());
  EXPECT_NE(SourcePalette(), cColourTable{});
}

}  // namespace
}  // namespace velmora::testing

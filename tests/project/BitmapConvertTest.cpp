#include <gtest/gtest.h>

#include "platform/FileSystem.h"
#include "project/bitmap/BitmapConvert.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"
#include "graphics/ProjectPalette.h"

namespace velmora::testing {
namespace {

constexpr int kWidth = 5;  // rows carry three bytes of padding
constexpr size_t kRows = 54 + 1024;

cColourTable SourceColours() {
  cColourTable table{};
  for (int i = 1; i < 255; ++i) {
    const auto v = static_cast<uint8_t>(i);
    table[static_cast<size_t>(i)] = cRgbQuad{v, static_cast<uint8_t>(v * 3), static_cast<uint8_t>(255 - v), 0};
  }
  table[255] = cRgbQuad{255, 255, 255, 0};
  table[41] = table[40];
  return table;
}

cColourTable ProjectColours() {
  cColourTable table{};
  for (auto& q : table) q = cRgbQuad{7, 7, 7, 0};
  return table;
}

// An input file by hand: `colours` as its table, then two rows of
// `pixels` each followed by padding 0xAB.
std::vector<uint8_t> InputFile(const std::vector<cRgbQuad>& colours, const std::vector<uint8_t>& pixels,
                               int height = 2, uint16_t bitCount = 8) {
  cBytes b;
  b.U8('B').U8('M').U32(0).U32(0x12345678).U32(kRows);
  b.U32(40).I32(kWidth).I32(height).Raw("\1\0", 2).Raw(&bitCount, 2).U32(0).U32(0).U32(99).U32(98).U32(0).U32(0);
  for (int i = 0; i < 256; ++i) {
    cRgbQuad q = static_cast<size_t>(i) < colours.size() ? colours[static_cast<size_t>(i)] : cRgbQuad{1, 1, 1, 0};
    b.U8(q.blue).U8(q.green).U8(q.red).U8(q.reserved);
  }
  for (int row = 0; row < 2; ++row) {
    b.Raw(pixels.data(), kWidth);
    b.U8(0xAB).U8(0xAB).U8(0xAB);
  }
  return b.Data();
}

class BitmapConvert : public ::testing::Test {
 protected:
  eConvertResult Convert(const std::string& in, const std::string& out) {
    return ConvertBitmap(in, out, options, ProjectColours(), SourceColours());
  }
  cTempProject project;
  cScriptedPrompt prompt;
  cConvertOptions options;
};

TEST_F(BitmapConvert, EveryColourFindsItsPlace) {
  const cColourTable source = SourceColours();
  cRgbQuad nearHundred = source[100];
  nearHundred.green += 1;
  // By colour number: 0 transparent (and equal to entry 0), 1 the line
  // colour, then equal to entry 0, equal to entry 255, near entry 100,
  // equal to entries 5, 230 and 41 (which repeats entry 40).
  const std::vector<cRgbQuad> colours = {source[0], {60, 60, 60, 0}, source[0],  source[255],
                                         nearHundred, source[5],       source[230], source[41]};
  options.replaceLineColour = true;
  options.lineColourOut = 250;
  WriteBytes("in.bmp", InputFile(colours, {0, 1, 2, 3, 4}));
  MakeDirs("bmp/convert");
  ASSERT_EQ(Convert("in.bmp", "bmp\\convert\\in.bmp"), eConvertResult::Ok);
  const std::vector<uint8_t> in = ReadBytes("in.bmp");
  const std::vector<uint8_t> out = ReadBytes("bmp/convert/in.bmp");
  ASSERT_EQ(out.size(), in.size());
  EXPECT_TRUE(std::equal(in.begin(), in.begin() + 54, out.begin()));  // headers as read
  const std::vector<uint8_t> row(out.begin() + kRows, out.begin() + kRows + 8);
  EXPECT_EQ(row, (std::vector<uint8_t>{0, 250, 52, 31, 100, 0xAB, 0xAB, 0xAB}));

  // The written table: the source palette with the line and option colours of the project.
  auto entry = [&](int i) { return out[54 + 4 * static_cast<size_t>(i)]; };
  EXPECT_EQ(entry(9), source[9].blue);
  EXPECT_EQ(entry(10), 7);
  EXPECT_EQ(entry(15), 7);
  EXPECT_EQ(entry(16), source[16].blue);
  EXPECT_EQ(entry(208), 7);
  EXPECT_EQ(entry(239), 7);
  EXPECT_EQ(entry(240), source[240].blue);

  WriteBytes("in.bmp", InputFile(colours, {5, 6, 7, 7, 0}));
  options.useTransparency = false;
  ASSERT_EQ(Convert("in.bmp", "in.bmp"), eConvertResult::Ok);  // overwritten in place
  const std::vector<uint8_t> again = ReadBytes("in.bmp");
  EXPECT_EQ(std::vector<uint8_t>(again.begin() + kRows, again.begin() + kRows + kWidth),
            (std::vector<uint8_t>{16, 16, 40, 40, 52}));
}

TEST_F(BitmapConvert, TransparencyWinsOverTheLineColour) {
  options.replaceLineColour = true;
  options.lineColourIn = 0;
  options.lineColourOut = 12;
  WriteBytes("in.bmp", InputFile({SourceColours()[0]}, {0, 0, 0, 0, 0}));
  ASSERT_EQ(Convert("in.bmp", "out.bmp"), eConvertResult::Ok);
  const std::vector<uint8_t> out = ReadBytes("out.bmp");
  EXPECT_EQ(std::vector<uint8_t>(out.begin() + kRows, out.begin() + kRows + kWidth), std::vector<uint8_t>(kWidth, 0));
}

TEST_F(BitmapConvert, FailuresNameTheirFileAndTouchNothing) {
  WriteBytes("out.bmp", {1, 2, 3});
  WriteBytes("true.bmp", InputFile({}, {0, 0, 0, 0, 0}, 2, 24));
  EXPECT_EQ(Convert("true.bmp", "out.bmp"), eConvertResult::Not256Colours);
  EXPECT_EQ(prompt.LastText(), "true.bmp は256色ではありません！");
  EXPECT_EQ(ReadBytes("out.bmp"), (std::vector<uint8_t>{1, 2, 3}));

  EXPECT_EQ(Convert("gone.bmp", "out.bmp"), eConvertResult::LoadFailed);
  EXPECT_EQ(prompt.LastText(), "gone.bmp のロードに失敗！");
  std::vector<uint8_t> tall = InputFile({}, {0, 0, 0, 0, 0}, 3);  // says three rows, holds two
  WriteBytes("tall.bmp", tall);
  EXPECT_EQ(Convert("tall.bmp", "out.bmp"), eConvertResult::LoadFailed);
  EXPECT_EQ(ReadBytes("out.bmp"), (std::vector<uint8_t>{1, 2, 3}));

  WriteBytes("in.bmp", InputFile({}, {0, 0, 0, 0, 0}));
  EXPECT_EQ(Convert("in.bmp", "no\\such\\folder.bmp"), eConvertResult::OpenFailed);
  EXPECT_EQ(prompt.LastText(), "no\\such\\folder.bmp のオープンに失敗！");
  // A disk that fills up fails the picture just as a folder that is missing.
  EXPECT_EQ(Convert("in.bmp", "/dev/full"), eConvertResult::OpenFailed);
}

TEST_F(BitmapConvert, NegativeHeightKeepsNoRows) {
  WriteBytes("in.bmp", InputFile({}, {0, 0, 0, 0, 0}, -2));
  ASSERT_EQ(Convert("in.bmp", "out.bmp"), eConvertResult::Ok);
  EXPECT_EQ(ReadBytes("out.bmp").size(), kRows);
}

TEST_F(BitmapConvert, OutputPathsAndTheRun) {
  EXPECT_EQ(ConvertOutputPath(".\\bmp\\a\\b.bmp", options), "bmp\\convert\\b.bmp");
  options.outputFolder = "out";
  EXPECT_EQ(ConvertOutputPath("b.bmp", options), "out\\b.bmp");
  options.sameAsInput = true;
  EXPECT_EQ(ConvertOutputPath("bmp\\a\\b.bmp", options), "bmp\\a\\b.bmp");

  EXPECT_FALSE(RunConversion({}, options));
  EXPECT_TRUE(prompt.Shown().empty());

  ProjectPalette() = ProjectColours();
  SourcePalette() = SourceColours();
  options.sameAsInput = false;
  MakeDirs("out");
  WriteBytes("in.bmp", InputFile({}, {0, 0, 0, 0, 0}));
  EXPECT_TRUE(RunConversion({"gone.bmp", "in.bmp"}, options));
  ASSERT_EQ(prompt.Shown().size(), 2u);
  EXPECT_EQ(prompt.Shown()[0].text, "gone.bmp のロードに失敗！");
  EXPECT_EQ(prompt.Shown()[1].caption, "変換完了");
  EXPECT_EQ(prompt.Shown()[1].text, "変換完了！");
  EXPECT_TRUE(FileExists("out\\in.bmp"));
}

}  // namespace
}  // namespace velmora::testing

#include "project/bitmap/BitmapConvert.h"

#include <array>
#include <cstring>

#include "core/EditConfig.h"
#include "core/Log.h"
#include "core/Prompt.h"
#include "core/SystemText.h"
#include "platform/WholeFile.h"
#include "graphics/BitmapFile.h"
#include "graphics/ProjectPalette.h"

namespace velmora {
namespace {

constexpr size_t kTableBytes = 256 * 4;
constexpr size_t kRowsStart = kBitmapHeadersSize + kTableBytes;

// Entries of the written table that come from the project palette: the line
// colours and the colours the option screens change.
struct cEntryRange {
  int first;
  int last;
};
constexpr std::array<cEntryRange, 2> kProjectEntries = {{{10, 15}, {208, 239}}};

// A picture as the tool keeps it: the header and table bytes as read and
// the rows, padding included, bottom row first.
struct cIndexedPicture {
  const uint8_t* headers = nullptr;
  const uint8_t* table = nullptr;
  uint8_t* rows = nullptr;
  int width = 0;
  int height = 0;
  size_t rowBytes = 0;
};

eConvertResult ReadPicture(const std::string& input, cWholeFile& file, cIndexedPicture& picture) {
  const eReadResult read = ReadBitmapFile(input, file);
  if (read == eReadResult::OutOfMemory) StopOutOfMemory();
  if (read != eReadResult::Ok) return eConvertResult::LoadFailed;
  cBitmapHeader header;
  if (!ParseBitmapHeader(file.data.get(), file.size, header)) return eConvertResult::LoadFailed;
  if (header.bitCount != 8) return eConvertResult::Not256Colours;
  if (header.width < 0 || file.size < kRowsStart) return eConvertResult::LoadFailed;
  picture.headers = file.data.get();
  picture.table = file.data.get() + kBitmapHeadersSize;
  picture.rows = file.data.get() + kRowsStart;
  picture.width = header.width;
  picture.height = header.height > 0 ? header.height : 0;
  picture.rowBytes = ((static_cast<size_t>(header.width) * 8 + 31) & ~static_cast<size_t>(31)) / 8;
  if (picture.rowBytes * static_cast<size_t>(picture.height) > file.size - kRowsStart) {
    return eConvertResult::LoadFailed;
  }
  return eConvertResult::Ok;
}

// The new index of every colour number of the input, worked out once per
// number rather than once per pixel.
std::array<uint8_t, 256> MapColours(const uint8_t* inputTable, const cConvertOptions& options,
                                    const cColourTable& sourcePalette) {
  std::array<uint8_t, 256> map{};
  for (int c = 0; c < 256; ++c) {
    const uint8_t* entry = inputTable + c * 4;
    if (options.useTransparency && c == options.transparentColour) {
      map[static_cast<size_t>(c)] = 0;
    } else if (options.replaceLineColour && c == options.lineColourIn) {
      map[static_cast<size_t>(c)] = static_cast<uint8_t>(options.lineColourOut);
    } else {
      const int nearest = NearestIndex(sourcePalette, Rgb(entry[2], entry[1], entry[0]));
      map[static_cast<size_t>(c)] = static_cast<uint8_t>(FoldIntoUsableRange(nearest));
    }
  }
  return map;
}

cColourTable OutputTable(const cColourTable& projectPalette, const cColourTable& sourcePalette) {
  cColourTable table = sourcePalette;
  for (const cEntryRange& range : kProjectEntries) {
    for (int i = range.first; i <= range.last; ++i) {
      table[static_cast<size_t>(i)] = projectPalette[static_cast<size_t>(i)];
    }
  }
  return table;
}

bool WritePicture(const std::string& output, const cIndexedPicture& picture, const cColourTable& table) {
  std::vector<uint8_t> bytes(picture.headers, picture.headers + kBitmapHeadersSize);
  for (const cRgbQuad& q : table) bytes.insert(bytes.end(), {q.blue, q.green, q.red, q.reserved});
  bytes.insert(bytes.end(), picture.rows, picture.rows + picture.rowBytes * static_cast<size_t>(picture.height));
  return WriteWholeFile(output, bytes);
}

}  // namespace

cConvertOptions ConvertOptionsOf(const EditConfig& config) {
  cConvertOptions options;
  options.useTransparency = config.m_bBmpUseTrans != 0;
  options.transparentColour = config.m_nBmpTransColor;
  options.replaceLineColour = config.m_bBmpReplaceLine != 0;
  options.lineColourIn = config.m_nBmpLineIn;
  options.lineColourOut = config.m_nBmpLineOut;
  options.sameAsInput = config.m_bBmpSameAsInput != 0;
  options.outputFolder = config.m_strBmpFolder;
  return options;
}

void StoreConvertOptions(const cConvertOptions& options, EditConfig& config) {
  config.m_bBmpUseTrans = options.useTransparency ? 1 : 0;
  config.m_nBmpTransColor = options.transparentColour;
  config.m_bBmpReplaceLine = options.replaceLineColour ? 1 : 0;
  config.m_nBmpLineIn = options.lineColourIn;
  config.m_nBmpLineOut = options.lineColourOut;
  config.m_bBmpSameAsInput = options.sameAsInput ? 1 : 0;
  config.m_strBmpFolder = options.outputFolder;
}

std::string ConvertOutputPath(const std::string& input, const cConvertOptions& options) {
  if (options.sameAsInput) return input;
  const size_t slash = input.rfind('\\');
  const std::string tail = slash == std::string::npos ? "\\" + input : input.substr(slash);
  return options.outputFolder + tail;
}

int FoldIntoUsableRange(int index) {
  if (index == 0) return 52;
  if (index == 255) return 31;
  if (index < 16 || index > 207) return 16;
  return index;
}

eConvertResult ConvertBitmap(const std::string& input, const std::string& output, const cConvertOptions& options,
                             const cColourTable& projectPalette, const cColourTable& sourcePalette) {
  cWholeFile file;
  cIndexedPicture picture;
  const eConvertResult read = ReadPicture(input, file, picture);
  if (read == eConvertResult::LoadFailed) ErrorBox(SysText("%s のロードに失敗！"), input.c_str());
  if (read == eConvertResult::Not256Colours) ErrorBox(SysText("%s は256色ではありません！"), input.c_str());
  if (read != eConvertResult::Ok) return read;

  const std::array<uint8_t, 256> map = MapColours(picture.table, options, sourcePalette);
  for (int y = 0; y < picture.height; ++y) {
    uint8_t* row = picture.rows + static_cast<size_t>(y) * picture.rowBytes;
    for (int x = 0; x < picture.width; ++x) row[x] = map[row[x]];
  }
  if (!WritePicture(output, picture, OutputTable(projectPalette, sourcePalette))) {
    ErrorBox(SysText("%s のオープンに失敗！"), output.c_str());
    return eConvertResult::OpenFailed;
  }
  return eConvertResult::Ok;
}

bool RunConversion(const std::vector<std::string>& files, const cConvertOptions& options,
                   const cConvertProgress& progress) {
  if (files.empty()) return false;
  for (size_t i = 0; i < files.size(); ++i) {
    ConvertBitmap(files[i], ConvertOutputPath(files[i], options), options, ProjectPalette(), SourcePalette());
    if (progress) progress(i + 1, files.size());
  }
  Prompt().Ask(nullptr, SysText("変換完了"), SysText("変換完了！"), eButtons::Ok, eIcon::Information);
  return true;
}

}  // namespace velmora

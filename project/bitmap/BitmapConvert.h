#pragma once
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "graphics/Colour.h"

namespace velmora {

class EditConfig;

// The bitmap tool rewrites 256-colour pictures made elsewhere so that every
// pixel uses a colour the project's games may use: colour 0 for
// transparency, the line colours, and entries 16 to 207 of the source
// palette. The options persist in the editor settings.
struct cConvertOptions {
  bool useTransparency = true;
  int transparentColour = 0;
  bool replaceLineColour = false;
  int lineColourIn = 1;
  int lineColourOut = 15;
  bool sameAsInput = false;  // overwrite each input
  std::string outputFolder = "bmp\\convert";
};

// The options as the editor settings keep them, and back.
cConvertOptions ConvertOptionsOf(const EditConfig& config);
void StoreConvertOptions(const cConvertOptions& options, EditConfig& config);

// Where the converted form of `input` goes.
std::string ConvertOutputPath(const std::string& input, const cConvertOptions& options);

// Brings the nearest palette index into the usable range: the low system
// and line colours and the high option colours become 16, black (0) becomes
// 52 and white (255) becomes 31.
int FoldIntoUsableRange(int index);

enum class eConvertResult { Ok, LoadFailed, Not256Colours, OpenFailed };

// Converts one file; reports its own failure in a box. `projectPalette`
// supplies entries 10 to 15 and 208 to 239 of the written colour table,
// `sourcePalette` all others and the colours matched against.
eConvertResult ConvertBitmap(const std::string& input, const std::string& output, const cConvertOptions& options,
                             const cColourTable& projectPalette, const cColourTable& sourcePalette);

// Told after each file of a run, with the files done and the files in all;
// the last call comes before the completion box.
using cConvertProgress = std::function<void(size_t done, size_t total)>;

// Converts every file in list order with the palettes of the open project,
// going on past failures, and closes with the completion box. An empty list
// does nothing at all and gives false.
bool RunConversion(const std::vector<std::string>& files, const cConvertOptions& options,
                   const cConvertProgress& progress = {});

}  // namespace velmora

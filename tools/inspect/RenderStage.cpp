#include "inspect/RenderStage.h"

#include <charconv>

#include "inspect/Inspector.h"
#include "inspect/PngFile.h"
#include "platform/HostPath.h"
#include "project/Database.h"
#include "project/ProjectLoad.h"
#include "stage/Stage.h"
#include "graphics/stageview/StageView.h"
#include "graphics/CharaBitmaps.h"
#include "graphics/FixedBitmaps.h"
#include "graphics/PaletteBitmaps.h"

namespace velmora::inspect {
namespace {

struct cCellArea {
  int x = 0, y = 0, w = 0, h = 0;
};

bool ParseInt(const std::string& text, int& value) {
  const char* end = text.data() + text.size();
  auto [ptr, ec] = std::from_chars(text.data(), end, value);
  return ec == std::errc() && ptr == end;
}

// The four numbers after the two paths, or the whole stage without them.
bool ParseArea(const std::vector<std::string>& args, const cStage& stage, cCellArea& area) {
  if (args.size() == 3) {
    area = {0, 0, stage.m_nWidth, stage.m_nHeight};
    return true;
  }
  return args.size() == 7 && ParseInt(args[3], area.x) && ParseInt(args[4], area.y) && ParseInt(args[5], area.w) &&
         ParseInt(args[6], area.h) && area.w >= 1 && area.h >= 1 && area.w <= kMaxStageSize &&
         area.h <= kMaxStageSize;
}

// What the stage window draws with; a missing database only costs the
// animation shifts and own bitmaps, so it is told and passed over.
bool LoadPictures(std::string& err) {
  if (!LoadPaletteBitmaps() || !LoadFixedBitmaps("", "")) {
    err += "velmora-inspect: the project's pictures under bmp\\ can't be loaded\n";
    return false;
  }
  std::string failed;
  if (!Database().Load(failed)) err += "velmora-inspect: " + failed + " not read; drawn without it\n";
  LoadCharaBitmaps(CharaBitmapSources(), false);
  return true;
}

int WriteArea(const cStage& stage, const cCellArea& area, const cViewOptions& options, const std::string& outPath,
              std::string& err) {
  if (!LoadPictures(err)) return 1;
  cSurface view;
  if (!view.CreateSurface(area.w * kCellDots, area.h * kCellDots, 32, false)) {
    err += "velmora-inspect: no memory for the picture\n";
    return 1;
  }
  RenderStageView(stage, view, area.x, area.y, options);
  if (!WritePng(outPath, view.Image())) {
    err += "velmora-inspect: cannot write " + outPath + "\n";
    return 1;
  }
  return 0;
}

}  // namespace

int WriteStagePng(const cStage& stage, const std::vector<cCellFrame>& marks, const std::string& outPath,
                  std::string& err) {
  cViewOptions options;
  options.marks = marks;
  return WriteArea(stage, {0, 0, stage.m_nWidth, stage.m_nHeight}, options, outPath, err);
}

int RenderStage(const std::vector<std::string>& args, std::string& err) {
  cStage stage;
  if (!stage.LoadFile(StoredPath(args[1]))) {
    err += ReadFailureText(args[1]);
    return 1;
  }
  cCellArea area;
  if (!ParseArea(args, stage, area)) {
    err += "velmora-inspect: the area is x y w h in cells, w and h from 1 to " + std::to_string(kMaxStageSize) + "\n";
    return 2;
  }
  return WriteArea(stage, area, cViewOptions{}, args[2], err);
}

}  // namespace velmora::inspect

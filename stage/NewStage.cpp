#include <memory>

#include "core/Log.h"
#include "core/PrjOption.h"
#include "core/Prompt.h"
#include "core/SystemText.h"
#include "objects/Inherit.h"
#include "objects/Palette.h"
#include "platform/FileSystem.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageHistory.h"

namespace velmora {
namespace {

template <class T>
void CopyFromCommon(std::vector<T>& list, const std::vector<T>& common, eEntryKind kind) {
  const PrjOption& option = ProjectOption();
  list = common;
  if (list.empty()) return;
  list[0].ResetEntry();
  for (size_t i = 1; i < list.size(); ++i) {
    SetInherit(list[i], option.m_anDefSrc[kMomentStage][kind], static_cast<int>(i), option.m_vDefFlags[kMomentStage][kind]);
  }
}

// The template is read beside the edit stage and takes its place only
// whole, so one that fails leaves the stage being edited as it was.
bool ReadTemplate(const std::string& templatePath) {
  cStage& stage = EditStage();
  if (templatePath.empty()) {
    stage.InitDefault();
    stage.Normalize();
    return true;
  }
  std::string found;
  if (!FindLatestVersion(found, templatePath, "stg4")) return false;
  auto read = std::make_unique<cStage>();
  if (!read->LoadWholeFile(found)) return false;
  stage.Exchange(*read);
  return true;
}

// The progress window goes before the error shows.
eNewStageResult FailWith(const char* format, const std::string& path) {
  Prompt().CloseMessageWindow();
  ErrorBox(format, path.c_str());
  return eNewStageResult::Failed;
}

}  // namespace

eNewStageResult CreateNewStage(const std::string& templatePath, int paletteSource, const std::string& palettePath) {
  cStageEdit& edit = StageEdit();
  if (edit.m_bHasStage &&
      Prompt().Ask(nullptr, SysText("新規作成の確認"), SysText("現在のステージは破棄されます。\n新規作成しますか？\n"),
                   eButtons::YesNo, eIcon::Question) != eAnswer::Yes) {
    return eNewStageResult::Kept;
  }
  Prompt().ShowMessageWindow(nullptr, SysText("ステージの新規作成"), SysText("ステージを作成しています..."));
  if (paletteSource == kNewPaletteFromFile && !FileExists(palettePath)) {
    return FailWith(SysText("ステージパレットファイル %s が見つかりません！"), palettePath);
  }
  // Read before anything changes: a file that fails leaves all as it was.
  cStage paletteFile;
  if (paletteSource == kNewPaletteFromFile && !ReadStagePaletteFile(palettePath, paletteFile)) {
    return FailWith(StagePaletteLoadFailure(), palettePath);
  }
  ClearHistory();
  if (!ReadTemplate(templatePath)) {
    RebuildHistory();
    return FailWith(SysText("ステージファイル %s が見つかりません！"), templatePath);
  }
  cStage& stage = EditStage();
  switch (paletteSource) {
    case kNewPaletteEmpty:
      stage.m_vecBlockPlt.assign(1, cEdBlock());
      stage.m_vecCharaPlt.assign(1, cEdChara());
      stage.m_vecItemPlt.assign(1, cEdItem());
      break;
    case kNewPaletteFromCommon:
      CopyFromCommon(stage.m_vecBlockPlt, CommonPalette().m_vecBlockPlt, kKindBlock);
      CopyFromCommon(stage.m_vecCharaPlt, CommonPalette().m_vecCharaPlt, kKindChara);
      CopyFromCommon(stage.m_vecItemPlt, CommonPalette().m_vecItemPlt, kKindItem);
      break;
    case kNewPaletteFromFile:
      stage.ExchangePalette(paletteFile);
      break;
    default:
      break;
  }
  stage.Normalize();
  edit.m_bHasStage = 1;
  edit.m_strPath.clear();
  edit.m_bStageChanged = 0;
  RebuildHistory();
  Prompt().CloseMessageWindow();
  return eNewStageResult::Created;
}

}  // namespace velmora

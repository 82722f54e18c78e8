#include "ui/stage/NewStageDialog.h"

#include "core/EditConfig.h"
#include "core/ProjectPaths.h"
#include "stage/StageEdit.h"
#include "ui/controls/Combo.h"
#include "ui/controls/PathBrowse.h"
#include "ui/framework/Commands.h"

namespace velmora {
namespace {

enum eNewStageIds { kIdTemplate = 1003, kIdTemplateBrowse, kIdPaletteChoice, kIdPaletteFile, kIdPaletteBrowse };
constexpr int kPathLimit = 259;

}  // namespace

cNewStageDialog::cNewStageDialog(cDialogManager& manager, QWidget* parent) : cDialog(manager, parent) {
  SetTitle(QString::fromUtf8("ステージの新規作成"));
  SetLogName("new stage");
  EditConfig& config = EditorConfig();
  m_form.rows = {
      {"コピーするステージファイルのパス（テンプレート）\n※実際に読み込まれるファイルは、最も新しいバージョン（同名ファイルの中で拡張子の最後の番号が最も大きいもの）になります。",
       EditStrLine(kIdTemplate, &config.m_strTemplateStage, kPathLimit)},
      {nullptr, cButtonDesc{kIdTemplateBrowse, "参照"}, nullptr, nullptr, true},
      {"ステージパレット",
       cComboDesc{kIdPaletteChoice, &config.m_nStagePaletteChoice,
                  SysTexts({"上記ステージのパレットをそのまま使用", "データなし", "コモンパレットをコピー",
                            "ステージパレットファイルからコピー"}),
                  0, nullptr, true}},
      {"ステージパレットファイルのパス", EditStrLine(kIdPaletteFile, &config.m_strStagePaletteFile, kPathLimit)},
      {nullptr, cButtonDesc{kIdPaletteBrowse, "参照"}, nullptr, nullptr, true},
  };
}

void cNewStageDialog::UpdateEnables() {
  const auto* choice = static_cast<const cCombo*>(FindControl(kIdPaletteChoice));
  const bool fromFile = choice && choice->Selection() == kNewPaletteFromFile;
  EnableControl(kIdPaletteFile, fromFile);
  EnableControl(kIdPaletteBrowse, fromFile);
}

void cNewStageDialog::OnDialogCommand(int id, int notice) {
  if (notice != kNoticeClicked) return;
  if (id == kIdTemplateBrowse) {
    BrowseIntoEdit(*this, kIdTemplate,
                   FilePromptOf("ステージの選択", "data\\stg4\\", "StageFile ( *.stg4_* )", "*.stg4_*"));
  } else if (id == kIdPaletteBrowse) {
    BrowseIntoEdit(*this, kIdPaletteFile,
                   FilePromptOf("ステージパレットの選択", "data\\plt4\\", "PaletteFile ( *.plt4 )", "*.plt4"));
  }
}

bool cNewStageDialog::OnApply() {
  EditConfig& config = EditorConfig();
  const eNewStageResult result =
      CreateNewStage(config.m_strTemplateStage, config.m_nStagePaletteChoice, config.m_strStagePaletteFile);
  if (result == eNewStageResult::Failed) Close(0);
  if (result != eNewStageResult::Created) return false;
  config.SaveFile(PathOf(ePath::EditConfig));
  return true;
}

}  // namespace velmora

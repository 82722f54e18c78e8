#include "ui/database/DatabaseSheet.h"

#include <memory>

#include "stage/PaletteOps.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "ui/database/PageMaker.h"
#include "ui/framework/DialogManager.h"
#include "ui/stage/StageWindow.h"

namespace velmora {
namespace {

using cPageMaker = std::unique_ptr<cDialog> (*)(cDialogManager&, cDatabaseWork&);

struct cPageRow {
  cPageMaker make;
  const char* title;  // UTF-8
};

// The tabs in their order.
constexpr cPageRow kPages[] = {
    {MakePage<cAnimeSetPage>, "基本アニメセット"},  {MakePage<cAnimePage>, "アニメ"},
    {MakePage<cCharaBmpPage>, "キャラの専用bmp"},   {MakePage<cSwordTypePage>, "ソードタイプ"},
    {MakePage<cEffectPage>, "エフェクト"},          {MakePage<cCharaEffectPage>, "キャラエフェクト"},
    {MakePage<cScrEffectPage>, "画面エフェクト"},   {MakePage<cPicturePage>, "ピクチャー"},
    {MakePage<cSoundPage>, "効果音"},               {MakePage<cBgmPage>, "BGM"},
    {MakePage<cWorldChipPage>, "ワールドチップ"},
};

cDatabaseSheet* g_pOpenSheet = nullptr;

// The windows come back as the stage window keeps them: the palettes of
// its layer, not every window there is.
void GiveWindowsBack(cStageWindow& stage, int result) {
  EnableAll(stage.Manager(), true);
  if (result == 1) {
    RefreshRefs();
    EditStage().Normalize();
  }
  if (stage.Window()) stage.Window()->show();
  if (cPaletteWindows* palettes = stage.Palettes()) {
    palettes->ShowLayer(StageEdit().m_iLayer);
    if (result == 1) palettes->Refresh();
  }
  stage.UpdateStates();
  stage.Repaint();
}

}  // namespace

cDatabaseSheet::cDatabaseSheet(cDialogManager& manager, QWidget* owner)
    : cSheet(manager, owner, QString::fromUtf8("データベース"), false), m_work(OpenDatabaseWork()) {
  for (const cPageRow& page : kPages) AddPage(page.make(manager, m_work), QString::fromUtf8(page.title));
}

// A sheet whose window went with the stage window's never finished.
cDatabaseSheet::~cDatabaseSheet() {
  if (g_pOpenSheet == this) g_pOpenSheet = nullptr;
}

bool cDatabaseSheet::OnApply() {
  ApplyDatabaseWork(m_work);
  return true;
}

void InstallDatabaseWindow(cStageWindow& stage) {
  stage.SetHandler(eMenuAction::Database, [&stage] {
    if (g_pOpenSheet) return;
    cDialogManager& manager = stage.Manager();
    ShowAll(manager, false);
    EnableAll(manager, false);
    g_pOpenSheet = new cDatabaseSheet(manager, stage.Window());
    g_pOpenSheet->onFinished = [&stage](int result) {
      g_pOpenSheet = nullptr;
      GiveWindowsBack(stage, result);
    };
    g_pOpenSheet->Start();
    // Its owner is out of sight, so the sheet takes the owner's place.
    if (stage.Window() && g_pOpenSheet) g_pOpenSheet->Window()->move(stage.Window()->frameGeometry().topLeft());
  });
}

bool FinishDatabaseSheet() {
  if (!g_pOpenSheet || !g_pOpenSheet->ApplyPages()) return false;
  g_pOpenSheet->Close(1);
  return true;
}

cDatabaseSheet* OpenDatabaseSheet() { return g_pOpenSheet; }

}  // namespace velmora
